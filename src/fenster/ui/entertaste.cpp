#include "fenster/ui/entertaste.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QRadioButton>

#include "fenster/ui/umschalttaste.h"

namespace zinfolio {
namespace {

bool IstEnter(const QKeyEvent& ereignis) {
    return ereignis.key() == Qt::Key_Return || ereignis.key() == Qt::Key_Enter;
}

bool IstAuswahl(const QWidget& element) {
    return qobject_cast<const QComboBox*>(&element) || qobject_cast<const QCheckBox*>(&element) ||
           qobject_cast<const QRadioButton*>(&element) || qobject_cast<const Umschalttaste*>(&element);
}

}  // namespace

bool Entertaste::eventFilter(QObject* ziel, QEvent* ereignis) {
    auto* element = qobject_cast<QWidget*>(ziel);
    if (ereignis->type() != QEvent::KeyPress || !element || !IstEnter(*static_cast<QKeyEvent*>(ereignis))) {
        return false;
    }
    if (qobject_cast<QDialog*>(element->window())) return false;
    if (IstAuswahl(*element)) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(element, &tab);
        return true;
    }
    if (auto* taste = qobject_cast<QAbstractButton*>(element)) {
        taste->click();
        return true;
    }
    return false;
}

}  // namespace zinfolio
