#include "kern/staffel/konditionseingabe.h"

#include <algorithm>

#include "kern/dates/datumpruefen.h"
#include "kern/dates/feldtext.h"
#include "kern/dates/zahl.h"
#include "kern/staffel/meldungen.h"

namespace zinfolio {
namespace {

constexpr double hoechsterZinssatz = 999;

Konditionspruefung Abgelehnt(std::string_view text) {
    return {Ablehnung{std::string(text), "Gültigdatum", ""}, false};
}

Konditionspruefung Gewarnt(std::string_view text, bool angenommenBisher) {
    return {Ablehnung{std::string(text), "", ""}, angenommenBisher};
}

bool HatDatum(std::span<const Staffelsatz> saetze, const std::string& datumstext) {
    return std::any_of(saetze.begin(), saetze.end(),
                       [&](const Staffelsatz& satz) { return SatzdatumText(satz) == datumstext; });
}

void LeereFelderFuellen(Konditionseingabe& e) {
    for (std::string* feld : {&e.Gutzins1, &e.Gutzins2, &e.Kreditzins1, &e.Kreditzins2, &e.Guthabenlinie,
                              &e.Kreditlinie, &e.Gültigdatum}) {
        if (feld->empty()) *feld = "0";
    }
}

float Zinssatz(const std::string& text) {
    return static_cast<float>(Zahl(text));
}

}  // namespace

bool ZinssatzZuGross(std::string_view text) {
    return !text.empty() && Zahlwert(text) > hoechsterZinssatz;
}

Konditionspruefung KonditionPruefen(Konditionseingabe& eingabe, std::span<const Staffelsatz> vorhandene,
                                    Doppelpruefung doppelt, bool angenommenBisher) {
    if (doppelt == Doppelpruefung::an && HatDatum(vorhandene, eingabe.Gültigdatum)) {
        return Abgelehnt(meldung::datumDoppelt);
    }
    LeereFelderFuellen(eingabe);
    if (DatumFehlt(eingabe.Gültigdatum)) return Abgelehnt(meldung::unvollstaendig);
    if (Zahl(eingabe.Guthabenlinie) == 0) return Gewarnt(meldung::guthabenlinieNull, angenommenBisher);
    if (Zahl(eingabe.Kreditlinie) == 0) return Gewarnt(meldung::kreditlinieNull, angenommenBisher);
    return {std::nullopt, true};
}

Staffelsatz KonditionErzeugen(const Konditionseingabe& eingabe) {
    return Konditionssatz(eingabe.Gültigdatum, {
                                                   .Gutzins1 = Zinssatz(eingabe.Gutzins1),
                                                   .Gutzins2 = Zinssatz(eingabe.Gutzins2),
                                                   .Guthabenlinie = Zahl(eingabe.Guthabenlinie),
                                                   .Kreditzins1 = Zinssatz(eingabe.Kreditzins1),
                                                   .Kreditzins2 = Zinssatz(eingabe.Kreditzins2),
                                                   .Kreditlinie = Zahl(eingabe.Kreditlinie),
                                                   .Zweitzinsart = eingabe.Zweitzinsart,
                                               });
}

Konditionseingabe KonditionZurEingabe(const Staffelsatz& satz) {
    const Konditionen& k = satz.kondition;
    return {
        .Gültigdatum = SatzdatumText(satz),
        .Gutzins1 = Feldtext(Zahltext(k.Gutzins1)),
        .Gutzins2 = Feldtext(Zahltext(k.Gutzins2)),
        .Guthabenlinie = Feldtext(Zahltext(k.Guthabenlinie)),
        .Kreditzins1 = Feldtext(Zahltext(k.Kreditzins1)),
        .Kreditzins2 = Feldtext(Zahltext(k.Kreditzins2)),
        .Kreditlinie = Feldtext(Zahltext(k.Kreditlinie)),
        .Zweitzinsart = k.Zweitzinsart == 0 ? std::int16_t{1} : k.Zweitzinsart,
    };
}

}  // namespace zinfolio
