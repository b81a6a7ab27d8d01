// Fields by rows of data, on a form as the savings calculators have it: read, shown, focused and walked
// through with real keys.

#include "fenster/ui/feldtafel.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <array>

#include "fenster/formhelfer.h"
#include "fenster/ui/feldraster.h"
#include "fenster/ui/uhr.h"

namespace feldtafel_test {

using namespace zinfolio;

namespace feldtafeltest {

enum class Einheit { prozent, betrag };

struct Plan {
    std::string Anfdatum;
    std::string Betrag;
    std::int16_t Combo1 = 0;
    std::string Vwert;
    bool Check2 = false;
    std::string Anzahl;
    std::string Delta;
    Einheit Command6 = Einheit::prozent;
    std::int16_t Check3 = 0;
    std::string DynAnz;
    std::int16_t rhythmus = 12;
    std::string Zins;

    friend bool operator==(const Plan&, const Plan&) = default;
};

constexpr unsigned mitBetrag = 1;
constexpr unsigned mitVwert = 2;

constexpr std::array<std::string_view, 3> weisen{"Monatlich", "Alle 2 Monate", "Jährlich"};
constexpr std::array<std::string_view, 2> einheiten{"%", "€"};
constexpr std::array rhythmen{12, 6, 1};

constexpr std::array planfelder{
    Feld<&Plan::Anfdatum>({.name = "Anfdatum",
                           .titel = "&am Datum",
                           .filter = Tastenfilter::datum,
                           .platzhalter = "xx.yy.zzzz",
                           .kalender = "Command1"}),
    Feld<&Plan::Betrag>({.name = "Betrag",
                         .titel = "&Sparrate",
                         .filter = Tastenfilter::betrag,
                         .einheit = "€",
                         .formen = mitBetrag}),
    Feld<&Plan::Combo1>(
        {.name = "Combo1", .titel = "Zahlungs&weise", .art = Feldart::liste, .texte = weisen}),
    Feld<&Plan::Vwert>({.name = "Vwert", .titel = "Endvermögen", .formen = mitVwert}),
    Feld<&Plan::Check2>({.name = "Check2", .titel = "&Dynamisierung", .art = Feldart::kaestchen}),
    Rahmen<Plan>({.name = "Frameb", .sichtbarMit = "Check2"}),
    Feld<&Plan::Anzahl>({.name = "Anzahl",
                         .titel = "nach",
                         .filter = Tastenfilter::ganzzahl,
                         .einheit = "Zahlungen",
                         .gruppe = "Frameb"}),
    Feld<&Plan::Delta>({.name = "Delta", .titel = "um", .filter = Tastenfilter::betrag, .gruppe = "Frameb"}),
    Feld<&Plan::Command6>({.name = "Command6",
                           .art = Feldart::einheit,
                           .texte = einheiten,
                           .hinter = "Delta",
                           .gruppe = "Frameb"}),
    Feld<&Plan::Check3>(
        {.name = "Check3", .titel = "Begrenzung auf", .art = Feldart::kaestchen, .gruppe = "Frameb"}),
    Feld<&Plan::DynAnz>({.name = "DynAnz",
                         .filter = Tastenfilter::ganzzahl,
                         .einheit = "Stufen",
                         .hinter = "Check3",
                         .gruppe = "Frameb",
                         .freiMit = "Check3"}),
    Feld<&Plan::rhythmus>({.name = "Option1",
                           .titel = "Wie oft ?",
                           .art = Feldart::optionen,
                           .texte = weisen,
                           .zahlen = rhythmen}),
    Feld<&Plan::Zins>({.name = "Zins", .titel = "Zins", .filter = Tastenfilter::prozent, .einheit = "%"}),
    Anzeige<Plan>({.name = "Ergebnis", .titel = "Ergebnis"}),
};

const Plan voll{.Anfdatum = "01.02.2007",
                .Betrag = "100,5",
                .Combo1 = 2,
                .Vwert = {},
                .Check2 = true,
                .Anzahl = "12",
                .Delta = "-5",
                .Command6 = Einheit::betrag,
                .Check3 = 1,
                .DynAnz = "3",
                .rhythmus = 6,
                .Zins = "3,5"};

}  // namespace feldtafeltest

using namespace feldtafeltest;

class FeldtafelTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<QWidget> fenster_;
    std::optional<Feldgruppe<Plan>> felder_;

