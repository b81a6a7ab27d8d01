// Entry fields under real keys: filters, first key, Enter, clipboard, numeric keypad.

#include "fenster/ui/eingabefeld.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QVBoxLayout>

#include "fenster/formhelfer.h"

namespace eingabefeld_test {

using namespace zinfolio;

class EingabefeldTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<QWidget> fenster_;
    Eingabefeld* feld_ = nullptr;
    Eingabefeld* naechstes_ = nullptr;

    void Oeffne(Tastenfilter filter, const QString& text = {}) {
        fenster_ = std::make_unique<QWidget>();
        auto* anordnung = new QVBoxLayout(fenster_.get());
        naechstes_ = new Eingabefeld("naechstes", Tastenfilter::enter);
        feld_ = new Eingabefeld("feld", filter);
        feld_->setText(text);
        anordnung->addWidget(feld_);
        anordnung->addWidget(naechstes_);
        QWidget::setTabOrder(feld_, naechstes_);
        naechstes_->setFocus();
        Zeige(*fenster_);
        feld_->setFocus(Qt::TabFocusReason);
    }

    enum class Weg { strgV, umschaltEinfg, kontextmenue, ablegen };
    static constexpr std::array wege{
        std::pair("Strg+V", Weg::strgV), std::pair("Umschalt+Einfg", Weg::umschaltEinfg),
        std::pair("Kontextmenü", Weg::kontextmenue), std::pair("Ziehen und Ablegen", Weg::ablegen)};

    void Einfuegen(Weg weg, const QString& text) {
        QApplication::clipboard()->setText(text);
        switch (weg) {
            case Weg::strgV:
                return Druecke(Qt::Key_V, Qt::ControlModifier);
            case Weg::umschaltEinfg:
                return Druecke(Qt::Key_Insert, Qt::ShiftModifier);
            case Weg::kontextmenue:
                return ImKontextmenueEinfuegen();
            case Weg::ablegen:
                Ablegen(text);
        }
    }

    /// The menu runs a loop of its own, so that it is answered from within.
    void ImKontextmenueEinfuegen() {
        QTimer::singleShot(0, this, [] {
            QWidget* menue = QApplication::activePopupWidget();
            for (QAction* befehl : menue->actions())
                if (befehl->text().remove('&').startsWith("Einfügen")) befehl->trigger();
            menue->close();
        });
        const QPoint mitte = feld_->rect().center();
        QContextMenuEvent ereignis(QContextMenuEvent::Keyboard, mitte, feld_->mapToGlobal(mitte));
        QCoreApplication::sendEvent(feld_, &ereignis);
    }

