// Each key has one owner in every view of the savings calculators, of the series and of the factor tables.

#include <QCheckBox>

#include "fenster/allround/form61000.h"
#include "fenster/fenstertest.h"
#include "fenster/formhelfer.h"
#include "fenster/sparen/sparrechner.h"
#include "fenster/tabellen/form14005.h"
#include "fenster/tastenplan.h"

namespace tastenplanrechner_test {

using namespace zinfolio;

QString Doppelte(QMainWindow& form) {
    return Tastenplan(form).Doppelte().join("; ");
}

/// A plan that every form can calculate.
void PlanAngeben(QWidget& form) {
    for (const auto& [name, text] : {std::pair("AnfVermögen", "1000"),
                                     {"Anfdatum", "01.01.2007"},
                                     {"ratdatum1", "28.02.2007"},
                                     {"Betrag", "100"},
                                     {"Enddatum", "31.12.2007"},
                                     {"Zins", "3"},
                                     {"Vwert", "2200"},
                                     {"Vermendwert", "2200"}}) {
        if (form.findChild<QLineEdit*>(name)) Fuelle(form, name, text);
    }
}

class TastenplanrechnerTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void sparrechner_data() {
        QTest::addColumn<int>("ziel");
        for (const Sparform& form : Sparformen())
            QTest::newRow(form.name.data()) << static_cast<int>(form.ziel);
    }
    void sparrechner() {
        QFETCH(int, ziel);
        const Testordner ordner;
        Sparrechner form(SparformVon(static_cast<Sparziel>(ziel)), ordner.Pfad());
        Zeige(form);
        PlanAngeben(form);
        QCOMPARE(Doppelte(form), "");
        Finde<QCheckBox>(&form, "Check2")->click();
        QCOMPARE(Doppelte(form), "");
        Finde<QCheckBox>(&form, "Check2")->click();
        if (form.findChild<QWidget*>("Zinssatzänderungen")) {
            Klicke(form, "Zinssatzänderungen");
            QCOMPARE(Doppelte(form), "");
            Klicke(form, "Command13");
        }
        Waehle(form, 1);
        QVERIFY(Finde<QWidget>(&form, "Grid")->isVisible());
        QCOMPARE(Doppelte(form), "");
        for (const auto& [taste, zurueck] : {std::pair("Command4", "Command5"), {"Command8", "Command10"}}) {
            Klicke(form, taste);
            QVERIFY(Finde<QWidget>(&form, zurueck)->isVisible());
            QCOMPARE(Doppelte(form), "");
            Klicke(form, zurueck);
        }
        Waehle(form, 2);
        QCOMPARE(Doppelte(form), "");
    }

    void reihenrechner() {
        Pruefstand<Form61000> stand;
        Form61000& form = *stand.form;
        for (const auto& [datum, betrag] :
             {std::pair("15.01.2007", "1000"), {"15.02.2007", "-500"}, {"15.04.2007", "-520"}}) {
            Fuelle(form, "Begdatum", datum);
            Fuelle(form, "Betrag", betrag);
            Klicke(form, "Speichern");
        }
        for (int register_ = 0; register_ < 6; ++register_) {
            Waehle(form, register_);
            QCOMPARE(Finde<QTabWidget>(&form, "TabStrip1")->currentIndex(), register_);
            QCOMPARE(Doppelte(form), "");
        }
        Waehle(form, 0);
        Finde<QCheckBox>(&form, "Check1")->click();
        QCOMPARE(Doppelte(form), "");
        Waehle(form, 2);
        Klicke(form, "Command12");
        QCOMPARE(Doppelte(form), "");
        Klicke(form, "Command15");
        Finde<QAction>(&form, "Einstellungen")->trigger();
        QVERIFY(Finde<QWidget>(&form, "Abzins")->isVisible());
        QCOMPARE(Doppelte(form), "");
    }

    void faktortabellen() {
        Pruefstand<Form14005> stand;
        for (const int register_ : {0, 1}) {
            Waehle(*stand.form, register_);
            QCOMPARE(Doppelte(*stand.form), "");
        }
    }
};

ZINFOLIO_FENSTERTEST(TastenplanrechnerTest)

}  // namespace tastenplanrechner_test

#include "tastenplanrechner_test.moc"
