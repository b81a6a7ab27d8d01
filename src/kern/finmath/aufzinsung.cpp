#include "kern/finmath/aufzinsung.h"

namespace zinfolio {

Jahrestagsweg JahrestagswegFinden(Datum beginn, Datum ende, Datum zeile) {
    const auto imErstenJahr = Datum::Aus(beginn.Jahr(), zeile.Monat(), zeile.Tag());
    if (!imErstenJahr) throw Datumsfehler("Den 29.02. gibt es im Jahr der ersten Zahlung nicht.");
    int vorlauf = Tage30(*imErstenJahr, beginn) % 360;
    if (vorlauf < 0) vorlauf += 360;
    const int tage = Tage30(zeile, ende);
    const int nachJahrestag = tage - vorlauf;
    if (nachJahrestag <= 0) return {false, 0, InJahresteile(tage)};
    return {true, vorlauf / 360.0, InJahresteile(nachJahrestag)};
}

}  // namespace zinfolio
