#include "fenster/tabellen/form14005.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "fenster/ausgabe/formvorschau.h"
#include "fenster/formhelfer.h"

namespace zinfolio::form14005_test {

using Tabellenstand = Pruefstand<Form14005>;

constexpr int einzelberechnung = 1;

QString Text(QWidget& form, const char* name) {
    return Finde<QLabel>(&form, name)->text();
}

/// 3 to 4 % in steps of 0.5 over two years.
void KleineTabelle(Form14005& form) {
    Fuelle(form, "Pro1", "3");
    Fuelle(form, "Pro2", "4");
    Finde<QComboBox>(&form, "Combo2")->setCurrentIndex(4);
    Fuelle(form, "J1", "1");
    Fuelle(form, "J2", "2");
}

class Form14005Test : public QObject {
    Q_OBJECT

  private slots:
    void tabelleVonLeerBisErgebnisNurMitTasten() {
        Tabellenstand stand;
        QTest::keyClick(stand.form.get(), Qt::Key_Z, Qt::AltModifier);
        QCOMPARE(Fokus(), "Pro1");
        Tippe("3");
        Druecke(Qt::Key_Return);
        QCOMPARE(Fokus(), "Pro2");
        Tippe("4");
        Druecke(Qt::Key_Return);
        QCOMPARE(Fokus(), "Combo2");
        Druecke(Qt::Key_End);
        Druecke(Qt::Key_Tab);
        QCOMPARE(Fokus(), "J1");
        Tippe("1");
        Druecke(Qt::Key_Return);
        QCOMPARE(Fokus(), "J2");
        Tippe("2");
        const Zeuge zeuge;
        Druecke(Qt::Key_F9);
        QCOMPARE(zeuge.texte.join("; "), "");
        QCOMPARE(Zeilen(*stand.form, "Grid"), 2);
        QCOMPARE(Zeile(*stand.form, "Grid", 0), "1|1,0300000|1,0400000");
        QCOMPARE(Zeile(*stand.form, "Grid", 1), "2|1,0609000|1,0816000");
        QCOMPARE(Text(*stand.form, "Tabellentitel"), "AuF Aufzinsungsfaktor (Kapitalendwert)");
    }

    void jederFaktorZeigtSeineErklaerung() {
        Tabellenstand stand;
        QVERIFY(Text(*stand.form, "Erklärung")
                    .startsWith("Zinst einen fälligen Geldbetrag mit Zins und Zinseszins auf"));
        Finde<QComboBox>(stand.form.get(), "Combo1")->setCurrentIndex(5);
        QVERIFY(
            Text(*stand.form, "Erklärung").startsWith("Verteilt eine nach n Perioden fällige Einmalzahlung"));
        QVERIFY(Text(*stand.form, "Erklärung4")
                    .startsWith("Zinst einen fälligen Geldbetrag mit Zins und Zinseszins auf"));
    }

    void dieTabelleNenntZahlungsweiseUndFaelligkeit() {
        Tabellenstand stand;
        KleineTabelle(*stand.form);
        Finde<QComboBox>(stand.form.get(), "Combo1")->setCurrentIndex(2);
        Finde<QComboBox>(stand.form.get(), "Combo4")->setCurrentIndex(1);
        Klicke(*stand.form, "Command1");
        QCOMPARE(Text(*stand.form, "Tabellentitel"),
                 "EWF Rentenendwertfaktor (Aufzinsungssummenfaktor), monatlich vorschüssig");
    }

    void ablehnungBringtDenFokusInsFeldUndKeineAlteTabelleBleibt() {
        Tabellenstand stand;
        KleineTabelle(*stand.form);
        Klicke(*stand.form, "Command1");
        QCOMPARE(Zeilen(*stand.form, "Grid"), 2);
        Zeuge zeuge;
        Finde<QLineEdit>(stand.form.get(), "Pro2")->setText("2");
        Klicke(*stand.form, "Command1");
        QCOMPARE(zeuge.texte,
                 QStringList("Die 1. Prozentangabe darf nicht vor der 2. Prozentangabe liegen."));
        QCOMPARE(zeuge.titel, QStringList("OK"));
        QCOMPARE(Fokus(), "Pro1");
        QCOMPARE(Zeilen(*stand.form, "Grid"), 0);
        QVERIFY(!Finde<QPushButton>(stand.form.get(), "Command8")->isEnabled());
    }

    void ueberlaufEndetMitDerAllgemeinenMeldung() {
        Tabellenstand stand;
        KleineTabelle(*stand.form);
        Fuelle(*stand.form, "J2", "99999");
        Zeuge zeuge;
        Klicke(*stand.form, "Command1");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Bitte überprüfen Sie Ihre Angaben."));
        QCOMPARE(Zeilen(*stand.form, "Grid"), 0);
        Fuelle(*stand.form, "J2", "2");
        Klicke(*stand.form, "Command1");
        QCOMPARE(Zeilen(*stand.form, "Grid"), 2);
    }

    void eineGeaenderteEingabeNimmtDasErgebnisWeg() {
        Tabellenstand stand;
        KleineTabelle(*stand.form);
        Klicke(*stand.form, "Command1");
        Fuelle(*stand.form, "J2", "3");
        QCOMPARE(Zeilen(*stand.form, "Grid"), 0);
        QCOMPARE(Text(*stand.form, "Tabellentitel"), "");
    }

