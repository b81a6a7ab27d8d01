#include "kern/allround/wertanalyse.h"

#include <cmath>

#include "kern/allround/mischzins.h"
#include "kern/dates/datumpruefen.h"
#include "kern/dates/rundung.h"
#include "kern/dates/textteile.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

constexpr Zahlmuster faktormuster = Zahlmuster::Lesen("###,#0.00000");
constexpr std::size_t wertsummenspalte = 7;

/// The texts in which the two analyses differ.
struct Werttexte {
    std::string_view faktor;
    std::string_view wert;
    std::string_view summe;
};

constexpr Werttexte barwerttexte{"Divisor", "Barwert", "kumulierter Barwert"};
constexpr Werttexte endwerttexte{"Faktor", "Vermögensendwert", "kum. Vermögensendwert"};

const Werttexte& TexteFuer(Wertart art) {
    return art == Wertart::barwert ? barwerttexte : endwerttexte;
}

/// The first row of the last stretch in which a running sum stays at 0 or above.
struct Wende {
    /// Counted from 1; 0: the sum is below 0.
    std::size_t zeile = 0;

    void Weiter(double summe, std::size_t neueZeile) {
        if (summe < 0) {
            zeile = 0;
        } else if (zeile == 0) {
            zeile = neueZeile;
        }
    }
};

/// The walk over the payments.
class Wertlauf {
  public:
    Wertlauf(const Werteingabe& eingabe, const Datum& beginn, const Datum& ende, Zellentabelle& ziel)
        : art(eingabe.Anzeigeart),
          barwertdatum(beginn),
          enddatum(ende),
          zins(Zahlwert(eingabe.Abzins2)),
          tabelle(ziel) {}

    void Zahlung(const Staffelsatz& satz) {
        const Datum datum = DatumVon(satz);
        if (art == Wertart::barwert && datum < barwertdatum) return;
        const std::size_t zeile = tabelle.Zeilen() + 1;
        zahlungssumme = Endlich(zahlungssumme + satz.Zahlbetrag);
        statisch.Weiter(zahlungssumme, zeile);
        const int tage = art == Wertart::barwert ? Tage30(barwertdatum, datum) : Tage30(datum, enddatum);
        const double faktor = zins.Faktor(tage);
        const double wert = RundeKaufmaennisch(
            Endlich(art == Wertart::barwert ? satz.Zahlbetrag / faktor : satz.Zahlbetrag * faktor), 5);
        wertsumme = Endlich(wertsumme + wert);
        dynamisch.Weiter(wertsumme, zeile);
        const Jahresteile spanne = InJahresteile(tage);
        tabelle.Anhaengen(std::array{SatzdatumText(satz), Format(satz.Zahlbetrag, betragsmuster),
                                     Format(zahlungssumme, betragsmuster), std::to_string(spanne.jahre),
                                     std::to_string(spanne.tage), Format(faktor, faktormuster),
                                     Format(wert, betragsmuster), Format(wertsumme, betragsmuster)});
    }

    [[nodiscard]] Wertaussagen Aussagen() const {
        return {Zeilendatum(statisch), Zeilendatum(dynamisch),
                dynamisch.zeile != 0 ? "Die Investition / Anlage ist vorteilhaft."
                                     : "Die Investition / Anlage ist nicht vorteilhaft.",
                std::string(TexteFuer(art).wert), Format(wertsumme, betragsmuster)};
    }

    [[nodiscard]] std::size_t DynamischeZeile() const { return dynamisch.zeile; }

  private:
    [[nodiscard]] std::string Zeilendatum(const Wende& wende) const {
        return wende.zeile != 0 ? tabelle.Zelle(wende.zeile - 1, 0) : std::string(keinDatum);
    }

    Wertart art;
    Datum barwertdatum;
    Datum enddatum;
    Mischzins zins;
    Zellentabelle& tabelle;
    double zahlungssumme = 0;
    double wertsumme = 0;
    Wende statisch;
    Wende dynamisch;
};

std::vector<std::string> Koepfe(const Werteingabe& eingabe) {
    const Werttexte& texte = TexteFuer(eingabe.Anzeigeart);
    return {"Datum",
            "Zahlung",
            "kumulierte Zahlungen",
            "Jahre",
            "Tage",
            std::string(texte.faktor) + " (Zins= " + eingabe.Abzins2 + " %)",
            std::string(texte.wert),
            std::string(texte.summe)};
}

/// The straight line between the two rows at the turn, from the texts of their cells (wanted: from whole
/// cents, not from the sums behind them).
void Interpolieren(std::size_t zeile, Wertergebnis& ergebnis) {
    const Zellentabelle& tabelle = ergebnis.Tabelle;
    const double vorwert = Zahl(tabelle.Zelle(zeile - 2, wertsummenspalte));
    const double nachwert = Zahl(tabelle.Zelle(zeile - 1, wertsummenspalte));
    ergebnis.Vorwert = vorwert;
    const Datum vorher = Datum::Lesen(tabelle.Zelle(zeile - 2, 0));
    const int tage = Datum::Lesen(tabelle.Zelle(zeile - 1, 0)) - vorher;
    if (tage > 0) {
        const double steigung = (nachwert - vorwert) / tage;
        ergebnis.Dynamorinterpoliert = PlusGerundeteTage(vorher, -vorwert / steigung).Text();
    }
    ergebnis.Farbzeile = zeile;
}

}  // namespace

Datum PlusGerundeteTage(const Datum& datum, double tage) {
    constexpr double alleTage = 4e6;
    const double ganze = RundeKaufmaennisch(tage, 0);
    if (!(std::fabs(ganze) < alleTage)) throw Datumsfehler("Ein Datum liegt außerhalb des Kalenders.");
    return PlusTage(datum, static_cast<std::int64_t>(ganze));
}

std::optional<Ablehnung> WertAnalyse(std::span<const Staffelsatz> zahlungen, Werteingabe& eingabe,
                                     Wertergebnis& ergebnis) {
    ergebnis = {};
    if (eingabe.Abzins2.empty()) eingabe.Abzins2 = eingabe.Abzins;
    if (zahlungen.empty()) return OhneZahlungen(meldung::erstZahlungen);
    const std::string erstesDatum = SatzdatumText(zahlungen.front());
    if (IstNochKeinDatum(eingabe.BarwDatum)) eingabe.BarwDatum = erstesDatum;
    const Datum barwertdatum = Datum::Lesen(eingabe.BarwDatum);
    ergebnis.Frame1 = eingabe.Anzeigeart != Wertart::barwert || erstesDatum == eingabe.BarwDatum;
    ergebnis.Tabelle = Zellentabelle(Koepfe(eingabe));
    ergebnis.Tabelle.Reservieren(zahlungen.size());
    Wertlauf lauf(eingabe, barwertdatum, DatumVon(zahlungen.back()), ergebnis.Tabelle);
    for (const Staffelsatz& satz : zahlungen)
        lauf.Zahlung(satz);
    ergebnis.Aussagen = lauf.Aussagen();
    if (lauf.DynamischeZeile() > 1) {
        Interpolieren(lauf.DynamischeZeile(), ergebnis);
    } else {
        ergebnis.Dynamorinterpoliert = keinDatum;
    }
    return std::nullopt;
}

}  // namespace zinfolio
