#include "kern/sparen/ratenfolge.h"

#include <algorithm>
#include <cmath>

#include "kern/dates/rundung.h"
#include "kern/dates/zahl.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {

double Feldzahl::operator()() {
    if (!wert) wert = Zahl(*text);
    return *wert;
}

Ratenfolge::Ratenfolge(const Sparform& form, const Sparplan& sparplan, double startrate)
    : plan(sparplan),
      dynamik(form.dynamik),
      anzahl(plan.Anzahl),
      delta(plan.Delta),
      delta2(plan.Delta2),
      dynAnz(plan.DynAnz),
      maximum(plan.MaxSparrate),
      minimum(plan.MinSparrate),
      rate(startrate) {}

double Ratenfolge::Naechste() {
    ++ratenzaehler;
    if (plan.Check2 == 1 && anzahl() == ratenzaehler) {
        dynamik == Dynamik::einfach ? AendereEinfach() : AendereMitGrenzen();
        if (!std::isfinite(rate)) throw Rechenfehler("Überlauf in der Höhe der Sparrate.");
    }
    return rate;
}

void Ratenfolge::AendereMitGrenzen() {
    ++stufenzaehler;
    // The count of payments is not taken back: it now runs past, so that no further change occurs.
    if (plan.Check3 == 1 && dynAnz() < stufenzaehler) return;
    rate = rate * (1 + delta() / 100) + delta2();
    if (plan.Check4 == 1 && rate > maximum()) rate = maximum();
    if (plan.Check5 == 1 && rate < minimum()) rate = minimum();
    rate = RundeKaufmaennisch(rate, 2);
    ratenzaehler = 0;
}

void Ratenfolge::AendereEinfach() {
    if (delta() == 0) return;
    rate =
        plan.Command6 == einheitProzent ? RundeKaufmaennisch(rate * (1 + delta() / 100), 2) : rate + delta();
    ratenzaehler = 0;
}

Ratentage::Ratentage(const Sparplan& plan)
    : tag(Datum::Lesen(plan.ratdatum1)),
      rastertag(tag.Tag()),
      monate(Zahlungsmonate(plan)),
      monatsende(plan.Check1 == 1) {}

Datum Ratentage::Rohes() const {
    return PlusMonate(tag, monate);
}

Datum Ratentage::Weiter(Datum rohes) {
    const int laenge = Monatslaenge(rohes.Jahr(), rohes.Monat());
    tag = monatsende ? Monatsletzter(rohes) : *rohes.MitTag(std::min(rastertag, laenge));
    return tag;
}

}  // namespace zinfolio
