#pragma once

class QWidget;

namespace zinfolio {

/// Shows who made the program, its version and its licence.
void ImpressumZeigen(QWidget* fenster);

}  // namespace zinfolio
