#include "fenster/ui/richtextformate.h"

#include <QFont>
#include <QTextDocument>
#include <QTextList>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace zinfolio {
namespace {

enum Eigenschaft {
    verborgen = QTextFormat::UserProperty + 1,
    unterstreichungsart,
    halte,
    listeLinks,
    listeErsteZeile,
    listenbeginn,
    farbeNachHintergrund,
};

// The toolkit measures documents in pixels of 1/96 inch.
constexpr double twipsJePixel = 15;
constexpr double einfacherAbstand = 240;
// Where a list comes from elsewhere, and how far the toolkit indents its items.
constexpr int listeneinzug = 200;
constexpr int listeneinzugImDokument = 600;

template <class Unser, class Qts, std::size_t anzahl>
using Zuordnung = std::array<std::pair<Unser, Qts>, anzahl>;

template <class Unser, class Qts, std::size_t anzahl>
Qts Hin(const Zuordnung<Unser, Qts, anzahl>& zuordnung, Unser wert) {
    for (const auto& [unser, qts] : zuordnung)
        if (unser == wert) return qts;
    return zuordnung.front().second;
}

template <class Unser, class Qts, std::size_t anzahl>
Unser Zurueck(const Zuordnung<Unser, Qts, anzahl>& zuordnung, Qts wert) {
    for (const auto& [unser, qts] : zuordnung)
        if (qts == wert) return unser;
    return zuordnung.front().first;
}

// What is not in a table, either way, is the same as its first line.
constexpr Zuordnung<Zeichenlage, QTextCharFormat::VerticalAlignment, 3> lagen{{
    {Zeichenlage::normal, QTextCharFormat::AlignNormal},
    {Zeichenlage::hoch, QTextCharFormat::AlignSuperScript},
    {Zeichenlage::tief, QTextCharFormat::AlignSubScript},
}};
constexpr Zuordnung<Schreibung, QFont::Capitalization, 3> schreibungen{{
    {Schreibung::normal, QFont::MixedCase},
    {Schreibung::versalien, QFont::AllUppercase},
    {Schreibung::kapitaelchen, QFont::SmallCaps},
}};
constexpr Zuordnung<Unterstreichung, QTextCharFormat::UnderlineStyle, 3> unterstreichungen{{
    {Unterstreichung::einfach, QTextCharFormat::SingleUnderline},
    {Unterstreichung::keine, QTextCharFormat::NoUnderline},
    {Unterstreichung::gepunktet, QTextCharFormat::DotLine},
}};
constexpr Zuordnung<Ausrichtung, Qt::AlignmentFlag, 4> ausrichtungen{{
    {Ausrichtung::links, Qt::AlignLeft},
    {Ausrichtung::rechts, Qt::AlignRight},
    {Ausrichtung::mitte, Qt::AlignHCenter},
    {Ausrichtung::blocksatz, Qt::AlignJustify},
}};
constexpr Zuordnung<Tabart, QTextOption::TabType, 4> tabarten{{
    {Tabart::links, QTextOption::LeftTab},
    {Tabart::mitte, QTextOption::CenterTab},
    {Tabart::rechts, QTextOption::RightTab},
    {Tabart::dezimal, QTextOption::DelimiterTab},
}};
constexpr Zuordnung<Listenart, QTextListFormat::Style, 6> listenarten{{
    {Listenart::punkte, QTextListFormat::ListDisc},
    {Listenart::dezimal, QTextListFormat::ListDecimal},
    {Listenart::kleinbuchstaben, QTextListFormat::ListLowerAlpha},
    {Listenart::grossbuchstaben, QTextListFormat::ListUpperAlpha},
    {Listenart::kleinroemisch, QTextListFormat::ListLowerRoman},
    {Listenart::grossroemisch, QTextListFormat::ListUpperRoman},
}};

std::int16_t Begrenzt(double wert) {
    const double grenze = hoechsteLaenge;
    return static_cast<std::int16_t>(std::lround(std::clamp(wert, -grenze, grenze)));
}

double Pixel(int twips) {
    return twips / twipsJePixel;
}

std::int16_t Twips(double pixel) {
    return Begrenzt(pixel * twipsJePixel);
}

QColor NachQt(const Farbe& farbe) {
    return {farbe.rot, farbe.gruen, farbe.blau};
}

std::optional<Farbe> FarbeAus(const QTextFormat& format, int eigenschaft) {
    if (!format.hasProperty(eigenschaft)) return {};
    const QBrush pinsel = format.brushProperty(eigenschaft);
    if (pinsel.style() == Qt::NoBrush) return {};
    const QColor farbe = pinsel.color();
    const auto ton = [](int wert) { return static_cast<std::uint8_t>(wert); };
    return Farbe{ton(farbe.red()), ton(farbe.green()), ton(farbe.blue())};
}

/// Text of the palette's colour on a colour of its own must be legible on light and dark.
void FarbenSetzen(QTextCharFormat& ziel, const Zeichenformat& format) {
    constexpr int halbeHelligkeit = 128;
    if (format.hintergrund) {
        const QColor hintergrund = NachQt(*format.hintergrund);
        ziel.setBackground(hintergrund);
        ziel.setForeground(qGray(hintergrund.rgb()) < halbeHelligkeit ? Qt::white : Qt::black);
        ziel.setProperty(farbeNachHintergrund, true);
    }
    if (format.farbe) {
        ziel.setForeground(NachQt(*format.farbe));
        ziel.clearProperty(farbeNachHintergrund);
    }
}

std::optional<Farbe> TextfarbeAus(const QTextCharFormat& format) {
    if (format.boolProperty(farbeNachHintergrund)) return {};
    return FarbeAus(format, QTextFormat::ForegroundBrush);
}

void UnterstreichungSetzen(QTextCharFormat& ziel, Unterstreichung art) {
    if (art == Unterstreichung::keine) return;
    ziel.setUnderlineStyle(Hin(unterstreichungen, art));
    if (art == Unterstreichung::doppelt || art == Unterstreichung::wortweise)
        ziel.setProperty(unterstreichungsart, static_cast<int>(art));
}

Unterstreichung UnterstreichungAus(const QTextCharFormat& format) {
    // The toolkit's older property, which pasted text may have alone.
    const bool einfach = !format.hasProperty(QTextFormat::TextUnderlineStyle) && format.fontUnderline();
    const Unterstreichung art =
        einfach ? Unterstreichung::einfach : Zurueck(unterstreichungen, format.underlineStyle());
    const bool genauer = art == Unterstreichung::einfach && format.hasProperty(unterstreichungsart);
    return genauer ? static_cast<Unterstreichung>(format.intProperty(unterstreichungsart)) : art;
}

QString Schriftart(const QTextCharFormat& format, const QFont& schrift) {
    return format.fontFamilies().toStringList().value(0, schrift.family());
}

std::int16_t Groesse(const QTextCharFormat& format, const QFont& schrift) {
    constexpr double punkteJePixel = 0.75;
    if (format.hasProperty(QTextFormat::FontPointSize)) return Begrenzt(2 * format.fontPointSize());
    if (format.hasProperty(QTextFormat::FontPixelSize))
        return Begrenzt(2 * punkteJePixel * format.intProperty(QTextFormat::FontPixelSize));
    return Begrenzt(2 * schrift.pointSizeF());
}

void ZeilenabstandSetzen(QTextBlockFormat& ziel, const Absatzformat& format) {
    if (format.zeilenabstand == 0) return;
    if (format.vielfach)
        ziel.setLineHeight(format.zeilenabstand * 100 / einfacherAbstand,
                           QTextBlockFormat::ProportionalHeight);
    else if (format.zeilenabstand < 0)
        ziel.setLineHeight(Pixel(-format.zeilenabstand), QTextBlockFormat::FixedHeight);
    else
        ziel.setLineHeight(Pixel(format.zeilenabstand), QTextBlockFormat::MinimumHeight);
}

void ZeilenabstandLesen(Absatzformat& ziel, const QTextBlockFormat& format) {
    const double hoehe = format.lineHeight();
    ziel.vielfach = format.lineHeightType() == QTextBlockFormat::ProportionalHeight;
    if (ziel.vielfach) ziel.zeilenabstand = Begrenzt(hoehe * einfacherAbstand / 100);
    if (format.lineHeightType() == QTextBlockFormat::FixedHeight) ziel.zeilenabstand = Twips(-hoehe);
    if (format.lineHeightType() == QTextBlockFormat::MinimumHeight) ziel.zeilenabstand = Twips(hoehe);
}

// Bits of the property `halte`.
constexpr int bitZusammen = 1;
constexpr int bitBeimNaechsten = 2;
constexpr int bitOhneTrennung = 4;

void HalteSetzen(QTextBlockFormat& ziel, const Absatzformat& format) {
    const int bits = (format.zusammenhalten ? bitZusammen : 0) |
                     (format.beimNaechstenHalten ? bitBeimNaechsten : 0) |
                     (format.ohneTrennung ? bitOhneTrennung : 0);
    if (bits != 0) ziel.setProperty(halte, bits);
    if (format.seitenwechselDavor) ziel.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
}

void HalteLesen(Absatzformat& ziel, const QTextBlockFormat& format) {
    const int bits = format.intProperty(halte);
    ziel.zusammenhalten = (bits & bitZusammen) != 0;
    ziel.beimNaechstenHalten = (bits & bitBeimNaechsten) != 0;
    ziel.ohneTrennung = (bits & bitOhneTrennung) != 0;
    ziel.seitenwechselDavor = (format.pageBreakPolicy() & QTextFormat::PageBreak_AlwaysBefore) != 0;
}

/// The toolkit indents the items of a list by itself, further than a file tells.
void EinzugSetzen(QTextBlockFormat& ziel, const Absatzformat& format) {
    ziel.setRightMargin(Pixel(format.rechts));
    if (format.liste.art == Listenart::keine) {
        ziel.setLeftMargin(Pixel(format.links));
        ziel.setTextIndent(Pixel(format.ersteZeile));
    } else {
        ziel.setLeftMargin(Pixel(std::max(0, format.links - listeneinzugImDokument)));
        ziel.setProperty(listeLinks, int{format.links});
        ziel.setProperty(listeErsteZeile, int{format.ersteZeile});
    }
}

void EinzugLesen(Absatzformat& ziel, const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    ziel.rechts = Twips(format.rightMargin());
    const QTextList* liste = block.textList();
    if (!liste) {
        ziel.links = Twips(format.leftMargin() + format.indent() * block.document()->indentWidth());
        ziel.ersteZeile = Twips(format.textIndent());
    } else if (format.hasProperty(listeLinks)) {
        ziel.links = Begrenzt(format.intProperty(listeLinks));
        ziel.ersteZeile = Begrenzt(format.intProperty(listeErsteZeile));
    } else {
        ziel.links = Begrenzt(listeneinzug * std::max(1, liste->format().indent()));
        ziel.ersteZeile = -listeneinzug;
    }
}

Nachzeichen NachzeichenAus(const QTextListFormat& format) {
    if (!format.hasProperty(QTextFormat::ListNumberSuffix)) return Nachzeichen::punkt;
    if (format.numberSuffix().isEmpty()) return Nachzeichen::keins;
    return format.numberSuffix().startsWith(')') ? Nachzeichen::klammer : Nachzeichen::punkt;
}

Liste ListeAus(const QTextList* liste) {
    if (!liste) return {};
    const QTextListFormat format = liste->format();
    const auto beginn = format.hasProperty(listenbeginn) ? format.intProperty(listenbeginn) : 1;
    return {.art = Zurueck(listenarten, format.style()),
            .nach = NachzeichenAus(format),
            .beginn = static_cast<std::int16_t>(beginn)};
}

}  // namespace

