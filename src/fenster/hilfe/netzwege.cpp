#include "fenster/hilfe/netzwege.h"

#include <QDesktopServices>

#include "fenster/hilfe/versionsdatei.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

QUrl Adresse(const Netzziel& ziel, const QString& pfad) {
    QUrl adresse = ziel.server;
    adresse.setPath(pfad);
    return adresse;
}

/// The text of the version file: asks once for a connection where there is none, and tries again. Empty:
/// there is none, or the user gave up (`abgebrochen`).
QByteArray Versionstext(QWidget* fenster, const Netzziel& ziel, bool& abgebrochen) {
    const QUrl adresse = Adresse(ziel, "/zinfolio.txt");
    QByteArray text = Abrufen(adresse, ziel.grenzen);
    if (text.size() >= kuerzesteVersionsdatei) return text;
    abgebrochen = !Bestaetigen(
        fenster,
        {.text = "Stellen Sie bitte eine Verbindung zum Internet her und drücken danach den OK- Button."});
    if (abgebrochen) return {};
    text = Abrufen(adresse, ziel.grenzen);
    return text.size() >= kuerzesteVersionsdatei ? text : QByteArray();
}

}  // namespace

Netzziel Herstellerserver() {
    return {.zeigen = [](const QUrl& adresse) { QDesktopServices::openUrl(adresse); }};
}

void SeiteZeigen(QWidget* fenster, const Netzziel& ziel, const QString& pfad) {
    bool abgebrochen = false;
    if (!Versionstext(fenster, ziel, abgebrochen).isEmpty()) ziel.zeigen(Adresse(ziel, pfad));
}

void NachNeuererVersionSehen(QWidget* fenster, const Netzziel& ziel) {
    bool abgebrochen = false;
    const QByteArray text = Versionstext(fenster, ziel, abgebrochen);
    if (abgebrochen) return;
    if (text.isEmpty()) {
        MeldungZeigen(fenster,
                      {.text = "Keine Internetverbindung geöffnet - Der Downloadversuch wird abgebrochen !"});
    } else if (!NenntNeuereVersion(text.toStdString())) {
        MeldungZeigen(fenster, {.text = "Sie haben die aktuellste Version. Es gibt kein neueres Update."},
                      Meldungsart::hinweis);
    } else if (Bestaetigen(fenster,
                           {.text = "Es gibt eine neuere Version. Der Download beginnt jetzt im Browser."})) {
        ziel.zeigen(Adresse(ziel, "/download/zinfolio.exe"));
    }
}

}  // namespace zinfolio
