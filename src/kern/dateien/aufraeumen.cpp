#include "kern/dateien/aufraeumen.h"

#include <algorithm>
#include <chrono>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "kern/dateien/dateigruppe.h"
#include "kern/dateien/dateischritte.h"
#include "kern/dateien/sicherungsjournal.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto geduld = 5s;
constexpr auto pause = 5ms;

/// Names in the folder that start like those of our temporary files. Throws `Dateifehler`.
std::vector<std::string> VorlaeufigeNamen(const fs::path& ordner) {
    std::vector<std::string> namen;
    std::error_code fehler;
    for (fs::directory_iterator eintrag(ordner, fehler); !fehler && eintrag != fs::directory_iterator();
         eintrag.increment(fehler)) {
        std::string name = eintrag->path().filename().string();
        if (name.starts_with(vorlaeufigerAnfang)) namen.push_back(std::move(name));
    }
    if (fehler) throw Systemfehler(ordner, "gelesen", fehler.value());
    return namen;
}

/// The beginnings of the names that a journal still needs.
std::vector<std::string> JournaleAbschliessen(const fs::path& ordner, const std::vector<std::string>& namen,
                                              const fs::path& eigenes) {
    std::vector<std::string> gebraucht;
    for (const std::string& name : namen) {
        if (!name.ends_with(".journal")) continue;
        std::optional<Journal> journal;
        try {
            journal = JournalLesen(ordner / name);
            if (journal) Zuruecksetzen(*journal);
        } catch (const Dateifehler&) {
            if (name == eigenes.filename()) throw;
            if (!journal) return {std::string(vorlaeufigerAnfang)};
            gebraucht.push_back(journal->kennung + '-');
        }
    }
    return gebraucht;
}

}  // namespace

Sperre OrdnerHalten(const fs::path& datei) {
    const fs::path ordner = datei.parent_path();
    Sperre sperre(ordner.empty() ? fs::path(".") : ordner);
    const auto ende = std::chrono::steady_clock::now() + geduld;
    while (sperre.Stand() == Sperre::Zustand::besetzt && std::chrono::steady_clock::now() < ende) {
        std::this_thread::sleep_for(pause);
        sperre.Nochmals();
    }
    if (sperre.Stand() == Sperre::Zustand::gescheitert) throw Schreibfehler(datei, sperre.Fehlernummer());
    if (sperre.Stand() == Sperre::Zustand::besetzt)
        throw Dateifehler({datei}, "Ein anderes Programm sichert gerade in diesem Ordner.");
    return sperre;
}

void ResteBeseitigen(const fs::path& ordner, const fs::path& eigenesJournal) {
    const std::vector<std::string> namen = VorlaeufigeNamen(ordner.empty() ? fs::path(".") : ordner);
    const std::vector<std::string> gebraucht = JournaleAbschliessen(ordner, namen, eigenesJournal);
    for (const std::string& name : namen) {
        const bool halten = std::ranges::any_of(
            gebraucht, [&](const std::string& anfang) { return name.starts_with(anfang); });
        if (!halten && IstVerwaist(name)) ::unlink((ordner / name).c_str());
    }
}

void OrdnerAufraeumen(const fs::path& ordner) noexcept {
    try {
        const Sperre sperre(ordner);
        if (!sperre.Gehalten()) return;
        ResteBeseitigen(ordner, {});
    } catch (const std::exception&) {
        // What cannot be read cannot be put in order; nothing depends on it.
    }
}

}  // namespace zinfolio
