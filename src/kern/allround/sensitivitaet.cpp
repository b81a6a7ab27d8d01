#include "kern/allround/sensitivitaet.h"

#include <algorithm>
#include <vector>

#include "kern/allround/mischzins.h"
#include "kern/dates/rundung.h"
#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"

namespace zinfolio {
namespace {

struct Wertzahlung {
    Datum datum;
    double betrag = 0;
};

/// The series with its dates read once for all rates.
std::vector<Wertzahlung> WertreiheLesen(std::span<const Staffelsatz> zahlungen) {
    std::vector<Wertzahlung> reihe;
    reihe.reserve(zahlungen.size());
    for (const Staffelsatz& satz : zahlungen)
        reihe.push_back({DatumVon(satz), satz.Zahlbetrag});
    return reihe;
}

/// The step at which a value turned to 0 or above, and the payment before it.
struct Wendeschritt {
    /// Counted from 1; 0: there was none.
    std::size_t platz = 0;
    double wert = 0;
    double vorwert = 0;
};

/// What one pass over the series yields.
struct Durchlauf {
    double zahlungssumme = 0;
    double wertsumme = 0;
    std::string StatDatum{keinDatum};
    Wendeschritt wende;
};

/// What a row may take over from the row before it.
struct Uebertrag {
    std::string InterpDatum{};
    std::string Jahre{};
    std::string Tage{};
};

Durchlauf Durchlaufen(std::span<const Wertzahlung> reihe, double zinssatz, Wertart art) {
    Mischzins zins(zinssatz);
    Durchlauf lauf;
    bool gedeckt = false;
    bool vorteilhaft = false;
    for (std::size_t i = 0; i < reihe.size(); ++i) {
        const Wertzahlung& zahlung = reihe[i];
        lauf.zahlungssumme = Endlich(lauf.zahlungssumme + zahlung.betrag);
        if (lauf.zahlungssumme >= 0 && !gedeckt) lauf.StatDatum = zahlung.datum.Text();
        gedeckt = lauf.zahlungssumme >= 0;
        const double vorwert = lauf.wertsumme;
        const double wert = art == Wertart::barwert
                                ? zahlung.betrag / zins.Faktor(Tage30(reihe.front().datum, zahlung.datum))
                                : zahlung.betrag * zins.Faktor(Tage30(zahlung.datum, reihe.back().datum));
        lauf.wertsumme = Endlich(RundeKaufmaennisch(vorwert + wert, 2));
        if (lauf.wertsumme >= 0 && !vorteilhaft) lauf.wende = {i + 1, lauf.wertsumme, vorwert};
        vorteilhaft = lauf.wertsumme >= 0;
    }
    return lauf;
}

void Interpolieren(std::span<const Wertzahlung> reihe, const Durchlauf& lauf, double vorwert,
                   Uebertrag& uebertrag) {
    const Wendeschritt& wende = lauf.wende;
    if (lauf.wertsumme < 0 || wende.platz < 2) {
        uebertrag.InterpDatum = keinDatum;
        return;
    }
    const Datum vorher = reihe[wende.platz - 2].datum;
    const int tage = reihe[wende.platz - 1].datum - vorher;
    if (tage <= 0) return;
    const double steigung = (wende.wert - wende.vorwert) / tage;
    const Datum datum = PlusGerundeteTage(vorher, -vorwert / steigung);
    uebertrag.InterpDatum = datum.Text();
    const Jahresteile spanne = InJahresteile(Tage30(reihe.front().datum, datum));
    uebertrag.Jahre = std::to_string(spanne.jahre);
    uebertrag.Tage = std::to_string(spanne.tage);
}

std::vector<std::string> Koepfe(Wertart art) {
    return {"Zins",
            "kumulierte Zahlungen",
            art == Wertart::barwert ? "kumulierter Barwert" : "kumulierter Vermögensendwert",
            "Statische Amortisation",
            "Dynamische Amortisation",
            "Jahre",
            "Tage"};
}

}  // namespace

std::optional<Ablehnung> SensitivitaetRechnen(std::span<const Staffelsatz> zahlungen,
                                              Sensitivitaetseingabe& eingabe, Zellentabelle& tabelle) {
    if (eingabe.MiZins.empty()) eingabe.MiZins = eingabe.Abzins;
    if (zahlungen.empty()) return OhneZahlungen(meldung::erstZahlungen);
    const std::vector<Wertzahlung> reihe = WertreiheLesen(zahlungen);
    const double schritt = zinsschritte.at(eingabe.Combo2);
    double zins = std::max(Zahlwert(eingabe.MiZins) - 5 * schritt, 0.0) - schritt;
    Uebertrag uebertrag;
    Zellentabelle neue(Koepfe(eingabe.Anzeigeart));
    neue.Reservieren(sensitivitaetszeilen);
    for (std::size_t k = 0; k < sensitivitaetszeilen; ++k) {
        zins += schritt;
        const std::string zinstext = Zahltext(zins);
        const Durchlauf lauf = Durchlaufen(reihe, Zahlwert(zinstext), eingabe.Anzeigeart);
        Interpolieren(reihe, lauf, eingabe.Vorwert, uebertrag);
        neue.Anhaengen(std::array{zinstext, Format(lauf.zahlungssumme, betragsmuster),
                                  Format(lauf.wertsumme, betragsmuster), lauf.StatDatum,
                                  uebertrag.InterpDatum, uebertrag.Jahre, uebertrag.Tage});
    }
    tabelle = std::move(neue);
    return std::nullopt;
}

}  // namespace zinfolio
