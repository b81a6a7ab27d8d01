// The account from empty to statement, by real keys; refusals, views, and what stays on disk.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <fstream>

#include "fenster/kontoformular.h"
#include "fenster/ui/deutsch.h"
#include "fenster/ui/uhr.h"
#include "kern/dateien/satzdatei.h"

namespace zinsstaffel_test {

using namespace zinfolio;

class ZinsstaffelTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<Form48000> form_;

    QString Summe(const char* name) { return Finde<QLabel>(form_.get(), name)->text(); }
    int Register() { return Finde<QTabWidget>(form_.get(), "TabStrip1")->currentIndex(); }

    /// Brings a tab to the front without what selecting it does.
    void OhneRechnungZeigen(Form48000::Register register_) {
        auto* leiste = Finde<QTabWidget>(form_.get(), "TabStrip1");
        const QSignalBlocker still(leiste);
        leiste->setCurrentIndex(register_);
    }

    /// 15 000 from 01.01.2007 on, 2 % and beyond 10 000 3 %, closed on 31.03.2007: 89 days of 360 bear
    /// 10 000 * 2 % * 89 / 360 + 5 000 * 3 % * 89 / 360 = 49,444... + 37,083... = 86,53.
    void Beispielkonto() {
        Zahlung(*form_, "1.1.7", "15000", "Einlage");
        Waehle(*form_, Form48000::zinssaetze);
        const Zeuge zeuge;
        Finde<QRadioButton>(form_.get(), "Option1(2)")->click();
        Fuelle(*form_, "Gültigdatum", "010107");
        Fuelle(*form_, "Gutzins1", "2");
        Fuelle(*form_, "Gutzins2", "3");
        Fuelle(*form_, "Guthabenlinie", "10000");
        Klicke(*form_, "speichern2");
        Waehle(*form_, Form48000::zinsverrechnung);
        Finde<QComboBox>(form_.get(), "Combo1")->setCurrentText("Quartalsende");
        Fuelle(*form_, "Kontodatum", "31.3.7");
    }

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void init() {
        ordner_ = std::make_unique<Testordner>();
        form_ = std::make_unique<Form48000>(ordner_->Pfad());
        Zeige(*form_);
    }
    void cleanup() {
        form_.reset();
        ordner_.reset();
    }

    void vorgabenStehenBeimOeffnen() {
        QCOMPARE(Finde<QComboBox>(form_.get(), "Combo1")->currentText(), "Jahresende");
        QCOMPARE(Finde<QComboBox>(form_.get(), "Combo3")->currentText(), "30/360 Tage : Deutsche Methode");
        QCOMPARE(form_->windowTitle(), "Zinsstaffelrechner[*]");
        OhneRechnungZeigen(Form48000::berechnung);
        QVERIFY(Finde<QComboBox>(form_.get(), "Combo6")->isVisible());
        for (const char* name : {"Label26", "ezins", "Label28"})
            QVERIFY2(!Finde<QLabel>(form_.get(), name)->isVisible(), name);
        const std::vector<std::pair<const char*, QString>> hinweise{
            {"Neu", "Neue Datei"},
            {"Öffnen", "Datei öffnen"},
            {"Schnellspeich", "Speichern"},
            {"Auswertungen", "Zinsstaffel berechnen"}};
        for (const auto& [name, hinweis] : hinweise)
            QCOMPARE(Finde<QAction>(form_.get(), name)->toolTip(), hinweis);
    }

