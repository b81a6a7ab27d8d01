#include "kern/staffel/kontobericht.h"

#include <array>
#include <span>
#include <string_view>

#include "kern/bericht/zeilenformat.h"
#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

/// The last line, counted from 1, that a condition may take.
constexpr std::size_t letzteKonditionszeile = 399;
constexpr Zahlmuster satzmuster = Zahlmuster::Lesen("###,#0.00000");

constexpr std::string_view konditionsueberschrift =
    "Zinsdaten                Guthabenzins1         Guthabenzins2          Kreditzins1          Kreditzins2";
/// The date, then from one right edge of that heading to the next.
constexpr int datumsbreite = 10;
constexpr std::array satzspalten{38 - datumsbreite, 60 - 38, 81 - 60, 102 - 81};

/// By the number of the view.
constexpr std::array<Ansichtsformat, 4> ansichtsformate{{
    {"^+1.0in|^2.0in|^1.6in|^1.6in|^1.6in", 10, 75},
    {"^+1.0in|^2.0in|^1.6in|^1.6in|^1.6in|^1.6in", 10, 65},
    {"^+1.0in|^2.0in|^1.3in|^1.3in|^1.3in|^1.3in|^1.3in|^1.3in", 10, 65},
    {"^+0.6in|^1.1in|^0.5in|^0.5in|^0.8in|^0.5in|^0.5in|^0.8in|^0.9in|^0.8in|^0.6in|^0.8in|^0.8in|^0.8in|"
     "^1.1in",
     7, 65},
}};

/// The line ends where the labels below it end.
std::string Projektzeile(const std::string& projekt) {
    return projekt.empty() ? std::string() : Rechtsbuendig(projekt, kopfseitenbezeichnung);
}

std::string Zinsdatenzeile(const Staffelsatz& satz) {
    const Konditionen& k = satz.kondition;
    const std::array saetze{k.Gutzins1, k.Gutzins2, k.Kreditzins1, k.Kreditzins2};
    std::string datum(satz.Satzdatum.Getrimmt());
    datum.resize(datumsbreite, ' ');
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

}  // namespace

Ansichtsformat AnsichtsformatVon(Kontoansicht ansicht) {
    return ansichtsformate.at(static_cast<std::size_t>(ansicht));
}

std::vector<std::string> Kontokopfblock(const Kontoberichtsdaten& daten) {
    const Kontoeinstellungen& einstellungen = daten.einstellungen;
    std::vector<std::string> kopfblock{
        Projektzeile(daten.projekt),
        Kopfseitenzeile("Zinsverrechnung", zinsverrechnungsarten.at(
                                               static_cast<std::size_t>(einstellungen.Zinsverrechnungsart))),
        Kopfseitenzeile("Verzinsungsmethode",
                        verzinsungsmethoden.at(static_cast<std::size_t>(einstellungen.Verzinsungsmethode))),
        Kopfseitenzeile("Datum für Kontoabschluss/-berechnung", einstellungen.Kontodatum),
    };
    if (!daten.ezins.empty()) {
        kopfblock.push_back(Kopfseitenzeile("Effektivzinssatzberechnungsmethode", daten.effektivmethode));
        kopfblock.push_back(Kopfseitenzeile("Effektivzinssatz ", daten.ezins + " %"));
    }
    const Kontosummen summen =
        KontosummenBilden(daten.loesung ? std::span(*daten.loesung) : std::span<const Staffelsatz>());
    kopfblock.push_back(Kopfseitenzeile("Gesamtzahlungssumme", summen.Gesamtzahlungssumme));
    kopfblock.push_back(Kopfseitenzeile("Gesamtzinsen", summen.Gesamtzinsen));
    kopfblock.push_back(Kopfseitenzeile("Endvermögen", summen.Endvermögen));
    kopfblock.emplace_back(konditionsueberschrift);
    KonditionenAnfuegen(kopfblock, daten.konditionen);
    return kopfblock;
}

Bericht KontoberichtBilden(const Kontoberichtsdaten& daten) {
    Bericht bericht;
    bericht.titel = daten.projekt.empty() ? "Zinsstaffel" : "Zinsstaffel " + daten.projekt;
    bericht.kopfblock = Kontokopfblock(daten);
    const Ansichtsformat format = AnsichtsformatVon(daten.ansicht);
    bericht.tabelle =
        BerichtstabelleBilden(AnsichtBilden(daten.ansicht, daten.loesung), format.spalten, format.punkte);
    bericht.zoom = format.zoom;
    return bericht;
}

}  // namespace zinfolio
