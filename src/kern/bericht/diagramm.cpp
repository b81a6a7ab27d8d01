#include "kern/bericht/diagramm.h"

#include <algorithm>
#include <cmath>

#include "kern/dates/zahl.h"

namespace zinfolio {
namespace {

using Zeilen = std::vector<std::size_t>;

/// The first row, and each row whose text differs from the one before.
Zeilen Textwechsel(std::span<const std::string> texte, std::size_t erste, std::size_t letzte) {
    Zeilen zeilen{erste};
    for (std::size_t i = erste + 1; i <= letzte; ++i) {
        if (texte[i] != texte[i - 1]) zeilen.push_back(i);
    }
    return zeilen;
}

/// Whether one text holds for more than three quarters of the rows.
bool EinTextUeberwiegt(const Zeilen& wechsel, std::size_t erste, std::size_t letzte) {
    std::size_t laengster = 0;
    for (std::size_t i = 0; i < wechsel.size(); ++i) {
        const std::size_t ende = i + 1 < wechsel.size() ? wechsel[i + 1] : letzte + 1;
        laengster = std::max(laengster, ende - wechsel[i]);
    }
    return laengster * 4 > (letzte - erste + 1) * 3;
}

/// The place of the first row whose number is a multiple of `schritt`; 0 where there is none.
std::size_t RunderAnfang(std::span<const std::string> texte, const Zeilen& zeilen, std::size_t schritt) {
    const std::size_t bis = std::min(schritt, zeilen.size());
    for (std::size_t i = 0; i < bis; ++i) {
        if (std::fmod(Zahlwert(texte[zeilen[i]]), static_cast<double>(schritt)) == 0) return i;
    }
    return 0;
}

Zeilen Jede(std::size_t schritt, const Zeilen& zeilen, std::size_t anfang) {
    Zeilen auswahl;
    for (std::size_t i = anfang; i < zeilen.size(); i += schritt)
        auswahl.push_back(zeilen[i]);
    return auswahl;
}

/// Of rows that lie too close to each other the later one goes; at the very front the first, where what is
/// shown begins in the middle of a year.
Zeilen Ausgeduennt(std::span<const std::size_t> zeilen, std::size_t abstand) {
    if (zeilen.size() > 1 && zeilen[1] - zeilen[0] < abstand) zeilen = zeilen.subspan(1);
    Zeilen bleibt;
    for (const std::size_t zeile : zeilen) {
        if (bleibt.empty() || zeile - bleibt.back() >= abstand) bleibt.push_back(zeile);
    }
    return bleibt;
}

Zeilen AusgewaehlteWechsel(std::span<const std::string> texte, const Zeilen& wechsel, std::size_t abstand) {
    constexpr std::size_t schritte[] = {1, 2, 5};
    for (std::size_t zehner = 1;; zehner *= 10) {
        for (const std::size_t schritt : schritte) {
            const std::size_t weite = schritt * zehner;
            const Zeilen auswahl = Jede(weite, wechsel, weite == 1 ? 0 : RunderAnfang(texte, wechsel, weite));
            Zeilen bleibt = Ausgeduennt(auswahl, abstand);
            // A few that had to go leave the step regular enough.
            if ((auswahl.size() - bleibt.size()) * 4 <= auswahl.size()) return bleibt;
        }
    }
}

}  // namespace

Diagrammeinheit EinheitWaehlen(double betrag, const Einheitentitel& titel) {
    const auto gross = [&](double grenze) {
        return betrag > grenze || (titel.abDerGrenze && betrag == grenze);
    };
    if (gross(1e9)) return {1e6, titel.millionen};
    if (gross(1e6)) return {1e3, titel.tausend};
    return {1, titel.einzeln};
}

std::string Jahrestext(std::string_view datumstext) {
    return Zahltext(
        Zahlwert(datumstext.substr(datumstext.size() - std::min<std::size_t>(datumstext.size(), 4))));
}

std::vector<std::size_t> BeschrifteteZeilen(std::span<const std::string> texte, std::size_t erste,
                                            std::size_t letzte, std::size_t abstand) {
    const Zeilen wechsel = Textwechsel(texte, erste, letzte);
    if (abstand > 1 && !EinTextUeberwiegt(wechsel, erste, letzte))
        return AusgewaehlteWechsel(texte, wechsel, abstand);
    Zeilen zeilen;
    for (std::size_t i = erste; i <= letzte; i += abstand)
        zeilen.push_back(i);
    return zeilen;
}

}  // namespace zinfolio
