#pragma once

#include <QSizeF>

#include "fenster/ausgabe/schrift.h"
#include "kern/bericht/bericht.h"
#include "kern/bericht/seitenlayout.h"

class QImage;
class QPainter;

namespace zinfolio {

/// Paints the pages of a report. The layout is made once and does not depend on what is painted on, so that
/// preview, printer, PDF and picture show the same pages. Needs a QGuiApplication.
class Seitenmaler {
  public:
    explicit Seitenmaler(Bericht bericht);
    Seitenmaler(const Seitenmaler&) = delete;
    Seitenmaler& operator=(const Seitenmaler&) = delete;
    ~Seitenmaler() = default;

    [[nodiscard]] const Bericht& Inhalt() const { return bericht_; }

    /// How many pages there are, at least one.
    [[nodiscard]] int Seiten() const { return static_cast<int>(layout_.seiten.size()); }

    /// The paper, in twips.
    [[nodiscard]] QSizeF Papier() const { return {1.0 * layout_.papierbreite, 1.0 * layout_.papierhoehe}; }

    /// Paints a page (from 0) with the upper left corner of its paper at the origin. The paper itself stays
    /// as it is; the painter's pen, brush and font do not. REQUIRES: there is such a page.
    void Malen(QPainter& maler, int seite, double pixelJeTwip) const;

    /// A page (from 0) as a picture on white paper.
    [[nodiscard]] QImage Bild(int seite, int punkteJeZoll) const;

  private:
    // `p` is pixels to the twip; the origin is where the margins meet.
    void KopfseiteMalen(QPainter& maler, const Berichtsseite& seite, double p) const;
    void TabellenseiteMalen(QPainter& maler, const Berichtsseite& seite, double p) const;
    void TitelMalen(QPainter& maler, double p) const;
    void TabelleMalen(QPainter& maler, const Berichtsseite& seite, double p) const;
    void TabellenkopfMalen(QPainter& maler, double p) const;
    void KopfzelleSetzen(Schriftlauf& lauf, std::size_t spalte, double p) const;
    void ZeileSetzen(Schriftlauf& lauf, const Zeilenbild& bild, double oben, double p) const;
    void FussMalen(QPainter& maler, int seite, double p) const;

    Bericht bericht_;
    Schrift kopfblockschrift_;
    Schrift kopfschrift_;
    Schrift zellenschrift_;
    Schrift fussschrift_;
    Seitenlayout layout_;
    Textmass zellenmass_;
};

}  // namespace zinfolio
