#include <algorithm>
#include <string>

#include "dateien/satzdatei.h"
#include "dates/zahlformat.h"
#include "finmath/kontoeffektivzins.h"
#include "staffel/konto.h"
#include "staffel/kontoansicht.h"
#include "staffel/rechenfehler.h"
#include "stapel/feldlesen.h"
#include "stapel/feldtafel.h"
#include "stapel/herleitungszeilen.h"
#include "stapel/kontofelder.h"
#include "stapel/rechnungen.h"
#include "stapel/staffelzeilen.h"

namespace zinfolio {
namespace {

/// A closing date, or the empty text that the form refuses.
struct Abschlussdatum {
    std::string text;
};

void FeldLesen(JsonWert& wert, Abschlussdatum& ziel) {
    ziel.text = wert.Text();
    if (!ziel.text.empty()) DatumVerlangen(wert, ziel.text);
}

/// The method by which the account's yield is wanted, if it is.
struct Effektivwunsch {
    std::optional<Effektivmethode> methode;
};

void FeldLesen(JsonWert& wert, Effektivwunsch& ziel) {
    FeldLesen(wert, ziel.methode.emplace());
}

struct Kontoauftrag {
    Zahlungsliste Zahlungen;
    Konditionsliste Konditionen;
    Abschlussdatum Kontodatum;
    zinfolio::Zinsverrechnungsart Zinsverrechnungsart{};
    zinfolio::Verzinsungsmethode Verzinsungsmethode{};
    Effektivwunsch Effektivmethode;
};

constexpr auto kontofelder =
    Auftragsfelder(Pflichtfeld<&Kontoauftrag::Zahlungen>("Zahlungen"),
                   Pflichtfeld<&Kontoauftrag::Konditionen>("Konditionen"),
                   Pflichtfeld<&Kontoauftrag::Kontodatum>("Kontodatum"),
                   Pflichtfeld<&Kontoauftrag::Zinsverrechnungsart>("Zinsverrechnungsart"),
                   Pflichtfeld<&Kontoauftrag::Verzinsungsmethode>("Verzinsungsmethode"),
                   Kannfeld<&Kontoauftrag::Effektivmethode>("Effektivmethode"));

void EffektivzinsSchreiben(const Kontoeffektivzins& effektivzins, JsonSchreiber& ergebnis) {
    ergebnis.Feld("ezins", effektivzins.ezins);
    ergebnis.Feld("Effektivergebnis", effektivzins.Effektivergebnis);
    HerleitungSchreiben("Herleitung", effektivzins.Herleitung(), ergebnis);
}

Konto KontoAus(Kontoauftrag&& auftrag) {
    Konto konto;
    konto.zahlungen = std::move(auftrag.Zahlungen.saetze);
    konto.konditionen = std::move(auftrag.Konditionen.saetze);
    konto.einstellungen = {auftrag.Zinsverrechnungsart, std::move(auftrag.Kontodatum.text),
                           auftrag.Verzinsungsmethode};
    return konto;
}

/// The texts of the three labels.
struct Summentexte {
    std::string Gesamtzahlungssumme;
    std::string Endvermögen;
    std::string Gesamtzinsen;
};

Summentexte SummentexteBilden(const Konto& konto) {
    const Kontosummen summen = KontosummenBilden(konto.loesung);
    return {Format(summen.Gesamtzahlungssumme, betragsmuster), Format(summen.Endvermögen, betragsmuster),
            Format(summen.Gesamtzinsen, betragsmuster)};
}

}  // namespace

std::optional<Ablehnung> RechneStaffel(JsonWert& auftrag, JsonSchreiber& ergebnis) {
    Kontoauftrag eingabe = AuftragLesen(auftrag, kontofelder);
    const std::optional<Effektivmethode> methode = eingabe.Effektivmethode.methode;
    Konto konto = KontoAus(std::move(eingabe));
    if (std::max(konto.zahlungen.size(), konto.konditionen.size()) > HoechstzahlSaetze) {
        throw Rechenfehler("Mehr als 32767 Zahlungen oder Konditionen.");
    }
    if (auto ablehnung = KontoRechnen(konto)) return ablehnung;
    const Summentexte summen = SummentexteBilden(konto);
    EndlichkeitPruefen(konto.loesung);
    if (!methode) ergebnis.Festlegen();
    ergebnis.Name("Zeilen");
    StaffelzeilenSchreiben(konto.loesung, ergebnis);
    ergebnis.Feld("Gesamtzahlungssumme", summen.Gesamtzahlungssumme);
    ergebnis.Feld("Endvermögen", summen.Endvermögen);
    ergebnis.Feld("Gesamtzinsen", summen.Gesamtzinsen);
    if (methode) EffektivzinsSchreiben(KontoEffektivzinsRechnen(konto.loesung, *methode), ergebnis);
    return std::nullopt;
}

}  // namespace zinfolio
