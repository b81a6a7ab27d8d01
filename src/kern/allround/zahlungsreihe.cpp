#include "kern/allround/zahlungsreihe.h"

#include <algorithm>

#include "kern/dateien/satzdatei.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {

void ReiheSchreiben(std::span<const Staffelsatz> zahlungen, std::vector<Reihensatz>& reihe) {
    reihe.clear();
    reihe.reserve(zahlungen.size());
    for (const Staffelsatz& zahlung : zahlungen) {
        if (reihe.size() == HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zahlungen"));
        Reihensatz zeile = Reihenzeile(zahlung.Satzdatum.Roh(), zahlung.Zahlbetrag);
        zeile.Reihenschluessel = zahlung.Sortierschluessel;
        reihe.push_back(zeile);
    }
}

bool HatBeideRichtungen(std::span<const Reihensatz> reihe) {
    const auto gibt = [&](auto bedingung) {
        return std::ranges::any_of(reihe, bedingung, &Reihensatz::Reihenbetrag);
    };
    return gibt([](double betrag) { return betrag < 0; }) && gibt([](double betrag) { return betrag > 0; });
}

}  // namespace zinfolio
