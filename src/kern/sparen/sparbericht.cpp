#include "kern/sparen/sparbericht.h"

#include <array>

#include "kern/bericht/zeilenformat.h"
#include "kern/dates/zahlformat.h"
#include "kern/staffel/kontobericht.h"
#include "kern/staffel/kontodiagramm.h"

namespace zinfolio {
namespace {

/// The value of a row, with its unit where the report shows one.
std::string Wert(const Sparberichtsdaten& daten, const Formzeile& zeile) {
    const Sparfeld& feld = *zeile.feld;
    if (feld.zahl != nullptr)
        return std::string(feld.eintraege[static_cast<std::size_t>(daten.plan.*feld.zahl)]);
    const std::string& text = daten.plan.*feld.text;
    if (&feld == &sparfeld::Anzahl) return text + " Zahlungen";
    if (&feld == &sparfeld::Delta2) return text + " €";
    if (&feld != &sparfeld::Delta) return text;
    if (daten.form->dynamik == Dynamik::einfach) return text + " " + daten.plan.Command6;
    return text + std::string(daten.form->bericht.vorProzent) + "%";
}

/// Writes the lines of a plan's fields, in the order of the form.
class Feldzeilen {
  public:
    Feldzeilen(const Sparberichtsdaten& berichtsdaten, std::vector<std::string>& ziel)
        : daten(berichtsdaten), zeilen(ziel) {}

    void Schreiben() {
        const auto felder = daten.form->felder;
        for (std::size_t i = 0; i < felder.size(); ++i) {
            switch (felder[i].abschnitt) {
                case Sparabschnitt::dynamisierung:
                    Dynamisierung(felder[i]);
                    break;
                case Sparabschnitt::begrenzung:
                    // A tick, and the field that it opens behind it.
                    Begrenzung(felder[i], felder[i + 1]);
                    ++i;
                    break;
                default:
                    Feld(felder[i]);
            }
        }
    }

  private:
    void Feld(const Formzeile& zeile) {
        const Sparfeld* feld = zeile.feld;
        if (feld == &sparfeld::Check1 || feld == &sparfeld::Combo5) return;
        if (feld == &sparfeld::Vermendwert && daten.form->bericht.ohneZiel) return;
        zeilen.push_back(Kopfseitenzeile(zeile.beschriftung, Wert(daten, zeile)));
    }

    void Dynamisierung(const Formzeile& zeile) {
        if (daten.plan.Check2 != 1 || zeile.feld == &sparfeld::Command6) return;
        if (zeile.feld->art != Sparfeldart::haken) return Feld(zeile);
        zeilen.push_back(Zeilenformat({.Spalte1 = kopfseitenbezeichnung,
                                       .Bezeichnung = zeile.beschriftung,
                                       .Ausrichtung = zeilenausrichtung::nurBezeichnung}));
    }

    void Begrenzung(const Formzeile& haken, const Formzeile& feld) {
        if (daten.plan.Check2 != 1 || daten.plan.*haken.feld->zahl != 1) return;
        zeilen.push_back(Kopfseitenzeile(haken.beschriftung, daten.plan.*feld.feld->text));
    }

