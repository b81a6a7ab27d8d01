#include "stapel/auftraege/ablehnungsfelder.h"

namespace zinfolio {
namespace {

void OderNull(JsonSchreiber& schreiber, std::string_view name, std::string_view text) {
    schreiber.Name(name);
    text.empty() ? schreiber.Null() : schreiber.Wert(text);
}

}  // namespace

void AblehnungsfelderSchreiben(const Ablehnung& ablehnung, JsonSchreiber& schreiber) {
    schreiber.Feld("Meldung", ablehnung.Meldung);
    OderNull(schreiber, "Feld", ablehnung.Feld);
    OderNull(schreiber, "Register", ablehnung.Register);
}

}  // namespace zinfolio
