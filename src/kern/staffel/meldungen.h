#pragma once
// The texts of the account's messages, word for word as forms and batch command show them.

#include <string_view>

namespace zinfolio {

/// The captions of the tabs that a refusal can select.
namespace register_ {
inline constexpr std::string_view zahlungen = "Zahlungen";
inline constexpr std::string_view zinssaetze = "Zinssätze";
inline constexpr std::string_view zinsverrechnung = "Zinsverrechnung";
}  // namespace register_

namespace meldung {
inline constexpr std::string_view kontodatumFehlt = "Das Kontoschluss/-berechnungsdatum fehlt";
inline constexpr std::string_view keineZahlungen =
    "Es existieren keine Zahlungsdaten. Eine Berechnung ist nicht möglich";
inline constexpr std::string_view keineKonditionen =
    "Es existieren keine Zinsdaten. Eine Berechnung ist nicht möglich. Geben Sie im Register Zinssätze die "
    "Zinsdaten "
    "ein und beenden Sie die Eingabe durch Drücken des Buttons <Eingabe übernehmen>.";
inline constexpr std::string_view abschlussZuFrueh =
    "Das Datum für den Kontoabschluss liegt vor dem ersten Zahlungsdatum.";
inline constexpr std::string_view keineGueltigenZinssaetze =
    "Eine Berechnung ist nicht möglich, da für die erste Zahlung keine gültigen Zinssätze existieren, bzw. "
    "die "
    "Gültigkeit der Zinskonditionen erst nach dem ersten Zahlungsdatum beginnt.";

inline constexpr std::string_view stufenFehlen =
    "Sie haben Dynamisierung der Zahlungen angekreuzt, aber nicht die Anzahl der Stufen angegeben.";
inline constexpr std::string_view unvollstaendig = "Unvollständige Daten. Eine Übernahme ist nicht möglich.";

inline constexpr std::string_view zinssatzZuGross = "Maximaler Eingabewert = 999 ";
inline constexpr std::string_view datumDoppelt = "Das Datum existiert bereits.";
inline constexpr std::string_view guthabenlinieNull =
    "Achtung !: Die Guthabenlinie beträgt ´0´ . Somit kommt allein der Guthabenzins2 zur Anwendung.";
inline constexpr std::string_view kreditlinieNull =
    "Achtung !: Die Kreditlinie beträgt ´0´. Somit kommt allein der Kreditzins2 zur Anwendung.";

inline constexpr std::string_view zahlungenLoeschen =
    "Sollen die markierten Zahlungsreihen wirklich gelöscht werden ?";
inline constexpr std::string_view konditionenLoeschen =
    "Soll die markierte Zahlungsreihe wirklich gelöscht werden ?";
inline constexpr std::string_view titelLoeschen = "Datensatz löschen ?";
inline constexpr std::string_view alleLoeschen =
    "Es ist kein einzelner Datensatz markiert. Sollen alle Datensätze gelöscht werden ?";
inline constexpr std::string_view nichtsMarkiert = "Bitte den zu bearbeitenden Datensatz markieren !";
inline constexpr std::string_view titelMarkieren = "Datensatz markieren !";
}  // namespace meldung

}  // namespace zinfolio
