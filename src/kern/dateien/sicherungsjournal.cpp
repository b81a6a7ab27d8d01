#include "kern/dateien/sicherungsjournal.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <sys/stat.h>

#include "kern/dateien/dateischritte.h"
#include "kern/dateien/ganzedatei.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kopf = "zinfolio-sicherung 1";
constexpr std::string_view schluss = "ende";
constexpr std::size_t hoechsteJournallaenge = std::size_t{64} << 10;
constexpr std::size_t felderJeEintrag = 3;

/// FNV-1a with 64 bits: tells accidents apart, no forgeries.
std::string Pruefzahl(std::string_view bytes) {
    std::uint64_t zahl = 0xcbf29ce484222325U;
    for (const char byte : bytes)
        zahl = (zahl ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    std::array<char, 16> ziffern{};
    const auto ende = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl, 16).ptr;
    return {ziffern.data(), ende};
}

/// The fields of a journal, each ended by a zero byte, since names may hold any other.
std::vector<std::string> Felder(std::string_view bytes) {
    std::vector<std::string> felder;
    for (std::size_t ende = 0; (ende = bytes.find('\0')) != std::string_view::npos;) {
        felder.emplace_back(bytes.substr(0, ende));
        bytes.remove_prefix(ende + 1);
    }
    return felder;
}

/// A name in the journal's own folder, of no temporary file.
bool IstDateiname(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
           !name.starts_with(vorlaeufigerAnfang);
}

bool IstKennung(std::string_view kennung) {
    return kennung.starts_with(vorlaeufigerAnfang) && kennung.find('/') == std::string_view::npos;
}

std::optional<std::vector<Journaleintrag>> Eintraege(std::span<const std::string> felder) {
    if (felder.size() % felderJeEintrag != 0) return std::nullopt;
    std::vector<Journaleintrag> eintraege;
    for (; !felder.empty(); felder = felder.subspan(felderJeEintrag)) {
        if (!IstDateiname(felder[0])) return std::nullopt;
        eintraege.push_back({felder[0], felder[1], felder[2] == "alt"});
    }
    return eintraege;
}

bool IstNeu(const Journal& journal, std::size_t stelle, const fs::path& ziel) {
    struct stat zustand {};
    if (::stat(ziel.c_str(), &zustand) != 0) {
        if (errno == ENOENT) return false;
        throw Systemfehler(ziel, "gelesen", errno);
    }
    if (!S_ISREG(zustand.st_mode)) return false;
    if (static_cast<std::size_t>(zustand.st_size) > hoechsteDateilaenge) return false;
    const auto inhalt = DateiLesenFallsDa(ziel, hoechsteDateilaenge);
    return inhalt && journal.HatErsetzt(stelle, zustand.st_uid, *inhalt);
}

void Entfernen(const fs::path& datei) {
    if (::unlink(datei.c_str()) != 0 && errno != ENOENT) throw Schreibfehler(datei, errno);
}

/// A file that the save did not get to, or that somebody replaced since, is left alone.
void Zuruecksetzen(const Journal& journal, std::size_t stelle, const fs::path& ziel) {
    if (!IstNeu(journal, stelle, ziel)) return;
    if (!journal.eintraege[stelle].vorher) {
        Entfernen(ziel);
    } else if (std::rename(journal.Altpfad(stelle).c_str(), ziel.c_str()) != 0 && errno != ENOENT) {
        throw Schreibfehler(ziel, errno);
    }
}

}  // namespace

std::string Inhaltskennung(std::string_view inhalt) {
    return std::to_string(inhalt.size()) + '-' + Pruefzahl(inhalt);
}

bool Journal::HatErsetzt(std::size_t stelle, uid_t besitzer, std::string_view inhalt) const {
    return besitzer == benutzer && Inhaltskennung(inhalt) == eintraege[stelle].neu;
}

std::optional<std::size_t> Journal::Stelle(std::string_view name) const {
    const auto eintrag = std::ranges::find(eintraege, name, &Journaleintrag::name);
    if (eintrag == eintraege.end()) return std::nullopt;
    return static_cast<std::size_t>(eintrag - eintraege.begin());
}

fs::path Journal::Ziel(std::size_t stelle) const {
    return Zielpfad(pfad.parent_path() / eintraege[stelle].name);
}

fs::path Journal::Altpfad(std::size_t stelle) const {
    return Ziel(stelle).parent_path() / (kennung + '-' + std::to_string(stelle) + ".alt");
}

fs::path Journalpfad(const fs::path& ersteDatei) {
    const std::string name =
        std::string(vorlaeufigerAnfang) + Pruefzahl(ersteDatei.filename().native()) + ".journal";
    return ersteDatei.parent_path() / name;
}

std::string Journalbytes(std::string_view kennung, std::span<const Journaleintrag> eintraege) {
    std::string bytes;
    const auto feld = [&bytes](std::string_view text) { bytes.append(text).push_back('\0'); };
    feld(kopf);
    feld(kennung);
    for (const Journaleintrag& eintrag : eintraege) {
        feld(eintrag.name);
        feld(eintrag.neu);
        feld(eintrag.vorher ? "alt" : "");
    }
    feld(schluss);
    return bytes;
}

std::optional<Journal> JournalLesen(const fs::path& pfad) {
    Deskriptor offen(pfad, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    if (!offen.Offen()) {
        if (errno == ENOENT || errno == ELOOP || errno == ENXIO) return std::nullopt;
        throw Systemfehler(pfad, "gelesen", errno);
    }
    struct stat zustand {};
    if (::fstat(offen.Nummer(), &zustand) != 0) throw Systemfehler(pfad, "gelesen", errno);
    std::string bytes;
    if (!S_ISREG(zustand.st_mode)) return std::nullopt;
    if (!RestLesen(offen.Nummer(), hoechsteJournallaenge, bytes)) {
        if (errno == EFBIG) return std::nullopt;
        throw Systemfehler(pfad, "gelesen", errno);
    }
    const std::vector<std::string> felder = Felder(bytes);
    constexpr std::size_t rahmen = 3;
    if (felder.size() < rahmen || felder.front() != kopf || felder.back() != schluss ||
        !IstKennung(felder[1]))
        return std::nullopt;
    auto eintraege = Eintraege(std::span(felder).subspan(2, felder.size() - rahmen));
    if (!eintraege) return std::nullopt;
    return Journal{std::move(offen), pfad, felder[1], std::move(*eintraege), zustand.st_uid};
}

bool GiltNoch(const Journal& journal) {
    struct stat jetzt {};
    struct stat damals {};
    return ::stat(journal.pfad.c_str(), &jetzt) == 0 && ::fstat(journal.offen.Nummer(), &damals) == 0 &&
           jetzt.st_dev == damals.st_dev && jetzt.st_ino == damals.st_ino;
}

void Zuruecksetzen(const Journal& journal) {
    std::vector<fs::path> ziele;
    for (std::size_t i = 0; i < journal.eintraege.size(); ++i)
        ziele.push_back(journal.Ziel(i));
    for (std::size_t i = 0; i < ziele.size(); ++i)
        Zuruecksetzen(journal, i, ziele[i]);
    OrdnerSichern(ziele);
    Entfernen(journal.pfad);
    OrdnerSichern(journal.pfad);
    for (std::size_t i = 0; i < ziele.size(); ++i)
        ::unlink(journal.Altpfad(i).c_str());
}

}  // namespace zinfolio