QTextCharFormat NachQt(const Zeichenformat& format) {
    QTextCharFormat ziel;
    ziel.setFontFamilies({QString::fromStdString(format.schrift)});
    ziel.setFontPointSize(format.groesse / 2.0);
    if (format.fett) ziel.setFontWeight(QFont::Bold);
    if (format.kursiv) ziel.setFontItalic(true);
    if (format.durchgestrichen) ziel.setFontStrikeOut(true);
    if (format.verborgen) ziel.setProperty(verborgen, true);
    UnterstreichungSetzen(ziel, format.unterstreichung);
    if (format.lage != Zeichenlage::normal) ziel.setVerticalAlignment(Hin(lagen, format.lage));
    if (format.schreibung != Schreibung::normal)
        ziel.setFontCapitalization(Hin(schreibungen, format.schreibung));
    FarbenSetzen(ziel, format);
    return ziel;
}

Zeichenformat ZeichenformatAus(const QTextCharFormat& format, const QFont& schrift) {
    return {
        .schrift = Schriftart(format, schrift).toStdString(),
        .groesse = Groesse(format, schrift),
        .fett = format.fontWeight() >= QFont::DemiBold,
        .kursiv = format.fontItalic(),
        .durchgestrichen = format.fontStrikeOut(),
        .verborgen = format.boolProperty(verborgen),
        .unterstreichung = UnterstreichungAus(format),
        .lage = Zurueck(lagen, format.verticalAlignment()),
        .schreibung = Zurueck(schreibungen, format.fontCapitalization()),
        .farbe = TextfarbeAus(format),
        .hintergrund = FarbeAus(format, QTextFormat::BackgroundBrush),
    };
}

