// Named plans, and the one set of values of a calculator without names.

#include "fenster/rechner/planablage.h"

#include <QComboBox>
#include <QLabel>
#include <QToolButton>

#include "fenster/fenstertest.h"
#include "fenster/formhelfer.h"
#include "fenster/rechner/rechner.h"
#include "fenster/rechner/werteablage.h"
#include "fenster/ui/eingabefeld.h"
#include "kern/dateien/dateifehler.h"

namespace planablage_test {

using namespace zinfolio;

/// Plans of one field each; what is written and read stands in lists.
class Planrechner : public Rechner {
  public:
    explicit Planrechner(int unlesbar = -1, int zuletzt = 1)
        : Rechner({.name = "Plan", .titel = "Plan", .ende = "Ende", .diagramme = {}}, {}),
          beschaedigt(unlesbar) {
        verzeichnis.aktuell = zuletzt;
        Einrichten({.register_ = {{.seite = Feld, .titel = "Daten"}, {new QWidget, "Notizen"}},
                    .ablage = ablage = new Planablage(*this, Art())});
        connect(Feld, &QLineEdit::textEdited, this, [this] { Geaendert(); });
    }

    Planart Art() {
        return {.nichtGespeichert = "Der Plan konnte nicht gespeichert werden.",
                .verzeichnisLesen = [this] { return verzeichnis; },
                .namenSchreiben = [this](const Planverzeichnis& v) { namen.push_back(v.namen); },
                .wahlSchreiben = [this](const Planverzeichnis& v) { verzeichnis = v; },
                .laden =
                    [this](int plan) {
                        if (plan == beschaedigt) throw std::runtime_error("Satz 3 ist beschädigt.");
                        Feld->Setze(inhalte.at(static_cast<std::size_t>(plan)));
                    },
                .speichern =
                    [this](int plan) {
                        if (voll) throw Dateifehler({"Plan 1"}, "Kein Platz.");
                        inhalte.at(static_cast<std::size_t>(plan)) = Feld->Wert();
                    }};
    }

    Planverzeichnis verzeichnis{{"Haus", "Auto", "Neu / unbenannt"}, 1};
    std::vector<std::string> inhalte{"10", "20", ""};
    std::vector<std::vector<std::string>> namen;
    int beschaedigt;
    bool voll = false;
    Eingabefeld* Feld = new Eingabefeld("Feld", Tastenfilter::enter, this);
    Planablage* ablage = nullptr;
};

class Werterechner : public Rechner {
  public:
    Werterechner() : Rechner({.name = "Werte", .titel = "Werte", .ende = "Ende"}, {}) {
        Einrichten({.register_ = {{.seite = Feld, .titel = "Daten"}},
                    .ablage = new Werteablage(*this, {.taste = "Command3",
                                                      .nichtGespeichert = "Nicht gespeichert.",
                                                      .laden = [this] { Feld->Setze(inhalt); },
                                                      .speichern = [this] { inhalt = Feld->Wert(); }})});
    }

    std::string inhalt = "5";
    Eingabefeld* Feld = new Eingabefeld("Feld", Tastenfilter::enter, this);
};

class PlanablageTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Planrechner> form_;

    QComboBox* Combo3() { return Finde<QComboBox>(form_.get(), "Combo3"); }
    /// Chooses an entry of the list by keys, from the one that is chosen.
    void Waehlen(Qt::Key richtung) {
        Combo3()->setFocus();
        Druecke(richtung);
    }

  private slots:
    void init() {
        form_ = std::make_unique<Planrechner>();
        Zeige(*form_);
    }
    void cleanup() { form_.reset(); }

    void derLetztePlanStehtBeimOeffnenDa() {
        QCOMPARE(Combo3()->currentText(), "Auto");
        QCOMPARE(form_->Feld->Wert(), "20");
        QCOMPARE(form_->windowTitle(), "Plan – Auto[*]");
        QVERIFY(!form_->isWindowModified());
    }

    void eineWahlLaedtDenPlanUndMerktIhn() {
        Finde<QTabWidget>(form_.get(), "TabStrip1")->setCurrentIndex(1);
        Waehlen(Qt::Key_Up);
        QCOMPARE(form_->Feld->Wert(), "10");
        QCOMPARE(form_->verzeichnis.aktuell, 0);
        QCOMPARE(form_->windowTitle(), "Plan – Haus[*]");
        QCOMPARE(Finde<QTabWidget>(form_.get(), "TabStrip1")->currentIndex(), 0);
    }

    void ungespeichertesGehtBeimWechselUngefragtVerloren() {
        const Zeuge zeuge;
        Fuelle(*form_, "Feld", "99");
        QVERIFY(form_->isWindowModified());
        Waehlen(Qt::Key_Up);
        Waehlen(Qt::Key_Down);
        QCOMPARE(form_->Feld->Wert(), "20");
        QVERIFY(!form_->isWindowModified());
        QVERIFY(zeuge.texte.isEmpty());
    }

    void vonEinemLangenNamenBleibtDerAnfangInSicht() {
        QLineEdit* name = Combo3()->lineEdit();
        name->setFocus();
        name->selectAll();
        Tippe(QString(200, 'x'));
        QCOMPARE(name->cursorPosition(), 200);
        Druecke(Qt::Key_Tab);
        QCOMPARE(name->cursorPosition(), 0);
    }

