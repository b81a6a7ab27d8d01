// The commands of every table: copying, saving, searching, its size.

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>

#include "fenster/formhelfer.h"
#include "fenster/ui/tabelle.h"
#include "fenster/ui/tabellendokument.h"

namespace zinfolio::tabellenbefehle_test {

/// Two rows: a date, a number and a word; the header of the second column has two lines.
Tabelleninhalt Kontotabelle() {
    Tabelleninhalt inhalt =
        TexttabelleBilden({{.kopf = "Datum", .art = Zellart::datum},
                           {.kopf = "Zinsen bis (t+1)"},
                           {.kopf = "Vorgang", .art = Zellart::text}},
                          {{"31.12.2006", "1.234,50", "Köln; \"Miete\""}, {"01.02.2007", "-0,05", "Rate"}});
    inhalt.zahl = [](std::size_t zeile, std::size_t spalte) -> std::optional<double> {
        if (spalte != 1) return std::nullopt;
        return zeile == 0 ? 1234.5 : -0.05;
    };
    return inhalt;
}

/// A table of so many rows whose cells say their place: "z3s1".
Tabelleninhalt Platztabelle(std::size_t zeilen) {
    Tabelleninhalt inhalt;
    inhalt.spalten = {{.kopf = "Eins"}, {.kopf = "Zwei"}};
    inhalt.zeilen = zeilen;
    inhalt.zelle = [](std::size_t zeile, std::size_t spalte) {
        return "z" + std::to_string(zeile) + "s" + std::to_string(spalte);
    };
    return inhalt;
}

void Loese(QWidget& tabelle, const char* name) {
    Finde<QAction>(&tabelle, name)->trigger();
}

/// What a spreadsheet holds in one of its parts.
QString Teil(const std::filesystem::path& datei, const char* teil) {
    QProcess prozess;
    prozess.start(
        "python3",
        {"-c", "import sys,zipfile;sys.stdout.write(zipfile.ZipFile(sys.argv[1]).read(sys.argv[2]).decode())",
         QString::fromStdString(datei.string()), teil});
    prozess.waitForFinished();
    return QString::fromUtf8(prozess.readAllStandardOutput());
}

struct Tabellenstand {
    explicit Tabellenstand(Tabelleninhalt inhalt) {
        tabelle.resize(500, 300);
        tabelle.Zeige(std::move(inhalt));
        Zeige(tabelle);
        tabelle.setFocus();
    }

    QLineEdit* Suchtext() { return Finde<QLineEdit>(&tabelle, "Suchtext"); }
    QString Treffer() { return Finde<QLabel>(&tabelle, "Treffer")->text(); }
    int Zeile() { return tabelle.currentIndex().row(); }

    Testordner ordner;
    Tabelle tabelle{"Grid"};
};

class TabellenbefehleTest : public QObject {
    Q_OBJECT

  private slots:
    void kopierenNimmtDieZeilenUndAufWunschDieUeberschriften() {
        Tabellenstand stand(Kontotabelle());
        stand.tabelle.selectRow(1);
        Druecke(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "01.02.2007\t-0,05\tRate\n");
        Druecke(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QApplication::clipboard()->text(),
                 "Datum\tZinsen bis (t+1)\tVorgang\n01.02.2007\t-0,05\tRate\n");
    }

    void csvHatKopfAlleZeilenUndUmlaute() {
        Tabellenstand stand(Kontotabelle());
        Dateiwahl wahl(stand.ordner.Pfad() / "k.csv");
        Loese(stand.tabelle, "AlsCsv");
        QCOMPARE(wahl.fragen.size(), std::size_t{1});
        QCOMPARE(wahl.fragen[0].endung, "csv");
        QCOMPARE(QByteArray::fromStdString(Inhalt(stand.ordner.Pfad() / "k.csv")),
                 QByteArray("\xEF\xBB\xBF"
                            "Datum;Zinsen bis (t+1);Vorgang\n"
                            "31.12.2006;1.234,50;\"Köln; \"\"Miete\"\"\"\n"
                            "01.02.2007;-0,05;Rate\n"));
    }

    void einAbgebrochenerDialogSchreibtNichts() {
        Tabellenstand stand(Kontotabelle());
        const Dateiwahl wahl;
        Loese(stand.tabelle, "AlsCsv");
        QVERIFY(std::filesystem::is_empty(stand.ordner.Pfad()));
    }

    void wasSichNichtSchreibenLaesstWirdGemeldet() {
        Tabellenstand stand(Kontotabelle());
        const Dateiwahl wahl(stand.ordner.Pfad() / "fehlt" / "k.csv");
        const Zeuge zeuge;
        Loese(stand.tabelle, "AlsCsv");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Die Tabelle konnte nicht gespeichert werden."));
    }

