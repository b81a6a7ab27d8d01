#include "fenster/ausgabe/druckdialog.h"

#include <QPrintDialog>
#include <utility>

#include "fenster/ui/zeuge.h"

namespace zinfolio {
bool DruckerFragen(QWidget* fenster, QPrinter& drucker) {
    if (auto& zeuge = Zeugenplatz<Druckzeuge>()) return zeuge(drucker);
    QPrintDialog dialog(&drucker, fenster);
    return dialog.exec() == QDialog::Accepted;
}

Druckzeuge DruckfragenUmleiten(Druckzeuge zeuge) {
    return std::exchange(Zeugenplatz<Druckzeuge>(), std::move(zeuge));
}

}  // namespace zinfolio
