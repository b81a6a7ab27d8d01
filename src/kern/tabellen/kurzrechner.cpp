#include "kern/tabellen/kurzrechner.h"

#include <algorithm>

#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace {

using enum Kurzgroesse;

constexpr Zahlmuster feldmuster = Zahlmuster::Lesen("###,0.00");
constexpr Zahlmuster renditemuster = Zahlmuster::Lesen("###,#0.00");

std::optional<Ablehnung> RenditePruefen(const Ratensparplan& plan) {
    if (plan.J == 0 && plan.T == 0)
        return Ablehnung{"Die Laufzeit in Jahren oder Tagen muss grösser als 0 sein.", "", ""};
    if (plan.K == 0 && plan.R == 0)
        return Ablehnung{"Das Anfangsvermögen oder die Sparrate müssen grösser als 0 sein.", "", ""};
    return std::nullopt;
}

constexpr std::array<Kurzrechner, 4> rechnerliste{{
    {.form = Kurzform::Form4b,
     .name = "Form4b",
     .titel = "Endkapital Ratensparen",
     .datei = "Vendwert",
     .felder = {{{rate, "rate"},
                 {jahre, "Laufzeitjahre"},
                 {tage, "Lauftage"},
                 {zins, "Zins"},
                 {kapital, "Kap"},
                 {endwert, "Vwert", true}}},
     .saetze = {rate, jahre, tage, zins, kapital},
     .pruefen = nullptr,
     .rechnen = RatensparenEndwert},
    {.form = Kurzform::Form5b,
     .name = "Form5b",
     .titel = "Höhe einer Sparrate beim Ratensparen",
     .datei = "rate",
     .felder = {{{endwert, "Vendwert"},
                 {jahre, "Laufjahre"},
                 {tage, "Lauftage"},
                 {zins, "Zins"},
                 {kapital, "kap"},
                 {rate, "rate", true}}},
     .saetze = {endwert, jahre, tage, zins, kapital},
     .pruefen = nullptr,
     .rechnen = RatensparenRate},
    {.form = Kurzform::Form7b,
     .name = "Form7b",
     .titel = "Rendite beim Ratensparen",
     .datei = "Effzins",
     .felder = {{{endwert, "Vendwert"},
                 {jahre, "Laufjahre"},
                 {tage, "Lauftage"},
                 {rate, "rate"},
                 {kapital, "kap"},
                 {zins, "Zins", true}}},
     .saetze = {endwert, jahre, tage, rate, kapital},
     .pruefen = RenditePruefen,
     .rechnen = RatensparenRendite},
    {.form = Kurzform::Form8b,
     .name = "Form8b",
     .titel = "Anspardauer beim Ratensparen",
     .datei = "Laufzeit",
     .felder = {{{endwert, "Vendwert"},
                 {zins, "Zins"},
                 {rate, "rate"},
                 {kapital, "kap"},
                 {jahre, "Laufjahre", true},
                 {tage, "Lauftage", true}}},
     .saetze = {endwert, zins, std::nullopt, rate, kapital},
     .pruefen = nullptr,
     .rechnen = RatensparenLaufzeit},
}};

void EinsetzenInPlan(Ratensparplan& plan, Kurzgroesse groesse, double wert) {
    switch (groesse) {
        case rate:
            plan.R = wert;
            return;
        case jahre:
            plan.J = Ganzzahl16(wert);
            return;
        case tage:
            plan.T = Ganzzahl16(wert);
            return;
        case zins:
            plan.i = wert;
            return;
        case kapital:
            plan.K = wert;
            return;
        case endwert:
            plan.E = wert;
            return;
    }
}

double WertAusPlan(const Ratensparplan& plan, Kurzgroesse groesse) {
    switch (groesse) {
        case rate:
            return plan.R;
        case jahre:
            return plan.J;
        case tage:
            return plan.T;
        case zins:
            return plan.i;
        case kapital:
            return plan.K;
        case endwert:
            break;
    }
    return plan.E;
}

/// A figure that is searched for is not read.
Ratensparplan PlanLesen(const Kurzrechner& rechner, const Kurzeingabe& eingabe) {
    Ratensparplan plan;
    plan.m = eingabe.m;
    plan.Zahlungsmodus = eingabe.Zahlungsmodus;
    for (const Kurzfeld& feld : rechner.felder)
        if (!feld.ergebnis) EinsetzenInPlan(plan, feld.groesse, Zahl(eingabe[feld.groesse]));
    return plan;
}

std::string Anzeige(const Ratensparplan& plan, const Kurzfeld& feld) {
    const double wert = WertAusPlan(plan, feld.groesse);
    if (feld.groesse == zins && feld.ergebnis) return Format(wert, renditemuster) + "%";
    return Format(wert, feldmuster);
}

void NullenEintragen(const Kurzrechner& rechner, Kurzeingabe& eingabe) {
    for (const Kurzfeld& feld : rechner.felder)
        if (!feld.ergebnis && eingabe[feld.groesse].empty()) eingabe[feld.groesse] = "0";
}

std::optional<Ablehnung> Rechnen(const Kurzrechner& rechner, Kurzeingabe& eingabe) {
    Ratensparplan plan = PlanLesen(rechner, eingabe);
    if (rechner.pruefen != nullptr)
        if (auto ablehnung = rechner.pruefen(plan)) return ablehnung;
    rechner.rechnen(plan);
    for (const Kurzfeld& feld : rechner.felder)
        eingabe[feld.groesse] = Anzeige(plan, feld);
    return std::nullopt;
}

}  // namespace

std::string_view Kurzbeschriftung(Kurzgroesse groesse) {
    constexpr std::array<std::string_view, kurzgroessen> texte{
        "Höhe einer Zahlungsrate",    "Laufzeit in Jahren", "und Laufzeit in Tagen ",
        "Verzinsung der Anlage in %", "Anfangskapital",     "Vermögensendwert"};
    return texte[static_cast<std::size_t>(groesse)];
}

const Kurzwahl* KurzwahlSuchen(std::span<const Kurzwahl> liste, std::int16_t wert) {
    const auto wahl =
        std::find_if(liste.begin(), liste.end(), [&](const Kurzwahl& w) { return w.wert == wert; });
    return wahl == liste.end() ? nullptr : &*wahl;
}

std::span<const Kurzrechner> AlleKurzrechner() {
    return rechnerliste;
}

const Kurzrechner& KurzrechnerVon(Kurzform form) {
    return rechnerliste.at(static_cast<std::size_t>(form));
}

std::optional<Ablehnung> KurzRechnen(const Kurzrechner& rechner, Kurzeingabe& eingabe) {
    NullenEintragen(rechner, eingabe);
    try {
        return Rechnen(rechner, eingabe);
    } catch (const Zahlfehler&) {
    } catch (const Rechenfehler&) {
    }
    return Ablehnung{};
}

}  // namespace zinfolio
