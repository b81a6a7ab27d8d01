#include "staffel/staffelberechnung.h"

#include <cmath>
#include <string>

#include "staffel/rechenfehler.h"

namespace zinfolio {
namespace {

/// What a row starts from: the conditions in force, the balance, the interest accrued before its own period,
/// and the interest it credits.
struct Zeilenanfang {
    const Konditionen* kondition = nullptr;
    double kontostand = 0;
    double angefallen = 0;
    double gutschrift = 0;
};

/// The start of row i. Its kind must be one of the three known ones.
Zeilenanfang Beginnen(std::span<const Staffelsatz> saetze, std::size_t i) {
    const Staffelsatz& satz = saetze[i];
    if (i == 0) {
        if (satz.Zahlungsart != zahlungsart::kondition) {
            throw Rechenfehler("Die erste Zeile der Staffel ist keine Kondition.");
        }
        // Row 2, not yet calculated, stands in for the row before the first (wanted).
        return {&satz.kondition, 0, saetze.size() > 1 ? saetze[1].Kumulzins : 0, satz.Zinsgutschrift};
    }
    const Staffelsatz& vorher = saetze[i - 1];
    switch (satz.Zahlungsart) {
        case zahlungsart::zahlung:
            return {&vorher.kondition, vorher.Kontostand + satz.Zahlbetrag, vorher.Kumulzins, 0};
        case zahlungsart::kondition:
            return {&satz.kondition, vorher.Kontostand, vorher.Kumulzins, satz.Zinsgutschrift};
        default:
            return {&vorher.kondition, vorher.Kontostand + vorher.Kumulzins, 0, vorher.Kumulzins};
    }
}

void Abschliessen(Staffelsatz& satz, const Zeilenanfang& anfang, const Periodenergebnis& periode) {
    if (satz.Zahlungsart == zahlungsart::kondition) satz.Zahlbetrag = 0;
    satz.kondition = *anfang.kondition;
    satz.Kontostand = anfang.kontostand;
    satz.Zinsgutschrift = anfang.gutschrift;
    satz.Zinstage = periode.tage;
    satz.Periodenzins = periode.zins;
    satz.Kumulzins = anfang.angefallen + periode.zins;
}

bool IstBekannt(const Staffelsatz& satz) {
    return satz.Zahlungsart >= zahlungsart::zahlung && satz.Zahlungsart <= zahlungsart::zinstermin;
}

/// The row's date. One that cannot be read is a fault of the day count, which `Tage30` answers with its own.
Datum Stichtag(const Staffelsatz& satz, Verzinsungsmethode methode) {
    if (const auto datum = Datum::Versuche(satz.Satzdatum.Roh())) return *datum;
    if (ZaehltTage30(methode)) throw Tage30Fehler();
    return DatumVon(satz);
}

[[noreturn]] void Ueberlauf(std::size_t i) {
    throw Rechenfehler("Überlauf in Zeile " + std::to_string(i + 1) + " der Staffel.");
}

}  // namespace

Zinsbasen ZinsbasenWaehlen(double kontostand, const Konditionen& kondition) {
    const bool soll = kontostand < 0;
    const float satz1 = soll ? kondition.Kreditzins1 : kondition.Gutzins1;
    const float satz2 = soll ? kondition.Kreditzins2 : kondition.Gutzins2;
    const double linie = soll ? kondition.Kreditlinie : kondition.Guthabenlinie;
    if (std::fabs(kontostand) < linie) return {{satz1, kontostand}, {satz1, 0}};
    if (kondition.Zweitzinsart == 1) return {{satz2, kontostand}, {satz2, 0}};
    const double grenze = soll ? -linie : linie;
    return {{satz1, grenze}, {satz2, kontostand - grenze}};
}

void Staffelberechnung(std::span<Staffelsatz> saetze, Verzinsungsmethode methode) {
    Datum naechstes;
    bool gelesen = false;
    for (std::size_t i = 0; i < saetze.size(); ++i) {
        Staffelsatz& satz = saetze[i];
        if (!IstBekannt(satz)) {
            gelesen = false;
            continue;
        }
        const Zeilenanfang anfang = Beginnen(saetze, i);
        const Zinsbasen basen = ZinsbasenWaehlen(anfang.kontostand, *anfang.kondition);
        const Datum von = gelesen ? naechstes : Stichtag(satz, methode);
        naechstes = i + 1 < saetze.size() ? Stichtag(saetze[i + 1], methode) : von;
        const Periodenergebnis periode = PeriodenZinsen(von, naechstes, methode, basen.erste, basen.zweite);
        const double kumulzins = anfang.angefallen + periode.zins;
        if (!std::isfinite(anfang.kontostand) || !std::isfinite(kumulzins)) Ueberlauf(i);
        Abschliessen(satz, anfang, periode);
        gelesen = true;
    }
}

}  // namespace zinfolio
