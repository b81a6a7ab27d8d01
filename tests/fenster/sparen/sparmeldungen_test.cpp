// What each savings calculator refuses: the words, and the field that is ready to be typed over then.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include "fenster/formhelfer.h"
#include "fenster/sparen/sparrechner.h"

namespace sparmeldungen_test {

using namespace zinfolio;

/// Fields by their names with their texts; a box is ticked by "x", an entry of a list chosen by its number.
using Angaben = std::vector<std::pair<const char*, const char*>>;

/// A plan that can be calculated, and what is wrong with it.
struct Fall {
    const char* name;
    Sparziel ziel;
    Angaben angaben;
    const char* meldung;
    /// Empty: none.
    const char* feld;
};

constexpr const char* keinSpardatum = "Bitte das 1. Spardatum eingeben.";
constexpr const char* keinAnfangsdatum = "Bitte das Anfangsdatum eingeben";
constexpr const char* keinEnddatum = "Bitte das Enddatum eingeben";
constexpr const char* keinZins = "Bitte den Zinssatz eingeben";
constexpr const char* rateVorAnfang =
    "Das Datum der 1. Sparrate darf nicht vor dem Datum für das Anfangsvermögen liegen.";
constexpr const char* endeVorAnfang = "Das Enddatum muss nach dem Anfangsdatum liegen.";
constexpr const char* zuLang = "Zwischen End- und Anfangsdatum dürfen nur bis zu 150 Jahre liegen.";
constexpr const char* zuGering =
    "Die Differenz zwischen Anfangs- und Endvermögen ist für die Berechnung zu gering.";
constexpr const char* ohneAnzahl =
    "Sie haben Dynamisierung gewählt. Die Anzahl der Zahlungen,nach denen eine Anpassung der Sparrate "
    "erfolgt, muss grösser als '0' sein.";
constexpr const char* ohneStufen =
    "Sie haben Dynamisierung gewählt. Die Anzahl der Dynamisierungsstufen muss bei einer Begrenzug größer "
    "als '0' sein. ";
constexpr const char* maximumZuKlein = "Der maximale Sparbetrag muss größer sein als der Anfangssparbetrag";
constexpr const char* minimumZuGross = "Der minimale Sparbetrag muss kleiner sein als der Anfangssparbetrag";
constexpr const char* keineLoesung =
    "Es wurde keine Lösung gefunden. Heben Sie die Begrenzungen für die Höhe der Sparraten auf oder "
    "Verändern Sie deren Werte.";

using enum Sparziel;

const std::vector<Fall> faelle{
    {"90000 Spardatum", endkapital, {{"ratdatum1", ""}}, keinSpardatum, "ratdatum1"},
    {"90000 Anfangsdatum", endkapital, {{"Anfdatum", ""}}, keinAnfangsdatum, "Anfdatum"},
    {"90000 Enddatum", endkapital, {{"Enddatum", ""}}, keinEnddatum, "Enddatum"},
    {"90000 Zins", endkapital, {{"Zins", ""}}, keinZins, "Zins"},
    {"90000 Rate vor Anfang", endkapital, {{"ratdatum1", "31.12.2006"}}, rateVorAnfang, "ratdatum1"},
    {"90000 Ende am Anfang", endkapital, {{"Enddatum", "1.1.2007"}}, endeVorAnfang, "Enddatum"},
    {"90000 151 Jahre", endkapital, {{"Enddatum", "1.1.2158"}}, zuLang, "Enddatum"},
    {"90000 Anzahl", endkapital, {{"Check2", "x"}}, ohneAnzahl, "Anzahl"},
    {"90000 Stufen", endkapital, {{"Check2", "x"}, {"Anzahl", "1"}, {"Check3", "x"}}, ohneStufen, "DynAnz"},
    {"90000 Maximum",
     endkapital,
     {{"Check2", "x"}, {"Anzahl", "1"}, {"Check4", "x"}, {"MaxSparrate", "100"}},
     maximumZuKlein,
     "MaxSparrate"},
    {"90000 Minimum",
     endkapital,
     {{"Check2", "x"}, {"Anzahl", "1"}, {"Check5", "x"}, {"MinSparrate", "100"}},
     minimumZuGross,
     "MinSparrate"},
    {"94000 Spardatum", sparrate, {{"ratdatum1", ""}}, keinSpardatum, "ratdatum1"},
    {"94000 Zins", sparrate, {{"Zins", ""}}, keinZins, "Zins"},
    {"94000 Ende vor Anfang", sparrate, {{"Enddatum", "1.1.2006"}}, endeVorAnfang, "Enddatum"},
    {"94000 nichts zu sparen", sparrate, {{"AnfVermögen", ""}, {"Vwert", ""}}, zuGering, "Vwert"},
    {"94000 Anzahl", sparrate, {{"Check2", "x"}}, ohneAnzahl, "Anzahl"},
    {"94000 Grenze",
     sparrate,
     {{"Check2", "x"}, {"Anzahl", "1"}, {"Check4", "x"}, {"MaxSparrate", "5"}},
     keineLoesung,
     "Check4"},
    {"92000 Spardatum", rendite, {{"ratdatum1", ""}}, keinSpardatum, "ratdatum1"},
    {"92000 Endwert", rendite, {{"Vermendwert", ""}}, "Bitte den Vermögensendwert eingeben", "Vermendwert"},
    {"92000 151 Jahre", rendite, {{"Enddatum", "1.1.2158"}}, zuLang, "Enddatum"},
    {"92000 Maximum",
     rendite,
     {{"Check2", "x"}, {"Anzahl", "1"}, {"Check4", "x"}, {"MaxSparrate", "100"}},
     maximumZuKlein,
     "MaxSparrate"},
    {"92000 ohne Loesung", rendite, {{"Vermendwert", "-5"}}, "Es wurde keine zulässige Lösung gefunden", ""},
    {"96000 Spardatum", anspardauer, {{"ratdatum1", ""}}, keinSpardatum, "ratdatum1"},
    {"96000 Endvermoegen", anspardauer, {{"Vwert", ""}}, "Bitte das Endvermögen eingeben", "Vwert"},
    {"96000 Zins", anspardauer, {{"Zins", ""}}, keinZins, "Zins"},
    {"96000 Rate vor Anfang", anspardauer, {{"ratdatum1", "31122006"}}, rateVorAnfang, "ratdatum1"},
    {"96000 Ziel zu klein",
     anspardauer,
     {{"Vwert", "999"}},
     "Das Endvermögen darf nicht kleiner als das Anfangsvermögen sein.",
     "Vwert"},
    {"99000 Spardatum", anfangskapital, {{"ratdatum1", ""}}, keinSpardatum, "ratdatum1"},
    {"99000 Enddatum", anfangskapital, {{"Enddatum", ""}}, keinEnddatum, "Enddatum"},
    {"99000 nichts zu sparen", anfangskapital, {{"Vwert", ""}}, zuGering, "Vwert"},
    {"99000 Stufen",
     anfangskapital,
     {{"Check2", "x"}, {"Anzahl", "1"}, {"Check3", "x"}},
     ohneStufen,
     "DynAnz"},
};

/// What only the calculation finds out, and the field that mends it.
struct Fehlerfall {
    const char* name;
    Sparziel ziel;
    Angaben angaben;
    const char* feld;
    const char* abhilfe;
};

const std::vector<Fehlerfall> fehlerfaelle{
    {"90000 Buchstaben", endkapital, {{"Betrag", "abc"}}, "Betrag", "100"},
    {"94000 keine Rate erreicht das Konto", sparrate, {{"ratdatum1", "1.1.2020"}}, "ratdatum1", "1.2.2007"},
    {"96000 mehr Zeilen als eine Datei hat",
     anspardauer,
     {{"AnfVermögen", ""},
      {"Anfdatum", "01.10.2003"},
      {"ratdatum1", "01.10.2003"},
      {"Betrag", "797,14"},
      {"Vwert", "165908,47"},
      {"Combo1", "4"},
      {"Combo2", "4"},
      {"Combo4", "0"}},
     "Combo4",
     "5"},
    {"99000 leere Rate", anfangskapital, {{"Betrag", ""}}, "Betrag", "100"},
};

void Angeben(QWidget& form, const char* name, const char* text) {
    if (auto* haken = form.findChild<QCheckBox*>(name)) return haken->click();
    if (auto* liste = form.findChild<QComboBox*>(name)) return liste->setCurrentIndex(QString(text).toInt());
    auto* feld = form.findChild<QLineEdit*>(name);
    if (!feld) return;
    // Letters come only from elsewhere.
    if (QString(text) == "abc") return feld->setText(text);
    Fuelle(form, name, text);
}

/// A plan of the form that can be calculated, changed by what is wrong with it.
void PlanAngeben(QWidget& form, const Angaben& angaben) {
    for (const auto& [name, text] : {std::pair("AnfVermögen", "1000"),
                                     {"Anfdatum", "01.01.2007"},
                                     {"ratdatum1", "01.02.2007"},
                                     {"Betrag", "100"},
                                     {"Enddatum", "31.12.2007"},
                                     {"Zins", "3"},
                                     {"Vwert", "5000"},
                                     {"Vermendwert", "2200"}})
        Angeben(form, name, text);
    for (const auto& [name, text] : angaben)
        Angeben(form, name, text);
}

class SparmeldungenTest : public QObject {
    Q_OBJECT

