#include "fenster/rechner/werteablage.h"

#include <QWidget>
#include <utility>

#include "fenster/ui/datumsfeld.h"

namespace zinfolio {

Werteablage::Werteablage(QWidget& fenster, Werteart art) : Ablage(fenster), art_(std::move(art)) {}

std::vector<Befehlszeile> Werteablage::Befehle() {
    return {
        {art_.taste, "speichern", "&Speichern", "Speichern", QKeySequence::Save, [this] { Speichern(); }}};
}

void Werteablage::Beginnen() {
    art_.laden();
    Fenster()->setWindowModified(false);
}

bool Werteablage::Speichern() {
    if (!DatumSteht(*Fenster()) || !Schreiben(art_.nichtGespeichert, art_.speichern)) return false;
    Fenster()->setWindowModified(false);
    return true;
}

}  // namespace zinfolio
