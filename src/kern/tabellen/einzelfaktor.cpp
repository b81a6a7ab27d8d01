#include "kern/tabellen/einzelfaktor.h"

#include <array>
#include <cmath>
#include <string_view>

#include "kern/dates/zahlformat.h"
#include "kern/grund/rechenfehler.h"
#include "kern/tabellen/feldwert.h"

namespace zinfolio {
namespace {

constexpr Zahlmuster ergebnismuster = Zahlmuster::Lesen("###,#0.00000000");

/// By factor. Of the placeholders, B is the amount, Z the rate, N the years, E the result, T and W the end of
/// the period and the rhythm of the payments.
constexpr std::array<std::string_view, 6> saetze{
    "Ein Betrag von {B} € , der heute zu einem Zinssatz von {Z} % über {N} Jahre angelegt wird, ergibt einen "
    "Vermögensendwert von {E} € nach {N} Jahren",
    "Ein Betrag von {B} € , der in {N} Jahren fällig wird, hat bei einem Zinssatz von {Z} % einen Wert am "
    "heutigen Tage von {E} €",
    "Wenn von heute an über einen Zeitraum von {N} Jahren jeweils ein Betrag von {B} € {T} {W} zu einem "
    "Zinssatz von {Z} % angelegt wird, so ergibt das nach {N} Jahren einen Vermögensendwert von {E} € incl. "
    "Zinsen und Zinseszinsen.",
    "Wenn von heute an über einen Zeitraum von {N} Jahren jeweils ein Betrag von {B} € {T} {W}  ausbezahlt "
    "wird, so hat dies einen heutigen Gegenwert (=Barwert) von {E} €. D.h.: Dieser Einmalbetrag per heute "
    "ist "
    "genauso viel wert wie die ganzen Zahlungen, wobei angenommen wird, das der Einmalbetrag mit jährlich "
    "{Z} "
    "% verzinst werden könnte.",
    "Ein heute vorhandener Geldbetrag von {B} € ist bei einem Zinssatz von {Z} % genauso viel wert, wie ein "
    "jeweiliger Betrag von {E} € , der {T} {W} über einen Zeitraum von {N} Jahren gezahlt wird.",
    "Ein Betrag von {B} €, der in {N} Jahren fällig wird, ist genauso viel wert, wie ein Betrag von {E} €, "
    "der "
    "jeweils {T} {W} über einen Zeitraum von {N} Jahren gezahlt und mit {Z} % verzinst wird.",
};

struct Zahlenwerte {
    double zins = 0;
    double jahre = 0;
    double betrag = 0;
};

std::optional<Ablehnung> WerteLesen(const Einzelfaktoreingabe& eingabe, Zahlenwerte& werte) {
    const std::array pflichtfelder{
        Pflichtzahl{eingabe.Zins2, werte.zins, "Zins2", "Geben Sie bitte den Zinssatz ein (grösser als 0)"},
        Pflichtzahl{eingabe.Jahre2, werte.jahre, "Jahre2", "Geben Sie bitte die Anzahl der Jahre ein."},
        Pflichtzahl{eingabe.Betrag2, werte.betrag, "Betrag2", "Geben Sie bitte den Betrag ein."},
    };
    return PflichtzahlenLesen(pflichtfelder);
}

double Anwenden(Faktorwahl wahl, const Zahlenwerte& werte) {
    const bool teilt = wahl.faktor == Finanzfaktor::AbF;
    if (teilt) wahl.faktor = Finanzfaktor::AuF;
    const double faktor = Faktorwert(wahl, werte.zins, werte.jahre);
    return Endlich(teilt ? werte.betrag / faktor : faktor * werte.betrag);
}

std::string_view Platzhalter(char zeichen, const Einzelfaktoreingabe& eingabe, std::string_view ergebnis) {
    switch (zeichen) {
        case 'B':
            return eingabe.Betrag2;
        case 'Z':
            return eingabe.Zins2;
        case 'N':
            return eingabe.Jahre2;
        case 'T':
            return rentenfaelligkeiten.at(static_cast<std::size_t>(eingabe.wahl.faelligkeit));
        case 'W':
            return rentenrhythmen.at(static_cast<std::size_t>(eingabe.wahl.rhythmus));
        default:
            return ergebnis;
    }
}

std::string Satz(const Einzelfaktoreingabe& eingabe, std::string_view ergebnis) {
    std::string_view vorlage = saetze.at(static_cast<std::size_t>(eingabe.wahl.faktor));
    std::string satz;
    for (auto klammer = vorlage.find('{'); klammer != std::string_view::npos; klammer = vorlage.find('{')) {
        satz.append(vorlage.substr(0, klammer));
        satz.append(Platzhalter(vorlage[klammer + 1], eingabe, ergebnis));
        vorlage.remove_prefix(klammer + 3);
    }
    return satz.append(vorlage);
}

}  // namespace

std::optional<Ablehnung> EinzelfaktorRechnen(const Einzelfaktoreingabe& eingabe, Einzelfaktor& ergebnis) {
    Zahlenwerte werte;
    if (auto ablehnung = WerteLesen(eingabe, werte)) return ablehnung;
    const double wert = Anwenden(eingabe.wahl, werte);
    ergebnis = {Format(wert, ergebnismuster), Satz(eingabe, Format(wert, betragsmuster))};
    return std::nullopt;
}

}  // namespace zinfolio
