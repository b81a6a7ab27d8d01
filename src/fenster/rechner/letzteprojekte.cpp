#include "fenster/rechner/letzteprojekte.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

namespace zinfolio {
namespace {

constexpr auto schluessel = "zuletzt";
constexpr int hoechstensJeEndung = 10;

QSettings Listenablage() {
    return QSettings("Zinfolio", "Projekte");
}

bool HatEndung(const QString& datei, const QString& endung) {
    return endung.isEmpty() || QFileInfo(datei).suffix().compare(endung, Qt::CaseInsensitive) == 0;
}

QStringList Gemerkte() {
    return Listenablage().value(schluessel).toStringList();
}

/// An `&` of the file's name is no mnemonic; the first nine have their digit.
QString Menuetext(const QString& datei, int nummer) {
    QString text = Projektbezeichnung(datei).replace('&', "&&");
    return nummer < hoechstensJeEndung ? QString("&%1  %2").arg(nummer).arg(text) : text;
}

void Fuellen(QMenu& menue, const QString& endung, const std::function<void(const QString&)>& oeffnen) {
    menue.clear();
    int nummer = 0;
    for (const QString& datei : LetzteProjekte(endung)) {
        QAction* eintrag = menue.addAction(Menuetext(datei, ++nummer));
        eintrag->setData(datei);
        QObject::connect(eintrag, &QAction::triggered, &menue, [oeffnen, datei] { oeffnen(datei); });
    }
    if (menue.isEmpty()) {
        menue.addAction("(noch keine)")->setEnabled(false);
        return;
    }
    menue.addSeparator();
    QObject::connect(menue.addAction("Liste &leeren"), &QAction::triggered, &menue,
                     [endung] { LetzteProjekteVergessen(endung); });
}

}  // namespace

QStringList LetzteProjekte(const QString& endung) {
    QStringList dateien = Gemerkte();
    dateien.removeIf(
        [&](const QString& datei) { return !HatEndung(datei, endung) || !QFileInfo(datei).isFile(); });
    return dateien;
}

void ProjektMerken(const QString& datei) {
    const QString pfad = QFileInfo(datei).absoluteFilePath();
    QStringList dateien = Gemerkte();
    dateien.removeAll(pfad);
    dateien.prepend(pfad);
    int gleichartige = 0;
    dateien.removeIf([&](const QString& eine) {
        return HatEndung(eine, QFileInfo(pfad).suffix()) && ++gleichartige > hoechstensJeEndung;
    });
    Listenablage().setValue(schluessel, dateien);
}

void LetzteProjekteVergessen(const QString& endung) {
    QStringList dateien = Gemerkte();
    dateien.removeIf([&](const QString& datei) { return HatEndung(datei, endung); });
    Listenablage().setValue(schluessel, dateien);
}

QString Projektbezeichnung(const QString& datei) {
    const QFileInfo angaben(datei);
    QString ordner = angaben.path();
    const QString heim = QDir::homePath();
    if (ordner == heim || ordner.startsWith(heim + '/')) ordner.replace(0, heim.size(), "~");
    return angaben.fileName() + "  –  " + ordner;
}

QMenu* NeuesProjektmenue(QWidget* eltern, const QString& endung,
                         const std::function<void(const QString&)>& oeffnen) {
    auto* menue = new QMenu("&Zuletzt geöffnet", eltern);
    menue->setObjectName("Zuletzt");
    QObject::connect(menue, &QMenu::aboutToShow, menue,
                     [menue, endung, oeffnen] { Fuellen(*menue, endung, oeffnen); });
    Fuellen(*menue, endung, oeffnen);
    return menue;
}

}  // namespace zinfolio
