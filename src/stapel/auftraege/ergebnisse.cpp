#include "stapel/auftraege/ergebnisse.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "kern/dateien/satzdatei.h"
#include "kern/dates/textteile.h"
#include "kern/dates/zahlformat.h"
#include "kern/finmath/herleitung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/grund/rechenfehler.h"
#include "kern/grund/windows1252.h"
#include "stapel/json/zeilenpuffer.h"

namespace zinfolio {
namespace {

void OderNull(JsonSchreiber& schreiber, std::string_view name, std::string_view text) {
    schreiber.Name(name);
    text.empty() ? schreiber.Null() : schreiber.Wert(text);
}

/// True for ASCII text that stands in JSON as it is, without escapes.
constexpr bool IstSchlicht(std::string_view text) {
    unsigned fremd = 0;
    for (const char zeichen : text) {
        const auto byte = static_cast<unsigned char>(zeichen);
        fremd |= static_cast<unsigned>(byte < 0x20) | static_cast<unsigned>(byte >= 0x80) |
                 static_cast<unsigned>(byte == '"') | static_cast<unsigned>(byte == '\\');
    }
    return fremd == 0;
}

using Bitmuster = std::array<std::uint64_t, 7>;

/// Tells conditions apart that differ in the text only, 0 and -0.
Bitmuster BitmusterVon(const Konditionen& k) {
    const auto bits = [](double zahl) { return std::bit_cast<std::uint64_t>(zahl); };
    return {bits(k.Gutzins1),
            bits(k.Gutzins2),
            bits(k.Guthabenlinie),
            bits(k.Kreditzins1),
            bits(k.Kreditzins2),
            bits(k.Kreditlinie),
            static_cast<std::uint16_t>(k.Zweitzinsart)};
}

/// Writes the rows one by one. Most have the conditions of the row above, so the text of these is made once.
class Zeilenschreiber {
  public:
    std::string_view Zeile(const Staffelsatz& satz) {
        KonditionMerken(satz.kondition);
        puffer.Leeren();
        puffer.Fest("{\"Zahlungsart\":");
        puffer.Ganzzahl(satz.Zahlungsart);
        puffer.Fest(",\"Zahlungstext\":");
        // The condition of a savings plan has a text in its record, which is none of a payment.
        Textfeld(satz.Zahlungsart == zahlungsart::zahlung ? satz.Zahlungstext.Getrimmt()
                                                          : std::string_view());
        puffer.Fest(",\"Satzdatum\":");
        Textfeld(satz.Satzdatum.Getrimmt());
        puffer.Fest(",\"Zahlbetrag\":");
        puffer.Zahl(satz.Zahlbetrag);
        puffer.Text(konditionstext);
        puffer.Fest(",\"Zinstage\":");
        puffer.Ganzzahl(satz.Zinstage);
        puffer.Fest(",\"Periodenzins\":");
        puffer.Zahl(satz.Periodenzins);
        puffer.Fest(",\"Kumulzins\":");
        puffer.Zahl(satz.Kumulzins);
        puffer.Fest(",\"Zinsgutschrift\":");
        puffer.Zahl(satz.Zinsgutschrift);
        puffer.Fest(",\"Kontostand\":");
        puffer.Zahl(satz.Kontostand);
        puffer.Fest("}");
        return puffer.Inhalt();
    }

  private:
    void Textfeld(std::string_view windows1252) {
        if (IstSchlicht(windows1252)) {
            puffer.Fest("\"");
            puffer.Text(windows1252);
            puffer.Fest("\"");
            return;
        }
        std::string text;
        JsonSchreiber schreiber(text);
        SatztextSchreiben(windows1252, schreiber);
        puffer.Text(text);
    }

    void KonditionMerken(const Konditionen& kondition) {
        const Bitmuster neues = BitmusterVon(kondition);
        if (!konditionstext.empty() && neues == muster) return;
        muster = neues;
        konditionstext = ",";
        JsonSchreiber schreiber(konditionstext);
        schreiber.Feld("Gutzins1", kondition.Gutzins1);
        schreiber.Feld("Gutzins2", kondition.Gutzins2);
        schreiber.Feld("Guthabenlinie", kondition.Guthabenlinie);
        schreiber.Feld("Kreditzins1", kondition.Kreditzins1);
        schreiber.Feld("Kreditzins2", kondition.Kreditzins2);
        schreiber.Feld("Kreditlinie", kondition.Kreditlinie);
        schreiber.Feld("Zweitzinsart", kondition.Zweitzinsart);
    }

