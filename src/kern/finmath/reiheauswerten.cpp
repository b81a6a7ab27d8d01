#include "kern/finmath/reiheauswerten.h"

#include <functional>
#include <stdexcept>

#include "kern/dateien/satzdatei.h"
#include "kern/dates/zahlformat.h"
#include "kern/finmath/barwertfunktion.h"
#include "kern/finmath/bewertung.h"
#include "kern/finmath/effektivsuche.h"

namespace zinfolio {
namespace {

constexpr Zahlmuster effektivmuster = Zahlmuster::Lesen("###,##.00000");

/// The one trap of both ways: takes the dates, does the work, and turns any fault into the message.
template <typename Arbeit>
Reihenauswertung MitFalle(std::span<const Reihensatz> reihe, Arbeit arbeit) {
    Reihenauswertung ergebnis;
    try {
        if (reihe.empty() || reihe.size() > HoechstzahlSaetze) throw Rechenfehler("Zeilenzahl der Reihe");
        ergebnis.Bardatum = DatumVon(reihe.front()).Text();
        ergebnis.Enddatum = DatumVon(reihe.back()).Text();
        arbeit(ergebnis);
    } catch (const std::runtime_error&) {
        ergebnis.Meldung = meldung::keinEffektivzinssatz;
    }
    return ergebnis;
}

/// True where a positive amount follows a negative one or the other way round; amounts of 0 are passed over.
bool HatVorzeichenwechsel(std::span<const Reihensatz> reihe) {
    int vorzeichen = 0;
    for (const Reihensatz& satz : reihe) {
        const int eigenes = satz.Reihenbetrag < 0 ? -1 : (satz.Reihenbetrag > 0 ? 1 : 0);
        if (eigenes * vorzeichen < 0) return true;
        if (eigenes != 0) vorzeichen = eigenes;
    }
    return false;
}

}  // namespace

Reihenauswertung ReiheAuswerten(std::span<const Reihensatz> reihe, Effektivmethode methode) {
    return MitFalle(reihe, [&](Reihenauswertung& ergebnis) {
        if (!HatVorzeichenwechsel(reihe)) {
            ergebnis.Meldung = meldung::keinVorzeichenwechsel;
            return;
        }
        const Barwertfunktion barwert(reihe, methode);
        const Effektivsuche suche = EffektivzinsSuchen(std::cref(barwert));
        if (!suche.Eindeutig()) throw Rechenfehler("Die Suche endet weit von einem Barwert 0.");
        ergebnis.Effektivzins = Format(suche.Zinssatz, effektivmuster);
        ergebnis.Zinssatz = suche.Zinssatz;
    });
}

Reihenauswertung ReiheAuswerten(std::span<const Reihensatz> reihe, Effektivmethode methode, double zinssatz,
                                Tabellen tabellen) {
    return MitFalle(reihe, [&](Reihenauswertung& ergebnis) {
        const auto anlegen = [&](std::optional<std::vector<Ergebnissatz>>& tabelle) {
            return tabellen == Tabellen::schreiben ? &tabelle.emplace() : nullptr;
        };
        ergebnis.Endwert = EndwertRechnen(reihe, methode, zinssatz, anlegen(ergebnis.Vendwertberechnung));
        ergebnis.Barwert = BarwertRechnen(reihe, methode, zinssatz, anlegen(ergebnis.Barwertberechnung));
    });
}

}  // namespace zinfolio
