#include "stapel/auftraege/listenfelder.h"

namespace zinfolio {
namespace {

/// The index of one of `anzahl` list entries.
template <typename Liste>
Liste Listenindex(JsonWert& wert, std::size_t anzahl) {
    return static_cast<Liste>(wert.Ganzzahl(0, static_cast<std::int64_t>(anzahl) - 1));
}

}  // namespace

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