    const Sparberichtsdaten& daten;
    std::vector<std::string>& zeilen;
};

std::span<const Staffelsatz> Saetze(const Sparberichtsdaten& daten) {
    return daten.loesung ? std::span(*daten.loesung) : std::span<const Staffelsatz>();
}

/// The text columns of a row in the viewer: date, event, and three amounts under the ends of their captions.
std::string Textzeile(const Tabelleninhalt& tabelle, std::size_t zeile) {
    constexpr std::size_t datumsbreite = 19;
    constexpr std::size_t vorgangsbreite = 12;
    constexpr std::array betragsbreiten{48 - 31, 69 - 48, 90 - 69};
    std::string text = tabelle.zelle(zeile, 0);
    text.resize(datumsbreite, ' ');
    const std::string vorgang = tabelle.zelle(zeile, 1);
    text += vorgang;
    text.append(vorgang.size() < vorgangsbreite ? vorgangsbreite - vorgang.size() : 1, ' ');
    for (std::size_t i = 0; i < betragsbreiten.size(); ++i)
        text += Rechtsbuendig(tabelle.zelle(zeile, 2 + i), betragsbreiten[i]);
    return text;
}

constexpr Kontodiagrammtexte spardiagrammtexte{
    .einheiten = {.millionen = "kumulierte Zahlungen + Zinsen in Mio. €",
                  .tausend = "kumulierte Zahlungen + Zinsen in Tausend €",
                  .einzeln = "kumulierte Zahlungen + Zinsen in €"},
    .kontostand = "Zahlungen + Zinsen",
    .zahlungen = "Zahlungen",
    .vorJahr = "            ",
    .nachJahr = "",
};

}  // namespace

Ansichtsregel Sparansichtsregel(const Sparform& form) {
    if (form.dynamik == Dynamik::einfach) return {.vorgang = Zahlungsvorgang::zahlung};
    return {.vorgang = Zahlungsvorgang::text, .konditionenInKurzform = true};
}

Tabelleninhalt SparansichtBilden(const Sparform& form, Kontoansicht ansicht,
                                 std::shared_ptr<const std::vector<Staffelsatz>> loesung) {
    return AnsichtBilden(ansicht, std::move(loesung), Sparansichtsregel(form));
}

std::vector<std::string> Eingabeblock(const Sparberichtsdaten& daten) {
    std::vector<std::string> zeilen{Kopfseitenzeile("Mandant", daten.mandant)};
    if (daten.form->ziel == Sparziel::anfangskapital)
        zeilen.push_back(Kopfseitenzeile("Anfangskapital", Format(daten.kapital, betragsmuster)));
    Feldzeilen(daten, zeilen).Schreiben();
    if (daten.ezins) {
        zeilen.push_back(Kopfseitenzeile("Effektivzinssatzberechnungsmethode",
                                         effektivmethoden[static_cast<std::size_t>(daten.plan.Combo5)]));
        zeilen.push_back(Kopfseitenzeile("Effektivzinssatz", *daten.ezins + " %"));
    }
    if (daten.form->ziel == Sparziel::rendite)
        zeilen.push_back(Kopfseitenzeile("Nominalzins", daten.Nzins + " %"));
    const Kontosummen summen = KontosummenBilden(Saetze(daten), Sparansichtsregel(*daten.form));
    zeilen.push_back(Kopfseitenzeile("Gesamtzahlungssumme", summen.Gesamtzahlungssumme));
    zeilen.push_back(Kopfseitenzeile("Gesamtzinsen", summen.Gesamtzinsen));
    zeilen.push_back(Kopfseitenzeile("Endvermögen", summen.Endvermögen));
    return zeilen;
}

Bericht SparberichtBilden(const Sparberichtsdaten& daten) {
    Bericht bericht;
    bericht.titel = std::string(daten.form->titel) + " " + daten.mandant;
    bericht.kopfblock = Eingabeblock(daten);
    const Ansichtsformat format = AnsichtsformatVon(daten.ansicht);
    const std::string_view eigenes = daten.form->bericht.detailansicht3;
    const bool eigen = daten.ansicht == Kontoansicht::detailansicht3 && !eigenes.empty();
    bericht.tabelle = BerichtstabelleBilden(SparansichtBilden(*daten.form, daten.ansicht, daten.loesung),
                                            eigen ? eigenes : format.spalten, format.punkte);
    bericht.zoom = format.zoom;
    return bericht;
}

Textbericht SpartextBilden(const Sparberichtsdaten& daten) {
    Textbericht bericht{std::string(daten.form->titel), {"Eingabedaten :", ""}, "Zinfolio"};
    for (std::string& zeile : Eingabeblock(daten))
        bericht.zeilen.push_back(std::move(zeile));
    bericht.zeilen.insert(
        bericht.zeilen.end(),
        {"", "Ergebnisse :", "",
         "Datum              Vorgang        Zahlungsbetrag               Zinsen           Kontostand"});
    const Tabelleninhalt tabelle = SparansichtBilden(*daten.form, Kontoansicht::kurzform, daten.loesung);
    for (std::size_t zeile = 0; zeile < tabelle.zeilen; ++zeile)
        bericht.zeilen.push_back(Textzeile(tabelle, zeile));
    return bericht;
}

std::variant<Diagramm, Ablehnung> Spardiagramm(const Sparform& form, std::span<const Staffelsatz> loesung) {
    return Kontodiagramm(loesung, Ansichtszeilen(Kontoansicht::kurzform, loesung, Sparansichtsregel(form)),
                         spardiagrammtexte);
}

}  // namespace zinfolio