    void Oeffne(unsigned form = mitBetrag) {
        fenster_ = std::make_unique<QWidget>();
        auto* anordnung = new QVBoxLayout(fenster_.get());
        auto* raster = new Feldraster;
        anordnung->addLayout(raster);
        felder_.emplace(fenster_.get());
        felder_->Anlegen(planfelder, *raster, form);
        auto* ende = new QPushButton("Ende");
        ende->setObjectName("Ende");
        anordnung->addWidget(ende);
        Zeige(*fenster_);
    }

    template <class Element>
    Element* E(const char* name) {
        return Finde<Element>(fenster_.get(), name);
    }

    /// The focus goes from one control to the next by this key, until it comes to the button at the end.
    QStringList Weg(Qt::Key taste) {
        QStringList weg{Fokus()};
        while (weg.size() < 20 && weg.last() != "Ende") {
            Druecke(taste);
            weg << Fokus();
        }
        return weg;
    }

    /// The month view that is open.
    static QCalendarWidget* Mview() {
        QWidget* fenster = QApplication::activePopupWidget();
        return fenster ? fenster->findChild<QCalendarWidget*>("mview") : nullptr;
    }

    static void Drehe(QWidget& element) {
        const QPointF mitte = QRectF(element.rect()).center();
        QWheelEvent rad(mitte, element.mapToGlobal(mitte), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                        Qt::NoScrollPhase, false);
        QApplication::sendEvent(&element, &rad);
    }

  private slots:
    void initTestCase() { UhrStellen(*Datum::Aus(2026, 11, 21)); }

    void cleanup() {
        felder_.reset();
        fenster_.reset();
    }

    void wasGezeigtWirdWirdWiederGelesen() {
        Oeffne();
        felder_->Zeigen(voll);
        QCOMPARE(E<QLineEdit>("Betrag")->text(), "100,5");
        QCOMPARE(E<QComboBox>("Combo1")->currentText(), "Jährlich");
        QVERIFY(E<QCheckBox>("Check2")->isChecked());
        QCOMPARE(E<QPushButton>("Command6")->text(), "€");
        QVERIFY(E<QRadioButton>("Option1(6)")->isChecked());
        QVERIFY(felder_->Lesen() == voll);
    }

    void leereFelderGebenDenLeerenPlan() {
        Oeffne();
        QVERIFY(felder_->Lesen() == Plan{});
    }

    void eineFormHatNurIhreFelderUndLaesstDieAnderenStehen() {
        Oeffne(mitVwert);
        QVERIFY(!felder_->Tafel().Element("Betrag"));
        QVERIFY(felder_->Tafel().Element("Vwert"));
        Plan grund;
        grund.Betrag = "7";
        QCOMPARE(felder_->Lesen(grund).Betrag, "7");
        QVERIFY(!felder_->Fokussieren("Betrag"));
    }

    void eineGruppeIstSichtbarSolangeIhrKaestchenAngekreuztIst() {
        Oeffne();
        QVERIFY(!E<QWidget>("Frameb")->isVisible());
        QTest::mouseClick(E<QCheckBox>("Check2"), Qt::LeftButton, {}, {8, 8});
        QVERIFY(E<QWidget>("Frameb")->isVisible());
        QVERIFY(E<QLineEdit>("Anzahl")->isVisible());
        felder_->Zeigen({});
        QVERIFY(!E<QWidget>("Frameb")->isVisible());
    }

