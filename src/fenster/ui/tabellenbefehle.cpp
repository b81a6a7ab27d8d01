#include "fenster/ui/tabellenbefehle.h"

#include <QAction>
#include <functional>

#include "fenster/ui/ablagehinweis.h"
#include "fenster/ui/dateidialog.h"
#include "fenster/ui/geschuetzt.h"
#include "fenster/ui/tabelle.h"
#include "fenster/ui/tabellendokument.h"
#include "fenster/ui/tabellensuche.h"
#include "kern/bericht/tabellentext.h"
#include "kern/dateien/atomar.h"

namespace zinfolio {
namespace {

/// Tells spreadsheet programs that the text is UTF-8.
constexpr std::string_view bytefolgezeichen = "\xEF\xBB\xBF";

struct Tabellenbefehl {
    const char* name;
    const char* text;
    QKeySequence taste;
    std::function<void()> wirkung;
};

void Anlegen(Tabelle& tabelle, const Tabellenbefehl& befehl) {
    auto* aktion = new QAction(QString::fromUtf8(befehl.text), &tabelle);
    aktion->setObjectName(QString::fromUtf8(befehl.name));
    aktion->setShortcut(befehl.taste);
    aktion->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(aktion, &QAction::triggered, &tabelle,
                     [&tabelle, wirkung = befehl.wirkung] { GeschuetztMitWartezeiger(&tabelle, wirkung); });
    tabelle.addAction(aktion);
}

void Trennen(Tabelle& tabelle) {
    auto* strich = new QAction(&tabelle);
    strich->setSeparator(true);
    tabelle.addAction(strich);
}

/// Asks for a file and hands it to what writes it; where that fails, the user is told why.
void Speichern(Tabelle& tabelle, const Dateifrage& frage,
               const std::function<void(const std::filesystem::path&)>& schreiben) {
    const auto datei = DateiFragen(tabelle.window(), frage);
    if (!datei) return;
    const bool gespeichert = MitSchreibmeldung(
        tabelle.window(), [&] { schreiben(*datei); }, "Die Tabelle konnte nicht gespeichert werden.\n\n");
    if (gespeichert) Ablagehinweis::Zeigen(tabelle, *datei);
}

void AlsCsvSpeichern(Tabelle& tabelle) {
    Speichern(tabelle,
              {.titel = "Tabelle speichern",
               .filter = "CSV-Dateien (*.csv) |*.csv",
               .endung = "csv",
               .vorgabe = Namensvorschlag(tabelle, "Tabelle", "csv")},
              [&](const auto& datei) {
                  AtomarSchreiben(datei, std::string(bytefolgezeichen) + TabelleAlsCsv(tabelle.Inhalt()),
                                  Sicherung::Dauerhaft);
              });
}

void AlsDokumentSpeichern(Tabelle& tabelle) {
    Speichern(tabelle,
              {.titel = "Tabelle speichern",
               .filter = "Tabellendokumente (*.xlsx) |*.xlsx",
               .endung = "xlsx",
               .vorgabe = Namensvorschlag(tabelle, "Tabelle", "xlsx")},
              [&](const auto& datei) { TabellendokumentSchreiben(datei, tabelle.Inhalt()); });
}

}  // namespace

void TabellenbefehleAnlegen(Tabelle& tabelle) {
    auto* suche = new Tabellensuche(tabelle);
    tabelle.setContextMenuPolicy(Qt::ActionsContextMenu);
    Anlegen(tabelle,
            {"Kopieren", "&Kopieren", QKeySequence::Copy, [&] { tabelle.AuswahlKopieren(Kopfzeile::ohne); }});
    Anlegen(tabelle,
            {"KopierenMitKopf", "Kopieren mit &Überschriften", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C),
             [&] { tabelle.AuswahlKopieren(Kopfzeile::mit); }});
    Trennen(tabelle);
    Anlegen(tabelle, {"AlsCsv", "Als &CSV speichern …", {}, [&] { AlsCsvSpeichern(tabelle); }});
    if (TabellendokumentMoeglich())
        Anlegen(tabelle, {"AlsTabellendokument", "Als &Tabellendokument speichern …", {}, [&] {
                              AlsDokumentSpeichern(tabelle);
                          }});
    Trennen(tabelle);
    Anlegen(tabelle, {"Suchen", "&Suchen …", QKeySequence::Find, [suche] { suche->Oeffnen(); }});
    Anlegen(tabelle,
            {"Weitersuchen", "&Weitersuchen", QKeySequence(Qt::Key_F3), [suche] { suche->Weiter(1); }});
    Anlegen(tabelle, {"Zuruecksuchen", "Zurück suchen", QKeySequence(Qt::SHIFT | Qt::Key_F3),
                      [suche] { suche->Weiter(-1); }});
    Trennen(tabelle);
    Anlegen(tabelle, {"Groesser", "&Größer", QKeySequence::ZoomIn, [&] { tabelle.Vergroessern(1); }});
    Anlegen(tabelle, {"Kleiner", "K&leiner", QKeySequence::ZoomOut, [&] { tabelle.Vergroessern(-1); }});
    Anlegen(tabelle, {"Normalgroesse", "&Normale Größe", QKeySequence(Qt::CTRL | Qt::Key_0),
                      [&] { tabelle.NormaleGroesse(); }});
}

}  // namespace zinfolio
