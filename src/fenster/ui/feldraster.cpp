#include "fenster/ui/feldraster.h"

#include <QLabel>

namespace zinfolio {
namespace {

constexpr int feldspalte = 1;

}  // namespace

Feldraster::Feldraster(QWidget* eltern) : QGridLayout(eltern) {
    setColumnStretch(feldspalte, 1);
    setColumnMinimumWidth(feldspalte, 190);
    setHorizontalSpacing(10);
    setVerticalSpacing(7);
}

QLabel* Feldraster::Zeile(const QString& beschriftung, QWidget* feld) {
    auto* titel = new QLabel(beschriftung, feld->parentWidget());
    titel->setBuddy(feld);
    Titelzeile(titel);
    Dahinter(LetzteZeile(), feld);
    return titel;
}

void Feldraster::GanzeZeile(QWidget* element) {
    addWidget(element, naechste_++, 0, 1, -1);
}

void Feldraster::Titelzeile(QWidget* titel) {
    addWidget(titel, naechste_++, 0);
}

void Feldraster::Dahinter(int zeile, QWidget* element) {
    int spalte = feldspalte;
    while (itemAtPosition(zeile, spalte))
        ++spalte;
    addWidget(element, zeile, spalte, spalte == feldspalte ? Qt::Alignment() : Qt::AlignLeft);
}

void Feldraster::Absatz() {
    setRowMinimumHeight(naechste_++, 8);
}

}  // namespace zinfolio
