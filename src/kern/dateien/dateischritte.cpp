#include "kern/dateien/dateischritte.h"

#include <atomic>
#include <cerrno>
#include <charconv>
#include <csignal>
#include <ctime>
#include <set>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

constexpr int hoechstzahlVerweise = 40;  // as the Linux kernel has it

fs::path Absolut(const fs::path& datei) {
    std::error_code fehler;
    fs::path absolut = fs::absolute(datei, fehler);
    if (fehler) throw Schreibfehler(datei, fehler.value());
    return absolut;
}

void RechteUebernehmen(const Deskriptor& datei, mode_t rechte, const fs::path& ziel) {
    if (::fchmod(datei.Nummer(), rechte) == 0) return;
    // A file system without permissions of its own; the file is then as tight as it was made.
    if (errno != EPERM && errno != ENOTSUP) throw Schreibfehler(ziel, errno);
}

void AllesSchreiben(const Deskriptor& datei, std::span<const std::byte> rest, const fs::path& ziel) {
    while (!rest.empty()) {
        const ssize_t geschrieben =
            OhneUnterbrechung([&] { return ::write(datei.Nummer(), rest.data(), rest.size()); });
        if (geschrieben <= 0) throw Schreibfehler(ziel, geschrieben == 0 ? EIO : errno);
        rest = rest.subspan(static_cast<std::size_t>(geschrieben));
    }
}

/// Number and moment of this process: its number alone comes again, in a container even at each start.
std::string Prozesskennung() {
    static const std::string augenblick = [] {
        timespec jetzt{};
        ::clock_gettime(CLOCK_REALTIME, &jetzt);
        constexpr long tausend = 1000;
        return std::to_string(jetzt.tv_sec * tausend * tausend + jetzt.tv_nsec / tausend);
    }();
    return std::to_string(::getpid()) + '-' + augenblick;
}

}  // namespace

Dateifehler Schreibfehler(const fs::path& datei, int fehlernummer) {
    return Systemfehler(datei, "geschrieben", fehlernummer);
}

fs::path Zielpfad(const fs::path& datei) {
    fs::path ziel = Absolut(datei);
    for (int i = 0; i <= hoechstzahlVerweise; ++i) {
        std::error_code fehler;
        const fs::path verweis = fs::read_symlink(ziel, fehler);
        if (fehler == std::errc::invalid_argument || fehler == std::errc::no_such_file_or_directory)
            return ziel;
        if (fehler) throw Schreibfehler(ziel, fehler.value());
        ziel = ziel.parent_path() / verweis;
    }
    throw Schreibfehler(ziel, ELOOP);
}

std::optional<mode_t> VorhandeneRechte(const fs::path& ziel) {
    struct stat zustand {};
    if (::stat(ziel.c_str(), &zustand) != 0) {
        if (errno == ENOENT) return std::nullopt;
        throw Schreibfehler(ziel, errno);
    }
    if (S_ISDIR(zustand.st_mode)) throw Schreibfehler(ziel, EISDIR);
    if (!S_ISREG(zustand.st_mode)) throw Dateifehler({ziel}, "Das Ziel ist keine gewöhnliche Datei.");
    if (::faccessat(AT_FDCWD, ziel.c_str(), W_OK, AT_EACCESS) != 0) throw Schreibfehler(ziel, errno);
    return zustand.st_mode & 0777U;
}

void NeueDateiFuellen(Deskriptor datei, std::span<const std::byte> inhalt, std::optional<mode_t> rechte,
                      bool dauerhaft, const fs::path& ziel) {
    if (rechte) RechteUebernehmen(datei, *rechte, ziel);
    AllesSchreiben(datei, inhalt, ziel);
    if (dauerhaft && OhneUnterbrechung([&] { return ::fsync(datei.Nummer()); }) != 0)
        throw Schreibfehler(ziel, errno);
    if (!datei.Schliessen()) throw Schreibfehler(ziel, errno);
}

void OrdnerSichern(const fs::path& ziel) {
    const Deskriptor ordner(ziel.parent_path(), O_RDONLY | O_DIRECTORY);
    if (!ordner.Offen()) throw Schreibfehler(ziel, errno);
    const int ergebnis = OhneUnterbrechung([&] { return ::fsync(ordner.Nummer()); });
    // EINVAL: a file system that cannot do this for folders.
    if (ergebnis != 0 && errno != EINVAL) throw Schreibfehler(ziel, errno);
}

void OrdnerSichern(std::span<const fs::path> ziele) {
    std::set<fs::path> gesichert;
    for (const fs::path& ziel : ziele)
        if (gesichert.insert(ziel.parent_path()).second) OrdnerSichern(ziel);
}

std::string VorlaeufigeKennung() {
    static std::atomic<unsigned> laufendeNummer{0};
    return std::string(vorlaeufigerAnfang) + Prozesskennung() + '-' + std::to_string(++laufendeNummer);
}

bool IstVerwaist(std::string_view name) {
    if (!name.starts_with(vorlaeufigerAnfang)) return false;
    if (!name.ends_with(".neu") && !name.ends_with(".alt")) return false;
    name.remove_prefix(vorlaeufigerAnfang.size());
    pid_t prozess = 0;
    const auto [ende, fehler] = std::from_chars(name.data(), name.data() + name.size(), prozess);
    if (fehler != std::errc() || prozess <= 0 || *ende != '-') return false;
    if (prozess == ::getpid()) return !name.starts_with(Prozesskennung() + '-');
    return ::kill(prozess, 0) != 0 && errno == ESRCH;
}

}  // namespace zinfolio
