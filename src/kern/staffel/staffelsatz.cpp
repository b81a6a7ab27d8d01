#include "kern/staffel/staffelsatz.h"

#include "kern/dateien/satzbytes.h"
#include "kern/grund/utf8.h"
#include "kern/grund/windows1252.h"

namespace zinfolio {

void Staffelsatz::Schreiben(std::span<std::byte, Satzlaenge> ziel) const {
    Satzschreiber schreiber(ziel);
    schreiber.Ganz16(Zahlungsart);
    schreiber.Text(Zahlungstext);
    schreiber.Text(Satzdatum);
    schreiber.Text(Sortierschluessel);
    schreiber.Gleit8(Zahlbetrag);
    schreiber.Gleit4(kondition.Gutzins1);
    schreiber.Gleit4(kondition.Gutzins2);
    schreiber.Gleit8(kondition.Guthabenlinie);
    schreiber.Gleit4(kondition.Kreditzins1);
    schreiber.Gleit4(kondition.Kreditzins2);
    schreiber.Gleit8(kondition.Kreditlinie);
    schreiber.Ganz16(kondition.Zweitzinsart);
    schreiber.Ganz32(Reservefeld);
    schreiber.Ganz32(Zinstage);
    schreiber.Gleit8(Periodenzins);
    schreiber.Gleit8(Kumulzins);
    schreiber.Gleit8(Zinsgutschrift);
    schreiber.Gleit8(Kontostand);
}

Staffelsatz Staffelsatz::Lesen(std::span<const std::byte, Satzlaenge> quelle) {
    Satzleser leser(quelle);
    Staffelsatz satz;
    satz.Zahlungsart = leser.Ganz16();
    satz.Zahlungstext = leser.Text<25>();
    satz.Satzdatum = leser.Text<10>();
    satz.Sortierschluessel = leser.Text<10>();
    satz.Zahlbetrag = leser.Gleit8();
    satz.kondition.Gutzins1 = leser.Gleit4();
    satz.kondition.Gutzins2 = leser.Gleit4();
    satz.kondition.Guthabenlinie = leser.Gleit8();
    satz.kondition.Kreditzins1 = leser.Gleit4();
    satz.kondition.Kreditzins2 = leser.Gleit4();
    satz.kondition.Kreditlinie = leser.Gleit8();
    satz.kondition.Zweitzinsart = leser.Ganz16();
    satz.Reservefeld = leser.Ganz32();
    satz.Zinstage = leser.Ganz32();
    satz.Periodenzins = leser.Gleit8();
    satz.Kumulzins = leser.Gleit8();
    satz.Zinsgutschrift = leser.Gleit8();
    satz.Kontostand = leser.Gleit8();
    return satz;
}

std::string SatzdatumText(const Staffelsatz& satz) {
    return NachUtf8(satz.Satzdatum.Getrimmt());
}

void SetzeDatum(Staffelsatz& satz, std::string_view datumstext) {
    satz.Satzdatum = Festtext<10>::AusWindows1252(datumstext);
    satz.Sortierschluessel = Festtext<10>::AusWindows1252(Schluesseltext(datumstext));
}

Staffelsatz Zahlungssatz(std::string_view datumstext, double betrag, std::string_view text) {
    Staffelsatz satz;
    satz.Zahlungsart = zahlungsart::zahlung;
    // The field's characters lie within these bytes, however long the text is.
    constexpr std::size_t hoechstens = 25 * hoechsteUtf8Laenge;
    satz.Zahlungstext = Festtext<25>::AusWindows1252(NachWindows1252(text.substr(0, hoechstens)));
    SetzeDatum(satz, datumstext);
    satz.Zahlbetrag = betrag;
    return satz;
}

Staffelsatz Konditionssatz(std::string_view datumstext, const Konditionen& kondition) {
    Staffelsatz satz;
    satz.Zahlungsart = zahlungsart::kondition;
    SetzeDatum(satz, datumstext);
    satz.kondition = kondition;
    return satz;
}

Staffelsatz Zinsterminsatz(Datum datum) {
    Staffelsatz satz;
    satz.Zahlungsart = zahlungsart::zinstermin;
    satz.Satzdatum = Festtext<10>::AusWindows1252(datum.Text());
    return satz;
}

}  // namespace zinfolio
