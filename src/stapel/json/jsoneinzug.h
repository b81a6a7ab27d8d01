#pragma once

#include <string>
#include <string_view>

namespace zinfolio {

/// Compact JSON on indented lines, two blanks a level; empty brackets stay together. Not a character of names
/// and values changes. REQUIRES: valid JSON without white space between its parts.
[[nodiscard]] std::string JsonEingezogen(std::string_view json);

}  // namespace zinfolio
