#include "stapel/feldlesen.h"

#include <cmath>
#include <limits>

namespace zinfolio {
namespace {

/// The index of one of `anzahl` list entries.
template <typename Liste>
Liste Listenindex(JsonWert& wert, std::size_t anzahl) {
    return static_cast<Liste>(wert.Ganzzahl(0, static_cast<std::int64_t>(anzahl) - 1));
}

}  // namespace

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

void FeldLesen(JsonWert& wert, Verzinsungsmethode& ziel) {
    ziel = Listenindex<Verzinsungsmethode>(wert, verzinsungsmethoden.size());
}

void FeldLesen(JsonWert& wert, Zinsverrechnungsart& ziel) {
    ziel = Listenindex<Zinsverrechnungsart>(wert, zinsverrechnungsarten.size());
}

void FeldLesen(JsonWert& wert, Abstandseinheit& ziel) {
    ziel = Listenindex<Abstandseinheit>(wert, abstandseinheiten.size());
}

void FeldLesen(JsonWert& wert, Effektivmethode& ziel) {
    ziel = static_cast<Effektivmethode>(wert.Ganzzahl(1, static_cast<std::int64_t>(effektivmethoden.size())));
}

void FeldLesen(JsonWert& wert, Deltaeinheit& ziel) {
    const std::string_view text = wert.Text();
    if (text != "%" && text != "€") wert.Ungueltig("muss \"%\" oder \"€\" sein");
    ziel = text == "%" ? Deltaeinheit::prozent : Deltaeinheit::betrag;
}

}  // namespace zinfolio
