#pragma once

class QApplication;

namespace zinfolio {

/// Makes the toolkit's own texts (buttons of boxes, context menus) German, whatever the machine's language.
void DeutscheTexteLaden(QApplication& programm);

}  // namespace zinfolio
