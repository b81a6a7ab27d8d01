// Payments from a file of a bank and from the clipboard: shown first, taken when accepted, taken back by
// Ctrl+Z.

#include "fenster/rechner/zahlungseinleser.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>

#include "fenster/allround/form61000.h"
#include "fenster/formhelfer.h"
#include "fenster/staffel/form48000.h"
#include "fenster/ui/tabelle.h"

namespace zahlungseinleser_test {

using namespace zinfolio;

/// A German bank's file in Windows-1252: lines of the bank, quoted fields, a line of another currency, one
/// without an amount.
const std::string umsaetze =
    "Kontoums\xE4tze;DE00\r\n"
    "\r\n"
    "\"Buchungstag\";\"Wertstellung\";\"Verwendungszweck\";\"Betrag\";\"W\xE4hrung\"\r\n"
    "\"02.01.2024\";\"01.01.2024\";\"Geh\xE4lter\";\"2.500,00\";\"EUR\"\r\n"
    "\"05.01.2024\";\"05.01.2024\";\"Miete\";\"-850,50\";\"EUR\"\r\n"
    "\"06.01.2024\";\"06.01.2024\";\"Reise\";\"-20,00\";\"CHF\"\r\n"
    "\"07.01.2024\";\"07.01.2024\";\"Gebühr\";\"\";\"EUR\"\r\n";

/// What the preview showed; answers it by a click on the button of that name.
struct Vorschaugast {
    explicit Vorschaugast(const char* taste) {
        uhr.callOnTimeout([this, taste] {
            auto* vorschau = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!vorschau) return;
            uhr.stop();
            if (auto* box = qobject_cast<QMessageBox*>(vorschau)) qFatal("%s", qPrintable(box->text()));
            uebersicht = Finde<QLabel>(vorschau, "Übersicht")->text();
            for (int i = 0; i < Zeilen(*vorschau, "Einzulesende"); ++i)
                zahlungen << Zeile(*vorschau, "Einzulesende", i);
            if (vorschau->findChild<Tabelle*>("Ausfälle"))
                for (int i = 0; i < Zeilen(*vorschau, "Ausfälle"); ++i)
                    ausfaelle << Zeile(*vorschau, "Ausfälle", i);
            auto* knopf = Finde<QAbstractButton>(vorschau, taste);
            frei = knopf->isEnabled();
            if (frei)
                knopf->click();
            else
                vorschau->reject();
        });
        uhr.start(5);
    }

    QTimer uhr;
    QString uebersicht;
    QStringList zahlungen;
    QStringList ausfaelle;
    bool frei = false;
};

class ZahlungseinleserTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Pruefstand<Form48000>> stand_;

    QMainWindow& Form() { return *stand_->form; }
    Tabelle& Liste(QWidget& form) { return *Finde<Tabelle>(&form, "List1"); }
    std::filesystem::path Bankdatei(const std::string& inhalt) {
        const auto datei = stand_->ablage.Pfad() / "umsaetze.csv";
        std::ofstream(datei, std::ios::binary) << inhalt;
        return datei;
    }
    /// The command of the payments; the conditions have one of that name too.
    const QAction* Zurueck() {
        for (const QAction* befehl : Liste(Form()).actions())
            if (befehl->objectName() == "LöschenRückgängig") return befehl;
        return nullptr;
    }
    void AusDatei(QWidget& form) { Finde<QAction>(&form, "DateiEinlesen")->trigger(); }
    /// Without a desktop nobody brings the window back to the front when a preview has closed.
    void InDieListe(QWidget& form) {
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        Liste(form).setFocus();
    }
    void Einfuegen(QWidget& form) {
        InDieListe(form);
        Druecke(Qt::Key_V, Qt::ControlModifier);
    }

  private slots:
    void init() { stand_ = std::make_unique<Pruefstand<Form48000>>(); }
    void cleanup() { stand_.reset(); }

    void dieVorschauZeigtWasKommtUndWasNichtUndWarum() {
        const Dateiwahl wahl(Bankdatei(umsaetze));
        Vorschaugast gast("Einlesen");
        AusDatei(Form());
        QCOMPARE(gast.uebersicht,
                 "Aus der Datei umsaetze.csv werden 2 Zahlungen übernommen. Summe: 1.649,50 €");
        QCOMPARE(gast.zahlungen, (QStringList{"01.01.2024|2.500,00|Gehälter", "05.01.2024|-850,50|Miete"}));
        QCOMPARE(gast.ausfaelle.size(), 2);
        QCOMPARE(gast.ausfaelle[0],
                 "6|06.01.2024 | 06.01.2024 | Reise | -20,00 | CHF|Der Betrag hat die Währung \"CHF\".");
        QVERIFY(gast.ausfaelle[1].endsWith("|Der Betrag fehlt."));
        QCOMPARE(Zeilen(Form(), "List1"), 2);
        QCOMPARE(Zeile(Form(), "List1", 1), "05.01.2024|-850,50|Miete");
        QVERIFY(Form().isWindowModified());
    }

    void abgebrochenKommtNichtsInDieListe() {
        const Dateiwahl wahl(Bankdatei(umsaetze));
        Vorschaugast gast("Abbrechen");
        AusDatei(Form());
        QCOMPARE(gast.zahlungen.size(), 2);
        QCOMPARE(Zeilen(Form(), "List1"), 0);
        QVERIFY(!Form().isWindowModified());
        QVERIFY(!Zurueck()->isEnabled());
    }

    void zeilenDerZwischenablageKommenEbenso() {
        QApplication::clipboard()->setText("01.02.2024\t1.000,00 €\tEinlage\n15.02.2024\t-5,25\tGebühr\n");
        Vorschaugast gast("Einlesen");
        Einfuegen(Form());
        QCOMPARE(gast.uebersicht, "Aus der Zwischenablage werden 2 Zahlungen übernommen. Summe: 994,75 €");
        QVERIFY(gast.ausfaelle.isEmpty());
        QCOMPARE(Zeile(Form(), "List1", 0), "01.02.2024|1.000,00|Einlage");
        QCOMPARE(Zeile(Form(), "List1", 1), "15.02.2024|-5,25|Gebühr");
    }

    void kopierteZeilenDerEigenenListeLassenSichEinfuegen() {
        QApplication::clipboard()->setText("01.02.2024\t10,00\tEins\n");
        {
            Vorschaugast gast("Einlesen");
            Einfuegen(Form());
        }
        // The new row is the marked one.
        InDieListe(Form());
        Druecke(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "01.02.2024\t10,00\tEins\n");
        Vorschaugast gast("Einlesen");
        Einfuegen(Form());
        QCOMPARE(Zeilen(Form(), "List1"), 2);
        QCOMPARE(Zeile(Form(), "List1", 1), "01.02.2024|10,00|Eins");
    }

    void eineKopierteDateiWirdGelesen() {
        auto* inhalt = new QMimeData;
        inhalt->setUrls({QUrl::fromLocalFile(QString::fromStdString(Bankdatei(umsaetze).string()))});
        QApplication::clipboard()->setMimeData(inhalt);
        Vorschaugast gast("Einlesen");
        Einfuegen(Form());
        QCOMPARE(Zeilen(Form(), "List1"), 2);
    }

    void strgZNimmtDasEinlesenZurueckUndDavorDasLoeschen() {
        QApplication::clipboard()->setText("01.02.2024\t10,00\tEins\n02.02.2024\t20,00\tZwei\n");
        {
            Vorschaugast gast("Einlesen");
            Einfuegen(Form());
        }
        const QAction* zurueck = Zurueck();
        QCOMPARE(zurueck->text().remove('&'), "Einlesen rückgängig");
        InDieListe(Form());
        const Zeuge zeuge;
        Druecke(Qt::Key_Delete);
        QCOMPARE(Zeilen(Form(), "List1"), 1);
        QCOMPARE(zurueck->text().remove('&'), "Löschen rückgängig");
        InDieListe(Form());
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Zeilen(Form(), "List1"), 2);
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Zeilen(Form(), "List1"), 0);
        QVERIFY(!zurueck->isEnabled());
    }

    void woNichtsZuHolenIstLaesstSichNichtsUebernehmen() {
        QApplication::clipboard()->setText("Datum\tBetrag\n31.02.2024\t10,00\n");
        Vorschaugast gast("Einlesen");
        Einfuegen(Form());
        QCOMPARE(gast.uebersicht, "Aus der Zwischenablage kann keine Zahlung übernommen werden.");
        QVERIFY(!gast.frei);
        QCOMPARE(gast.ausfaelle, QStringList("2|31.02.2024 | 10,00|\"31.02.2024\" ist kein Datum."));
        QCOMPARE(Zeilen(Form(), "List1"), 0);
    }

    void wasKeineTabelleIstWirdGesagt() {
        const Zeuge zeuge;
        QApplication::clipboard()->setText("Hallo");
        Einfuegen(Form());
        const Dateiwahl fehlende(stand_->ablage.Pfad() / "fehlt.csv");
        AusDatei(Form());
        QCOMPARE(zeuge.texte.size(), 2);
        QCOMPARE(
            zeuge.texte[0],
            "Aus der Zwischenablage können keine Zahlungen gelesen werden.\n\nKeine Zeile nennt Spalten für "
            "Datum und Betrag.");
        QVERIFY2(
            zeuge.texte[1].startsWith("Aus der Datei fehlt.csv können keine Zahlungen gelesen werden.\n\n"),
            qPrintable(zeuge.texte[1]));
    }

    void derEffektivzinsrechnerLiestSieAuch() {
        Pruefstand<Form61000> reihe;
        const Dateiwahl wahl(Bankdatei(umsaetze));
        Vorschaugast gast("Einlesen");
        AusDatei(*reihe.form);
        QCOMPARE(Zeilen(*reihe.form, "List1"), 2);
        QCOMPARE(Zeile(*reihe.form, "List1", 0), "01.01.2024|2.500,00|Gehälter");
        InDieListe(*reihe.form);
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Zeilen(*reihe.form, "List1"), 0);
    }
};

ZINFOLIO_FENSTERTEST(ZahlungseinleserTest)

}  // namespace zahlungseinleser_test

#include "zahlungseinleser_test.moc"
