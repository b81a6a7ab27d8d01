// Each report as poppler reads its PDF, against the cells that its grid showed and the fields of its form.

#include <QComboBox>
#include <QLabel>

#include "fenster/allround/form61000.h"
#include "fenster/formhelfer.h"
#include "fenster/pdfhelfer.h"
#include "fenster/sparen/sparrechner.h"
#include "fenster/tabellen/form14005.h"

using namespace zinfolio;

namespace {

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
};

constexpr Druckweg spardruck{"Grid", "Command8", "Command9"};

/// Prints into a PDF file, and gives the text of its pages.
QStringList Gedruckt(QWidget& form, const Druckweg& weg) {
    const Testordner ablage;
    const Dateiwahl wahl(ablage.Pfad() / "Bericht.pdf");
    Klicke(form, weg.drucken);
    WaehleIn(form, "Combo18", 1);
    Klicke(form, weg.exportieren);
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

}  // namespace

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

    /// Calculates and compares the reports of all four views.
    template <class Form>
    static void AlleAnsichten(Form& form, QStringList kopf) {
        Waehle(form, 1);
        QCOMPARE(Finde<QTabWidget>(&form, "TabStrip1")->currentIndex(), 1);
        kopf += Ergebniszeilen(form);
        if (const QString ezins = Text(form, "ezins"); !ezins.isEmpty())
            kopf << "Effektivzinssatz " + ezins + " %";
        for (int ansicht = 0; ansicht < 4; ++ansicht) {
            WaehleIn(form, "Combo6", ansicht);
            const QStringList gitter = Gitterzeilen(form, "Grid");
            QVERIFY(gitter.size() > 40);
            Vergleiche(gitter, Gedruckt(form, spardruck), kopf);
            if (QTest::currentTestFailed()) return;
            Klicke(form, "Command10");
        }
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
        AlleAnsichten(*stand.form, kopf);
    }

    void sparrate() {
        Pruefstand<Form94000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Enddatum", "31.12.2024");
        Fuelle(*stand.form, "Vwert", "2500000");
        kopf << "am Datum 15.01.2021"
             << "Vermögensendwert 2500000"
             << "am Datum 31.12.2024";
        AlleAnsichten(*stand.form, kopf);
    }

    void rendite() {
        Pruefstand<Form92000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Enddatum", "31.12.2024");
        Fuelle(*stand.form, "Vermendwert", "1300000");
        Waehle(*stand.form, 1);
        kopf << "Nominalzins " + Text(*stand.form, "Nzins") + " %";
        Waehle(*stand.form, 0);
        AlleAnsichten(*stand.form, kopf);
    }

    void anspardauer() {
        Pruefstand<Form96000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Vwert", "1300000");
        kopf << "Endvermögen 1300000";
        AlleAnsichten(*stand.form, kopf);
    }

    void anfangskapital() {
        Pruefstand<Form99000> stand;
        QStringList kopf = Fuelleplan(*stand.form);
        Fuelle(*stand.form, "Enddatum", "31.12.2024");
        Fuelle(*stand.form, "Vwert", "500000");
        Waehle(*stand.form, 1);
        kopf << "Anfangskapital " + Text(*stand.form, "Loesung") << "Datum Anfangskapital 31.01.2021";
        Waehle(*stand.form, 0);
        AlleAnsichten(*stand.form, kopf);
    }

    void effektivzinsEinerReihe() {
        Pruefstand<Form61000> stand;
        Investiere(*stand.form);
        Betritt(*stand.form, 1);
        const QString satz = Text(*stand.form, "Effzins");
        Pruefe(*stand.form, {"Grid", "Drucken", "Command9"},
               {"Effektivzinssatz", "Zins : " + satz + "0 %", "Berechnung nach PAngV2000"});
    }

    void barwertUndVermoegensendwert() {
        Pruefstand<Form61000> stand;
        Investiere(*stand.form);
        Betritt(*stand.form, 2);
        Fuelle(*stand.form, "Abzins2", "7,125");
        Druecke(Qt::Key_Return);
        Pruefe(*stand.form, {"Grid3", "Drucken1", "Command9"}, {"Barwert", "Zins : 7,125000 %"});
        Klicke(*stand.form, "Command10");
        Betritt(*stand.form, 3);
        Pruefe(*stand.form, {"Grid3", "Drucken1", "Command9"}, {"Vermögensendwert", "Zins : 7,125000 %"});
    }

    void sensitivitaet() {
        Pruefstand<Form61000> stand;
        Investiere(*stand.form);
        Betritt(*stand.form, 2);
        Klicke(*stand.form, "Command12");
        Pruefe(*stand.form, {"Grid4", "Command14", "Command9"}, {"Amortisationsdauer(Dynamische)"});
    }

    void tilgungsplan() {
        Pruefstand<Form61000> stand;
        Investiere(*stand.form, true);
        Betritt(*stand.form, 4);
        const QStringList kopf{"Tilgungstabelle :", "Zinstermine : Monatsende",
                               "Nominalzins : " + Text(*stand.form, "nomzins"),
                               "Effektivzinssatz : " + Text(*stand.form, "effzinssatz")};
        Pruefe(*stand.form, {"grid5", "Command19", "Command9"}, kopf);
        Klicke(*stand.form, "Command10");
        WaehleIn(*stand.form, "Combo3", 1);
        Pruefe(*stand.form, {"grid5", "Command19", "Command9"}, kopf);
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
#include "berichtstext_test.moc"
