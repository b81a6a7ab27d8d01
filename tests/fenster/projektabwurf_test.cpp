// A project that is dropped on a window, or handed over by a second start, opens in its calculator.

#include "fenster/start/projektabwurf.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>

#include "fenster/allround/form61000.h"
#include "fenster/formhelfer.h"
#include "fenster/staffel/form48000.h"
#include "fenster/start/form1.h"

namespace projektabwurf_test {

using namespace zinfolio;

constexpr auto konto = ZINFOLIO_BEISPIELE "/konto.ZiS";

template <class Form>
Form* Offener() {
    for (QWidget* fenster : QApplication::topLevelWidgets())
        if (auto* form = qobject_cast<Form*>(fenster); form && form->isVisible()) return form;
    return nullptr;
}

/// Drops files on an element as a file manager does; whether it was taken.
bool Abwerfen(QWidget& ziel, const QStringList& dateien) {
    QMimeData inhalt;
    QList<QUrl> adressen;
    for (const QString& datei : dateien)
        adressen << QUrl::fromLocalFile(datei);
    inhalt.setUrls(adressen);
    QDragEnterEvent hinein({5, 5}, Qt::CopyAction | Qt::MoveAction, &inhalt, Qt::LeftButton, Qt::NoModifier);
    hinein.ignore();
    QApplication::sendEvent(&ziel, &hinein);
    if (!hinein.isAccepted()) return false;
    QDropEvent fallen(QPointF(5, 5), Qt::CopyAction | Qt::MoveAction, &inhalt, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&ziel, &fallen);
    QCoreApplication::processEvents();
    return fallen.isAccepted();
}

/// A series saved as a project in that folder.
std::filesystem::path Reihe(const Testordner& ablage) {
    const Testordner arbeit;
    Form61000 form(arbeit.Pfad());
    Zeige(form);
    Fuelle(form, "Begdatum", "01.01.2007");
    Fuelle(form, "Betrag", "-100");
    Klicke(form, "Speichern");
    const auto datei = ablage.Pfad() / "Reihe.RRR";
    const Dateiwahl wahl(datei);
    QTest::keyClick(&form, Qt::Key_S, Qt::ControlModifier);
    return datei;
}

class ProjektabwurfTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<Form1> start_;

  private slots:
    void init() {
        ordner_ = std::make_unique<Testordner>();
        start_ = std::make_unique<Form1>(ordner_->Pfad());
        Zeige(*start_);
    }
    void cleanup() {
        Zeuge zeuge;
        zeuge.antwort = Antwort::nein;
        if (auto* form = Offener<Form48000>()) form->close();
        if (auto* form = Offener<Form61000>()) form->close();
        start_.reset();
        ordner_.reset();
    }

    void aufDemStartbildschirm() {
        QVERIFY(Abwerfen(*start_, {konto}));
        QVERIFY(Offener<Form48000>());
        QVERIFY(!start_->isVisible());
        QCOMPARE(Zeilen(*Offener<Form48000>(), "List1") > 0, true);
    }

    void aufEinemFeldWirdEsKeinText() {
        QVERIFY(start_->ProjektOeffnen(konto));
        Form48000& form = *Offener<Form48000>();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::keyClick(&form, Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(Zeilen(form, "List1"), 0);
        auto* feld = Finde<QLineEdit>(&form, "Beschreibung");
        QVERIFY(Abwerfen(*feld, {konto}));
        QCOMPARE(feld->text(), "");
        QVERIFY(Zeilen(form, "List1") > 0);
    }

    void mitSeinenNebendateienIstEsEinProjekt() {
        QVERIFY(Abwerfen(*start_, {ZINFOLIO_BEISPIELE "/Zinsstaffel1konto", konto}));
        QVERIFY(Offener<Form48000>());
    }

    void zweiProjekteOderKeinesNimmtNiemand() {
        QVERIFY(!Abwerfen(*start_, {konto, "/tmp/anderes.RRR"}));
        QVERIFY(!Abwerfen(*start_, {"/tmp/bild.png"}));
        QVERIFY(start_->isVisible());
    }

    void vorUngespeichertemWirdGefragt() {
        QVERIFY(start_->ProjektOeffnen(konto));
        Form48000& form = *Offener<Form48000>();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::keyClick(&form, Qt::Key_N, Qt::ControlModifier);
        Fuelle(form, "Begdatum", "01.01.2007");
        Fuelle(form, "Betrag", "1");
        Klicke(form, "Speichern");
        Zeuge zeuge;
        zeuge.antwort = Antwort::abbrechen;
        QVERIFY(Abwerfen(form, {konto}));
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        QCOMPARE(Zeilen(form, "List1"), 1);
    }

    void einAndererRechnerWirdVerlassenUndFragtDabei() {
        const Testordner ablage;
        const QString reihe = QString::fromStdString(Reihe(ablage).string());
        QVERIFY(start_->ProjektOeffnen(konto));
        Zeuge zeuge;
        zeuge.antwort = Antwort::abbrechen;
        QVERIFY(Abwerfen(*Offener<Form48000>(), {reihe}));
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        QVERIFY(Offener<Form48000>());
        zeuge.antwort = Antwort::nein;
        QVERIFY(Abwerfen(*Offener<Form48000>(), {reihe}));
        QVERIFY(!Offener<Form48000>());
        QVERIFY(Offener<Form61000>());
        QVERIFY(!start_->isVisible());
        QCOMPARE(Zeile(*Offener<Form61000>(), "List1", 0), "01.01.2007|-100,00|");
        Offener<Form61000>()->close();
        QVERIFY(start_->isVisible());
    }

    void solangeEineMeldungOffenIstWartetEs() {
        QDialog meldung;
        meldung.setModal(true);
        meldung.show();
        start_->ProjektOeffnenSobaldFrei(konto);
        QTest::qWait(250);
        QVERIFY(!Offener<Form48000>());
        meldung.close();
        QTRY_VERIFY(Offener<Form48000>());
    }

    void nachVornKommtDerOffeneRechner() {
        QVERIFY(start_->ProjektOeffnen(konto));
        Form48000& form = *Offener<Form48000>();
        form.showMinimized();
        start_->NachVorn();
        QVERIFY(!form.isMinimized());
        QVERIFY(!start_->isVisible());
        QTRY_VERIFY(form.isActiveWindow());
    }
};

ZINFOLIO_FENSTERTEST(ProjektabwurfTest)

}  // namespace projektabwurf_test

#include "projektabwurf_test.moc"
