// Named plans and the table of rate changes.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>
#include <cstring>

#include "fenster/formhelfer.h"
#include "fenster/sparen/sparrechner.h"

namespace sparplaene_test {

using namespace zinfolio;

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

    void hundertPlaeneStehenZurWahl() {
        Pruefstand<Form90000> stand;
        PlanWaehlen(*stand.form, 99);
        Fuelle(*stand.form, "Betrag", "100,99");
        Waehle(*stand.form, 2);
        Tippe("letzter");
        stand.Taste(Qt::Key_S);
        QVERIFY(std::filesystem::exists(stand.arbeit.Pfad() / "VEWertneu 100"));
        QVERIFY(Inhalt(stand.arbeit.Pfad() / "VEWertDatenneuR 99").find("letzter") != std::string::npos);
        stand.Oeffnen();
        QCOMPARE(Plaene(*stand.form).currentIndex(), 99);
        QCOMPARE(Feldtext(*stand.form, "Betrag"), "100,99");
        PlanWaehlen(*stand.form, 98);
        QCOMPARE(Feldtext(*stand.form, "Betrag"), "");
        QCOMPARE(Finde<QTextEdit>(stand.form.get(), "RT")->toPlainText(), "");
    }

    void wechselNenntAlleUnbenanntenPlaene() {
        Pruefstand<Form90000> stand;
        PlanWaehlen(*stand.form, 1);
        const std::string index = Inhalt(stand.arbeit.Pfad() / "VEWertDatenneu");
        QCOMPARE(index.substr(99 * 500, 17), std::string("\x0F\x00Neu / unbenannt", 17));
        QCOMPARE(index.substr(100 * 500, 2), std::string("\x01\x00", 2));
    }

    void aeltererPlanOhneSpaetereSaetze() {
        Pruefstand<Form90000> stand;
        const auto satz = [](std::string anfang) {
            anfang.resize(500, '\0');
            return anfang;
        };
        std::string datei;
        for (const char* text : {"1000", "01.01.2007", "01.02.2007", "55"})
            datei += satz(std::string("\x08\x00", 2) + static_cast<char>(std::strlen(text)) + '\0' + text);
        for (int nummer = 5; nummer < 15; ++nummer)
            datei += satz("");
        datei += satz(std::string("\x08\x00\x01\x00%", 5));
        std::ofstream(stand.arbeit.Pfad() / "VEWertneu 8", std::ios::binary) << datei;
        const Zeuge zeuge;
        PlanWaehlen(*stand.form, 7);
        QCOMPARE(zeuge.texte, QStringList());
        QCOMPARE(Feldtext(*stand.form, "Betrag"), "55");
        QCOMPARE(Feldtext(*stand.form, "Delta2"), "0");
        QCOMPARE(Finde<QComboBox>(stand.form.get(), "Combo4")->currentText(), "Jahresende");
        for (const char* haken : {"Check3", "Check4", "Check5"})
            QVERIFY(!Finde<QCheckBox>(stand.form.get(), haken)->isChecked());
        QCOMPARE(Feldtext(*stand.form, "ZinsWDAt(40)"), "");
    }

    void beschaedigtesVerzeichnisWirdGemeldetUndDiePlaeneBleiben() {
        Pruefstand<Form90000> stand;
        Fuelle(*stand.form, "Betrag", "55");
        stand.Taste(Qt::Key_S);
        QLineEdit* name = Plaene(*stand.form).lineEdit();
        name->setFocus();
        name->selectAll();
        Tippe("Haus");
        const auto pfad = stand.arbeit.Pfad() / "VEWertDatenneu";
        std::string index = Inhalt(pfad);
        index.replace(500, 2, "\xFF\xFF");
        std::ofstream(pfad, std::ios::binary) << index;
        {
            const Zeuge zeuge;
            stand.Oeffnen();
            QCOMPARE(zeuge.texte.size(), 1);
            QVERIFY(zeuge.texte[0].startsWith("Bitte überprüfen Sie Ihre Angaben."));
            QVERIFY(zeuge.einzelheiten[0].contains("VEWertDatenneu"));
        }
        QCOMPARE(Plaene(*stand.form).currentText(), "Haus");
        QCOMPARE(Feldtext(*stand.form, "Betrag"), "55");
        QCOMPARE(Inhalt(stand.arbeit.Pfad() / "VEWertDatenneu beschädigt"), index);
        PlanWaehlen(*stand.form, 1);
        const Zeuge zeuge;
        stand.Oeffnen();
        QCOMPARE(zeuge.texte, QStringList());
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

}  // namespace sparplaene_test

#include "sparplaene_test.moc"
