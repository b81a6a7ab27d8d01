#include "kern/dates/datumtippen.h"

#include "kern/dates/tastenfilter.h"
#include "kern/dates/zahl.h"

namespace zinfolio {
namespace {

double WertAb(const std::string& text, std::size_t position, std::size_t anzahl) {
    return text.size() < position ? 0 : Punktwert(std::string_view(text).substr(position - 1, anzahl));
}

}  // namespace

std::string DatumTippen(std::string_view feld, int letzteTaste) {
    std::string text(feld);
    const std::size_t laenge = text.size();
    if (laenge == 2 || laenge == 5) {
        if (letzteTaste == tasteRueck) {
            text.pop_back();
        } else {
            text += '.';
        }
    }
    if (laenge == 2 && WertAb(text, 1, 1) == 0 && WertAb(text, 1, 2) == 0) return "0";
    if (laenge == 4 && WertAb(text, 4, 1) > 1) text.resize(3);
    if (laenge == 5) {
        if (WertAb(text, 4, 2) > 12) text.resize(4);
        if (WertAb(text, 4, 2) == 0) text.resize(4);
    }
    if (laenge == 7 && WertAb(text, 7, 1) == 0) text.resize(6);
    return text;
}

}  // namespace zinfolio
