#pragma once
// The controls of the family as data: name, kind, and the member of the plan that holds each.

#include <cstdint>
#include <span>
#include <string_view>

#include "kern/dateien/selbstwertaufbau.h"
#include "kern/dates/verzinsungsmethode.h"
#include "kern/finmath/effektivmethode.h"
#include "kern/sparen/sparplan.h"
#include "kern/staffel/zinstermine.h"

namespace zinfolio {

/// What a control takes: signed amounts, unsigned decimals, whole numbers, dates, one entry of a list, a
/// tick, or the caption of a button.
enum class Sparfeldart { betrag, prozent, ganzzahl, datum, liste, haken, einheit };

/// One control. Exactly one of `text` and `zahl` is set.
struct Sparfeld {
    std::string_view name;
    Sparfeldart art;
    std::string Sparplan::*text = nullptr;
    std::int16_t Sparplan::*zahl = nullptr;
    /// The entries of a list.
    std::span<const std::string_view> eintraege;
    /// How a plan file holds it, apart from the number of its record.
    Selbstwertzeile<Sparplan> satz;
};

namespace sparfeld {

template <auto glied>
constexpr Sparfeld Text(std::string_view name, Sparfeldart art) {
    return {name, art, glied, nullptr, {}, Selbstfeld<glied>(0)};
}
template <auto glied>
constexpr Sparfeld Liste(std::string_view name, std::span<const std::string_view> eintraege) {
    return {name,  Sparfeldart::liste, nullptr,
            glied, eintraege,          Selbstfeld<glied>(0, {.eintraege = eintraege.size()})};
}
template <auto glied>
constexpr Sparfeld Haken(std::string_view name) {
    return {name, Sparfeldart::haken, nullptr, glied, {}, Selbstfeld<glied>(0, {.eintraege = 2})};
}

using enum Sparfeldart;

inline constexpr auto AnfVermögen = Text<&Sparplan::AnfVermögen>("AnfVermögen", betrag);
inline constexpr auto Anfdatum = Text<&Sparplan::Anfdatum>("Anfdatum", datum);
inline constexpr auto ratdatum1 = Text<&Sparplan::ratdatum1>("ratdatum1", datum);
inline constexpr auto Betrag = Text<&Sparplan::Betrag>("Betrag", betrag);
inline constexpr auto Enddatum = Text<&Sparplan::Enddatum>("Enddatum", datum);
inline constexpr auto Zins = Text<&Sparplan::Zins>("Zins", prozent);
inline constexpr auto Vwert = Text<&Sparplan::Vwert>("Vwert", betrag);
inline constexpr auto Vermendwert = Text<&Sparplan::Vermendwert>("Vermendwert", betrag);
inline constexpr auto Combo1 = Liste<&Sparplan::Combo1>("Combo1", zahlungsweisen);
inline constexpr auto Combo2 = Liste<&Sparplan::Combo2>("Combo2", verzinsungsmethoden);
inline constexpr auto Combo4 = Liste<&Sparplan::Combo4>("Combo4", zinsverrechnungsarten);
inline constexpr auto Combo5 = Liste<&Sparplan::Combo5>("Combo5", effektivmethoden);
inline constexpr auto Check1 = Haken<&Sparplan::Check1>("Check1");
inline constexpr auto Check2 = Haken<&Sparplan::Check2>("Check2");
inline constexpr auto Anzahl = Text<&Sparplan::Anzahl>("Anzahl", ganzzahl);
inline constexpr auto Delta = Text<&Sparplan::Delta>("Delta", betrag);
inline constexpr auto Delta2 = Text<&Sparplan::Delta2>("Delta2", betrag);
inline constexpr auto Command6 = Text<&Sparplan::Command6>("Command6", einheit);
inline constexpr auto Check3 = Haken<&Sparplan::Check3>("Check3");
inline constexpr auto DynAnz = Text<&Sparplan::DynAnz>("DynAnz", ganzzahl);
inline constexpr auto Check4 = Haken<&Sparplan::Check4>("Check4");
inline constexpr auto MaxSparrate = Text<&Sparplan::MaxSparrate>("MaxSparrate", betrag);
inline constexpr auto Check5 = Haken<&Sparplan::Check5>("Check5");
inline constexpr auto MinSparrate = Text<&Sparplan::MinSparrate>("MinSparrate", betrag);

}  // namespace sparfeld
}  // namespace zinfolio
