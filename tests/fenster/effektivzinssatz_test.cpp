// The account's effective rate: button, sixth tab, derivation, and what stays on disk.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "fenster/kontoformular.h"
#include "fenster/ui/uhr.h"

namespace effektivzinssatz_test {

using namespace zinfolio;

class EffektivzinssatzTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<Form48000> form_;

    QLabel* Label(const char* name) { return Finde<QLabel>(form_.get(), name); }
    int Registerzahl() { return Finde<QTabWidget>(form_.get(), "TabStrip1")->count(); }
    QString Kopf(int spalte) {
        return Finde<QTableView>(form_.get(), "Grid1")
            ->model()
            ->headerData(spalte, Qt::Horizontal)
            .toString();
    }

    /// The first page of the preview, as its HTML file says it.
    QString Vorschautext() {
        const auto datei = ordner_->Pfad() / "Vorschau.htm";
        const Dateiwahl wahl(datei);
        Finde<QComboBox>(form_.get(), "Combo18")->setCurrentIndex(3);
        Klicke(*form_, "Command12");
        return QString::fromStdString(Inhalt(datei));
    }

    /// 1 000 for one year at 10 %: the closing balance is 1 100, the yield 10 % by every method on 360 days.
    void Jahreskonto(const QString& zinssatz) {
        Zahlung(*form_, "31.12.2006", "1000");
        Waehle(*form_, Form48000::zinssaetze);
        const Zeuge zeuge;
        Fuelle(*form_, "Gültigdatum", "31.12.2006");
        Fuelle(*form_, "Gutzins1", zinssatz);
        Fuelle(*form_, "Guthabenlinie", "9999999");
        Fuelle(*form_, "Kreditlinie", "9999999");
        Klicke(*form_, "speichern2");
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.12.2007");
        Waehle(*form_, Form48000::berechnung);
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

    void vorErsterBerechnungGibtEsFuenfRegister() {
        Jahreskonto("10");
        QCOMPARE(Registerzahl(), 5);
        QVERIFY(!Label("ezins")->isVisible());
        QCOMPARE(Finde<QComboBox>(form_.get(), "Combo6")->currentText(), "PAngV2000");
    }

    void renditeEinesJahresStehtAufDemSechstenRegister() {
        Jahreskonto("10");
        QCOMPARE(Label("EV")->text(), "1.100,00");
        Klicke(*form_, "Command5");
        QCOMPARE(Registerzahl(), 6);
        QCOMPARE(Finde<QTabWidget>(form_.get(), "TabStrip1")->tabText(5), "Effektivzinssatz");
        QCOMPARE(Label("ezins")->text(), "10,00000");
        QCOMPARE(Label("Effzisa")->text(), "10,00000 %");
        QCOMPARE(Label("Label25")->text(),
                 "Herleitung des Effektivzinssatzes: Der kumulierte Vermögensendwert = 0,00");
        QCOMPARE(Kopf(2), "Faktor 10,00000 %");
        QCOMPARE(Zeilen(*form_, "Grid1"), 2);
        QCOMPARE(Zeile(*form_, "Grid1", 0), "31.12.2006|-1.000,00|1,1|-1.100,00|-1.100,00|-1.000,00");
        QCOMPARE(Zeile(*form_, "Grid1", 1), "31.12.2007|1.100,00|1|1.100,00|0,00|100,00");
    }

    void zurueckFuehrtZurStaffelOhneNeueRechnung() {
        Jahreskonto("10");
        Klicke(*form_, "Command5");
        Klicke(*form_, "Command14");
        QCOMPARE(Finde<QTabWidget>(form_.get(), "TabStrip1")->currentIndex(), int(Form48000::berechnung));
        QVERIFY(Label("ezins")->isVisible());
        QCOMPARE(Label("ezins")->text(), "10,00000");
    }

    void zweiterDruckBehaeltEinSechstesRegister() {
        Jahreskonto("10");
        Klicke(*form_, "Command5");
        Klicke(*form_, "Command14");
        Klicke(*form_, "Command5");
        QCOMPARE(Registerzahl(), 6);
    }

    void andereMethodeWirktErstBeimNaechstenDruck() {
        // 365 days of 365: AIDB (ISMA) gives 10 % too, but a leap year between 28.02. and 28.02. would not;
        // so the account runs over 2008, which has 366 days: 1,1 ^ (365 / 366) - 1 = 9,97136 %.
        Jahreskonto("10");
        Waehle(*form_, Form48000::zahlungen);
        Finde<Tabelle>(form_.get(), "List1")->Markiere(0);
        Klicke(*form_, "Bearbeiten");
        Fuelle(*form_, "Begdatum", "31.12.2007");
        Klicke(*form_, "übernehmen");
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.12.2008");
        Waehle(*form_, Form48000::berechnung);
        Klicke(*form_, "Command5");
        Klicke(*form_, "Command14");
        Finde<QComboBox>(form_.get(), "Combo6")->setCurrentText("AIDB (ISMA)");
        QCOMPARE(Label("ezins")->text(), "10,00000");
        QCOMPARE(Label("Label26")->text(), "Effektivzinssatz nach PAngV2000");
        Klicke(*form_, "Command5");
        QCOMPARE(Label("ezins")->text(), "9,97136");
        QCOMPARE(Label("Label26")->text(), "Effektivzinssatz");
    }

    void satzEinesGeaendertenKontosSagtDassErNichtMehrDazugehoert() {
        Jahreskonto("10");
        Klicke(*form_, "Command5");
        QVERIFY(!Label("Veraltethinweis")->isVisible());
        Waehle(*form_, Form48000::zahlungen);
        Zahlung(*form_, "30.06.2007", "500");
        Waehle(*form_, Form48000::effektivzinssatz);
        QVERIFY(Label("Veraltethinweis")->isVisible());
        Klicke(*form_, "EffzinsDrucken");
        QVERIFY(Vorschautext().contains("gehört nicht mehr zum Konto"));
        Druecke(Qt::Key_Escape);
        // 1 000 for 360 days and 500 for 180 days at 10 %.
        Klicke(*form_, "Command14");
        QCOMPARE(Label("EV")->text(), "1.625,00");
        Waehle(*form_, Form48000::effektivzinssatz);
        QVERIFY(Label("Veraltethinweis")->isVisible());
        Waehle(*form_, Form48000::berechnung);
        Klicke(*form_, "Command5");
        QVERIFY(!Label("Veraltethinweis")->isVisible());
        Klicke(*form_, "EffzinsDrucken");
        QVERIFY(!Vorschautext().contains("gehört nicht mehr zum Konto"));
    }

    void zurueckgenommeneAenderungGibtDemKontoSeinenSatzWieder() {
        Jahreskonto("10");
        Klicke(*form_, "Command5");
        Waehle(*form_, Form48000::zahlungen);
        Zahlung(*form_, "30.06.2007", "500");
        Waehle(*form_, Form48000::berechnung);
        Waehle(*form_, Form48000::zahlungen);
        const Zeuge zeuge;
        Klicke(*form_, "Löschen");
        Waehle(*form_, Form48000::berechnung);
        Waehle(*form_, Form48000::effektivzinssatz);
        QVERIFY(!Label("Veraltethinweis")->isVisible());
    }

    void ohneRenditeStehtDieTabelleMitNullOhneMeldung() {
        Jahreskonto("0");
        // Everything is drawn out again, so that nothing is left to receive.
        Waehle(*form_, Form48000::zahlungen);
        Zahlung(*form_, "31.12.2007", "-1000");
        Finde<Tabelle>(form_.get(), "List1")->Markiere(0);
        const Zeuge zeuge;
        Klicke(*form_, "Löschen");
        Waehle(*form_, Form48000::berechnung);
        Klicke(*form_, "Command5");
        QCOMPARE(zeuge.texte.size(), 1);  // the question of the deletion only
        QCOMPARE(Label("ezins")->text(), "");
        QCOMPARE(Kopf(2), "Faktor  %");
        QCOMPARE(Registerzahl(), 6);
    }

    void dateienDerBewertungBleibenLiegen() {
        Jahreskonto("10");
        Klicke(*form_, "Command5");
        QCOMPARE(std::filesystem::file_size(ordner_->Pfad() / "Lösungszahlungsreihe"), 2U * 34);
        QCOMPARE(std::filesystem::file_size(ordner_->Pfad() / "Vendwertberechnung"), 2U * 46);
        QCOMPARE(std::filesystem::file_size(ordner_->Pfad() / "Barwertberechnung"), 2U * 46);
    }

    void ohneStaffelGibtEsNichtsZuBewerten() {
        QVERIFY(!Finde<QPushButton>(form_.get(), "Command5")->isEnabled());
    }
};

ZINFOLIO_FENSTERTEST(EffektivzinssatzTest)

}  // namespace effektivzinssatz_test

#include "effektivzinssatz_test.moc"
