#include "fenster/sparen/sparfeldbindung.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zinfolio {
namespace {

constexpr std::array einheiten{einheitProzent, einheitBetrag};

constexpr Feldart Art(Sparfeldart art) {
    if (art == Sparfeldart::liste) return Feldart::liste;
    if (art == Sparfeldart::haken) return Feldart::kaestchen;
    return art == Sparfeldart::einheit ? Feldart::einheit : Feldart::text;
}

constexpr Tastenfilter Filter(Sparfeldart art) {
    if (art == Sparfeldart::datum) return Tastenfilter::datum;
    if (art == Sparfeldart::prozent) return Tastenfilter::prozent;
    return art == Sparfeldart::ganzzahl ? Tastenfilter::ganzzahl : Tastenfilter::betrag;
}

template <const Sparfeld& feld>
constexpr Feldzeile<Sparplan> Gebunden() {
    const Feldbeschreibung beschreibung{.name = feld.name,
                                        .art = Art(feld.art),
                                        .filter = Filter(feld.art),
                                        .texte = feld.art == Sparfeldart::einheit
                                                     ? std::span<const std::string_view>(einheiten)
                                                     : feld.eintraege};
    if constexpr (feld.text != nullptr)
        return Feld<feld.text>(beschreibung);
    else
        return Feld<feld.zahl>(beschreibung);
}

template <const Sparfeld&... felder>
constexpr auto AlleGebunden() {
    return std::array{std::pair(&felder, Gebunden<felder>())...};
}

namespace feld = sparfeld;

constexpr auto bindungen =
    AlleGebunden<feld::AnfVermögen, feld::Anfdatum, feld::ratdatum1, feld::Betrag, feld::Enddatum, feld::Zins,
                 feld::Vwert, feld::Vermendwert, feld::Combo1, feld::Combo2, feld::Combo4, feld::Combo5,
                 feld::Check1, feld::Check2, feld::Anzahl, feld::Delta, feld::Delta2, feld::Command6,
                 feld::Check3, feld::DynAnz, feld::Check4, feld::MaxSparrate, feld::Check5,
                 feld::MinSparrate>();

}  // namespace

Feldzeile<Sparplan> SparfeldGebunden(const Sparfeld& feld) {
    return std::ranges::find(bindungen, &feld, [](const auto& bindung) { return bindung.first; })->second;
}

}  // namespace zinfolio
