// Draws the pictures of the README and the handbook from the real program: zinfolio_bilder FOLDER
// [dunkel|gross]. The second word shows the same on a dark palette, or with a font twice as large.

#include <QApplication>
#include <QComboBox>
#include <QRadioButton>

#include "fenster/kontoformular.h"
#include "fenster/start/form1.h"
#include "fenster/ui/deutsch.h"
#include "fenster/ui/platzhalterfarbe.h"
#include "fenster/ui/uhr.h"
#include "kern/staffel/zahlungseingabe.h"

namespace {

using namespace zinfolio;

void Bild(QWidget& fenster, const QDir& ordner, const char* name) {
    QTest::qWait(60);
    fenster.grab().save(ordner.filePath(QString(name) + ".png"));
}

void Kondition(Form48000& form, const char* datum,
               std::initializer_list<std::pair<const char*, const char*>> werte) {
    Waehle(form, Form48000::zinssaetze);
    Finde<QRadioButton>(&form, "Option1(2)")->click();
    Fuelle(form, "Gültigdatum", datum);
    for (const auto& [feld, wert] : werte)
        Fuelle(form, feld, wert);
    Klicke(form, "speichern2");
}

/// A giro account of one year: salary, rent, a car, and a change of rates in July.
void Beispielkonto(Form48000& form) {
    Zahlung(form, "01.01.2025", "2500", "Übertrag");
    Fuelle(form, "Ratzahl", "12");
    Zahlung(form, "31.01.2025", "2850,40", "Gehalt");
    Klicke(form, "Command3");
    Fuelle(form, "Ratzahl", "12");
    Zahlung(form, "03.01.2025", "-985", "Miete");
    Klicke(form, "Command3");
    Zahlung(form, "14.05.2025", "-13490", "Gebrauchtwagen");
    Zahlung(form, "20.11.2025", "1200", "Steuererstattung");
    Kondition(form, "01.01.2025",
              {{"Gutzins1", "0,5"},
               {"Gutzins2", "1,25"},
               {"Guthabenlinie", "5000"},
               {"Kreditzins1", "9,75"},
               {"Kreditzins2", "14,5"},
               {"Kreditlinie", "3000"}});
    Kondition(form, "01.07.2025",
              {{"Gutzins1", "0,25"},
               {"Gutzins2", "1"},
               {"Guthabenlinie", "5000"},
               {"Kreditzins1", "10,25"},
               {"Kreditzins2", "14,75"},
               {"Kreditlinie", "3000"}});
    Waehle(form, Form48000::zinsverrechnung);
    Finde<QComboBox>(&form, "Combo1")->setCurrentText("Quartalsende");
    Fuelle(form, "Kontodatum", "31.12.2025");
    Druecke(Qt::Key_Return);
}

void NotizSchreiben() {
    Druecke(Qt::Key_B, Qt::ControlModifier);
    Tippe("Girokonto 2025");
    Druecke(Qt::Key_B, Qt::ControlModifier);
    Druecke(Qt::Key_Return);
    Tippe("Auszug der Bank vom 02.01.2026: Endsaldo stimmt auf den Cent.");
}

void SpeichernAls(Form48000& form, const QString& datei) {
    const auto vorher = DateifragenUmleiten([&](const Dateifrage&) { return datei.toStdString(); });
    QTest::keyClick(&form, Qt::Key_S, Qt::ControlModifier);
    DateifragenUmleiten(vorher);
}

void BilderDesKontos(const QDir& ordner) {
    const QTemporaryDir arbeitsordner;
    Form48000 form(arbeitsordner.path().toStdString());
    form.resize(1180, 720);
    Zeige(form);
    Bild(form, ordner, "neueskonto");
    Beispielkonto(form);
    Bild(form, ordner, "zinsverrechnung");
    Waehle(form, Form48000::zinssaetze);
    Bild(form, ordner, "zinssaetze");
    Waehle(form, Form48000::notizen);
    NotizSchreiben();
    Bild(form, ordner, "notizen");
    SpeichernAls(form, arbeitsordner.filePath("Girokonto.ZiS"));
    Waehle(form, Form48000::berechnung);
    Bild(form, ordner, "kontoauszug");
    Klicke(form, "Command13");
    Bild(form, ordner, "kopfseite");
    Druecke(Qt::Key_PageDown);
    Bild(form, ordner, "bericht");
    Klicke(form, "Command11");
    Klicke(form, "Command5");
    Bild(form, ordner, "effektivzins");
    Klicke(form, "Command14");
    Finde<QComboBox>(&form, "Combo4")->setCurrentText("Detailansicht 3");
    Bild(form, ordner, "detailansicht3");
    Waehle(form, Form48000::zahlungen);
    Fuelle(form, "Begdatum", "30.11.2025");
    Fuelle(form, "Betrag", "150");
    Fuelle(form, "Beschreibung", "Sparrate");
    Fuelle(form, "Ratzahl", "6");
    Bild(form, ordner, "zahlungen");
    Klicke(form, "Speichern");
    Bild(form, ordner, "vorschau");
    Druecke(Qt::Key_Escape);
    Finde<Tabelle>(&form, "List1")->Markiere(4);
    Klicke(form, "Bearbeiten");
    Bild(form, ordner, "aenderung");
}

/// Twenty years of 1 200 a year at 4 %, and the chart of it.
void BildDesSparkontos(const QDir& ordner) {
    const QTemporaryDir arbeitsordner;
    Form48000 form(arbeitsordner.path().toStdString());
    form.resize(1180, 720);
    Zeige(form);
    Fuelle(form, "Ratzahl", "20");
    Finde<QComboBox>(&form, "Combo5")->setCurrentIndex(static_cast<int>(Abstandseinheit::jahre));
    Zahlung(form, "31.12.2005", "1200", "Sparrate");
    Klicke(form, "Command3");
    Kondition(form, "31.12.2005", {{"Gutzins1", "4"}, {"Guthabenlinie", "9999999"}, {"Kreditlinie", "1"}});
    Waehle(form, Form48000::zinsverrechnung);
    Fuelle(form, "Kontodatum", "31.12.2025");
    SpeichernAls(form, arbeitsordner.filePath("Sparkonto.ZiS"));
    Waehle(form, Form48000::berechnung);
    Klicke(form, "Grafik");
    Bild(form, ordner, "grafik");
}

void DunkelFaerben() {
    QPalette palette;
    for (const auto rolle : {QPalette::Window, QPalette::Button})
        palette.setColor(rolle, QColor(45, 45, 48));
    for (const auto rolle : {QPalette::Base, QPalette::AlternateBase})
        palette.setColor(rolle, QColor(30, 30, 32));
    for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(rolle, QColor(225, 225, 225));
        palette.setColor(QPalette::Disabled, rolle, QColor(120, 120, 120));
    }
    QApplication::setPalette(palette);
}

void SchriftVerdoppeln() {
    QFont schrift = QApplication::font();
    schrift.setPointSizeF(schrift.pointSizeF() * 2);
    QApplication::setFont(schrift);
}

}  // namespace

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    if (argc < 2) return 2;
    const QString variante = argc > 2 ? argv[2] : "";
    if (variante == "dunkel") DunkelFaerben();
    const Platzhalterfarbe platzhalterfarbe;
    if (variante == "gross") SchriftVerdoppeln();
    const QDir ordner(argv[1]);
    QDir().mkpath(ordner.path());
    QTemporaryDir konfiguration;
    qputenv("XDG_CONFIG_HOME", konfiguration.path().toUtf8());
    DeutscheTexteLaden(programm);
    UhrStellen(*Datum::Aus(2026, 1, 5));
    MeldungenUmleiten([](const Meldung&) { return Antwort::ja; });
    Form1 start(konfiguration.path().toStdString());
    Zeige(start);
    Bild(start, ordner, "startbild");
    start.hide();
    BilderDesKontos(ordner);
    BildDesSparkontos(ordner);
    return 0;
}
