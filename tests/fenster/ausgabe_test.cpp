// From the account's window to paper: preview, exports, chart, and the way back.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <fstream>

#include "fenster/kontoformular.h"
#include "fenster/ui/uhr.h"

namespace ausgabe_test {

using namespace zinfolio;
namespace fs = std::filesystem;

bool Enthaelt(const std::string& text, const char* teil) {
    return text.find(teil) != std::string::npos;
}

class AusgabeTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> arbeit_;
    std::unique_ptr<Testordner> ablage_;
    std::unique_ptr<Form48000> form_;

    QWidget* Rahmen(const char* name) { return Finde<QWidget>(form_.get(), name); }
    QString Text(const char* name) { return Finde<QLabel>(form_.get(), name)->text(); }

    /// 1 000 from 31.12.2006 and 500 from 30.06.2007 on, at 10 % until 31.12.2007.
    void KontoRechnen() {
        Zahlung(*form_, "31.12.2006", "1000", "Einlage");
        Zahlung(*form_, "30.06.2007", "500", "Nachzahlung");
        Kondition(*form_);
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.12.2007");
        Waehle(*form_, Form48000::berechnung);
    }

    void Ansicht(int index) { Finde<QComboBox>(form_.get(), "Combo4")->setCurrentIndex(index); }

    /// Exports what the preview shows to a target of the list.
    void Exportieren(int ziel, const std::optional<fs::path>& name) {
        Finde<QComboBox>(form_.get(), "Combo18")->setCurrentIndex(ziel);
        Dateiwahl wahl;
        wahl.antwort = name;
        Klicke(*form_, "Command12");
        QCOMPARE(wahl.fragen.size(), 1U);
        filter_ = wahl.fragen[0].filter;
    }
    QString filter_;

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void init() {
        arbeit_ = std::make_unique<Testordner>();
        ablage_ = std::make_unique<Testordner>();
        form_ = std::make_unique<Form48000>(arbeit_->Pfad());
        Zeige(*form_);
    }
    void cleanup() {
        form_.reset();
        arbeit_.reset();
        ablage_.reset();
    }

    void ohneBerechnungGibtEsNichtsZuDrucken() {
        QVERIFY(!Finde<QPushButton>(form_.get(), "Command13")->isEnabled());
        QVERIFY(!Finde<QPushButton>(form_.get(), "Grafik")->isEnabled());
    }

    void druckenZeigtDieVorschauUndZurueckDieErgebnisse() {
        KontoRechnen();
        // 1 000 for 360 days and 500 for 180 days at 10 %: 100 + 25 of interest.
        QCOMPARE(Text("EV"), "1.625,00");
        Klicke(*form_, "Command13");
        QVERIFY(Rahmen("Frame7")->isVisible());
        QVERIFY(!Rahmen("Frame4")->isVisible());
        Klicke(*form_, "Command11");
        QVERIFY(!Rahmen("Frame7")->isVisible());
        QVERIFY(Rahmen("Frame4")->isVisible());
        QCOMPARE(Text("EV"), "1.625,00");
        // Two payments, and the year's ends 2006 and 2007.
        QCOMPARE(Zeilen(*form_, "Grid"), 4);
    }

    void dieZieleStehenInIhrerReihenfolge() {
        auto* ziele = Finde<QComboBox>(form_.get(), "Combo18");
        QStringList texte;
        for (int i = 0; i < ziele->count(); ++i)
            texte << ziele->itemText(i);
        QCOMPARE(texte, QStringList({"Drucker", "*.pdf-Datei (empfohlen !)", "*.rtf-Datei", "*.htm-Datei",
                                     "Aktuelle Seite in Zwischenspeicher kopieren"}));
        QCOMPARE(ziele->currentIndex(), 0);
    }

    void rtfWirdInDerFestenDateiGebautUndDannKopiert() {
        KontoRechnen();
        Klicke(*form_, "Command13");
        Exportieren(2, ablage_->Pfad() / "Auszug.rtf");
        QCOMPARE(filter_, "Ratenspardateien (*.rtf) |*.rtf");
        const std::string rtf = Inhalt(ablage_->Pfad() / "Auszug.rtf");
        QVERIFY(rtf.starts_with("{\\rtf1"));
        QVERIFY(Enthaelt(rtf, "1.625,00"));
        QCOMPARE(Inhalt(arbeit_->Pfad() / "Zwispei.rtf"), rtf);
    }

    void rtfNachDruckervorschauErsetztDieAlteZwispei() {
        KontoRechnen();
        Klicke(*form_, "Command13");
        const std::string alt = "{\\rtf1 Auszug von gestern}" + std::string(1'000'000, ' ');
        std::ofstream(arbeit_->Pfad() / "Zwispei.rtf", std::ios::binary) << alt;
        Exportieren(2, ablage_->Pfad() / "Auszug.rtf");
        const std::string neu = Inhalt(arbeit_->Pfad() / "Zwispei.rtf");
        QVERIFY(neu.starts_with("{\\rtf1"));
        QVERIFY(Enthaelt(neu, "1.625,00"));
        QVERIFY(!Enthaelt(neu, "gestern"));
        QVERIFY(neu.size() < alt.size());
        QCOMPARE(Inhalt(ablage_->Pfad() / "Auszug.rtf"), neu);
    }

    void htmWirdInDerFestenDateiGebautUndDannKopiert() {
        KontoRechnen();
        Klicke(*form_, "Command13");
        Exportieren(3, ablage_->Pfad() / "Auszug.htm");
        QCOMPARE(filter_, "Ratenspardateien (*.htm) |*.htm");
        const std::string htm = Inhalt(ablage_->Pfad() / "Auszug.htm");
        QVERIFY(htm.starts_with("<!DOCTYPE html>"));
        QVERIFY(Enthaelt(htm, "1.625,00"));
        QCOMPARE(Inhalt(arbeit_->Pfad() / "Zwispei.htm"), htm);
    }

