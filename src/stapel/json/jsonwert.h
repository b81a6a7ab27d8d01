#pragma once
// One value of a job, read as what its field wants. The parser's own types stay behind this header.

#include <cstdint>
#include <string>
#include <string_view>

#include "stapel/json/auftragsfehler.h"
#include "stapel/json/rueckruf.h"

namespace zinfolio {

/// True where a text is a number by JSON's grammar, whatever its size.
[[nodiscard]] bool IstJsonZahl(std::string_view text);

/// A token of the parser without the white space behind it.
[[nodiscard]] std::string_view OhneRand(std::string_view token);

/// A value that stands at its place in the job. It is read once, in the order of the text: `Text`, `Zahl`,
/// `Ganzzahl`, `Elemente` or `Felder`. Each refuses another kind of value by an `Auftragsfehler` that names
/// the field. Views into texts and names live until the next job is opened.
class JsonWert {
  public:
    /// `simdjsonwert` is the parser's value, which outlives this object.
    JsonWert(void* simdjsonwert, const Feldpfad& feldpfad) : wert(simdjsonwert), pfad(feldpfad) {}
    JsonWert(const JsonWert&) = delete;
    JsonWert& operator=(const JsonWert&) = delete;
    ~JsonWert() = default;

    /// The text without its escapes, UTF-8.
    [[nodiscard]] std::string_view Text();

    /// A finite number.
    [[nodiscard]] double Zahl();

    /// A whole number between the bounds, both included; 4 may come as 4.0.
    [[nodiscard]] std::int64_t Ganzzahl(std::int64_t von, std::int64_t bis);

    /// Hands over the elements of a list.
    void Elemente(Rueckruf<void(JsonWert&)> rueckruf);

    /// Hands over the fields of an object; a field that the callback does not read is passed over unread.
    void Felder(Rueckruf<void(std::string_view name, JsonWert&)> rueckruf);

    /// Throws the `Auftragsfehler` »Das Feld "X" `anforderung`.«
    [[noreturn]] void Ungueltig(std::string_view anforderung) const;

    /// The path of a field of this object, for messages.
    [[nodiscard]] std::string Feldname(std::string_view name) const;

    /// The first character of the value in the job's text.
    [[nodiscard]] const char* Stelle() const;

  private:
    void Erwarte(char anfang, std::string_view anforderung) const;

    void* wert;
    Feldpfad pfad;
};

}  // namespace zinfolio
