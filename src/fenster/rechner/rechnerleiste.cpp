// Menu and toolbar of a calculator, from its rows of data.

#include <QAction>
#include <QMenuBar>
#include <QToolBar>

#include "fenster/rechner/ablage.h"
#include "fenster/rechner/rechner.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/menuetaste.h"
#include "fenster/ui/symbol.h"

namespace zinfolio {

QAction* Rechner::NeuerBefehl(const Befehlszeile& zeile) {
    auto* befehl = new QAction(Symbol(QString::fromUtf8(zeile.symbol)), QString::fromUtf8(zeile.text), this);
    befehl->setObjectName(QString::fromUtf8(zeile.name));
    befehl->setToolTip(QString::fromUtf8(zeile.hinweis));
    befehl->setShortcut(zeile.taste);
    connect(befehl, &QAction::triggered, this,
            [this, wirkung = zeile.wirkung] { Geschuetzt(this, wirkung); });
    return befehl;
}

void Rechner::InLeiste(QToolBar& leiste, QAction* befehl, const char* name) {
    leiste.addAction(befehl);
    leiste.widgetForAction(befehl)->setObjectName(QString::fromUtf8(name));
}

void Rechner::LeisteAnlegen() {
    std::vector<Befehlszeile> zeilen = inhalt_.ablage->Befehle();
    zeilen.insert(zeilen.end(), inhalt_.befehle.begin(), inhalt_.befehle.end());
    QMenu* datei = menuBar()->addMenu("&Datei");
    QToolBar* leiste = addToolBar("Werkzeuge");
    leiste->setObjectName("Toolbar1");
    leiste->setMovable(false);
    leiste->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const Befehlszeile& zeile : zeilen) {
        QAction* befehl = NeuerBefehl(zeile);
        // The key counts in every view, also where menu and toolbar do not show the command.
        addAction(befehl);
        if (zeile.ort != Befehlszeile::Ort::leiste) datei->addAction(befehl);
        if (zeile.ort != Befehlszeile::Ort::menue) InLeiste(*leiste, befehl, zeile.name);
    }
    if (QMenu* eigenes = inhalt_.ablage->NeuesMenue()) datei->addMenu(eigenes);
    datei->addSeparator();
    auto* abstand = new QWidget;
    abstand->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    leiste->addWidget(abstand);
    if (QWidget* anzeige = inhalt_.ablage->NeueAnzeige()) {
        leiste->addWidget(anzeige);
        leiste->addSeparator();
    }
    FesteBefehleAnlegen(*datei, *leiste);
    MenueMitF10(*this);
}

void Rechner::FesteBefehleAnlegen(QMenu& datei, QToolBar& leiste) {
    QAction* impressum = NeuerBefehl(
        {.name = "ImpressumZeigen", .text = "Impressum", .hinweis = "Über das Programm", .wirkung = [this] {
             emit impressumVerlangt();
         }});
    InLeiste(leiste, impressum, "Velmora");
    QAction* ende = NeuerBefehl({"Programmende", "ende", "&Ende", "Zurück zum Startbildschirm",
                                 QKeySequence::Quit, [this] { close(); }});
    datei.addAction(ende);
    InLeiste(leiste, ende, ende_);
}

}  // namespace zinfolio
