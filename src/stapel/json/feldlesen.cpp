#include "stapel/json/feldlesen.h"

#include <cmath>
#include <limits>

namespace zinfolio {

Datum DatumVerlangen(const JsonWert& wert, std::string_view text) {
    const auto datum = Datum::Versuche(text);
    if (datum) return *datum;
    constexpr std::size_t zeigbar = 20;
    wert.Ungueltig("muss ein Datum der Form tt.mm.jjjj sein, \"" + Gekuerzt(text, zeigbar) + "\" ist keines");
}

void FeldLesen(JsonWert& wert, double& ziel) {
    ziel = wert.Zahl();
}

void FeldLesen(JsonWert& wert, float& ziel) {
    ziel = static_cast<float>(wert.Zahl());
    if (!std::isfinite(ziel)) wert.Ungueltig("liegt außerhalb des Bereichs einer 4-Byte-Gleitkommazahl");
}

void FeldLesen(JsonWert& wert, std::int16_t& ziel) {
    using Grenzen = std::numeric_limits<std::int16_t>;
    ziel = static_cast<std::int16_t>(wert.Ganzzahl(Grenzen::min(), Grenzen::max()));
}

void FeldLesen(JsonWert& wert, bool& ziel) {
    ziel = wert.Ganzzahl(0, 1) == 1;
}

void FeldLesen(JsonWert& wert, std::string& ziel) {
    ziel = wert.Text();
}

void FeldLesen(JsonWert& wert, std::string_view& ziel) {
    ziel = wert.Text();
}

void FeldLesen(JsonWert& wert, Datum& ziel) {
    ziel = DatumVerlangen(wert, wert.Text());
}

void FeldLesen(JsonWert& wert, Datumstext& ziel) {
    ziel.text = wert.Text();
    DatumVerlangen(wert, ziel.text);
}

}  // namespace zinfolio
