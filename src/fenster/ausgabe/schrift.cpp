#include "fenster/ausgabe/schrift.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <algorithm>
#include <string>

#include "kern/grund/utf8.h"

namespace zinfolio {
namespace {

constexpr int twipsJePunkt = 20;
/// Advances are taken at a size that is large against the grid of the glyphs.
constexpr int entwurfsgroesse = 2048;
constexpr std::size_t haeufige = 256;

QFont Entwurfsfont(const Berichtsschrift& schrift) {
    QFont font(QString::fromStdString(schrift.name));
    font.setBold(schrift.fett);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setKerning(false);
    font.setStyleHint(schrift.name.find("Courier") == std::string::npos ? QFont::SansSerif
                                                                        : QFont::Monospace);
    font.setPixelSize(entwurfsgroesse);
    return font;
}

template <class Wirkung>
void JedesZeichen(std::string_view text, const Wirkung& wirkung) {
    while (!text.empty()) {
        const auto [zeichen, laenge] = Utf8Lesen(text).value_or(Utf8Zeichen{U'\uFFFD', 1});
        wirkung(zeichen);
        text.remove_prefix(laenge);
    }
}

}  // namespace

Schrift::Schrift(const Berichtsschrift& schrift)
    : twips_(schrift.punkte * twipsJePunkt),
      font_(Entwurfsfont(schrift)),
      entwurf_(QRawFont::fromFont(font_)),
      gesetzt_(entwurf_) {
    for (std::size_t i = 0; i < haeufige; ++i)
        haeufige_.push_back(Vermessen(static_cast<char32_t>(i)));
}

Schrift::Zeichen Schrift::Vermessen(char32_t zeichen) const {
    const QString text = QString::fromUcs4(&zeichen, 1);
    const auto glyphen = entwurf_.glyphIndexesForString(text);
    if (glyphen.size() != 1 || glyphen[0] == 0) {
        return {0, QFontMetricsF(font_).horizontalAdvance(text) / entwurfsgroesse};
    }
    return {glyphen[0], entwurf_.advancesForGlyphIndexes(glyphen)[0].x() / entwurfsgroesse};
}

const Schrift::Zeichen& Schrift::Finde(char32_t zeichen) const {
    if (zeichen < haeufige) return haeufige_[zeichen];
    const auto [platz, neu] = seltene_.try_emplace(zeichen);
    if (neu) platz->second = Vermessen(zeichen);
    return platz->second;
}

double Schrift::Breite(std::string_view text) const {
    double breite = 0;
    JedesZeichen(text, [&](char32_t zeichen) { breite += Vorschub(zeichen); });
    return breite;
}

Schriftlauf::Schriftlauf(const Schrift& schrift, QPainter& maler, double pixelJeTwip)
    : schrift_(schrift), maler_(maler), groesse_(schrift.twips_ * pixelJeTwip) {}

void Schriftlauf::Links(QPointF grundlinie, std::string_view text) {
    Anfuegen(grundlinie, text);
}

void Schriftlauf::Rechts(QPointF grundlinie, std::string_view text) {
    const double breite = schrift_.Breite(text) / schrift_.twips_ * groesse_;
    Anfuegen(grundlinie - QPointF(breite, 0), text);
}

void Schriftlauf::Anfuegen(QPointF anfang, std::string_view text) {
    const std::size_t vorher = glyphen_.size();
    QPointF stelle = anfang;
    JedesZeichen(text, [&](char32_t codepunkt) {
        const Schrift::Zeichen& zeichen = schrift_.Finde(codepunkt);
        glyphen_.push_back(zeichen.glyphe);
        stellen_.push_back(stelle);
        stelle.rx() += zeichen.vorschub * groesse_;
    });
    const auto neue = glyphen_.begin() + static_cast<std::ptrdiff_t>(vorher);
    if (std::find(neue, glyphen_.end(), 0U) == glyphen_.end()) return;
    glyphen_.resize(vorher);
    stellen_.resize(vorher);
    QFont font(schrift_.font_);
    font.setPixelSize(std::max(1, qRound(groesse_)));
    maler_.setFont(font);
    maler_.drawText(anfang, QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void Schriftlauf::Zeichnen() {
    if (glyphen_.empty()) return;
    QRawFont& font = schrift_.gesetzt_;
    if (font.pixelSize() != groesse_) font.setPixelSize(groesse_);
    QGlyphRun lauf;
    lauf.setRawFont(font);
    lauf.setRawData(glyphen_.data(), stellen_.data(), static_cast<int>(glyphen_.size()));
    maler_.drawGlyphRun(QPointF(), lauf);
    glyphen_.clear();
    stellen_.clear();
}

}  // namespace zinfolio
