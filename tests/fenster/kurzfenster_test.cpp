#include "fenster/tabellen/kurzfenster.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "fenster/ausgabe/form34.h"
#include "fenster/formhelfer.h"
#include "kern/bericht/textbericht.h"
#include "kern/tabellen/kurzdatei.h"

namespace zinfolio::kurzfenster_test {

/// A quick window in a working folder of its own.
struct Kurzstand {
    explicit Kurzstand(Kurzform form) : fenster(KurzrechnerVon(form), ordner.Pfad()) { Zeige(fenster); }

    QString Feld(const char* name) { return Finde<QLineEdit>(&fenster, name)->text(); }
    QString Ergebnis(const char* name) { return Finde<QLabel>(&fenster, name)->text(); }

    Testordner ordner;
    Kurzfenster fenster;
};

class KurzfensterTest : public QObject {
    Q_OBJECT

  private slots:
    void endkapitalVonLeerBisErgebnisNurMitTasten() {
        Kurzstand stand(Kurzform::Form4b);
        QTest::keyClick(&stand.fenster, Qt::Key_H, Qt::AltModifier);
        QCOMPARE(Fokus(), "rate");
        for (const char* text : {"100", "1", "360", "10", "0"}) {
            Tippe(text);
            Druecke(Qt::Key_Return);
        }
        Finde<QRadioButton>(&stand.fenster, "Zahlweise1")->click();
        Druecke(Qt::Key_F9);
        QCOMPARE(stand.Ergebnis("Vwert"), "231,00");
        QCOMPARE(stand.Feld("rate"), "100,00");
        QCOMPARE(stand.Feld("Laufzeitjahre"), "2,00");
        QCOMPARE(stand.Feld("Lauftage"), "0,00");
    }

    void jedeFormZeigtIhrErgebnis() {
        Kurzstand rate(Kurzform::Form5b);
        for (const auto& [name, text] : {std::pair("Vendwert", "15000"), {"Laufjahre", "10"}, {"Zins", "5"}})
            Fuelle(rate.fenster, name, text);
        Klicke(rate.fenster, "Command1");
        QCOMPARE(rate.Ergebnis("rate"), "96,76");
        QCOMPARE(rate.Feld("kap"), "0,00");
        Kurzstand rendite(Kurzform::Form7b);
        for (const auto& [name, text] : {std::pair("Vendwert", "1120"), {"Laufjahre", "1"}, {"kap", "1000"}})
            Fuelle(rendite.fenster, name, text);
        Klicke(rendite.fenster, "Command1");
        QCOMPARE(rendite.Ergebnis("Zins"), "12,00%");
        Kurzstand dauer(Kurzform::Form8b);
        for (const auto& [name, text] : {std::pair("Vendwert", "15000"), {"rate", "100"}, {"Zins", "5"}})
            Fuelle(dauer.fenster, name, text);
        Klicke(dauer.fenster, "Command1");
        QCOMPARE(dauer.Ergebnis("Laufjahre"), "9,00");
        QCOMPARE(dauer.Ergebnis("Lauftage"), "261,00");
    }

    void dasErsteFeldIstBeimOeffnenBereit() {
        for (const auto& [form, feld] : {std::pair(Kurzform::Form4b, "rate"),
                                         {Kurzform::Form5b, "Vendwert"},
                                         {Kurzform::Form7b, "Vendwert"},
                                         {Kurzform::Form8b, "Vendwert"}}) {
            const Kurzstand stand(form);
            QCOMPARE(Fokus(), feld);
        }
    }

    void allesStehtImBlickOhneRollen() {
        for (const Kurzrechner& rechner : AlleKurzrechner()) {
            Kurzstand stand(rechner.form);
            for (const QScrollBar* leiste : stand.fenster.findChildren<QScrollBar*>())
                QVERIFY2(!leiste->isVisible(), rechner.name.data());
        }
    }

    void renditeOhneLaufzeitWirdAbgelehnt() {
        Kurzstand stand(Kurzform::Form7b);
        Zeuge zeuge;
        Klicke(stand.fenster, "Command1");
        QCOMPARE(zeuge.texte, QStringList("Die Laufzeit in Jahren oder Tagen muss grösser als 0 sein."));
        QCOMPARE(stand.Feld("Vendwert"), "0");
    }

    void einFehlerEndetStillUndOhneErgebnis() {
        Kurzstand stand(Kurzform::Form4b);
        Zeuge zeuge;
        Fuelle(stand.fenster, "Laufzeitjahre", "40000");
        Klicke(stand.fenster, "Command1");
        QVERIFY(zeuge.texte.isEmpty());
        QCOMPARE(stand.Ergebnis("Vwert"), "");
        QVERIFY(!Finde<QPushButton>(&stand.fenster, "Command3")->isEnabled());
    }

