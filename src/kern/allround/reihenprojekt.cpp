#include "kern/allround/reihenprojekt.h"

#include <array>
#include <span>
#include <utility>

#include "kern/dateien/ganzedatei.h"
#include "kern/grund/windows1252.h"
#include "kern/staffel/staffeldatei.h"

namespace zinfolio {
namespace {

constexpr std::string_view arbeitsdatei = "ZahlungenT";
constexpr std::array<Beidatei, 2> beidateien{{{arbeitsdatei, ""}, {"", "Rendite"}}};
constexpr Gruppenaufbau aufbau{".RRR", beidateien};

}  // namespace

const Gruppenaufbau& Reihenprojektaufbau() {
    return aufbau;
}

Reihenprojekt ReihenprojektLesen(const std::filesystem::path& projektdatei) {
    const Dateigruppe gruppe(projektdatei, aufbau);
    std::vector<std::string> inhalte = gruppe.Lesen();
    Reihenprojekt projekt{.zahlungen = {},
                          .zahlungsdatei = std::move(inhalte[1]),
                          .notizen = std::move(inhalte[2]),
                          .befunde = {}};
    projekt.zahlungen = StaffelsaetzeAus(std::as_bytes(std::span(projekt.zahlungsdatei)),
                                         zahlungsart::zahlung, gruppe.Datei(1), projekt.befunde);
    return projekt;
}

void ReihenprojektSpeichern(const std::filesystem::path& arbeitsordner,
                            const std::filesystem::path& projektdatei, std::string_view vorherigerName,
                            std::string_view notizen) {
    const std::string zahlungen = GanzeDateiLesen(arbeitsordner / arbeitsdatei, hoechsteDateilaenge);
    const std::string marke = NachWindows1252(vorherigerName) + "\r\n";
    const std::array<std::string_view, 3> inhalte{marke, zahlungen, notizen};
    Dateigruppe(projektdatei, aufbau).Speichern(inhalte, Sicherung::Dauerhaft);
}

void ReihenprojektUebernehmen(const std::filesystem::path& arbeitsordner, const Reihenprojekt& projekt) {
    AtomarSchreiben(arbeitsordner / arbeitsdatei, projekt.zahlungsdatei, Sicherung::Fluechtig);
}

}  // namespace zinfolio
