// The start screen: its menu, its buttons, the way to a calculator and back.

#include "fenster/start/form1.h"

#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <fstream>

#include "fenster/formhelfer.h"
#include "fenster/staffel/form48000.h"
#include "fenster/start/programmstart.h"
#include "fenster/ui/tabellendokument.h"

namespace form1_test {

using namespace zinfolio;

class Form1Test : public QObject {
    Q_OBJECT

  private:
    static Form48000* Rechner() {
        for (QWidget* fenster : QApplication::topLevelWidgets()) {
            if (auto* rechner = qobject_cast<Form48000*>(fenster); rechner && rechner->isVisible())
                return rechner;
        }
        return nullptr;
    }

  private slots:
    void menueHatSeineEintraegeInIhrerReihenfolge() {
        const Testordner ordner;
        const Form1 form(ordner.Pfad());
        QStringList texte;
        for (const QAction* eintrag : form.menuBar()->actions())
            texte << eintrag->text();
        QCOMPARE(texte, (QStringList{"Effektivzinsrechner", "Zinsstaffelrechner", "Zinsrechner",
                                     "Finanzmathematische Tabellen", "Info", "Ende"}));
        texte.clear();
        for (const QAction* eintrag : form.findChild<QMenu*>("Zinsrechner")->actions())
            texte << eintrag->text();
        QCOMPARE(texte, (QStringList{"Endkapital Ratensparen", "Höhe einer Sparrate beim Ratensparen",
                                     "Rendite beim Ratensparen", "Anspardauer beim Ratensparen",
                                     "Benötigtes Anfangskapital beim Ratensparen"}));
    }

    void fenstertitelNenntDieVersion() {
        const Testordner ordner;
        QCOMPARE(Form1(ordner.Pfad()).windowTitle(), "Zinfolio                Vers. 2.0.2");
    }

    void ersterRechnerHatDenFokusUndEnterOeffnetIhn() {
        const Testordner ordner;
        Form1 form(ordner.Pfad());
        Zeige(form);
        QCOMPARE(Fokus(), "TasteZinsstaffelrechner");
        Druecke(Qt::Key_Return);
        QVERIFY(Rechner());
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Rechner()->close();
        form.activateWindow();
        QTRY_COMPARE(Fokus(), "TasteZinsstaffelrechner");
    }

    void f10OeffnetDasMenueUndFuehrtZurueck() {
        const Testordner ordner;
        Form1 form(ordner.Pfad());
        Zeige(form);
        const QMenuBar& leiste = *form.menuBar();
        Druecke(Qt::Key_F10);
        QVERIFY(leiste.hasFocus());
        QCOMPARE(leiste.activeAction()->text(), "Effektivzinsrechner");
        Druecke(Qt::Key_Right);
        QCOMPARE(leiste.activeAction()->text(), "Zinsstaffelrechner");
        Druecke(Qt::Key_Escape);
        QCOMPARE(Fokus(), "TasteZinsstaffelrechner");
        Druecke(Qt::Key_F10);
        Druecke(Qt::Key_F10);
        QCOMPARE(Fokus(), "TasteZinsstaffelrechner");
        Druecke(Qt::Key_F10);
        Druecke(Qt::Key_Right);
        Druecke(Qt::Key_Return);
        QVERIFY(Rechner());
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Rechner()->close();
    }

    void rechnerOeffnetSichVerstecktDenStartUndFuehrtZurueck() {
        const Testordner ordner;
        Form1 form(ordner.Pfad());
        Zeige(form);
        Finde<QPushButton>(&form, "TasteZinsstaffelrechner")->setFocus();
        Druecke(Qt::Key_Return);
        QVERIFY(Rechner());
        QVERIFY(!form.isVisible());
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Rechner()->close();
        QVERIFY(form.isVisible());
    }

