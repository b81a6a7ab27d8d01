#include "kern/staffel/zahlungsimport.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <variant>

#include "kern/dates/fremdzahl.h"
#include "kern/dates/textteile.h"
#include "kern/dates/zahl.h"
#include "kern/grund/utf8.h"
#include "kern/staffel/bankspalten.h"

namespace zinfolio {
namespace {

using Zeilen = std::span<const Csvzeile>;

/// A table whose columns are known.
struct Banktabelle {
    std::vector<Csvzeile> zeilen;
    /// The first line behind the header; 0 where there is none.
    std::size_t erste = 0;
    Bankspalten spalten;
};

/// Lines that a bank writes before its header.
constexpr std::size_t hoechsterVorspann = 100;

template <typename Finden>
std::optional<Banktabelle> Suchen(std::vector<Csvzeile> zeilen, Finden finden, bool mitKopf) {
    for (std::size_t i = 0; i < std::min(zeilen.size(), hoechsterVorspann); ++i) {
        const auto spalten = finden(std::span<const std::string>(zeilen[i].felder));
        if (spalten) return Banktabelle{std::move(zeilen), mitKopf ? i + 1 : 0, *spalten};
    }
    return std::nullopt;
}

/// The table by the first separator under which it has a header line, else by the first under which a line
/// has date and amount. A text that one separator makes no table may be one by another.
Banktabelle TabelleFinden(std::string_view bytes) {
    constexpr std::string_view alleTrenner = ";\t,";
    std::optional<Csvfehler> fehler;
    for (const bool mitKopf : {true, false}) {
        for (const char trenner : alleTrenner) {
            try {
                auto zeilen = CsvLesen(bytes, trenner);
                auto tabelle =
                    Suchen(std::move(zeilen), mitKopf ? BankspaltenLesen : BankspaltenRaten, mitKopf);
                if (tabelle) return std::move(*tabelle);
            } catch (const Csvfehler& f) {
                if (!fehler) fehler = f;
            }
        }
    }
    if (fehler) throw *fehler;
    throw Csvfehler(1, "Keine Zeile nennt Spalten für Datum und Betrag.");
}

std::string_view Feld(const Csvzeile& zeile, std::optional<std::size_t> spalte) {
    return spalte && *spalte < zeile.felder.size() ? Getrimmt(zeile.felder[*spalte]) : std::string_view();
}

/// The comma, unless no amount needs it and some need the point.
Dezimalzeichen DezimalzeichenFinden(Zeilen zeilen, const Bankspalten& spalten) {
    bool punkt = false;
    for (const Csvzeile& zeile : zeilen) {
        for (const auto spalte : {spalten.betrag, spalten.soll, spalten.haben}) {
            const std::string_view feld = Feld(zeile, spalte);
            const auto deutsch = Fremdzahl(feld, Dezimalzeichen::komma);
            const auto englisch = Fremdzahl(feld, Dezimalzeichen::punkt);
            if (deutsch && !englisch) return Dezimalzeichen::komma;
            if (englisch && !deutsch) punkt = true;
        }
    }
    return punkt ? Dezimalzeichen::punkt : Dezimalzeichen::komma;
}

/// What was read, or why it cannot be taken.
template <typename T>
using OderGrund = std::variant<T, std::string>;

std::string Angefuehrt(std::string_view text) {
    constexpr std::size_t zeigbar = 40;
    return "\"" + Gekuerzt(text, zeigbar) + "\"";
}

/// Reads lines one by one.
class Zeilenleser {
  public:
    Zeilenleser(const Bankspalten& bankspalten, Dezimalzeichen zeichen)
        : spalten_(bankspalten), dezimalzeichen_(zeichen) {}

    [[nodiscard]] OderGrund<Staffelsatz> Lesen(const Csvzeile& zeile) const {
        const std::string_view datumsfeld = Feld(zeile, spalten_.datum);
        const auto datum = Bankdatum(datumsfeld);
        if (!datum)
            return datumsfeld.empty() ? "Das Datum fehlt." : Angefuehrt(datumsfeld) + " ist kein Datum.";
        const auto betrag = Betrag(zeile);
        if (const auto* grund = std::get_if<std::string>(&betrag)) return *grund;
        if (std::get<double>(betrag) == 0) return "Der Betrag ist 0.";
        const std::string_view waehrung = Feld(zeile, spalten_.waehrung);
        if (!waehrung.empty() && waehrung != "EUR" && waehrung != "€")
            return "Der Betrag hat die Währung " + Angefuehrt(waehrung) + ".";
        return Zahlungssatz(*datum, std::get<double>(betrag), Einzeilig(Feld(zeile, spalten_.text)));
    }

