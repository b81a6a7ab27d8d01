#include "kern/finmath/bewertung.h"

#include <cmath>

#include "kern/finmath/aufzinsung.h"

namespace zinfolio {
namespace {

struct Zeilenergebnis {
    double wert = 0;
    double faktor = 0;
};

/// The dates of the series and the rate as a fraction of one.
struct Rahmen {
    Datum beginn;
    Datum ende;
    double r = 0;
};

Rahmen RahmenBilden(std::span<const Reihensatz> reihe, double zinssatz) {
    if (reihe.empty()) throw Rechenfehler("Die Zahlungsreihe ist leer.");
    return {DatumVon(reihe.front()), DatumVon(reihe.back()), Endlich(zinssatz) / 100};
}

Ergebnissatz Tabellenzeile(Datum datum, double betrag, const Zeilenergebnis& zeile) {
    Ergebnissatz satz;
    satz.Ergebnisdatum = Festtext<10>::AusWindows1252(datum.Text());
    satz.Ergebnisbetrag = betrag;
    satz.Faktor = static_cast<float>(zeile.faktor);
    Endlich(satz.Faktor);
    satz.Zeilenwert = zeile.wert;
    return satz;
}

/// Adds up what `bewerten` makes of each row's date and amount.
template <typename Bewerten>
double Aufsummieren(std::span<const Reihensatz> reihe, std::vector<Ergebnissatz>* tabelle,
                    Bewerten bewerten) {
    double summenwert = 0;
    double summenbetrag = 0;
    if (tabelle != nullptr) tabelle->reserve(tabelle->size() + reihe.size());
    for (const Reihensatz& satz : reihe) {
        const Datum datum = DatumVon(satz);
        const Zeilenergebnis zeile = bewerten(datum, satz.Reihenbetrag);
        summenwert = Endlich(summenwert + zeile.wert);
        if (tabelle == nullptr) continue;
        summenbetrag = Endlich(summenbetrag + satz.Reihenbetrag);
        Ergebnissatz& neu = tabelle->emplace_back(Tabellenzeile(datum, satz.Reihenbetrag, zeile));
        neu.Summenwert = summenwert;
        neu.Summenbetrag = summenbetrag;
    }
    return summenwert;
}

/// Present value by anniversaries for a table: each row by its own discount.
double BarwertNachJahrestagen(std::span<const Reihensatz> reihe, const Rahmen& rahmen, double gesamt,
                              std::vector<Ergebnissatz>* tabelle) {
    return Aufsummieren(reihe, tabelle, [&](Datum datum, double betrag) {
        const Jahrestagsweg weg = JahrestagswegFinden(rahmen.beginn, rahmen.ende, datum);
        const double faktor = Endfaktor(weg, rahmen.r, Zuwachs(weg.rest, rahmen.r));
        double abschlag = Endlich(std::fabs(Endlich(faktor) / gesamt));
        if (abschlag == 0) abschlag = 1;
        return Zeilenergebnis{betrag * abschlag, 1 / abschlag};
    });
}

}  // namespace

double EndwertRechnen(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz,
                      std::vector<Ergebnissatz>* tabelle) {
    const Rahmen rahmen = RahmenBilden(reihe, zinssatz);
    return Aufsummieren(reihe, tabelle, [&](Datum datum, double betrag) -> Zeilenergebnis {
        if (methode == Effektivmethode::pangvAlt) {
            const Jahrestagsweg weg = JahrestagswegFinden(rahmen.beginn, rahmen.ende, datum);
            const double zuwachs = Zuwachs(weg.rest, rahmen.r);
            return {Endwert(weg, betrag, rahmen.r, zuwachs), Endfaktor(weg, rahmen.r, zuwachs)};
        }
        const double faktor = Potenz(1 + rahmen.r, Exponent(methode, datum, rahmen.ende));
        return {betrag * faktor, faktor};
    });
}

double BarwertRechnen(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz,
                      std::vector<Ergebnissatz>* tabelle) {
    const Rahmen rahmen = RahmenBilden(reihe, zinssatz);
    if (methode == Effektivmethode::pangvAlt) {
        const double gesamt = Endlich(Zuwachs(InJahresteile(Tage30(rahmen.beginn, rahmen.ende)), rahmen.r));
        if (tabelle != nullptr) return BarwertNachJahrestagen(reihe, rahmen, gesamt, tabelle);
        return Endlich(EndwertRechnen(reihe, methode, zinssatz) / gesamt);
    }
    return Aufsummieren(reihe, tabelle, [&](Datum datum, double betrag) -> Zeilenergebnis {
        const double faktor = Potenz(1 + rahmen.r, Exponent(methode, rahmen.beginn, datum));
        return {betrag / faktor, faktor};
    });
}

}  // namespace zinfolio
