#pragma once
// The six classic factors of financial mathematics.

#include <array>
#include <cstddef>
#include <string_view>

#include "kern/tabellen/rentenrhythmus.h"

namespace zinfolio {

/// List index of the factor.
enum class Finanzfaktor { AuF, AbF, EWF, DSF, KWF, RVF };

/// A factor as its list shows it, and what it does.
struct Finanzfaktortext {
    std::string_view eintrag;
    std::string_view erklaerung;
};

inline constexpr std::array<Finanzfaktortext, 6> finanzfaktoren{{
    {"AuF Aufzinsungsfaktor (Kapitalendwert)",
     "Zinst einen fälligen Geldbetrag mit Zins und Zinseszins auf einen nach n Perioden fälligen Geldbetrag "
     "auf. Gibt an, wie viel eine Einmalzahlung 'jetzt' nach n Perioden wert ist."},
    {"AbF Abzinsungsfaktor (Kapitalbarwert)",
     "Zinst einen nach n Perioden fälligen Geldbetrag K(n) unter Berücksichtigung von Zins und Zinseszins "
     "auf "
     "einen jetzt fälligen Geldbetrag K(0) ab."},
    {"EWF Rentenendwertfaktor (Aufzinsungssummenfaktor)",
     "Zinst alle Zahlungen einer Zahlungsreihe unter Berücksichtigung von Zins und Zinseszins auf und "
     "addiert "
     "gleichzeitig die Endwerte (verwandelt die Zahlungsreihe in 'Einmalzahlung nach n Perioden'."},
    {"DSF Diskontierungssummenfaktor (Rentenbarwertfaktor)",
     "Zinst alle Zahlungen einer Zahlungsreihe unter Berücksichtigung von Zins und Zinseszins ab und addiert "
     "gleichzeitig die einzelnen Barwerte (verwandelt die Zahlungsreihe in 'Einmalzahlung jetzt'."},
    // The quotation mark at the end belongs to the text.
    {"KWF Kapitalwiedergewinnungsfaktor (Annuitätenfaktor)",
     "Verteilt einen jetzt fälligen Geldbetrag K(0) in gleich hohe Zahlungsbeträge einer Zahlungsreihe über "
     "n "
     "Jahre unter Berücksichtigung von Zins und Zinseszins (verwandelt die Einmalzahlung 'jetzt' in eine "
     "Zahlungsreihe)\""},
    {"RVF Restwertverteilungsfaktor",
     "Verteilt eine nach n Perioden fällige Einmalzahlung K(n) unter Berücksichtigung von Zins und "
     "Zinseszins "
     "in eine Zahlungsreihe mit jeweils gleich hohen Geldbeträgen (verwandelt Einmalzahlung nach n Perioden "
     "in Zahlungsreihe)"},
}};

[[nodiscard]] constexpr const Finanzfaktortext& Faktortext(Finanzfaktor faktor) {
    return finanzfaktoren.at(static_cast<std::size_t>(faktor));
}

/// A factor with the rhythm of its payments, which AuF and AbF take no notice of.
struct Faktorwahl {
    Finanzfaktor faktor = Finanzfaktor::AuF;
    Rentenrhythmus rhythmus = Rentenrhythmus::monatlich;
    Rentenfaelligkeit faelligkeit = Rentenfaelligkeit::nachschuessig;

    friend bool operator==(const Faktorwahl&, const Faktorwahl&) = default;
};

/// F = (1 + rate / 100) ^ years. Throws `Rechenfehler` where that is no finite number.
[[nodiscard]] double Aufzinsungsfaktor(double prozent, double jahre);

/// The factor at a rate in percent per year over so many years. m payments a year are worth their yearly sum
/// at simple interest within the year, P = q + m / i. A division by zero and any step beyond the range of
/// 8-byte floats is a `Rechenfehler`.
[[nodiscard]] double Faktorwert(const Faktorwahl& wahl, double prozent, double jahre);

}  // namespace zinfolio
