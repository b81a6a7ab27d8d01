#include "kern/dates/tage30.h"

namespace zinfolio {
namespace {

constexpr const char* meldungProgrammende =
    "Ein Fehler ist aufgetreten. Prüfen Sie bitte die Einstellung der Systemzeit auf Ihrem PC "
    "(Systemsteuerung/Ländereinstellungen/Datum). Zulässig sind nur die Formate tt.mm.jj oder tt.mm.jjjj  "
    "bzw.  "
    "t.m.jj  und  t.m.jjjj. Achten Sie auch bitte darauf, dass der ´.´ als Trennzeichenvorgabe beim Datum "
    "eingestellt "
    "ist.  Das Programm wird an dieser Stelle beendet.";

}  // namespace

Tage30Fehler::Tage30Fehler() : Datumsfehler(meldungProgrammende) {}

int Tage30(std::string_view von, std::string_view bis) {
    const auto erstes = Datum::Versuche(von);
    const auto zweites = Datum::Versuche(bis);
    if (!erstes || !zweites) throw Tage30Fehler();
    return Tage30(*erstes, *zweites);
}

}  // namespace zinfolio
