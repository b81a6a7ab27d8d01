#include "kern/staffel/kontodateien.h"

#include <exception>

#include "kern/dateien/arbeitsordner.h"

namespace zinfolio {

Kontodateien::Kontodateien(std::filesystem::path ordner)
    : ordner_(std::move(ordner)),
      zahlungen_(ordner_, "Zinsstaffel1"),
      konditionen_(ordner_, "ZinsstaffelZins"),
      termine_(ordner_, "Zinsverrechnungstermine"),
      loesung_(ordner_, "Lösungsdatei") {}

void Kontodateien::Neu() const {
    zahlungen_.Schreiben({});
    konditionen_.Schreiben({});
    LoescheDatei(ordner_, "Zinsverrechnung");
}

void Kontodateien::Ablegen(const Konto& konto, const Konto& vorher) const {
    if (konto.zahlungen != vorher.zahlungen) zahlungen_.Schreiben(konto.zahlungen);
    if (konto.konditionen != vorher.konditionen) konditionen_.Schreiben(konto.konditionen);
    if (konto.stufe >= Kontostufe::termine) termine_.Schreiben(konto.termine);
    if (konto.stufe >= Kontostufe::gemischt) loesung_.Schreiben(konto.loesung);
}

std::optional<Ablehnung> Kontodateien::Rechnen(const Kontoeinstellungen& einstellungen, Konto& konto) const {
    konto = {.zahlungen = zahlungen_.Lesen(),
             .konditionen = konditionen_.Lesen(),
             .termine = {},
             .loesung = {},
             .einstellungen = einstellungen};
    const Konto vorher = konto;
    std::optional<Ablehnung> ablehnung;
    std::exception_ptr fehler;
    try {
        ablehnung = KontoRechnen(konto);
    } catch (...) {
        fehler = std::current_exception();
    }
    Ablegen(konto, vorher);
    if (fehler) std::rethrow_exception(fehler);
    return ablehnung;
}

}  // namespace zinfolio
