#include "stapel/auftraege/satztext.h"

#include "kern/grund/windows1252.h"

namespace zinfolio {

void SatztextSchreiben(std::string_view windows1252, JsonSchreiber& ergebnis) {
    ergebnis.Wert(std::string_view(NachUtf8(windows1252)));
}

}  // namespace zinfolio
