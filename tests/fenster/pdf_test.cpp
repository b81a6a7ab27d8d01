// The PDF file of a report, as poppler reads it.

#include "fenster/ausgabe/pdf.h"

#include <QApplication>
#include <QGuiApplication>
#include <QXmlStreamReader>

#include "fenster/formhelfer.h"
#include "fenster/nummernbericht.h"
#include "fenster/pdfhelfer.h"
#include "kern/bericht/probebericht.h"
#include "kern/dateien/dateifehler.h"

namespace pdf_test {

using namespace zinfolio;
namespace fs = std::filesystem;

/// A4 across, and the margin of 500 twips, in points.
constexpr double breite = 842;
constexpr double hoehe = 595;
constexpr double seitenrand = 25;

class PdfTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;

    [[nodiscard]] fs::path Datei() const { return ordner_->Pfad() / "Bericht.pdf"; }

    void Schreiben(const Bericht& bericht) { QVERIFY(PdfSchreiben(Seitenmaler(bericht), Datei())); }

    void InDenRaendern() {
        const Wortgrenzen grenzen = Grenzen(Datei());
        QVERIFY(grenzen.woerter > 10);
        QVERIFY2(grenzen.links >= seitenrand - 0.5, qPrintable(QString::number(grenzen.links)));
        QVERIFY2(grenzen.rechts <= breite - seitenrand + 0.5, qPrintable(QString::number(grenzen.rechts)));
        QVERIFY(grenzen.unten < hoehe);
    }

  private slots:
    void init() { ordner_ = std::make_unique<Testordner>(); }
    void cleanup() { ordner_.reset(); }

    void derKopfStehtAufJederSeiteDerTabelle() {
        Schreiben(Nummernbericht(100));
        const QStringList seiten = Seitentexte(Datei());
        QCOMPARE(seiten.size(), 4);
        QVERIFY(seiten[0].simplified().contains("Endvermögen 1.234,56"));
        QVERIFY(!seiten[0].contains("Kontostand"));
        for (int i = 1; i < 4; ++i) {
            const QString kopf = seiten[i].section('\n', 0, 0).simplified();
            QCOMPARE(kopf, "Datum Vorgang Kontostand");
        }
    }

    void jedeZeileStehtGenauEinmalInIhrerReihenfolge() {
        Schreiben(Nummernbericht(1000));
        const QString text = Seitentexte(Datei()).join('\n');
        static const QRegularExpression nummer("31\\.12\\.2007 +Nr(\\d{5}) +1\\.234,56\n");
        int naechste = 0;
        for (auto treffer = nummer.globalMatch(text); treffer.hasNext(); ++naechste)
            QCOMPARE(treffer.next().captured(1).toInt(), naechste);
        QCOMPARE(naechste, 1000);
    }

    void dieSeitenSindGezaehlt() {
        Schreiben(Nummernbericht(100));
        const QStringList seiten = Seitentexte(Datei());
        QVERIFY(seiten[0].contains("Seite 1 von 4"));
        QVERIFY(seiten[3].contains("Seite 4 von 4"));
        InDenRaendern();
    }

    void ansichtenPassenAufDieSeite_data() {
        QTest::addColumn<int>("ansicht");
        QTest::addColumn<QString>("kopf");
        QTest::newRow("Kurzform") << 0 << "Zahlungsbetrag";
        QTest::newRow("Detailansicht 1") << 1 << "kumulierte Zinsen bis";
        QTest::newRow("Detailansicht 2") << 2 << "Zinsgutschrift t";
        QTest::newRow("Detailansicht 3") << 3 << "Guthabenlinie";
    }
    void ansichtenPassenAufDieSeite() {
        QFETCH(int, ansicht);
        QFETCH(QString, kopf);
        Schreiben(Probekontobericht(static_cast<Kontoansicht>(ansicht), 120));
        const QStringList seiten = Seitentexte(Datei());
        QVERIFY(seiten.size() >= 3);
        for (int i = 1; i < seiten.size(); ++i)
            QVERIFY2(seiten[i].contains(kopf), qPrintable(seiten[i].left(400)));
        InDenRaendern();
        QVERIFY(Pdfangabe(Datei(), "Page size").startsWith("842 x 595 pts (A4)"));
    }

    void riesigeBetraegePassenInFuenfzehnSpalten() {
        Bericht bericht = Probekontobericht(Kontoansicht::detailansicht3, 60);
        bericht.tabelle.zelle = [davor = bericht.tabelle.zelle](std::size_t zeile, std::size_t spalte) {
            return zeile == 7 && spalte > 1 ? "-123.456.789.012,34" : davor(zeile, spalte);
        };
        Schreiben(bericht);
        InDenRaendern();
        QCOMPARE(Seitentexte(Datei()).join("").count("-123.456.789.012,34"), 13);
    }

    void dieHerleitungHatIhreZeileAufJederSeite() {
        Schreiben(Probeherleitung(120));
        const QStringList seiten = Seitentexte(Datei());
        QVERIFY(seiten.size() >= 3);
        for (const QString& seite : seiten)
            QVERIFY2(seite.startsWith("Herleitung des Effektivzinssatzes"), qPrintable(seite.left(200)));
        InDenRaendern();
    }

