#include "fenster/hilfe/hilfetaste.h"

#include <QKeyEvent>
#include <QWidget>

#include "fenster/hilfe/hilfefenster.h"

namespace zinfolio {

bool Hilfetaste::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (ereignis->type() != QEvent::KeyPress || !qobject_cast<QWidget*>(ziel)) return false;
    if (static_cast<QKeyEvent*>(ereignis)->key() != Qt::Key_F1) return false;
    Hilfefenster::ZumFokus();
    return true;
}

}  // namespace zinfolio
