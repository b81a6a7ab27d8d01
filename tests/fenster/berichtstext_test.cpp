// Each report as poppler reads its PDF, against the cells that its grid showed and the fields of its form.

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTimer>

#include "fenster/allround/form61000.h"
#include "fenster/ausgabe/form34.h"
#include "fenster/kontoformular.h"
#include "fenster/pdfhelfer.h"
#include "fenster/sparen/sparrechner.h"
#include "fenster/tabellen/form14005.h"

namespace berichtstext_test {

using namespace zinfolio;

QString Text(QWidget& form, const char* label) {
    return Finde<QLabel>(&form, label)->text();
}

void WaehleIn(QWidget& form, const char* liste, int stelle) {
    Finde<QComboBox>(&form, liste)->setCurrentIndex(stelle);
    QCoreApplication::processEvents();
}

/// A line with one blank between its words, but none before a percent sign: poppler sees none behind a single
/// digit.
QString Einfach(QString zeile) {
    return zeile.simplified().replace(" %", "%");
}

/// The rows of a grid as such lines.
QStringList Gitterzeilen(QWidget& form, const char* gitter) {
    QStringList zeilen;
    for (int i = 0; i < Zeilen(form, gitter); ++i)
        zeilen << Einfach(Zeile(form, gitter, i).replace('|', ' '));
    return zeilen;
}

/// The lines of all pages as such, without empty ones.
QStringList Berichtszeilen(const QStringList& seiten) {
    QStringList zeilen;
    for (const QString& zeile : seiten.join('\n').split('\n'))
        if (const QString text = Einfach(zeile); !text.isEmpty()) zeilen << text;
    return zeilen;
}

/// How a form prints what its grid shows.
struct Druckweg {
    const char* gitter;
    const char* drucken;
    const char* exportieren;
    const char* filter = "Ratenspardateien (*.pdf) |*.pdf";
};

constexpr Druckweg spardruck{"Grid", "Command8", "Command9"};
constexpr Druckweg kontodruck{"Grid", "Command13", "Command12"};

/// The calculator whose save dialogs have a filter of their own.
constexpr Druckweg Allrounddruck(const char* gitter, const char* drucken) {
    return {gitter, drucken, "Command9", "*.pdf |*.pdf"};
}

/// Prints into a PDF file, and gives the text of its pages.
QStringList Gedruckt(QWidget& form, const Druckweg& weg) {
    const Testordner ablage;
    const Dateiwahl wahl(ablage.Pfad() / "Bericht.pdf");
    Klicke(form, weg.drucken);
    WaehleIn(form, "Combo18", 1);
    Klicke(form, weg.exportieren);
    [&] { QCOMPARE(wahl.fragen.at(0).filter, weg.filter); }();
    return Seitentexte(ablage.Pfad() / "Bericht.pdf");
}

/// Every row of the grid stands once in the report, in its order; each line in `kopf` stands in it as it is;
/// and no other line has an amount in it.
void Vergleiche(const QStringList& gitter, const QStringList& seiten, QStringList kopf) {
    static const QRegularExpression betrag("\\d,\\d");
    const QStringList bericht = Berichtszeilen(seiten);
    std::transform(kopf.begin(), kopf.end(), kopf.begin(), Einfach);
    QVERIFY(!gitter.isEmpty());
    QStringList tabelle;
    for (const QString& zeile : bericht) {
        if (gitter.contains(zeile))
            tabelle << zeile;
        else
            QVERIFY2(kopf.contains(zeile) || !zeile.contains(betrag), qPrintable(zeile));
    }
    QCOMPARE(tabelle, gitter);
    for (const QString& zeile : kopf)
        QVERIFY2(bericht.contains(zeile), qPrintable(zeile + "\nfehlt in\n" + seiten[0]));
}

class BerichtstextTest : public QObject {
    Q_OBJECT

