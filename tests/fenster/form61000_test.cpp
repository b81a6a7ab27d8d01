// The all-round calculator, driven with real keys through its six tabs.

#include "fenster/allround/form61000.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMimeData>
#include <QTextEdit>
#include <fstream>

#include "fenster/formhelfer.h"
#include "fenster/ui/tabelle.h"
#include "fenster/ungeduld.h"

namespace form61000_test {

using namespace zinfolio;
namespace fs = std::filesystem;

enum Register { zahlungen, effektivzins, barwert, endwert, plan, notizen };

class Form61000Test : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Pruefstand<Form61000>> stand_;

    [[nodiscard]] Form61000& Form() { return *stand_->form; }
    [[nodiscard]] QString Text(const char* name) { return Finde<QLabel>(&Form(), name)->text(); }
    [[nodiscard]] QString Feldtext(const char* name) { return Finde<QLineEdit>(&Form(), name)->text(); }
    [[nodiscard]] int Gewaehlt() { return Finde<QTabWidget>(&Form(), "TabStrip1")->currentIndex(); }
    [[nodiscard]] bool Sichtbar(const char* name) { return Finde<QWidget>(&Form(), name)->isVisible(); }

    void Zahle(const QString& datum, const QString& betrag) {
        Fuelle(Form(), "Begdatum", datum);
        Fuelle(Form(), "Betrag", betrag);
        Klicke(Form(), "Speichern");
    }

    /// A click on a tab; the shared page of values is laid out only when the events have run.
    void Betritt(int register_) {
        Waehle(Form(), register_);
        QCoreApplication::processEvents();
    }

    /// Pays back on its last date; out of order.
    void Investiere() {
        Zahle("01.01.2006", "300");
        Zahle("01.01.2005", "-1000");
        Zahle("01.07.2006", "400");
        Zahle("01.01.2007", "500");
    }

    void Leihe() {
        Zahle("15.01.2007", "1000");
        Zahle("15.02.2007", "-500");
        Zahle("15.04.2007", "-520");
    }

    void WaehleIn(const char* liste, int stelle) {
        Finde<QComboBox>(&Form(), liste)->setCurrentIndex(stelle);
    }

    /// Replaces the payments by one whose date is none.
    void Beschaedige() {
        std::string satz(129, '\0');
        satz[0] = 1;
        satz.replace(27, 20,
                     "31.02.2006"
                     "20060231  ");
        std::ofstream(stand_->arbeit.Pfad() / "ZahlungenT", std::ios::binary) << satz << satz;
    }

  private slots:
    void init() { stand_ = std::make_unique<Pruefstand<Form61000>>(); }
    void cleanup() { stand_.reset(); }

    void beginntMitSechsRegisternUndSeinenVorgaben() {
        const auto* register_ = Finde<QTabWidget>(&Form(), "TabStrip1");
        QStringList titel;
        for (int i = 0; i < register_->count(); ++i)
            titel << register_->tabText(i);
        QCOMPARE(titel, (QStringList{"Zahlungen", "Effektivzinssatz berechnen", "Barwert berechnen",
                                     "Vermögensendwert berechnen", "Zins-/Tilgungsplan", "Notizen"}));
        const std::initializer_list<std::pair<const char*, int>> vorgaben{
            {"Combo1", 3}, {"Combo2", 2}, {"Combo3", 0}, {"Combo4", 1},
            {"Combo5", 1}, {"Combo6", 0}, {"Combo7", 0}};
        for (const auto& [liste, stelle] : vorgaben)
            QCOMPARE(Finde<QComboBox>(&Form(), liste)->currentIndex(), stelle);
        QCOMPARE(Feldtext("Abzins"), "10");
        QCOMPARE(Feldtext("Ratzahl"), "1");
        QCOMPARE(Inhalt(stand_->arbeit.Pfad() / "ZahlungenT"), "");
    }

    void eineZahlungVonNullWirdUebernommen() {
        const Zeuge zeuge;
        Fuelle(Form(), "Beschreibung", "Anfang");
        Zahle("01.01.2005", "0");
        QCOMPARE(zeuge.texte, QStringList());
        QCOMPARE(Zeile(Form(), "List1", 0), "01.01.2005|0,00|Anfang");
        QCOMPARE(Fokus(), "Begdatum");
    }

