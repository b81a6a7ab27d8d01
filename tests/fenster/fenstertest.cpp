#include "fenster/fenstertest.h"

#include <QApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <map>

#include "fenster/ui/deutsch.h"
#include "fenster/ui/entertaste.h"

namespace zinfolio {

namespace {

/// All tests by name. Made when first asked for, since the order in which sources enter theirs is open.
std::map<QString, Fenstertest::Lauf>& Verzeichnis() {
    static std::map<QString, Fenstertest::Lauf> verzeichnis;
    return verzeichnis;
}

/// A file that describes the screen: the smallest one that every window has to fit on.
QString Bildschirm(const QTemporaryDir& ordner) {
    QFile datei(ordner.filePath("bildschirm.json"));
    if (!datei.open(QIODevice::WriteOnly)) qFatal("Kein Bildschirm");
    datei.write(R"({"screens": [{"name": "klein", "x": 0, "y": 0, "width": 1280, "height": 800,)"
                R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    return datei.fileName();
}

}  // namespace

Fenstertest::Fenstertest(const char* datei, Lauf lauf) {
    const QString name = QFileInfo(datei).completeBaseName();
    if (!Verzeichnis().emplace(name, lauf).second) qFatal("Zwei Fenstertests heissen %s", qPrintable(name));
}

int Fenstertest::Starten(const QString& name, int argc, char** argv) {
    const auto gefunden = Verzeichnis().find(name);
    if (gefunden != Verzeichnis().end()) return gefunden->second(argc, argv);
    std::fprintf(stderr, "Aufruf: test_fenster NAME [Argumente von QtTest]\nEs gibt:\n");
    for (const auto& [vorhanden, lauf] : Verzeichnis())
        std::fprintf(stderr, "  %s\n", qPrintable(vorhanden));
    return 2;
}

}  // namespace zinfolio

/// Offscreen, with German boxes and a configuration of its own, whatever the machine offers. The program
/// under test sees an empty command line.
int main(int argc, char** argv) {
    using namespace zinfolio;
    const QTemporaryDir konfiguration;
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + Bildschirm(konfiguration).toUtf8());
    qputenv("XDG_CONFIG_HOME", konfiguration.path().toUtf8());
    int ohneArgumente = 1;
    QApplication programm(ohneArgumente, argv);
    DeutscheTexteLaden(programm);
    Entertaste entertaste;
    programm.installEventFilter(&entertaste);
    if (argc < 2) return Fenstertest::Starten({}, argc, argv);
    return Fenstertest::Starten(QString::fromLocal8Bit(argv[1]), argc - 1, argv + 1);
}
