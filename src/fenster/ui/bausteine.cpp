#include "fenster/ui/bausteine.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
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

QScrollArea* NeuerRollrahmen(QWidget* inhalt) {
    auto* rahmen = new QScrollArea;
    rahmen->setFrameShape(QFrame::NoFrame);
    rahmen->setWidgetResizable(true);
    // Tab stops at what can be used, not at the frame around it.
    rahmen->setFocusPolicy(Qt::NoFocus);
    rahmen->setWidget(inhalt);
    // What lies below shines through: the content is a part of its page.
    rahmen->viewport()->setAutoFillBackground(false);
    inhalt->setAutoFillBackground(false);
    return rahmen;
}

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

QWidget* Nebeneinander(const std::vector<QWidget*>& elemente) {
    auto* gruppe = new QWidget;
    auto* zeile = new QHBoxLayout(gruppe);
    zeile->setContentsMargins(0, 0, 0, 0);
    for (QWidget* element : elemente)
        zeile->addWidget(element);
    return gruppe;
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
    auto* rahmen = NeuerRollrahmen(seite);
    QObject::connect(qApp, &QApplication::focusChanged, rahmen, [rahmen](QWidget*, QWidget* neues) {
        // What is clicked must not move away below the mouse.
        const bool getippt = QApplication::mouseButtons() == Qt::NoButton;
        if (getippt && neues && rahmen->widget()->isAncestorOf(neues)) rahmen->ensureWidgetVisible(neues);
    });
    return rahmen;
}

QWidget* Rollspalte(QWidget* inhalt) {
    auto* rahmen = NeuerRollrahmen(inhalt);
    rahmen->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rahmen->setFixedWidth(inhalt->sizeHint().width() + rahmen->verticalScrollBar()->sizeHint().width());
    return rahmen;
}

QShortcut* BeiEscape(QWidget* seite, const std::function<void()>& wirkung) {
    auto* taste = new QShortcut(QKeySequence(Qt::Key_Escape), seite);
    taste->setObjectName("Escape");
    taste->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(taste, &QShortcut::activated, seite, wirkung);
    return taste;
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