    void derTitelStehtNurAufDerErstenSeiteDerTabelle() {
        Bericht bericht = Nummernbericht(100);
        bericht.titelzeilen = {"Barwert       Solar", "Zins : 7,500000 %"};
        Schreiben(bericht);
        const QStringList seiten = Seitentexte(Datei());
        QCOMPARE(seiten.size(), 4);
        QVERIFY2(seiten[1].startsWith("Barwert") && seiten[1].contains("\nZins : 7,500000 %\n"),
                 qPrintable(seiten[1].left(200)));
        for (const int ohne : {0, 2, 3})
            QVERIFY2(!seiten[ohne].contains("7,500000"), qPrintable(seiten[ohne].left(200)));
        QCOMPARE(seiten.join("").count("Nr000"), 100);
        InDenRaendern();
    }

    void titelUndVerfasserStehenImDokument() {
        Schreiben(Nummernbericht(1));
        QCOMPARE(Pdfangabe(Datei(), "Title"), "Zinsstaffel Köln (1) \\ 2");
        const QString angaben = Ausgabe("pdfinfo", {"-meta", QString::fromStdString(Datei().string())});
        QVERIFY2(angaben.contains("<dc:creator><rdf:Seq><rdf:li>Zinfolio</rdf:li>"), qPrintable(angaben));
        QVERIFY2(angaben.contains(">Zinsstaffel Köln (1) \\ 2</rdf:li></rdf:Alt></dc:title>"),
                 qPrintable(angaben));
        QVERIFY(Pdfangabe(Datei(), "Creator").startsWith("Zinfolio "));
        QVERIFY(Pdfangabe(Datei(), "Producer").startsWith("Qt "));
        QVERIFY(!Pdfangabe(Datei(), "CreationDate").isEmpty());
    }

    void dieAngabenSindXml() {
        Bericht bericht = Nummernbericht(1);
        bericht.titel = "A & B <\"1\">";
        Schreiben(bericht);
        QCOMPARE(Pdfangabe(Datei(), "Title"), "A & B <\"1\">");
        QXmlStreamReader leser(Ausgabe("pdfinfo", {"-meta", QString::fromStdString(Datei().string())}));
        QString titel;
        while (!leser.atEnd())
            if (leser.readNext() == QXmlStreamReader::StartElement && leser.name() == QString("title"))
                titel = leser.readElementText(QXmlStreamReader::IncludeChildElements);
        QVERIFY2(!leser.hasError(), qPrintable(leser.errorString()));
        QCOMPARE(titel, "A & B <\"1\">");
    }

    void einLeererBerichtIstEineSeite() {
        Schreiben({});
        QCOMPARE(Pdfangabe(Datei(), "Pages"), "1");
        QCOMPARE(Pdfangabe(Datei(), "Title"), "");
    }

    void alleSchriftenSindEingebettet() {
        Schreiben(Nummernbericht(10));
        const QStringList zeilen =
            Ausgabe("pdffonts", {QString::fromStdString(Datei().string())}).trimmed().split('\n');
        QCOMPARE(zeilen.size(), 2 + 3);
        for (int i = 2; i < zeilen.size(); ++i)
            QVERIFY2(zeilen[i].contains(QRegularExpression("Identity-H +yes (yes|no) +yes")),
                     qPrintable(zeilen[i]));
    }

    void zeichenAusserhalbDerSchriftVerschiebenNichts() {
        Bericht bericht = Nummernbericht(3);
        bericht.tabelle.zelle = [](std::size_t zeile, std::size_t spalte) -> std::string {
            if (spalte != 1) return "1,00";
            return zeile == 1 ? "Miete 家賃 Köln" : "Miete € Köln";
        };
        Schreiben(bericht);
        QCOMPARE(Seitentexte(Datei())[1].count("Miete € Köln"), 2);
        InDenRaendern();
    }

    void derFortschrittZaehltSeiten() {
        std::vector<std::pair<std::size_t, std::size_t>> meldungen;
        const Seitenmaler maler(Nummernbericht(100));
        QVERIFY(PdfSchreiben(maler, Datei(), [&](std::size_t erledigt, std::size_t von) {
            meldungen.emplace_back(erledigt, von);
            return true;
        }));
        const std::vector<std::pair<std::size_t, std::size_t>> erwartet{
            {0, 4}, {1, 4}, {2, 4}, {3, 4}, {4, 4}};
        QVERIFY(meldungen == erwartet);
    }

    void einAbbruchLaesstKeineDatei_data() {
        QTest::addColumn<int>("bei");
        for (const int bei : {0, 1, 3, 4})
            QTest::addRow("nach Seite %d", bei) << bei;
    }
    void einAbbruchLaesstKeineDatei() {
        QFETCH(int, bei);
        const Seitenmaler maler(Nummernbericht(100));
        QVERIFY(!PdfSchreiben(maler, Datei(), [&](std::size_t erledigt, std::size_t) {
            return erledigt != static_cast<std::size_t>(bei);
        }));
        QVERIFY(fs::is_empty(ordner_->Pfad()));
    }

    void einAbbruchLaesstDieAlteDatei() {
        Schreiben(Nummernbericht(1));
        QVERIFY(!PdfSchreiben(Seitenmaler(Nummernbericht(100)), Datei(),
                              [](std::size_t erledigt, std::size_t) { return erledigt < 2; }));
        QCOMPARE(Pdfangabe(Datei(), "Pages"), "2");
    }

    void einFehlenderOrdnerIstEinDateifehler() {
        QVERIFY_EXCEPTION_THROWN(
            (void)PdfSchreiben(Seitenmaler(Nummernbericht(1)), ordner_->Pfad() / "fehlt" / "Bericht.pdf"),
            Dateifehler);
    }
};

ZINFOLIO_FENSTERTEST(PdfTest)

}  // namespace pdf_test

#include "pdf_test.moc"
