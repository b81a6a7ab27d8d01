#include "kern/staffel/staffelsortierung.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "kern/dates/zahl.h"

namespace zinfolio {
namespace {

using Platz = std::uint32_t;

struct Schluesselplatz {
    double schluessel = 0;
    Platz platz = 0;
};

bool NachSchluessel(const Schluesselplatz& a, const Schluesselplatz& b) {
    return a.schluessel < b.schluessel;
}

/// Numeric value of a key; the eight digits of an undamaged one are read directly.
double Schluesselwert(const Staffelsatz& satz) {
    const std::string_view text = satz.Sortierschluessel.Roh();
    unsigned wert = 0;
    for (std::size_t stelle = 0; stelle < 8; ++stelle) {
        const unsigned ziffer = static_cast<unsigned char>(text[stelle]) - unsigned{'0'};
        if (ziffer > 9) return Zahlwert(text);
        wert = wert * 10 + ziffer;
    }
    return text.substr(8) == "  " ? wert : Zahlwert(text);
}

std::vector<Schluesselplatz> Schluessel(const std::vector<Staffelsatz>& saetze) {
    std::vector<Schluesselplatz> schluessel(saetze.size());
    for (Platz platz = 0; platz < saetze.size(); ++platz) {
        schluessel[platz] = {Schluesselwert(saetze[platz]), platz};
    }
    return schluessel;
}

/// Follows the swaps of the selection sort without making them. `sortiert` is ordered by key; rows of one key
/// are taken from the lowest place they stand at by then, and the row that has to give way moves to that
/// place.
class Tauschverfolgung {
  public:
    explicit Tauschverfolgung(std::size_t anzahl) : platzVon_(anzahl), satzAn_(anzahl) {
        std::iota(platzVon_.begin(), platzVon_.end(), Platz{0});
        std::iota(satzAn_.begin(), satzAn_.end(), Platz{0});
    }

    /// Brings the rows of one key, given by their original places, to the places from `ziel` on.
    void Einreihen(std::vector<Platz>& gruppe, Platz ziel) {
        // Only rows of later keys are displaced here, so the places of this group hold while it is worked
        // off.
        std::sort(gruppe.begin(), gruppe.end(),
                  [&](Platz a, Platz b) { return platzVon_[a] < platzVon_[b]; });
        for (const Platz satz : gruppe)
            Tauschen(satz, ziel++);
    }

    /// Original places in their final order.
    [[nodiscard]] const std::vector<Platz>& Ordnung() const { return satzAn_; }

  private:
    void Tauschen(Platz satz, Platz ziel) {
        const Platz weichender = satzAn_[ziel];
        const Platz frei = platzVon_[satz];
        satzAn_[frei] = weichender;
        platzVon_[weichender] = frei;
        satzAn_[ziel] = satz;
        platzVon_[satz] = ziel;
    }

    std::vector<Platz> platzVon_;
    std::vector<Platz> satzAn_;
};

std::vector<Platz> Auswahlordnung(std::vector<Schluesselplatz> schluessel) {
    std::stable_sort(schluessel.begin(), schluessel.end(), NachSchluessel);
    Tauschverfolgung verfolgung(schluessel.size());
    std::vector<Platz> gruppe;
    for (std::size_t anfang = 0; anfang < schluessel.size(); anfang += gruppe.size()) {
        gruppe.clear();
        for (std::size_t i = anfang; i < schluessel.size(); ++i) {
            if (schluessel[i].schluessel != schluessel[anfang].schluessel) break;
            gruppe.push_back(schluessel[i].platz);
        }
        verfolgung.Einreihen(gruppe, static_cast<Platz>(anfang));
    }
    return verfolgung.Ordnung();
}

void SortiereNachSchluessel(std::vector<Staffelsatz>& saetze) {
    std::vector<Schluesselplatz> schluessel = Schluessel(saetze);
    if (std::is_sorted(schluessel.begin(), schluessel.end(), NachSchluessel)) return;
    std::vector<Staffelsatz> sortiert;
    sortiert.reserve(saetze.size());
    for (const Platz platz : Auswahlordnung(std::move(schluessel)))
        sortiert.push_back(saetze[platz]);
    saetze = std::move(sortiert);
}

}  // namespace

void SortiereZahlungen(std::vector<Staffelsatz>& zahlungen) {
    SortiereNachSchluessel(zahlungen);
}

void SortiereKonditionen(std::vector<Staffelsatz>& konditionen) {
    SortiereNachSchluessel(konditionen);
}

}  // namespace zinfolio
