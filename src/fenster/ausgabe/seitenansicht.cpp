#include "fenster/ausgabe/seitenansicht.h"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>
#include <utility>

namespace zinfolio {
namespace {

/// What is left free around the paper, in pixels.
constexpr int rahmen = 16;
constexpr int schattentiefe = 5;
constexpr int rastungDesRades = 120;

void SchattenMalen(QPainter& maler, const QRect& blatt) {
    maler.setPen(Qt::NoPen);
    maler.setBrush(QColor(0, 0, 0, 16));
    for (int i = schattentiefe; i > 0; --i)
        maler.drawRoundedRect(blatt.adjusted(1, 1, i, i).translated(1, 1), i, i);
}

}  // namespace

Seitenansicht::Seitenansicht(const QString& name, QWidget* eltern) : QAbstractScrollArea(eltern) {
    setObjectName(name);
    setAccessibleName("Seitenvorschau");
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(3 * rahmen);
    horizontalScrollBar()->setSingleStep(3 * rahmen);
}

void Seitenansicht::Zeigen(std::shared_ptr<const Seitenmaler> maler) {
    maler_ = std::move(maler);
    seite_ = 0;
    RollenEinrichten();
    verticalScrollBar()->setValue(0);
    viewport()->update();
    emit seiteGewechselt(seite_);
}

void Seitenansicht::SeiteWaehlen(int seite) {
    if (!maler_) return;
    seite = std::clamp(seite, 0, Seiten() - 1);
    if (seite == seite_) return;
    seite_ = seite;
    verticalScrollBar()->setValue(0);
    viewport()->update();
    emit seiteGewechselt(seite_);
}

void Seitenansicht::ZoomWaehlen(Seitenzoom zoom) {
    zoom_ = zoom;
    // Once more, since scroll bars may have come or gone.
    RollenEinrichten();
    RollenEinrichten();
    viewport()->update();
}

double Seitenansicht::Prozent() const {
    return PixelJeTwip() * twipsJeZoll / logicalDpiX() * 100;
}

/// The scale that shows the page as large as the window.
double Seitenansicht::Eingepasst() const {
    const QSize platz = maximumViewportSize() - QSize(2 * rahmen, 2 * rahmen);
    const QSizeF papier = maler_->Papier();
    const double hoch = std::max(1, platz.height()) / papier.height();
    const double rollbalken =
        zoom_.art == Seitenzoom::Art::seitenbreite && std::max(1, platz.width()) / papier.width() > hoch
            ? verticalScrollBar()->sizeHint().width()
            : 0;
    const double breit = std::max(1.0, platz.width() - rollbalken) / papier.width();
    return zoom_.art == Seitenzoom::Art::seitenbreite ? breit : std::min(breit, hoch);
}

double Seitenansicht::PixelJeTwip() const {
    if (!maler_) return 0;
    if (zoom_.art == Seitenzoom::Art::prozent) return zoom_.prozent / 100.0 * logicalDpiX() / twipsJeZoll;
    return Eingepasst();
}

/// Where the paper lies on the viewport.
QRect Seitenansicht::Blatt() const {
    const QSize groesse = (maler_->Papier() * PixelJeTwip()).toSize();
    const QSize fenster = viewport()->size();
    const int links = std::max(rahmen, (fenster.width() - groesse.width()) / 2);
    const int oben = std::max(rahmen, (fenster.height() - groesse.height()) / 2);
    return {QPoint(links - horizontalScrollBar()->value(), oben - verticalScrollBar()->value()), groesse};
}

void Seitenansicht::RollenEinrichten() {
    if (!maler_) return;
    const QSize bedarf = Blatt().size() + QSize(2 * rahmen, 2 * rahmen);
    const QSize fenster = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, bedarf.width() - fenster.width()));
    verticalScrollBar()->setRange(0, std::max(0, bedarf.height() - fenster.height()));
    horizontalScrollBar()->setPageStep(fenster.width());
    verticalScrollBar()->setPageStep(fenster.height());
}

void Seitenansicht::paintEvent(QPaintEvent* ereignis) {
    QPainter maler(viewport());
    maler.setRenderHint(QPainter::Antialiasing);
    maler.fillRect(ereignis->rect(), palette().color(QPalette::Window).darker(115));
    if (!maler_) return;
    const QRect blatt = Blatt();
    SchattenMalen(maler, blatt);
    maler.fillRect(blatt, Qt::white);
    maler.setRenderHint(QPainter::Antialiasing, false);
    maler.setClipRect(blatt);
    maler.translate(blatt.topLeft());
    maler_->Malen(maler, seite_, PixelJeTwip());
}

void Seitenansicht::resizeEvent(QResizeEvent* ereignis) {
    QAbstractScrollArea::resizeEvent(ereignis);
    RollenEinrichten();
}

void Seitenansicht::SeiteMitRad(int schritt) {
    const int vorher = seite_;
    SeiteWaehlen(seite_ + schritt);
    if (schritt < 0 && seite_ != vorher) verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

void Seitenansicht::wheelEvent(QWheelEvent* ereignis) {
    const int drehung = ereignis->angleDelta().y();
    const QScrollBar& rollen = *verticalScrollBar();
    const bool zoomen = ereignis->modifiers().testFlag(Qt::ControlModifier);
    const bool amRand = drehung < 0 ? rollen.value() == rollen.maximum() : rollen.value() == 0;
    if (drehung == 0 || (!zoomen && !amRand)) {
        rad_ = 0;
        QAbstractScrollArea::wheelEvent(ereignis);
        return;
    }
    ereignis->accept();
    rad_ += drehung;
    if (std::abs(rad_) < rastungDesRades) return;
    const int schritt = rad_ > 0 ? 1 : -1;
    rad_ = 0;
    if (zoomen)
        emit zoomVerlangt(schritt);
    else
        SeiteMitRad(-schritt);
}

}  // namespace zinfolio
