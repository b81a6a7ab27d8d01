#include "kern/staffel/konto.h"

#include "kern/staffel/dateienmischen.h"
#include "kern/staffel/meldungen.h"
#include "kern/staffel/staffelberechnung.h"
#include "kern/staffel/staffelsortierung.h"
#include "kern/staffel/zinstermine.h"

namespace zinfolio {
namespace {

Ablehnung AmKontodatum(std::string_view text) {
    return {std::string(text), "Kontodatum", std::string(register_::zinsverrechnung)};
}

/// The settlement rows, also those that were found before a fault ended the walk.
void zinsdatumszahlungsreihe(Konto& konto, Datum kontodatum) {
    konto.termine.clear();
    std::vector<Datum> termine;
    const auto uebernehmen = [&] {
        for (const Datum termin : termine)
            konto.termine.push_back(Zinsterminsatz(termin));
    };
    try {
        Zinstermine(DatumVon(konto.zahlungen.front()), kontodatum, konto.einstellungen.Zinsverrechnungsart,
                    termine);
    } catch (...) {
        uebernehmen();
        throw;
    }
    uebernehmen();
}

}  // namespace

std::optional<Ablehnung> rechenok2(const Konto& konto) {
    if (konto.einstellungen.Kontodatum.empty()) return AmKontodatum(meldung::kontodatumFehlt);
    return QuellenPruefen(konto.zahlungen, konto.konditionen);
}

std::optional<Ablehnung> rechnenok(const std::vector<Staffelsatz>& loesung) {
    if (loesung.size() == 1) return AmKontodatum(meldung::abschlussZuFrueh);
    if (loesung.empty() || loesung.front().Zahlungsart != zahlungsart::kondition) {
        return Ablehnung{std::string(meldung::keineGueltigenZinssaetze), "",
                         std::string(register_::zinssaetze)};
    }
    return std::nullopt;
}

std::optional<Ablehnung> KontoRechnen(Konto& konto) {
    konto.stufe = Kontostufe::eingabe;
    SortiereZahlungen(konto.zahlungen);
    SortiereKonditionen(konto.konditionen);
    if (auto ablehnung = rechenok2(konto)) return ablehnung;
    const Datum kontodatum = Datum::Lesen(konto.einstellungen.Kontodatum);
    konto.stufe = Kontostufe::termine;
    zinsdatumszahlungsreihe(konto, kontodatum);
    konto.stufe = Kontostufe::gemischt;
    const Staffelquellen quellen{konto.zahlungen, konto.konditionen, konto.termine};
    if (auto ablehnung = dateienmischen(quellen, kontodatum, konto.loesung)) return ablehnung;
    if (auto ablehnung = rechnenok(konto.loesung)) return ablehnung;
    konto.stufe = Kontostufe::gerechnet;
    Staffelberechnung(konto.loesung, konto.einstellungen.Verzinsungsmethode);
    return std::nullopt;
}

}  // namespace zinfolio
