#include "stapel/auftraege/allroundfelder.h"

#include "kern/allround/planansicht.h"
#include "kern/dateien/satzdatei.h"
#include "kern/grund/rechenfehler.h"
#include "kern/staffel/staffelsortierung.h"
#include "stapel/auftraege/felder.h"

namespace zinfolio {
namespace {

void KoepfeSchreiben(const Zellentabelle& tabelle, JsonSchreiber& ergebnis) {
    ergebnis.ListeAuf();
    for (const std::string& kopf : tabelle.Koepfe())
        ergebnis.Wert(std::string_view(kopf));
    ergebnis.ListeZu();
}

}  // namespace

void FeldLesen(JsonWert& wert, SortierteZahlungen& ziel) {
    Zahlungsliste liste;
    FeldLesen(wert, liste);
    ziel.saetze = std::move(liste.saetze);
    SortiereZahlungen(ziel.saetze);
}

void FeldLesen(JsonWert& wert, Wertart& ziel) {
    ziel = static_cast<Wertart>(wert.Ganzzahl(1, 2));
}

void FeldLesen(JsonWert& wert, Plantermine& ziel) {
    ziel = static_cast<Plantermine>(wert.Ganzzahl(0, static_cast<std::int64_t>(plantermine.size()) - 1));
}

void LaengePruefen(const SortierteZahlungen& zahlungen) {
    if (zahlungen.saetze.size() > HoechstzahlSaetze) throw Rechenfehler(UeberHoechstzahl("Zahlungen"));
}

void TabelleSchreiben(std::string_view name, const Zellentabelle& tabelle, JsonSchreiber& ergebnis) {
    ergebnis.Name(name);
    ergebnis.ListeAuf();
    for (std::size_t zeile = 0; zeile < tabelle.Zeilen(); ++zeile) {
        ergebnis.ListeAuf();
        for (const std::string& zelle : tabelle.Zeile(zeile))
            ergebnis.Wert(std::string_view(zelle));
        ergebnis.ListeZu();
    }
    ergebnis.ListeZu();
}

void WertergebnisSchreiben(const Wertergebnis& werte, JsonSchreiber& ergebnis) {
    TabelleSchreiben("Zeilen", werte.Tabelle, ergebnis);
    ergebnis.Feld("StatAmor", werte.Aussagen->StatAmor);
    ergebnis.Feld("DynAmor", werte.Aussagen->DynAmor);
    ergebnis.Feld("Dynamorinterpoliert", werte.Dynamorinterpoliert.value_or(""));
    ergebnis.Feld("Label12", werte.Aussagen->Label12);
    ergebnis.Feld("Label13", werte.Aussagen->Label13);
    ergebnis.Feld("Label14", werte.Aussagen->Label14);
    ergebnis.Feld("Frame1", werte.Frame1);
    ergebnis.Feld("Farbzeile", werte.Farbzeile);
}

void PlanSchreiben(const Tilgungsplan& plan, JsonSchreiber& ergebnis) {
    const Zellentabelle jahresweise = Zinsstaffelanzeige2(*plan.Kurztableau, plan.Nominalzins);
    const Zellentabelle unterjaehrig = Zinsstaffelanzeige1(*plan.Tableau, plan.Nominalzins);
    ergebnis.Feld("nomzins", plan.nomzins);
    ergebnis.Feld("effzinssatz", plan.effzinssatz);
    ergebnis.Feld("Nominalzins", plan.Nominalzins);
    TabelleSchreiben("Jahresweise", jahresweise, ergebnis);
    TabelleSchreiben("Unterjährig", unterjaehrig, ergebnis);
    ergebnis.Name("Spalten");
    ergebnis.ListeAuf();
    KoepfeSchreiben(jahresweise, ergebnis);
    KoepfeSchreiben(unterjaehrig, ergebnis);
    ergebnis.ListeZu();
}

}  // namespace zinfolio
