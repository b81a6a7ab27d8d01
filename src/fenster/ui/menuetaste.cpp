#include "fenster/ui/menuetaste.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QProxyStyle>
#include <QShortcut>
#include <QStyleOption>

namespace zinfolio {
namespace {

/// The program's style, but an entry of the menu bar that keys have chosen can be seen before it is opened.
class Menuestil : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    void drawControl(ControlElement art, const QStyleOption* wie, QPainter* maler,
                     const QWidget* element) const override {
        const auto* eintrag = qstyleoption_cast<const QStyleOptionMenuItem*>(wie);
        if (art != CE_MenuBarItem || !eintrag || (eintrag->state & State_Selected) == 0)
            return QProxyStyle::drawControl(art, wie, maler, element);
        QStyleOptionMenuItem gewaehlt(*eintrag);
        gewaehlt.state |= State_Sunken;
        QProxyStyle::drawControl(art, &gewaehlt, maler, element);
    }
};

}  // namespace

void MenueMitF10(QMainWindow& fenster) {
    auto* stil = new Menuestil(QApplication::style()->name());
    stil->setParent(fenster.menuBar());
    fenster.menuBar()->setStyle(stil);
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