    void alleSechsRegisterNurMitTasten() {
        Finde<QWidget>(&Form(), "Begdatum")->setFocus(Qt::TabFocusReason);
        for (const auto& [datum, betrag] :
             {std::pair("15.1.7", "1000"), {"15.2.7", "-500"}, {"15.4.7", "-520"}}) {
            for (const char* text : {datum, betrag, "Leihe"}) {
                Tippe(text);
                Druecke(Qt::Key_Return);
            }
            stand_->Taste(Qt::Key_E, Qt::AltModifier);
            // A button that its letter presses stays down for a moment.
            QTRY_COMPARE(Fokus(), "Begdatum");
        }
        QCOMPARE(Zeile(Form(), "List1", 2), "15.04.2007|-520,00|Leihe");
        const auto weiter = [this] {
            stand_->Taste(Qt::Key_Tab, Qt::ControlModifier);
            return Gewaehlt();
        };
        QCOMPARE(weiter(), static_cast<int>(effektivzins));
        QCOMPARE(Text("Effzins"), "12,51869");
        QCOMPARE(weiter(), static_cast<int>(barwert));
        stand_->Taste(Qt::Key_Z, Qt::AltModifier);
        QCOMPARE(Fokus(), "Abzins2");
        Tippe("0");
        Druecke(Qt::Key_Return);
        QCOMPARE(Text("Label14"), "-20,00");
        stand_->Taste(Qt::Key_A, Qt::AltModifier);
        QTRY_VERIFY(Sichtbar("Grid4"));
        Druecke(Qt::Key_Escape);
        QCOMPARE(weiter(), static_cast<int>(endwert));
        QCOMPARE(Text("Label14"), "-20,00");
        QCOMPARE(weiter(), static_cast<int>(plan));
        QCOMPARE(Text("nomzins"), "11,84700 %");
        QCOMPARE(weiter(), static_cast<int>(notizen));
        Tippe("fertig");
        QCOMPARE(Finde<QTextEdit>(&Form(), "RTZinsstaffel")->toPlainText(), "fertig");
    }

    void nachDerUebernahmeSindAlleFelderLeer() {
        Fuelle(Form(), "Beschreibung", "Miete");
        Fuelle(Form(), "Abstand", "2");
        Zahle("01.01.2005", "5");
        for (const char* feld : {"Begdatum", "Betrag", "Beschreibung", "Stufen", "Delta"})
            QCOMPARE(Feldtext(feld), "");
        QCOMPARE(Feldtext("Ratzahl"), "1");
        QCOMPARE(Feldtext("Abstand"), "1");
        QCOMPARE(Fokus(), "Begdatum");
    }

    void wasGetipptUndBegonnenWurdeUeberstehtDieAuswertungen() {
        Investiere();
        Fuelle(Form(), "Betrag", "77");
        Betritt(barwert);
        Betritt(plan);
        Betritt(zahlungen);
        QCOMPARE(Feldtext("Betrag"), "77");
        Fuelle(Form(), "Betrag", "");
        Finde<Tabelle>(&Form(), "List1")->Markiere(0);
        Klicke(Form(), "Bearbeiten");
        Fuelle(Form(), "Betrag", "-900");
        Betritt(endwert);
        Betritt(zahlungen);
        QCOMPARE(Feldtext("Betrag"), "-900");
        Klicke(Form(), "übernehmen");
        QCOMPARE(Zeile(Form(), "List1", 0), "01.01.2005|-900,00|");
    }

    void speichernLaesstDieBegonneneAenderungStehen() {
        Investiere();
        Finde<Tabelle>(&Form(), "List1")->Markiere(1);
        Klicke(Form(), "Bearbeiten");
        Fuelle(Form(), "Betrag", "-900");
        const Dateiwahl wahl(stand_->ablage.Pfad() / "Halb.RRR");
        stand_->Taste(Qt::Key_S);
        QCOMPARE(Feldtext("Betrag"), "-900");
        QVERIFY(Sichtbar("übernehmen"));
        Klicke(Form(), "übernehmen");
        QCOMPARE(Zeile(Form(), "List1", 1), "01.01.2005|-900,00|");
    }

