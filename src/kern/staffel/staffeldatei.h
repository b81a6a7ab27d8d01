#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "kern/dateien/dateibefund.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// The rows of a file of one kind (`zahlungsart`), from its bytes. A row of another kind and more rows than a
/// file may have are a `Dateifehler` that names file and record. What a calculation would pass over in
/// silence is added to `befunde`: a torn record at the end, which does not count, and a date that is none.
[[nodiscard]] std::vector<Staffelsatz> StaffelsaetzeAus(std::span<const std::byte> bytes, std::int16_t art,
                                                        const std::filesystem::path& datei,
                                                        std::vector<Befund>& befunde);

}  // namespace zinfolio