  private:
    /// A plan of four years, begun with a large amount and lessened by each rate; the lines of its fields.
    template <class Form>
    static QStringList Fuelleplan(Form& form) {
        QStringList zeilen;
        const auto fuelle = [&](const char* feld, const QString& bezeichnung, const QString& text) {
            if (!form.template findChild<QLineEdit*>(QString::fromUtf8(feld))) return;
            Fuelle(form, feld, text);
            zeilen << bezeichnung + " " + text;
        };
        fuelle("AnfVermögen", "Anfangsvermögen", "1234567,89");
        Fuelle(form, "Anfdatum", "15.01.2021");
        fuelle("ratdatum1", "Datum nächste Sparrate", "31.01.2021");
        fuelle("Betrag", "Höhe der Sparrate", "-1000,5");
        fuelle("Zins", "Nominalzinssatz", "2,375");
        return zeilen;
    }

    /// What the labels of the result say, as the head page repeats it.
    static QStringList Ergebniszeilen(QWidget& form) {
        return {"Gesamtzahlungssumme " + Text(form, "Gesamtzahlungssumme"),
                "Gesamtzinsen " + Text(form, "Geszins"), "Endvermögen " + Text(form, "EV")};
    }

    /// Compares the reports of all four views of a statement.
    static void AlleAnsichten(QWidget& form, const char* liste, const Druckweg& weg, const char* zurueck,
                              const QStringList& kopf) {
        for (int ansicht = 0; ansicht < 4; ++ansicht) {
            WaehleIn(form, liste, ansicht);
            const QStringList gitter = Gitterzeilen(form, weg.gitter);
            QVERIFY(gitter.size() > 40);
            Vergleiche(gitter, Gedruckt(form, weg), kopf);
            if (QTest::currentTestFailed()) return;
            Klicke(form, zurueck);
        }
    }

    /// Calculates a plan and compares its reports.
    static void PlanVergleichen(QWidget& form, QStringList kopf) {
        Waehle(form, 1);
        QCOMPARE(Finde<QTabWidget>(&form, "TabStrip1")->currentIndex(), 1);
        kopf += Ergebniszeilen(form);
        if (const QString ezins = Text(form, "ezins"); !ezins.isEmpty())
            kopf << "Effektivzinssatz " + ezins + " %";
        AlleAnsichten(form, "Combo6", spardruck, "Command10", kopf);
    }

    static void Zahle(Form61000& form, const char* datum, const char* betrag, const char* anzahl = "1") {
        Fuelle(form, "Begdatum", datum);
        Fuelle(form, "Betrag", betrag);
        Fuelle(form, "Ratzahl", anzahl);
        Klicke(form, "Speichern");
        if (Finde<QWidget>(&form, "Command3")->isVisible()) Klicke(form, "Command3");
    }

    /// An investment of some millions with 72 monthly payments; or a loan, with the signs turned.
    static void Investiere(Form61000& form, bool kredit = false) {
        Zahle(form, "15.03.2019", kredit ? "12345678,9" : "-12345678,9");
        Zahle(form, "30.04.2019", kredit ? "-210987,65" : "210987,65", "72");
    }

    static void Betritt(Form61000& form, int register_) {
        Waehle(form, register_);
        QCoreApplication::processEvents();
    }

    static void Pruefe(Form61000& form, const Druckweg& weg, const QStringList& kopf) {
        const QStringList gitter = Gitterzeilen(form, weg.gitter);
        Vergleiche(gitter, Gedruckt(form, weg), kopf);
    }

  private slots:
    void endkapital() {
        Pruefstand<Form90000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Enddatum", "31.12.2024");
        kopf << "am Datum 15.01.2021"
             << "Berechnen bis Datum 31.12.2024";
        PlanVergleichen(*stand.form, kopf);
    }

    void sparrate() {
        Pruefstand<Form94000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Enddatum", "31.12.2024");
        Fuelle(*stand.form, "Vwert", "2500000");
        kopf << "am Datum 15.01.2021"
             << "Vermögensendwert 2500000"
             << "am Datum 31.12.2024";
        PlanVergleichen(*stand.form, kopf);
    }

