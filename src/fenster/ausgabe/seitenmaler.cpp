#include "fenster/ausgabe/seitenmaler.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace zinfolio {
namespace {

/// Where the baseline lies in a line of text, from its top.
constexpr double grundlinie = 0.8;
/// From the lower edge of the text's room to the baseline of the foot, in twips.
constexpr double fusstiefe = 200;
constexpr double haarlinie = 8;
constexpr double meterJeZoll = 0.0254;

constexpr QColor tinte(26, 28, 31);
constexpr QColor fussfarbe(110, 116, 124);
constexpr QColor kopfgrund(226, 231, 238);
constexpr QColor kopflinie(120, 132, 148);
constexpr QColor wechselgrund(241, 244, 248);

/// How much of the free room lies at the left of a header.
double Anteil(Kopfausrichtung ausrichtung) {
    switch (ausrichtung) {
        case Kopfausrichtung::links:
            return 0;
        case Kopfausrichtung::rechts:
            return 1;
        case Kopfausrichtung::mitte:
            break;
    }
    return 0.5;
}

/// A thin line, but never thinner than a pixel of the device.
QPen Linie(const QColor& farbe, double pixelJeTwip) {
    return {farbe, std::max(1.0, haarlinie * pixelJeTwip)};
}

Seitenlayout Legen(const Bericht& bericht, const Schrift& kopfblock, const Schrift& kopf,
                   const Schrift& zelle) {
    return SeitenlayoutBilden(bericht, [&](Schriftrolle rolle, char32_t zeichen) {
        switch (rolle) {
            case Schriftrolle::kopfblock:
                return kopfblock.Vorschub(zeichen);
            case Schriftrolle::kopf:
                return kopf.Vorschub(zeichen);
            case Schriftrolle::zelle:
                break;
        }
        return zelle.Vorschub(zeichen);
    });
}

}  // namespace

Seitenmaler::Seitenmaler(Bericht bericht)
    : bericht_(std::move(bericht)),
      kopfblockschrift_(bericht_.kopfblockschrift),
      kopfschrift_(bericht_.tabelle.kopfschrift),
      zellenschrift_(bericht_.tabelle.schrift),
      fussschrift_({.name = bericht_.tabelle.schrift.name, .punkte = 7}),
      layout_(Legen(bericht_, kopfblockschrift_, kopfschrift_, zellenschrift_)),
      zellenmass_([this](char32_t zeichen) { return zellenschrift_.Vorschub(zeichen); }) {}

void Seitenmaler::Malen(QPainter& maler, int seite, double pixelJeTwip) const {
    const Berichtsseite& inhalt = layout_.seiten.at(static_cast<std::size_t>(seite));
    maler.save();
    maler.translate(layout_.rand * pixelJeTwip, layout_.rand * pixelJeTwip);
    if (inhalt.art == Berichtsseite::Art::kopfblock) KopfseiteMalen(maler, inhalt, pixelJeTwip);
    if (inhalt.art == Berichtsseite::Art::tabelle) TabellenseiteMalen(maler, inhalt, pixelJeTwip);
    FussMalen(maler, seite, pixelJeTwip);
    maler.restore();
}

void Seitenmaler::KopfseiteMalen(QPainter& maler, const Berichtsseite& seite, double p) const {
    maler.setPen(tinte);
    Schriftlauf lauf(kopfblockschrift_, maler, layout_.kopfblockfaktor * p);
    double hoehe = grundlinie * layout_.kopfblockzeile;
    for (std::size_t zeile = seite.von; zeile < seite.bis; ++zeile, hoehe += layout_.kopfblockzeile)
        lauf.Links(QPointF(0, hoehe * p), bericht_.kopfblock[zeile]);
    lauf.Zeichnen();
}

void Seitenmaler::TitelMalen(QPainter& maler, double p) const {
    maler.setPen(tinte);
    Schriftlauf lauf(kopfblockschrift_, maler, layout_.kopfblockfaktor * p);
    double hoehe = grundlinie * layout_.kopfblockzeile;
    for (const std::string& zeile : layout_.titel) {
        lauf.Links(QPointF(0, hoehe * p), zeile);
        hoehe += layout_.kopfblockzeile;
    }
    lauf.Zeichnen();
}

void Seitenmaler::TabellenseiteMalen(QPainter& maler, const Berichtsseite& seite, double p) const {
    maler.save();
    if (HatTitel(layout_, seite)) {
        TitelMalen(maler, p);
        maler.translate(0, layout_.titelhoehe * p);
    }
    TabelleMalen(maler, seite, p);
    maler.restore();
}

