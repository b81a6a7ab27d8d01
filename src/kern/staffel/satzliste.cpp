#include "kern/staffel/satzliste.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <map>
#include <string_view>
#include <tuple>

namespace zinfolio {

Loeschung SaetzeLoeschen(std::vector<Staffelsatz>& saetze, std::span<const std::size_t> markiert) {
    std::vector<bool> weg(saetze.size(), false);
    for (const std::size_t platz : markiert) {
        if (platz < weg.size()) weg[platz] = true;
    }
    Loeschung loeschung;
    std::vector<Staffelsatz> rest;
    for (std::size_t platz = 0; platz < saetze.size(); ++platz) {
        if (weg[platz]) {
            loeschung.saetze.emplace_back(platz, saetze[platz]);
        } else {
            rest.push_back(saetze[platz]);
        }
    }
    saetze = std::move(rest);
    return loeschung;
}

void LoeschungZuruecknehmen(std::vector<Staffelsatz>& saetze, const Loeschung& loeschung) {
    std::vector<Staffelsatz> ergebnis;
    ergebnis.reserve(saetze.size() + loeschung.saetze.size());
    auto rest = saetze.begin();
    for (const auto& [platz, satz] : loeschung.saetze) {
        const auto fehlend =
            static_cast<std::ptrdiff_t>(platz) - static_cast<std::ptrdiff_t>(ergebnis.size());
        const auto bis = rest + std::clamp<std::ptrdiff_t>(fehlend, 0, saetze.end() - rest);
        ergebnis.insert(ergebnis.end(), rest, bis);
        rest = bis;
        ergebnis.push_back(satz);
    }
    ergebnis.insert(ergebnis.end(), rest, saetze.end());
    saetze = std::move(ergebnis);
}

void ZugangZuruecknehmen(std::vector<Staffelsatz>& saetze, std::span<const Staffelsatz> zugang) {
    const auto schluessel = [](const Staffelsatz& satz) {
        return std::tuple(satz.Satzdatum.Getrimmt(), std::bit_cast<std::uint64_t>(satz.Zahlbetrag),
                          satz.Zahlungstext.Getrimmt());
    };
    std::map<decltype(schluessel(saetze[0])), std::size_t> offen;
    for (const Staffelsatz& satz : zugang)
        ++offen[schluessel(satz)];
    std::vector<Staffelsatz> rest;
    for (auto satz = saetze.rbegin(); satz != saetze.rend(); ++satz) {
        const auto treffer = offen.find(schluessel(*satz));
        if (treffer == offen.end() || treffer->second == 0)
            rest.push_back(*satz);
        else
            --treffer->second;
    }
    std::ranges::reverse(rest);
    saetze = std::move(rest);
}

}  // namespace zinfolio
