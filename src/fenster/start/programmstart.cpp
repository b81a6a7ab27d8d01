#include "fenster/start/programmstart.h"

namespace zinfolio {
namespace {

constexpr std::string_view hilfetext =
    "Öffnet die Rechner für Konten, Zahlungsreihen, Sparpläne und Tabellen.\n"
    "Aufruf: zinfolio [OPTION] [DATEI]\n"
    "\n"
    "DATEI ist ein Projekt (.ZiS oder .RRR). Läuft das Programm schon, so öffnet es die Datei und kommt nach "
    "vorn.\n"
    "\n"
    "Optionen:\n"
    "  -h,--help             Diese Hilfe zeigen\n"
    "  --version             Die Version zeigen\n"
    "\n"
    "Ohne Fenster rechnet zinfolio-cli.\n";

}  // namespace

Ordnersperre::Ordnersperre(const std::filesystem::path& ordner)
    : sperre_(Sperre::AnDatei(ordner / "zinfolio.lock")) {}

bool Ordnersperre::Gehalten() const {
    return sperre_.Gehalten() || sperre_.Stand() == Sperre::Zustand::unmoeglich;
}

bool Ordnersperre::Besetzt() const {
    return sperre_.Stand() == Sperre::Zustand::besetzt;
}

std::optional<std::string> Auskunft(std::string_view argument) {
    if (argument == "--version") return "zinfolio " ZINFOLIO_VERSION "\n";
    if (argument == "--help" || argument == "-h") return std::string(hilfetext);
    return std::nullopt;
}

bool KehrtZumStartZurueck(const QString& kommandozeile) {
    return kommandozeile.isEmpty() || kommandozeile == "Zinfolio.exe";
}

}  // namespace zinfolio
