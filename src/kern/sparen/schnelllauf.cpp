#include "kern/sparen/schnelllauf.h"

#include <cmath>

#include "kern/dates/periodenzinsen.h"
#include "kern/grund/rechenfehler.h"
#include "kern/sparen/ratenfolge.h"

namespace zinfolio {

Schnelllauf::Schnelllauf(const Sparform& sparform, const Sparplan& sparplan, const Sparlauf& lauf)
    : form(sparform), plan(sparplan) {
    const std::vector<Staffelsatz>& loesung = *lauf.loesung;
    betraege.resize(lauf.zahlungen->size());
    zeilen.reserve(loesung.size());
    const auto methode = static_cast<Verzinsungsmethode>(plan.Combo2);
    if (loesung.empty()) return;
    Datum von = DatumVon(loesung.front());
    for (std::size_t i = 0; i < loesung.size(); ++i) {
        const Datum bis = i + 1 < loesung.size() ? DatumVon(loesung[i + 1]) : von;
        zeilen.push_back(ZeileAus(loesung[i], von, bis, methode));
        von = bis;
    }
}

Schnelllauf::Zeile Schnelllauf::ZeileAus(const Staffelsatz& satz, Datum von, Datum bis,
                                         Verzinsungsmethode methode) {
    const double quotient = static_cast<double>(satz.kondition.Gutzins1 / 100.0F);
    const int tage = Zinstage(von, bis, methode);
    if (methode != Verzinsungsmethode::englisch)
        return {satz.Zahlungsart, quotient, double(tage), double(FesteJahreslaenge(methode)), 0, 1};
    if (von.Jahr() == bis.Jahr())
        return {satz.Zahlungsart, quotient, double(tage), double(Jahreslaenge(von.Jahr())), 0, 1};
    const int vorher = *Datum::Aus(von.Jahr(), 12, 31) - von;
    return {satz.Zahlungsart,      quotient,
            double(vorher),        double(Jahreslaenge(von.Jahr())),
            double(tage - vorher), double(Jahreslaenge(bis.Jahr()))};
}

void Schnelllauf::BetraegeBilden(const Planprobe& probe) {
    betraege[0] = Startkapital(plan, probe);
    betraege[1] = Startrate(plan, probe);
    Ratenfolge folge(form, plan, betraege[1]);
    for (std::size_t i = 2; i < betraege.size(); ++i)
        betraege[i] = folge.Naechste();
}

double Schnelllauf::Durchgehen(std::optional<double> quotient) const {
    double kontostand = 0;
    double kumulzins = 0;
    double satz = 0;
    auto betrag = betraege.begin();
    for (const Zeile& zeile : zeilen) {
        if (zeile.art == zahlungsart::zahlung) {
            kontostand += *betrag++;
        } else if (zeile.art == zahlungsart::kondition) {
            satz = quotient.value_or(zeile.quotient);
        } else {
            kontostand += kumulzins;
            kumulzins = 0;
        }
        const double jahreszins = kontostand * satz;
        kumulzins += RundeKaufmaennisch(
            jahreszins * zeile.tage1 / zeile.jahr1 + jahreszins * zeile.tage2 / zeile.jahr2, 2);
    }
    // What is not finite anywhere is still so at the end: nothing takes it out of the balance again.
    if (!std::isfinite(kontostand) || !std::isfinite(kumulzins)) throw Rechenfehler("Überlauf im Konto.");
    return kontostand;
}

double Schnelllauf::Endstand(const Planprobe& probe) {
    BetraegeBilden(probe);
    if (!probe.zins) return Durchgehen(std::nullopt);
    return Durchgehen(static_cast<double>(Satzzins(*probe.zins) / 100.0F));
}

}  // namespace zinfolio
