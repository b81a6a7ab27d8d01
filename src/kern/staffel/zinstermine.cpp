#include "kern/staffel/zinstermine.h"

#include <vector>

#include "kern/dateien/satzdatei.h"

namespace zinfolio {
namespace {

int Monate(Zinsverrechnungsart art) {
    static constexpr std::array<int, 6> monate{1, 2, 3, 4, 6, 12};
    return monate.at(static_cast<std::size_t>(art));
}

}  // namespace

Datum ErsterZinstermin(int jahr, Zinsverrechnungsart art) {
    const int monat = Monate(art);
    return *Datum::Aus(jahr, monat, Monatslaenge(jahr, monat));
}

Datum NaechsterZinstermin(Datum datum, Zinsverrechnungsart art) {
    return Monatsletzter(PlusMonate(datum, Monate(art)));
}

void Zinstermine(Datum erstdatum, Datum kontodatum, Zinsverrechnungsart art, std::vector<Datum>& termine) {
    termine.clear();
    const Datum kandidat = ErsterZinstermin(erstdatum.Jahr(), art);
    Datum datum = kandidat;
    while (datum < erstdatum)
        datum = NaechsterZinstermin(datum, art);
    termine.push_back(datum);
    while (true) {
        if (termine.size() >= HoechstzahlSaetze) throw Datumsfehler(UeberHoechstzahl("Zinstermine"));
        datum = NaechsterZinstermin(datum, art);
        if (datum >= kontodatum) break;
        termine.push_back(datum);
    }
    // The comparison is with the unadjusted candidate (wanted): a closing date between it and the first
    // settlement date leaves that date in front of the closing date, and one that equals it settles twice on
    // that day.
    if (termine.size() == 1 && kontodatum < kandidat) termine.clear();
    termine.push_back(kontodatum);
}

}  // namespace zinfolio