    void einFeldIstFreiSolangeSeinKaestchenAngekreuztIst() {
        Oeffne();
        felder_->Zeigen(voll);
        QVERIFY(E<QLineEdit>("DynAnz")->isEnabled());
        E<QCheckBox>("Check3")->setChecked(false);
        QVERIFY(!E<QLineEdit>("DynAnz")->isEnabled());
    }

    void einGesperrtesFeldBleibtGesperrtBisDieSperreFaellt() {
        Oeffne();
        felder_->Zeigen(voll);
        felder_->Tafel().Sperren({"DynAnz", "Combo1"}, true);
        E<QCheckBox>("Check3")->setChecked(false);
        E<QCheckBox>("Check3")->setChecked(true);
        QVERIFY(!E<QLineEdit>("DynAnz")->isEnabled());
        QVERIFY(!E<QComboBox>("Combo1")->isEnabled());
        felder_->Tafel().Sperren({"DynAnz", "Combo1"}, false);
        QVERIFY(E<QLineEdit>("DynAnz")->isEnabled());
        QVERIFY(E<QComboBox>("Combo1")->isEnabled());
    }

    void tabGehtDurchDieZeilenInIhrerReihenfolge() {
        Oeffne();
        felder_->Zeigen(voll);
        felder_->Fokussieren("Anfdatum");
        QCOMPARE(Weg(Qt::Key_Tab),
                 QStringList({"Anfdatum", "Command1", "Betrag", "Combo1", "Check2", "Anzahl", "Delta",
                              "Command6", "Check3", "DynAnz", "Option1(6)", "Zins", "Ende"}));
    }

    void enterGehtAmKalenderVorbeiUndUeberDieEinheitHinweg() {
        Oeffne();
        felder_->Zeigen(voll);
        felder_->Fokussieren("Anfdatum");
        QCOMPARE(Weg(Qt::Key_Return),
                 QStringList({"Anfdatum", "Betrag", "Combo1", "Check2", "Anzahl", "Delta", "Command6",
                              "Check3", "DynAnz", "Option1(6)", "Zins", "Ende"}));
        QCOMPARE(E<QPushButton>("Command6")->text(), "€");
    }

    void dieLeertasteSchaltetDieEinheitUm() {
        Oeffne();
        felder_->Zeigen(voll);
        felder_->Fokussieren("Command6");
        Druecke(Qt::Key_Space);
        QCOMPARE(E<QPushButton>("Command6")->text(), "%");
        QVERIFY(felder_->Lesen().Command6 == Einheit::prozent);
    }

    void dieMnemonikFuehrtInsFeld() {
        Oeffne();
        felder_->Fokussieren("Combo1");
        Druecke(Qt::Key_S, Qt::AltModifier);
        QCOMPARE(Fokus(), "Betrag");
    }

    void fokussierenMarkiertDenTextAuchWennDasFeldDenFokusSchonHat() {
        Oeffne();
        felder_->Zeigen(voll);
        for (const char* name : {"Anfdatum", "Betrag"}) {
            auto* feld = E<QLineEdit>(name);
            feld->setFocus(Qt::TabFocusReason);
            feld->deselect();
            felder_->Fokussieren(name);
            QCOMPARE(feld->selectedText(), feld->text());
            Tippe("3");
            QCOMPARE(feld->text(), "3");
            felder_->Zeigen(voll);
        }
    }

    void derNutzerAendertDasProgrammWechseltNur() {
        Oeffne();
        int bearbeitet = 0;
        int gewechselt = 0;
        connect(&felder_->Tafel(), &Feldtafel::bearbeitet, this, [&] { ++bearbeitet; });
        connect(&felder_->Tafel(), &Feldtafel::gewechselt, this, [&] { ++gewechselt; });
        felder_->Zeigen(voll);
        QCOMPARE(bearbeitet, 0);
        QVERIFY(gewechselt > 0);
        felder_->Fokussieren("Betrag");
        Tippe("1");
        QCOMPARE(bearbeitet, 1);
        Druecke(Qt::Key_Return);
        Druecke(Qt::Key_Up);
        QCOMPARE(bearbeitet, 2);
        felder_->Fokussieren("Command6");
        Druecke(Qt::Key_Space);
        QCOMPARE(bearbeitet, 3);
    }

