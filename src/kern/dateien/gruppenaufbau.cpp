// How the files of a project are named, and which of them would be those of another.

#include <algorithm>
#include <cctype>
#include <system_error>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/dateigruppe.h"
#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t endungslaenge = 4;

std::string Stamm(const fs::path& hauptdatei, std::string_view endung) {
    const std::string name = hauptdatei.filename().string();
    const std::string_view stamm = OhneLetzteZeichen(name, endungslaenge);
    if (!stamm.empty()) return std::string(stamm);
    throw Dateifehler({hauptdatei},
                      "Der Name ist zu kurz: vor der Endung \"" + std::string(endung) + "\" steht nichts.");
}

std::vector<Dateigruppe::Teil> Teile(const fs::path& hauptdatei, const Gruppenaufbau& aufbau) {
    const std::string stamm = Stamm(hauptdatei, aufbau.endung);
    std::vector<Dateigruppe::Teil> teile{{hauptdatei}};
    for (const Beidatei& beidatei : aufbau.beidateien) {
        const std::string name = std::string(beidatei.vor) + stamm + std::string(beidatei.nach);
        teile.push_back({hauptdatei.parent_path() / name});
    }
    return teile;
}

bool GleichBisAufGrossschreibung(std::string_view a, std::string_view b) {
    const auto klein = [](char zeichen) { return std::tolower(static_cast<unsigned char>(zeichen)); };
    return std::ranges::equal(a, b, {}, klein, klein);
}

bool Vorhanden(const fs::path& datei) {
    std::error_code egal;
    return fs::exists(datei, egal);
}

/// Files of the folder with this stem and the ending in whatever case, less the one itself.
std::vector<fs::path> Nachbarn(const fs::path& hauptdatei, const std::string& stamm,
                               std::string_view endung) {
    std::vector<fs::path> nachbarn;
    std::error_code fehler;
    const fs::path ordner = hauptdatei.parent_path();
    for (fs::directory_iterator eintrag(ordner.empty() ? fs::path(".") : ordner, fehler);
         !fehler && eintrag != fs::directory_iterator(); eintrag.increment(fehler)) {
        const std::string name = eintrag->path().filename().string();
        if (!name.starts_with(stamm) || name == hauptdatei.filename()) continue;
        std::error_code egal;
        // On a disk that knows no case the name means the same file.
        if (GleichBisAufGrossschreibung(std::string_view(name).substr(stamm.size()), endung) &&
            !fs::equivalent(eintrag->path(), hauptdatei, egal))
            nachbarn.push_back(ordner / name);
    }
    std::ranges::sort(nachbarn);
    return nachbarn;
}

std::string Aufzaehlung(const std::vector<fs::path>& dateien) {
    std::string text;
    for (const fs::path& datei : dateien)
        text += (text.empty() ? "\"" : ", \"") + datei.filename().string() + '"';
    return text;
}

}  // namespace

Dateigruppe::Dateigruppe(const fs::path& hauptdatei, const Gruppenaufbau& aufbau)
    : Dateigruppe(Teile(hauptdatei, aufbau)) {}

Fremdbestand FremdbestandSuchen(const fs::path& hauptdatei, const Gruppenaufbau& aufbau) {
    const Dateigruppe gruppe(hauptdatei, aufbau);
    Fremdbestand fremd;
    fremd.projekte = Nachbarn(hauptdatei, Stamm(hauptdatei, aufbau.endung), aufbau.endung);
    if (!fremd.projekte.empty() || Vorhanden(hauptdatei)) return fremd;
    for (std::size_t i = 1; i < gruppe.Anzahl(); ++i)
        if (Vorhanden(gruppe.Datei(i))) fremd.beidateien.push_back(gruppe.Datei(i));
    return fremd;
}

std::optional<std::string> Ersetzungsfrage(const fs::path& hauptdatei, const Gruppenaufbau& aufbau) {
    const Fremdbestand fremd = FremdbestandSuchen(hauptdatei, aufbau);
    if (fremd.Leer()) return std::nullopt;
    const std::string name = '"' + hauptdatei.filename().string() + '"';
    if (!fremd.projekte.empty()) {
        return name + " teilt seine übrigen Dateien mit " + Aufzaehlung(fremd.projekte) +
               ". Das Speichern ersetzt sie dort. Trotzdem speichern ?";
    }
    return "Zu " + name + " gibt es schon Dateien, die einem anderen Projekt gehören können: " +
           Aufzaehlung(fremd.beidateien) + ". Das Speichern ersetzt sie. Trotzdem speichern ?";
}

}  // namespace zinfolio
