#include "stapel/auftraege/staffelzeilen.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "kern/grund/rechenfehler.h"
#include "stapel/auftraege/satztext.h"
#include "stapel/json/zeilenpuffer.h"

namespace zinfolio {
namespace {

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
        Textfeld(satz.Zahlungstext.Getrimmt());
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

}  // namespace

void EndlichkeitPruefen(std::span<const Staffelsatz> zeilen) {
    for (const Staffelsatz& satz : zeilen) {
        const double summe =
            satz.Zahlbetrag + satz.Periodenzins + satz.Kumulzins + satz.Zinsgutschrift + satz.Kontostand;
        if (!std::isfinite(summe)) throw Rechenfehler("Eine Zeile der Staffel ist zu groß.");
    }
}

void StaffelzeilenSchreiben(std::span<const Staffelsatz> zeilen, JsonSchreiber& ergebnis) {
    Zeilenschreiber schreiber;
    ergebnis.ListeAuf();
    for (const Staffelsatz& satz : zeilen) {
        ergebnis.Fertiges(schreiber.Zeile(satz));
        ergebnis.Abfliessen();
    }
    ergebnis.ListeZu();
}

}  // namespace zinfolio
