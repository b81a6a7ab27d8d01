#include "fenster/ui/umbruchzeile.h"

#include <QWidget>
#include <algorithm>

namespace zinfolio {
namespace {

int Hoehe(const std::vector<QLayoutItem*>& zeile) {
    int hoehe = 0;
    for (const QLayoutItem* element : zeile)
        hoehe = std::max(hoehe, element->sizeHint().height());
    return hoehe;
}

}  // namespace

Umbruchzeile::Umbruchzeile(QWidget* eltern) : QLayout(eltern) {
    setContentsMargins(0, 0, 0, 0);
}

void Umbruchzeile::addItem(QLayoutItem* element) {
    elemente_.emplace_back(element);
}

int Umbruchzeile::count() const {
    return static_cast<int>(elemente_.size());
}

QLayoutItem* Umbruchzeile::itemAt(int stelle) const {
    return stelle >= 0 && stelle < count() ? elemente_[static_cast<std::size_t>(stelle)].get() : nullptr;
}

QLayoutItem* Umbruchzeile::takeAt(int stelle) {
    if (!itemAt(stelle)) return nullptr;
    QLayoutItem* element = elemente_[static_cast<std::size_t>(stelle)].release();
    elemente_.erase(elemente_.begin() + stelle);
    return element;
}

int Umbruchzeile::Abstand() const {
    constexpr int ohneStil = 6;
    const int abstand = spacing();
    return abstand >= 0 ? abstand : ohneStil;
}

std::vector<Umbruchzeile::Zeile> Umbruchzeile::Zeilen(int breite) const {
    std::vector<Zeile> zeilen;
    int rest = 0;
    for (const auto& element : elemente_) {
        if (element->isEmpty()) continue;
        const int platz = element->sizeHint().width() + Abstand();
        if (zeilen.empty() || rest < platz) {
            zeilen.emplace_back();
            rest = breite + Abstand();
        }
        zeilen.back().push_back(element.get());
        rest -= platz;
    }
    return zeilen;
}

QSize Umbruchzeile::sizeHint() const {
    QSize groesse(0, 0);
    for (const auto& element : elemente_) {
        if (element->isEmpty()) continue;
        const int davor = groesse.width() > 0 ? groesse.width() + Abstand() : 0;
        groesse = {davor + element->sizeHint().width(),
                   std::max(groesse.height(), element->sizeHint().height())};
    }
    return groesse;
}

QSize Umbruchzeile::minimumSize() const {
    QSize groesse(0, 0);
    for (const auto& element : elemente_)
        if (!element->isEmpty()) groesse = groesse.expandedTo(element->minimumSize());
    return groesse;
}

int Umbruchzeile::heightForWidth(int breite) const {
    int hoehe = 0;
    for (const Zeile& zeile : Zeilen(breite))
        hoehe += Hoehe(zeile) + (hoehe > 0 ? Abstand() : 0);
    return hoehe;
}

void Umbruchzeile::setGeometry(const QRect& flaeche) {
    QLayout::setGeometry(flaeche);
    int oben = flaeche.top();
    for (const Zeile& zeile : Zeilen(flaeche.width())) {
        const int hoehe = Hoehe(zeile);
        int links = flaeche.left();
        for (QLayoutItem* element : zeile) {
            const int breite = std::min(element->sizeHint().width(), flaeche.width());
            if (element == zeile.back() && zeile.size() > 1) links = flaeche.right() + 1 - breite;
            element->setGeometry({links, oben, breite, hoehe});
            links += breite + Abstand();
        }
        oben += hoehe + Abstand();
    }
}

}  // namespace zinfolio