    void tabellendokumentHatEchteDatenZahlenUndEinenFestenKopf() {
        if (!TabellendokumentMoeglich()) QSKIP("built without spreadsheets");
        Tabellenstand stand(Kontotabelle());
        const auto datei = stand.ordner.Pfad() / "k.xlsx";
        const Dateiwahl wahl(datei);
        Loese(stand.tabelle, "AlsTabellendokument");
        const QString blatt = Teil(datei, "xl/worksheets/sheet1.xml");
        QVERIFY2(blatt.contains(
                     "<pane ySplit=\"1\" topLeftCell=\"A2\" activePane=\"bottomLeft\" state=\"frozen\"/>"),
                 qPrintable(blatt));
        // 31.12.2006 is day 39082 of spreadsheets.
        QVERIFY2(blatt.contains(QRegularExpression("<c r=\"A2\" s=\"\\d+\"><v>39082</v></c>")),
                 qPrintable(blatt));
        QVERIFY2(blatt.contains(QRegularExpression("<c r=\"B2\" s=\"\\d+\"><v>1234.5</v></c>")),
                 qPrintable(blatt));
        QVERIFY2(blatt.contains(QRegularExpression("<c r=\"B3\" s=\"\\d+\"><v>-0.05")), qPrintable(blatt));
        const QString formate = Teil(datei, "xl/styles.xml");
        QVERIFY2(formate.contains("numFmtId=\"4\"") || formate.contains("#,##0.00"), qPrintable(formate));
        QVERIFY2(formate.contains("dd.mm.yyyy"), qPrintable(formate));
        QVERIFY(Teil(datei, "xl/sharedStrings.xml").contains("Köln; &quot;Miete&quot;") ||
                Teil(datei, "xl/sharedStrings.xml").contains("Köln; \"Miete\""));
    }

    void sucheZaehltTrefferUndGehtImKreis() {
        Tabellenstand stand(Platztabelle(100));
        Druecke(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(Fokus(), "Suchtext");
        Tippe("Z7S");
        // z7s0, z7s1.
        QCOMPARE(stand.Treffer(), "1 von 2");
        QCOMPARE(stand.Zeile(), 7);
        stand.Suchtext()->setText("s1");
        QCOMPARE(stand.Treffer(), "1 von 100");
        QCOMPARE(stand.Zeile(), 0);
        Druecke(Qt::Key_Return);
        QCOMPARE(stand.Treffer(), "2 von 100");
        QCOMPARE(stand.Zeile(), 1);
        Druecke(Qt::Key_F3);
        QCOMPARE(stand.Zeile(), 2);
        for (int i = 0; i < 3; ++i)
            Druecke(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(stand.Treffer(), "100 von 100");
        QCOMPARE(stand.Zeile(), 99);
    }

    void wasEsNichtGibtWirdGesagtUndEscapeFuehrtInDieTabelle() {
        Tabellenstand stand(Platztabelle(10));
        Druecke(Qt::Key_F, Qt::ControlModifier);
        Tippe("xyz");
        QCOMPARE(stand.Treffer(), "nicht gefunden");
        Druecke(Qt::Key_Escape);
        QVERIFY(!stand.Suchtext()->isVisible());
        QCOMPARE(Fokus(), "Grid");
    }

    void einNeuerInhaltWirdNeuDurchsucht() {
        Tabellenstand stand(Platztabelle(10));
        Druecke(Qt::Key_F, Qt::ControlModifier);
        Tippe("s0");
        QCOMPARE(stand.Treffer(), "1 von 10");
        stand.tabelle.Zeige(Platztabelle(3));
        QCOMPARE(stand.Treffer(), "1 von 3");
        stand.tabelle.Zeige({});
        QCOMPARE(stand.Treffer(), "nicht gefunden");
    }

    void eineSehrGrosseTabelleWirdNurZumTeilDurchsucht() {
        Tabellenstand stand(Platztabelle(600000));
        Druecke(Qt::Key_F, Qt::ControlModifier);
        stand.Suchtext()->setText("z7s0");
        QCOMPARE(stand.Treffer(), "1 von 1+");
    }

    void strgUndRadAendernDieGroesse() {
        Tabellenstand stand(Platztabelle(10));
        const double vorher = stand.tabelle.font().pointSizeF();
        const int zeile = stand.tabelle.rowHeight(0);
        QWheelEvent rad({50, 50}, stand.tabelle.viewport()->mapToGlobal(QPointF(50, 50)), {}, {0, 120},
                        Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
        for (int i = 0; i < 3; ++i)
            QApplication::sendEvent(stand.tabelle.viewport(), &rad);
        QVERIFY(stand.tabelle.font().pointSizeF() > vorher * 1.3);
        QVERIFY(stand.tabelle.rowHeight(0) > zeile);
        Druecke(Qt::Key_0, Qt::ControlModifier);
        QCOMPARE(stand.tabelle.font().pointSizeF(), vorher);
        QCOMPARE(stand.tabelle.rowHeight(0), zeile);
        for (int i = 0; i < 100; ++i)
            stand.tabelle.Vergroessern(-1);
        QVERIFY(stand.tabelle.font().pointSizeF() > vorher / 2);
    }
};

ZINFOLIO_FENSTERTEST(TabellenbefehleTest)

}  // namespace zinfolio::tabellenbefehle_test

#include "tabellenbefehle_test.moc"
