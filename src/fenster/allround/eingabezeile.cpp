#include "fenster/allround/eingabezeile.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "fenster/ui/bausteine.h"
#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/kalendertaste.h"
#include "fenster/ui/tabelle.h"
#include "fenster/ui/umbruchzeile.h"

namespace zinfolio {
namespace {

constexpr int zwischenraum = 18;

}  // namespace

Eingabezeile::Eingabezeile(QWidget* eltern) : QWidget(eltern), zeile_(new Umbruchzeile(this)) {
    zeile_->setSpacing(zwischenraum);
}

QWidget* Eingabezeile::Feld(const char* beschriftung, QWidget* feld, const char* einheit) {
    auto* titel = new QLabel(QString::fromUtf8(beschriftung), this);
    titel->setBuddy(feld);
    // A field does not grow with the window, since rates and dates are short; a narrow window may cut it.
    constexpr int schmalste = 60;
    feld->setSizePolicy(QSizePolicy::Maximum, feld->sizePolicy().verticalPolicy());
    if (!qobject_cast<QPushButton*>(feld)) feld->setMinimumWidth(schmalste);
    std::vector<QWidget*> teile{titel, feld};
    if (auto* datum = qobject_cast<Datumsfeld*>(feld))
        teile.push_back(new Kalendertaste(feld->objectName() + "Kalender", *datum, this));
    if (*einheit != '\0') teile.push_back(new QLabel(QString::fromUtf8(einheit), this));
    QWidget* gruppe = Nebeneinander(teile);
    zeile_->addWidget(gruppe);
    return gruppe;
}

void Eingabezeile::Abstand() {
    rechts_ = Nebeneinander({});
    rechts_->layout()->setSpacing(zwischenraum);
    zeile_->addWidget(rechts_);
}

void Eingabezeile::Kennzahl(const char* beschriftung, QLabel* wert) {
    auto* gruppe = new QWidget(rechts_);
    auto* spalte = new QVBoxLayout(gruppe);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    spalte->addWidget(new QLabel(QString::fromUtf8(beschriftung)), 0, Qt::AlignRight);
    spalte->addWidget(wert, 0, Qt::AlignRight);
    rechts_->layout()->addWidget(gruppe);
}

void AnsEndeRollen(Tabelle& tabelle, std::size_t zeilen) {
    constexpr std::size_t kurze = 16;
    if (zeilen > kurze) tabelle.scrollToBottom();
}

}  // namespace zinfolio
