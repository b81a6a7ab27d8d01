#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "stapel/json/rueckruf.h"

namespace zinfolio {

/// Appends compact JSON to a text. Brackets and names are the caller's duty; commas are set here. Names are
/// written as they are and thus must not need escapes.
class JsonSchreiber {
  public:
    /// From this length on a text leaves.
    static constexpr std::size_t abflussmenge = std::size_t{256} << 10;

    /// `zieltext` outlives the writer, and so does `textabfluss`, which takes and empties it.
    explicit JsonSchreiber(std::string& zieltext, const Rueckruf<void()>* textabfluss = nullptr)
        : ziel(zieltext), abfluss(textabfluss) {}

    void ObjektAuf() { Auf('{'); }
    void ObjektZu() { Zu('}'); }
    void ListeAuf() { Auf('['); }
    void ListeZu() { Zu(']'); }

    /// The name of the next value.
    void Name(std::string_view name);

    /// Shortest form that reads back to the same number. Infinity and NaN are a `Rechenfehler`.
    void Wert(double zahl);
    void Wert(std::int64_t zahl);
    /// UTF-8.
    void Wert(std::string_view text);
    void Wert(bool ja) { Fertiges(ja ? "true" : "false"); }
    void Null() { Fertiges("null"); }

    /// JSON that is ready: a value, or several names with their values.
    void Fertiges(std::string_view json) {
        Trenne();
        ziel += json;
    }

    /// What has been written stands, and nothing behind it can fail any more: from here on a full text may
    /// leave.
    void Festlegen() { fest = true; }
    [[nodiscard]] bool IstFest() const { return fest; }

    /// Lets the text leave where it stands and has become long. For writers of long lists, now and then.
    void Abfliessen() {
        if (fest && abfluss != nullptr && ziel.size() >= abflussmenge) (*abfluss)();
    }

    /// A name with its value.
    template <typename T>
    void Feld(std::string_view name, const T& wert) {
        Name(name);
        if constexpr (std::same_as<T, bool> || std::same_as<T, double>) {
            Wert(wert);
        } else if constexpr (std::integral<T>) {
            Wert(static_cast<std::int64_t>(wert));
        } else if constexpr (std::floating_point<T>) {
            Wert(static_cast<double>(wert));
        } else {
            Wert(std::string_view(wert));
        }
    }

  private:
    void Trenne() {
        if (komma) ziel += ',';
        komma = true;
    }
    void Auf(char klammer) {
        Trenne();
        ziel += klammer;
        komma = false;
    }
    void Zu(char klammer) {
        ziel += klammer;
        komma = true;
    }

    std::string& ziel;
    const Rueckruf<void()>* abfluss;
    bool komma = false;
    bool fest = false;
};

/// Compact JSON on indented lines, two blanks a level; empty brackets stay together. Not a character of names
/// and values changes. REQUIRES: valid JSON without white space between its parts.
[[nodiscard]] std::string JsonEingezogen(std::string_view json);

}  // namespace zinfolio