QTextBlockFormat NachQt(const Absatzformat& format) {
    QTextBlockFormat ziel;
    ziel.setAlignment(Hin(ausrichtungen, format.ausrichtung));
    EinzugSetzen(ziel, format);
    ziel.setTopMargin(Pixel(format.davor));
    ziel.setBottomMargin(Pixel(format.danach));
    ZeilenabstandSetzen(ziel, format);
    HalteSetzen(ziel, format);
    QList<QTextOption::Tab> tabulatoren;
    for (const Tabulator& tabulator : format.tabulatoren)
        tabulatoren << QTextOption::Tab(Pixel(tabulator.stelle), Hin(tabarten, tabulator.art), ',');
    if (!tabulatoren.isEmpty()) ziel.setTabPositions(tabulatoren);
    return ziel;
}

Absatzformat AbsatzformatAus(const QTextBlock& block) {
    const QTextBlockFormat format = block.blockFormat();
    Absatzformat ziel;
    const int waagerecht = format.alignment().toInt() & Qt::AlignHorizontal_Mask;
    ziel.ausrichtung = Zurueck(ausrichtungen, static_cast<Qt::AlignmentFlag>(waagerecht));
    ziel.davor = Twips(format.topMargin());
    ziel.danach = Twips(format.bottomMargin());
    EinzugLesen(ziel, block);
    ZeilenabstandLesen(ziel, format);
    HalteLesen(ziel, format);
    ziel.liste = ListeAus(block.textList());
    for (const QTextOption::Tab& tabulator : format.tabPositions())
        ziel.tabulatoren.push_back({Twips(tabulator.position), Zurueck(tabarten, tabulator.type)});
    return ziel;
}

QTextListFormat NachQt(const Liste& liste) {
    QTextListFormat ziel;
    ziel.setStyle(Hin(listenarten, liste.art));
    ziel.setIndent(1);
    if (liste.nach == Nachzeichen::klammer) ziel.setNumberSuffix(")");
    if (liste.nach == Nachzeichen::keins) ziel.setNumberSuffix("");
    if (liste.beginn != 1) ziel.setProperty(listenbeginn, int{liste.beginn});
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
    ziel.setStart(liste.beginn);
#endif
    return ziel;
}

}  // namespace zinfolio
