#include <QApplication>

#include "fenster/hilfe/hilfetaste.h"
#include "fenster/start/form1.h"
#include "fenster/start/programmstart.h"
#include "fenster/ui/deutsch.h"
#include "fenster/ui/entertaste.h"
#include "fenster/ui/meldungsfenster.h"
#include "kern/dateien/arbeitsordner.h"
#include "kern/dateien/dateigruppe.h"

namespace {

using namespace zinfolio;

/// Makes the working folder, takes hold of it and puts it in order; where that is not possible the user is
/// told why.
bool OrdnerBereit(const std::filesystem::path& ordner, std::optional<Ordnersperre>& sperre) {
    try {
        ArbeitsordnerAnlegen(ordner);
    } catch (const std::exception& fehler) {
        MeldungZeigen(nullptr,
                      {.text = QString("Der Arbeitsordner kann nicht angelegt werden. ") + fehler.what()});
        return false;
    }
    sperre.emplace(ordner);
    if (sperre->Gehalten()) {
        OrdnerAufraeumen(ordner);
        return true;
    }
    const QString text = sperre->Besetzt() ? "Das Programm läuft bereits. Es kann nur einmal geöffnet sein."
                                           : "Im Arbeitsordner %1 kann nicht geschrieben werden.";
    MeldungZeigen(nullptr,
                  {.text = sperre->Besetzt() ? text : text.arg(QString::fromStdString(ordner.string()))});
    return false;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    DeutscheTexteLaden(programm);
    Entertaste entertaste;
    programm.installEventFilter(&entertaste);
    Hilfetaste hilfetaste;
    programm.installEventFilter(&hilfetaste);
    const auto ordner = Arbeitsordner();
    std::optional<Ordnersperre> sperre;
    if (!OrdnerBereit(ordner, sperre)) return 1;
    Form1 start(ordner);
    const QStringList argumente = QApplication::arguments().mid(1);
    if (argumente.size() != 1 || !start.ProjektOeffnen(argumente[0])) start.show();
    return QApplication::exec();
}
