#pragma once

namespace zinfolio {

/// The 8-byte float nearest to the decimal number of 15 significant digits that is nearest to `wert`: what
/// comes back when the number is written as text with 15 digits and read again. -0 becomes 0. Infinity and
/// NaN stay what they are, and what rounds beyond the type becomes infinite.
[[nodiscard]] double RundeAuf15Stellen(double wert);

}  // namespace zinfolio