    void dasRadAendertEineListeNurMitFokus() {
        Oeffne();
        auto* liste = E<QComboBox>("Combo1");
        felder_->Fokussieren("Betrag");
        Drehe(*liste);
        QCOMPARE(liste->currentIndex(), 0);
        QCOMPARE(Fokus(), "Betrag");
        liste->setFocus();
        Drehe(*liste);
        QCOMPARE(liste->currentIndex(), 1);
    }

    void f4OeffnetDenKalenderAmDatumDesFeldes() {
        Oeffne();
        felder_->Zeigen(voll);
        felder_->Fokussieren("Anfdatum");
        Druecke(Qt::Key_F4);
        QVERIFY(Mview());
        QCOMPARE(Mview()->selectedDate(), QDate(2007, 2, 1));
    }

    void einUnfertigesDatumOeffnetDenKalenderHeute() {
        Oeffne();
        felder_->Fokussieren("Anfdatum");
        Tippe("1.2.07");
        Druecke(Qt::Key_F4);
        QVERIFY(Mview());
        QCOMPARE(Mview()->selectedDate(), QDate(2026, 11, 21));
    }

    void derKalenderHatDenFokusUndSchreibtDenTag() {
        Oeffne();
        felder_->Zeigen(voll);
        felder_->Fokussieren("Anfdatum");
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "Command1");
        Druecke(Qt::Key_Space);
        QVERIFY(Mview());
        QWidget* monat = QApplication::activePopupWidget()->focusWidget();
        QVERIFY(monat);
        QTest::keyClick(monat, Qt::Key_Right);
        QTest::keyClick(monat, Qt::Key_Return);
        QCOMPARE(E<QLineEdit>("Anfdatum")->text(), "02.02.2007");
        QVERIFY(!Mview());
        QCOMPARE(Fokus(), "Anfdatum");
        QCOMPARE(E<QLineEdit>("Anfdatum")->selectedText(), "02.02.2007");
    }

    void derZweiteDruckSchliesstDenKalender() {
        Oeffne();
        auto* taste = E<QPushButton>("Command1");
        QTest::mouseClick(taste, Qt::LeftButton);
        QVERIFY(Mview());
        QTest::mouseClick(taste, Qt::LeftButton);
        QVERIFY(!Mview());
        QCOMPARE(Fokus(), "Anfdatum");
        QTest::mouseClick(taste, Qt::LeftButton);
        QVERIFY(Mview());
    }

    void escapeUndF4SchliessenDenKalenderOhneTag() {
        Oeffne();
        for (const Qt::Key taste : {Qt::Key_Escape, Qt::Key_F4}) {
            felder_->Zeigen(voll);
            felder_->Fokussieren("Anfdatum");
            Druecke(Qt::Key_F4);
            QVERIFY(Mview());
            QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), taste);
            QVERIFY(!Mview());
            QCOMPARE(E<QLineEdit>("Anfdatum")->text(), "01.02.2007");
        }
    }

    void eineAnzeigeStehtNichtImWert() {
        Oeffne();
        felder_->Tafel().Setze("Ergebnis", {.text = "42,00"});
        QCOMPARE(E<QLabel>("Ergebnis")->text(), "42,00");
        felder_->Zeigen({});
        QCOMPARE(E<QLabel>("Ergebnis")->text(), "42,00");
    }
};

ZINFOLIO_FENSTERTEST(FeldtafelTest)

}  // namespace feldtafel_test

#include "feldtafel_test.moc"
