#include "kern/allround/zellentabelle.h"

#include "kern/dates/zahl.h"

namespace zinfolio {

Tabelleninhalt InhaltBilden(std::shared_ptr<const Zellentabelle> tabelle, std::span<const Zellart> arten) {
    Tabelleninhalt inhalt;
    for (std::size_t spalte = 0; spalte < tabelle->Spalten(); ++spalte)
        inhalt.spalten.push_back({.kopf = tabelle->Koepfe()[spalte], .art = arten[spalte]});
    inhalt.zeilen = tabelle->Zeilen();
    inhalt.zelle = [tabelle](std::size_t zeile, std::size_t spalte) { return tabelle->Zelle(zeile, spalte); };
    inhalt.zahl = [tabelle = std::move(tabelle), arten = std::vector(arten.begin(), arten.end())](
                      std::size_t zeile, std::size_t spalte) -> std::optional<double> {
        if (arten[spalte] != Zellart::zahl) return std::nullopt;
        return ZahlVersuch(tabelle->Zelle(zeile, spalte));
    };
    return inhalt;
}

}  // namespace zinfolio