    Zeilenpuffer puffer;
    Bitmuster muster{};
    std::string konditionstext;
};

void EffektivzinsSchreiben(const Kontoeffektivzins& effektivzins, JsonSchreiber& schreiber) {
    schreiber.Feld("ezins", effektivzins.ezins);
    schreiber.Feld("Effektivergebnis", effektivzins.Effektivergebnis);
    HerleitungSchreiben("Herleitung", effektivzins.Herleitung(), schreiber);
}

}  // namespace

void AblehnungsfelderSchreiben(const Ablehnung& ablehnung, JsonSchreiber& schreiber) {
    schreiber.Feld("Meldung", ablehnung.Meldung);
    OderNull(schreiber, "Feld", ablehnung.Feld);
    OderNull(schreiber, "Register", ablehnung.Register);
}

void SatztextSchreiben(std::string_view windows1252, JsonSchreiber& ergebnis) {
    ergebnis.Wert(std::string_view(NachUtf8(windows1252)));
}

void ZelltexteSchreiben(std::string_view name, std::span<const std::vector<std::string>> zeilen,
                        JsonSchreiber& ergebnis) {
    ergebnis.Name(name);
    ergebnis.ListeAuf();
    for (const std::vector<std::string>& zeile : zeilen) {
        ergebnis.ListeAuf();
        for (const std::string& zelle : zeile)
            ergebnis.Wert(std::string_view(zelle));
        ergebnis.ListeZu();
    }
    ergebnis.ListeZu();
}

void EndlichkeitPruefen(std::span<const Staffelsatz> zeilen) {
    for (const Staffelsatz& satz : zeilen) {
        const Konditionen& k = satz.kondition;
        const std::array<double, 11> zahlen{
            satz.Zahlbetrag, satz.Periodenzins, satz.Kumulzins, satz.Zinsgutschrift,
            satz.Kontostand, k.Gutzins1,        k.Gutzins2,     k.Guthabenlinie,
            k.Kreditzins1,   k.Kreditzins2,     k.Kreditlinie,
        };
        if (!std::ranges::all_of(zahlen, [](double zahl) { return std::isfinite(zahl); }))
            throw Rechenfehler("Eine Zeile der Staffel hat eine Zahl, die keine ist.");
    }
}

void StaffelzeilenSchreiben(std::span<const Staffelsatz> zeilen, JsonSchreiber& ergebnis) {
    Zeilenschreiber schreiber;
    ergebnis.Name("Zeilen");
    ergebnis.ListeAuf();
    for (const Staffelsatz& satz : zeilen) {
        ergebnis.Fertiges(schreiber.Zeile(satz));
        ergebnis.Abfliessen();
    }
    ergebnis.ListeZu();
}

void HerleitungSchreiben(std::string_view name, std::span<const Ergebnissatz> zeilen,
                         JsonSchreiber& ergebnis) {
    ergebnis.Name(name);
    ergebnis.ListeAuf();
    Zeilenpuffer zeile;
    for (const Ergebnissatz& satz : zeilen) {
        // Dates and numbers: nothing in them needs an escape.
        std::string_view trenner = "[\"";
        for (const Herleitungszelle zelle : Herleitungszellen()) {
            zeile.Text(trenner);
            zeile.Geschrieben(betragsbreite, [&](char* ziel) { return zelle(satz, ziel); });
            trenner = "\",\"";
        }
        zeile.Fest("\"]");
        ergebnis.Fertiges(zeile.Inhalt());
        zeile.Leeren();
    }
    ergebnis.ListeZu();
}

void ReihenzinsSchreiben(std::span<const Reihensatz> reihe, Effektivmethode methode,
                         JsonSchreiber& ergebnis) {
    const Reihenauswertung rate = ReiheAuswerten(reihe, methode);
    const bool gefunden = !rate.Effektivzins.empty();
    ergebnis.Feld("Effektivergebnis", rate.Effektivzins);
    ergebnis.Feld("Effzins", Effektivzinsanzeige(rate.Effektivzins));
    ergebnis.Name("Zinssatz");
    gefunden&& rate.Zinssatz ? ergebnis.Wert(*rate.Zinssatz) : ergebnis.Null();
    ergebnis.Feld("Meld", Getrimmt(rate.Meldung));
    const auto zeilen =
        gefunden ? Herleitungszeilen(reihe, methode, rate.Effektivzins) : std::vector<Ergebnissatz>();
    HerleitungSchreiben("Zeilen", zeilen, ergebnis);
}

std::optional<Ablehnung> StaffelRechnen(Staffelergebnis& ergebnis, std::optional<Effektivmethode> methode) {
    Konto& konto = ergebnis.konto;
    if (std::max(konto.zahlungen.size(), konto.konditionen.size()) > HoechstzahlSaetze) {
        throw Rechenfehler(UeberHoechstzahl("Zahlungen oder Konditionen"));
    }
    if (auto ablehnung = KontoRechnen(konto)) return ablehnung;
    ergebnis.summen = KontosummenBilden(konto.loesung);
    EndlichkeitPruefen(konto.loesung);
    if (methode) ergebnis.effektivzins = KontoEffektivzinsRechnen(konto.loesung, *methode);
    return std::nullopt;
}

void StaffelergebnisSchreiben(const Staffelergebnis& ergebnis, JsonSchreiber& schreiber) {
    if (!ergebnis.effektivzins) schreiber.Festlegen();
    StaffelzeilenSchreiben(ergebnis.konto.loesung, schreiber);
    schreiber.Feld("Gesamtzahlungssumme", ergebnis.summen.Gesamtzahlungssumme);
    schreiber.Feld("Endvermögen", ergebnis.summen.Endvermögen);
    schreiber.Feld("Gesamtzinsen", ergebnis.summen.Gesamtzinsen);
    if (ergebnis.effektivzins) EffektivzinsSchreiben(*ergebnis.effektivzins, schreiber);
}

}  // namespace zinfolio
