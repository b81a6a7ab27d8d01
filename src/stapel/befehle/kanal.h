#pragma once

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zinfolio {

/// An input or output that the system refuses. `what()` is the German message for the user.
class Kanalfehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads from an open file as much as there is, at most `platz` bytes; 0 at the end. Throws `Kanalfehler`
/// with the system's reason alone.
[[nodiscard]] std::size_t KanalLesen(int nummer, char* ziel, std::size_t platz);

/// Writes everything on standard output. Throws `Kanalfehler`.
void AusgabeSchreiben(std::string_view text);

/// Writes a message and a line end on standard error, as far as that is possible.
void FehlerMelden(std::string_view meldung);

/// The whole content of a file, "-" for standard input, with `nachlauf` zero bytes behind it that do not
/// count.
struct Dateitext {
    std::string puffer;
    std::size_t laenge = 0;
};

/// Throws `Kanalfehler` with the reason alone; a text of more than `hoechstens` bytes is refused.
[[nodiscard]] Dateitext DateiLesen(const std::string& name, std::size_t hoechstens);

}  // namespace zinfolio
