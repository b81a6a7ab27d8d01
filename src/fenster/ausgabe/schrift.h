#pragma once

#include <QFont>
#include <QPointF>
#include <QRawFont>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kern/bericht/bericht.h"

class QPainter;

namespace zinfolio {

/// A font of a report. Advances are taken once from the font's outlines, without hinting or kerning, so that
/// a text is equally wide on every device. Needs a QGuiApplication.
class Schrift {
  public:
    explicit Schrift(const Berichtsschrift& schrift);

    /// The advance of a character at the size that the report names, in twips.
    [[nodiscard]] double Vorschub(char32_t zeichen) const { return Finde(zeichen).vorschub * twips_; }

    /// The width of a text (UTF-8) at the size that the report names, in twips.
    [[nodiscard]] double Breite(std::string_view text) const;

  private:
    friend class Schriftlauf;

    struct Zeichen {
        /// 0: the font lacks the character.
        quint32 glyphe = 0;
        /// In parts of the font's size.
        double vorschub = 0;
    };

    [[nodiscard]] const Zeichen& Finde(char32_t zeichen) const;
    [[nodiscard]] Zeichen Vermessen(char32_t zeichen) const;

    double twips_;
    QFont font_;
    QRawFont entwurf_;
    std::vector<Zeichen> haeufige_;
    mutable std::unordered_map<char32_t, Zeichen> seltene_;
    /// The font at the size it was last drawn at.
    mutable QRawFont gesetzt_;
};

/// Texts in one font and size, collected and drawn in one go with the painter's pen. Glyphs stand where the
/// advances of the font put them, at any size. Characters that the font lacks are drawn with another one.
class Schriftlauf {
  public:
    /// `pixelJeTwip` says how large the device's pixels are, against the size that the report names.
    /// REQUIRES: both live as long as this object.
    Schriftlauf(const Schrift& schrift, QPainter& maler, double pixelJeTwip);

    /// Adds a text (UTF-8) whose baseline begins or ends there.
    void Links(QPointF grundlinie, std::string_view text);
    void Rechts(QPointF grundlinie, std::string_view text);

    /// Draws what was added.
    void Zeichnen();

  private:
    void Anfuegen(QPointF anfang, std::string_view text);

    const Schrift& schrift_;
    QPainter& maler_;
    double groesse_;
    std::vector<quint32> glyphen_;
    std::vector<QPointF> stellen_;
};

}  // namespace zinfolio