    void eineGeaenderteEingabeNimmtDasErgebnisWeg() {
        Kurzstand stand(Kurzform::Form4b);
        Fuelle(stand.fenster, "Kap", "100");
        Klicke(stand.fenster, "Command1");
        QCOMPARE(stand.Ergebnis("Vwert"), "100,00");
        Finde<QRadioButton>(&stand.fenster, "Zahlungsmodus2")->click();
        QCOMPARE(stand.Ergebnis("Vwert"), "");
    }

    void druckenUebergibtDemBetrachterDenText() {
        Kurzstand stand(Kurzform::Form4b);
        Fuelle(stand.fenster, "Kap", "100");
        Klicke(stand.fenster, "Command1");
        Klicke(stand.fenster, "Command3");
        QVERIFY(stand.fenster.findChild<Form34*>()->isVisible());
        const QString text = QString::fromStdString(TextberichtLesen(stand.ordner.Pfad()));
        QVERIFY(text.startsWith("\n\nEndkapital Ratensparen\n\n\n"));
        QVERIFY(text.contains("Zahlweise"));
        QVERIFY(text.contains("1. Zahlung sofort fällig"));
        QVERIFY(text.contains("100,00"));
    }

    void zurueckSchreibtDieDateiUndZeigtDasGrosseFenster() {
        const Testordner ordner;
        QWidget grosses;
        grosses.show();
        KurzrechnerZeigen(Kurzform::Form8b, grosses, ordner.Pfad());
        QPointer<QWidget> fenster = [] {
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (widget->objectName() == "Form8b") return widget;
            return static_cast<QWidget*>(nullptr);
        }();
        QVERIFY(fenster && fenster->isVisible());
        QVERIFY(!grosses.isVisible());
        QVERIFY(QTest::qWaitForWindowActive(fenster));
        Fuelle(*fenster, "rate", "250");
        Finde<QRadioButton>(fenster, "Zahlweise4")->click();
        Druecke(Qt::Key_Escape);
        QVERIFY(grosses.isVisible());
        QTRY_VERIFY(fenster.isNull());
        const Kurzeingabe eingabe = KurzeingabeLesen(ordner.Pfad(), KurzrechnerVon(Kurzform::Form8b));
        QCOMPARE(eingabe[Kurzgroesse::rate], "250");
        QCOMPARE(eingabe.m, 4);
    }

    void dieLetztenAngabenStehenWiederDa() {
        const Testordner ordner;
        const Kurzrechner& rechner = KurzrechnerVon(Kurzform::Form5b);
        KurzeingabeSchreiben(ordner.Pfad(), rechner,
                             {.texte = {"", "7", "", "", "", "99"}, .m = 2, .Zahlungsmodus = 2});
        Kurzfenster fenster(rechner, ordner.Pfad());
        QCOMPARE(Finde<QLineEdit>(&fenster, "Laufjahre")->text(), "7");
        QCOMPARE(Finde<QLineEdit>(&fenster, "Vendwert")->text(), "99");
        QVERIFY(Finde<QRadioButton>(&fenster, "Zahlweise2")->isChecked());
        QVERIFY(Finde<QRadioButton>(&fenster, "Zahlungsmodus2")->isChecked());
    }

    void eineBeschaedigteDateiWirdGemeldetUndDieVorgabenGelten() {
        const Testordner ordner;
        std::ofstream(ordner.Pfad() / "Vendwert", std::ios::binary) << std::string(700, '\xff');
        Zeuge zeuge;
        Kurzfenster fenster(KurzrechnerVon(Kurzform::Form4b), ordner.Pfad());
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.einzelheiten[0].contains("Vendwert"));
        QVERIFY(Finde<QRadioButton>(&fenster, "Zahlweise12")->isChecked());
    }

    void wasNichtGespeichertWerdenKannHaeltNiemandenFest() {
        const Testordner ordner;
        QWidget grosses;
        auto* fenster = new Kurzfenster(KurzrechnerVon(Kurzform::Form4b), ordner.Pfad() / "fehlt");
        connect(fenster, &Kurzfenster::verlassen, &grosses, &QWidget::show);
        fenster->setAttribute(Qt::WA_DeleteOnClose);
        Zeuge zeuge;
        Zeige(*fenster);
        fenster->close();
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Die Angaben konnten nicht gespeichert werden."));
        QVERIFY(grosses.isVisible());
    }
};

ZINFOLIO_FENSTERTEST(KurzfensterTest)

}  // namespace zinfolio::kurzfenster_test

#include "kurzfenster_test.moc"
