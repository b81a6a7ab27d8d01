#pragma once

#include <string>

#include "kern/bericht/bericht.h"
#include "kern/richtext/richtext.h"

namespace zinfolio {

/// A note as a report of its text alone, upright, in the basic font; long lines break between words. The last
/// empty lines are left out.
[[nodiscard]] Bericht NotizberichtBilden(const Richtext& notiz, const std::string& titel);

}  // namespace zinfolio
