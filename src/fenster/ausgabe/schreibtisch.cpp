#include "fenster/ausgabe/schreibtisch.h"

#include <QProcess>
#include <QStandardPaths>

namespace zinfolio {
namespace {

/// The desktop's application for a kind of file, as `xdg-mime` names it; empty where there is none.
QByteArray Anwendung(const QString& auskunft, const char* typ) {
    constexpr int hoechsteWartezeit = 3000;
    QProcess frage;
    frage.start(auskunft, {"query", "default", typ});
    if (!frage.waitForFinished(hoechsteWartezeit)) return {};
    return frage.readAllStandardOutput().trimmed();
}

}  // namespace

QString Textverarbeitung() {
    const QString auskunft = QStandardPaths::findExecutable("xdg-mime");
    if (auskunft.isEmpty()) return {};
    for (const char* typ : {"application/rtf", "text/rtf"})
        if (!Anwendung(auskunft, typ).isEmpty()) return QStandardPaths::findExecutable("xdg-open");
    return {};
}

bool TextverarbeitungStarten(const QString& programm, const QString& datei) {
    return QProcess::startDetached(programm, {datei});
}

}  // namespace zinfolio
