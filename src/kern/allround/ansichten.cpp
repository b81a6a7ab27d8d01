#include "kern/allround/ansichten.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string_view>
#include <vector>

#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

using enum Zellart;

constexpr std::array wertarten{datum, zahl, zahl, zahl, zahl, zahl, zahl, zahl};
constexpr std::array sensitivitaetsarten{zahl, zahl, zahl, datum, datum, zahl, zahl};
constexpr std::array jahresarten{datum, zahl, zahl, zahl, zahl, zahl};
constexpr std::array jahresplanarten{datum, zahl, zahl, zahl, zahl};
constexpr std::array planarten{datum, text, zahl, zahl, zahl};

constexpr std::size_t arbeitsspalte = 2;
constexpr double punkte = 10;
constexpr Zahlmuster titelmuster = Zahlmuster::Lesen("###,#0.000000");

struct Berichtsaufbau {
    std::string_view titel;
    std::string_view format;
    std::string_view koepfe;
};

constexpr std::string_view wertformat = "^+1.0in|^1.6in|^1.6in^|0.6in|^0.6in|^1.6in|^1.6in|^1.6in";
constexpr std::string_view planformat = "^1.0in|^1.6in^|^1.6in|^1.6in|^1.6in";

/// By `Anzeigeart`, from 1 on.
constexpr std::array aufbauten{
    Berichtsaufbau{"Barwert       ", wertformat,
                   "Datum|Zahlung|kumulierte Zahlungen|Jahre|Tage|Divisor|Barwert|kumulierter Barwert"},
    Berichtsaufbau{"Vermögensendwert       ", wertformat,
                   "Datum|Zahlung|kumulierte Zahlungen|Jahre|Tage|Faktor|Vermögensendwert|kum.Verm-Endwerte"},
    Berichtsaufbau{"Effektivzinssatz       ", "^+1.0in|^1.6in|^1.6in^|^1.6in|^1.6in|^1.6in",
                   "Datum|Zahlung|Faktor|Vermögensendwert|kum.Verm-Endwerte|kum.Zahlungen"},
    Berichtsaufbau{"Amortisationsdauer(Dynamische)     ",
                   "^+1.0in|^1.6in|^1.6in^|^1.6in|^1.6in|^1.0in|^1.0in",
                   "Zins|kumulierte Zahlungen| kumulierter Barwert |Statische Amortisation|"
                   "Dynamische Amortisation|Jahre|Tage"},
    Berichtsaufbau{"Tilgungstabelle  : ", planformat, "Datum|Auszahlungen|Zahlungen|Zinsen|Kontostand"},
    Berichtsaufbau{"Tilgungstabelle  : ", planformat, "Datum|Vorgang|Zahlung|Zinsen|Kontostand"},
};
constexpr std::string_view sensitivitaetskoepfeDesEndwerts =
    "Zins|kumulierte Zahlungen| kumulierter Vermögensendwert |Statische Amortisation|"
    "Dynamische Amortisation|Jahre|Tage";

constexpr std::string_view jahresformat = "^+1.0in|^1.6in|^1.6in|^1.6in|^1.6in";

std::string Zinszeile(std::string_view zins) {
    return "Zins : " + Format(Zahlwert(zins), titelmuster) + " %";
}

std::vector<std::string> Titelzeilen(const std::string& titel, const Allroundberichtsdaten& daten) {
    switch (daten.art) {
        case Anzeigeart::barwert:
        case Anzeigeart::endwert:
            return {titel, Zinszeile(daten.Abzins2)};
        case Anzeigeart::effektivzins:
            return {
                titel,
                daten.Effektivergebnis.empty() ? "Zins : keiner gefunden" : Zinszeile(daten.Effektivergebnis),
                "Berechnung nach " + daten.methode};
        case Anzeigeart::sensitivitaet:
            return {titel};
        case Anzeigeart::planJahresweise:
        case Anzeigeart::planUnterjaehrig:
            break;
    }
    return {titel, "Zinstermine      : " + daten.zinstermine, "Nominalzins      : " + daten.nomzins,
            "Effektivzinssatz : " + daten.effzinssatz};
}

Tabelleninhalt Inhalt(const Zellentabelle& tabelle, std::span<const Zellart> arten) {
    return InhaltBilden(std::make_shared<const Zellentabelle>(tabelle), arten);
}

/// Gives the columns the headers of the report, told with bars between them.
void KoepfeSetzen(Tabelleninhalt& inhalt, std::string_view koepfe) {
    for (Tabellenspalte& spalte : inhalt.spalten) {
        const std::size_t ende = std::min(koepfe.find('|'), koepfe.size());
        spalte.berichtskopf = koepfe.substr(0, ende);
        koepfe.remove_prefix(std::min(ende + 1, koepfe.size()));
    }
}

}  // namespace

Tabelleninhalt WertansichtBilden(const Wertergebnis& ergebnis) {
    if (ergebnis.Tabelle.Spalten() == 0) return {};
    Tabelleninhalt inhalt = Inhalt(ergebnis.Tabelle, wertarten);
    if (ergebnis.Farbzeile != 0) inhalt.hervorgehoben = ergebnis.Farbzeile - 1;
    return inhalt;
}

Tabelleninhalt SensitivitaetsansichtBilden(const Zellentabelle& tabelle) {
    return Inhalt(tabelle, sensitivitaetsarten);
}

Tabelleninhalt JahresansichtBilden(const Zellentabelle& tabelle) {
    Tabelleninhalt inhalt = Inhalt(tabelle, jahresarten);
    inhalt.spalten.erase(inhalt.spalten.begin() + arbeitsspalte);
    const auto ohneArbeitsspalte = [](auto funktion) {
        return [funktion](std::size_t zeile, std::size_t spalte) {
            return funktion(zeile, spalte < arbeitsspalte ? spalte : spalte + 1);
        };
    };
    inhalt.zelle = ohneArbeitsspalte(inhalt.zelle);
    inhalt.zahl = ohneArbeitsspalte(inhalt.zahl);
    return inhalt;
}

Tabelleninhalt PlanansichtBilden(const Zellentabelle& tabelle, Planansicht ansicht) {
    if (ansicht == Planansicht::jahresweise) return Inhalt(tabelle, jahresplanarten);
    return Inhalt(tabelle, planarten);
}

Bericht AllroundberichtBilden(const Allroundberichtsdaten& daten) {
    const Berichtsaufbau& aufbau = aufbauten.at(static_cast<std::size_t>(daten.art) - 1);
    const bool endwerte = daten.art == Anzeigeart::sensitivitaet && daten.wertart == Wertart::endwert;
    Bericht bericht;
    bericht.titel = std::string(aufbau.titel) + daten.projekt;
    bericht.titelzeilen = Titelzeilen(bericht.titel, daten);
    Tabelleninhalt inhalt = daten.tabelle;
    KoepfeSetzen(inhalt, endwerte ? sensitivitaetskoepfeDesEndwerts : aufbau.koepfe);
    bericht.tabelle = BerichtstabelleBilden(inhalt, aufbau.format, punkte);
    return bericht;
}

Bericht JahresberichtBilden(const std::string& projekt, const std::string& Abzins2,
                            const Tabelleninhalt& tabelle) {
    Bericht bericht;
    bericht.titel = "Barwerttabelle für alle Jahre       " + projekt;
    bericht.titelzeilen = {bericht.titel, Zinszeile(Abzins2)};
    bericht.tabelle = BerichtstabelleBilden(tabelle, jahresformat, punkte);
    return bericht;
}

}  // namespace zinfolio
