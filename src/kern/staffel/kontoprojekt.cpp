#include "kern/staffel/kontoprojekt.h"

#include <algorithm>
#include <array>
#include <utility>

#include "kern/dateien/dateifehler.h"
#include "kern/dateien/ganzedatei.h"
#include "kern/staffel/staffeldatei.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

// With a small z in the conditions' name, unlike the working file's (wanted).
constexpr std::array<Beidatei, 3> beidateinamen{
    Beidatei{"Zinsstaffel1", ""},
    Beidatei{"Zinsstaffelzins", ""},
    Beidatei{"Zinsverrechnung", ""},
};
constexpr Gruppenaufbau aufbau{".ZiS", beidateinamen};

/// The working files in the order of the side files.
constexpr std::array<std::string_view, 3> arbeitsdateien{"Zinsstaffel1", "ZinsstaffelZins",
                                                         "Zinsverrechnung"};
constexpr std::array<std::string_view, 2> weitereArbeitsdateien{"Zinsverrechnungstermine", "Lösungsdatei"};

/// A project in the working folder itself could take the place of what it is saved from.
void ArbeitsdateiVerweigern(const fs::path& arbeitsordner, const fs::path& datei) {
    const std::string name = datei.filename().string();
    if (std::ranges::find(arbeitsdateien, name) == arbeitsdateien.end() &&
        std::ranges::find(weitereArbeitsdateien, name) == weitereArbeitsdateien.end())
        return;
    std::error_code fehler;
    const bool imArbeitsordner = fs::equivalent(fs::absolute(datei).parent_path(), arbeitsordner, fehler);
    if (fehler || !imArbeitsordner) return;
    throw Dateifehler({datei}, "So heißt hier schon eine Arbeitsdatei des Programms.");
}

Kontoeinstellungen Einstellungen(const Kontoeinstellungswerte& werte) {
    const Kontoeinstellungen neue;
    return {werte.Zinsverrechnungsart.value_or(neue.Zinsverrechnungsart),
            werte.Kontodatum.value_or(neue.Kontodatum),
            werte.Verzinsungsmethode.value_or(neue.Verzinsungsmethode)};
}

}  // namespace

const Gruppenaufbau& Kontoprojektaufbau() {
    return aufbau;
}

Projektpfade::Projektpfade(const fs::path& projektdatei) : projekt(projektdatei) {
    const Dateigruppe gruppe(projektdatei, aufbau);
    zahlungen = gruppe.Datei(1);
    konditionen = gruppe.Datei(2);
    einstellungen = gruppe.Datei(3);
}

void KontoprojektSpeichern(const fs::path& arbeitsordner, const fs::path& projektdatei,
                           std::string_view notizen) {
    const Dateigruppe gruppe(projektdatei, aufbau);
    for (std::size_t i = 0; i < gruppe.Anzahl(); ++i)
        ArbeitsdateiVerweigern(arbeitsordner, gruppe.Datei(i));
    std::array<std::string, arbeitsdateien.size()> kopien;
    std::vector<std::string_view> inhalte{notizen};
    for (std::size_t i = 0; i < kopien.size(); ++i) {
        kopien[i] = GanzeDateiLesen(arbeitsordner / arbeitsdateien[i], hoechsteDateilaenge);
        inhalte.push_back(kopien[i]);
    }
    gruppe.Speichern(inhalte, Sicherung::Dauerhaft);
}

Kontoprojekt KontoprojektLesen(const fs::path& projektdatei) {
    const Dateigruppe gruppe(projektdatei, aufbau);
    std::vector<std::string> inhalte = gruppe.Lesen();
    Kontoprojekt projekt;
    projekt.notizen = std::move(inhalte[0]);
    for (std::size_t i = 0; i < projekt.beidateien.size(); ++i)
        projekt.beidateien[i] = std::move(inhalte[i + 1]);
    const auto& [zahlungen, konditionen, einstellungen] = projekt.beidateien;
    projekt.konto.zahlungen =
        StaffelsaetzeAus(AlsBytes(zahlungen), zahlungsart::zahlung, gruppe.Datei(1), projekt.befunde);
    projekt.konto.konditionen =
        StaffelsaetzeAus(AlsBytes(konditionen), zahlungsart::kondition, gruppe.Datei(2), projekt.befunde);
    projekt.konto.einstellungen =
        Einstellungen(KontoeinstellungenAus(AlsBytes(einstellungen), gruppe.Datei(3), projekt.befunde));
    return projekt;
}

void KontoprojektUebernehmen(const fs::path& arbeitsordner, const Kontoprojekt& projekt) {
    std::vector<Dateigruppe::Teil> teile;
    for (const std::string_view name : arbeitsdateien)
        teile.push_back({arbeitsordner / name});
    const std::vector<std::string_view> inhalte(projekt.beidateien.begin(), projekt.beidateien.end());
    Dateigruppe(std::move(teile)).Speichern(inhalte, Sicherung::Fluechtig);
}

}  // namespace zinfolio
