#include "fenster/ausgabe/diagrammachsen.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "fenster/ui/meldungsfenster.h"
#include "kern/bericht/diagramm.h"
#include "kern/dates/textteile.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

/// The decimals that a readable step has: 0 for 20, 1 for 2,5.
int StellenDesSchritts(double schritt) {
    constexpr int hoechstens = 9;
    int stellen = 0;
    while (stellen < hoechstens && std::abs(schritt - std::round(schritt)) > 1e-6 * schritt) {
        schritt *= 10;
        ++stellen;
    }
    return stellen;
}

}  // namespace

void Zeilenteilung::Setzen(std::vector<std::string> texte) {
    texte_ = std::move(texte);
    breite_ = -1;
}

int Zeilenteilung::Textbreite() const {
    if (breite_ >= 0 && gemessen_ == achse_.tickLabelFont()) return breite_;
    gemessen_ = achse_.tickLabelFont();
    breite_ = 0;
    const QFontMetrics mass(gemessen_);
    for (const std::string& text : std::set<std::string>(texte_.begin(), texte_.end()))
        breite_ = std::max(breite_, mass.horizontalAdvance(Anzeigetext(Getrimmt(text))));
    return breite_;
}

std::size_t Zeilenteilung::Mindestabstand(const QCPRange& bereich) const {
    const double luecke = 1.5 * QFontMetrics(achse_.tickLabelFont()).horizontalAdvance('0');
    const double zeilen = (Textbreite() + luecke) * bereich.size() / std::max(achse_.axisRect()->width(), 1);
    return static_cast<std::size_t>(std::max(1.0, std::ceil(zeilen)));
}

double Zeilenteilung::getTickStep(const QCPRange& /*bereich*/) {
    return 1;
}

int Zeilenteilung::getSubTickCount(double /*schritt*/) {
    return 0;
}

QVector<double> Zeilenteilung::createTickVector(double /*schritt*/, const QCPRange& bereich) {
    const double letzteZeile = static_cast<double>(texte_.size()) - 1;
    const double erste = std::max(0.0, std::ceil(bereich.lower));
    const double letzte = std::min(letzteZeile, std::floor(bereich.upper));
    QVector<double> stellen;
    if (erste > letzte) return stellen;
    for (const std::size_t zeile :
         BeschrifteteZeilen(texte_, static_cast<std::size_t>(erste), static_cast<std::size_t>(letzte),
                            Mindestabstand(bereich)))
        stellen.append(static_cast<double>(zeile));
    return stellen;
}

QString Zeilenteilung::getTickLabel(double stelle, const QLocale& /*sprache*/, QChar /*format*/,
                                    int /*genauigkeit*/) {
    return Anzeigetext(Getrimmt(texte_.at(static_cast<std::size_t>(stelle))));
}

double Betragsteilung::getTickStep(const QCPRange& bereich) {
    const int zeilenhoehe = QFontMetrics(achse_.tickLabelFont()).height();
    setTickCount(std::clamp(achse_.axisRect()->height() / (3 * zeilenhoehe), 2, 10));
    const double schritt = QCPAxisTicker::getTickStep(bereich);
    nachkommastellen_ = StellenDesSchritts(schritt);
    return schritt;
}

QString Betragsteilung::getTickLabel(double stelle, const QLocale& /*sprache*/, QChar /*format*/,
                                     int /*genauigkeit*/) {
    const Zahlmuster muster{.gruppiert = true, .mindestziffern = 1, .nachkommastellen = nachkommastellen_};
    return QString::fromStdString(Format(stelle, muster));
}

}  // namespace zinfolio
