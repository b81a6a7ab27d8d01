#include "fenster/ui/datumsfeld.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>

#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/uhr.h"
#include "kern/dates/datumpruefen.h"

namespace zinfolio {

Datumsfeld::Datumsfeld(const QString& name, QWidget* eltern)
    : Eingabefeld(name, Tastenfilter::datum, eltern) {
    setMaxLength(10);
}

bool Datumsfeld::DarfVerlassenWerden() {
    if (pruefungLaeuft_) return true;
    const Datumspruefung pruefung = DatumPruefen(Wert(), Heute());
    if (pruefung.feld != Wert()) Setze(pruefung.feld);
    if (!pruefung.abbruch) return true;
    pruefungLaeuft_ = true;
    MeldungZeigen(this, {.text = Anzeigetext(pruefung.meldung)});
    pruefungLaeuft_ = false;
    selectAll();
    return false;
}

void Datumsfeld::focusInEvent(QFocusEvent* ereignis) {
    Eingabefeld::focusInEvent(ereignis);
    qApp->installEventFilter(this);
}

void Datumsfeld::focusOutEvent(QFocusEvent* ereignis) {
    Eingabefeld::focusOutEvent(ereignis);
    qApp->removeEventFilter(this);
    const auto grund = ereignis->reason();
    if (grund == Qt::ActiveWindowFocusReason || grund == Qt::PopupFocusReason || pruefungLaeuft_) return;
    const QWidget* neues = QApplication::focusWidget();
    if (kalender_ && neues == kalender_) return;
    if (DarfVerlassenWerden()) return;
    klickSchlucken_ = grund == Qt::MouseFocusReason;
    setFocus();
}

bool Datumsfeld::focusNextPrevChild(bool vorwaerts) {
    // A refused key counts as handled, else the window would move the focus in this field's place.
    return !DarfVerlassenWerden() || Eingabefeld::focusNextPrevChild(vorwaerts);
}

void Datumsfeld::Weiter() {
    Eingabefeld::Weiter();
    if (!kalender_ || !kalender_->hasFocus()) return;
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(kalender_, &tab);
}

void Datumsfeld::keyPressEvent(QKeyEvent* ereignis) {
    if (kalender_ && ereignis->key() == Qt::Key_F4)
        kalender_->click();
    else
        Eingabefeld::keyPressEvent(ereignis);
}

bool Datumsfeld::WuerdeVerlassen(QObject* ziel, const QEvent& ereignis) const {
    if (ziel == kalender_) return false;
    if (ereignis.type() == QEvent::Shortcut) return true;
    if (ereignis.type() != QEvent::MouseButtonPress) return false;
    const auto* fenster = qobject_cast<QWidget*>(ziel);
    return fenster && fenster != this && fenster->window() == window();
}

bool Datumsfeld::eventFilter(QObject* ziel, QEvent* ereignis) {
    if (WuerdeVerlassen(ziel, *ereignis) &&
        (std::exchange(klickSchlucken_, false) || !DarfVerlassenWerden())) {
        return true;
    }
    return Eingabefeld::eventFilter(ziel, ereignis);
}

bool DatumSteht(const QWidget& fenster) {
    auto* datum = qobject_cast<Datumsfeld*>(fenster.focusWidget());
    return !datum || datum->DarfVerlassenWerden();
}

}  // namespace zinfolio