    void pdfTraegtDenGewaehltenNamen() {
        KontoRechnen();
        Klicke(*form_, "Command13");
        Exportieren(1, ablage_->Pfad() / "Auszug.pdf");
        QCOMPARE(filter_, "Ratenspardateien (*.pdf) |*.pdf");
        QVERIFY(Inhalt(ablage_->Pfad() / "Auszug.pdf").starts_with("%PDF-"));
    }

    void derExportZeigtDieAnsichtDesAugenblicks() {
        KontoRechnen();
        Klicke(*form_, "Command13");
        Klicke(*form_, "Command11");
        Ansicht(3);
        Klicke(*form_, "Command13");
        Exportieren(2, ablage_->Pfad() / "Auszug.rtf");
        // A header of Detailansicht 3 alone.
        QVERIFY(Enthaelt(Inhalt(ablage_->Pfad() / "Auszug.rtf"), "Zins1(+) bis (t+1)"));
    }

    void einAbgebrochenerExportIstStill() {
        KontoRechnen();
        Klicke(*form_, "Command13");
        const Zeuge zeuge;
        for (const int ziel : {1, 2, 3})
            Exportieren(ziel, std::nullopt);
        QVERIFY(zeuge.texte.isEmpty());
        QVERIFY(fs::is_empty(ablage_->Pfad()));
        QVERIFY(Rahmen("Frame7")->isVisible());
    }

    void dieKopfseiteNenntProjektUndEffektivzinssatz() {
        KontoRechnen();
        {
            Dateiwahl wahl;
            wahl.antwort = ablage_->Pfad() / "Konto.ZiS";
            QTest::keyClick(form_.get(), Qt::Key_S, Qt::ControlModifier);
        }
        Waehle(*form_, Form48000::berechnung);
        Klicke(*form_, "Command5");
        Klicke(*form_, "Command14");
        const QString ezins = Text("ezins");
        QVERIFY(!ezins.isEmpty());
        Klicke(*form_, "Command13");
        Exportieren(3, ablage_->Pfad() / "Auszug.htm");
        const std::string htm = Inhalt(ablage_->Pfad() / "Auszug.htm");
        QVERIFY(Enthaelt(htm, "Konto.ZiS"));
        QVERIFY(Enthaelt(htm, "Effektivzinssatzberechnungsmethode"));
        const QString zeile = "Effektivzinssatz " + (ezins + " %").rightJustified(53);
        QVERIFY(Enthaelt(htm, zeile.toUtf8()));
    }

    void derBerichtDesEffektivzinssatzesHatSeineEigeneKopfzeile() {
        KontoRechnen();
        Klicke(*form_, "Command5");
        Klicke(*form_, "EffzinsDrucken");
        QVERIFY(Rahmen("Frame7")->isVisible());
        Exportieren(3, ablage_->Pfad() / "Rendite.htm");
        const std::string htm = Inhalt(ablage_->Pfad() / "Rendite.htm");
        const QString kopfzeile =
            "Herleitung des Effektivzinssatzes: Der kumulierte Vermögensendwert = 0,00 PAngV2000 : " +
            Text("ezins") + " %    *    ";
        QVERIFY(Enthaelt(htm, kopfzeile.toUtf8()));
        QVERIFY(Enthaelt(htm, "kumulierte Zahlungen"));
        Klicke(*form_, "Command11");
        QVERIFY(Rahmen("Frame8")->isVisible());
    }

    void dieGrafikZeigtDieKurzform() {
        KontoRechnen();
        Ansicht(2);
        Klicke(*form_, "Grafik");
        QVERIFY(Rahmen("Frame6")->isVisible());
        QCOMPARE(Finde<QComboBox>(form_.get(), "Combo4")->currentText(), "Kurzform");
        Klicke(*form_, "Command7");
        QVERIFY(Rahmen("Frame4")->isVisible());
        QCOMPARE(Text("EV"), "1.625,00");
    }

    void grafikMitEinerZeileMeldetUndLaesstDieAnsicht() {
        // A payment behind the closing date: the settlement on that day is the only row without conditions.
        Zahlung(*form_, "01.07.2008", "1000");
        Kondition(*form_);
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.12.2007");
        Waehle(*form_, Form48000::berechnung);
        QCOMPARE(Zeilen(*form_, "Grid"), 1);
        Ansicht(2);
        const Zeuge zeuge;
        Klicke(*form_, "Grafik");
        QCOMPARE(zeuge.texte,
                 QStringList("Es ist nur 1 Zahlung vorhanden. Eine Grafikanzeige ist daher nicht möglich."));
        QVERIFY(!Rahmen("Frame6")->isVisible());
        QVERIFY(Rahmen("Frame4")->isVisible());
        QCOMPARE(Finde<QComboBox>(form_.get(), "Combo4")->currentIndex(), 2);
    }

    void nachDerGrafikRechnetDieLeisteWieder() {
        KontoRechnen();
        Klicke(*form_, "Grafik");
        QTest::keyClick(form_.get(), Qt::Key_F9);
        QVERIFY(Rahmen("Frame4")->isVisible());
        QCOMPARE(Text("EV"), "1.625,00");
    }
};

ZINFOLIO_FENSTERTEST(AusgabeTest)

}  // namespace ausgabe_test

#include "ausgabe_test.moc"
