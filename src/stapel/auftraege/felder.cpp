#include "stapel/auftraege/felder.h"

#include <algorithm>
#include <string_view>

#include "stapel/json/feldtafel.h"

namespace zinfolio {
namespace {

/// The index of one of `anzahl` list entries.
template <typename Liste>
Liste Listenindex(JsonWert& wert, std::size_t anzahl) {
    return static_cast<Liste>(wert.Ganzzahl(0, static_cast<std::int64_t>(anzahl) - 1));
}

struct Zahlung {
    Datumstext Datum;
    double Betrag = 0;
    std::string_view Text;
};

constexpr auto zahlungsfelder =
    Objektfelder(Pflichtfeld<&Zahlung::Datum>("Datum"), Pflichtfeld<&Zahlung::Betrag>("Betrag"),
                 Kannfeld<&Zahlung::Text>("Text"));

/// The same fields where only the date's numbers are wanted.
struct Reihenzahlung {
    zinfolio::Datum Datum;
    double Betrag = 0;
    std::string_view Text;
};

constexpr auto reihenzahlungsfelder =
    Objektfelder(Pflichtfeld<&Reihenzahlung::Datum>("Datum"), Pflichtfeld<&Reihenzahlung::Betrag>("Betrag"),
                 Kannfeld<&Reihenzahlung::Text>("Text"));

struct Konditionszeile {
    Datumstext Datum;
    float Gutzins1 = 0;
    float Gutzins2 = 0;
    double Guthabenlinie = 0;
    float Kreditzins1 = 0;
    float Kreditzins2 = 0;
    double Kreditlinie = 0;
    std::int16_t Zweitzinsart = 0;
};

constexpr auto konditionsfelder = Objektfelder(Pflichtfeld<&Konditionszeile::Datum>("Datum"),
                                               Pflichtfeld<&Konditionszeile::Gutzins1>("Gutzins1"),
                                               Pflichtfeld<&Konditionszeile::Gutzins2>("Gutzins2"),
                                               Pflichtfeld<&Konditionszeile::Guthabenlinie>("Guthabenlinie"),
                                               Pflichtfeld<&Konditionszeile::Kreditzins1>("Kreditzins1"),
                                               Pflichtfeld<&Konditionszeile::Kreditzins2>("Kreditzins2"),
                                               Pflichtfeld<&Konditionszeile::Kreditlinie>("Kreditlinie"),
                                               Pflichtfeld<&Konditionszeile::Zweitzinsart>("Zweitzinsart"));

/// Room for many more: the system gives memory only where it is used, and copying costs more.
void Wachsen(std::vector<Staffelsatz>& saetze) {
    constexpr std::size_t uebliche = 64;
    saetze.reserve(std::max(uebliche, 4 * saetze.capacity()));
}

}  // namespace

void FeldLesen(JsonWert& wert, Verzinsungsmethode& ziel) {
    ziel = Listenindex<Verzinsungsmethode>(wert, verzinsungsmethoden.size());
}

void FeldLesen(JsonWert& wert, Zinsverrechnungsart& ziel) {
    ziel = Listenindex<Zinsverrechnungsart>(wert, zinsverrechnungsarten.size());
}

void FeldLesen(JsonWert& wert, Abstandseinheit& ziel) {
    ziel = Listenindex<Abstandseinheit>(wert, abstandseinheiten.size());
}

void FeldLesen(JsonWert& wert, Finanzfaktor& ziel) {
    ziel = Listenindex<Finanzfaktor>(wert, finanzfaktoren.size());
}

void FeldLesen(JsonWert& wert, Rentenrhythmus& ziel) {
    ziel = Listenindex<Rentenrhythmus>(wert, rentenrhythmen.size());
}

void FeldLesen(JsonWert& wert, Rentenfaelligkeit& ziel) {
    ziel = Listenindex<Rentenfaelligkeit>(wert, rentenfaelligkeiten.size());
}

void FeldLesen(JsonWert& wert, Schrittweite& ziel) {
    ziel = Listenindex<Schrittweite>(wert, schrittweiten.size());
}

void FeldLesen(JsonWert& wert, Effektivmethode& ziel) {
    ziel = static_cast<Effektivmethode>(wert.Ganzzahl(1, static_cast<std::int64_t>(effektivmethoden.size())));
}

void FeldLesen(JsonWert& wert, Deltaeinheit& ziel) {
    const std::string_view text = wert.Text();
    if (text != "%" && text != "€") wert.Ungueltig("muss \"%\" oder \"€\" sein");
    ziel = text == "%" ? Deltaeinheit::prozent : Deltaeinheit::betrag;
}

void FeldLesen(JsonWert& wert, Zahlungsliste& ziel) {
    wert.Elemente([&](JsonWert& element) {
        Zahlung zahlung;
        ObjektLesen(element, zahlungsfelder, zahlung);
        if (ziel.saetze.size() == ziel.saetze.capacity()) Wachsen(ziel.saetze);
        ziel.saetze.push_back(Zahlungssatz(zahlung.Datum.text, zahlung.Betrag, zahlung.Text));
    });
}

void FeldLesen(JsonWert& wert, Konditionsliste& ziel) {
    wert.Elemente([&](JsonWert& element) {
        Konditionszeile zeile;
        ObjektLesen(element, konditionsfelder, zeile);
        ziel.saetze.push_back(Konditionssatz(
            zeile.Datum.text, {zeile.Gutzins1, zeile.Gutzins2, zeile.Guthabenlinie, zeile.Kreditzins1,
                               zeile.Kreditzins2, zeile.Kreditlinie, zeile.Zweitzinsart}));
    });
}

void FeldLesen(JsonWert& wert, Reihenliste& ziel) {
    wert.Elemente([&](JsonWert& element) {
        Reihenzahlung zahlung;
        ObjektLesen(element, reihenzahlungsfelder, zahlung);
        ziel.saetze.push_back(Reihenzeile(zahlung.Datum, zahlung.Betrag));
    });
}

}  // namespace zinfolio
