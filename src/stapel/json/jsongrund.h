#pragma once

#include <string>
#include <string_view>

namespace zinfolio {

/// The German words for an error code of the parser, to be put behind "kein gültiges JSON: ".
[[nodiscard]] std::string_view JsonGrund(int fehlercode);

/// Throws the `Auftragsfehler` for a text that is no JSON.
[[noreturn]] void KeinJson(int fehlercode, const char* stelle);

/// True where a text is a number by JSON's grammar, whatever its size.
[[nodiscard]] bool IstJsonZahl(std::string_view text);

/// A token of the parser without the white space behind it.
[[nodiscard]] std::string_view OhneRand(std::string_view token);

}  // namespace zinfolio
