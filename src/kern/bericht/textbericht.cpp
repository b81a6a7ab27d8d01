#include "kern/bericht/textbericht.h"

#include <string_view>

#include "kern/dateien/atomar.h"
#include "kern/dateien/ganzedatei.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

/// No calculator writes a text as large as that.
constexpr std::size_t groessterText = std::size_t{64} << 20;

std::string OhneWagenruecklauf(std::string_view text) {
    std::string ergebnis;
    ergebnis.reserve(text.size() + 1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) != "\r\n") ergebnis += text[i];
    }
    return ergebnis;
}

}  // namespace

void TextberichtSchreiben(const std::filesystem::path& arbeitsordner, const Textbericht& bericht) {
    std::string text = "\n\n" + bericht.titel + "\n\n\n";
    for (const std::string& zeile : bericht.zeilen)
        text += zeile + '\n';
    text += " \n \n" + bericht.schlusstext + '\n';
    AtomarSchreiben(arbeitsordner / textberichtsdatei, NachWindows1252(text), Sicherung::Fluechtig);
}

std::string TextberichtLesen(const std::filesystem::path& arbeitsordner) {
    const auto datei = arbeitsordner / textberichtsdatei;
    std::error_code fehler;
    if (!std::filesystem::exists(datei, fehler) && !fehler) return {};
    std::string text = OhneWagenruecklauf(NachUtf8(GanzeDateiLesen(datei, groessterText)));
    if (!text.empty() && text.back() != '\n') text += '\n';
    return text;
}

}  // namespace zinfolio
