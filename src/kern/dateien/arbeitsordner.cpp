#include "kern/dateien/arbeitsordner.h"

#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <string>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <vector>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/programmordner.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

fs::path Umgebungspfad(const char* name) {
    const char* wert = std::getenv(name);
    return wert == nullptr ? fs::path() : fs::path(wert);
}

fs::path HeimAusKonto() {
    constexpr std::size_t reichlich = 16384;
    std::vector<char> puffer(reichlich);
    passwd eintrag{};
    passwd* gefunden = nullptr;
    ::getpwuid_r(::getuid(), &eintrag, puffer.data(), puffer.size(), &gefunden);
    return gefunden == nullptr || gefunden->pw_dir == nullptr ? fs::path() : fs::path(gefunden->pw_dir);
}

[[noreturn]] void Gescheitert(const fs::path& ordner, int fehlernummer) {
    throw Dateifehler("Der Ordner \"" + ordner.string() +
                      "\" kann nicht angelegt werden: " + Systemgrund(fehlernummer));
}

}  // namespace

fs::path ArbeitsordnerAus(const Ordnerangaben& angaben) {
    fs::path basis = angaben.programm;
    if (angaben.konfiguration.is_absolute()) {
        basis = angaben.konfiguration;
    } else if (angaben.heim.is_absolute()) {
        basis = angaben.heim / ".config";
    } else if (angaben.kontoheim.is_absolute()) {
        basis = angaben.kontoheim / ".config";
    }
    return basis / "Fiskaris";
}

fs::path Arbeitsordner() {
    Ordnerangaben angaben{.konfiguration = Umgebungspfad("XDG_CONFIG_HOME"), .heim = Umgebungspfad("HOME")};
    // Asking for the account may go over the network, so only where the environment is silent.
    if (!angaben.konfiguration.is_absolute() && !angaben.heim.is_absolute()) {
        angaben.kontoheim = HeimAusKonto();
        angaben.programm = Programmordner();
    }
    return ArbeitsordnerAus(angaben);
}

void ArbeitsordnerAnlegen(const fs::path& ordner) {
    std::error_code fehler;
    if (!ordner.has_relative_path() || fs::is_directory(ordner, fehler)) return;
    ArbeitsordnerAnlegen(ordner.parent_path());
    // Another start of the program may have made it meanwhile.
    if (::mkdir(ordner.c_str(), S_IRWXU) == 0) return;
    const int fehlernummer = errno;
    if (!fs::is_directory(ordner, fehler)) Gescheitert(ordner, fehlernummer);
}

void LoescheDatei(const fs::path& ordner, std::string_view name) {
    ::unlink((ordner / name).c_str());
}

}  // namespace zinfolio
