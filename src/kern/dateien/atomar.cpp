#include "kern/dateien/atomar.h"

#include <atomic>
#include <cassert>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/deskriptor.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

constexpr int HoechstzahlVerweise = 40;  // as the Linux kernel has it
constexpr int HoechstzahlVersuche = 1000;

Dateifehler Schreibfehler(const fs::path& datei, int fehlernummer) {
    return Systemfehler(datei, "geschrieben", fehlernummer);
}

// Absolute, since the current folder may change between writing and completing.
fs::path Absolut(const fs::path& datei) {
    std::error_code fehler;
    fs::path absolut = fs::absolute(datei, fehler);
    if (fehler) throw Schreibfehler(datei, fehler.value());
    return absolut;
}

fs::path HinterVerweisen(fs::path ziel) {
    for (int i = 0; i <= HoechstzahlVerweise; ++i) {
        std::error_code fehler;
        const fs::path verweis = fs::read_symlink(ziel, fehler);
        if (fehler == std::errc::invalid_argument || fehler == std::errc::no_such_file_or_directory)
            return ziel;
        if (fehler) throw Schreibfehler(ziel, fehler.value());
        ziel = ziel.parent_path() / verweis;
    }
    throw Schreibfehler(ziel, ELOOP);
}

// Permissions of the target, nothing where it does not exist. A file that may not be written is refused,
// although a rename would not mind.
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

fs::path VorlaeufigerName(const fs::path& ziel) {
    static std::atomic<unsigned> laufendeNummer{0};
    return ziel.parent_path() /
           (".zinfolio-" + std::to_string(::getpid()) + '-' + std::to_string(++laufendeNummer) + ".neu");
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

void AufDenDatentraeger(const Deskriptor& datei, const fs::path& ziel) {
    if (OhneUnterbrechung([&] { return ::fsync(datei.Nummer()); }) != 0) throw Schreibfehler(ziel, errno);
}

// The renaming lasts only when the folder is on the disk too.
void OrdnerSichern(const fs::path& ziel) {
    const Deskriptor ordner(ziel.parent_path(), O_RDONLY | O_DIRECTORY);
    if (!ordner.Offen()) throw Schreibfehler(ziel, errno);
    const int ergebnis = OhneUnterbrechung([&] { return ::fsync(ordner.Nummer()); });
    // EINVAL: a file system that cannot do this for folders.
    if (ergebnis != 0 && errno != EINVAL) throw Schreibfehler(ziel, errno);
}

}  // namespace

AtomareDatei::AtomareDatei(fs::path zieldatei, Sicherung dauer) noexcept
    : ziel(std::move(zieldatei)), sicherung(dauer) {}

// Delegating makes this a whole object, whose destructor cleans up when the filling throws.
AtomareDatei::AtomareDatei(const fs::path& zieldatei, std::span<const std::byte> inhalt, Sicherung dauer)
    : AtomareDatei(HinterVerweisen(Absolut(zieldatei)), dauer) {
    Fuellen(inhalt);
}

AtomareDatei::AtomareDatei(AtomareDatei&& andere) noexcept
    : ziel(std::move(andere.ziel)),
      vorlaeufig(std::exchange(andere.vorlaeufig, {})),
      sicherung(andere.sicherung) {}

AtomareDatei& AtomareDatei::operator=(AtomareDatei&& andere) noexcept {
    if (this == &andere) return *this;
    Verwerfen();
    ziel = std::move(andere.ziel);
    vorlaeufig = std::exchange(andere.vorlaeufig, {});
    sicherung = andere.sicherung;
    return *this;
}

AtomareDatei::~AtomareDatei() {
    Verwerfen();
}

void AtomareDatei::Verwerfen() noexcept {
    if (!vorlaeufig.empty()) ::unlink(vorlaeufig.c_str());
}

Deskriptor AtomareDatei::VorlaeufigAnlegen(unsigned rechte) {
    for (int versuch = 0; versuch < HoechstzahlVersuche; ++versuch) {
        fs::path name = VorlaeufigerName(ziel);
        Deskriptor datei(name, O_WRONLY | O_CREAT | O_EXCL, rechte);
        if (datei.Offen()) {
            vorlaeufig = std::move(name);
            return datei;
        }
        if (errno != EEXIST) throw Schreibfehler(ziel, errno);
    }
    throw Schreibfehler(ziel, EEXIST);
}

void AtomareDatei::Fuellen(std::span<const std::byte> inhalt) {
    const std::optional<mode_t> rechte = VorhandeneRechte(ziel);
    Deskriptor datei = VorlaeufigAnlegen(rechte ? 0600 : 0666);
    if (rechte) RechteUebernehmen(datei, *rechte, ziel);
    AllesSchreiben(datei, inhalt, ziel);
    if (sicherung == Sicherung::Dauerhaft) AufDenDatentraeger(datei, ziel);
    if (!datei.Schliessen()) throw Schreibfehler(ziel, errno);
}

void AtomareDatei::Vollenden() {
    assert(!vorlaeufig.empty());
    if (std::rename(vorlaeufig.c_str(), ziel.c_str()) != 0) throw Schreibfehler(ziel, errno);
    vorlaeufig.clear();
    if (sicherung == Sicherung::Dauerhaft) OrdnerSichern(ziel);
}

void AtomarSchreiben(const fs::path& datei, std::span<const std::byte> inhalt, Sicherung sicherung) {
    AtomareDatei(datei, inhalt, sicherung).Vollenden();
}

void AtomarSchreiben(const fs::path& datei, std::string_view inhalt, Sicherung sicherung) {
    AtomarSchreiben(datei, AlsBytes(inhalt), sicherung);
}

}  // namespace zinfolio
