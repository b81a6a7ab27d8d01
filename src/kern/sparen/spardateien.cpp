#include "kern/sparen/spardateien.h"

#include <string_view>

#include "kern/dateien/satzdatei.h"

namespace zinfolio {
namespace {

template <typename Satzart>
void Ablegen(const std::filesystem::path& ordner, std::string_view name,
             const std::optional<std::vector<Satzart>>& saetze) {
    if (saetze) Satzdatei<Satzart>(ordner, name).Schreiben(*saetze);
}

}  // namespace

void SparergebnisAblegen(const std::filesystem::path& ordner, const Sparform& form,
                         const Sparergebnis& ergebnis) {
    Ablegen(ordner, form.laufdateien.zahlungen, ergebnis.lauf.zahlungen);
    Ablegen(ordner, form.laufdateien.termine, ergebnis.lauf.termine);
    Ablegen(ordner, form.laufdateien.konditionen, ergebnis.lauf.konditionen);
    Ablegen(ordner, "Lösungsdatei", ergebnis.lauf.loesung);
    SparreiheAblegen(ordner, ergebnis);
}

void SparreiheAblegen(const std::filesystem::path& ordner, const Sparergebnis& ergebnis) {
    Ablegen(ordner, "Lösungszahlungsreihe", ergebnis.Lösungszahlungsreihe);
}

}  // namespace zinfolio
