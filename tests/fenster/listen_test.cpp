// What a user has begun stays: through a save, a calculation, a deletion. And lists under real keys.

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolTip>

#include "fenster/kontoformular.h"
#include "fenster/ui/uhr.h"

namespace listen_test {

using namespace zinfolio;

class ListenTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;
    std::unique_ptr<Form48000> form_;

    QString Text(const char* name) { return Finde<QLineEdit>(form_.get(), name)->text(); }
    Tabelle* Liste() { return Finde<Tabelle>(form_.get(), "List1"); }
    std::vector<std::size_t> Markiert() { return Liste()->MarkierteZeilen(); }

    void Speichern() {
        const Dateiwahl wahl(ordner_->Pfad() / "Konto.ZiS");
        QTest::keyClick(form_.get(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(std::filesystem::exists(ordner_->Pfad() / "Konto.ZiS"));
    }

    /// Three payments, the latest first.
    void DreiZahlungen() {
        Zahlung(*form_, "03.01.2007", "300");
        Zahlung(*form_, "02.01.2007", "200");
        Zahlung(*form_, "01.01.2007", "100");
    }

    static void Einfuegen(const QString& text) {
        QApplication::clipboard()->setText(text);
        Druecke(Qt::Key_V, Qt::ControlModifier);
    }

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void init() {
        ordner_ = std::make_unique<Testordner>();
        form_ = std::make_unique<Form48000>(ordner_->Pfad());
        Zeige(*form_);
    }
    void cleanup() {
        form_.reset();
        ordner_.reset();
    }

    void eineAngefangeneAenderungUeberlebtDasSpeichern() {
        DreiZahlungen();
        Liste()->Markiere(1);
        Klicke(*form_, "Bearbeiten");
        Fuelle(*form_, "Betrag", "222");
        Speichern();
        QCOMPARE(Text("Betrag"), "222");
        QVERIFY(Finde<QPushButton>(form_.get(), "übernehmen")->isVisible());
        Klicke(*form_, "übernehmen");
        QCOMPARE(Zeile(*form_, "List1", 1), "02.01.2007|222,00|");
        QCOMPARE(Zeilen(*form_, "List1"), 3);
    }

    void dieZeileUnterAenderungBleibtLesbar() {
        DreiZahlungen();
        Liste()->Markiere(1);
        Klicke(*form_, "Bearbeiten");
        QVERIFY(!Liste()->isEnabled());
        const QPalette farben = Liste()->palette();
        for (const auto rolle : {QPalette::Highlight, QPalette::HighlightedText})
            QCOMPARE(farben.color(QPalette::Disabled, rolle), farben.color(QPalette::Active, rolle));
    }

    void dieZeileUnterAenderungBleibtDieMarkierteAuchNachDemSortieren() {
        DreiZahlungen();
        Liste()->Markiere(0);
        Klicke(*form_, "Bearbeiten");
        const Zeuge zeuge;
        Waehle(*form_, Form48000::berechnung);
        Waehle(*form_, Form48000::zahlungen);
        QCOMPARE(Zeile(*form_, "List1", 2), "03.01.2007|300,00|");
        QCOMPARE(Markiert(), std::vector<std::size_t>{2});
    }

    void dieVorschauUeberlebtDasSpeichern() {
        Fuelle(*form_, "Ratzahl", "3");
        Zahlung(*form_, "01.01.2007", "100");
        QVERIFY(Finde<QWidget>(form_.get(), "Grid2")->isVisible());
        Speichern();
        QVERIFY(Finde<QWidget>(form_.get(), "Grid2")->isVisible());
        Klicke(*form_, "Command3");
        QCOMPARE(Zeilen(*form_, "List1"), 3);
    }

    void geloeschtesKommtAuchNachDemSpeichernZurueck() {
        DreiZahlungen();
        Liste()->Markiere(1);
        const Zeuge zeuge;
        Klicke(*form_, "Löschen");
        Speichern();
        Liste()->setFocus();
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Zeilen(*form_, "List1"), 3);
    }

    void getipptesUndMarkiertesUeberlebenDieBerechnung() {
        DreiZahlungen();
        Kondition(*form_);
        Waehle(*form_, Form48000::zinsverrechnung);
        Fuelle(*form_, "Kontodatum", "31.12.2007");
        Waehle(*form_, Form48000::zahlungen);
        Liste()->Markiere(0);
        Fuelle(*form_, "Begdatum", "05.05.2007");
        Fuelle(*form_, "Ratzahl", "12");
        Fuelle(*form_, "Abstand", "3");
        Waehle(*form_, Form48000::berechnung);
        QVERIFY(Zeilen(*form_, "Grid") > 0);
        Waehle(*form_, Form48000::zahlungen);
        QCOMPARE(Text("Begdatum"), "05.05.2007");
        QCOMPARE(Text("Ratzahl"), "12");
        QCOMPARE(Text("Abstand"), "3");
        QCOMPARE(Zeile(*form_, "List1", 2), "03.01.2007|300,00|");
        QCOMPARE(Markiert(), std::vector<std::size_t>{2});
    }

    void eineLoeschungBehaeltIhrenOrt() {
        DreiZahlungen();
        Liste()->Markiere(1);
        const Zeuge zeuge;
        Klicke(*form_, "Löschen");
        QCOMPARE(Markiert(), std::vector<std::size_t>{1});
        Klicke(*form_, "Löschen");
        QCOMPARE(Markiert(), std::vector<std::size_t>{0});
    }

    void eineVorschauDieScheitertLaesstListeUndEingabeBeisammen() {
        Fuelle(*form_, "Ratzahl", "3");
        Zahlung(*form_, "01.01.2007", "100");
        QCOMPARE(Zeilen(*form_, "Grid2"), 3);
        const Zeuge zeuge;
        Fuelle(*form_, "Begdatum", "01.11.9999");
        Klicke(*form_, "Speichern");
        QCOMPARE(zeuge.texte.size(), 1);
        QCOMPARE(Zeilen(*form_, "Grid2"), 3);
        QCOMPARE(Zeile(*form_, "Grid2", 2), "3|01.03.2007|100,00");
        Klicke(*form_, "Command3");
        QCOMPARE(Zeilen(*form_, "List1"), 3);
        QCOMPARE(Zeile(*form_, "List1", 2), "01.03.2007|100,00|");
    }

    void doppelklickUndEnterBearbeiten() {
        DreiZahlungen();
        Liste()->Markiere(1);
        Liste()->setFocus();
        Druecke(Qt::Key_Return);
        QCOMPARE(Text("Betrag"), "200");
        Klicke(*form_, "verwerfen");
        const QRect zeile = Liste()->visualRect(Liste()->model()->index(2, 0));
        QTest::mouseClick(Liste()->viewport(), Qt::LeftButton, {}, zeile.center());
        QTest::mouseDClick(Liste()->viewport(), Qt::LeftButton, {}, zeile.center());
        QCOMPARE(Text("Betrag"), "100");
    }

    void entfLoeschtUndStrgZBringtZurueck() {
        DreiZahlungen();
        Liste()->Markiere(1);
        Liste()->setFocus();
        const Zeuge zeuge;
        Druecke(Qt::Key_Delete);
        QCOMPARE(zeuge.titel, QStringList{"Datensatz löschen ?"});
        QCOMPARE(Zeilen(*form_, "List1"), 2);
        Liste()->setFocus();
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Zeilen(*form_, "List1"), 3);
        QCOMPARE(Zeile(*form_, "List1", 1), "02.01.2007|200,00|");
        Druecke(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Zeilen(*form_, "List1"), 3);
    }

