#pragma once

/// What the program ends with.
namespace zinfolio::status {
inline constexpr int fertig = 0;
/// A calculation was refused; in a batch, at least one job has no result.
inline constexpr int abgelehnt = 1;
/// A wrong call, an input that cannot be read or is no valid job, an output that cannot be written.
inline constexpr int falsch = 2;
}  // namespace zinfolio::status
