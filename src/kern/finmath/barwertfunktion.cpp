#include "kern/finmath/barwertfunktion.h"

namespace zinfolio {

Barwertfunktion::Barwertfunktion(std::span<const Reihensatz> reihe, Effektivmethode effektivmethode)
    : methode(effektivmethode) {
    if (reihe.empty()) throw Rechenfehler("Die Zahlungsreihe ist leer.");
    const Datum beginn = DatumVon(reihe.front());
    const Datum ende = DatumVon(reihe.back());
    spanne = InJahresteile(Tage30(beginn, ende));
    betraege.reserve(reihe.size());
    stufen.reserve(reihe.size());
    for (const Reihensatz& satz : reihe) {
        const Datum datum = DatumVon(satz);
        betraege.push_back(satz.Reihenbetrag);
        if (methode == Effektivmethode::pangvAlt) {
            wege.push_back(JahrestagswegFinden(beginn, ende, datum));
            StufeAnhaengen(wege.back().rest.jahre);
        } else {
            StufeAnhaengen(Exponent(methode, beginn, datum));
        }
    }
}

void Barwertfunktion::StufeAnhaengen(double exponent) {
    if (stufen.empty() || stufen.back().exponent != exponent) stufen.push_back({exponent, 0});
    stufen.back().bis = betraege.size();
}

double Barwertfunktion::operator()(double zinssatz) const {
    const double r = Endlich(zinssatz) / 100;
    return methode == Effektivmethode::pangvAlt ? NachJahrestagen(r) : Abgezinst(r);
}

std::size_t Barwertfunktion::Potenzen() const {
    return stufen.size() + (methode == Effektivmethode::pangvAlt ? 1 : 0);
}

double Barwertfunktion::Abgezinst(double r) const {
    double summe = 0;
    std::size_t zeile = 0;
    for (const Stufe& stufe : stufen) {
        const double faktor = Potenz(1 + r, stufe.exponent);
        for (; zeile < stufe.bis; ++zeile)
            summe += betraege[zeile] / faktor;
    }
    return Endlich(summe);
}

double Barwertfunktion::NachJahrestagen(double r) const {
    const double gesamt = Endlich(Zuwachs(spanne, r));
    double summe = 0;
    std::size_t zeile = 0;
    for (const Stufe& stufe : stufen) {
        const double potenz = Potenz(1 + r, stufe.exponent);
        for (; zeile < stufe.bis; ++zeile) {
            const Jahrestagsweg& weg = wege[zeile];
            summe += Endwert(weg, betraege[zeile], r, Zuwachs(weg.rest, r, potenz));
        }
    }
    return Endlich(Endlich(summe) / gesamt);
}

}  // namespace zinfolio
