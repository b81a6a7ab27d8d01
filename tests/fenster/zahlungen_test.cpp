// The tab "Zahlungen": entry, series with preview, change, deletion and its undoing.

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>

#include "fenster/kontoformular.h"
#include "fenster/ui/uhr.h"

namespace zahlungen_test {

using namespace zinfolio;

class ZahlungenTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<Form48000> form_;

    [[nodiscard]] std::vector<Staffelsatz> Datei() const {
        return Kontodateien(ordner_->Pfad()).Zahlungen().Lesen();
    }
    QString Text(const char* name) { return Finde<QLineEdit>(form_.get(), name)->text(); }

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void init() {
        ordner_ = std::make_unique<Testordner>();
        form_ = std::make_unique<Form48000>(ordner_->Pfad());
        Zeige(*form_);
        Finde<QLineEdit>(form_.get(), "Begdatum")->setFocus(Qt::TabFocusReason);
    }
    void cleanup() {
        form_.reset();
        ordner_.reset();
    }

    void neuesKontoIstLeer() {
        QCOMPARE(Zeilen(*form_, "List1"), 0);
        QCOMPARE(Text("Ratzahl"), "1");
        QCOMPARE(Text("Abstand"), "1");
        QCOMPARE(Finde<QComboBox>(form_.get(), "Combo5")->currentText(), "Monaten");
    }

    void enterFuehrtDurchDieFelder() {
        QStringList weg;
        for (int i = 0; i < 6; ++i) {
            weg << Fokus();
            Druecke(Qt::Key_Return);
        }
        QCOMPARE(weg, (QStringList{"Begdatum", "Betrag", "Beschreibung", "Ratzahl", "Abstand", "Combo5"}));
        QCOMPARE(Fokus(), "Check1");
    }

    void tabGehtVonDenFeldernZurListeUndIhrenTasten() {
        Zahlung(*form_, "01.01.2007", "100");
        Finde<QPushButton>(form_.get(), "Speichern")->setFocus();
        QStringList weg;
        for (int i = 0; i < 5; ++i) {
            weg << Fokus();
            Druecke(Qt::Key_Tab);
        }
        QCOMPARE(weg, (QStringList{"Speichern", "List1", "Bearbeiten", "Löschen", "Datumsortieren"}));
    }

