#pragma once
// The five key filters of all entry fields, on key codes and texts: a filter lets a key pass or cancels it,
// and says where the caret and the focus go. The window side sends them real keys.

#include <string_view>

namespace zinfolio {

inline constexpr int tasteEnter = 13;
inline constexpr int tasteRueck = 8;

/// Which filter a field uses: dates; signed amounts; whole numbers; unsigned decimals; free text.
enum class Tastenfilter { datum, betrag, ganzzahl, prozent, enter };

/// What the system knows of the field with the focus: `false` until it has received its first key.
using ErsteTaste = bool;

/// A filter's answer. `taste` is the key as it reaches the field, 0 where it was cancelled.
struct Tastenantwort {
    int taste = 0;
    bool caretAnsEnde = false;
    bool naechstesFeld = false;
    ErsteTaste ersteTaste = false;

    friend bool operator==(const Tastenantwort&, const Tastenantwort&) = default;
};

/// Runs `taste` (a character code) through the filter. `text` is the field's text before the key is applied.
[[nodiscard]] Tastenantwort TasteFiltern(Tastenfilter filter, int taste, std::string_view text,
                                         ErsteTaste ersteTaste);

/// Dates: digits and points, no point at the start, no two in a row, no third; at most 10 characters.
[[nodiscard]] Tastenantwort TasteDatum(int taste, std::string_view text, ErsteTaste ersteTaste);

/// Signed amounts: digits, one comma that is not the first character, a sign only as the first character.
/// Enter moves on, but not while the text is only "-", "," or "-,".
[[nodiscard]] Tastenantwort TasteBetrag(int taste, std::string_view text, ErsteTaste ersteTaste);

/// Whole numbers: digits only.
[[nodiscard]] Tastenantwort TasteGanzzahl(int taste, ErsteTaste ersteTaste);

/// Unsigned decimals: digits and one comma that is not the first character.
[[nodiscard]] Tastenantwort TasteProzent(int taste, std::string_view text, ErsteTaste ersteTaste);

/// Free text: every key passes, Enter moves on.
[[nodiscard]] Tastenantwort TasteEnter(int taste, ErsteTaste ersteTaste);

}  // namespace zinfolio
