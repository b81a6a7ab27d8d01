#include "fenster/start/rechnertaste.h"

#include <QHBoxLayout>
#include <QLabel>

namespace zinfolio {

Rechnertaste::Rechnertaste(const QIcon& symbol, const QString& titel, const QString& erklaerung) {
    setAccessibleName(titel);
    setAccessibleDescription(erklaerung);
    const int kante = 2 * fontMetrics().height();
    auto* bild = new QLabel;
    bild->setPixmap(symbol.pixmap(kante, kante));
    auto* name = new QLabel(titel);
    QFont fett = name->font();
    fett.setBold(true);
    name->setFont(fett);
    auto* satz = new QLabel(erklaerung);
    satz->setWordWrap(true);
    auto* texte = new QVBoxLayout;
    texte->setSpacing(2);
    texte->addWidget(name);
    texte->addWidget(satz, 1, Qt::AlignTop);
    auto* anordnung = new QHBoxLayout(this);
    anordnung->setContentsMargins(12, 10, 12, 10);
    anordnung->setSpacing(12);
    anordnung->addWidget(bild, 0, Qt::AlignTop);
    anordnung->addLayout(texte, 1);
    // May grow: a fixed height would be that of two lines, however many the width asks for.
    QSizePolicy platz(QSizePolicy::Preferred, QSizePolicy::Minimum);
    platz.setHeightForWidth(true);
    setSizePolicy(platz);
}

QSize Rechnertaste::sizeHint() const {
    return layout()->totalSizeHint();
}

QSize Rechnertaste::minimumSizeHint() const {
    return layout()->totalMinimumSize();
}

int Rechnertaste::heightForWidth(int breite) const {
    return layout()->totalHeightForWidth(breite);
}

}  // namespace zinfolio