  private slots:
    void wirdAbgelehnt_data() {
        QTest::addColumn<int>("nummer");
        for (int nummer = 0; nummer < static_cast<int>(faelle.size()); ++nummer)
            QTest::newRow(faelle[static_cast<std::size_t>(nummer)].name) << nummer;
    }

    void wirdAbgelehnt() {
        QFETCH(int, nummer);
        const Fall& fall = faelle[static_cast<std::size_t>(nummer)];
        UhrStellen(*Datum::Aus(2026, 11, 21));
        const Testordner ordner;
        Sparrechner form(SparformVon(fall.ziel), ordner.Pfad());
        Zeige(form);
        PlanAngeben(form, fall.angaben);
        const Zeuge zeuge;
        QTest::keyClick(&form, Qt::Key_F9);
        QCOMPARE(zeuge.texte, QStringList{fall.meldung});
        QCOMPARE(zeuge.titel, QStringList{"OK"});
        QVERIFY(zeuge.tasten.front() == Meldungstasten::ok);
        QCOMPARE(Finde<QTabWidget>(&form, "TabStrip1")->currentIndex(), 0);
        QCOMPARE(Finde<QLabel>(&form, "EV")->text(), "");
        if (QString(fall.feld).isEmpty()) return;
        QCOMPARE(Fokus(), fall.feld);
        auto* feld = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        if (!feld) return;
        QVERIFY(feld->isEnabled());
        Tippe("1");
        QCOMPARE(feld->text(), "1");
    }

