#include "stapel/befehle/zeilenleser.h"

#include <algorithm>
#include <cstring>

#include "stapel/json/jsonleser.h"

namespace zinfolio {
namespace {

constexpr std::size_t lesemenge = std::size_t{64} << 10;

}  // namespace

bool Zeilenleser::Naechster(Zeilenblock& block) {
    std::string& puffer = block.puffer;
    puffer.swap(rest);
    rest.clear();
    block.laenge = 0;
    while (block.laenge == 0 && !zuEnde) {
        const std::size_t bisher = puffer.size();
        if (puffer.capacity() < bisher + lesemenge) puffer.reserve(4 * (bisher + lesemenge));
        puffer.resize(bisher + lesemenge);
        const std::size_t gelesen = quelle(puffer.data() + bisher, lesemenge);
        puffer.resize(bisher + gelesen);
        zuEnde = gelesen == 0;
        if (const auto* zeilenende = ::memrchr(puffer.data() + bisher, '\n', gelesen)) {
            block.laenge = static_cast<std::size_t>(static_cast<const char*>(zeilenende) - puffer.data()) + 1;
        } else if (puffer.size() > hoechsteZeilenlaenge) {
            puffer.resize(hoechsteZeilenlaenge + 1);
        }
    }
    if (zuEnde && block.laenge == 0) block.laenge = puffer.size();
    rest.assign(puffer, block.laenge);
    puffer.resize(block.laenge);
    puffer.append(nachlauf, '\0');
    return block.laenge > 0;
}

std::string_view ZeileNehmen(std::string_view& zeilen) {
    const std::size_t ende = std::min(zeilen.find('\n'), zeilen.size());
    const std::string_view zeile = zeilen.substr(0, ende);
    zeilen.remove_prefix(std::min(ende + 1, zeilen.size()));
    return zeile;
}

}  // namespace zinfolio
