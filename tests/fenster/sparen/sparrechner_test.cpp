// The five savings calculators, each from an empty plan to its result with real keys.

#include "fenster/sparen/sparrechner.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include "fenster/formhelfer.h"
#include "fenster/ungeduld.h"

namespace sparrechner_test {

using namespace zinfolio;

enum Register { daten, berechnen, notizen };

QString Text(QWidget& form, const char* label) {
    return Finde<QLabel>(&form, label)->text();
}

int Gewaehlt(QWidget& form) {
    return Finde<QTabWidget>(&form, "TabStrip1")->currentIndex();
}

/// Types into the field with the focus and moves on by Enter; an empty text only moves on.
void Eingeben(const QStringList& texte) {
    for (const QString& text : texte) {
        Tippe(text);
        Druecke(Qt::Key_Return);
    }
}

void Beginne(QWidget& form, const char* feld) {
    Finde<QWidget>(&form, feld)->setFocus(Qt::TabFocusReason);
}

/// 100 a month through 2007, at 3 percent.
template <class Form>
void FuellePlan2007(Form& form) {
    if (form.template findChild<QLineEdit*>("AnfVermögen")) Fuelle(form, "AnfVermögen", "1000");
    Fuelle(form, "Anfdatum", "1.1.2007");
    Fuelle(form, "ratdatum1", "1.2.2007");
    if (form.template findChild<QLineEdit*>("Betrag")) Fuelle(form, "Betrag", "100");
    if (form.template findChild<QLineEdit*>("Enddatum")) Fuelle(form, "Enddatum", "31.12.2007");
    if (form.template findChild<QLineEdit*>("Zins")) Fuelle(form, "Zins", "3");
}

class SparrechnerTest : public QObject {
    Q_OBJECT

  private slots:
    void endkapitalAllein_mitDerEingabetaste() {
        Pruefstand<Form90000> stand;
        Beginne(*stand.form, "AnfVermögen");
        Eingeben({"1000", "1.1.7", "1.2.7", "100", ""});
        QCOMPARE(Fokus(), "Zins");
        Eingeben({"3", "", "", "31.12.07"});
        stand.Taste(Qt::Key_F9, Qt::NoModifier);
        QCOMPARE(Gewaehlt(*stand.form), int(berechnen));
        QCOMPARE(Text(*stand.form, "EV"), "2.146,32");
        QCOMPARE(Text(*stand.form, "Gesamtzahlungssumme"), "2.100,00");
        QCOMPARE(Text(*stand.form, "Geszins"), "46,32");
        QVERIFY(Finde<QLabel>(stand.form.get(), "ezins")->isVisible());
        QCOMPARE(Zeilen(*stand.form, "Grid"), 15);
        QCOMPARE(Zeile(*stand.form, "Grid", 0), "01.01.2007|Konditionenänderung|0,00|0,00|0,00");
        QCOMPARE(Zeile(*stand.form, "Grid", 13), "31.12.2007|Zinstermin|0,00|46,32|2.146,32");
        QVERIFY(std::filesystem::exists(stand.arbeit.Pfad() / "Lösungsdatei"));
    }