    void jedeTasteBenenntUm() {
        Combo3()->setFocus();
        Combo3()->lineEdit()->selectAll();
        Tippe("Rad");
        QCOMPARE(form_->namen.size(), 3U);
        QCOMPARE(form_->namen.back(), (std::vector<std::string>{"Haus", "Rad", "Neu / unbenannt"}));
        QCOMPARE(Combo3()->itemText(1), "Rad");
        QCOMPARE(Combo3()->count(), 3);
        QCOMPARE(form_->windowTitle(), "Plan – Rad[*]");
        // Within a name too.
        Druecke(Qt::Key_Home);
        Tippe("Fa");
        QCOMPARE(Combo3()->currentText(), "FaRad");
    }

    void einNameDesAnderenPlansWaehltIhnNicht() {
        Combo3()->setFocus();
        Combo3()->lineEdit()->selectAll();
        Tippe("Haus");
        Druecke(Qt::Key_Return);
        QCOMPARE(Combo3()->currentIndex(), 1);
        QCOMPARE(form_->Feld->Wert(), "20");
    }

    void strgSSpeichertDenPlan() {
        Fuelle(*form_, "Feld", "30");
        QTest::keyClick(form_.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(form_->inhalte[1], "30");
        QVERIFY(!form_->isWindowModified());
    }

    void einPlanDerSichNichtLesenLaesstWirdNichtGewaehlt() {
        form_->beschaedigt = 0;
        const Zeuge zeuge;
        Waehlen(Qt::Key_Up);
        QCOMPARE(zeuge.einzelheiten, QStringList("Satz 3 ist beschädigt."));
        QCOMPARE(Combo3()->currentText(), "Auto");
        QCOMPARE(form_->ablage->Aktuell(), 1);
        QTest::keyClick(form_.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(form_->inhalte, (std::vector<std::string>{"10", "20", ""}));
    }

    void einUnlesbarerPlanOeffnetDasFensterUndWirdNurAufWunschErsetzt() {
        const Zeuge zeuge{Antwort::ja, Antwort::nein, Antwort::ja};
        form_ = std::make_unique<Planrechner>(1);
        Zeige(*form_);
        QCOMPARE(zeuge.einzelheiten, QStringList("Satz 3 ist beschädigt."));
        QCOMPARE(Combo3()->currentText(), "Auto");
        Fuelle(*form_, "Feld", "30");
        QTest::keyClick(form_.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(form_->inhalte[1], "20");
        QVERIFY(form_->isWindowModified());
        QTest::keyClick(form_.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(form_->inhalte[1], "30");
        QCOMPARE(zeuge.texte.size(), 3);
        QVERIFY(zeuge.texte[1].startsWith("Der gespeicherte Plan konnte nicht gelesen werden."));
        QTest::keyClick(form_.get(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(zeuge.texte.size(), 3);
    }

    void eineNummerOhnePlanBeginntBeimErsten() {
        for (const int nummer : {-1, 3}) {
            form_ = std::make_unique<Planrechner>(-1, nummer);
            QCOMPARE(Combo3()->currentText(), "Haus");
            QCOMPARE(form_->Feld->Wert(), "10");
        }
    }

    void verlassenMitJaSpeichert() {
        Fuelle(*form_, "Feld", "30");
        const Zeuge zeuge{Antwort::ja};
        QTest::mouseClick(Finde<QToolButton>(form_.get(), "Ende"), Qt::LeftButton);
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        QCOMPARE(form_->inhalte[1], "30");
        QVERIFY(!form_->isVisible());
    }

    void einMisslungenesSpeichernBleibt() {
        form_->voll = true;
        const Zeuge zeuge{Antwort::ja};
        QVERIFY(!form_->close());
        QVERIFY(zeuge.texte[1].startsWith("Der Plan konnte nicht gespeichert werden.\n\n"));
        QVERIFY(form_->isVisible());
    }

    void dasRadWechseltDenPlanNurMitFokus() {
        form_->Feld->setFocus();
        const auto drehen = [this] {
            const QPointF mitte = Combo3()->rect().center();
            QWheelEvent rad(mitte, Combo3()->mapToGlobal(mitte), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                            Qt::NoScrollPhase, false);
            QApplication::sendEvent(Combo3(), &rad);
        };
        drehen();
        QCOMPARE(Combo3()->currentText(), "Auto");
        Combo3()->setFocus();
        drehen();
        QCOMPARE(Combo3()->currentText(), "Haus");
    }

    void werteOhneNamenWerdenGezeigtUndGespeichert() {
        Werterechner werte;
        Zeige(werte);
        QCOMPARE(werte.Feld->Wert(), "5");
        QCOMPARE(werte.windowTitle(), "Werte[*]");
        Fuelle(werte, "Feld", "6");
        QTest::mouseClick(Finde<QToolButton>(&werte, "Command3"), Qt::LeftButton);
        QCOMPARE(werte.inhalt, "6");
        const Zeuge zeuge{Antwort::nein};
        QVERIFY(werte.close());
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
    }
};

ZINFOLIO_FENSTERTEST(PlanablageTest)

}  // namespace planablage_test

#include "planablage_test.moc"