    void ohneDatumWirdNichtsUebernommen() {
        const Zeuge zeuge;
        Fuelle(Form(), "Betrag", "5");
        Klicke(Form(), "Speichern");
        QCOMPARE(zeuge.texte, QStringList{"Unvollständige Daten. Eine Übernahme ist nicht möglich."});
        QCOMPARE(Zeilen(Form(), "List1"), 0);
    }

    void vorschauZeigtJedeStufeMitIhremMuster() {
        Fuelle(Form(), "Begdatum", "31.01.2007");
        Fuelle(Form(), "Betrag", "0,5");
        Fuelle(Form(), "Ratzahl", "3");
        Klicke(Form(), "Speichern");
        QCOMPARE(Zeile(Form(), "Grid2", 0), "1|31.01.2007|,50");
        QCOMPARE(Zeile(Form(), "Grid2", 1), "2|28.02.2007|0,50");
        QCOMPARE(Zeile(Form(), "Grid2", 2), "3|31.03.2007|0,50");
        QCOMPARE(Fokus(), "Command3");
        Druecke(Qt::Key_Space);
        QCOMPARE(Zeilen(Form(), "List1"), 3);
        QCOMPARE(Feldtext("Ratzahl"), "1");
    }

    void effektivzinsSortiertNichtUndZeigtSatzUndTabelle() {
        Zahle("01.01.2007", "-1000");
        Zahle("01.01.2008", "1100");
        Betritt(effektivzins);
        QCOMPARE(Text("Effzins"), "10,00000");
        QCOMPARE(Zeile(Form(), "Grid", 1), "01.01.2008|1.100,00|1|1.100,00|0,00|100,00");
        QVERIFY(Sichtbar("Drucken"));
        Zahle("01.01.2006", "-1");
        Betritt(effektivzins);
        QCOMPARE(Zeile(Form(), "List1", 2).left(10), "01.01.2006");
    }

    void andereMethodeRechnetSofort() {
        Zahle("01.01.1994", "1000");
        Zahle("01.07.1995", "-1200");
        Betritt(effektivzins);
        QCOMPARE(Text("Effzins"), "12,92432");
        WaehleIn("Combo1", 2);
        QCOMPARE(Text("Effzins"), "12,96204");
    }

    void ohneSatzBleibtDieTabelleAberNichtZumDrucken() {
        Zahle("01.01.2007", "-1000");
        Zahle("01.01.2008", "1100");
        Betritt(effektivzins);
        Betritt(zahlungen);
        const Zeuge zeuge;
        Finde<Tabelle>(&Form(), "List1")->Markiere(1);
        Klicke(Form(), "Löschen");
        Betritt(effektivzins);
        QCOMPARE(Text("Effzins"), "");
        QCOMPARE(Text("Meld"),
                 "Es gibt nur Ein- bzw. nur Auszahlungen. Ein Effektivzinssatz existiert nicht !");
        QCOMPARE(Zeilen(Form(), "Grid"), 2);
        QVERIFY(!Finde<QWidget>(&Form(), "Grid")->isEnabled());
        QVERIFY(!Sichtbar("Drucken"));
    }

    void ohneZahlungenGehtEsZurueckZuIhnen() {
        for (const auto& [register_, text] :
             {std::pair(effektivzins, "Es müssen erst die Zahlungen eingegeben werden."),
              std::pair(barwert, "Es müssen erst Zahlungen eingegeben werden."),
              std::pair(endwert, "Es müssen erst Zahlungen eingegeben werden.")}) {
            const Zeuge zeuge;
            Betritt(register_);
            QCOMPARE(zeuge.texte, QStringList{QString(text)});
            QCOMPARE(Gewaehlt(), 0);
            QCOMPARE(Fokus(), "Begdatum");
        }
    }

