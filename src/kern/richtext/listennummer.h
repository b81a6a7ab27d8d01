#pragma once

#include <string>

#include "kern/richtext/richtext.h"

namespace zinfolio {

/// What stands before an item of a numbered list: the number in the list's kind of digits or letters, and
/// what follows it ("3.", "c)", "iv."). Letters go on after z with aa; Roman numbers run from 1 to 3999. A
/// number that its kind does not have is written in digits. Empty where the list has no numbers.
[[nodiscard]] std::string Listennummer(const Liste& liste, int nummer);

}  // namespace zinfolio