void Seitenmaler::TabelleMalen(QPainter& maler, const Berichtsseite& seite, double p) const {
    TabellenkopfMalen(maler, p);
    Schriftlauf lauf(zellenschrift_, maler, layout_.tabellenfaktor * p);
    const double breite = layout_.kanten.back() * p;
    double oben = layout_.seitenzeilenhoehe + layout_.kopfhoehe;
    maler.setPen(tinte);
    for (std::size_t zeile = seite.von; zeile < seite.bis; ++zeile) {
        const Zeilenbild bild = ZeileUmbrechen(bericht_, layout_, zellenmass_, zeile);
        if ((zeile - seite.von) % 2 == 1)
            maler.fillRect(QRectF(0, oben * p, breite, bild.hoehe * p), wechselgrund);
        ZeileSetzen(lauf, bild, oben, p);
        oben += bild.hoehe;
    }
    lauf.Zeichnen();
    maler.setPen(Linie(kopflinie, p));
    maler.drawLine(QPointF(0, oben * p), QPointF(breite, oben * p));
}

void Seitenmaler::TabellenkopfMalen(QPainter& maler, double p) const {
    const double oben = layout_.seitenzeilenhoehe * p;
    const double unten = oben + layout_.kopfhoehe * p;
    const double breite = layout_.kanten.back() * p;
    maler.fillRect(QRectF(0, oben, breite, unten - oben), kopfgrund);
    maler.setPen(Linie(kopflinie, p));
    maler.drawLine(QPointF(0, unten), QPointF(breite, unten));
    maler.setPen(tinte);
    Schriftlauf lauf(kopfschrift_, maler, layout_.tabellenfaktor * p);
    double hoehe = grundlinie * layout_.kopfzeile;
    for (const std::string& zeile : layout_.seitenzeile) {
        lauf.Links(QPointF(0, hoehe * p), zeile);
        hoehe += layout_.kopfzeile;
    }
    for (std::size_t spalte = 0; spalte < layout_.koepfe.size(); ++spalte)
        KopfzelleSetzen(lauf, spalte, p);
    lauf.Zeichnen();
}

void Seitenmaler::KopfzelleSetzen(Schriftlauf& lauf, std::size_t spalte, double p) const {
    const std::vector<std::string>& zeilen = layout_.koepfe[spalte];
    const int links = layout_.kanten[spalte] + layout_.zellrand;
    const int rechts = layout_.kanten[spalte + 1] - layout_.zellrand;
    const double leer = layout_.kopfhoehe - static_cast<double>(zeilen.size()) * layout_.kopfzeile;
    double hoehe = layout_.seitenzeilenhoehe + leer / 2 + grundlinie * layout_.kopfzeile;
    for (const std::string& zeile : zeilen) {
        const double frei = rechts - links - kopfschrift_.Breite(zeile) * layout_.tabellenfaktor;
        const double stelle = links + frei * Anteil(bericht_.tabelle.spalten[spalte].kopfausrichtung);
        lauf.Links(QPointF(stelle * p, hoehe * p), zeile);
        hoehe += layout_.kopfzeile;
    }
}

void Seitenmaler::ZeileSetzen(Schriftlauf& lauf, const Zeilenbild& bild, double oben, double p) const {
    for (std::size_t spalte = 0; spalte < bild.zellen.size(); ++spalte) {
        const double rechts = (layout_.kanten[spalte + 1] - layout_.zellrand) * p;
        double hoehe = oben + layout_.zellabstand + grundlinie * layout_.tabellenzeile;
        for (const std::string& zeile : bild.zellen[spalte]) {
            lauf.Rechts(QPointF(rechts, hoehe * p), zeile);
            hoehe += layout_.tabellenzeile;
        }
    }
}

void Seitenmaler::FussMalen(QPainter& maler, int seite, double p) const {
    maler.setPen(fussfarbe);
    const double breite = layout_.papierbreite - 2.0 * layout_.rand;
    const double hoehe = layout_.papierhoehe - 2.0 * layout_.rand + fusstiefe;
    const std::string zahl = "Seite " + std::to_string(seite + 1) + " von " + std::to_string(Seiten());
    Schriftlauf lauf(fussschrift_, maler, p);
    // A title that would come near the number is left out.
    if (fussschrift_.Breite(bericht_.titel) + fussschrift_.Breite(zahl) + twipsJeZoll < breite)
        lauf.Links(QPointF(0, hoehe * p), bericht_.titel);
    lauf.Rechts(QPointF(breite * p, hoehe * p), zahl);
    lauf.Zeichnen();
}

QImage Seitenmaler::Bild(int seite, int punkteJeZoll) const {
    const double pixelJeTwip = static_cast<double>(punkteJeZoll) / twipsJeZoll;
    QImage bild((Papier() * pixelJeTwip).toSize(), QImage::Format_RGB32);
    bild.setDotsPerMeterX(qRound(punkteJeZoll / meterJeZoll));
    bild.setDotsPerMeterY(qRound(punkteJeZoll / meterJeZoll));
    bild.fill(Qt::white);
    QPainter maler(&bild);
    Malen(maler, seite, pixelJeTwip);
    return bild;
}

}  // namespace zinfolio