    void gibtDieAllgemeineMeldungUndBleibtBrauchbar_data() {
        QTest::addColumn<int>("nummer");
        for (int nummer = 0; nummer < static_cast<int>(fehlerfaelle.size()); ++nummer)
            QTest::newRow(fehlerfaelle[static_cast<std::size_t>(nummer)].name) << nummer;
    }

    void gibtDieAllgemeineMeldungUndBleibtBrauchbar() {
        QFETCH(int, nummer);
        const Fehlerfall& fall = fehlerfaelle[static_cast<std::size_t>(nummer)];
        UhrStellen(*Datum::Aus(2026, 11, 21));
        const Testordner ordner;
        Sparrechner form(SparformVon(fall.ziel), ordner.Pfad());
        Zeige(form);
        PlanAngeben(form, fall.angaben);
        {
            const Zeuge zeuge;
            QTest::keyClick(&form, Qt::Key_F9);
            QCOMPARE(
                zeuge.texte,
                QStringList{"Bitte überprüfen Sie Ihre Angaben. Diese sind offenbar unvollständig oder "
                            "nicht in sich schlüssig und lassen daher die gewünschte Berechnung nicht zu."});
            QCOMPARE(zeuge.titel, QStringList{"OK"});
            QCOMPARE(Finde<QTabWidget>(&form, "TabStrip1")->currentIndex(), 0);
        }
        Angeben(form, fall.feld, fall.abhilfe);
        QTest::keyClick(&form, Qt::Key_F9);
        QCOMPARE(Finde<QTabWidget>(&form, "TabStrip1")->currentIndex(), 1);
        QVERIFY(!Finde<QLabel>(&form, "EV")->text().isEmpty());
    }
};

ZINFOLIO_FENSTERTEST(SparmeldungenTest)

}  // namespace sparmeldungen_test

#include "sparmeldungen_test.moc"
