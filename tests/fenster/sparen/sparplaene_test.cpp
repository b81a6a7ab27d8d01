// Named plans and the table of rate changes.

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

#include "fenster/formhelfer.h"
#include "fenster/sparen/sparrechner.h"

using namespace zinfolio;

namespace {

QComboBox& Plaene(QWidget& form) {
    return *Finde<QComboBox>(&form, "Combo3");
}

void PlanWaehlen(QWidget& form, int nummer) {
    Plaene(form).setCurrentIndex(nummer);
    emit Plaene(form).activated(nummer);
}

QString Feldtext(QWidget& form, const char* feld) {
    return Finde<QLineEdit>(&form, feld)->text();
}

}  // namespace

class SparplaeneTest : public QObject {
    Q_OBJECT

  private slots:
    void ersterStart() {
        const Pruefstand<Form90000> stand;
        QCOMPARE(Plaene(*stand.form).count(), 100);
        QCOMPARE(Plaene(*stand.form).currentText(), "Neu / unbenannt");
        QCOMPARE(Feldtext(*stand.form, "Betrag"), "");
        QCOMPARE(Finde<QComboBox>(stand.form.get(), "Combo4")->currentText(), "Jahresende");
        QCOMPARE(Finde<QComboBox>(stand.form.get(), "Combo5")->currentText(), "PAngV2000");
        QVERIFY(std::filesystem::exists(stand.arbeit.Pfad() / "VEWertDatenneu"));
    }

    void gespeicherterPlanIstBeimNaechstenStartWiederDa() {
        Pruefstand<Form90000> stand;
        Fuelle(*stand.form, "Betrag", "123,45");
        QVERIFY(stand.form->isWindowModified());
        stand.Taste(Qt::Key_S);
        QVERIFY(!stand.form->isWindowModified());
        stand.Oeffnen();
        QCOMPARE(Feldtext(*stand.form, "Betrag"), "123,45");
    }

    void wechselOhneSpeichernVerliertDieAenderungen() {
        Pruefstand<Form94000> stand;
        PlanWaehlen(*stand.form, 3);
        Fuelle(*stand.form, "Vwert", "777");
        PlanWaehlen(*stand.form, 4);
        QCOMPARE(Feldtext(*stand.form, "Vwert"), "");
        PlanWaehlen(*stand.form, 3);
        QCOMPARE(Feldtext(*stand.form, "Vwert"), "");
    }

    void umbenennenBeiJedemTastendruck() {
        Pruefstand<Form90000> stand;
        QLineEdit* name = Plaene(*stand.form).lineEdit();
        name->setFocus();
        name->selectAll();
        Tippe("AB");
        const std::string index = Inhalt(stand.arbeit.Pfad() / "VEWertDatenneu");
        QCOMPARE(index.size(), std::size_t{50000});
        QCOMPARE(index.substr(0, 4), std::string("\x02\x00"
                                                 "AB",
                                                 4));
        QCOMPARE(Plaene(*stand.form).itemText(0), "AB");
        QVERIFY(stand.form->windowTitle().contains("AB"));
    }

    void beschaedigterPlanLaesstDenAltenStehen() {
        Pruefstand<Form90000> stand;
        Fuelle(*stand.form, "Betrag", "55");
        std::ofstream(stand.arbeit.Pfad() / "VEWertneu 3", std::ios::binary) << std::string(500, '\x07');
        const Zeuge zeuge;
        PlanWaehlen(*stand.form, 2);
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(Plaene(*stand.form).currentIndex(), 0);
        QCOMPARE(Feldtext(*stand.form, "Betrag"), "55");
    }

    void notizenJePlan() {
        Pruefstand<Form90000> stand;
        Waehle(*stand.form, 2);
        Finde<QWidget>(stand.form.get(), "RT")->setFocus();
        Tippe("Notiz");
        stand.Taste(Qt::Key_S);
        QVERIFY(Inhalt(stand.arbeit.Pfad() / "VEWertDatenneuR 0").find("Notiz") != std::string::npos);
    }

    void zinssatzaenderungenOrdnenSichSelbst() {
        Pruefstand<Form90000> stand;
        Klicke(*stand.form, "Zinssatzänderungen");
        QVERIFY(Finde<QWidget>(stand.form.get(), "Frame(6)")->isVisible());
        for (const char* text : {"1.1.2010", "4", "1.1.2008", "3"}) {
            Tippe(text);
            Druecke(Qt::Key_Return);
        }
        QCOMPARE(Feldtext(*stand.form, "ZinsWDAt(1)"), "01.01.2008");
        QCOMPARE(Feldtext(*stand.form, "Zinsbetrag(1)"), "3");
        QCOMPARE(Feldtext(*stand.form, "ZinsWDAt(2)"), "01.01.2010");
        Klicke(*stand.form, "Command13");
        QVERIFY(Finde<QLabel>(stand.form.get(), "Image1(1)")->isVisible());
    }

    void leereZeilenDarueberLehnenDieTasteAb() {
        Pruefstand<Form90000> stand;
        Klicke(*stand.form, "Zinssatzänderungen");
        const Zeuge zeuge;
        Finde<QLineEdit>(stand.form.get(), "Zinsbetrag(3)")->setFocus(Qt::TabFocusReason);
        Tippe("4");
        QCOMPARE(zeuge.texte, QStringList{"Bitte zuerst die leeren Zeilen ausfüllen."});
        QCOMPARE(Fokus(), "ZinsWDAt(1)");
        QCOMPARE(Feldtext(*stand.form, "Zinsbetrag(3)"), "");
        Finde<QLineEdit>(stand.form.get(), "Zinsbetrag(1)")->setFocus(Qt::TabFocusReason);
        Tippe("4");
        QCOMPARE(zeuge.texte.last(), "Geben Sie zuerst das Datum ein.");
        QCOMPARE(Fokus(), "ZinsWDAt(1)");
    }

    void ablehnungDerTabelleZeigtSie() {
        Pruefstand<Form90000> stand;
        for (const auto& [feld, text] :
             {std::pair("Anfdatum", "1.1.2007"), std::pair("ratdatum1", "1.2.2007"),
              std::pair("Enddatum", "31.12.2007")})
            Fuelle(*stand.form, feld, text);
        Fuelle(*stand.form, "AnfVermögen", "1000");
        Fuelle(*stand.form, "Zins", "3");
        Klicke(*stand.form, "Zinssatzänderungen");
        Tippe("1.6.2007");
        Druecke(Qt::Key_Return);
        const Zeuge zeuge;
        Klicke(*stand.form, "Command13");
        Waehle(*stand.form, 1);
        QCOMPARE(zeuge.texte, QStringList{"Geben Sie den Zinsbetrag ein"});
        QVERIFY(Finde<QWidget>(stand.form.get(), "Frame(6)")->isVisible());
        QCOMPARE(Fokus(), "Zinsbetrag(1)");
        Tippe("4");
        Klicke(*stand.form, "Command13");
        Waehle(*stand.form, 1);
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(Finde<QTabWidget>(stand.form.get(), "TabStrip1")->currentIndex(), 1);
    }
};

ZINFOLIO_FENSTERTEST(SparplaeneTest)
#include "sparplaene_test.moc"
