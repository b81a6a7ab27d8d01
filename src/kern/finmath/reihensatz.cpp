#include "kern/finmath/reihensatz.h"

#include <string>

#include "kern/dateien/satzbytes.h"

namespace zinfolio {

void Reihensatz::Schreiben(std::span<std::byte, Satzlaenge> ziel) const {
    Satzschreiber schreiber(ziel);
    schreiber.Text(Reihendatum);
    schreiber.Ganz16(Tag);
    schreiber.Ganz16(Monat);
    schreiber.Ganz16(Jahr);
    schreiber.Gleit8(Reihenbetrag);
    schreiber.Text(Reihenschluessel);
}

Reihensatz Reihensatz::Lesen(std::span<const std::byte, Satzlaenge> quelle) {
    Satzleser leser(quelle);
    Reihensatz satz;
    satz.Reihendatum = leser.Text<10>();
    satz.Tag = leser.Ganz16();
    satz.Monat = leser.Ganz16();
    satz.Jahr = leser.Ganz16();
    satz.Reihenbetrag = leser.Gleit8();
    satz.Reihenschluessel = leser.Text<10>();
    return satz;
}

void Ergebnissatz::Schreiben(std::span<std::byte, Satzlaenge> ziel) const {
    Satzschreiber schreiber(ziel);
    schreiber.Text(Ergebnisdatum);
    schreiber.Gleit8(Ergebnisbetrag);
    schreiber.Gleit4(Faktor);
    schreiber.Gleit8(Zeilenwert);
    schreiber.Gleit8(Summenwert);
    schreiber.Gleit8(Summenbetrag);
}

Ergebnissatz Ergebnissatz::Lesen(std::span<const std::byte, Satzlaenge> quelle) {
    Satzleser leser(quelle);
    Ergebnissatz satz;
    satz.Ergebnisdatum = leser.Text<10>();
    satz.Ergebnisbetrag = leser.Gleit8();
    satz.Faktor = leser.Gleit4();
    satz.Zeilenwert = leser.Gleit8();
    satz.Summenwert = leser.Gleit8();
    satz.Summenbetrag = leser.Gleit8();
    return satz;
}

Reihensatz Reihenzeile(std::string_view datumstext, double betrag) {
    Reihensatz satz = Reihenzeile(Datum::Lesen(datumstext), betrag);
    satz.Reihendatum = Festtext<10>::AusWindows1252(datumstext);
    satz.Reihenschluessel = Festtext<10>::AusWindows1252(Schluesseltext(datumstext));
    return satz;
}

void KeinReihendatum(const Reihensatz& satz) {
    throw Datumsfehler(std::to_string(satz.Tag) + "." + std::to_string(satz.Monat) + "." +
                       std::to_string(satz.Jahr) + " ist kein Datum des Kalenders.");
}

}  // namespace zinfolio