    void sechsMillionenWerteHaltenDasFensterNichtAuf() {
        Tabellenstand stand;
        Fuelle(*stand.form, "Pro1", "0,1");
        Fuelle(*stand.form, "Pro2", "3276,7");
        Fuelle(*stand.form, "J1", "1");
        Fuelle(*stand.form, "J2", "201");
        QElapsedTimer uhr;
        uhr.start();
        Klicke(*stand.form, "Command1");
        QCOMPARE(Zeilen(*stand.form, "Grid"), 201);
        QVERIFY2(uhr.elapsed() < 20000, "the window stands still");
        Zeuge zeuge;
        Klicke(*stand.form, "Command8");
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.texte[0].startsWith("Die Tabelle hat 32767 Zinssätze."));
        QCOMPARE(Fokus(), "Pro2");
    }

    void einzelberechnungVonLeerBisErgebnis() {
        Tabellenstand stand;
        Druecke(Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyClick(stand.form.get(), Qt::Key_Z, Qt::AltModifier);
        QCOMPARE(Fokus(), "Zins2");
        Tippe("10");
        Druecke(Qt::Key_Return);
        Tippe("2");
        Druecke(Qt::Key_Return);
        Tippe("100");
        Druecke(Qt::Key_F9);
        QCOMPARE(Text(*stand.form, "Ergebnis"), "121,00000000");
        QCOMPARE(Text(*stand.form, "Erklärung3"),
                 "Ein Betrag von 100 € , der heute zu einem Zinssatz von 10 % über 2 Jahre angelegt wird, "
                 "ergibt einen "
                 "Vermögensendwert von 121,00 € nach 2 Jahren");
        Tippe("5");
        QCOMPARE(Text(*stand.form, "Ergebnis"), "");
        QCOMPARE(Text(*stand.form, "Erklärung3"), "");
    }

    void einzelberechnungOhneBetragWirdAbgelehnt() {
        Tabellenstand stand;
        Waehle(*stand.form, einzelberechnung);
        Fuelle(*stand.form, "Zins2", "10");
        Fuelle(*stand.form, "Jahre2", "2");
        Zeuge zeuge;
        Klicke(*stand.form, "Berechnen2");
        QCOMPARE(zeuge.texte, QStringList("Geben Sie bitte den Betrag ein."));
        QCOMPARE(Fokus(), "Betrag2");
    }

    void druckenZeigtDieVorschauUndEscapeFuehrtZurueck() {
        Tabellenstand stand;
        KleineTabelle(*stand.form);
        Klicke(*stand.form, "Command1");
        Klicke(*stand.form, "Command8");
        QVERIFY(stand.form->findChild<FormVorschau*>()->isVisible());
        Druecke(Qt::Key_Escape);
        QVERIFY(Finde<QWidget>(stand.form.get(), "Grid")->isVisible());
        Waehle(*stand.form, einzelberechnung);
        Fuelle(*stand.form, "Zins2", "10");
        Fuelle(*stand.form, "Jahre2", "2");
        Fuelle(*stand.form, "Betrag2", "100");
        Klicke(*stand.form, "Berechnen2");
        Klicke(*stand.form, "Command4");
        QVERIFY(stand.form->findChild<FormVorschau*>()->isVisible());
    }

    void gespeicherteAngabenStehenBeimNaechstenMalWiederDa() {
        Tabellenstand stand;
        KleineTabelle(*stand.form);
        QVERIFY(stand.form->isWindowModified());
        stand.Taste(Qt::Key_S);
        QVERIFY(!stand.form->isWindowModified());
        QCOMPARE(Inhalt(stand.arbeit.Pfad() / "Fintabellen").size(), std::size_t{13 * 300});
        stand.Oeffnen();
        QCOMPARE(Finde<QLineEdit>(stand.form.get(), "Pro2")->text(), "4");
        QCOMPARE(Finde<QComboBox>(stand.form.get(), "Combo2")->currentIndex(), 4);
        QVERIFY(!stand.form->isWindowModified());
    }

    void verlassenFragtUndSpeichertAufJa() {
        Tabellenstand stand;
        KleineTabelle(*stand.form);
        Zeuge zeuge{Antwort::abbrechen, Antwort::nein};
        stand.form->close();
        QVERIFY(stand.form->isVisible());
        QCOMPARE(zeuge.texte, QStringList("Speichern ?"));
        stand.form->close();
        QVERIFY(!std::filesystem::exists(stand.arbeit.Pfad() / "Fintabellen"));
        stand.Oeffnen();
        Fuelle(*stand.form, "Pro1", "7");
        stand.form->close();
        QVERIFY(std::filesystem::exists(stand.arbeit.Pfad() / "Fintabellen"));
    }

    void eineBeschaedigteDateiHaeltDieFormNichtZu() {
        const Testordner ordner;
        std::ofstream(ordner.Pfad() / "Fintabellen", std::ios::binary)
            << "Unsinn" << std::string(594, '\xff');
        Zeuge zeuge;
        Form14005 form(ordner.Pfad());
        Zeige(form);
        QCOMPARE(zeuge.texte.size(), 1);
        QVERIFY(zeuge.einzelheiten[0].contains("Fintabellen"));
        QCOMPARE(Finde<QLineEdit>(&form, "Pro1")->text(), "");
    }
};

ZINFOLIO_FENSTERTEST(Form14005Test)

}  // namespace zinfolio::form14005_test

#include "form14005_test.moc"
