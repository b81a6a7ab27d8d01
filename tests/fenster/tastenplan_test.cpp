// Each key has one owner in every view of the account.

#include "fenster/tastenplan.h"

#include <QTextEdit>

#include "fenster/fenstertest.h"
#include "fenster/kontoformular.h"

namespace tastenplan_test {

using namespace zinfolio;

class TastenplanTest : public QObject {
    Q_OBJECT

  private:
    Pruefstand<Form48000> stand_;

    Form48000& Form() { return *stand_.form; }
    QStringList Doppelte() { return Tastenplan(Form()).Doppelte(); }

  private slots:
    void initTestCase() {
        Zahlung(Form(), "31.12.2006", "1000", "Einlage");
        Zahlung(Form(), "30.06.2007", "500", "Nachzahlung");
        Kondition(Form());
        Waehle(Form(), Form48000::zinsverrechnung);
        Fuelle(Form(), "Kontodatum", "31.12.2007");
    }

    void jedesRegister_data() {
        QTest::addColumn<int>("register_");
        for (const auto& [name, register_] :
             {std::pair("Zahlungen", Form48000::zahlungen), std::pair("Zinssätze", Form48000::zinssaetze),
              std::pair("Zinsverrechnung", Form48000::zinsverrechnung),
              std::pair("Zinsstaffel berechnen", Form48000::berechnung),
              std::pair("Notizen", Form48000::notizen)})
            QTest::newRow(name) << int(register_);
    }
    void jedesRegister() {
        QFETCH(int, register_);
        Waehle(Form(), register_);
        QCOMPARE(Doppelte().join("; "), "");
    }

    void serieUndIhreVorschau() {
        Waehle(Form(), Form48000::zahlungen);
        Finde<QAbstractButton>(&Form(), "Check1")->click();
        QCOMPARE(Doppelte().join("; "), "");
        Finde<QAbstractButton>(&Form(), "Check1")->click();
        Fuelle(Form(), "Ratzahl", "3");
        Zahlung(Form(), "01.07.2007", "1");
        QVERIFY(Finde<QWidget>(&Form(), "Grid2")->isVisible());
        QCOMPARE(Doppelte().join("; "), "");
        Klicke(Form(), "Command4");
    }

    void eineZeileInAenderung() {
        for (const auto& [register_, liste, taste] :
             {std::tuple(Form48000::zahlungen, "List1", "Bearbeiten"),
              std::tuple(Form48000::zinssaetze, "List2", "Bearbeiten2")}) {
            Waehle(Form(), register_);
            Finde<Tabelle>(&Form(), liste)->selectRow(0);
            if (auto* knopf = Form().findChild<QAbstractButton*>(taste)) knopf->click();
            QCOMPARE(Doppelte().join("; "), "");
        }
    }

    void vorschauGrafikUndSechstesRegister() {
        for (const char* taste : {"Command13", "Grafik"}) {
            Waehle(Form(), Form48000::berechnung);
            Klicke(Form(), taste);
            QCOMPARE(Doppelte().join("; "), "");
            Druecke(Qt::Key_Escape);
        }
        Klicke(Form(), "Command5");
        QCOMPARE(Finde<QTabWidget>(&Form(), "TabStrip1")->count(), 6);
        QCOMPARE(Doppelte().join("; "), "");
        Druecke(Qt::Key_Escape);
        QCOMPARE(Finde<QTabWidget>(&Form(), "TabStrip1")->currentIndex(), int(Form48000::berechnung));
    }
};

ZINFOLIO_FENSTERTEST(TastenplanTest)

}  // namespace tastenplan_test

#include "tastenplan_test.moc"
