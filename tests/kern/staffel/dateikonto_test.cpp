// The account in memory against the slow one from file to file: the same bytes in every file.
#include "kern/staffel/dateikonto.h"

#include <gtest/gtest.h>
#include <random>

#include "kern/dateien/satzdatei.h"
#include "kern/dateien/testordner.h"
#include "kern/staffel/beispielkonto.h"
#include "kern/staffel/konto.h"

namespace zinfolio {
namespace dateikonto_test {

using langsam::Dateikonto;

class Zufallskonto {
  public:
    explicit Zufallskonto(unsigned saat) : zufall_(saat) {}

    std::vector<Staffelsatz> Zahlungen() {
        std::vector<Staffelsatz> saetze(1 + Bis(15));
        for (Staffelsatz& satz : saetze)
            satz = Zahlung(Datumstext(900), (static_cast<double>(Bis(1400000)) - 600000) / 100,
                           "Nr. " + Ziffern(Bis(99)));
        return saetze;
    }

    std::vector<Staffelsatz> Konditionen() {
        std::vector<Staffelsatz> saetze;
        // Most accounts have a rate from the first day on; the others are refused or start with it late.
        if (Bis(9) > 0) saetze.push_back(Kondition("01.01.2006", EineKondition()));
        for (std::size_t i = Bis(4) + (saetze.empty() ? 1U : 0U); i > 0; --i)
            saetze.insert(
                saetze.begin() + static_cast<std::ptrdiff_t>(Bis(static_cast<unsigned>(saetze.size()))),
                Kondition(Datumstext(900), EineKondition()));
        return saetze;
    }

    Kontoeinstellungen Einstellungen() {
        return {static_cast<Zinsverrechnungsart>(Bis(5)), Datumstext(1700),
                static_cast<Verzinsungsmethode>(Bis(4))};
    }

  private:
    unsigned Bis(unsigned hoechstens) { return static_cast<unsigned>(zufall_()) % (hoechstens + 1); }

    static std::string Ziffern(unsigned zahl) { return std::to_string(zahl); }

    /// A day from 01.01.2006 on; every third one is a month's end, so that dates meet.
    std::string Datumstext(unsigned spanne) {
        const langsam::sys_days tag = langsam::Tag("01.01.2006") + langsam::days(Bis(spanne));
        return langsam::Text(Bis(2) == 0 ? langsam::NaechsterTermin(tag, 0) : tag);
    }

    zinfolio::Konditionen EineKondition() {
        const auto satz = [&] { return static_cast<float>(Bis(1500)) / 100.0F; };
        const auto linie = [&] { return std::array{0.0, 500.0, 1234.56, 10000.0}.at(Bis(3)); };
        return {.Gutzins1 = satz(),
                .Gutzins2 = satz(),
                .Guthabenlinie = linie(),
                .Kreditzins1 = satz(),
                .Kreditzins2 = satz(),
                .Kreditlinie = linie(),
                .Zweitzinsart = static_cast<std::int16_t>(Bis(2))};
    }

    std::mt19937 zufall_;
};

void Ablegen(const std::filesystem::path& ordner, const Konto& konto) {
    Satzdatei<Staffelsatz>(ordner, "Zinsstaffel1").Schreiben(konto.zahlungen);
    Satzdatei<Staffelsatz>(ordner, "ZinsstaffelZins").Schreiben(konto.konditionen);
}

std::string Bytes(const std::vector<Staffelsatz>& saetze) {
    std::string bytes(saetze.size() * 129, '?');
    for (std::size_t i = 0; i < saetze.size(); ++i)
        saetze[i].Schreiben(std::as_writable_bytes(std::span(bytes)).subspan(i * 129).first<129>());
    return bytes;
}

/// Calculates the account of a seed both ways. True where it could be calculated.
bool BeideWege(unsigned saat) {
    Zufallskonto zufall(saat);
    Konto konto;
    konto.zahlungen = zufall.Zahlungen();
    konto.konditionen = zufall.Konditionen();
    konto.einstellungen = zufall.Einstellungen();
    const Testordner ordner;
    Ablegen(ordner.Pfad(), konto);

    const bool gelungen = Dateikonto{ordner.Pfad(), konto.einstellungen.Kontodatum,
                                     static_cast<int>(konto.einstellungen.Zinsverrechnungsart),
                                     static_cast<int>(konto.einstellungen.Verzinsungsmethode)}
                              .Rechnen();
    EXPECT_EQ(KontoRechnen(konto).has_value(), !gelungen);
    EXPECT_EQ(Bytes(konto.zahlungen), ordner.Inhalt("Zinsstaffel1")) << "account " << saat;
    EXPECT_EQ(Bytes(konto.konditionen), ordner.Inhalt("ZinsstaffelZins")) << "account " << saat;
    EXPECT_EQ(Bytes(konto.termine), ordner.Inhalt("Zinsverrechnungstermine")) << "account " << saat;
    EXPECT_EQ(Bytes(konto.loesung), ordner.Inhalt("Lösungsdatei")) << "account " << saat;
    return gelungen;
}

TEST(KontoGegenDateikonto, HinterlaesstDieselbenBytes) {
    int gerechnet = 0;
    int abgelehnt = 0;
    for (unsigned saat = 1; saat <= 300 && !HasFailure(); ++saat)
        ++(BeideWege(saat) ? gerechnet : abgelehnt);
    EXPECT_GT(gerechnet, 200);
    EXPECT_GT(abgelehnt, 5);
}

TEST(Dateikonto, RechnetDasBeispielAufDenCent) {
    const Testordner ordner;
    Konto konto;
    konto.zahlungen = {Zahlung("01.01.2007", 15000)};
    konto.konditionen = {Kondition("01.01.2007", beispielkonditionen)};
    Ablegen(ordner.Pfad(), konto);
    const Dateikonto dateikonto{ordner.Pfad(), "31.03.2007", 5, 0};
    ASSERT_TRUE(dateikonto.Rechnen());
    langsam::Satzkanal loesung = dateikonto.Oeffnen("Lösungsdatei");
    ASSERT_EQ(loesung.Anzahl(), 3U);
    EXPECT_EQ(loesung.Lesen(2).Periodenzins, 86.53);
    EXPECT_EQ(loesung.Lesen(3).Kontostand, 15000 + 86.53);
}

}  // namespace dateikonto_test
}  // namespace zinfolio
