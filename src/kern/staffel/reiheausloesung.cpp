#include "kern/staffel/reiheausloesung.h"

#include "kern/dateien/satzdatei.h"

namespace zinfolio {
namespace {

Reihensatz ReihensatzVon(const Staffelsatz& zahlung) {
    Reihensatz zeile = Reihenzeile(zahlung.Satzdatum.Roh(), -zahlung.Zahlbetrag);
    zeile.Reihenschluessel = zahlung.Sortierschluessel;
    return zeile;
}

/// Appends the payments; false where a fault ended the walk.
bool ZahlungenAnhaengen(std::span<const Staffelsatz> loesung, std::vector<Reihensatz>& reihe) {
    if (loesung.size() > HoechstzahlSaetze) return false;
    try {
        for (const Staffelsatz& satz : loesung) {
            if (satz.Zahlungsart == zahlungsart::zahlung) reihe.push_back(ReihensatzVon(satz));
        }
    } catch (const Datumsfehler&) {
        return false;
    }
    return true;
}

void SchlussAnhaengen(const Staffelsatz& letzter, std::vector<Reihensatz>& reihe) {
    if (reihe.size() == HoechstzahlSaetze || !Datum::Versuche(letzter.Satzdatum.Roh())) return;
    reihe.push_back(Reihenzeile(letzter.Satzdatum.Roh(), letzter.Kontostand));
}

}  // namespace

std::vector<Reihensatz> ReiheAusLoesung(std::span<const Staffelsatz> loesung) {
    std::vector<Reihensatz> reihe;
    const bool vollstaendig = ZahlungenAnhaengen(loesung, reihe);
    if (vollstaendig && !loesung.empty()) SchlussAnhaengen(loesung.back(), reihe);
    return reihe;
}

std::vector<Reihensatz> ReiheAusLoesungOhneSchluss(std::span<const Staffelsatz> loesung) {
    std::vector<Reihensatz> reihe;
    ZahlungenAnhaengen(loesung, reihe);
    return reihe;
}

}  // namespace zinfolio
