#include "kern/dateien/ganzedatei.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/deskriptor.h"

namespace zinfolio {
namespace {

Deskriptor ZumLesen(const std::filesystem::path& datei) {
    Deskriptor offene(datei, O_RDONLY);
    if (!offene.Offen()) throw Systemfehler(datei, "gelesen", errno);
    return offene;
}

std::string Inhalt(const Deskriptor& offene, const std::filesystem::path& datei, std::size_t hoechstens) {
    std::string bytes;
    if (RestLesen(offene.Nummer(), hoechstens, bytes)) return bytes;
    if (errno == EFBIG) throw Dateifehler({datei}, "Die Datei ist zu groß.");
    throw Systemfehler(datei, "gelesen", errno);
}

}  // namespace

bool RestLesen(int nummer, std::size_t hoechstens, std::string& text) {
    constexpr std::size_t lesemenge = std::size_t{64} << 10;
    std::size_t rest = hoechstens;
    for (;;) {
        const std::size_t bisher = text.size();
        // One byte more than allowed shows that there is more.
        const std::size_t platz = std::min(lesemenge, rest + 1);
        text.resize(bisher + platz);
        const auto anzahl = OhneUnterbrechung([&] { return ::read(nummer, text.data() + bisher, platz); });
        const std::size_t gelesen = anzahl < 0 ? 0 : static_cast<std::size_t>(anzahl);
        text.resize(bisher + std::min(gelesen, rest));
        if (anzahl <= 0) return anzahl == 0;
        if (gelesen > rest) {
            errno = EFBIG;
            return false;
        }
        rest -= gelesen;
    }
}

std::string GanzeDateiLesen(const std::filesystem::path& datei, std::size_t hoechstens) {
    return Inhalt(ZumLesen(datei), datei, hoechstens);
}

std::optional<std::string> DateiLesenFallsDa(const std::filesystem::path& datei, std::size_t hoechstens) {
    const Deskriptor offene(datei, O_RDONLY);
    if (offene.Offen()) return Inhalt(offene, datei, hoechstens);
    if (errno == ENOENT) return std::nullopt;
    throw Systemfehler(datei, "gelesen", errno);
}

void LesbarkeitPruefen(const std::filesystem::path& datei) {
    static_cast<void>(ZumLesen(datei));
}

}  // namespace zinfolio
