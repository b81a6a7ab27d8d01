// Every window on the smallest screen that counts, 1280 x 800; run with fonts of 96 and of 192 dots per inch.

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScreen>

#include "fenster/allefenster.h"
#include "fenster/fenstertest.h"
#include "fenster/kontoformular.h"
#include "fenster/start/rechnertaste.h"

namespace bildschirm_test {

using namespace zinfolio;

class BildschirmTest : public QObject {
    Q_OBJECT

  private:
    /// In points: the half, where a point is two dots.
    QSize platz_;

    [[nodiscard]] bool Passt(const QWidget& fenster) const {
        return fenster.width() <= platz_.width() && fenster.height() <= platz_.height();
    }

    /// Whether all of a label can be seen, and it has room for its text.
    static bool GanzZuSehen(const QLabel& text) {
        return text.visibleRegion().boundingRect().size() == text.size() &&
               text.width() >= text.sizeHint().width();
    }

  private slots:
    void initTestCase() {
        UhrStellen(*Datum::Aus(2026, 11, 21));
        const QScreen& schirm = *QGuiApplication::primaryScreen();
        QCOMPARE(schirm.availableSize() * schirm.devicePixelRatio(), QSize(1280, 800));
        platz_ = schirm.availableSize();
    }

    void keinFensterIstGroesserAlsDerBildschirm_data() {
        QTest::addColumn<Fensterart>("art");
        for (const Fensterart& art : AlleFenster())
            QTest::newRow(art.name) << art;
    }
    void keinFensterIstGroesserAlsDerBildschirm() {
        QFETCH(Fensterart, art);
        const Testordner ordner;
        const Fenster fenster = art.neu(ordner.Pfad());
        Zeige(*fenster);
        QVERIFY2(Passt(*fenster),
                 qPrintable(QString("%1 x %2").arg(fenster->width()).arg(fenster->height())));
    }

    void startbildSchneidetKeinenText_data() {
        QTest::addColumn<int>("breite");
        QTest::newRow("wie es sich öffnet") << 0;
        QTest::newRow("drei schmale Spalten") << 800;
        QTest::newRow("eine Spalte") << 640;
    }
    void startbildSchneidetKeinenText() {
        QFETCH(int, breite);
        const Testordner ordner;
        Form1 start(ordner.Pfad());
        Zeige(start);
        if (breite > 0) start.resize(breite, start.height());
        QTest::qWait(100);  // what lies below the edge is laid out later
        const auto tasten = start.findChildren<Rechnertaste*>();
        QCOMPARE(tasten.size(), 8);
        for (const Rechnertaste* taste : tasten) {
            for (const QLabel* text : taste->findChildren<QLabel*>()) {
                if (text->text().isEmpty()) continue;
                const QString wer = text->text();
                QVERIFY2(taste->rect().contains(text->geometry()), qPrintable(wer));
                const int gebraucht = text->heightForWidth(text->width());
                QVERIFY2(text->height() >= gebraucht,
                         qPrintable(QString("%1: %2 statt %3").arg(wer).arg(text->height()).arg(gebraucht)));
                for (const QString& wort : wer.split(' '))
                    QVERIFY2(text->fontMetrics().horizontalAdvance(wort) <= text->width(), qPrintable(wort));
            }
        }
    }

    void ergebnisseDesKontosBleibenInSicht() {
        Pruefstand<Form48000> stand;
        Form48000& form = *stand.form;
        Zahlung(form, "31.12.2006", "1234567,89");
        Kondition(form);
        Waehle(form, Form48000::zinsverrechnung);
        Fuelle(form, "Kontodatum", "31.12.2007");
        Waehle(form, Form48000::berechnung);
        Klicke(form, "Command5");
        Klicke(form, "Command14");
        Finde<QComboBox>(&form, "Combo6")->setCurrentIndex(0);  // the rate names its own method now
        for (const char* name : {"Gesamtzahlungssumme", "Geszins", "EV", "Label26", "ezins", "Label28"})
            QTRY_VERIFY2(GanzZuSehen(*Finde<QLabel>(&form, name)), name);
        QVERIFY(Finde<QTableView>(&form, "Grid")->viewport()->height() >= 3 * form.fontMetrics().height());
        QVERIFY(Passt(form));
    }
};

ZINFOLIO_FENSTERTEST(BildschirmTest)

}  // namespace bildschirm_test

#include "bildschirm_test.moc"
