#include "fenster/ui/menuetaste.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QShortcut>

namespace zinfolio {

void MenueMitF10(QMainWindow& fenster) {
    auto* taste = new QShortcut(QKeySequence(Qt::Key_F10), &fenster);
    taste->setObjectName("F10");
    QObject::connect(taste, &QShortcut::activated, &fenster, [&fenster] {
        // The menu bar knows one way in and out of its keyboard mode: Alt, pressed and let go alone. The
        // toolkit adds Alt itself to the modifiers of the key.
        for (const QEvent::Type art : {QEvent::ShortcutOverride, QEvent::KeyRelease}) {
            QKeyEvent alt(art, Qt::Key_Alt, Qt::NoModifier);
            QCoreApplication::sendEvent(&fenster, &alt);
        }
    });
}

}  // namespace zinfolio
