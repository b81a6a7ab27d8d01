#include "kern/bericht/tabelle.h"

#include <cmath>
#include <stdexcept>

#include "kern/bericht/spaltenformat.h"

namespace zinfolio {

Zellwert Tabelleninhalt::Wert(std::size_t zeile, std::size_t spalte) const {
    if (const auto zahlenwert = zahl ? zahl(zeile, spalte) : std::nullopt;
        zahlenwert && std::isfinite(*zahlenwert)) {
        return *zahlenwert;
    }
    std::string text = zelle(zeile, spalte);
    if (spalten[spalte].art == Zellart::datum) {
        if (const auto datum = Datum::Versuche(text)) return *datum;
    }
    return text;
}

Tabelleninhalt TexttabelleBilden(std::vector<Tabellenspalte> spalten,
                                 std::vector<std::vector<std::string>> zeilen) {
    Tabelleninhalt inhalt;
    inhalt.spalten = std::move(spalten);
    inhalt.zeilen = zeilen.size();
    inhalt.zelle = [texte = std::make_shared<const std::vector<std::vector<std::string>>>(std::move(zeilen))](
                       std::size_t zeile, std::size_t spalte) {
        const std::vector<std::string>& zellen = (*texte)[zeile];
        return spalte < zellen.size() ? zellen[spalte] : std::string();
    };
    return inhalt;
}

Berichtstabelle BerichtstabelleBilden(const Tabelleninhalt& inhalt, std::string_view format, double punkte) {
    std::vector<Berichtsspalte> spalten = SpaltenformatLesen(format);
    if (spalten.size() != inhalt.spalten.size()) {
        throw std::invalid_argument("Ein Bericht mit ungleich vielen Spalten und Breiten: " +
                                    std::string(format));
    }
    for (std::size_t i = 0; i < spalten.size(); ++i) {
        const Tabellenspalte& spalte = inhalt.spalten[i];
        spalten[i].kopf = spalte.berichtskopf.empty() ? spalte.kopf : spalte.berichtskopf;
    }
    return {
        .spalten = std::move(spalten),
        .kopfschrift = {.name = "Arial", .punkte = punkte, .fett = true},
        .schrift = {.name = "Arial", .punkte = punkte},
        .zeilen = inhalt.zeilen,
        .zelle = inhalt.zelle,
    };
}

}  // namespace zinfolio
