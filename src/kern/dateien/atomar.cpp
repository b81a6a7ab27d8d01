#include "kern/dateien/atomar.h"

#include <cassert>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <unistd.h>
#include <utility>

#include "kern/dateien/dateischritte.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

constexpr int HoechstzahlVersuche = 1000;

}  // namespace

AtomareDatei::AtomareDatei(fs::path zieldatei, Sicherung dauer) noexcept
    : ziel(std::move(zieldatei)), sicherung(dauer) {}

// Delegating makes this a whole object, whose destructor cleans up when the filling throws.
AtomareDatei::AtomareDatei(const fs::path& zieldatei, std::span<const std::byte> inhalt, Sicherung dauer)
    : AtomareDatei(Zielpfad(zieldatei), dauer) {
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
        fs::path name = ziel.parent_path() / (VorlaeufigeKennung() + ".neu");
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
    NeueDateiFuellen(std::move(datei), inhalt, rechte, sicherung == Sicherung::Dauerhaft, ziel);
}

void AtomareDatei::Einsetzen() {
    assert(!vorlaeufig.empty());
    if (std::rename(vorlaeufig.c_str(), ziel.c_str()) != 0) throw Schreibfehler(ziel, errno);
    vorlaeufig.clear();
}

void AtomareDatei::Vollenden() {
    Einsetzen();
    if (sicherung == Sicherung::Dauerhaft) OrdnerSichern(ziel);
}

void AtomarSchreiben(const fs::path& datei, std::span<const std::byte> inhalt, Sicherung sicherung) {
    AtomareDatei(datei, inhalt, sicherung).Vollenden();
}

void AtomarSchreiben(const fs::path& datei, std::string_view inhalt, Sicherung sicherung) {
    AtomarSchreiben(datei, AlsBytes(inhalt), sicherung);
}

}  // namespace zinfolio
