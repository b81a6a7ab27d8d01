#include "fenster/allround/eingabezeile.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "fenster/ui/tabelle.h"

namespace zinfolio {

Eingabezeile::Eingabezeile(QWidget* eltern) : QWidget(eltern), zeile_(new QHBoxLayout(this)) {
    zeile_->setContentsMargins(0, 0, 0, 0);
    zeile_->setSpacing(18);
}

QWidget* Eingabezeile::Feld(const char* beschriftung, QWidget* feld, const char* einheit) {
    auto* gruppe = new QWidget(this);
    auto* anordnung = new QHBoxLayout(gruppe);
    anordnung->setContentsMargins(0, 0, 0, 0);
    auto* titel = new QLabel(QString::fromUtf8(beschriftung), gruppe);
    titel->setBuddy(feld);
    anordnung->addWidget(titel);
    // A field does not grow with the window, since rates and dates are short; a narrow window may cut it.
    constexpr int schmalste = 60;
    feld->setSizePolicy(QSizePolicy::Maximum, feld->sizePolicy().verticalPolicy());
    if (!qobject_cast<QPushButton*>(feld)) feld->setMinimumWidth(schmalste);
    anordnung->addWidget(feld);
    if (*einheit != '\0') anordnung->addWidget(new QLabel(QString::fromUtf8(einheit), gruppe));
    zeile_->addWidget(gruppe);
    return gruppe;
}

void Eingabezeile::Abstand() {
    zeile_->addStretch();
}

void Eingabezeile::Kennzahl(const char* beschriftung, QLabel* wert) {
    auto* spalte = new QVBoxLayout;
    spalte->setSpacing(0);
    spalte->addWidget(new QLabel(QString::fromUtf8(beschriftung)), 0, Qt::AlignRight);
    spalte->addWidget(wert, 0, Qt::AlignRight);
    zeile_->addLayout(spalte);
}

void AnsEndeRollen(Tabelle& tabelle, std::size_t zeilen) {
    constexpr std::size_t kurze = 16;
    if (zeilen > kurze) tabelle.scrollToBottom();
}

}  // namespace zinfolio