    void menueeintragOeffnetDenselbenRechner() {
        const Testordner ordner;
        Form1 form(ordner.Pfad());
        Zeige(form);
        Finde<QAction>(&form, "Zinsstaffelrechner")->trigger();
        QVERIFY(Rechner());
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Rechner()->close();
    }

    void arbeitsordnerDerKeinerIstWirdGemeldetUndDerStartBleibt() {
        const Testordner ordner;
        QFile sperrig(QString::fromStdString((ordner.Pfad() / "Fiskaris").string()));
        QVERIFY(sperrig.open(QIODevice::WriteOnly));
        const Zeuge zeuge;
        Form1 form(ordner.Pfad() / "Fiskaris");
        Zeige(form);
        Finde<QAction>(&form, "Zinsstaffelrechner")->trigger();
        QVERIFY(!Rechner());
        QVERIFY(form.isVisible());
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.einzelheiten[0].contains("Fiskaris"));
    }

    void projektDerKommandozeileOeffnetSichInSeinemRechner() {
        const Testordner ordner;
        Form1 form(ordner.Pfad());
        QVERIFY(form.ProjektOeffnen(ZINFOLIO_BEISPIELE "/konto.ZiS"));
        QVERIFY(Rechner());
        QVERIFY(!form.isVisible());
        QCOMPARE(Rechner()->windowTitle(), "Zinsstaffelrechner – konto.ZiS[*]");
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Rechner()->close();
        QVERIFY(!form.ProjektOeffnen("etwas.txt"));
    }

    void dasImpressumNenntBibliothekenMitVersionUndLizenz() {
        const Zeuge zeuge;
        const Testordner ordner;
        Form1 form(ordner.Pfad());
        Finde<QAction>(&form, "Impr")->trigger();
        QCOMPARE(zeuge.titel, QStringList("Impressum"));
        for (const char* zeile :
             {"\nQt 6\\.\\d+\\.\\d+ \\(LGPL 3\\)", "\nQCustomPlot \\d+\\.\\d+\\.\\d+ \\(GPL 3 oder neuer\\)",
              "\nsimdjson \\d+\\.\\d+\\.\\d+ \\(Apache 2\\.0", "\nCLI11 \\d+\\.\\d+\\.\\d+ \\(BSD 3"})
            QVERIFY2(QRegularExpression(zeile).match(zeuge.texte[0]).hasMatch(), zeile);
        QCOMPARE(QRegularExpression("\nlibxlsxwriter \\d+\\.\\d+").match(zeuge.texte[0]).hasMatch(),
                 TabellendokumentMoeglich());
    }

    void kommandozeileEntscheidetUeberDieRueckkehr() {
        QVERIFY(KehrtZumStartZurueck(""));
        QVERIFY(KehrtZumStartZurueck("Zinfolio.exe"));
        QVERIFY(!KehrtZumStartZurueck("konto"));
    }

    void zweitesProgrammImSelbenOrdnerWirdAbgewiesen() {
        const Testordner ordner;
        {
            const Ordnersperre erste(ordner.Pfad());
            QVERIFY(erste.Gehalten());
            const Ordnersperre zweite(ordner.Pfad());
            QVERIFY(!zweite.Gehalten());
            QVERIFY(zweite.Besetzt());
        }
        QVERIFY(Ordnersperre(ordner.Pfad()).Gehalten());
    }

    void wasInDerSperrdateiStehtSperrtNiemanden() {
        const Testordner ordner;
        const std::string lebende = std::to_string(QCoreApplication::applicationPid()) + "\nzinfolio\n" +
                                    QSysInfo::machineHostName().toStdString() + "\n";
        for (const std::string& inhalt : {std::string(), lebende, std::string("unleserlich")}) {
            std::ofstream(ordner.Pfad() / "zinfolio.lock") << inhalt;
            QVERIFY(Ordnersperre(ordner.Pfad()).Gehalten());
        }
    }
};

ZINFOLIO_FENSTERTEST(Form1Test)

}  // namespace form1_test

#include "form1_test.moc"
