#pragma once

#include <QIcon>

namespace zinfolio {

/// One of the program's own icons, drawn in the text colour of the palette in force, so that it holds on
/// light and dark.
[[nodiscard]] QIcon Symbol(const QString& name);

}  // namespace zinfolio
