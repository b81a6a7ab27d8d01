#include "kern/finmath/herleitung.h"

#include <algorithm>
#include <stdexcept>

#include "kern/dates/textteile.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/finmath/bewertung.h"

namespace zinfolio {
namespace {

constexpr Zahlmuster anzeigemuster = Zahlmuster::Lesen("###,##0.00000");

char* Datumszelle(const Ergebnissatz& satz, char* ziel) {
    const std::string_view datum = satz.Ergebnisdatum.Getrimmt();
    return std::copy(datum.begin(), datum.end(), ziel);
}

char* Faktorzelle(const Ergebnissatz& satz, char* ziel) {
    return ZahltextSchreiben(ziel, satz.Faktor);
}

template <double Ergebnissatz::*Feld>
char* Betragszelle(const Ergebnissatz& satz, char* ziel) {
    return BetragSchreiben(ziel, satz.*Feld);
}

constexpr std::array<Herleitungszelle, 6> zellen{
    Datumszelle,
    Betragszelle<&Ergebnissatz::Ergebnisbetrag>,
    Faktorzelle,
    Betragszelle<&Ergebnissatz::Zeilenwert>,
    Betragszelle<&Ergebnissatz::Summenwert>,
    Betragszelle<&Ergebnissatz::Summenbetrag>,
};

}  // namespace

std::span<const Herleitungszelle> Herleitungszellen() {
    return zellen;
}

std::string Herleitungstext(const Ergebnissatz& satz, std::size_t spalte) {
    std::array<char, betragsbreite> text;  // NOLINT(cppcoreguidelines-pro-type-member-init): filled at once
    return {text.data(), zellen[spalte](satz, text.data())};
}

double Herleitungszinssatz(std::string_view effektivergebnis) {
    return Zahlwert(effektivergebnis);
}

std::vector<Ergebnissatz> Herleitungszeilen(std::span<const Reihensatz> reihe, Effektivmethode methode,
                                            std::string_view effektivergebnis) {
    std::vector<Ergebnissatz> zeilen;
    try {
        EndwertRechnen(reihe, methode, Herleitungszinssatz(effektivergebnis), &zeilen);
    } catch (const std::runtime_error&) {
        // The rows before the fault are the table.
    }
    return zeilen;
}

std::string Effektivzinsanzeige(std::string_view effektivergebnis) {
    return Format(effektivergebnis, anzeigemuster);
}

}  // namespace zinfolio