    void rendite() {
        Pruefstand<Form92000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Enddatum", "31.12.2024");
        Fuelle(*stand.form, "Vermendwert", "1300000");
        Waehle(*stand.form, 1);
        kopf << "Nominalzins " + Text(*stand.form, "Nzins") + " %";
        Waehle(*stand.form, 0);
        PlanVergleichen(*stand.form, kopf);
    }

    void anspardauer() {
        Pruefstand<Form96000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Vwert", "1300000");
        kopf << "Endvermögen 1300000";
        PlanVergleichen(*stand.form, kopf);
    }

    void anspardauerNenntDenEffektivzinsErstWennErGerechnetIst() {
        Pruefstand<Form96000> stand;
        Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Vwert", "1300000");
        Waehle(*stand.form, 1);
        QVERIFY(!Gedruckt(*stand.form, spardruck)[0].contains("Effektivzinssatz"));
        Klicke(*stand.form, "Command10");
        Klicke(*stand.form, "Effzins");
        const QStringList zeilen = Berichtszeilen(Gedruckt(*stand.form, spardruck));
        QVERIFY(zeilen.contains("Effektivzinssatzberechnungsmethode PAngV2000"));
        QVERIFY(zeilen.contains("Effektivzinssatz " + Text(*stand.form, "ezins") + "%"));
    }

    void anspardauerAlsTextImBetrachter() {
        Pruefstand<Form96000> stand;
        const QStringList felder = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Vwert", "1300000");
        Waehle(*stand.form, 1);
        const QStringList gitter = Gitterzeilen(*stand.form, "Grid");
        QString text;
        QTimer::singleShot(0, [&] {
            auto* betrachter = qobject_cast<Form34*>(QApplication::activeModalWidget());
            text = Finde<QPlainTextEdit>(betrachter, "R")->toPlainText();
            betrachter->close();
        });
        Klicke(*stand.form, "Drucken");
        QVERIFY2(text.startsWith("\n\nAnspardauer beim Ratensparen\n\n\nEingabedaten :\n"), qPrintable(text));
        const QStringList teile = text.split(
            "Datum              Vorgang        Zahlungsbetrag               Zinsen           Kontostand\n");
        QCOMPARE(teile.size(), 2);
        QVERIFY(Berichtszeilen({teile[0]}).contains("Ergebnisse :"));
        for (const QString& zeile : felder + Ergebniszeilen(*stand.form))
            QVERIFY2(Berichtszeilen({teile[0]}).contains(zeile), qPrintable(zeile));
        QCOMPARE(Berichtszeilen({teile[1].section("\n \n", 0, 0)}), gitter);
    }

    void anfangskapital() {
        Pruefstand<Form99000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Enddatum", "31.12.2024");
        Fuelle(*stand.form, "Vwert", "500000");
        Waehle(*stand.form, 1);
        kopf << "Anfangskapital " + Text(*stand.form, "Loesung") << "Datum Anfangskapital 31.01.2021";
        Waehle(*stand.form, 0);
        PlanVergleichen(*stand.form, kopf);
    }

    void kontoauszugUndHerleitung() {
        Pruefstand<Form48000> stand;
        Form48000& form = *stand.form;
        Zahlung(form, "31.12.2006", "-98765432,1", "Saldo");
        Fuelle(form, "Ratzahl", "48");
        Zahlung(form, "31.01.2007", "2345678,9", "Rate <5 & {mehr}>");
        Klicke(form, "Command3");
        Kondition(form);
        Waehle(form, Form48000::zinsverrechnung);
        Fuelle(form, "Kontodatum", "31.12.2010");
        Waehle(form, Form48000::berechnung);
        AlleAnsichten(
            form, "Combo4", kontodruck, "Command11",
            Ergebniszeilen(form) + QStringList{"Datum für Kontoabschluss/-berechnung 31.12.2010",
                                               "31.12.2006 10,00000 % 0,00000 % 0,00000 % 0,00000 %"});
        Klicke(form, "Command5");
        const QStringList gitter = Gitterzeilen(form, "Grid1");
        QCOMPARE(gitter.size(), 50);
        const QStringList seiten = Gedruckt(form, {"Grid1", "EffzinsDrucken", "Command12"});
        Vergleiche(gitter, seiten, {seiten[0].section('\n', 0, 0)});
    }

