#include <QApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QThread>
#include <cstdio>

#include "fenster/hilfe/hilfetaste.h"
#include "fenster/start/form1.h"
#include "fenster/start/programmstart.h"
#include "fenster/start/projektuebergabe.h"
#include "fenster/ui/deutsch.h"
#include "fenster/ui/entertaste.h"
#include "fenster/ui/meldungsfenster.h"
#include "fenster/ui/platzhalterfarbe.h"
#include "kern/dateien/arbeitsordner.h"
#include "kern/dateien/dateigruppe.h"

namespace {

using namespace zinfolio;

enum class Startlage { bereit, uebergeben, gescheitert };

/// Takes hold of the working folder. While another program holds it, that one is handed the project; it may
/// be on its way out, or not listening yet, so that both are tried for a while.
Startlage OrdnerBelegen(const std::filesystem::path& ordner, const QString& projekt,
                        std::optional<Ordnersperre>& sperre) {
    constexpr std::chrono::seconds geduld{3};
    constexpr int takt = 100;
    const QString adresse = Uebergabeadresse(ordner);
    const QDeadlineTimer ende(geduld);
    for (sperre.emplace(ordner); sperre->Besetzt(); sperre.emplace(ordner)) {
        const std::chrono::milliseconds rest{ende.remainingTime()};
        if (ProjektUebergeben(adresse, projekt, rest)) return Startlage::uebergeben;
        if (ende.hasExpired()) return Startlage::gescheitert;
        QThread::msleep(takt);
    }
    return sperre->Gehalten() ? Startlage::bereit : Startlage::gescheitert;
}

/// Makes the working folder, takes hold of it and puts it in order; where that is not possible the user is
/// told why.
Startlage OrdnerBereiten(const std::filesystem::path& ordner, const QString& projekt,
                         std::optional<Ordnersperre>& sperre) {
    try {
        ArbeitsordnerAnlegen(ordner);
    } catch (const std::exception& fehler) {
        MeldungZeigen(nullptr,
                      {.text = QString("Der Arbeitsordner kann nicht angelegt werden. ") + fehler.what()});
        return Startlage::gescheitert;
    }
    const Startlage lage = OrdnerBelegen(ordner, projekt, sperre);
    if (lage == Startlage::bereit) OrdnerAufraeumen(ordner);
    if (lage != Startlage::gescheitert) return lage;
    const QString text = sperre->Besetzt() ? "Das Programm läuft bereits. Es kann nur einmal geöffnet sein."
                                           : "Im Arbeitsordner %1 kann nicht geschrieben werden.";
    MeldungZeigen(nullptr,
                  {.text = sperre->Besetzt() ? text : text.arg(QString::fromStdString(ordner.string()))});
    return lage;
}

}  // namespace

int main(int argc, char** argv) {
    if (const auto auskunft = Auskunft(argc > 1 ? argv[1] : "")) {
        std::fputs(auskunft->c_str(), stdout);
        return 0;
    }
    QApplication programm(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    DeutscheTexteLaden(programm);
    Entertaste entertaste;
    programm.installEventFilter(&entertaste);
    Hilfetaste hilfetaste;
    programm.installEventFilter(&hilfetaste);
    const Platzhalterfarbe platzhalterfarbe;
    const QStringList argumente = QApplication::arguments().mid(1);
    const QString projekt = argumente.isEmpty() ? QString() : QFileInfo(argumente[0]).absoluteFilePath();
    const auto ordner = Arbeitsordner();
    std::optional<Ordnersperre> sperre;
    const Startlage lage = OrdnerBereiten(ordner, projekt, sperre);
    if (lage != Startlage::bereit) return lage == Startlage::uebergeben ? 0 : 1;
    Form1 start(ordner);
    Uebergabestelle uebergabe;
    QObject::connect(&uebergabe, &Uebergabestelle::uebergeben, &start, [&start](const QString& datei) {
        start.NachVorn();
        start.ProjektOeffnenSobaldFrei(datei);
    });
    uebergabe.Eroeffnen(Uebergabeadresse(ordner));
    if (!start.ProjektOeffnen(projekt)) start.show();
    return QApplication::exec();
}