    void abschlussdatumHatSeinenKalender() {
        Waehle(*form_, Form48000::zinsverrechnung);
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "Kontodatum");
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "Kontokalender");
        Druecke(Qt::Key_Space);
        Druecke(Qt::Key_Return);
        QCOMPARE(Finde<QLineEdit>(form_.get(), "Kontodatum")->text(), "21.11.2026");
        QVERIFY(form_->isWindowModified());
    }

    void beispielkontoStimmtAufDenCent() {
        Beispielkonto();
        Waehle(*form_, Form48000::berechnung);
        // Closing date and quarter end fall on one day, which therefore settles twice.
        QCOMPARE(Zeilen(*form_, "Grid"), 3);
        QCOMPARE(Zeile(*form_, "Grid", 0), "01.01.2007|Einlage|15.000,00|0,00|15.000,00");
        QCOMPARE(Zeile(*form_, "Grid", 1), "31.03.2007|Zinstermin|0,00|86,53|15.086,53");
        QCOMPARE(Zeile(*form_, "Grid", 2), "31.03.2007|Zinstermin|0,00|0,00|15.086,53");
        QCOMPARE(Summe("Gesamtzahlungssumme"), "15.000,00");
        QCOMPARE(Summe("Geszins"), "86,53");
        QCOMPARE(Summe("EV"), "15.086,53");
    }

    void dasErgebnisSagtWonachEsGerechnetIst() {
        Beispielkonto();
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(Finde<QLabel>(form_.get(), "Grundlage")->text(),
                 "30/360 Tage : Deutsche Methode  ·  Zinsverrechnung: Quartalsende  ·  Kontoabschluss: "
                 "31.03.2007");
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        QTest::keyClick(form_.get(), Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(Finde<QLabel>(form_.get(), "Grundlage")->text(), "");
    }

    void detailansichtenZeigenDieselbenZeilenMitMehrSpalten() {
        Beispielkonto();
        Waehle(*form_, Form48000::berechnung);
        auto* ansicht = Finde<QComboBox>(form_.get(), "Combo4");
        ansicht->setCurrentText("Detailansicht 1");
        QCOMPARE(Zeilen(*form_, "Grid"), 4);
        QCOMPARE(Zeile(*form_, "Grid", 0), "01.01.2007|Konditionenänderung|0,00|0,00|0,00|0,00");
        QCOMPARE(Zeile(*form_, "Grid", 1), "01.01.2007|Einlage|15.000,00|86,53|86,53|15.000,00");
        ansicht->setCurrentText("Detailansicht 2");
        QCOMPARE(Zeile(*form_, "Grid", 1), "01.01.2007|Einlage|15.000,00|89|86,53|0|86,53|15.000,00");
        ansicht->setCurrentText("Detailansicht 3");
        QCOMPARE(Zeile(*form_, "Grid", 2),
                 "31.03.2007|Zinstermin|2|3|10000|0|0|0|Betrag über Limit|0,00|0|0,00|86,53|0,00|15.086,53");
        QCOMPARE(Summe("EV"), "15.086,53");
    }

    void detailansicht3BehaeltDatumUndVorgangInSicht() {
        Beispielkonto();
        form_->resize(700, 600);
        Waehle(*form_, Form48000::berechnung);
        Finde<QComboBox>(form_.get(), "Combo4")->setCurrentText("Detailansicht 3");
        auto* grid = Finde<QTableView>(form_.get(), "Grid");
        const auto* feste = Finde<QTableView>(grid, "Festspalten");
        grid->horizontalScrollBar()->setValue(grid->horizontalScrollBar()->maximum());
        QVERIFY(feste->isVisible());
        QVERIFY(!feste->isColumnHidden(0) && !feste->isColumnHidden(1) && feste->isColumnHidden(2));
        QCOMPARE(feste->model()->index(0, 0).data().toString(), "01.01.2007");
    }

    void fehlendesAbschlussdatumWirdZuerstGemeldet() {
        const Zeuge zeuge;
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(zeuge.texte, QStringList{"Das Kontoschluss/-berechnungsdatum fehlt"});
        QCOMPARE(Register(), int(Form48000::zinsverrechnung));
        QCOMPARE(Fokus(), "Kontodatum");
    }

    void fehlendeZahlungenFuehrenZuIhremRegister() {
        const Zeuge zeuge;
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.12.2007");
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(zeuge.texte,
                 QStringList{"Es existieren keine Zahlungsdaten. Eine Berechnung ist nicht möglich"});
        QCOMPARE(Register(), int(Form48000::zahlungen));
    }

    void fehlendeKonditionenFuehrenZuIhremRegister() {
        const Zeuge zeuge;
        Zahlung(*form_, "01.01.2007", "100");
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.12.2007");
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(
            zeuge.texte,
            QStringList{
                "Es existieren keine Zinsdaten. Eine Berechnung ist nicht möglich. Geben Sie im Register "
                "Zinssätze die Zinsdaten ein und beenden Sie die Eingabe durch Drücken des Buttons "
                "<Eingabe übernehmen>."});
        QCOMPARE(Register(), int(Form48000::zinssaetze));
        QCOMPARE(Fokus(), "Gültigdatum");
    }

    void ungueltigesAbschlussdatumRechnetNicht() {
        const Zeuge zeuge;
        Beispielkonto();
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.02.2007");
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(Register(), int(Form48000::zinsverrechnung));
        QCOMPARE(Finde<QLineEdit>(form_.get(), "Kontodatum")->text(), "21.11.2026");
    }

    void geaenderteEingabeRechnetBeimNaechstenBetretenNeu() {
        Beispielkonto();
        Waehle(*form_, Form48000::berechnung);
        Waehle(*form_, Form48000::zahlungen);
        Zahlung(*form_, "31.03.2007", "-86,53");
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(Summe("EV"), "15.000,00");
    }

    void werkzeugleisteUndF9WaehlenDieBerechnung() {
        Beispielkonto();
        Finde<QAction>(form_.get(), "Auswertungen")->trigger();
        QCOMPARE(Register(), int(Form48000::berechnung));
        QCOMPARE(Summe("EV"), "15.086,53");
    }

    void nocheinmalGewaehltesRegisterRechnetNeu() {
        Beispielkonto();
        Waehle(*form_, Form48000::berechnung);
        const Kontodateien dateien(ordner_->Pfad());
        auto zahlungen = dateien.Zahlungen().Lesen();
        zahlungen.push_back(Zahlungssatz("31.03.2007", 13.47, ""));
        dateien.Zahlungen().Schreiben(zahlungen);
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(Summe("EV"), "15.100,00");
    }

    void verlassenEinesRegistersFuehrtZurKurzform() {
        Beispielkonto();
        Waehle(*form_, Form48000::berechnung);
        Finde<QComboBox>(form_.get(), "Combo4")->setCurrentText("Detailansicht 3");
        Waehle(*form_, Form48000::zahlungen);
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(Finde<QComboBox>(form_.get(), "Combo4")->currentText(), "Kurzform");
    }

    void berechnungLaesstIhreDateienZurueck() {
        Beispielkonto();
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(std::filesystem::file_size(ordner_->Pfad() / "Lösungsdatei"), 4U * 129);
        QCOMPARE(std::filesystem::file_size(ordner_->Pfad() / "Zinsverrechnungstermine"), 2U * 129);
    }

    void verlassenSchreibtDieEinstellungen() {
        Beispielkonto();
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        form_->close();
        const auto werte = KontoeinstellungenLesen(ordner_->Pfad());
        QCOMPARE(int(*werte.Zinsverrechnungsart), 2);
        QCOMPARE(QString::fromStdString(*werte.Kontodatum), "31.03.2007");
        QCOMPARE(int(*werte.Verzinsungsmethode), 0);
    }

    void neuesFormularBeginntLeer() {
        Beispielkonto();
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        form_->close();
        form_ = std::make_unique<Form48000>(ordner_->Pfad());
        Zeige(*form_);
        QCOMPARE(Zeilen(*form_, "List1"), 0);
        QVERIFY(!std::filesystem::exists(ordner_->Pfad() / "Zinsverrechnung"));
    }

    void beschaedigteDateiMeldetSichMitIhrerStelle() {
        Beispielkonto();
        std::ofstream(ordner_->Pfad() / "Zinsstaffel1", std::ios::binary) << std::string(129, '\x7f');
        const Zeuge zeuge;
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Bitte überprüfen Sie Ihre Angaben."));
        QVERIFY(!zeuge.einzelheiten[0].isEmpty());
        QCOMPARE(Register(), int(Form48000::zahlungen));
    }

    void zuGrosseDateiMeldetSichMitIhremNamen() {
        Beispielkonto();
        std::ofstream(ordner_->Pfad() / "Zinsstaffel1", std::ios::binary) << std::string(129 * 32768, '\0');
        const Zeuge zeuge;
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY2(zeuge.einzelheiten[0].contains("Zinsstaffel1"), qPrintable(zeuge.einzelheiten[0]));
    }
};

ZINFOLIO_FENSTERTEST(ZinsstaffelTest)

}  // namespace zinsstaffel_test

#include "zinsstaffel_test.moc"
