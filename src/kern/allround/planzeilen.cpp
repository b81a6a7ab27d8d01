#include "kern/allround/planzeilen.h"

#include <cmath>
#include <limits>

#include "kern/dateien/satzdatei.h"
#include "kern/grund/rechenfehler.h"
#include "kern/grund/windows1252.h"
#include "kern/staffel/zinstermine.h"

namespace zinfolio {
namespace {

/// By the number of the settlement dates; the first one has no rhythm.
constexpr std::array<Zinsverrechnungsart, 5> rhythmen{
    Zinsverrechnungsart::monatsende, Zinsverrechnungsart::monatsende, Zinsverrechnungsart::quartalsende,
    Zinsverrechnungsart::halbjahresende, Zinsverrechnungsart::jahresende};

Zinsverrechnungsart Rhythmus(Plantermine termine) {
    return rhythmen.at(static_cast<std::size_t>(termine));
}

class Planschreiber {
  public:
    explicit Planschreiber(std::vector<Staffelsatz>& ziel) : tableau(ziel) {}

    void Schreibe(std::int16_t art, std::string_view text, const Festtext<10>& datum, double betrag = 0) {
        if (tableau.size() == HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zeilen des Plans"));
        Staffelsatz& satz = tableau.emplace_back();
        satz.Zahlungsart = art;
        satz.Zahlungstext = Festtext<25>::AusWindows1252(NachWindows1252(text));
        satz.Satzdatum = datum;
        satz.Zahlbetrag = betrag;
    }

    void Zahlung(const Reihensatz& zeile) {
        Schreibe(zahlungsart::zahlung, "Zahlung", zeile.Reihendatum, zeile.Reihenbetrag);
    }

    void Zinsen(const Festtext<10>& datum) { Schreibe(zahlungsart::zinstermin, "Zinsen", datum); }
    void Zinsen(const Datum& datum) { Zinsen(Festtext<10>::AusWindows1252(datum.Text())); }

  private:
    std::vector<Staffelsatz>& tableau;
};

void AnZahlungsterminen(std::span<const Reihensatz> reihe, Planschreiber& plan) {
    for (std::size_t k = 0; k < reihe.size(); ++k) {
        plan.Zahlung(reihe[k]);
        plan.Zinsen(reihe[k].Reihendatum);
        Datum letzter = DatumVon(reihe[k]);
        for (std::size_t q = k + 1; q < reihe.size(); ++q) {
            const Datum jahrestag = PlusJahre(letzter, 1);
            if (DatumVon(reihe[q]) <= jahrestag) break;
            plan.Zinsen(jahrestag);
            letzter = jahrestag;
        }
    }
}

void AnMonatsenden(std::span<const Reihensatz> reihe, Zinsverrechnungsart rhythmus, Datum termin,
                   Planschreiber& plan) {
    for (const Reihensatz& zeile : reihe) {
        for (; DatumVon(zeile) > termin; termin = NaechsterZinstermin(termin, rhythmus))
            plan.Zinsen(termin);
        plan.Zahlung(zeile);
    }
    plan.Zinsen(reihe.back().Reihendatum);
}

}  // namespace

std::optional<Datum> ErsterPlantermin(const Datum& ersteZahlung, Plantermine termine) {
    if (termine == Plantermine::zahlungstermine) return std::nullopt;
    const Zinsverrechnungsart rhythmus = Rhythmus(termine);
    Datum termin = ErsterZinstermin(ersteZahlung.Jahr(), rhythmus);
    while (ersteZahlung >= termin)
        termin = NaechsterZinstermin(termin, rhythmus);
    return termin;
}

void PlansatzSetzen(Staffelsatz& kondition, double zinssatz) {
    if (!(std::fabs(zinssatz) <= static_cast<double>(std::numeric_limits<float>::max()))) {
        throw Rechenfehler("Ein Nominalzins passt in keine Zahl von 4 Byte.");
    }
    const auto satz = static_cast<float>(zinssatz);
    kondition.kondition.Gutzins1 = satz;
    kondition.kondition.Gutzins2 = satz;
    kondition.kondition.Kreditzins1 = satz;
    kondition.kondition.Kreditzins2 = satz;
}

void PlanzeilenErzeugen(std::span<const Reihensatz> reihe, Plantermine termine,
                        const std::optional<Datum>& ersterTermin, double zinssatz,
                        std::vector<Staffelsatz>& tableau) {
    tableau.clear();
    tableau.reserve(2 * reihe.size() + 1);
    Planschreiber plan(tableau);
    plan.Schreibe(zahlungsart::kondition, "Konditionenänderung", reihe.front().Reihendatum);
    PlansatzSetzen(tableau.front(), zinssatz);
    if (ersterTermin) {
        AnMonatsenden(reihe, Rhythmus(termine), *ersterTermin, plan);
    } else {
        AnZahlungsterminen(reihe, plan);
    }
}

}  // namespace zinfolio
