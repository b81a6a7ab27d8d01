#include "kern/dateien/satzdatei.h"

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

#include "kern/dateien/deskriptor.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

// Creating is a second step: a file in a folder that others share may be readable and still refuse O_CREAT.
Deskriptor ZumLesenOderNeu(const fs::path& datei) {
    Deskriptor vorhandene(datei, O_RDONLY);
    if (vorhandene.Offen()) return vorhandene;
    if (errno != ENOENT) throw Systemfehler(datei, "gelesen", errno);
    Deskriptor neue(datei, O_RDONLY | O_CREAT, 0666);
    if (!neue.Offen()) throw Systemfehler(datei, "angelegt", errno);
    return neue;
}

std::size_t GanzeSaetze(const Deskriptor& offene, const fs::path& datei, std::size_t satzlaenge) {
    struct stat zustand {};
    if (::fstat(offene.Nummer(), &zustand) != 0) throw Systemfehler(datei, "gelesen", errno);
    if (S_ISDIR(zustand.st_mode)) throw Systemfehler(datei, "gelesen", EISDIR);
    const std::size_t anzahl = static_cast<std::size_t>(zustand.st_size) / satzlaenge;
    SatzzahlPruefen(datei, anzahl);
    return anzahl;
}

// Gives the number of bytes read, less than asked for where the file has been cut meanwhile.
std::size_t Einlesen(const Deskriptor& offene, const fs::path& datei, std::span<std::byte> ziel) {
    std::size_t gelesen = 0;
    while (gelesen < ziel.size()) {
        const std::span<std::byte> rest = ziel.subspan(gelesen);
        const ssize_t stueck =
            OhneUnterbrechung([&] { return ::read(offene.Nummer(), rest.data(), rest.size()); });
        if (stueck < 0) throw Systemfehler(datei, "gelesen", errno);
        if (stueck == 0) break;
        gelesen += static_cast<std::size_t>(stueck);
    }
    return gelesen;
}

}  // namespace

std::string UeberHoechstzahl(std::string_view saetze) {
    return "Mehr als " + std::to_string(HoechstzahlSaetze).append(" ").append(saetze).append(".");
}

void SatzzahlPruefen(const fs::path& datei, std::size_t anzahl) {
    if (anzahl <= HoechstzahlSaetze) return;
    throw Dateifehler({datei}, std::to_string(anzahl) + " Sätze, höchstens " +
                                   std::to_string(HoechstzahlSaetze) + " sind möglich.");
}

std::vector<std::byte> SatzbytesLesen(const fs::path& datei, std::size_t satzlaenge) {
    const Deskriptor offene = ZumLesenOderNeu(datei);
    std::vector<std::byte> bytes(GanzeSaetze(offene, datei, satzlaenge) * satzlaenge);
    const std::size_t gelesen = Einlesen(offene, datei, bytes);
    bytes.resize(gelesen - gelesen % satzlaenge);
    return bytes;
}

std::size_t SaetzeZaehlen(const fs::path& datei, std::size_t satzlaenge) {
    return GanzeSaetze(ZumLesenOderNeu(datei), datei, satzlaenge);
}

}  // namespace zinfolio
