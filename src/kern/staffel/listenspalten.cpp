#include "kern/staffel/listenspalten.h"

#include "kern/dates/zahlformat.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {
namespace {

std::string Zahlbetragszelle(const Staffelsatz& satz) {
    return Format(satz.Zahlbetrag, betragsmuster);
}

std::string Zahlungstextzelle(const Staffelsatz& satz) {
    return NachUtf8(satz.Zahlungstext.Getrimmt());
}

template <auto Mitglied>
std::string Zinssatzzelle(const Staffelsatz& satz) {
    return Format(satz.kondition.*Mitglied, konditionsmuster);
}

template <auto Mitglied>
std::string Linienzelle(const Staffelsatz& satz) {
    return Format(satz.kondition.*Mitglied, betragsmuster);
}

std::string Geltungszelle(const Staffelsatz& satz) {
    return satz.kondition.Zweitzinsart == 1 ? "Gesamtbetrag" : "Betrag über Limit";
}

}  // namespace

std::vector<Spalte<Staffelsatz>> Zahlungsspalten() {
    return {
        {.kopf = "Datum", .zelle = SatzdatumText, .art = Zellart::datum},
        {.kopf = "Betrag €", .zelle = Zahlbetragszelle},
        {.kopf = "Beschreibung",
         .zelle = Zahlungstextzelle,
         .art = Zellart::text,
         .ausrichtung = Zellausrichtung::links},
    };
}

std::vector<Spalte<Staffelsatz>> Konditionsspalten() {
    return {
        {.kopf = "Gültig ab", .zelle = SatzdatumText, .art = Zellart::datum},
        {.kopf = "1. Guthaben-\nzins %", .zelle = Zinssatzzelle<&Konditionen::Gutzins1>},
        {.kopf = "2. Guthaben-\nzins %", .zelle = Zinssatzzelle<&Konditionen::Gutzins2>},
        {.kopf = "ab Guthaben-\nsaldo €", .zelle = Linienzelle<&Konditionen::Guthabenlinie>},
        {.kopf = "1. Kredit-\nzins %", .zelle = Zinssatzzelle<&Konditionen::Kreditzins1>},
        {.kopf = "2. Kredit-\nzins %", .zelle = Zinssatzzelle<&Konditionen::Kreditzins2>},
        {.kopf = "ab Kredit-\nsaldo €", .zelle = Linienzelle<&Konditionen::Kreditlinie>},
        {.kopf = "2. Zinssatz für",
         .zelle = Geltungszelle,
         .art = Zellart::text,
         .ausrichtung = Zellausrichtung::links},
    };
}

}  // namespace zinfolio
