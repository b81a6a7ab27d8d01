#pragma once
// Rows and accounts in tests, and how a failed check shows them.

#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "kern/grund/ablehnung.h"
#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

inline Staffelsatz Zahlung(std::string_view datum, double betrag, std::string_view text = "") {
    return Zahlungssatz(datum, betrag, text);
}

inline Staffelsatz Kondition(std::string_view datum, const Konditionen& kondition) {
    return Konditionssatz(datum, kondition);
}

inline Staffelsatz Termin(std::string_view datum) {
    return Zinsterminsatz(Datum::Lesen(datum));
}

/// One rate for every balance.
inline Konditionen Einheitszins(float satz) {
    return {.Gutzins1 = satz, .Gutzins2 = satz, .Kreditzins1 = satz, .Kreditzins2 = satz, .Zweitzinsart = 1};
}

/// 2 % credit and 3 % beyond 10 000; 8 % debit and 12 % beyond 500.
inline const Konditionen beispielkonditionen{.Gutzins1 = 2,
                                             .Gutzins2 = 3,
                                             .Guthabenlinie = 10000,
                                             .Kreditzins1 = 8,
                                             .Kreditzins2 = 12,
                                             .Kreditlinie = 500,
                                             .Zweitzinsart = 2};

/// The merged rows of the account that every reader can check: 15 000 from New Year to the end of March 2007.
inline std::vector<Staffelsatz> Beispielstaffel() {
    return {Kondition("01.01.2007", beispielkonditionen), Zahlung("01.01.2007", 15000), Termin("31.03.2007")};
}

/// A row whose date text is damaged; its key stays.
inline Staffelsatz MitDatumstext(Staffelsatz satz, std::string_view text) {
    satz.Satzdatum = Festtext<10>::AusWindows1252(text);
    return satz;
}

/// "1 01.02.2007 Miete": kind, date and description of each row.
inline std::vector<std::string> Uebersicht(std::span<const Staffelsatz> saetze) {
    std::vector<std::string> zeilen;
    for (const Staffelsatz& satz : saetze) {
        std::string zeile = std::to_string(satz.Zahlungsart) + " " + std::string(satz.Satzdatum.Getrimmt());
        if (!satz.Zahlungstext.Getrimmt().empty()) zeile += " " + std::string(satz.Zahlungstext.Getrimmt());
        zeilen.push_back(zeile);
    }
    return zeilen;
}

inline void PrintTo(const Konditionen& kondition, std::ostream* strom) {
    *strom << kondition.Gutzins1 << '/' << kondition.Gutzins2 << " ab " << kondition.Guthabenlinie << ", "
           << kondition.Kreditzins1 << '/' << kondition.Kreditzins2 << " ab " << kondition.Kreditlinie
           << ", Art " << kondition.Zweitzinsart;
}

inline void PrintTo(const Staffelsatz& satz, std::ostream* strom) {
    *strom << satz.Zahlungsart << " '" << satz.Zahlungstext.Getrimmt() << "' " << satz.Satzdatum.Getrimmt()
           << " (" << satz.Sortierschluessel.Getrimmt() << ") Betrag " << satz.Zahlbetrag << " [";
    PrintTo(satz.kondition, strom);
    *strom << "] Tage " << satz.Zinstage << " Zins " << satz.Periodenzins << " kumuliert " << satz.Kumulzins
           << " gutgeschrieben " << satz.Zinsgutschrift << " Stand " << satz.Kontostand;
}

inline void PrintTo(const Ablehnung& ablehnung, std::ostream* strom) {
    *strom << '"' << ablehnung.Meldung << "\" Feld \"" << ablehnung.Feld << "\" Register \""
           << ablehnung.Register << '"';
}

}  // namespace zinfolio
