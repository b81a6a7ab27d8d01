#include "kern/sparen/dauerlauf.h"

#include <algorithm>
#include <cmath>

#include "kern/dateien/satzdatei.h"
#include "kern/dates/periodenzinsen.h"
#include "kern/dates/zahl.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {

Dauerlauf::Dauerlauf(const Sparform& form, const Sparplan& plan)
    : methode(static_cast<Verzinsungsmethode>(plan.Combo2)),
      rhythmus(static_cast<Zinsverrechnungsart>(plan.Combo4)),
      zins(Satzzins(Zahl(plan.Zins))),
      folge(form, plan, Startrate(plan, {})),
      tage(plan),
      anfang(Datum::Lesen(plan.Anfdatum)),
      ersterKandidat(ErsterZinstermin(anfang.Jahr(), rhythmus)),
      ersterTermin(ersterKandidat),
      naechsteRate(tage.Rohes()) {
    while (ersterTermin < anfang)
        ersterTermin = NaechsterZinstermin(ersterTermin, rhythmus);
    naechsterTermin = NaechsterZinstermin(ersterTermin, rhythmus);
    termine.push_back(ersterTermin);
    zahlungen = {{anfang, Startkapital(plan, {})}, {Datum::Lesen(plan.ratdatum1), Startrate(plan, {})}};
    staende.push_back({anfang, Art::kondition, 0, 0});
}

void Dauerlauf::ZahlungenBis(Datum ende) {
    while (naechsteRate <= ende) {
        if (zahlungen.size() >= HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zahlungen"));
        const Datum tag = tage.Weiter(naechsteRate);
        zahlungen.push_back({tag, folge.Naechste()});
        naechsteRate = tage.Rohes();
    }
}

void Dauerlauf::TermineBis(Datum ende) {
    while (naechsterTermin < ende) {
        termine.push_back(naechsterTermin);
        naechsterTermin = NaechsterZinstermin(naechsterTermin, rhythmus);
    }
}

double Dauerlauf::Periodenzins(const Stand& stand, Datum bis) const {
    return PeriodenZinsen(stand.tag, bis, methode, {zins, stand.kontostand}, {zins, 0}).zins;
}

void Dauerlauf::Anfuegen(Datum tag, Art art, double betrag) {
    const Stand& vorher = staende.back();
    const double kumulzins = vorher.angefallen + Periodenzins(vorher, tag);
    const Stand stand = art == Art::zahlung ? Stand{tag, art, vorher.kontostand + betrag, kumulzins}
                                            : Stand{tag, art, vorher.kontostand + kumulzins, 0};
    if (!std::isfinite(stand.kontostand) || !std::isfinite(kumulzins))
        throw Rechenfehler("Überlauf im Konto.");
    staende.push_back(stand);
}

/// A closing date between the first candidate of the year and the first settlement date is never reached: the
/// settlement date stands before it and ends the account.
bool Dauerlauf::HatSchlusszeile(Datum ende) const {
    return ende < ersterKandidat || ende >= ersterTermin;
}

double Dauerlauf::Endstand(Datum ende) {
    if (ende < anfang) return 0;
    ZahlungenBis(ende);
    TermineBis(ende);
    while (true) {
        const bool rate = gebuchteZahlungen < zahlungen.size() && zahlungen[gebuchteZahlungen].tag <= ende;
        const bool termin = gebuchteTermine < termine.size() && termine[gebuchteTermine] <= ende;
        if (!rate && !termin) break;
        if (rate && !(termin && termine[gebuchteTermine] < zahlungen[gebuchteZahlungen].tag)) {
            Anfuegen(zahlungen[gebuchteZahlungen].tag, Art::zahlung, zahlungen[gebuchteZahlungen].betrag);
            ++gebuchteZahlungen;
        } else {
            Anfuegen(termine[gebuchteTermine], Art::zinstermin, 0);
            ++gebuchteTermine;
        }
    }
    const auto hinter = std::ranges::upper_bound(staende, ende, {}, &Stand::tag);
    const Stand& letzter = *(hinter - 1);
    // A settlement on the closing date stands in for the closing row, which adds nothing to it.
    const bool geschlossen = letzter.art == Art::zinstermin && letzter.tag == ende;
    const auto zeilen = static_cast<std::size_t>(hinter - staende.begin()) + (geschlossen ? 0 : 1);
    if (zeilen > HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zeilen der Staffel"));
    if (geschlossen || !HatSchlusszeile(ende)) return letzter.kontostand;
    const double kontostand = letzter.kontostand + (letzter.angefallen + Periodenzins(letzter, ende));
    if (!std::isfinite(kontostand)) throw Rechenfehler("Überlauf im Konto.");
    return kontostand;
}

}  // namespace zinfolio
