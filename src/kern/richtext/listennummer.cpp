#include "kern/richtext/listennummer.h"

#include <array>
#include <string_view>
#include <utility>

namespace zinfolio {
namespace {

constexpr std::array<std::pair<int, std::string_view>, 13> roemisch{{
    {1000, "m"},
    {900, "cm"},
    {500, "d"},
    {400, "cd"},
    {100, "c"},
    {90, "xc"},
    {50, "l"},
    {40, "xl"},
    {10, "x"},
    {9, "ix"},
    {5, "v"},
    {4, "iv"},
    {1, "i"},
}};
constexpr int groessteRoemische = 3999;

std::string Roemisch(int nummer) {
    std::string text;
    for (const auto& [wert, zeichen] : roemisch) {
        for (; nummer >= wert; nummer -= wert)
            text += zeichen;
    }
    return text;
}

std::string Buchstaben(int nummer) {
    constexpr int alphabet = 26;
    std::string text;
    for (; nummer > 0; nummer = (nummer - 1) / alphabet)
        text.insert(text.begin(), static_cast<char>('a' + (nummer - 1) % alphabet));
    return text;
}

std::string Gross(std::string text) {
    for (char& zeichen : text)
        zeichen = static_cast<char>(zeichen - 'a' + 'A');
    return text;
}

std::string Nummerntext(Listenart art, int nummer) {
    const bool mitRoemischer = nummer > 0 && nummer <= groessteRoemische;
    if (art == Listenart::kleinbuchstaben && nummer > 0) return Buchstaben(nummer);
    if (art == Listenart::grossbuchstaben && nummer > 0) return Gross(Buchstaben(nummer));
    if (art == Listenart::kleinroemisch && mitRoemischer) return Roemisch(nummer);
    if (art == Listenart::grossroemisch && mitRoemischer) return Gross(Roemisch(nummer));
    return std::to_string(nummer);
}

}  // namespace

std::string Listennummer(const Liste& liste, int nummer) {
    if (liste.art == Listenart::keine || liste.art == Listenart::punkte) return {};
    std::string text = Nummerntext(liste.art, nummer);
    if (liste.nach != Nachzeichen::keins) text += liste.nach == Nachzeichen::klammer ? ')' : '.';
    return text;
}

}  // namespace zinfolio
