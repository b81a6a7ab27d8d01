#include <string>

#include "stapel/auftraege/ergebnisse.h"
#include "stapel/auftraege/felder.h"
#include "stapel/auftraege/rechnungen.h"

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

constexpr auto staffelfelder =
    Auftragsfelder(Pflichtfeld<&Kontoauftrag::Zahlungen>("Zahlungen"),
                   Pflichtfeld<&Kontoauftrag::Konditionen>("Konditionen"),
                   Pflichtfeld<&Kontoauftrag::Kontodatum>("Kontodatum"),
                   Pflichtfeld<&Kontoauftrag::Zinsverrechnungsart>("Zinsverrechnungsart"),
                   Pflichtfeld<&Kontoauftrag::Verzinsungsmethode>("Verzinsungsmethode"),
                   Kannfeld<&Kontoauftrag::Effektivmethode>("Effektivmethode"));

Konto KontoAus(Kontoauftrag&& auftrag) {
    Konto konto;
    konto.zahlungen = std::move(auftrag.Zahlungen.saetze);
    konto.konditionen = std::move(auftrag.Konditionen.saetze);
    konto.einstellungen = {auftrag.Zinsverrechnungsart, std::move(auftrag.Kontodatum.text),
                           auftrag.Verzinsungsmethode};
    return konto;
}

std::optional<Ablehnung> RechneStaffel(Kontoauftrag&& auftrag, JsonSchreiber& ergebnis) {
    const std::optional<Effektivmethode> methode = auftrag.Effektivmethode.methode;
    Staffelergebnis gerechnetes{.konto = KontoAus(std::move(auftrag))};
    if (auto ablehnung = StaffelRechnen(gerechnetes, methode)) return ablehnung;
    StaffelergebnisSchreiben(gerechnetes, ergebnis);
    return std::nullopt;
}

}  // namespace

constexpr Rechnungsart rechnungStaffel = Auftragsart<staffelfelder, RechneStaffel>("staffel");

}  // namespace zinfolio
