#pragma once
// What poppler's programs say of a PDF file.

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>
#include <filesystem>

namespace zinfolio {

/// The output of a program; the test ends where it fails.
inline QString Ausgabe(const QString& programm, const QStringList& argumente) {
    QProcess prozess;
    prozess.start(programm, argumente);
    if (!prozess.waitForFinished() || prozess.exitStatus() != QProcess::NormalExit ||
        prozess.exitCode() != 0) {
        qFatal("%s: %s", qPrintable(programm), prozess.readAllStandardError().constData());
    }
    return QString::fromUtf8(prozess.readAllStandardOutput());
}

/// The pages of a PDF file as text, laid out as on paper.
inline QStringList Seitentexte(const std::filesystem::path& datei) {
    QStringList seiten =
        Ausgabe("pdftotext", {"-layout", QString::fromStdString(datei.string()), "-"}).split('\f');
    seiten.removeLast();
    return seiten;
}

/// An entry of what pdfinfo tells.
inline QString Pdfangabe(const std::filesystem::path& datei, const QString& name) {
    const QString alles = Ausgabe("pdfinfo", {QString::fromStdString(datei.string())});
    for (const QString& zeile : alles.split('\n'))
        if (zeile.startsWith(name + ':')) return zeile.mid(name.size() + 1).trimmed();
    return {};
}

/// Where the words of a PDF file begin at the left and end at the right and below, in points.
struct Wortgrenzen {
    double links = 1e9;
    double rechts = 0;
    double unten = 0;
    int woerter = 0;
};

inline Wortgrenzen Grenzen(const std::filesystem::path& datei) {
    static const QRegularExpression muster(
        "<word xMin=\"([\\d.]+)\".* xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\"");
    Wortgrenzen grenzen;
    const QString alles = Ausgabe("pdftotext", {"-bbox", QString::fromStdString(datei.string()), "-"});
    for (auto treffer = muster.globalMatch(alles); treffer.hasNext(); ++grenzen.woerter) {
        const auto wort = treffer.next();
        grenzen.links = std::min(grenzen.links, wort.captured(1).toDouble());
        grenzen.rechts = std::max(grenzen.rechts, wort.captured(2).toDouble());
        grenzen.unten = std::max(grenzen.unten, wort.captured(3).toDouble());
    }
    return grenzen;
}

}  // namespace zinfolio
