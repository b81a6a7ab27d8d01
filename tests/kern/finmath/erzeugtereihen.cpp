#include "kern/finmath/erzeugtereihen.h"

#include <algorithm>

#include "kern/dates/datumsliteral.h"

namespace zinfolio {

int Reihenerzeuger::Zahl(int von, int bis) {
    return std::uniform_int_distribution<int>(von, bis)(zufall);
}

double Reihenerzeuger::Zinssatz() {
    switch (Zahl(0, 19)) {
        case 0:
            return 0;
        case 1:
            return -100;
        case 2:
            return -100 - Zahl(1, 30000) / 100.0;
        case 3:
            return Zahl(1, 9) * 1e41;
        case 4:
            return -Zahl(1, 9999) / 100.0;
        default:
            return Zahl(-200, 3000) / 100.0;
    }
}

double Reihenerzeuger::Betrag(bool ausgezahlt) {
    const double betrag = Zahl(0, 5000000) / 100.0;
    return ausgezahlt == (Zahl(0, 9) > 0) ? -betrag : betrag;
}

std::vector<Reihensatz> Reihenerzeuger::AusTageszahlen(const std::vector<std::int64_t>& tage) {
    const auto auszahlungen = static_cast<std::size_t>(Zahl(1, static_cast<int>(tage.size()) - 1));
    std::vector<Reihensatz> reihe;
    for (const std::int64_t tag : tage)
        reihe.push_back(Reihenzeile(Datum::AusTageszahl(tag).Text(), Betrag(reihe.size() < auszahlungen)));
    return reihe;
}

std::vector<Reihensatz> Reihenerzeuger::Ungeordnet(int hoechstens) {
    std::vector<std::int64_t> tage(static_cast<std::size_t>(Zahl(2, hoechstens)));
    for (std::int64_t& tag : tage)
        tag = "01.01.2000"_datum.Tageszahl() + Zahl(0, 30 * 365);
    return AusTageszahlen(tage);
}

std::vector<Reihensatz> Reihenerzeuger::Geordnet(int hoechstens) {
    std::vector<Reihensatz> reihe = Ungeordnet(hoechstens);
    std::vector<std::int64_t> tage;
    for (const Reihensatz& satz : reihe)
        tage.push_back(DatumVon(satz).Tageszahl());
    std::sort(tage.begin(), tage.end());
    return AusTageszahlen(tage);
}

std::vector<Reihensatz> Reihenerzeuger::GanzeJahre(int hoechstens) {
    const int anzahl = Zahl(2, hoechstens);
    const int monat = Zahl(1, 12);
    const int tag = Zahl(1, 27);
    std::vector<std::int64_t> tage;
    for (int jahr = 2000; jahr < 2000 + anzahl; ++jahr)
        tage.push_back(Datum::Aus(jahr, monat, tag)->Tageszahl());
    return AusTageszahlen(tage);
}

}  // namespace zinfolio
