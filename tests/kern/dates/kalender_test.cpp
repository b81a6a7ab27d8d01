// The whole calendar, day by day, against a count that knows nothing but the lengths of the months.

#include <cstdint>
#include <gtest/gtest.h>
#include <string>

#include "kern/dates/datum.h"
#include "kern/dates/datumsliteral.h"
#include "kern/dates/tage30.h"

namespace zinfolio {
namespace kalender_test {

// 9900 years of 365 days, 2475 years divisible by 4, less 99 full centuries, plus 24 divisible by 400.
constexpr int tageDesKalenders = 9900 * 365 + 2475 - 99 + 24;

/// A day that moves on like a calendar on the wall: the slow obvious way.
struct Wandkalender {
    int tag = 1;
    int monat = 1;
    int jahr = 100;

    [[nodiscard]] int LetzterTag() const {
        const int laengen[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        if (monat != 2 || jahr % 4 != 0) return laengen[monat - 1];
        const bool vollesJahrhundert = jahr % 100 == 0;
        return vollesJahrhundert && (jahr / 100) % 4 != 0 ? 28 : 29;
    }

    void Weiter() {
        if (++tag <= LetzterTag()) return;
        tag = 1;
        if (++monat <= 12) return;
        monat = 1;
        ++jahr;
    }
};

TEST(Kalender, JederTagHatSeineZahlUndFindetVonIhrZurueck) {
    Wandkalender wand;
    const std::int32_t erste = Datum().Tageszahl();
    for (int zaehler = 0; zaehler < tageDesKalenders; ++zaehler, wand.Weiter()) {
        const auto datum = Datum::Aus(wand.jahr, wand.monat, wand.tag);
        ASSERT_TRUE(datum) << zaehler;
        if (datum->Tageszahl() != erste + zaehler) FAIL() << testing::PrintToString(*datum);
        if (Datum::AusTageszahl(erste + zaehler) != *datum) FAIL() << testing::PrintToString(*datum);
    }
    EXPECT_EQ(wand.jahr, 10000) << "the walk ends with the calendar";
}

TEST(Kalender, JederTagHatSeinenTextUndFindetVonIhmZurueck) {
    Wandkalender wand;
    std::string text = "00.00.0000";
    const auto setze = [&](std::size_t letzte, int wert) {
        text[letzte] = static_cast<char>('0' + wert % 10);
        text[letzte - 1] = static_cast<char>('0' + wert / 10 % 10);
    };
    for (int zaehler = 0; zaehler < tageDesKalenders; ++zaehler, wand.Weiter()) {
        setze(1, wand.tag);
        setze(4, wand.monat);
        setze(7, wand.jahr / 100);
        setze(9, wand.jahr);
        const auto datum = Datum::Versuche(text);
        if (!datum || datum->Text() != text) FAIL() << text;
    }
}

TEST(Kalender, JederTagLiegtVorDemNaechsten) {
    Datum heute = "01.01.0100"_datum;
    for (int zaehler = 1; zaehler < tageDesKalenders; ++zaehler) {
        const Datum morgen = PlusTage(heute, 1);
        if (!(heute < morgen) || morgen - heute != 1 || PlusTage(morgen, -1) != heute) FAIL() << heute.Text();
        heute = morgen;
    }
    EXPECT_EQ(heute, "31.12.9999"_datum);
}

/// Days of `Tage30` from a day to the next: 1, but a 31st adds none, and the last of February stands for the
/// 30th.
int ErwarteterSchritt(const Wandkalender& morgen) {
    if (morgen.tag == 31) return 0;
    const bool februarende = morgen.monat == 2 && morgen.tag == morgen.LetzterTag();
    return februarende ? 30 - (morgen.tag - 1) : 1;
}

TEST(Kalender, Tage30GehtMitDerZeitNieZurueck) {
    Wandkalender wand;
    const Datum erster = "01.01.0100"_datum;
    Datum heute = erster;
    int summe = 0;
    for (int zaehler = 1; zaehler < tageDesKalenders; ++zaehler) {
        wand.Weiter();
        const Datum morgen = *Datum::Aus(wand.jahr, wand.monat, wand.tag);
        const int schritt = ErwarteterSchritt(wand);
        summe += schritt;
        if (Tage30(heute, morgen) != schritt || Tage30(morgen, heute) != -schritt) FAIL() << heute.Text();
        if (Tage30(erster, morgen) != summe || Tage30(morgen, erster) != -summe) FAIL() << morgen.Text();
        heute = morgen;
    }
    EXPECT_EQ(summe, 9900 * 360 - 1) << "from a first to a thirtieth";
}

TEST(Kalender, TageszahlAusserhalbIstEinFehler) {
    const std::int64_t erste = "01.01.0100"_datum.Tageszahl();
    const std::int64_t letzte = "31.12.9999"_datum.Tageszahl();
    EXPECT_EQ(letzte - erste + 1, tageDesKalenders);
    EXPECT_EQ(Datum::AusTageszahl(erste), "01.01.0100"_datum);
    EXPECT_EQ(Datum::AusTageszahl(letzte), "31.12.9999"_datum);
    for (const std::int64_t zahl : {erste - 1, letzte + 1, std::int64_t{0}, INT64_MIN, INT64_MAX}) {
        EXPECT_THROW(static_cast<void>(Datum::AusTageszahl(zahl)), Datumsfehler) << zahl;
    }
}

TEST(Kalender, TageszahlZaehltVomErstenMaerzDesJahresNull) {
    // 01.03.0000 to 01.03.0099: 99 years, 24 of them with a 29.02.; on to 01.01.0100: 306 days.
    EXPECT_EQ("01.01.0100"_datum.Tageszahl(), 99 * 365 + 24 + 306);
    // 25 spans of 400 years are 01.03.10000; 31.12.9999 lies January and February 10000 and one day before.
    EXPECT_EQ("31.12.9999"_datum.Tageszahl(), 25 * 146097 - (31 + 29) - 1);
}

}  // namespace kalender_test
}  // namespace zinfolio
