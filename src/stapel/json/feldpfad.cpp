#include "stapel/json/feldpfad.h"

namespace zinfolio {
namespace {

constexpr std::size_t hoechstlaenge = 60;

bool IstFortsetzung(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

}  // namespace

std::string Gekuerzt(std::string_view utf8, std::size_t hoechstens) {
    std::size_t ende = 0;
    for (std::size_t zeichen = 0; ende < utf8.size(); ++ende) {
        if (!IstFortsetzung(utf8[ende]) && zeichen++ == hoechstens) break;
    }
    std::string text(utf8.substr(0, ende));
    if (ende < utf8.size()) text += "…";
    return text;
}

std::string Feldpfad::Text() const {
    if (eltern == nullptr) return {};
    std::string text = eltern->Text();
    if (name.data() == nullptr) return text + "[" + std::to_string(index) + "]";
    if (!text.empty()) text += '.';
    return text + Gekuerzt(name, hoechstlaenge);
}

}  // namespace zinfolio