    void Ablegen(const QString& text) {
        QMimeData daten;
        daten.setText(text);
        // A drop counts only where the drag has come in.
        QDragEnterEvent herein(feld_->rect().center(), Qt::CopyAction, &daten, Qt::LeftButton,
                               Qt::NoModifier);
        QCoreApplication::sendEvent(feld_, &herein);
        QDropEvent ereignis(feld_->rect().center(), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(feld_, &ereignis);
    }

  private slots:
    void fokusMarkiertDenGanzenText() {
        Oeffne(Tastenfilter::betrag, "123,45");
        QCOMPARE(feld_->selectedText(), "123,45");
    }

    void ersteTasteErsetztDenAltenText() {
        Oeffne(Tastenfilter::datum, "01.02.2007");
        Tippe("3");
        QCOMPARE(feld_->text(), "3");
    }

    void minusErsetztDenMarkiertenAltenBetrag() {
        Oeffne(Tastenfilter::betrag, "100");
        Tippe("-5,5");
        QCOMPARE(feld_->text(), "-5,5");
    }

    void minusMittenImBetragWirdVerworfen() {
        Oeffne(Tastenfilter::betrag);
        Tippe("1-2");
        QCOMPARE(feld_->text(), "12");
    }

    void kommaAlsErsteTasteUeberAltemBetragMitKommaWirdVerworfen() {
        // The filter looks at the old text although it is selected.
        Oeffne(Tastenfilter::betrag, "1,5");
        Tippe(",");
        QCOMPARE(feld_->text(), "1,5");
    }

    void betragNimmtWederPunktNochBuchstaben() {
        Oeffne(Tastenfilter::betrag);
        Tippe("1.0x+0,5,5");
        QCOMPARE(feld_->text(), "100,55");
    }

    void datumNimmtHoechstensZweiPunkteUndZehnZeichen() {
        Oeffne(Tastenfilter::datum);
        Tippe("..01..02.20077.");
        QCOMPARE(feld_->text(), "01.02.2007");
    }

    void ganzzahlNimmtNurZiffern() {
        Oeffne(Tastenfilter::ganzzahl);
        Tippe("-1,2.3");
        QCOMPARE(feld_->text(), "123");
    }

    void prozentBeginntNichtMitKommaUndKenntKeinVorzeichen() {
        Oeffne(Tastenfilter::prozent);
        Tippe(",-0,5,");
        QCOMPARE(feld_->text(), "0,5");
    }

    void freierTextNimmtAlles() {
        Oeffne(Tastenfilter::enter);
        Tippe("Miete, 2. Rate -");
        QCOMPARE(feld_->text(), "Miete, 2. Rate -");
    }

    void rueckschritteLoeschenInJedemFilter_data() {
        QTest::addColumn<int>("filter");
        for (int filter = 0; filter < 5; ++filter)
            QTest::addRow("Filter %d", filter) << filter;
    }
    void rueckschritteLoeschenInJedemFilter() {
        QFETCH(int, filter);
        Oeffne(static_cast<Tastenfilter>(filter));
        Tippe("12");
        Druecke(Qt::Key_Backspace);
        QCOMPARE(feld_->text(), "1");
    }

    void enterGehtInJedemFilterWeiter_data() { rueckschritteLoeschenInJedemFilter_data(); }
    void enterGehtInJedemFilterWeiter() {
        QFETCH(int, filter);
        Oeffne(static_cast<Tastenfilter>(filter), "1");
        Druecke(Qt::Key_Return);
        QCOMPARE(Fokus(), "naechstes");
    }

    void enterAufDemZiffernblockGehtWeiter() {
        Oeffne(Tastenfilter::betrag, "1");
        Druecke(Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(Fokus(), "naechstes");
    }

    void enterBleibtAufEinemAngefangenenBetrag_data() {
        QTest::addColumn<QString>("text");
        for (const char* text : {"-", ",", "-,"})
            QTest::newRow(text) << text;
    }
    void enterBleibtAufEinemAngefangenenBetrag() {
        QFETCH(QString, text);
        Oeffne(Tastenfilter::betrag, text);
        Druecke(Qt::Key_Return);
        QCOMPARE(Fokus(), "feld");
        QCOMPARE(feld_->text(), text);
    }

    void dezimaltasteDesZiffernblocksIstDasKomma() {
        Oeffne(Tastenfilter::betrag);
        Tippe("1");
        QKeyEvent taste(QEvent::KeyPress, Qt::Key_Period, Qt::KeypadModifier, ".");
        QCoreApplication::sendEvent(feld_, &taste);
        Tippe("5");
        QCOMPARE(feld_->text(), "1,5");
    }

    void punktDesHauptblocksBleibtPunkt() {
        Oeffne(Tastenfilter::betrag);
        Tippe("1.5");
        QCOMPARE(feld_->text(), "15");
    }

    void zwischenablageIstKeineTasteFuerDenFilter() {
        Oeffne(Tastenfilter::betrag, "123,45");
        Druecke(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "123,45");
        QApplication::clipboard()->setText("67,8");
        Druecke(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(feld_->text(), "67,8");
    }

    void eingefuegterBetragWirdAufJedemWegGleichGelesen_data() {
        QTest::addColumn<int>("weg");
        for (const auto& [name, weg] : wege)
            QTest::newRow(name) << int(weg);
    }
    void eingefuegterBetragWirdAufJedemWegGleichGelesen() {
        QFETCH(int, weg);
        for (const auto& [fremd, eigen] : {std::pair("1234.56", "1234,56"), std::pair("1,234.56", "1234,56"),
                                           std::pair("1 234,56 €", "1234,56"),
                                           std::pair("\u22125,00", "-5,00"), std::pair("5,00-", "-5,00")}) {
            Oeffne(Tastenfilter::betrag, "");
            Einfuegen(static_cast<Weg>(weg), fremd);
            QCOMPARE(feld_->text(), eigen);
        }
    }

    void wasKeineZahlIstWirdAufJedemWegAbgewiesen_data() {
        eingefuegterBetragWirdAufJedemWegGleichGelesen_data();
    }
    void wasKeineZahlIstWirdAufJedemWegAbgewiesen() {
        QFETCH(int, weg);
        for (const char* fremd : {"zwölf", "1,2,3", "12 und 13"}) {
            Oeffne(Tastenfilter::betrag, "7,50");
            Einfuegen(static_cast<Weg>(weg), fremd);
            QCOMPARE(feld_->text(), "7,50");
        }
    }

    void pfeiltastenUndEntfernenWirkenImFeld() {
        Oeffne(Tastenfilter::betrag, "123");
        Druecke(Qt::Key_Home);
        Druecke(Qt::Key_Delete);
        QCOMPARE(feld_->text(), "23");
    }

    void datumsfilterSetztDasCaretAnsEnde() {
        Oeffne(Tastenfilter::datum, "01.02.2007");
        Druecke(Qt::Key_Home);
        Druecke(Qt::Key_Delete);
        Tippe("x");
        QCOMPARE(feld_->cursorPosition(), 9);
    }

    void klickInsFeldMarkiertDenGanzenText() {
        Oeffne(Tastenfilter::betrag, "123");
        naechstes_->setFocus();
        QTest::mouseClick(feld_, Qt::LeftButton);
        QCOMPARE(feld_->selectedText(), "123");
    }
};

ZINFOLIO_FENSTERTEST(EingabefeldTest)

}  // namespace eingabefeld_test

#include "eingabefeld_test.moc"
