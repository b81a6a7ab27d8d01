#include "fenster/ausgabe/export.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QPrinter>
#include <optional>

#include "fenster/ausgabe/druck.h"
#include "fenster/ausgabe/druckdialog.h"
#include "fenster/ausgabe/fortschrittsfenster.h"
#include "fenster/ausgabe/pdf.h"
#include "fenster/ui/ablagehinweis.h"
#include "fenster/ui/dateidialog.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/bericht/htmlbericht.h"
#include "kern/bericht/rtfbericht.h"
#include "kern/dateien/atomar.h"

namespace zinfolio {
namespace {

namespace fs = std::filesystem;

constexpr int bildpunkteJeZoll = 200;
constexpr qsizetype laengeDerEndung = 4;

using Abbruch = Fortschrittsfenster::Abbruch;

/// The file to write, with the ending without its point; nothing where the user cancelled.
std::optional<fs::path> NachNamenFragen(const Exportauftrag& auftrag, const QString& endung) {
    const auto gewaehlt =
        DateiFragen(auftrag.fenster, {.titel = "Exportieren",
                                      .filter = auftrag.filter.arg(endung),
                                      .endung = endung,
                                      .vorgabe = Namensvorschlag(*auftrag.fenster, "Bericht", endung)});
    if (!gewaehlt || gewaehlt->empty()) return std::nullopt;
    fs::path datei = Exportname(*gewaehlt, '.' + endung);
    if (datei != *gewaehlt && !DarfUeberschreiben(auftrag.fenster, datei)) return std::nullopt;
    return datei;
}

/// The report as a text of its kind; nothing where the user cancelled.
std::optional<std::string> AlsText(QWidget* fenster, Exportziel ziel, const Bericht& bericht) {
    Fortschrittsfenster anzeige(fenster, "Der Bericht wird geschrieben …", Abbruch::moeglich);
    std::string text;
    const Berichtssenke senke = [&](std::string_view teil) { text += teil; };
    const bool fertig = ziel == Exportziel::rtf ? RtfBerichtSchreiben(bericht, senke, anzeige.Zuhoerer())
                                                : HtmlBerichtSchreiben(bericht, senke, anzeige.Zuhoerer());
    if (!fertig) return std::nullopt;
    return text;
}

}  // namespace

fs::path Exportname(const fs::path& gewaehlt, const QString& endung) {
    QString name = QString::fromStdString(gewaehlt.filename().string());
    if (name.size() > laengeDerEndung) name.chop(laengeDerEndung);
    return gewaehlt.parent_path() / (name + endung).toStdString();
}

void DruckerExport(const Exportauftrag& auftrag, const Seitenmaler& maler) {
    QPrinter drucker(QPrinter::HighResolution);
    DruckEinrichten(drucker, maler.Inhalt());
    if (!DruckerFragen(auftrag.fenster, drucker)) return;
    Fortschrittsfenster anzeige(auftrag.fenster, "Der Bericht wird gedruckt …", Abbruch::unmoeglich);
    if (!Drucken(maler, drucker, anzeige.Zuhoerer()))
        MeldungZeigen(auftrag.fenster, {.text = "Der Bericht kann nicht gedruckt werden."});
    else if (const QString datei = drucker.outputFileName(); !datei.isEmpty())
        Ablagehinweis::Zeigen(*auftrag.fenster, datei.toStdString());
}

void PdfExport(const Exportauftrag& auftrag, const Seitenmaler& maler) {
    MitSchreibmeldung(auftrag.fenster, [&] {
        const auto datei = NachNamenFragen(auftrag, "pdf");
        if (!datei) return;
        Fortschrittsfenster anzeige(auftrag.fenster, "Die PDF-Datei wird geschrieben …", Abbruch::moeglich);
        if (PdfSchreiben(maler, *datei, anzeige.Zuhoerer())) Ablagehinweis::Zeigen(*auftrag.fenster, *datei);
    });
}

void TextExport(const Exportauftrag& auftrag, Exportziel ziel, const Bericht& bericht) {
    const QString endung = ziel == Exportziel::rtf ? "rtf" : "htm";
    MitSchreibmeldung(auftrag.fenster, [&] {
        const auto text = AlsText(auftrag.fenster, ziel, bericht);
        if (!text) return;
        AtomarSchreiben(auftrag.arbeitsordner / ("Zwispei." + endung.toStdString()), *text,
                        Sicherung::Fluechtig);
        const auto datei = NachNamenFragen(auftrag, endung);
        if (!datei) return;
        AtomarSchreiben(*datei, *text, Sicherung::Dauerhaft);
        Ablagehinweis::Zeigen(*auftrag.fenster, *datei);
    });
}

void ZwischenspeicherExport(const Seitenmaler& maler, int seite) {
    QGuiApplication::clipboard()->setImage(maler.Bild(seite, bildpunkteJeZoll));
}

}  // namespace zinfolio
