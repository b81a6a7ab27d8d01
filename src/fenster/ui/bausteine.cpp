#include "fenster/ui/bausteine.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

/// Keeps the wheel from a control that does not have the focus; what lies below scrolls then.
class Radwaechter : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* ziel, QEvent* ereignis) override {
        const auto* element = qobject_cast<QWidget*>(ziel);
        if (ereignis->type() != QEvent::Wheel || !element || element->hasFocus()) return false;
        ereignis->ignore();
        return true;
    }
};

}  // namespace

QPushButton* NeueTaste(const char* name, const QString& beschriftung, QWidget* eltern,
                       const std::function<void()>& wirkung) {
    auto* taste = new QPushButton(beschriftung, eltern);
    taste->setObjectName(QString::fromUtf8(name));
    QObject::connect(taste, &QPushButton::clicked, eltern,
                     [eltern, wirkung] { Geschuetzt(eltern, wirkung); });
    return taste;
}

QComboBox* NeueAuswahl(std::string_view name, std::span<const std::string_view> texte, QWidget* eltern) {
    auto* auswahl = new QComboBox(eltern);
    auswahl->setObjectName(Anzeigetext(name));
    for (const std::string_view text : texte)
        auswahl->addItem(Anzeigetext(text));
    auswahl->setFocusPolicy(Qt::StrongFocus);
    auswahl->installEventFilter(new Radwaechter(auswahl));
    return auswahl;
}

QLabel* NeueKennzahl(const char* name, QWidget* eltern) {
    auto* wert = new QLabel(eltern);
    wert->setObjectName(QString::fromUtf8(name));
    wert->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont schrift = wert->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.5);
    schrift.setBold(true);
    wert->setFont(schrift);
    return wert;
}

QHBoxLayout* Tastenzeile(const std::vector<QPushButton*>& tasten) {
    auto* zeile = new QHBoxLayout;
    for (QPushButton* taste : tasten)
        zeile->addWidget(taste);
    zeile->addStretch();
    return zeile;
}

QWidget* Seite(QWidget* element, const std::vector<QPushButton*>& tasten) {
    auto* seite = new QWidget;
    auto* anordnung = new QVBoxLayout(seite);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->addWidget(element, 1);
    anordnung->addLayout(Tastenzeile(tasten));
    return seite;
}

QWidget* Rollbar(QWidget* seite) {
    auto* rahmen = new QScrollArea;
    rahmen->setFrameShape(QFrame::NoFrame);
    rahmen->setWidgetResizable(true);
    rahmen->setWidget(seite);
    return rahmen;
}

QWidget* Rollspalte(QWidget* inhalt) {
    auto* rahmen = new QScrollArea;
    rahmen->setFrameShape(QFrame::NoFrame);
    rahmen->setWidgetResizable(true);
    rahmen->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rahmen->setWidget(inhalt);
    // What lies below shines through: the column is a part of its page.
    rahmen->viewport()->setAutoFillBackground(false);
    inhalt->setAutoFillBackground(false);
    rahmen->setFixedWidth(inhalt->sizeHint().width() + rahmen->verticalScrollBar()->sizeHint().width());
    return rahmen;
}

void TabfolgeSetzen(const QWidget& form, std::initializer_list<const char*> namen) {
    QWidget* vorher = nullptr;
    for (const char* name : namen) {
        auto* element = form.findChild<QWidget*>(QString::fromUtf8(name));
        if (vorher) QWidget::setTabOrder(vorher, element);
        vorher = element;
    }
}

}  // namespace zinfolio