    void alleBefehleStehenImKontextmenue() {
        QStringList befehle;
        for (const QAction* befehl : Liste()->actions())
            befehle << befehl->text().remove('&');
        for (const char* befehl : {"Kopieren", "Bearbeiten", "Löschen", "Löschen rückgängig"})
            QVERIFY2(befehle.contains(befehl), befehl);
        QCOMPARE(Liste()->contextMenuPolicy(), Qt::ActionsContextMenu);
    }

    void pos1UndEndeBleibenInDerListe() {
        DreiZahlungen();
        Liste()->Markiere(1);
        Liste()->setFocus();
        for (int i = 0; i < 2; ++i) {
            Druecke(Qt::Key_Home);
            QCOMPARE(Markiert(), std::vector<std::size_t>{0});
            QCOMPARE(Fokus(), "List1");
        }
        for (int i = 0; i < 2; ++i) {
            Druecke(Qt::Key_End);
            QCOMPARE(Markiert(), std::vector<std::size_t>{2});
            QCOMPARE(Fokus(), "List1");
        }
    }

    void eineKonditionUnterAenderungBehaeltIhreOption() {
        Kondition(*form_);
        QTest::mouseClick(Finde<QAbstractButton>(form_.get(), "Option1(2)"), Qt::LeftButton, {}, {8, 8});
        {
            const Zeuge zeuge;
            Fuelle(*form_, "Gültigdatum", "31.12.2007");
            Fuelle(*form_, "Guthabenlinie", "1000");
            Fuelle(*form_, "Kreditlinie", "1000");
            Klicke(*form_, "speichern2");
        }
        Finde<Tabelle>(form_.get(), "List2")->Markiere(1);
        Klicke(*form_, "Bearbeiten2");
        Waehle(*form_, Form48000::zahlungen);
        Waehle(*form_, Form48000::zinssaetze);
        QVERIFY(Finde<QAbstractButton>(form_.get(), "Option1(2)")->isChecked());
    }

    void einKleinerBetragStehtOhneExponentUndLaesstSichSpeichern() {
        Zahlung(*form_, "01.01.2007", "0,00005");
        Liste()->Markiere(0);
        Klicke(*form_, "Bearbeiten");
        QCOMPARE(Text("Betrag"), "0,00005");
        const Zeuge zeuge;
        Klicke(*form_, "übernehmen");
        QVERIFY(zeuge.texte.isEmpty());
    }

    void einEingefuegterBetragWirdGelesenWieErGemeintIst() {
        auto* betrag = Finde<QLineEdit>(form_.get(), "Betrag");
        betrag->setFocus(Qt::TabFocusReason);
        Einfuegen("1,234.56 €");
        QCOMPARE(betrag->text(), "1234,56");
        betrag->selectAll();
        Einfuegen("keine Zahl");
        QCOMPARE(betrag->text(), "1234,56");
        QCOMPARE(QToolTip::text(), "Hier steht eine Zahl: Ziffern, ein Komma, vorn ein Minus");
    }

    void eineVerschluckteTasteGibtEinenHinweisAmFeld() {
        QToolTip::hideText();
        Finde<QLineEdit>(form_.get(), "Ratzahl")->setFocus(Qt::TabFocusReason);
        Tippe("5");
        QVERIFY(!QToolTip::isVisible() || QToolTip::text().isEmpty());
        Tippe("x");
        QCOMPARE(Text("Ratzahl"), "5");
        QCOMPARE(QToolTip::text(), "Hier steht eine ganze Zahl: nur Ziffern");
    }
};

ZINFOLIO_FENSTERTEST(ListenTest)

}  // namespace listen_test

#include "listen_test.moc"
