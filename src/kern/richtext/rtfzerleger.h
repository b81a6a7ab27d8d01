#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace zinfolio {

/// A piece of a rich-text file.
struct Rtfstueck {
    enum class Art {
        ende,
        gruppeAuf,
        gruppeZu,
        /// Plain ASCII characters from blank to tilde, in `text`.
        text,
        /// A character by its number in the code page in force, in `byte`.
        byte,
        /// A control word: its letters in `text`, its number in `zahl`.
        wort,
        /// A control symbol: the character behind the backslash in `byte`.
        symbol,
    };

    Art art = Art::ende;
    std::string_view text;
    std::optional<int> zahl;
    unsigned char byte = 0;
};

/// Cuts a rich-text file into its pieces, each in time linear in its length. Never fails: raw line ends, zero
/// bytes and other control characters besides the tab are passed over, numbers are clamped to the range of
/// int, and an escape \'hh with a bad digit is a symbol whose two characters are passed over. A raw tab is
/// the symbol of a tab. Views point into the file.
class Rtfzerleger {
  public:
    explicit Rtfzerleger(std::string_view datei) : rest_(datei) {}

    [[nodiscard]] Rtfstueck Naechstes();

    /// Passes over so many bytes, at most to the end of the file.
    void Ueberspringen(std::size_t bytes);

  private:
    [[nodiscard]] Rtfstueck Text();
    [[nodiscard]] Rtfstueck Steuerung();
    [[nodiscard]] Rtfstueck Wort();
    [[nodiscard]] Rtfstueck Hexbyte();
    [[nodiscard]] std::optional<int> Zahl();

    std::string_view rest_;
};

}  // namespace zinfolio
