#include "fenster/ui/feldraster.h"

#include <QLabel>

#include "fenster/ui/datumsfeld.h"

namespace zinfolio {

Feldraster::Feldraster(QWidget* eltern) : QGridLayout(eltern) {
    setColumnStretch(1, 1);
    setColumnMinimumWidth(1, 190);
    setHorizontalSpacing(10);
    setVerticalSpacing(7);
}

QLabel* Feldraster::Zeile(const QString& beschriftung, QWidget* feld, QWidget* dahinter) {
    auto* titel = new QLabel(beschriftung);
    titel->setBuddy(feld);
    addWidget(titel, naechste_, 0);
    addWidget(feld, naechste_, 1);
    if (dahinter) addWidget(dahinter, naechste_, 2, Qt::AlignLeft);
    ++naechste_;
    return titel;
}

QLabel* Feldraster::Zeile(const QString& beschriftung, QWidget* feld, const QString& einheit) {
    return Zeile(beschriftung, feld, einheit.isEmpty() ? nullptr : new QLabel(einheit));
}

void Feldraster::GanzeZeile(QWidget* element) {
    addWidget(element, naechste_++, 0, 1, 3);
}

void Feldraster::Absatz() {
    setRowMinimumHeight(naechste_++, 8);
}

Eingabefeld* NeuesFeld(const char* name, Tastenfilter filter, QWidget* eltern) {
    const QString text = QString::fromUtf8(name);
    if (filter == Tastenfilter::datum) return new Datumsfeld(text, eltern);
    return new Eingabefeld(text, filter, eltern);
}

}  // namespace zinfolio
