#include "fenster/ui/kalendertaste.h"

#include <QCalendarWidget>
#include <QFrame>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "fenster/ui/datumsfeld.h"
#include "fenster/ui/symbol.h"
#include "fenster/ui/uhr.h"

namespace zinfolio {
namespace {

constexpr std::size_t vollesDatum = 10;

/// Closed by Escape and F4, which the month view has no use for. The field has the focus then.
class Kalenderfenster : public QFrame {
  public:
    Kalenderfenster(Datumsfeld& feld, QWidget* eltern) : QFrame(eltern, Qt::Popup), feld_(feld) {
        setAttribute(Qt::WA_DeleteOnClose);
        // The press that closes it must not open it again.
        setAttribute(Qt::WA_NoMouseReplay);
        setFrameShape(QFrame::StyledPanel);
    }

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override {
        if (ereignis->key() == Qt::Key_Escape || ereignis->key() == Qt::Key_F4)
            close();
        else
            QFrame::keyPressEvent(ereignis);
    }

    void closeEvent(QCloseEvent* ereignis) override {
        QFrame::closeEvent(ereignis);
        feld_.Anspringen();
    }

  private:
    Datumsfeld& feld_;
};

QDate Anfang(const std::string& datumstext) {
    const auto datum = datumstext.size() >= vollesDatum ? Datum::Versuche(datumstext) : std::nullopt;
    const Datum anfang = datum.value_or(Heute());
    return {anfang.Jahr(), anfang.Monat(), anfang.Tag()};
}

}  // namespace

Kalendertaste::Kalendertaste(const QString& name, Datumsfeld& feld, QWidget* eltern)
    : QPushButton(eltern), feld_(feld) {
    setObjectName(name);
    setIcon(Symbol("kalender"));
    setToolTip("Datum im Kalender wählen (F4)");
    setAccessibleName("Kalender");
    feld_.MitKalender(this);
    connect(this, &QPushButton::clicked, this, &Kalendertaste::Umschalten);
}

void Kalendertaste::Umschalten() {
    if (fenster_ && fenster_->isVisible())
        fenster_->close();
    else
        Oeffnen();
}

void Kalendertaste::Oeffnen() {
    fenster_ = new Kalenderfenster(feld_, this);
    auto* kalender = new QCalendarWidget(fenster_);
    kalender->setObjectName("mview");
    kalender->setDateRange(QDate(Datum::erstesJahr, 1, 1), QDate(Datum::letztesJahr, 12, 31));
    kalender->setSelectedDate(Anfang(feld_.Wert()));
    auto* anordnung = new QVBoxLayout(fenster_);
    anordnung->setContentsMargins(1, 1, 1, 1);
    anordnung->addWidget(kalender);
    connect(kalender, &QCalendarWidget::activated, this, &Kalendertaste::Waehlen);
    connect(kalender, &QCalendarWidget::clicked, this, &Kalendertaste::Waehlen);
    fenster_->move(mapToGlobal(QPoint(0, height())));
    fenster_->show();
    kalender->setFocus(Qt::PopupFocusReason);
}

void Kalendertaste::Waehlen(const QDate& tag) {
    // A click comes as two signals.
    if (!fenster_ || !fenster_->isVisible()) return;
    if (const auto datum = Datum::Aus(tag.year(), tag.month(), tag.day())) {
        feld_.Setze(datum->Text());
        emit feld_.textEdited(feld_.text());
    }
    fenster_->close();
}

}  // namespace zinfolio
