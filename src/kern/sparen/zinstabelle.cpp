#include "kern/sparen/zinstabelle.h"

#include <string>
#include <utility>

#include "kern/dates/datum.h"
#include "kern/dates/zahl.h"
#include "kern/grund/utf8.h"
#include "kern/sparen/meldungen.h"

namespace zinfolio {
namespace {

constexpr double spaetester = 99'999'999;
/// From so many characters on a text counts as a date, for the order and for the other rules.
constexpr std::size_t datumFuerSchluessel = 4;
constexpr std::size_t datumFuerZeile = 3;

double Schluessel(const std::string& datumstext) {
    return Zeichenzahl(datumstext) < datumFuerSchluessel ? spaetester : Datumsschluessel(datumstext);
}

bool OhneDatum(const Sparplan& plan, std::size_t zeile) {
    return Zeichenzahl(plan.ZinsWDAt[zeile]) < datumFuerZeile;
}

Ablehnung An(std::size_t zeile, Zinsspalte spalte, std::string meldung) {
    return {std::move(meldung), Zinszeilenname(zeile, spalte), ""};
}

}  // namespace

void ZinstabelleSortieren(Sparplan& plan) {
    for (std::size_t i = 0; i < zinstabellenzeilen; ++i) {
        double kleinster = Schluessel(plan.ZinsWDAt[i]);
        if (kleinster == 0) kleinster = spaetester;
        std::size_t stelle = i;
        for (std::size_t j = i; j < zinstabellenzeilen; ++j) {
            const double schluessel = Schluessel(plan.ZinsWDAt[j]);
            if (schluessel == 0 || !(schluessel < kleinster)) continue;
            kleinster = schluessel;
            stelle = j;
        }
        std::swap(plan.ZinsWDAt[i], plan.ZinsWDAt[stelle]);
        std::swap(plan.Zinsbetrag[i], plan.Zinsbetrag[stelle]);
    }
}

std::optional<Ablehnung> ZinstabellePruefen(Sparplan& plan) {
    ZinstabelleSortieren(plan);
    const std::string& erstes = plan.ZinsWDAt.front();
    if (Zeichenzahl(erstes) >= datumFuerSchluessel && Datum::Lesen(erstes) <= Datum::Lesen(plan.Anfdatum)) {
        return An(0, Zinsspalte::datum,
                  std::string(meldung::zinssatzVorAnfang) + plan.Anfdatum +
                      std::string(meldung::zinssatzVorAnfangEnde));
    }
    for (std::size_t i = 0; i < zinstabellenzeilen; ++i) {
        if (OhneDatum(plan, i)) {
            plan.ZinsWDAt[i].clear();
            plan.Zinsbetrag[i].clear();
        } else if (plan.Zinsbetrag[i].empty() || Zahl(plan.Zinsbetrag[i]) == 0) {
            return An(i, Zinsspalte::betrag, std::string(meldung::zinsbetragFehlt));
        }
    }
    return std::nullopt;
}

bool ZinstabelleMarkieren(const Sparplan& plan) {
    return !plan.Zinsbetrag.front().empty();
}

std::optional<Ablehnung> ZinszeileGesperrt(const Sparplan& plan, std::size_t zeile, Zinsspalte spalte) {
    for (std::size_t j = 0; j < zeile; ++j) {
        if (OhneDatum(plan, j)) return An(j, Zinsspalte::datum, std::string(meldung::leereZeilen));
    }
    if (spalte == Zinsspalte::betrag && OhneDatum(plan, zeile)) {
        return An(zeile, Zinsspalte::datum, std::string(meldung::zuerstDatum));
    }
    return std::nullopt;
}

std::string Zinszeilenname(std::size_t zeile, Zinsspalte spalte) {
    return (spalte == Zinsspalte::datum ? "ZinsWDAt(" : "Zinsbetrag(") + std::to_string(zeile + 1) + ")";
}

}  // namespace zinfolio
