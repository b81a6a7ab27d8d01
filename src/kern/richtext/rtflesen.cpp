#include "kern/richtext/rtflesen.h"

#include <algorithm>
#include <utility>

#include "kern/grund/windows1252.h"
#include "kern/richtext/rtfstand.h"
#include "kern/richtext/rtfwoerter.h"
#include "kern/richtext/rtfzerleger.h"

namespace zinfolio {
namespace {

constexpr std::string_view kennung = "{\\rtf";

void WortAusfuehren(Rtfstand& stand, const Rtfstueck& stueck) {
    const Steuerwort* wort = SteuerwortSuchen(stueck.text);
    const bool verzichtbar = std::exchange(stand.verzichtbar, false);
    if (verzichtbar && (!wort || !wort->gruppenwort)) {
        stand.Oben().ziel = Rtfziel::verwerfen;
    } else if (wort) {
        wort->wirkung(stand, stueck.zahl);
    }
}

void SymbolAusfuehren(Rtfstand& stand, char symbol) {
    constexpr char32_t festesLeerzeichen = 0xA0;
    constexpr char32_t festerBindestrich = 0x2011;
    switch (symbol) {
        case '\\':
        case '{':
        case '}':
            return stand.Text({&symbol, 1});
        case '*':
            stand.verzichtbar = true;
            return;
        case '~':
            return stand.Sonderzeichen(festesLeerzeichen);
        case '_':
            return stand.Sonderzeichen(festerBindestrich);
        case '\t':
            return stand.Sonderzeichen(U'\t');
        case '\r':
        case '\n':
            return stand.AbsatzEnde();
        default:
            return;
    }
}

/// Takes from a piece what only stands in for a character that was read. Gives whether something is left of
/// it.
bool ErsatzAbziehen(Rtfstand& stand, Rtfstueck& stueck) {
    if (stand.ersatzRest == 0) return true;
    if (stueck.art != Rtfstueck::Art::text) {
        --stand.ersatzRest;
        if (stueck.art == Rtfstueck::Art::wort && stueck.text == "bin") WortAusfuehren(stand, stueck);
        return false;
    }
    const auto anzahl = std::min(static_cast<std::size_t>(stand.ersatzRest), stueck.text.size());
    stand.ersatzRest -= static_cast<int>(anzahl);
    stueck.text.remove_prefix(anzahl);
    return !stueck.text.empty();
}

void InhaltAusfuehren(Rtfstand& stand, Rtfstueck stueck) {
    if (!ErsatzAbziehen(stand, stueck)) return;
    switch (stueck.art) {
        case Rtfstueck::Art::text:
            return stand.Text(stueck.text);
        case Rtfstueck::Art::byte:
            return stand.Byte(stueck.byte);
        case Rtfstueck::Art::wort:
            return WortAusfuehren(stand, stueck);
        default:
            return SymbolAusfuehren(stand, static_cast<char>(stueck.byte));
    }
}

/// Gives whether the document goes on.
bool Ausfuehren(Rtfstand& stand, const Rtfstueck& stueck) {
    const bool auf = stueck.art == Rtfstueck::Art::gruppeAuf;
    const bool zu = stueck.art == Rtfstueck::Art::gruppeZu;
    if (stueck.art == Rtfstueck::Art::ende || (zu && stand.gruppen.NurDieAeussere())) return false;
    if (auf || zu) {
        stand.ersatzRest = 0;
        stand.verzichtbar = false;
        auf ? stand.GruppeAuf() : stand.GruppeZu();
        return true;
    }
    InhaltAusfuehren(stand, stueck);
    return true;
}

/// Takes the first line from a text, with its end by CR LF, LF or CR.
std::string_view ZeileNehmen(std::string_view& text) {
    const std::size_t ende = std::min(text.find_first_of("\r\n"), text.size());
    const std::string_view zeile = text.substr(0, ende);
    text.remove_prefix(ende);
    const bool beide = text.starts_with("\r\n");
    text.remove_prefix(std::min<std::size_t>(beide ? 2 : 1, text.size()));
    return zeile;
}

Richtext ReinerText(std::string_view text) {
    Richtext ergebnis{.absaetze = {}};
    while (!text.empty()) {
        Absatz& absatz = ergebnis.absaetze.emplace_back();
        absatz.laeufe.emplace_back().text = NachUtf8(ZeileNehmen(text));
    }
    return Normalform(std::move(ergebnis));
}

}  // namespace

Richtext RtfLesen(std::string_view datei) {
    if (!datei.starts_with(kennung)) return ReinerText(datei);
    Rtfzerleger zerleger(datei.substr(1));
    Rtfstand stand;
    while (Ausfuehren(stand, zerleger.Naechstes()))
        zerleger.Ueberspringen(std::exchange(stand.binaerRest, 0));
    return stand.aufbau.Fertig(stand.Oben().absatz);
}

}  // namespace zinfolio
