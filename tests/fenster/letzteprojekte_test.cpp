// The projects opened last: in the menu of a calculator, and on the start screen.

#include "fenster/rechner/letzteprojekte.h"

#include <QApplication>
#include <QMenu>
#include <QToolButton>

#include "fenster/formhelfer.h"
#include "fenster/proberechner.h"
#include "fenster/staffel/form48000.h"
#include "fenster/start/form1.h"

namespace letzteprojekte_test {

using namespace zinfolio;

/// Makes a file, so that it counts as being there.
QString Datei(const Testordner& ordner, const QString& name) {
    const QString pfad = QString::fromStdString(ordner.Pfad().string()) + '/' + name;
    QFile datei(pfad);
    if (!datei.open(QIODevice::WriteOnly)) qFatal("%s", qPrintable(pfad));
    return pfad;
}

template <class Form>
Form* Offener() {
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (auto* form = qobject_cast<Form*>(fenster); form && form->isVisible()) return form;
    return nullptr;
}

class LetzteProjekteTest : public QObject {
    Q_OBJECT

  private:
    /// The entries of the submenu, as it shows them when it opens.
    static QList<QAction*> Eintraege(QWidget& form) {
        auto* menue = Finde<QMenu>(&form, "Zuletzt");
        emit menue->aboutToShow();
        return menue->actions();
    }

  private slots:
    void init() { LetzteProjekteVergessen({}); }

    void dasNeuesteStehtVornUndJedesEinmal() {
        const Testordner ordner;
        const QString a = Datei(ordner, "a.ZiS");
        const QString b = Datei(ordner, "b.RRR");
        for (const QString& datei : {a, b, a})
            ProjektMerken(datei);
        QCOMPARE(LetzteProjekte(), (QStringList{a, b}));
        QCOMPARE(LetzteProjekte("ZiS"), QStringList{a});
        QCOMPARE(LetzteProjekte("zis"), QStringList{a});
    }

    void vonJederArtBleibenZehn() {
        const Testordner ordner;
        ProjektMerken(Datei(ordner, "reihe.RRR"));
        for (int i = 1; i <= 12; ++i)
            ProjektMerken(Datei(ordner, QString("k%1.ZiS").arg(i)));
        const QStringList konten = LetzteProjekte("ZiS");
        QCOMPARE(konten.size(), 10);
        QVERIFY(konten.first().endsWith("/k12.ZiS"));
        QVERIFY(konten.last().endsWith("/k3.ZiS"));
        QCOMPARE(LetzteProjekte("RRR").size(), 1);
    }

    void wasFehltStehtNichtDaUndKommtMitSeinerDateiWieder() {
        const Testordner ordner;
        const QString datei = Datei(ordner, "stick.ZiS");
        ProjektMerken(datei);
        QVERIFY(QFile::remove(datei));
        QCOMPARE(LetzteProjekte(), QStringList());
        Datei(ordner, "stick.ZiS");
        QCOMPARE(LetzteProjekte(), QStringList{datei});
    }

    void dasEigeneVerzeichnisHeisstTilde() {
        QCOMPARE(Projektbezeichnung(QDir::homePath() + "/Konten/a.ZiS"), "a.ZiS  –  ~/Konten");
        QCOMPARE(Projektbezeichnung("/srv/a.ZiS"), "a.ZiS  –  /srv");
    }

    void gespeichertesStehtImMenueUndOeffnetSich() {
        Pruefstand<Proberechner> stand;
        Fuelle(*stand.form, "Betrag", "1000");
        const auto datei = stand.ablage.Pfad() / "Anlage & Co.PRB";
        {
            const Dateiwahl wahl(datei);
            stand.Taste(Qt::Key_S);
        }
        stand.Oeffnen();
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Betrag")->text(), "");
        const auto eintraege = Eintraege(*stand.form);
        // The project, a line, and what empties the list.
        QCOMPARE(eintraege.size(), 3);
        QVERIFY2(eintraege[0]->text().startsWith("&1  Anlage && Co.PRB  –  "),
                 qPrintable(eintraege[0]->text()));
        eintraege[0]->trigger();
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Betrag")->text(), "1000");
    }

    void einWechselFragtWoEtwasVerlorenGinge() {
        Pruefstand<Proberechner> stand;
        Fuelle(*stand.form, "Betrag", "1000");
        {
            const Dateiwahl wahl(stand.ablage.Pfad() / "a.PRB");
            stand.Taste(Qt::Key_S);
        }
        stand.Taste(Qt::Key_N);
        Fuelle(*stand.form, "Betrag", "5");
        Zeuge zeuge;
        zeuge.antwort = Antwort::abbrechen;
        Eintraege(*stand.form)[0]->trigger();
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Betrag")->text(), "5");
        zeuge.antwort = Antwort::nein;
        Eintraege(*stand.form)[0]->trigger();
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Betrag")->text(), "1000");
        // It is the one that is shown now: nothing is asked, and what was typed since stays.
        Fuelle(*stand.form, "Betrag", "7");
        Eintraege(*stand.form)[0]->trigger();
        QCOMPARE(zeuge.texte.size(), 2);
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Betrag")->text(), "7");
    }

    void geleertSagtDieListeDassSieLeerIst() {
        Pruefstand<Proberechner> stand;
        const Testordner ordner;
        ProjektMerken(Datei(ordner, "a.PRB"));
        Eintraege(*stand.form).last()->trigger();
        const auto eintraege = Eintraege(*stand.form);
        QCOMPARE(eintraege.size(), 1);
        QCOMPARE(eintraege[0]->text(), "(noch keine)");
        QVERIFY(!eintraege[0]->isEnabled());
    }

    void derStartbildschirmZeigtSieUndOeffnetDenRichtigenRechner() {
        const Testordner ordner;
        const Testordner fremd;
        Form1 form(ordner.Pfad());
        Zeige(form);
        auto* tafel = Finde<QWidget>(&form, "Zuletzt");
        QVERIFY(!tafel->isVisible());
        ProjektMerken(Datei(fremd, "unbekannt.PRB"));
        ProjektMerken(ZINFOLIO_BEISPIELE "/konto.ZiS");
        form.hide();
        Zeige(form);
        QVERIFY(tafel->isVisible());
        const auto tasten = tafel->findChildren<QToolButton*>();
        QCOMPARE(tasten.size(), 1);
        QVERIFY(tasten[0]->text().startsWith("konto.ZiS"));
        tasten[0]->setFocus();
        Druecke(Qt::Key_Return);
        QTRY_VERIFY(Offener<Form48000>());
        QCOMPARE(Offener<Form48000>()->windowTitle(), "Zinsstaffelrechner – konto.ZiS[*]");
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        Offener<Form48000>()->close();
    }
};

ZINFOLIO_FENSTERTEST(LetzteProjekteTest)

}  // namespace letzteprojekte_test

#include "letzteprojekte_test.moc"
