#include "fenster/ui/optionsfeld.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QVBoxLayout>

#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {

Optionsfeld::Optionsfeld(const QString& name, const QString& titel, std::span<const std::string_view> texte,
                         std::span<const int> zahlen, QWidget* eltern)
    : QGroupBox(titel, eltern), optionen_(new QButtonGroup(this)) {
    setObjectName(name);
    auto* anordnung = new QVBoxLayout(this);
    for (std::size_t stelle = 0; stelle < texte.size(); ++stelle) {
        const int zahl = zahlen.empty() ? static_cast<int>(stelle) : zahlen[stelle];
        auto* option = new QRadioButton(Anzeigetext(texte[stelle]));
        option->setFocusPolicy(Qt::ClickFocus);
        option->setObjectName(QString("%1(%2)").arg(name).arg(zahl));
        optionen_->addButton(option, zahl);
        anordnung->addWidget(option);
    }
    connect(optionen_, &QButtonGroup::buttonToggled, this, &Optionsfeld::FokusLenken);
    optionen_->buttons().constFirst()->setChecked(true);
    connect(optionen_, &QButtonGroup::buttonToggled, this, &Optionsfeld::gewechselt);
    connect(optionen_, &QButtonGroup::buttonClicked, this, &Optionsfeld::geklickt);
}

void Optionsfeld::FokusLenken(QAbstractButton* option, bool gewaehlt) {
    option->setFocusPolicy(gewaehlt ? Qt::StrongFocus : Qt::ClickFocus);
    if (gewaehlt) setFocusProxy(option);
}

QList<QAbstractButton*> Optionsfeld::Optionen() const {
    return optionen_->buttons();
}

int Optionsfeld::Zahl() const {
    return optionen_->checkedId();
}

void Optionsfeld::Setze(int zahl) {
    QAbstractButton* option = optionen_->button(zahl);
    (option ? option : optionen_->buttons().constLast())->setChecked(true);
}

}  // namespace zinfolio