    void jedeFormMitDerEingabetaste_data() {
        QTest::addColumn<int>("ziel");
        QTest::addColumn<QStringList>("angaben");
        QTest::addColumn<QString>("ergebnis");
        const auto zeile = [](Sparziel ziel, const QStringList& angaben, const char* ergebnis) {
            QTest::newRow(SparformVon(ziel).name.data()) << int(ziel) << angaben << QString(ergebnis);
        };
        // An empty text stands for a list that is passed by.
        zeile(Sparziel::sparrate, {"1000", "1.1.7", "1.2.7", "", "2146,32", "31.12.07", "3"}, "100,00");
        zeile(Sparziel::rendite, {"1000", "1.1.7", "1.2.7", "100", "", "2146,32", "", "", "31.12.07"},
              "2.146,32");
        zeile(Sparziel::anspardauer, {"1000", "1.1.7", "1.2.7", "100", "", "3", "", "", "2080"},
              "01.12.2007");
        zeile(Sparziel::anfangskapital, {"1.1.7", "1.2.7", "100", "", "5000", "31.12.07", "3"}, "5.000,00");
    }
    void jedeFormMitDerEingabetaste() {
        QFETCH(int, ziel);
        QFETCH(QStringList, angaben);
        QFETCH(QString, ergebnis);
        UhrStellen(*Datum::Aus(2026, 11, 21));
        const Testordner ordner;
        Sparrechner form(SparformVon(static_cast<Sparziel>(ziel)), ordner.Pfad());
        Zeige(form);
        QCOMPARE(Fokus(), ziel == int(Sparziel::anfangskapital) ? "Anfdatum" : "AnfVermögen");
        Eingeben(angaben);
        QTest::keyClick(&form, Qt::Key_F9);
        QCOMPARE(Gewaehlt(form), int(berechnen));
        const bool imFeld = ziel == int(Sparziel::sparrate) || ziel == int(Sparziel::anspardauer);
        QCOMPARE(Text(form, imFeld ? "Loesung" : "EV"), ergebnis);
    }

    void sparrate() {
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "2146,32");
        Klicke(*stand.form, "Command6");
        QCOMPARE(Text(*stand.form, "Loesung"), "100,00");
        QCOMPARE(Text(*stand.form, "EV"), "2.146,32");
    }

    void rendite() {
        Pruefstand<Form92000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vermendwert", "2146,32");
        Waehle(*stand.form, berechnen);
        // The account that ends so bears 3 percent, up to its roundings.
        QVERIFY2(
            Text(*stand.form, "Nzins").startsWith("3,000") || Text(*stand.form, "Nzins").startsWith("2,999"),
            qPrintable(Text(*stand.form, "Nzins")));
        QCOMPARE(Text(*stand.form, "EV"), "2.146,32");
        QVERIFY(Finde<QLabel>(stand.form.get(), "ezins")->isVisible());
    }

