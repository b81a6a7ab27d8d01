#pragma once
// The fields of a form as rows of data: what a field is, and which member of a value it shows.
//
//   struct Plan { std::string Betrag; std::string Anfdatum; std::int16_t Combo1 = 0; bool Check2 = false;
//                 std::string Anzahl; };
//   constexpr std::array planfelder{
//       Feld<&Plan::Betrag>({.name = "Betrag", .titel = "&Betrag", .filter = Tastenfilter::betrag, .einheit =
//       "€"}), Feld<&Plan::Anfdatum>({.name = "Anfdatum", .titel = "&am", .filter = Tastenfilter::datum,
//       .kalender = "Command1"}), Feld<&Plan::Combo1>({.name = "Combo1", .titel = "&Zahlungsweise", .art =
//       Feldart::liste, .texte = weisen}), Feld<&Plan::Check2>({.name = "Check2", .titel = "&Dynamisierung",
//       .art = Feldart::kaestchen}), Rahmen<Plan>({.name = "Frameb", .sichtbarMit = "Check2"}),
//       Feld<&Plan::Anzahl>({.name = "Anzahl", .titel = "&nach", .einheit = "Zahlungen", .gruppe =
//       "Frameb"}),
//   };
//   Feldgruppe<Plan> felder(form);  felder.Anlegen(planfelder, raster);
//   felder.Zeigen(plan);  Plan jetzt = felder.Lesen();  felder.Fokussieren("Anfdatum");

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "kern/dates/tastenfilter.h"

namespace zinfolio {

enum class Feldart {
    /// A text with its key filter; with `Tastenfilter::datum` a date field.
    text,
    /// A text that the user only reads.
    anzeige,
    liste,
    kaestchen,
    /// A box of options.
    optionen,
    /// A button that shows one of `texte`, the next one at each press.
    einheit,
    /// A frame around the rows that name it as their `gruppe`.
    rahmen,
};

inline constexpr unsigned inAllenFormen = ~0U;

/// What a control of a form is. Texts without a meaning for its kind are ignored.
struct Feldbeschreibung {
    std::string_view name;
    /// The caption before the field, with the mnemonic behind an `&`; the caption of a box or frame.
    std::string_view titel = {};
    Feldart art = Feldart::text;
    Tastenfilter filter = Tastenfilter::enter;
    /// The entries of a list, options or unit button.
    std::span<const std::string_view> texte = {};
    /// What these entries stand for; empty: they count from 0.
    std::span<const int> zahlen = {};
    /// The text behind the field.
    std::string_view einheit = {};
    std::string_view platzhalter = {};
    /// The most characters that a text may have; 0: no limit.
    int laenge = 0;
    /// The fixed name of the calendar button behind a date; empty: none.
    std::string_view kalender = {};
    /// The fixed name of the caption, where it has one.
    std::string_view titelname = {};
    /// This control has no row of its own: it stands behind the one of that name.
    std::string_view hinter = {};
    /// The frame that holds the row.
    std::string_view gruppe = {};
    /// The check box that shows the row or the frame while it is ticked, and the one that lets it be used.
    std::string_view sichtbarMit = {};
    std::string_view freiMit = {};
    /// A control that is hidden keeps its room.
    bool platzhaltend = false;
    /// A little room above the row.
    bool absatz = false;
    /// The forms that have the row, as bits of their own.
    unsigned formen = inAllenFormen;
};

/// What a control holds: a text, or what was chosen in it (1 and 0 for a box). The one that a member is of
/// counts.
struct Feldinhalt {
    std::string text;
    int zahl = 0;
};

/// A control and the member of a `Wert` that it shows; a frame, or a text that the form sets itself, has
/// none.
template <class Wert>
struct Feldzeile {
    Feldbeschreibung beschreibung;
    Feldinhalt (*gib)(const Wert& wert) = nullptr;
    void (*nimm)(Wert& wert, const Feldinhalt& inhalt) = nullptr;
};

namespace feldbindung {

template <class M>
struct Mitgliedvon;
template <class W, class M>
struct Mitgliedvon<M W::*> {
    using Typ = W;
};

}  // namespace feldbindung

/// A row for a member: std::string for texts, a number, bool or enumeration for what is chosen; std::string
/// for a list or unit button takes the chosen text. `Zugriff` is a pointer to the member.
template <auto Zugriff, class Wert = typename feldbindung::Mitgliedvon<decltype(Zugriff)>::Typ>
constexpr Feldzeile<Wert> Feld(const Feldbeschreibung& beschreibung) {
    using Typ = std::remove_cvref_t<std::invoke_result_t<decltype(Zugriff), Wert&>>;
    return {
        .beschreibung = beschreibung,
        .gib = [](const Wert& wert) -> Feldinhalt {
            const Typ& mitglied = std::invoke(Zugriff, wert);
            if constexpr (std::is_same_v<Typ, std::string>)
                return {.text = mitglied};
            else
                return {.text = {}, .zahl = static_cast<int>(mitglied)};
        },
        .nimm =
            [](Wert& wert, const Feldinhalt& inhalt) {
                Typ& mitglied = std::invoke(Zugriff, wert);
                if constexpr (std::is_same_v<Typ, std::string>)
                    mitglied = inhalt.text;
                else
                    mitglied = static_cast<Typ>(inhalt.zahl);
            },
    };
}

/// A frame around rows.
template <class Wert>
constexpr Feldzeile<Wert> Rahmen(Feldbeschreibung beschreibung) {
    beschreibung.art = Feldart::rahmen;
    return {.beschreibung = beschreibung};
}

/// A text that the form sets by `Feldtafel::Setze`.
template <class Wert>
constexpr Feldzeile<Wert> Anzeige(Feldbeschreibung beschreibung) {
    beschreibung.art = Feldart::anzeige;
    return {.beschreibung = beschreibung};
}

}  // namespace zinfolio
