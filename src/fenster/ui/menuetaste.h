#pragma once

class QMainWindow;

namespace zinfolio {

/// Lets F10 lead into the menu bar of a window, as Alt alone does: the arrow keys walk it, Enter opens an
/// entry, Escape or a second F10 leads back to where the focus was.
void MenueMitF10(QMainWindow& fenster);

}  // namespace zinfolio
