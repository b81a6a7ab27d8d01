#include "kern/dates/datum.h"

#include <array>
#include <charconv>
#include <cstring>
#include <utility>

#include "kern/dates/textteile.h"

namespace zinfolio {
namespace {

constexpr std::int64_t ersteTageszahl = Datum().Tageszahl();
static_assert(Datum::Aus(100, 1, 1)->Tageszahl() == ersteTageszahl);
constexpr std::int64_t letzteTageszahl = 3652364;
static_assert(Datum::Aus(9999, 12, 31)->Tageszahl() == letzteTageszahl);

[[noreturn]] void KalenderVerlassen() {
    throw Datumsfehler("Das Datum liegt außerhalb von 01.01.0100 bis 31.12.9999.");
}

std::string MitFuehrenderNull(std::string_view text) {
    return text.size() == 1 ? "0" + std::string(text) : std::string(text);
}

}  // namespace

void Datum::Unlesbar(std::string_view text) {
    throw Datumsfehler("»" + std::string(text) + "« ist kein Datum der Form tt.mm.jjjj.");
}

Datum Datum::AusTageszahl(std::int64_t tageszahl) {
    if (tageszahl < ersteTageszahl || tageszahl > letzteTageszahl) KalenderVerlassen();
    const auto tage = static_cast<int>(tageszahl);
    const int aera = tage / 146097;
    const int tagDerAera = tage % 146097;  // [0, 146096]
    const int jahrDerAera = (tagDerAera - tagDerAera / 1460 + tagDerAera / 36524 - tagDerAera / 146096) / 365;
    const int tagDesJahres =
        tagDerAera - (365 * jahrDerAera + jahrDerAera / 4 - jahrDerAera / 100);  // [0, 365]
    const int maerzmonat = (5 * tagDesJahres + 2) / 153;                         // [0, 11]
    const int tag = tagDesJahres - (153 * maerzmonat + 2) / 5 + 1;
    const int monat = maerzmonat < 10 ? maerzmonat + 3 : maerzmonat - 9;
    return {aera * 400 + jahrDerAera + (monat <= 2 ? 1 : 0), monat, tag};
}

std::string Datum::Text() const {
    std::string text = "00.00.0000";
    const auto setze = [&](std::size_t stelle, int wert) {
        std::memcpy(text.data() + stelle, &ziffernpaare[2 * static_cast<std::size_t>(wert)], 2);
    };
    setze(0, tag_);
    setze(3, monat_);
    setze(6, jahr_ / 100);
    setze(8, jahr_ % 100);
    return text;
}

Datum PlusTage(Datum datum, std::int64_t tage) {
    if (tage > letzteTageszahl || tage < -letzteTageszahl) KalenderVerlassen();
    return Datum::AusTageszahl(datum.Tageszahl() + tage);
}

Datum PlusMonate(Datum datum, std::int64_t monate) {
    constexpr std::int64_t spanne = 12 * Datum::letztesJahr;
    if (monate > spanne || monate < -spanne) KalenderVerlassen();
    const auto zaehler = static_cast<int>(12 * datum.Jahr() + (datum.Monat() - 1) + monate);
    if (zaehler < 12 * Datum::erstesJahr) KalenderVerlassen();
    const int jahr = zaehler / 12;
    const int monat = zaehler % 12 + 1;
    const auto ziel = Datum::Aus(jahr, monat, std::min(datum.Tag(), Monatslaenge(jahr, monat)));
    if (!ziel) KalenderVerlassen();
    return *ziel;
}

Datum PlusJahre(Datum datum, std::int64_t jahre) {
    if (jahre > Datum::letztesJahr || jahre < -Datum::letztesJahr) KalenderVerlassen();
    return PlusMonate(datum, 12 * jahre);
}

Datum Monatsletzter(Datum datum) {
    if (datum.Jahr() == Datum::letztesJahr && datum.Monat() == 12) KalenderVerlassen();
    return *Datum::Aus(datum.Jahr(), datum.Monat(), Monatslaenge(datum.Jahr(), datum.Monat()));
}

std::string DatumAusTeilen(std::string_view tag, std::string_view monat, std::string_view jahr) {
    const std::string_view jahrOhneRand = Getrimmt(jahr);
    const std::string jahrtausend = jahrOhneRand.size() == 2 ? "20" : "";
    return MitFuehrenderNull(Getrimmt(tag)) + "." + MitFuehrenderNull(Getrimmt(monat)) + "." + jahrtausend +
           std::string(jahrOhneRand);
}

double Datumsschluessel(std::string_view datumstext) {
    const std::string ziffern = Schluesseltext(datumstext);
    std::int64_t wert = 0;
    const auto [ende, fehler] = std::from_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert);
    if (fehler != std::errc() || ende != ziffern.data() + ziffern.size()) {
        throw Datumsfehler("»" + std::string(datumstext) + "« hat keinen Datumsschlüssel.");
    }
    return static_cast<double>(wert);
}

std::string Schluesseltext(std::string_view datumstext) {
    const std::string_view t = datumstext;
    if (t.size() == 10) return {t[6], t[7], t[8], t[9], t[3], t[4], t[0], t[1]};
    constexpr std::array<std::pair<std::size_t, std::size_t>, 3> teile{{{6, 4}, {3, 2}, {0, 2}}};
    std::string schluessel;
    for (const auto& [von, laenge] : teile) {
        if (von < datumstext.size()) schluessel += datumstext.substr(von, laenge);
    }
    return schluessel;
}

}  // namespace zinfolio
