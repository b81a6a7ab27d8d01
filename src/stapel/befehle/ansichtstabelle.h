#pragma once
// A view of a statement as text.

#include <span>
#include <string>

#include "kern/staffel/kontoansicht.h"

namespace zinfolio {

/// Lines of equally wide columns, the header first: amounts on the right, dates and words on the left. UTF-8.
[[nodiscard]] std::string AnsichtAlsText(Kontoansicht ansicht, std::span<const Staffelsatz> loesung);

/// The header and the cells as they are, with semicolons; quoted where a spreadsheet would misread them.
/// UTF-8.
[[nodiscard]] std::string AnsichtAlsCsv(Kontoansicht ansicht, std::span<const Staffelsatz> loesung);

}  // namespace zinfolio
