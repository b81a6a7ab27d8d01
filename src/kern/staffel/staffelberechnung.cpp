#include "kern/staffel/staffelberechnung.h"

#include <cmath>
#include <string>

#include "kern/grund/rechenfehler.h"

namespace zinfolio {
namespace {

/// What a row hands on to the next one. The conditions are those of the row that set them, since all rows
/// behind it hold copies.
struct Stand {
    const Konditionen* kondition = nullptr;
    double kontostand = 0;
    double kumulzins = 0;
};

/// What a row starts from: the conditions in force, its balance, the interest accrued before its own period,
/// and the interest it credits.
struct Zeilenanfang {
    const Konditionen* kondition;
    double kontostand;
    double angefallen;
    double gutschrift;
};

/// Before the first row nothing is booked; row 2, not yet calculated, stands in for what had accrued
/// (wanted).
Stand Anfangsstand(std::span<const Staffelsatz> saetze) {
    return {nullptr, 0, saetze.size() > 1 ? saetze[1].Kumulzins : 0};
}

/// The start of a row of a known kind.
Zeilenanfang Beginnen(const Staffelsatz& satz, const Stand& vorher) {
    if (satz.Zahlungsart == zahlungsart::kondition) {
        return {&satz.kondition, vorher.kontostand, vorher.kumulzins, satz.Zinsgutschrift};
    }
    if (!vorher.kondition) throw Rechenfehler("Die erste Zeile der Staffel ist keine Kondition.");
    if (satz.Zahlungsart == zahlungsart::zahlung) {
        return {vorher.kondition, vorher.kontostand + satz.Zahlbetrag, vorher.kumulzins, 0};
    }
    return {vorher.kondition, vorher.kontostand + vorher.kumulzins, 0, vorher.kumulzins};
}

Stand Abschliessen(Staffelsatz& satz, const Zeilenanfang& anfang, const Periodenergebnis& periode) {
    if (satz.Zahlungsart == zahlungsart::kondition) {
        satz.Zahlbetrag = 0;
    } else {
        satz.kondition = *anfang.kondition;
    }
    satz.Kontostand = anfang.kontostand;
    satz.Zinsgutschrift = anfang.gutschrift;
    satz.Zinstage = periode.tage;
    satz.Periodenzins = periode.zins;
    satz.Kumulzins = anfang.angefallen + periode.zins;
    return {anfang.kondition, satz.Kontostand, satz.Kumulzins};
}

bool IstBekannt(const Staffelsatz& satz) {
    return satz.Zahlungsart >= zahlungsart::zahlung && satz.Zahlungsart <= zahlungsart::zinstermin;
}

[[noreturn]] void Unlesbar(const Staffelsatz& satz, Verzinsungsmethode methode) {
    // A date that Tage30 cannot read has a fault of its own.
    if (ZaehltTage30(methode)) throw Tage30Fehler();
    throw Datumsfehler("Eine Zeile der Staffel hat kein Datum: »" + std::string(satz.Satzdatum.Roh()) + "«.");
}

/// The row's date.
inline Datum Stichtag(const Staffelsatz& satz, Verzinsungsmethode methode) {
    const auto datum = Datum::Versuche(satz.Satzdatum.Roh());
    if (!datum) Unlesbar(satz, methode);
    return *datum;
}

/// The end of a row's period: the date of the row behind it, for the last row its own.
inline Datum Periodenende(std::span<const Staffelsatz> saetze, std::size_t i, const Datum& von,
                          Verzinsungsmethode methode) {
    if (i + 1 == saetze.size() || saetze[i + 1].Satzdatum == saetze[i].Satzdatum) return von;
    const auto bis = Datum::VersucheNeben(saetze[i + 1].Satzdatum.Roh(), von, saetze[i].Satzdatum.Roh());
    if (!bis) Unlesbar(saetze[i + 1], methode);
    return *bis;
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
    Stand stand = Anfangsstand(saetze);
    Datum naechstes;
    bool gelesen = false;
    for (std::size_t i = 0; i < saetze.size(); ++i) {
        Staffelsatz& satz = saetze[i];
        if (!IstBekannt(satz)) {
            stand = {&satz.kondition, satz.Kontostand, satz.Kumulzins};
            gelesen = false;
            continue;
        }
        const Zeilenanfang anfang = Beginnen(satz, stand);
        const Zinsbasen basen = ZinsbasenWaehlen(anfang.kontostand, *anfang.kondition);
        const Datum von = gelesen ? naechstes : Stichtag(satz, methode);
        naechstes = Periodenende(saetze, i, von, methode);
        const Periodenergebnis periode = PeriodenZinsen(von, naechstes, methode, basen.erste, basen.zweite);
        if (!std::isfinite(anfang.kontostand) || !std::isfinite(anfang.angefallen + periode.zins))
            Ueberlauf(i);
        stand = Abschliessen(satz, anfang, periode);
        gelesen = true;
    }
}

}  // namespace zinfolio
