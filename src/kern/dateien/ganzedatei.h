#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>

namespace zinfolio {

/// What no file that is opened or saved as a whole exceeds: far more than any account or notes, so that no
/// file can fill the memory.
inline constexpr std::size_t hoechsteDateilaenge = std::size_t{64} << 20;

/// Appends to `text` all that an open file still holds. False, with `errno` set, where the system refuses;
/// EFBIG for more than `hoechstens` bytes. What was read by then stays.
[[nodiscard]] bool RestLesen(int nummer, std::size_t hoechstens, std::string& text);

/// The bytes of a file as they are. A missing file is not created. Throws `Dateifehler`, also for more than
/// `hoechstens` bytes.
[[nodiscard]] std::string GanzeDateiLesen(const std::filesystem::path& datei, std::size_t hoechstens);

/// The same; nothing for a missing file.
[[nodiscard]] std::optional<std::string> DateiLesenFallsDa(const std::filesystem::path& datei,
                                                           std::size_t hoechstens);

/// Throws a `Dateifehler` for a file that is missing or cannot be opened for reading. Changes nothing.
void LesbarkeitPruefen(const std::filesystem::path& datei);

}  // namespace zinfolio