    void langeReihenZeigenIhreLetzteZahlungZuerst() {
        Fuelle(Form(), "Begdatum", "01.01.2007");
        Fuelle(Form(), "Betrag", "-5");
        Fuelle(Form(), "Ratzahl", "60");
        Klicke(Form(), "Speichern");
        Klicke(Form(), "Command3");
        Zahle("01.01.2013", "500");
        Betritt(effektivzins);
        const auto* tabelle = Finde<QTableView>(&Form(), "Grid");
        QVERIFY(tabelle->indexAt(QPoint(5, tabelle->viewport()->height() - 5)).row() >= 59);
        Betritt(barwert);
        const auto* werte = Finde<QTableView>(&Form(), "Grid3");
        QVERIFY(werte->indexAt(QPoint(5, werte->viewport()->height() - 5)).row() >= 59);
    }

    void barwertSortiertUndZeigtAlles() {
        Investiere();
        Betritt(barwert);
        QCOMPARE(Feldtext("Abzins2"), "10");
        QCOMPARE(Feldtext("BarwDatum"), "01.01.2005");
        QCOMPARE(Zeile(Form(), "Grid3", 3), "01.01.2007|500,00|200,00|2|0|1,21000|413,22|32,27");
        QCOMPARE(Text("Label13"), "Barwert");
        QCOMPARE(Text("Label14"), "32,27");
        QCOMPARE(Text("Label12"), "Die Investition / Anlage ist vorteilhaft.");
        QCOMPARE(Text("StatAmor"), "01.01.2007");
        QCOMPARE(Text("DynAmor"), "01.01.2007");
        QCOMPARE(Text("Dynamorinterpoliert"), "18.12.2006");
        QVERIFY(Sichtbar("StatAmor"));
        const auto* tabelle = Finde<QTableView>(&Form(), "Grid3");
        QCOMPARE(tabelle->model()->index(3, 0).data(Qt::BackgroundRole).value<QColor>(),
                 QColor(255, 255, 192));
        Betritt(zahlungen);
        QCOMPARE(Zeile(Form(), "List1", 0).left(10), "01.01.2005");
    }

    void beideWertregisterTeilenDenZinsDasDatumStehtNurBeimBarwert() {
        Investiere();
        Betritt(barwert);
        QVERIFY(Sichtbar("BarwDatum"));
        QVERIFY(Sichtbar("Combo7"));
        Fuelle(Form(), "Abzins2", "20");
        Druecke(Qt::Key_Return);
        QCOMPARE(Text("Label14"), "-99,75");
        Betritt(endwert);
        QCOMPARE(Feldtext("Abzins2"), "20");
        QVERIFY(!Sichtbar("BarwDatum"));
        QVERIFY(!Sichtbar("Combo7"));
        QCOMPARE(Text("Label13"), "Vermögensendwert");
        QVERIFY(Sichtbar("Grid3"));
    }

