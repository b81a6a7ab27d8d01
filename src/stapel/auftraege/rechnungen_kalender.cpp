// Jobs on single dates, periods and numbers.

#include <string>

#include "kern/dates/datumpruefen.h"
#include "kern/dates/periodenzinsen.h"
#include "kern/dates/zahlformat.h"
#include "stapel/auftraege/listenfelder.h"
#include "stapel/auftraege/rechnungen.h"
#include "stapel/json/feldlesen.h"
#include "stapel/json/feldtafel.h"

namespace zinfolio {
namespace {

struct Tage {
    Datum Von;
    Datum Bis;
    zinfolio::Verzinsungsmethode Verzinsungsmethode{};
};

constexpr auto tagefelder = Auftragsfelder(Pflichtfeld<&Tage::Von>("Von"), Pflichtfeld<&Tage::Bis>("Bis"),
                                           Pflichtfeld<&Tage::Verzinsungsmethode>("Verzinsungsmethode"));

struct Periode {
    Datum Von;
    Datum Bis;
    zinfolio::Verzinsungsmethode Verzinsungsmethode{};
    double Betrag1 = 0;
    float Satz1 = 0;
    double Betrag2 = 0;
    float Satz2 = 0;
};

constexpr auto periodenfelder =
    Auftragsfelder(Pflichtfeld<&Periode::Von>("Von"), Pflichtfeld<&Periode::Bis>("Bis"),
                   Pflichtfeld<&Periode::Verzinsungsmethode>("Verzinsungsmethode"),
                   Pflichtfeld<&Periode::Betrag1>("Betrag1"), Pflichtfeld<&Periode::Satz1>("Satz1"),
                   Pflichtfeld<&Periode::Betrag2>("Betrag2"), Pflichtfeld<&Periode::Satz2>("Satz2"));

struct Eingabedatum {
    std::string_view Feld;
    Datum Heute;
    std::int16_t Laenge = 10;
};

constexpr auto eingabedatumfelder =
    Auftragsfelder(Pflichtfeld<&Eingabedatum::Feld>("Feld"), Pflichtfeld<&Eingabedatum::Heute>("Heute"),
                   Kannfeld<&Eingabedatum::Laenge>("Laenge"));

struct Formatierung {
    double Wert = 0;
    std::string_view Muster;
};

constexpr auto formatierungsfelder =
    Auftragsfelder(Pflichtfeld<&Formatierung::Wert>("Wert"), Pflichtfeld<&Formatierung::Muster>("Muster"));

}  // namespace

std::optional<Ablehnung> RechneTage(JsonWert& auftrag, JsonSchreiber& ergebnis) {
    const Tage tage = AuftragLesen(auftrag, tagefelder);
    ergebnis.Feld("Zinstage", Zinstage(tage.Von, tage.Bis, tage.Verzinsungsmethode));
    return std::nullopt;
}

std::optional<Ablehnung> RechnePeriodenzinsen(JsonWert& auftrag, JsonSchreiber& ergebnis) {
    const Periode periode = AuftragLesen(auftrag, periodenfelder);
    const Periodenergebnis zinsen =
        PeriodenZinsen(periode.Von, periode.Bis, periode.Verzinsungsmethode, {periode.Satz1, periode.Betrag1},
                       {periode.Satz2, periode.Betrag2});
    ergebnis.Feld("Zinstage", zinsen.tage);
    ergebnis.Feld("Zins", zinsen.zins);
    return std::nullopt;
}

std::optional<Ablehnung> RechneDatum(JsonWert& auftrag, JsonSchreiber& ergebnis) {
    const Eingabedatum eingabe = AuftragLesen(auftrag, eingabedatumfelder);
    const Datumspruefung pruefung = DatumPruefen(eingabe.Feld, eingabe.Heute, eingabe.Laenge);
    ergebnis.Feld("Feld", pruefung.feld);
    ergebnis.Feld("Abbruch", pruefung.abbruch);
    return std::nullopt;
}

std::optional<Ablehnung> RechneZahlformat(JsonWert& auftrag, JsonSchreiber& ergebnis) {
    const Formatierung formatierung = AuftragLesen(auftrag, formatierungsfelder);
    ergebnis.Feld("Text", Format(formatierung.Wert, Zahlmuster::Lesen(formatierung.Muster)));
    return std::nullopt;
}

}  // namespace zinfolio
