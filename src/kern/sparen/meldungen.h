#pragma once
// The texts of the family's messages, word for word as forms and batch command show them.

#include <string_view>

namespace zinfolio {

namespace register_ {
inline constexpr std::string_view daten = "Daten";
}  // namespace register_

namespace meldung {
inline constexpr std::string_view spardatumFehlt = "Bitte das 1. Spardatum eingeben.";
inline constexpr std::string_view anfangsdatumFehlt = "Bitte das Anfangsdatum eingeben";
inline constexpr std::string_view enddatumFehlt = "Bitte das Enddatum eingeben";
inline constexpr std::string_view zinssatzFehlt = "Bitte den Zinssatz eingeben";
inline constexpr std::string_view vermoegensendwertFehlt = "Bitte den Vermögensendwert eingeben";
inline constexpr std::string_view endvermoegenFehlt = "Bitte das Endvermögen eingeben";
inline constexpr std::string_view sparrateVorAnfang =
    "Das Datum der 1. Sparrate darf nicht vor dem Datum für das Anfangsvermögen liegen.";
inline constexpr std::string_view endeVorAnfang = "Das Enddatum muss nach dem Anfangsdatum liegen.";
inline constexpr std::string_view zuVieleJahre =
    "Zwischen End- und Anfangsdatum dürfen nur bis zu 150 Jahre liegen.";
inline constexpr std::string_view differenzZuGering =
    "Die Differenz zwischen Anfangs- und Endvermögen ist für die Berechnung zu gering.";
inline constexpr std::string_view anzahlNull =
    "Sie haben Dynamisierung gewählt. Die Anzahl der Zahlungen,nach denen eine Anpassung der Sparrate "
    "erfolgt, muss grösser als '0' sein.";
/// The blank behind is part of the text.
inline constexpr std::string_view stufenNull =
    "Sie haben Dynamisierung gewählt. Die Anzahl der Dynamisierungsstufen muss bei einer Begrenzug größer "
    "als '0' sein. ";
inline constexpr std::string_view maximumZuKlein =
    "Der maximale Sparbetrag muss größer sein als der Anfangssparbetrag";
inline constexpr std::string_view minimumZuGross =
    "Der minimale Sparbetrag muss kleiner sein als der Anfangssparbetrag";
inline constexpr std::string_view endeKleinerAlsAnfang =
    "Das Endvermögen darf nicht kleiner als das Anfangsvermögen sein.";

/// Around the text of `Anfdatum`; the misspelling is part of the text.
inline constexpr std::string_view zinssatzVorAnfang = "Weitere Zinssätze müssen nach dem Anfangsatum ";
inline constexpr std::string_view zinssatzVorAnfangEnde = " liegen.";
inline constexpr std::string_view zinsbetragFehlt = "Geben Sie den Zinsbetrag ein";
inline constexpr std::string_view leereZeilen = "Bitte zuerst die leeren Zeilen ausfüllen.";
inline constexpr std::string_view zuerstDatum = "Geben Sie zuerst das Datum ein.";

inline constexpr std::string_view keineLoesung =
    "Es wurde keine Lösung gefunden. Heben Sie die Begrenzungen für die Höhe der Sparraten auf oder "
    "Verändern Sie deren Werte.";
inline constexpr std::string_view keineZulaessigeLoesung = "Es wurde keine zulässige Lösung gefunden";

inline constexpr std::string_view unbenannt = "Neu / unbenannt";
}  // namespace meldung

}  // namespace zinfolio