  private:
    /// The amount of the column for signed ones, or of debit and credit: one of them is empty or 0.
    [[nodiscard]] OderGrund<double> Betrag(const Csvzeile& zeile) const {
        if (spalten_.betrag) {
            const std::string_view kennzeichen = Feld(zeile, spalten_.kennzeichen);
            const bool soll = kennzeichen.starts_with('S') || kennzeichen.starts_with('s');
            return Zahl(Feld(zeile, spalten_.betrag), soll);
        }
        const std::string_view soll = Feld(zeile, spalten_.soll);
        const std::string_view haben = Feld(zeile, spalten_.haben);
        if (soll.empty()) return Zahl(haben, false);
        const auto abgang = Zahl(soll, true);
        if (haben.empty()) return abgang;
        const auto zugang = Zahl(haben, false);
        if (zugang == OderGrund<double>(0.0)) return abgang;
        if (abgang == OderGrund<double>(-0.0)) return zugang;
        return "Soll und Haben stehen nebeneinander.";
    }

    /// The number of a field; what is debit is negative, with or without a sign.
    [[nodiscard]] OderGrund<double> Zahl(std::string_view feld, bool soll) const {
        if (feld.empty()) return "Der Betrag fehlt.";
        const auto text = Fremdzahl(feld, dezimalzeichen_);
        const auto zahl = text ? ZahlVersuch(*text) : std::nullopt;
        if (!zahl) return Angefuehrt(feld) + " ist kein Betrag.";
        return soll ? -std::fabs(*zahl) : *zahl;
    }

    /// Line ends and tabs inside a field become blanks, several of them one.
    [[nodiscard]] static std::string Einzeilig(std::string_view text) {
        std::string einzeilig;
        for (const char zeichen : text) {
            const char gezeigtes = static_cast<unsigned char>(zeichen) < ' ' ? ' ' : zeichen;
            if (gezeigtes != ' ' || !einzeilig.ends_with(' ')) einzeilig += gezeigtes;
        }
        return einzeilig;
    }

    const Bankspalten& spalten_;
    Dezimalzeichen dezimalzeichen_;
};

Importausfall Ausfall(const Csvzeile& zeile, std::string_view grund) {
    constexpr std::size_t zeigbar = 80;
    std::string inhalt;
    for (const std::string& feld : zeile.felder)
        if (!feld.empty()) inhalt.append(inhalt.empty() ? "" : " | ").append(feld);
    return {zeile.nummer, Gekuerzt(inhalt, zeigbar), std::string(grund)};
}

void KoepfeNennen(const Banktabelle& tabelle, Zahlungsimport& ergebnis) {
    if (tabelle.erste == 0) return;
    const Csvzeile& kopf = tabelle.zeilen[tabelle.erste - 1];
    const Bankspalten& spalten = tabelle.spalten;
    ergebnis.datumskopf = Feld(kopf, spalten.datum);
    ergebnis.betragskopf = Feld(kopf, spalten.betrag);
    if (!spalten.betrag)
        ergebnis.betragskopf.append(Feld(kopf, spalten.soll)).append("/").append(Feld(kopf, spalten.haben));
    ergebnis.textkopf = Feld(kopf, spalten.text);
}

}  // namespace

Zahlungsimport ZahlungenEinlesen(std::string_view bytes, std::size_t hoechstens) {
    const Banktabelle tabelle = TabelleFinden(bytes);
    const Zeilen zeilen = Zeilen(tabelle.zeilen).subspan(tabelle.erste);
    const Zeilenleser leser(tabelle.spalten, DezimalzeichenFinden(zeilen, tabelle.spalten));
    Zahlungsimport ergebnis;
    KoepfeNennen(tabelle, ergebnis);
    for (const Csvzeile& zeile : zeilen) {
        const auto gelesen = leser.Lesen(zeile);
        if (const auto* grund = std::get_if<std::string>(&gelesen))
            ergebnis.ausfaelle.push_back(Ausfall(zeile, *grund));
        else if (ergebnis.zahlungen.size() >= hoechstens)
            ergebnis.ausfaelle.push_back(Ausfall(zeile, UeberHoechstzahl("Zahlungen hat kein Konto")));
        else
            ergebnis.zahlungen.push_back(std::get<Staffelsatz>(gelesen));
    }
    return ergebnis;
}

}  // namespace zinfolio