    void tabGehtVomDatumZuSeinemKalenderUndDannZumBetrag() {
        QCOMPARE(Fokus(), "Begdatum");
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "Command6");
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "Betrag");
    }

    void einzelneZahlungWirdUeberDieTastaturEingegeben() {
        Tippe("1.2.7");
        Druecke(Qt::Key_Return);
        Tippe("-1234,5");
        Druecke(Qt::Key_Return);
        Tippe("Miete");
        Klicke(*form_, "Speichern");
        QCOMPARE(Zeilen(*form_, "List1"), 1);
        QCOMPARE(Zeile(*form_, "List1", 0), "01.02.2007|-1.234,50|Miete");
        QCOMPARE(Datei().size(), 1U);
        QCOMPARE(Datei()[0].Zahlbetrag, -1234.5);
    }

    void ohneDatumWirdAbgelehntUndDerFokusStehtImDatum() {
        const Zeuge zeuge;
        Fuelle(*form_, "Betrag", "100");
        Klicke(*form_, "Speichern");
        QCOMPARE(zeuge.texte, QStringList{"Unvollständige Daten. Eine Übernahme ist nicht möglich."});
        QCOMPARE(Fokus(), "Begdatum");
        QCOMPARE(Text("Betrag"), "100");
        QCOMPARE(Datei().size(), 0U);
    }

    void dynamisierungOhneStufenWirdAbgelehnt() {
        const Zeuge zeuge;
        Finde<QCheckBox>(form_.get(), "Check1")->setChecked(true);
        Zahlung(*form_, "01.01.2007", "100");
        QCOMPARE(zeuge.texte,
                 QStringList{"Sie haben Dynamisierung der Zahlungen angekreuzt, aber nicht die Anzahl "
                             "der Stufen angegeben."});
        QCOMPARE(Fokus(), "Stufen");
    }

    void reiheZeigtErstIhreVorschau() {
        Fuelle(*form_, "Ratzahl", "3");
        Zahlung(*form_, "30.01.2007", "0,5", "Rate");
        QCOMPARE(Zeilen(*form_, "Grid2"), 3);
        QCOMPARE(Zeile(*form_, "Grid2", 0), "1|30.01.2007|,50");
        QCOMPARE(Zeile(*form_, "Grid2", 1), "2|28.02.2007|,50");
        QCOMPARE(Zeile(*form_, "Grid2", 2), "3|30.03.2007|,50");
        QCOMPARE(Fokus(), "Command3");
        QCOMPARE(Datei().size(), 0U);
        Druecke(Qt::Key_Return);
        QCOMPARE(Datei().size(), 3U);
        QCOMPARE(Zeile(*form_, "List1", 2), "30.03.2007|0,50|Rate");
        QCOMPARE(Text("Ratzahl"), "1");
    }

    void verworfeneVorschauSchreibtNichts() {
        Fuelle(*form_, "Ratzahl", "3");
        Zahlung(*form_, "30.01.2007", "100");
        Klicke(*form_, "Command4");
        QCOMPARE(Datei().size(), 0U);
        QVERIFY(Finde<QWidget>(form_.get(), "List1")->isVisible());
    }

    void escVerwirftDieVorschauUndDieEingabeBleibt() {
        Fuelle(*form_, "Ratzahl", "3");
        Zahlung(*form_, "01.07.2007", "100");
        QVERIFY(Finde<QWidget>(form_.get(), "Grid2")->isVisible());
        Finde<QWidget>(form_.get(), "Betrag")->setFocus();
        Druecke(Qt::Key_Escape);
        QVERIFY(!Finde<QWidget>(form_.get(), "Grid2")->isVisible());
        QCOMPARE(Zeilen(*form_, "List1"), 0);
        QCOMPARE(Finde<QLineEdit>(form_.get(), "Betrag")->text(), "100");
        QVERIFY(Finde<QWidget>(form_.get(), "Betrag")->hasFocus());
    }

    void stufenMitProzentVerrechnenSich() {
        Finde<QCheckBox>(form_.get(), "Check1")->setChecked(true);
        Fuelle(*form_, "Stufen", "3");
        Fuelle(*form_, "Delta", "10");
        Zahlung(*form_, "01.01.2007", "100");
        Klicke(*form_, "Command3");
        QCOMPARE(Zeile(*form_, "List1", 0), "01.01.2007|100,00|");
        QCOMPARE(Zeile(*form_, "List1", 1), "01.02.2007|110,00|");
        QCOMPARE(Zeile(*form_, "List1", 2), "01.03.2007|121,00|");
    }

    void einheitDerStufenWirdMitDerTasteGewechselt() {
        Finde<QCheckBox>(form_.get(), "Check1")->setChecked(true);
        Klicke(*form_, "Command1");
        QCOMPARE(Finde<QPushButton>(form_.get(), "Command1")->text(), "€");
        Klicke(*form_, "Command1");
        QCOMPARE(Finde<QPushButton>(form_.get(), "Command1")->text(), "%");
    }

    void monatsendeRegelWirdNurAmMonatsletztenAngeboten_data() {
        QTest::addColumn<QString>("datum");
        QTest::addColumn<bool>("angeboten");
        QTest::newRow("28.02.2007") << "28.02.2007" << true;
        QTest::newRow("30.04.2007") << "30.04.2007" << true;
        QTest::newRow("31.01.2007") << "31.01.2007" << false;
        QTest::newRow("28.02.2008") << "28.02.2008" << false;
    }
    void monatsendeRegelWirdNurAmMonatsletztenAngeboten() {
        QFETCH(QString, datum);
        QFETCH(bool, angeboten);
        Fuelle(*form_, "Begdatum", datum);
        QCOMPARE(Finde<QCheckBox>(form_.get(), "Check2")->isVisible(), angeboten);
    }

    void datumDerLetztenZahlungLaeuftMit() {
        Fuelle(*form_, "Begdatum", "31.01.2007");
        Fuelle(*form_, "Ratzahl", "3");
        QCOMPARE(Finde<QLabel>(form_.get(), "Datumrech")->text(), "31.03.2007");
        Fuelle(*form_, "Abstand", "");
        QCOMPARE(Finde<QLabel>(form_.get(), "Datumrech")->text(), "");
    }

    void aenderungTrifftNurDieMarkierteZahlung() {
        Zahlung(*form_, "01.01.2007", "100", "alt");
        Zahlung(*form_, "02.01.2007", "200", "bleibt");
        Finde<Tabelle>(form_.get(), "List1")->Markiere(0);
        Klicke(*form_, "Bearbeiten");
        QCOMPARE(Text("Betrag"), "100");
        Fuelle(*form_, "Betrag", "-50,25");
        Klicke(*form_, "übernehmen");
        QCOMPARE(Zeile(*form_, "List1", 0), "01.01.2007|-50,25|alt");
        QCOMPARE(Zeile(*form_, "List1", 1), "02.01.2007|200,00|bleibt");
    }

    void verworfeneAenderungLaesstAllesStehen() {
        Zahlung(*form_, "01.01.2007", "100");
        Klicke(*form_, "Bearbeiten");
        Fuelle(*form_, "Betrag", "1");
        Klicke(*form_, "verwerfen");
        QCOMPARE(Zeile(*form_, "List1", 0), "01.01.2007|100,00|");
        QCOMPARE(Text("Betrag"), "");
    }

    void bearbeitenOhneMarkierungBittetUmEine() {
        const Zeuge zeuge;
        Klicke(*form_, "Bearbeiten");
        QCOMPARE(zeuge.texte, QStringList{"Bitte den zu bearbeitenden Datensatz markieren !"});
        QCOMPARE(zeuge.titel, QStringList{"Datensatz markieren !"});
    }

    void loeschenFragtUndLaesstSichZuruecknehmen() {
        Zahlung(*form_, "01.01.2007", "100");
        Zahlung(*form_, "02.01.2007", "200");
        Zahlung(*form_, "03.01.2007", "300");
        Finde<Tabelle>(form_.get(), "List1")->Markiere(1);
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Klicke(*form_, "Löschen");
        QCOMPARE(Zeilen(*form_, "List1"), 3);
        zeuge.antwort = Antwort::ja;
        Klicke(*form_, "Löschen");
        QCOMPARE(zeuge.texte[1], "Sollen die markierten Zahlungsreihen wirklich gelöscht werden ?");
        QCOMPARE(zeuge.titel[1], "Datensatz löschen ?");
        QCOMPARE(Zeilen(*form_, "List1"), 2);
        Finde<QAction>(Finde<QWidget>(form_.get(), "Frame1"), "LöschenRückgängig")->trigger();
        QCOMPARE(Zeile(*form_, "List1", 1), "02.01.2007|200,00|");
        QCOMPARE(Datei().size(), 3U);
    }

    void ohneMarkierungWerdenAufFrageAlleGeloescht() {
        Zahlung(*form_, "01.01.2007", "100");
        Zahlung(*form_, "02.01.2007", "200");
        Finde<Tabelle>(form_.get(), "List1")->clearSelection();
        const Zeuge zeuge;
        Klicke(*form_, "Löschen");
        QCOMPARE(zeuge.texte,
                 QStringList{
                     "Es ist kein einzelner Datensatz markiert. Sollen alle Datensätze gelöscht werden ?"});
        QCOMPARE(zeuge.titel, QStringList{"Datensatz markieren !"});
        QCOMPARE(Datei().size(), 0U);
    }

    void sortierenOrdnetNachDatum() {
        Zahlung(*form_, "03.01.2007", "300");
        Zahlung(*form_, "01.01.2007", "100");
        Klicke(*form_, "Datumsortieren");
        QCOMPARE(Zeile(*form_, "List1", 0), "01.01.2007|100,00|");
    }

    void auswahlWirdMitStrgCAlsTabellentextKopiert() {
        Zahlung(*form_, "01.01.2007", "1000", "Gehalt");
        auto* liste = Finde<Tabelle>(form_.get(), "List1");
        liste->setFocus();
        liste->selectAll();
        Druecke(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "01.01.2007\t1.000,00\tGehalt\n");
    }

    void nichtSchreibbarerOrdnerVerliertKeineEingabe() {
        const Zeuge zeuge;
        Fuelle(*form_, "Begdatum", "01.01.2007");
        Fuelle(*form_, "Betrag", "100");
        std::filesystem::remove_all(ordner_->Pfad());
        Klicke(*form_, "Speichern");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY2(zeuge.einzelheiten[0].contains("Zinsstaffel1"), qPrintable(zeuge.einzelheiten[0]));
        QCOMPARE(Text("Begdatum"), "01.01.2007");
        QCOMPARE(Text("Betrag"), "100");
    }
};

ZINFOLIO_FENSTERTEST(ZahlungenTest)

}  // namespace zahlungen_test

#include "zahlungen_test.moc"