    void effektivzinsEinerReihe() {
        Pruefstand<Form61000> stand;
        Investiere(*stand.form);
        Betritt(*stand.form, 1);
        const QString satz = Text(*stand.form, "Effzins");
        Pruefe(*stand.form, Allrounddruck("Grid", "Drucken"),
               {"Effektivzinssatz", "Zins : " + satz + "0 %", "Berechnung nach PAngV2000"});
    }

    void barwertUndVermoegensendwert() {
        Pruefstand<Form61000> stand;
        Investiere(*stand.form);
        Betritt(*stand.form, 2);
        Fuelle(*stand.form, "Abzins2", "7,125");
        Druecke(Qt::Key_Return);
        Pruefe(*stand.form, Allrounddruck("Grid3", "Drucken1"), {"Barwert", "Zins : 7,125000 %"});
        Klicke(*stand.form, "Command10");
        Betritt(*stand.form, 3);
        Pruefe(*stand.form, Allrounddruck("Grid3", "Drucken1"), {"Vermögensendwert", "Zins : 7,125000 %"});
    }

    void sensitivitaet() {
        Pruefstand<Form61000> stand;
        Investiere(*stand.form);
        Betritt(*stand.form, 2);
        Klicke(*stand.form, "Command12");
        Pruefe(*stand.form, Allrounddruck("Grid4", "Command14"), {"Amortisationsdauer(Dynamische)"});
    }

    void tilgungsplan() {
        Pruefstand<Form61000> stand;
        Investiere(*stand.form, true);
        Betritt(*stand.form, 4);
        const QStringList kopf{"Tilgungstabelle :", "Zinstermine : Monatsende",
                               "Nominalzins : " + Text(*stand.form, "nomzins"),
                               "Effektivzinssatz : " + Text(*stand.form, "effzinssatz")};
        Pruefe(*stand.form, Allrounddruck("grid5", "Command19"), kopf);
        Klicke(*stand.form, "Command10");
        WaehleIn(*stand.form, "Combo3", 1);
        Pruefe(*stand.form, Allrounddruck("grid5", "Command19"), kopf);
    }

    void faktortabelle_data() {
        QTest::addColumn<QString>("bis");
        QTest::addColumn<QString>("kopf");
        QTest::newRow("ein Satz") << "3,5"
                                  << "Jahr / Zins 3,5 %";
        QTest::newRow("mit Kopf") << "5,5"
                                  << "Jahr / Zins 3,5 % 4 % 4,5 % 5 % 5,5 %";
        QTest::newRow("ohne Kopf") << "6"
                                   << "Zahlungsweise: Jährlich vorschüssig";
        // At four points: one more is refused.
        QTest::newRow("so viele, wie passen") << "20,5"
                                              << "Zahlungsweise: Jährlich vorschüssig";
    }
    void faktortabelle() {
        QFETCH(QString, bis);
        QFETCH(QString, kopf);
        Pruefstand<Form14005> stand;
        WaehleIn(*stand.form, "Combo1", 3);
        WaehleIn(*stand.form, "Combo2", 4);
        WaehleIn(*stand.form, "Combo3", 5);
        WaehleIn(*stand.form, "Combo4", 1);
        for (const auto& [feld, text] : {std::pair("Pro1", QString("3,5")), std::pair("Pro2", bis),
                                         std::pair("J1", QString("1")), std::pair("J2", QString("99"))})
            Fuelle(*stand.form, feld, text);
        Klicke(*stand.form, "Command1");
        const QStringList gitter = Gitterzeilen(*stand.form, "Grid");
        QCOMPARE(gitter.size(), 99);
        Vergleiche(gitter, Gedruckt(*stand.form, {"Grid", "Command8", "Command12"}),
                   {"DSF Diskontierungssummenfaktor (Rentenbarwertfaktor)",
                    "Zahlungsweise: Jährlich vorschüssig", kopf});
    }
};

ZINFOLIO_FENSTERTEST(BerichtstextTest)

}  // namespace berichtstext_test

#include "berichtstext_test.moc"
