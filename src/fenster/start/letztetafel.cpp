#include "fenster/start/letztetafel.h"

#include <QToolButton>
#include <QVBoxLayout>

#include "fenster/rechner/letzteprojekte.h"

namespace zinfolio {
namespace {

constexpr qsizetype hoechstens = 6;

}  // namespace

Letztetafel::Letztetafel(std::function<QIcon(const QString&)> symbol, QWidget* eltern)
    : QGroupBox("Zuletzt geöffnet", eltern), symbol_(std::move(symbol)) {
    setObjectName("Zuletzt");
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(2);
    Auffrischen();
}

void Letztetafel::Auffrischen() {
    qDeleteAll(findChildren<QToolButton*>());
    QStringList dateien = LetzteProjekte();
    dateien.removeIf([this](const QString& datei) { return symbol_(datei).isNull(); });
    for (const QString& datei : dateien.mid(0, hoechstens)) {
        auto* taste = new QToolButton(this);
        taste->setText(Projektbezeichnung(datei).replace('&', "&&"));
        taste->setAccessibleName(Projektbezeichnung(datei));
        taste->setIcon(symbol_(datei));
        taste->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        taste->setAutoRaise(true);
        taste->setFocusPolicy(Qt::StrongFocus);
        connect(taste, &QToolButton::clicked, this, [this, datei] { emit projektGewaehlt(datei); });
        layout()->addWidget(taste);
    }
    setVisible(!dateien.isEmpty());
}

}  // namespace zinfolio
