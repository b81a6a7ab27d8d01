#include "kern/staffel/kontobericht.h"

#include <array>
#include <span>
#include <string_view>
#include <utility>

#include "kern/bericht/spaltenformat.h"
#include "kern/bericht/zeilenformat.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

constexpr std::int16_t bezeichnungsspalte = 49;
constexpr std::int16_t wertspalte = 53;
/// The last line, counted from 1, that a condition may take.
constexpr std::size_t letzteKonditionszeile = 399;
constexpr Zahlmuster satzmuster = Zahlmuster::Lesen("###,#0.00000");

constexpr std::string_view konditionsueberschrift =
    "Zinsdaten                Guthabenzins1         Guthabenzins2          Kreditzins1          Kreditzins2";
/// The date, then from one right edge of that heading to the next.
constexpr int datumsspalte = 10;
constexpr std::array satzspalten{38 - datumsspalte, 60 - 38, 81 - 60, 102 - 81};

struct Ansichtsformat {
    std::string_view format;
    std::string_view koepfe;
    double punkte;
    int zoom;
};

/// By the number of the view.
constexpr std::array<Ansichtsformat, 4> ansichtsformate{{
    {"^+1.0in|^2.0in|^1.6in|^1.6in|^1.6in", "Datum|Vorgang|Zahlungsbetrag|Zinsen|Kontostand", 10, 75},
    {"^+1.0in|^2.0in|^1.6in|^1.6in|^1.6in|^1.6in",
     "Datum|Vorgang|Betrag (t)|Zinsen bis (t+1)|kumulierte Zinsen bis (t+1)|Kontostand", 10, 65},
    {"^+1.0in|^2.0in|^1.3in|^1.3in|^1.3in|^1.3in|^1.3in|^1.3in",
     "Datum|Vorgang|Betrag (t)|Tage bis (t+1)|Zinsen bis (t+1)|Zinsgutschrift t|kumulierte Zinsen bis (t+1)|"
     "Kontostand",
     10, 65},
    {"^+0.6in|^1.1in|^0.5in|^0.5in|^0.8in|^0.5in|^0.5in|^0.8in|^0.9in|^0.8in|^0.6in|^0.8in|^0.8in|^0.8in|"
     "^1.1in",
     "Datum|Vorgang|Zins1(+) bis (t+1)|Zins2(+) bis (t+1)|Guthabenlinie bis (t+1)|Zins1(-) bis (t+1)|"
     "Zins2(-) bis (t+1)|Kreditlinie bis (t+1)|Basis für Zinssatz2|Betrag (t)|Tage bis (t+1)|"
     "Zinsen bis (t+1)|Zinsgutschrift (t)|kumulierte Zinsen bis (t+1)|Kontostand (t)",
     7, 65},
}};

std::string Zeile(std::string_view bezeichnung, std::string_view wert) {
    return Zeilenformat({.Spalte1 = bezeichnungsspalte,
                         .Spalte2 = wertspalte,
                         .Bezeichnung = bezeichnung,
                         .Wert = wert,
                         .Ausrichtung = zeilenausrichtung::rechts,
                         .Zahlformat = zeilenzahlformat::unveraendert});
}

/// The line ends where the labels below it end.
std::string Projektzeile(const std::string& projekt) {
    return projekt.empty() ? std::string() : Rechtsbuendig(projekt, bezeichnungsspalte);
}

std::string Zinsdatenzeile(const Staffelsatz& satz) {
    const Konditionen& k = satz.kondition;
    const std::array saetze{k.Gutzins1, k.Gutzins2, k.Kreditzins1, k.Kreditzins2};
    std::string datum(satz.Satzdatum.Getrimmt());
    datum.resize(datumsspalte, ' ');
    std::string zeile = NachUtf8(datum);
    for (std::size_t i = 0; i < saetze.size(); ++i)
        zeile += Rechtsbuendig(Format(saetze[i], satzmuster) + " %", satzspalten[i]);
    return zeile;
}

void KonditionenAnfuegen(std::vector<std::string>& kopfblock, const std::vector<Staffelsatz>& konditionen) {
    for (const Staffelsatz& satz : konditionen) {
        if (kopfblock.size() == letzteKonditionszeile) {
            kopfblock.emplace_back("... und weitere Zinsdaten");
            return;
        }
        kopfblock.push_back(Zinsdatenzeile(satz));
    }
}

Berichtstabelle Ansichtstabelle(Kontoansicht ansicht,
                                std::shared_ptr<const std::vector<Staffelsatz>> loesung) {
    if (!loesung) loesung = std::make_shared<const std::vector<Staffelsatz>>();
    const Ansichtsformat& format = ansichtsformate.at(static_cast<std::size_t>(ansicht));
    std::vector<std::size_t> zeilen = Ansichtszeilen(ansicht, *loesung);
    const std::size_t anzahl = zeilen.size();
    return {
        .spalten = SpaltenformatLesen(format.format, format.koepfe),
        .kopfschrift = {.name = "Arial", .punkte = format.punkte, .fett = true},
        .schrift = {.name = "Arial", .punkte = format.punkte},
        .zeilen = anzahl,
        .zelle = [spalten = Ansichtsspalten(ansicht), zeilen = std::move(zeilen),
                  saetze = std::move(loesung)](
                     std::size_t zeile,
                     std::size_t spalte) { return spalten[spalte].zelle((*saetze)[zeilen[zeile]]); },
    };
}

}  // namespace

std::vector<std::string> Kontokopfblock(const Kontoberichtsdaten& daten) {
    const Kontoeinstellungen& einstellungen = daten.einstellungen;
    std::vector<std::string> kopfblock{
        Projektzeile(daten.projekt),
        Zeile("Zinsverrechnung",
              zinsverrechnungsarten.at(static_cast<std::size_t>(einstellungen.Zinsverrechnungsart))),
        Zeile("Verzinsungsmethode",
              verzinsungsmethoden.at(static_cast<std::size_t>(einstellungen.Verzinsungsmethode))),
        Zeile("Datum für Kontoabschluss/-berechnung", einstellungen.Kontodatum),
    };
    if (!daten.ezins.empty()) {
        kopfblock.push_back(Zeile("Effektivzinssatzberechnungsmethode", daten.effektivmethode));
        kopfblock.push_back(Zeile("Effektivzinssatz ", daten.ezins + " %"));
    }
    const Kontosummen summen =
        KontosummenBilden(daten.loesung ? std::span(*daten.loesung) : std::span<const Staffelsatz>());
    kopfblock.push_back(Zeile("Gesamtzahlungssumme", summen.Gesamtzahlungssumme));
    kopfblock.push_back(Zeile("Gesamtzinsen", summen.Gesamtzinsen));
    kopfblock.push_back(Zeile("Endvermögen", summen.Endvermögen));
    kopfblock.emplace_back(konditionsueberschrift);
    KonditionenAnfuegen(kopfblock, daten.konditionen);
    return kopfblock;
}

Bericht KontoberichtBilden(const Kontoberichtsdaten& daten) {
    Bericht bericht;
    bericht.titel = daten.projekt.empty() ? "Zinsstaffel" : "Zinsstaffel " + daten.projekt;
    bericht.kopfblock = Kontokopfblock(daten);
    bericht.tabelle = Ansichtstabelle(daten.ansicht, daten.loesung);
    bericht.zoom = ansichtsformate.at(static_cast<std::size_t>(daten.ansicht)).zoom;
    return bericht;
}

}  // namespace zinfolio
