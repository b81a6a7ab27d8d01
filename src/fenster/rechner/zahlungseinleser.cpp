#include "fenster/rechner/zahlungseinleser.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

#include "fenster/rechner/importvorschau.h"
#include "fenster/ui/dateidialog.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/dateien/csvlesen.h"
#include "kern/dateien/dateifehler.h"
#include "kern/dateien/ganzedatei.h"

namespace zinfolio {
namespace {

/// Reads a text, shows what it brings and asks. `herkunft` begins a sentence in the dative: "der Datei".
Eingelesene Einlesen(const Einleseauftrag& auftrag, const QString& herkunft,
                     const std::function<std::string()>& lesen) {
    QString grund;
    try {
        Zahlungsimport ergebnis = ZahlungenEinlesen(lesen(), auftrag.platz);
        Importvorschau vorschau(ergebnis, herkunft, auftrag.tabelle(ergebnis.zahlungen),
                                auftrag.fenster->window());
        if (vorschau.exec() == QDialog::Accepted) return std::move(ergebnis.zahlungen);
        return std::nullopt;
    } catch (const Csvfehler& fehler) {
        grund = fehler.Zeile() > 1 ? QString("Zeile %1: ").arg(fehler.Zeile()) : QString();
        grund += QString::fromUtf8(fehler.what());
    } catch (const Dateifehler& fehler) {
        grund = QString::fromUtf8(fehler.what());
    }
    MeldungZeigen(auftrag.fenster,
                  {.text = "Aus " + herkunft + " können keine Zahlungen gelesen werden.\n\n" + grund});
    return std::nullopt;
}

Eingelesene AusDatei(const Einleseauftrag& auftrag, const std::filesystem::path& datei) {
    return Einlesen(auftrag, "der Datei " + QString::fromStdString(datei.filename().string()),
                    [&] { return GanzeDateiLesen(datei, hoechsteDateilaenge); });
}

}  // namespace

Eingelesene ZahlungenAusDatei(const Einleseauftrag& auftrag) {
    const auto datei =
        DateiFragen(auftrag.fenster->window(), {.zweck = Dateifrage::Zweck::oeffnen,
                                                .titel = "Zahlungen einlesen",
                                                .filter = "Tabellen (*.csv *.CSV *.txt *.TXT) |*.csv;*.txt",
                                                .endung = "csv"});
    return datei ? AusDatei(auftrag, *datei) : std::nullopt;
}

Eingelesene ZahlungenAusZwischenablage(const Einleseauftrag& auftrag) {
    const QMimeData* inhalt = QGuiApplication::clipboard()->mimeData();
    const QList<QUrl> adressen = inhalt->urls();
    if (adressen.size() == 1 && adressen[0].isLocalFile())
        return AusDatei(auftrag, adressen[0].toLocalFile().toStdString());
    return Einlesen(auftrag, "der Zwischenablage", [inhalt] { return inhalt->text().toStdString(); });
}

}  // namespace zinfolio