    void barwertdatumHatSeinenKalender() {
        Investiere();
        Betritt(barwert);
        Finde<QLineEdit>(&Form(), "BarwDatum")->setFocus();
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "BarwDatumKalender");
        Druecke(Qt::Key_Space);
        Druecke(Qt::Key_Right);
        Druecke(Qt::Key_Return);
        QCOMPARE(Feldtext("BarwDatum"), "02.01.2005");
        Druecke(Qt::Key_Return);
        QVERIFY(!Sichtbar("StatAmor"));
    }

    void spaeteresBarwertdatumVerbirgtDieAmortisation() {
        Investiere();
        Betritt(barwert);
        Fuelle(Form(), "BarwDatum", "1.6.06");
        Druecke(Qt::Key_Return);
        QCOMPARE(Feldtext("BarwDatum"), "01.06.2006");
        QCOMPARE(Text("Label14"), "869,14");
        QVERIFY(!Sichtbar("StatAmor"));
    }

    void barwertdatumNachDerLetztenZahlungLaesstNichtsUebrig() {
        Investiere();
        Betritt(barwert);
        Fuelle(Form(), "BarwDatum", "1.1.2010");
        Druecke(Qt::Key_Return);
        QCOMPARE(Zeilen(Form(), "Grid3"), 0);
        QCOMPARE(Text("Label14"), "0,00");
        QCOMPARE(Text("Label12"), "Die Investition / Anlage ist nicht vorteilhaft.");
        QVERIFY(!Sichtbar("StatAmor"));
        Fuelle(Form(), "BarwDatum", "1.1.2005");
        Druecke(Qt::Key_Return);
        QCOMPARE(Text("Label14"), "32,27");
    }

    void leererZinsRechnetErstBeimNaechstenBetretenMitDerVoreinstellung() {
        Investiere();
        Betritt(barwert);
        Fuelle(Form(), "Abzins2", "");
        Druecke(Qt::Key_Return);
        QCOMPARE(Text("Label14"), "32,27");
        QCOMPARE(Feldtext("Abzins2"), "");
        Betritt(endwert);
        QCOMPARE(Feldtext("Abzins2"), "10");
    }

    void derBerichtNenntDenZinsDerTabelleAuchWennDasFeldGeleertWurde() {
        Investiere();
        Betritt(barwert);
        Fuelle(Form(), "Abzins2", "");
        const fs::path datei = stand_->ablage.Pfad() / "Wert.htm";
        const Dateiwahl wahl(datei);
        Klicke(Form(), "Drucken1");
        WaehleIn("Combo18", 3);
        Klicke(Form(), "Command9");
        QVERIFY(Inhalt(datei).find("Zins : 10,000000 %") != std::string::npos);
    }

    void vorgabeDieSichNichtSpeichernLaesstWirdGemeldet() {
        Finde<QAction>(&Form(), "Einstellungen")->trigger();
        fs::remove_all(stand_->arbeit.Pfad());
        const Zeuge zeuge;
        Klicke(Form(), "Command8");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Die Voreinstellung konnte nicht gespeichert werden."));
        QVERIFY(Sichtbar("Abzins"));
    }

    void negativeUndRiesigeZinsenRechnen() {
        Investiere();
        Betritt(barwert);
        Fuelle(Form(), "Abzins2", "-50");
        Druecke(Qt::Key_Return);
        // -1000 + 300/0,5 + 400/(0,5*0,75) + 500/0,25
        QCOMPARE(Text("Label14"), "2.666,67");
        Fuelle(Form(), "Abzins2", "1000000");
        Druecke(Qt::Key_Return);
        QCOMPARE(Text("Label14"), "-999,97");
        const Zeuge zeuge;
        Fuelle(Form(), "Abzins2", "-100");
        Druecke(Qt::Key_Return);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Bitte überprüfen Sie Ihre Angaben."));
        QCOMPARE(Gewaehlt(), 0);
        Betritt(effektivzins);
        QVERIFY(!Text("Effzins").isEmpty());
    }

    void jahrestabelleStehtAufEigenerSeiteUndFuehrtZurueck() {
        Investiere();
        Betritt(barwert);
        Fuelle(Form(), "BarwDatum", "31.12.2005");
        Fuelle(Form(), "Abzins2", "5");
        WaehleIn("Combo7", 1);
        QVERIFY(Sichtbar("grid6"));
        QCOMPARE(Zeile(Form(), "grid6", 1), "31.12.2006|499,93|700,00|-666,34|33,66");
        Klicke(Form(), "Command21");
        QVERIFY(Sichtbar("Grid3"));
        QCOMPARE(Finde<QComboBox>(&Form(), "Combo7")->currentIndex(), 0);
        WaehleIn("Combo7", 1);
        QVERIFY(Sichtbar("grid6"));
        Druecke(Qt::Key_Escape);
        QVERIFY(Sichtbar("Grid3"));
    }

    void jahrestabelleUeberZuVieleJahreWirdAbgelehnt() {
        Investiere();
        Betritt(barwert);
        Fuelle(Form(), "BarwDatum", "01.01.1605");
        Druecke(Qt::Key_Return);
        const Zeuge zeuge;
        WaehleIn("Combo7", 1);
        QCOMPARE(zeuge.texte,
                 QStringList{
                     "Die Zahlungsreihe ist zu lang. Prüfen Sie das Barwertdatum und die Zahlungstermine !"});
        QCOMPARE(Gewaehlt(), 0);
    }

    void sensitivitaetUmDenMittlerenZins() {
        Investiere();
        Betritt(barwert);
        Klicke(Form(), "Command12");
        QVERIFY(Sichtbar("Grid4"));
        QCOMPARE(Feldtext("MiZins"), "10");
        QCOMPARE(Zeile(Form(), "Grid4", 0), "5|200,00|110,88|01.01.2007|03.12.2006|1|332");
        WaehleIn("Combo2", 0);
        QCOMPARE(Zeile(Form(), "Grid4", 0).left(4), "9,5|");
        Fuelle(Form(), "MiZins", "2");
        Druecke(Qt::Key_Return);
        QCOMPARE(Zeile(Form(), "Grid4", 0).left(4), "1,5|");
        Klicke(Form(), "Command15");
        QVERIFY(Sichtbar("Grid3"));
        QCOMPARE(Gewaehlt(), static_cast<int>(barwert));
    }

    void tilgungsplanJahresweiseUndUnterjaehrig() {
        Leihe();
        Betritt(plan);
        QCOMPARE(Text("nomzins"), "11,84700 %");
        QCOMPARE(Text("effzinssatz"), "12,51869 %");
        QCOMPARE(Zeile(Form(), "grid5", 0), "15.04.2007|1.000,00|1.020,00|-20,00|0,00");
        WaehleIn("Combo3", 1);
        QCOMPARE(Zeilen(Form(), "grid5"), 7);
        QCOMPARE(Zeile(Form(), "grid5", 1), "31.01.2007|Zinstermin|0,00|-4,94|-1.004,94");
        WaehleIn("Combo6", 3);
        QCOMPARE(Text("nomzins"), "12,01121 %");
        QCOMPARE(Finde<QComboBox>(&Form(), "Combo3")->currentIndex(), 0);
        WaehleIn("Combo4", 0);
        QCOMPARE(Text("effzinssatz"), "12,51869 %");
    }

    void langePlansucheLaeuftNebenDemFenster() {
        const Ungeduld ungeduld;
        Leihe();
        Betritt(plan);
        QVERIFY(Sichtbar("Suchzeile"));
        QVERIFY(!Finde<QWidget>(&Form(), "Command19")->isEnabled());
        QTRY_COMPARE(Text("nomzins"), "11,84700 %");
        QVERIFY(!Sichtbar("Suchzeile"));
        WaehleIn("Combo6", 3);
        // The rate of the plan before is not the one that is being searched for.
        QVERIFY(!Finde<QWidget>(&Form(), "nomzins")->isEnabled());
        QTRY_COMPARE(Text("nomzins"), "12,01121 %");
        QVERIFY(Finde<QWidget>(&Form(), "nomzins")->isEnabled());
        QCOMPARE(Gewaehlt(), static_cast<int>(plan));
    }

    void abgebrochenePlansucheFuehrtZurueck() {
        const Ungeduld ungeduld;
        Leihe();
        Betritt(plan);
        Druecke(Qt::Key_Escape);
        QCOMPARE(Gewaehlt(), static_cast<int>(zahlungen));
        QTest::qWait(100);
        QCOMPARE(Text("nomzins"), "");
        QVERIFY(!fs::exists(stand_->arbeit.Pfad() / "Lösungstableau5R"));
    }

    void neueZahlungenGebenDiePlansucheAuf() {
        const Ungeduld ungeduld;
        Leihe();
        Betritt(plan);
        Betritt(zahlungen);
        Zahle("15.05.2007", "-1");
        QTest::qWait(100);
        QVERIFY(!fs::exists(stand_->arbeit.Pfad() / "Lösungstableau5R"));
        Betritt(plan);
        QTRY_VERIFY(!Text("nomzins").isEmpty());
        QVERIFY(Text("nomzins") != "11,84700 %");
        QCOMPARE(Zeile(Form(), "grid5", 0).left(10), "15.05.2007");
    }

    void planInEineRichtungBleibtAufDemRegisterDavor() {
        Zahle("01.01.2007", "1000");
        const Zeuge zeuge;
        Betritt(plan);
        QCOMPARE(zeuge.texte,
                 QStringList{"Es gibt nur Ein- bzw. Auszahlungen. Daher existiert kein Tilgungsplan !"});
        QCOMPARE(Gewaehlt(), 0);
    }

    void zahlungenAnEinemTagHabenKeinenPlan() {
        Zahle("01.01.2007", "1000");
        Zahle("01.01.2007", "-1000");
        Betritt(barwert);
        const Zeuge zeuge;
        Betritt(plan);
        QCOMPARE(zeuge.texte, QStringList{"Ein Tilgungsplan konnte rechnerisch nicht ermittelt werden."});
        QCOMPARE(zeuge.titel, QStringList{"OK"});
        QCOMPARE(Gewaehlt(), static_cast<int>(barwert));
        QVERIFY(Sichtbar("Grid3"));
    }

    void planDerStillScheitertSagtDassErKeinerIst() {
        Leihe();
        Betritt(plan);
        Betritt(zahlungen);
        {
            const Zeuge zeuge;
            Finde<Tabelle>(&Form(), "List1")->clearSelection();
            Klicke(Form(), "Löschen");
        }
        Zahle("01.01.2007", "0,01");
        Zahle("01.01.2008", "-0,012");
        const Zeuge zeuge;
        Betritt(plan);
        QCOMPARE(zeuge.texte, QStringList());
        QCOMPARE(Gewaehlt(), static_cast<int>(plan));
        QVERIFY(Sichtbar("Planhinweis"));
        QVERIFY(!Finde<QWidget>(&Form(), "grid5")->isEnabled());
        QVERIFY(!Finde<QWidget>(&Form(), "Command19")->isEnabled());
    }

    void beschaedigteZahlungenLassenDasFensterBrauchbar() {
        Beschaedige();
        const Zeuge zeuge;
        for (const int register_ : {effektivzins, barwert, endwert}) {
            Betritt(register_);
            QCOMPARE(Gewaehlt(), 0);
        }
        QCOMPARE(zeuge.texte.size(), 3);
        Betritt(plan);
        Betritt(notizen);
        QCOMPARE(Gewaehlt(), static_cast<int>(notizen));
    }

    void voreinstellungWirdGespeichertUndKommtWieder() {
        Finde<QAction>(&Form(), "Einstellungen")->trigger();
        QCOMPARE(Fokus(), "Abzins");
        Fuelle(Form(), "Abzins", "7,5");
        Klicke(Form(), "Command8");
        QVERIFY(Sichtbar("List1"));
        stand_->Oeffnen();
        QCOMPARE(Feldtext("Abzins"), "7,5");
        Investiere();
        Betritt(barwert);
        QCOMPARE(Feldtext("Abzins2"), "7,5");
    }

    void notizenGehenInDieZwischenablage() {
        Betritt(notizen);
        Tippe("Hallo");
        Klicke(Form(), "Command7");
        const QMimeData* ablage = QApplication::clipboard()->mimeData();
        QCOMPARE(ablage->text(), "Hallo");
        QVERIFY(ablage->hasFormat("text/rtf") || ablage->hasFormat("application/rtf"));
        QVERIFY(!Finde<QTextEdit>(&Form(), "RTZinsstaffel")->textCursor().hasSelection());
    }

    void berichteGehenInDieVorschauUndZurueck() {
        Leihe();
        for (const auto& [register_, taste] :
             {std::pair(effektivzins, "Drucken"), std::pair(barwert, "Drucken1"),
              std::pair(plan, "Command19"), std::pair(notizen, "Command6")}) {
            Betritt(register_);
            // The calendar button of the payments has the name of the notes' button.
            QWidget* seite = Finde<QTabWidget>(&Form(), "TabStrip1")->currentWidget();
            Klicke(*seite, taste);
            QVERIFY2(Sichtbar("VP"), taste);
            Klicke(Form(), "Command10");
            QCOMPARE(Gewaehlt(), static_cast<int>(register_));
            QVERIFY(seite->isVisible());
        }
    }

    void grafikenFuehrenZurueckWoherSieKamen() {
        Leihe();
        Betritt(barwert);
        Klicke(Form(), "Grafik");
        QVERIFY(Sichtbar("Chart"));
        Klicke(Form(), "Command5");
        Klicke(Form(), "Command12");
        Klicke(Form(), "Command16");
        QVERIFY(Sichtbar("Chart1"));
        Klicke(Form(), "Command18");
        QVERIFY(Sichtbar("Grid4"));
        Betritt(plan);
        WaehleIn("Combo3", 1);
        Klicke(Form(), "Command20");
        QVERIFY(Sichtbar("Chart"));
    }

    void planMitEinerZeileHatKeineGrafik() {
        Leihe();
        Betritt(plan);
        const Zeuge zeuge;
        Klicke(Form(), "Command20");
        QCOMPARE(zeuge.texte,
                 QStringList{"Es ist nur 1 Zahlung vorhanden. Eine Grafikanzeige ist daher nicht möglich."});
    }

    void neuFragtNichtUndLeertAlles() {
        Investiere();
        Betritt(barwert);
        const Zeuge zeuge;
        stand_->Taste(Qt::Key_N);
        QCOMPARE(zeuge.texte, QStringList());
        QCOMPARE(Zeilen(Form(), "List1"), 0);
        QCOMPARE(Gewaehlt(), 0);
        QCOMPARE(Feldtext("BarwDatum"), "");
        QCOMPARE(Inhalt(stand_->arbeit.Pfad() / "ZahlungenT"), "");
    }

    void projektWirdGespeichertUndKommtWieder() {
        Zahle("01.01.2008", "1100");
        Zahle("01.01.2007", "-1000");
        const fs::path datei = stand_->ablage.Pfad() / "Solar.RRR";
        {
            const Dateiwahl wahl(datei);
            stand_->Taste(Qt::Key_S);
        }
        QCOMPARE(Inhalt(datei), "\r\n");
        QCOMPARE(Inhalt(stand_->ablage.Pfad() / "ZahlungenTSolar"),
                 Inhalt(stand_->arbeit.Pfad() / "ZahlungenT"));
        QVERIFY(!Form().isWindowModified());
        stand_->Taste(Qt::Key_N);
        const Dateiwahl wahl(datei);
        stand_->Taste(Qt::Key_O);
        QCOMPARE(Zeilen(Form(), "List1"), 2);
        QCOMPARE(Text("Projekt"), "Solar");
    }

    void derMarkerHaeltDenNamenDenDasProjektVorherHatte() {
        Zahle("01.01.2008", "1100");
        {
            const Dateiwahl wahl(stand_->ablage.Pfad() / "Eins.RRR");
            stand_->Taste(Qt::Key_S);
        }
        const Dateiwahl wahl(stand_->ablage.Pfad() / "Zwei.RRR");
        stand_->Taste(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(Inhalt(stand_->ablage.Pfad() / "Zwei.RRR"), "Eins\r\n");
    }

    void verlassenFragtUndSortiertVorDemSpeichern() {
        Zahle("01.01.2008", "1100");
        Zahle("01.01.2007", "-1000");
        const fs::path datei = stand_->ablage.Pfad() / "Ende.RRR";
        const Dateiwahl wahl(datei);
        const Zeuge zeuge{Antwort::abbrechen, Antwort::ja};
        Klicke(Form(), "Command2");
        QVERIFY(Form().isVisible());
        QVERIFY(!fs::exists(datei));
        Klicke(Form(), "Command2");
        QVERIFY(!Form().isVisible());
        QCOMPARE(zeuge.texte.value(0), "Speichern ?");
        QCOMPARE(Inhalt(stand_->ablage.Pfad() / "ZahlungenTEnde").substr(27, 10), "01.01.2007");
    }

    void ohneNebendateiBleibtDieAlteReihe() {
        Zahle("01.01.2008", "1100");
        const fs::path datei = stand_->ablage.Pfad() / "Leer.RRR";
        std::ofstream(datei) << "";
        const Dateiwahl wahl(datei);
        const Zeuge zeuge{Antwort::nein};
        stand_->Taste(Qt::Key_O);
        QCOMPARE(Zeilen(Form(), "List1"), 1);
        QVERIFY(zeuge.texte.size() >= 1);
    }
};

ZINFOLIO_FENSTERTEST(Form61000Test)

}  // namespace form61000_test

#include "form61000_test.moc"
