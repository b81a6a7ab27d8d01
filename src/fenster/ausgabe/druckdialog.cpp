#include "fenster/ausgabe/druckdialog.h"

#include <QPrintDialog>
#include <utility>

namespace zinfolio {
namespace {

Druckzeuge& Zeuge() {
    static Druckzeuge zeuge;
    return zeuge;
}

}  // namespace

bool DruckerFragen(QWidget* fenster, QPrinter& drucker) {
    if (Zeuge()) return Zeuge()(drucker);
    QPrintDialog dialog(&drucker, fenster);
    return dialog.exec() == QDialog::Accepted;
}

Druckzeuge DruckfragenUmleiten(Druckzeuge zeuge) {
    return std::exchange(Zeuge(), std::move(zeuge));
}

}  // namespace zinfolio
