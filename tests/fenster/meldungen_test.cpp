// The door for boxes, and the trap of an operation.

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "fenster/formhelfer.h"
#include "fenster/ui/deutsch.h"
#include "fenster/ui/geschuetzt.h"
#include "kern/dates/tage30.h"

namespace meldungen_test {

using namespace zinfolio;

class MeldungenTest : public QObject {
    Q_OBJECT

  private:
    /// Reads the captions of the box that opens next, and closes it by Escape.
    static QStringList TastenDesNaechstenFensters(const std::function<void()>& oeffnen) {
        QStringList tasten;
        QTimer::singleShot(0, [&tasten] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            for (const QAbstractButton* taste : box->buttons())
                tasten << taste->text().remove('&');
            QTest::keyClick(box, Qt::Key_Escape);
        });
        oeffnen();
        tasten.sort();
        return tasten;
    }

  private slots:
    void frageHatDeutscheTasten() {
        bool antwort = true;
        const QStringList tasten = TastenDesNaechstenFensters(
            [&] { antwort = Fragen(nullptr, {.text = "Löschen ?", .titel = "Datensatz löschen ?"}); });
        QCOMPARE(tasten, (QStringList{"Ja", "Nein"}));
        QVERIFY(!antwort);
    }

    void einzelheitenTasteIstDeutsch() {
        const QStringList tasten = TastenDesNaechstenFensters(
            [] { MeldungZeigen(nullptr, {.text = "Fehler", .einzelheiten = "Satz 3"}); });
        QCOMPARE(tasten.size(), 2);
        QVERIFY2(tasten.join(' ').contains("Details einblenden"), qPrintable(tasten.join(' ')));
    }

    void fehlerEinerOperationZeigtDenAllgemeinenTextMitUrsache() {
        const Zeuge zeuge;
        QVERIFY(!Geschuetzt(nullptr, [] { throw std::runtime_error("Satz 3 ist beschädigt."); }));
        QCOMPARE(
            zeuge.texte,
            QStringList{
                "Bitte überprüfen Sie Ihre Angaben. Diese sind offenbar unvollständig oder nicht in sich "
                "schlüssig und lassen daher die gewünschte Berechnung nicht zu."});
        QCOMPARE(zeuge.einzelheiten, QStringList{"Satz 3 ist beschädigt."});
    }

    void ohneFehlerBleibtEsStill() {
        const Zeuge zeuge;
        QVERIFY(Geschuetzt(nullptr, [] {}));
        QVERIFY(zeuge.texte.isEmpty());
    }

    void unlesbaresDatumBeendetDasProgrammNachSeinerMeldung() {
        const Zeuge zeuge;
        int ergebnis = 0;
        QTimer::singleShot(
            0, [] { Geschuetzt(nullptr, [] { static_cast<void>(Tage30("kein Datum", "01.01.2007")); }); });
        ergebnis = QApplication::exec();
        QCOMPARE(ergebnis, 1);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Ein Fehler ist aufgetreten. Prüfen Sie bitte"));
        QVERIFY(zeuge.texte[0].endsWith("Das Programm wird an dieser Stelle beendet."));
        QCOMPARE(zeuge.titel, QStringList{"OK"});
    }
};

ZINFOLIO_FENSTERTEST(MeldungenTest)

}  // namespace meldungen_test

#include "meldungen_test.moc"
