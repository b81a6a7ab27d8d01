#include "kern/allround/reihenprojekt.h"

#include <array>
#include <span>
#include <utility>

#include "kern/staffel/staffeldatei.h"

namespace zinfolio {
namespace {

constexpr std::array<Beidatei, 2> beidateien{{{"ZahlungenT", ""}, {"", "Rendite"}}};
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

}  // namespace zinfolio
