// Which word processor a desktop offers, over desktops made for the purpose.

#include "fenster/ausgabe/schreibtisch.h"

#include <QApplication>
#include <fstream>

#include "fenster/ausgabe/schreibtischbefehl.h"
#include "fenster/formhelfer.h"

using namespace zinfolio;

class SchreibtischTest : public QObject {
    Q_OBJECT

  private:
    std::unique_ptr<Testordner> ordner_;

    void Lege(const std::filesystem::path& name, const std::string& inhalt) {
        const auto datei = ordner_->Pfad() / name;
        std::filesystem::create_directories(datei.parent_path());
        std::ofstream(datei) << inhalt;
    }

    std::filesystem::path Programm(const char* name) {
        const auto datei = ordner_->Pfad() / "bin" / name;
        Lege(std::filesystem::path("bin") / name, "#!/bin/sh\n");
        std::filesystem::permissions(datei, std::filesystem::perms::owner_all);
        return datei;
    }

    void Eintrag(const std::filesystem::path& ordner, const char* name, const std::string& befehl,
                 const std::string& arten = "Office;WordProcessor;") {
        Lege(ordner / "applications" / name,
             "# comment\n[Desktop Entry]\nType=Application\nExec=" + befehl + "\nCategories=" + arten +
                 "\nMimeType=text/plain;application/rtf;\n\n[Desktop Action Neu]\nExec=anderes\n");
    }

    [[nodiscard]] Schreibtischangaben Angaben() const {
        const auto hier = ordner_->Pfad();
        return {.programmordner = {hier / "bin"},
                .datenordner = {hier / "eigene", hier / "gemeinsame"},
                .einstellungsordner = {hier / "config"}};
    }

    [[nodiscard]] QString Gefunden() const {
        const auto gefunden = TextverarbeitungFinden(Angaben());
        if (!gefunden) return "keine";
        QString text = QString::fromStdString(gefunden->programm.filename().string());
        for (const std::string& argument : gefunden->argumente)
            text += " " + QString::fromStdString(argument);
        return text;
    }

  private slots:
    void init() { ordner_ = std::make_unique<Testordner>(); }

    void leererSchreibtischHatKeine() { QCOMPARE(Gefunden(), "keine"); }

    void eingetragenesProgrammWirdGefunden() {
        Programm("schreiber");
        Eintrag("gemeinsame", "schreiber.desktop", "schreiber --neu %U");
        QCOMPARE(Gefunden(), "schreiber --neu %u");
    }

    void eintragOhneProgrammZaehltNicht() {
        Eintrag("gemeinsame", "schreiber.desktop", "schreiber %U");
        QCOMPARE(Gefunden(), "keine");
        Lege("bin/schreiber", "not executable");
        QCOMPARE(Gefunden(), "keine");
    }

    void texteditorZaehltNicht() {
        Programm("editor");
        Eintrag("gemeinsame", "editor.desktop", "editor %F", "Utility;TextEditor;");
        QCOMPARE(Gefunden(), "keine");
    }

    void wahlDesBenutzersGehtVor() {
        Programm("a");
        Programm("b");
        Eintrag("gemeinsame", "a.desktop", "a %f");
        Eintrag("gemeinsame", "b.desktop", "b %f");
        QCOMPARE(Gefunden(), "a %f");
        Lege("config/mimeapps.list",
             "[Added Associations]\ntext/rtf=a.desktop\n[Default "
             "Applications]\napplication/rtf=fehlt.desktop;b.desktop;\n");
        QCOMPARE(Gefunden(), "b %f");
    }

    void eigenerEintragVerdecktDenGemeinsamen() {
        Programm("a");
        Programm("b");
        Eintrag("gemeinsame", "schreiber.desktop", "a %f");
        Eintrag("eigene", "schreiber.desktop", "b %f");
        QCOMPARE(Gefunden(), "b %f");
        Lege("eigene/applications/schreiber.desktop", "[Desktop Entry]\nHidden=true\n");
        QCOMPARE(Gefunden(), "keine");
    }

    void programmMitGanzemPfad() {
        const auto datei = Programm("schreiber");
        Eintrag("gemeinsame", "schreiber.desktop", "\"" + datei.string() + "\" %f");
        QCOMPARE(Gefunden(), "schreiber %f");
    }

    void ohneEintragZaehltLibreofficeImPfad() {
        Programm("abiword");
        QCOMPARE(Gefunden(), "abiword %f");
        Programm("libreoffice");
        QCOMPARE(Gefunden(), "libreoffice --writer %f");
    }

    void befehlWirdZerlegt_data() {
        QTest::addColumn<QString>("zeile");
        QTest::addColumn<QStringList>("worte");
        QTest::newRow("leer") << "" << QStringList{};
        QTest::newRow("schlicht") << "a b %f" << QStringList{"a", "b", "%f"};
        QTest::newRow("viele Dateien") << "a %F" << QStringList{"a", "%f"};
        QTest::newRow("URL in der Mitte") << "a %U -x" << QStringList{"a", "%u", "-x"};
        QTest::newRow("zwei Codes") << "a %f %u" << QStringList{"a", "%f"};
        QTest::newRow("ohne Code") << "a" << QStringList{"a", "%f"};
        QTest::newRow("andere Codes") << "a %i %c -k %k %f" << QStringList{"a", "-k", "%f"};
        QTest::newRow("Anfuehrungszeichen") << "\"/opt/mein programm/a\" \"%f\" \"x\\\"y\\\\z\" %f"
                                            << QStringList{"/opt/mein programm/a", "%f", "x\"y\\z", "%f"};
        QTest::newRow("Prozent") << "a 100%% %f" << QStringList{"a", "100%", "%f"};
        QTest::newRow("viele Blanks") << "  a   %f  " << QStringList{"a", "%f"};
    }

    void befehlWirdZerlegt() {
        QFETCH(QString, zeile);
        QFETCH(QStringList, worte);
        QStringList ergebnis;
        for (const std::string& wort : BefehlZerlegen(zeile.toStdString()))
            ergebnis << QString::fromStdString(wort);
        QCOMPARE(ergebnis, worte);
    }
};

ZINFOLIO_FENSTERTEST(SchreibtischTest)
#include "schreibtisch_test.moc"
