// The check of the payment entry.
#include "kern/staffel/zahlungseingabe.h"

#include <gtest/gtest.h>

#include "kern/dates/zahl.h"
#include "kern/staffel/beispielkonto.h"

namespace zinfolio {
namespace zahlungseingabe_test {

const Ablehnung stufenFehlen{
    "Sie haben Dynamisierung der Zahlungen angekreuzt, aber nicht die Anzahl der Stufen angegeben.", "Stufen",
    ""};
const Ablehnung unvollstaendig{"Unvollständige Daten. Eine Übernahme ist nicht möglich.", "Begdatum", ""};

Zahlungseingabe Eingabe(std::string_view begdatum, std::string_view betrag) {
    Zahlungseingabe eingabe;
    eingabe.Begdatum = begdatum;
    eingabe.Betrag = betrag;
    return eingabe;
}

TEST(Zahlungseingabe, BeginntMitEinerZahlungImMonat) {
    const Zahlungseingabe eingabe;
    EXPECT_EQ(eingabe.Ratzahl, "1");
    EXPECT_EQ(eingabe.Abstand, "1");
    EXPECT_EQ(eingabe.Combo5, Abstandseinheit::monate);
    EXPECT_EQ(abstandseinheiten, (std::array<std::string_view, 3>{"Tagen", "Monaten", "Jahre"}));
}

TEST(ZahlungseingabePruefen, VollstaendigeEingabeGehtDurch) {
    Zahlungseingabe eingabe = Eingabe("01.01.2007", "100");
    EXPECT_EQ(ZahlungseingabePruefen(eingabe), std::nullopt);
    Zahlungseingabe negativ = Eingabe("01.01.2007", "-0,01");
    EXPECT_EQ(ZahlungseingabePruefen(negativ), std::nullopt);
}

TEST(ZahlungseingabePruefen, FuelltLeereFelder) {
    Zahlungseingabe eingabe = Eingabe("01.01.2007", "100");
    eingabe.Ratzahl = "";
    eingabe.Abstand = "";
    EXPECT_EQ(ZahlungseingabePruefen(eingabe), std::nullopt);
    EXPECT_EQ(eingabe.Ratzahl, "1");
    EXPECT_EQ(eingabe.Delta, "0");
    EXPECT_EQ(eingabe.Abstand, "") << "not filled by the check";
    EXPECT_EQ(eingabe.Stufen, "");
}

TEST(ZahlungseingabePruefen, FuelltAuchBeiEinerAblehnung) {
    Zahlungseingabe eingabe;
    eingabe.Ratzahl = "";
    EXPECT_EQ(ZahlungseingabePruefen(eingabe), unvollstaendig);
    EXPECT_EQ(eingabe.Begdatum, "0");
    EXPECT_EQ(eingabe.Betrag, "0");
    EXPECT_EQ(eingabe.Ratzahl, "1");
    EXPECT_EQ(eingabe.Delta, "0");
}

struct Betragsfall {
    std::string_view getippt;
    std::string_view danach;
};

class BetragTest : public testing::TestWithParam<Betragsfall> {};

TEST_P(BetragTest, WirdInDerReinenZahlNeuGeschrieben) {
    Zahlungseingabe eingabe = Eingabe("01.01.2007", GetParam().getippt);
    EXPECT_EQ(ZahlungseingabePruefen(eingabe), std::nullopt);
    EXPECT_EQ(eingabe.Betrag, GetParam().danach);
}

INSTANTIATE_TEST_SUITE_P(Schreibweisen, BetragTest,
                         testing::Values(Betragsfall{"100", "100"}, Betragsfall{"100,00", "100"},
                                         Betragsfall{"1.000,50", "1000,5"}, Betragsfall{"+5,", "5"},
                                         Betragsfall{",5", "0,5"}, Betragsfall{"-012,340", "-12,34"}));

TEST(ZahlungseingabePruefen, StufenOhneAnzahl) {
    Zahlungseingabe eingabe = Eingabe("01.01.2007", "100");
    eingabe.Check1 = true;
    EXPECT_EQ(ZahlungseingabePruefen(eingabe), stufenFehlen);
    eingabe.Stufen = "2";
    EXPECT_EQ(ZahlungseingabePruefen(eingabe), std::nullopt);
    eingabe.Check1 = false;
    eingabe.Stufen = "";
    EXPECT_EQ(ZahlungseingabePruefen(eingabe), std::nullopt);
}

TEST(ZahlungseingabePruefen, DieStufenKommenVorDatumUndBetrag) {
    Zahlungseingabe eingabe;
    eingabe.Check1 = true;
    EXPECT_EQ(ZahlungseingabePruefen(eingabe), stufenFehlen);
}

TEST(ZahlungseingabePruefen, OhneDatumOderBetragUnvollstaendig) {
    for (const auto& [datum, betrag] :
         {std::pair{"", "100"}, std::pair{"0", "100"}, std::pair{"01.01.2007", ""},
          std::pair{"01.01.2007", "0"}, std::pair{"01.01.2007", "0,00"}, std::pair{"01.01.2007", "-0"},
          std::pair{"", ""}}) {
        Zahlungseingabe eingabe = Eingabe(datum, betrag);
        EXPECT_EQ(ZahlungseingabePruefen(eingabe), unvollstaendig) << datum << '/' << betrag;
    }
}

TEST(ZahlungseingabePruefen, BetragOhneZahlIstEinFehler) {
    for (const std::string_view betrag : {"abc", "-", "1,2,3", "1 000"}) {
        Zahlungseingabe eingabe = Eingabe("01.01.2007", betrag);
        EXPECT_THROW((void)ZahlungseingabePruefen(eingabe), Zahlfehler) << betrag;
    }
}

TEST(IstZahlungsreihe, MehrereZahlungenOderStufen) {
    const auto reihe = [](std::string_view ratzahl, bool stufen) {
        Zahlungseingabe eingabe = Eingabe("01.01.2007", "100");
        eingabe.Ratzahl = ratzahl;
        eingabe.Check1 = stufen;
        return IstZahlungsreihe(eingabe);
    };
    EXPECT_FALSE(reihe("1", false));
    EXPECT_FALSE(reihe("0", false));
    EXPECT_TRUE(reihe("2", false));
    EXPECT_TRUE(reihe("1", true));
    EXPECT_TRUE(reihe("0", true));
}

TEST(MonatsendeAngeboten, NurAmLetztenEinesMonatsDerKeinen31Hat) {
    for (const std::string_view ja : {"28.02.2007", "29.02.2008", "30.04.2007", "30.11.9999"})
        EXPECT_TRUE(MonatsendeAngeboten(ja)) << ja;
    for (const std::string_view nein :
         {"27.02.2007", "28.02.2008", "31.01.2007", "30.01.2007", "29.04.2007", "31.12.9999"})
        EXPECT_FALSE(MonatsendeAngeboten(nein)) << nein;
    for (const std::string_view unsinn : {"", "0", "30.04.", "30.02.2007", "abc"})
        EXPECT_FALSE(MonatsendeAngeboten(unsinn)) << unsinn;
}

TEST(ZahlungseingabePruefen, NullbetragNurWoErErlaubtIst) {
    const auto pruefen = [](std::string datum, std::string betrag, Nullbetrag nullbetrag) {
        Zahlungseingabe eingabe{.Begdatum = std::move(datum), .Betrag = std::move(betrag)};
        return ZahlungseingabePruefen(eingabe, nullbetrag).has_value();
    };
    EXPECT_TRUE(pruefen("01.02.2007", "0", Nullbetrag::abgelehnt));
    EXPECT_FALSE(pruefen("01.02.2007", "0", Nullbetrag::erlaubt));
    EXPECT_FALSE(pruefen("01.02.2007", "", Nullbetrag::erlaubt));
    EXPECT_TRUE(pruefen("", "5", Nullbetrag::erlaubt));
    EXPECT_TRUE(pruefen("0", "5", Nullbetrag::erlaubt));
}

}  // namespace zahlungseingabe_test
}  // namespace zinfolio
