#include "fenster/rechner/ablage.h"

#include <QWidget>

#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/meldungsfenster.h"

namespace zinfolio {
namespace {

Antwort Speicherfrage(QWidget* fenster) {
    return FragenMitAbbruch(fenster, {.text = "Speichern ?", .titel = "Speichern"});
}

}  // namespace

Ablage::Ablage(QWidget& fenster) : QObject(&fenster), fenster_(&fenster) {}

QString Ablage::Exportstamm() const {
    return Name().replace('/', '-').trimmed();
}

bool Ablage::AufgebenGewollt() {
    if (!fenster_->isWindowModified()) return true;
    const Antwort antwort = Speicherfrage(fenster_);
    return antwort == Antwort::nein || (antwort == Antwort::ja && Speichern());
}

bool Ablage::VerlassenGewollt() {
    VorDerFrage();
    const Antwort antwort = Speicherfrage(fenster_);
    return antwort == Antwort::nein || (antwort == Antwort::ja && VorDemAbschied() && Speichern());
}

bool Ablage::Schreiben(const QString& vorspann, const std::function<void()>& operation) {
    return MitSchreibmeldung(fenster_, operation, vorspann + "\n\n");
}

}  // namespace zinfolio