    void anspardauer() {
        Pruefstand<Form96000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "2080");
        Waehle(*stand.form, berechnen);
        // 2000 and 36.25 until 01.11., the next rate on 01.12. passes the target.
        QCOMPARE(Text(*stand.form, "Loesung"), "01.12.2007");
        const QString grundlage = Text(*stand.form, "Grundlage");
        QVERIFY2(grundlage.startsWith("30/360 Tage : Deutsche Methode  ·  Zinsverrechnung: ") &&
                     grundlage.endsWith("  ·  Kontoabschluss: 01.12.2007"),
                 qPrintable(grundlage));
        QCOMPARE(Zeile(*stand.form, "Grid", 1), "01.02.2007|Zahlung|100,00|0,00|1.100,00");
        QVERIFY(!Finde<QLabel>(stand.form.get(), "ezins")->isVisible());
        Klicke(*stand.form, "Effzins");
        QVERIFY(Finde<QLabel>(stand.form.get(), "ezins")->isVisible());
    }

    void anfangskapital() {
        Pruefstand<Form99000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "5000");
        Waehle(*stand.form, berechnen);
        QCOMPARE(Gewaehlt(*stand.form), int(berechnen));
        QCOMPARE(Text(*stand.form, "EV"), "5.000,00");
        // Nothing was found before, so that the plan begins with its first rate.
        Waehle(*stand.form, daten);
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Anfdatum")->text(), "01.02.2007");
        Fuelle(*stand.form, "Anfdatum", "1.1.2007");
        Waehle(*stand.form, berechnen);
        Waehle(*stand.form, daten);
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Anfdatum")->text(), "01.01.2007");
    }

    void ablehnungFuehrtInDasFeld() {
        Pruefstand<Form90000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Enddatum", "");
        const Zeuge zeuge;
        Waehle(*stand.form, berechnen);
        QCOMPARE(zeuge.texte, QStringList{"Bitte das Enddatum eingeben"});
        QCOMPARE(Gewaehlt(*stand.form), int(daten));
        QCOMPARE(Fokus(), "Enddatum");
        Tippe("31.12.2007");
        Waehle(*stand.form, berechnen);
        QCOMPARE(Text(*stand.form, "EV"), "2.146,32");
    }

    void eingefuegteBuchstabenGebenDieAllgemeineMeldung() {
        Pruefstand<Form90000> stand;
        FuellePlan2007(*stand.form);
        Finde<QLineEdit>(stand.form.get(), "Betrag")->setText("abc");
        const Zeuge zeuge;
        Waehle(*stand.form, berechnen);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Bitte überprüfen Sie Ihre Angaben."));
        QCOMPARE(Gewaehlt(*stand.form), int(daten));
        Fuelle(*stand.form, "Betrag", "100");
        Waehle(*stand.form, berechnen);
        QCOMPARE(Text(*stand.form, "EV"), "2.146,32");
    }

    void dynamisierungZeigtIhreFelder() {
        Pruefstand<Form90000> stand;
        QVERIFY(!Finde<QWidget>(stand.form.get(), "Frameb")->isVisible());
        QTest::keyClick(Finde<QCheckBox>(stand.form.get(), "Check2"), Qt::Key_Space);
        QVERIFY(Finde<QWidget>(stand.form.get(), "Frameb")->isVisible());
        QVERIFY(!Finde<QLineEdit>(stand.form.get(), "MaxSparrate")->isEnabled());
        QTest::keyClick(Finde<QCheckBox>(stand.form.get(), "Check4"), Qt::Key_Space);
        QVERIFY(Finde<QLineEdit>(stand.form.get(), "MaxSparrate")->isEnabled());
    }

    void monatsletzterWirdAngeboten() {
        Pruefstand<Form90000> stand;
        auto* Check1 = Finde<QCheckBox>(stand.form.get(), "Check1");
        QVERIFY(!Check1->isVisible());
        Fuelle(*stand.form, "ratdatum1", "28.2.2001");
        Druecke(Qt::Key_Return);
        QVERIFY(Check1->isVisible());
        Check1->setChecked(true);
        Fuelle(*stand.form, "ratdatum1", "31.3.2001");
        Druecke(Qt::Key_Return);
        QVERIFY(!Check1->isVisible());
        QVERIFY(!Check1->isChecked());
    }

    void jedesFormularHatNurSeineFelder() {
        const Pruefstand<Form99000> kapital;
        QVERIFY(!kapital.form->findChild<QLineEdit*>("AnfVermögen"));
        const Pruefstand<Form96000> dauer;
        QVERIFY(!dauer.form->findChild<QLineEdit*>("Enddatum"));
        QVERIFY(!dauer.form->findChild<QLineEdit*>("MaxSparrate"));
        QVERIFY(!dauer.form->findChild<QWidget*>("Frame(6)"));
        const Pruefstand<Form92000> rendite;
        QVERIFY(!rendite.form->findChild<QLineEdit*>("Zins"));
        QVERIFY(!rendite.form->findChild<QWidget*>("Zinssatzänderungen"));
    }

    void punkteKommenBeiDerAnspardauerVonSelbst() {
        Pruefstand<Form96000> stand;
        Fuelle(*stand.form, "Anfdatum", "01022007");
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Anfdatum")->text(), "01.02.2007");
        Fuelle(*stand.form, "Anfdatum", "01");
        Druecke(Qt::Key_Backspace);
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Anfdatum")->text(), "0");
    }

    void getippterPunktHinterDemVonSelbstGekommenenZaehltNicht() {
        Pruefstand<Form96000> stand;
        Fuelle(*stand.form, "Anfdatum", "28.02.2007");
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Anfdatum")->text(), "28.02.2007");
    }

    void tabGehtDurchAlleFelderVonObenNachUnten() {
        Pruefstand<Form90000> stand;
        QTest::keyClick(Finde<QCheckBox>(stand.form.get(), "Check2"), Qt::Key_Space);
        for (const char* haken : {"Check3", "Check4", "Check5"})
            Finde<QCheckBox>(stand.form.get(), haken)->click();
        Fuelle(*stand.form, "ratdatum1", "28.2.2001");
        Beginne(*stand.form, "AnfVermögen");
        const QStringList weg = Gang(Qt::Key_Tab);
        QCOMPARE(weg.mid(0, 25).join(", "),
                 (QStringList{"AnfVermögen", "Anfdatum", "Command1",    "ratdatum1", "Command2",
                              "Betrag",      "Combo1",   "Check1",      "Zins",      "Combo2",
                              "Combo4",      "Enddatum", "Command3",    "Check2",    "Anzahl",
                              "Delta",       "Delta2",   "Check3",      "DynAnz",    "Check4",
                              "MaxSparrate", "Check5",   "MinSparrate", "Command6",  "Zinssatzänderungen"})
                     .join(", "));
    }

    void einzelneZiffernBekommenIhrePunkteVonHand() {
        Pruefstand<Form96000> stand;
        Fuelle(*stand.form, "Anfdatum", "1.2.2007");
        Druecke(Qt::Key_Return);
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Anfdatum")->text(), "01.02.2007");
    }

    void einheitWechselt() {
        Pruefstand<Form96000> stand;
        auto* Command6 = Finde<QPushButton>(stand.form.get(), "Command6");
        QTest::keyClick(Finde<QCheckBox>(stand.form.get(), "Check2"), Qt::Key_Space);
        QCOMPARE(Command6->text(), "%");
        Klicke(*stand.form, "Command6");
        QCOMPARE(Command6->text(), "€");
        Klicke(*stand.form, "Command6");
        QCOMPARE(Command6->text(), "%");
    }

    void andereMethodeRechnetDenEffektivzinsNeu() {
        Pruefstand<Form90000> stand;
        FuellePlan2007(*stand.form);
        Waehle(*stand.form, berechnen);
        const QString vorher = Text(*stand.form, "ezins");
        auto* Combo5 = Finde<QComboBox>(stand.form.get(), "Combo5");
        Combo5->setFocus();
        Druecke(Qt::Key_Up);
        QCOMPARE(Combo5->currentText(), "AIDB (ISMA)");
        QVERIFY(Text(*stand.form, "ezins") != vorher);
    }

    void grafikUndBerichtFuehrenZurueck() {
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "2500");
        Waehle(*stand.form, berechnen);
        Klicke(*stand.form, "Command4");
        QVERIFY(Finde<QWidget>(stand.form.get(), "Frame(4)")->isVisible());
        Klicke(*stand.form, "Command5");
        Klicke(*stand.form, "Command8");
        QVERIFY(Finde<QWidget>(stand.form.get(), "Frame(5)")->isVisible());
        Klicke(*stand.form, "Command10");
        QVERIFY(Finde<QWidget>(stand.form.get(), "Frame(2)")->isVisible());
    }

    void ansichtenDesKontos() {
        Pruefstand<Form90000> stand;
        FuellePlan2007(*stand.form);
        Waehle(*stand.form, berechnen);
        auto* Combo6 = Finde<QComboBox>(stand.form.get(), "Combo6");
        Combo6->setCurrentIndex(3);
        QCOMPARE(Finde<QTableView>(stand.form.get(), "Grid")->model()->columnCount(), 15);
        Waehle(*stand.form, daten);
        Waehle(*stand.form, berechnen);
        QCOMPARE(Combo6->currentIndex(), 0);
    }

    void langeSucheLaeuftNebenDemFenster() {
        const Ungeduld ungeduld;
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "2146,32");
        Waehle(*stand.form, berechnen);
        QVERIFY(Finde<QWidget>(stand.form.get(), "Suchzeile")->isVisible());
        QCOMPARE(Text(*stand.form, "EV"), "");
        QVERIFY(!Finde<QPushButton>(stand.form.get(), "Command8")->isEnabled());
        QTRY_COMPARE(Text(*stand.form, "EV"), "2.146,32");
        QVERIFY(!Finde<QWidget>(stand.form.get(), "Suchzeile")->isVisible());
        QVERIFY(std::filesystem::exists(stand.arbeit.Pfad() / "Lösungsdatei"));
    }

    void abgebrocheneSucheLaesstDieAngabenStehen() {
        const Ungeduld ungeduld;
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Waehle(*stand.form, berechnen);
        QCOMPARE(Fokus(), "Abbrechen");
        Druecke(Qt::Key_Space);
        QCOMPARE(Gewaehlt(*stand.form), int(daten));
        // Not even the zero that the check would put in.
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Vwert")->text(), "");
        QTest::qWait(100);
        QVERIFY(!std::filesystem::exists(stand.arbeit.Pfad() / "Lösungsdatei"));
        QCOMPARE(Text(*stand.form, "EV"), "");
    }

    void eineAendrungGibtDieSucheAuf() {
        const Ungeduld ungeduld;
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "2146,32");
        Waehle(*stand.form, berechnen);
        Waehle(*stand.form, daten);
        Fuelle(*stand.form, "Vwert", "5000");
        QTest::qWait(100);
        Waehle(*stand.form, berechnen);
        // A rate in whole cents meets it up to what a cent grows to in eleven payments.
        QTRY_VERIFY(Text(*stand.form, "EV").startsWith("5.000,0") ||
                    Text(*stand.form, "EV").startsWith("4.999,9"));
    }

    void einAndererPlanBekommtDasErgebnisNicht() {
        const Ungeduld ungeduld;
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "2146,32");
        Waehle(*stand.form, berechnen);
        auto* Combo3 = Finde<QComboBox>(stand.form.get(), "Combo3");
        Combo3->setCurrentIndex(4);
        emit Combo3->activated(4);
        QTest::qWait(100);
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Vwert")->text(), "");
        QCOMPARE(Text(*stand.form, "EV"), "");
        QVERIFY(!std::filesystem::exists(stand.arbeit.Pfad() / "Lösungsdatei"));
    }

    void dasErgebnisWartetAufSeinRegister() {
        const Ungeduld ungeduld;
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "2146,32");
        Waehle(*stand.form, berechnen);
        Waehle(*stand.form, notizen);
        QTest::qWait(100);
        QCOMPARE(Gewaehlt(*stand.form), int(notizen));
        QCOMPARE(Text(*stand.form, "EV"), "");
        Waehle(*stand.form, berechnen);
        QTRY_COMPARE(Text(*stand.form, "EV"), "2.146,32");
    }

    void ablehnungEinerLangenSucheFuehrtInDasFeld() {
        const Ungeduld ungeduld;
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Zins", "");
        const Zeuge zeuge;
        Waehle(*stand.form, berechnen);
        QTRY_COMPARE(zeuge.texte, QStringList{"Bitte den Zinssatz eingeben"});
        QCOMPARE(Fokus(), "Zins");
    }

    void verlassenWaehrendDerSuche() {
        const Ungeduld ungeduld;
        Pruefstand<Form94000> stand;
        FuellePlan2007(*stand.form);
        Fuelle(*stand.form, "Vwert", "2146,32");
        Waehle(*stand.form, berechnen);
        const Zeuge zeuge{Antwort::nein};
        stand.form->close();
        QVERIFY(!stand.form->isVisible());
        stand.form.reset();
        QTest::qWait(100);
        QCOMPARE(zeuge.texte, QStringList{"Speichern ?"});
    }
};

ZINFOLIO_FENSTERTEST(SparrechnerTest)

}  // namespace sparrechner_test

#include "sparrechner_test.moc"
