#pragma once
// The records of valuation: a dated amount of a payment series, and a row of a value table.
//
// On disk 34 and 46 bytes, packed, little-endian, without a header; text is Windows-1252.
//
//   Reihensatz                        Ergebnissatz
//   offset width  field               offset width  field
//        0    10  Reihendatum              0    10  Ergebnisdatum
//       10     2  Tag                     10     8  Ergebnisbetrag
//       12     2  Monat                   18     4  Faktor
//       14     2  Jahr                    22     8  Zeilenwert
//       16     8  Reihenbetrag            30     8  Summenwert
//       24    10  Reihenschluessel        38     8  Summenbetrag

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "kern/dateien/festtext.h"
#include "kern/dates/datum.h"

namespace zinfolio {

/// A row of a payment series. Valuation reads the three numbers of the date and the amount; the texts serve
/// lists and reports.
struct Reihensatz {
    static constexpr std::size_t Satzlaenge = 10 + 2 + 2 + 2 + 8 + 10;

    Festtext<10> Reihendatum;
    std::int16_t Tag = 0;
    std::int16_t Monat = 0;
    std::int16_t Jahr = 0;
    /// Currency, as seen by the person who values the series: paid out negative, received positive.
    double Reihenbetrag = 0;
    Festtext<10> Reihenschluessel;

    void Schreiben(std::span<std::byte, Satzlaenge> ziel) const;
    [[nodiscard]] static Reihensatz Lesen(std::span<const std::byte, Satzlaenge> quelle);

    friend bool operator==(const Reihensatz&, const Reihensatz&) = default;
};
static_assert(Reihensatz::Satzlaenge == 34);

/// A row of `Vendwertberechnung` (value at the last date) or `Barwertberechnung` (value at the first date).
struct Ergebnissatz {
    static constexpr std::size_t Satzlaenge = 10 + 8 + 4 + 8 + 8 + 8;

    Festtext<10> Ergebnisdatum;
    /// The amount of the series' row, currency.
    double Ergebnisbetrag = 0;
    /// The factor between amount and value, 4-byte on purpose; the values are formed with the full factor.
    float Faktor = 0;
    /// The row's value at the target date, currency, rounded nowhere.
    double Zeilenwert = 0;
    /// Running sum of `Zeilenwert`, this row included.
    double Summenwert = 0;
    /// Running sum of `Ergebnisbetrag`, this row included.
    double Summenbetrag = 0;

    void Schreiben(std::span<std::byte, Satzlaenge> ziel) const;
    [[nodiscard]] static Ergebnissatz Lesen(std::span<const std::byte, Satzlaenge> quelle);

    friend bool operator==(const Ergebnissatz&, const Ergebnissatz&) = default;
};
static_assert(Ergebnissatz::Satzlaenge == 46);

/// A row of a series from a `Datumstext`; a text that is no date is a `Datumsfehler`.
[[nodiscard]] Reihensatz Reihenzeile(std::string_view datumstext, double betrag);

/// The same of a date, without the two texts, which valuation does not read.
[[nodiscard]] inline Reihensatz Reihenzeile(const Datum& datum, double betrag) {
    Reihensatz satz;
    satz.Tag = static_cast<std::int16_t>(datum.Tag());
    satz.Monat = static_cast<std::int16_t>(datum.Monat());
    satz.Jahr = static_cast<std::int16_t>(datum.Jahr());
    satz.Reihenbetrag = betrag;
    return satz;
}

/// The fault of a row whose numbers are no day.
[[noreturn]] void KeinReihendatum(const Reihensatz& satz);

/// The row's date by its three numbers; no such day is a `Datumsfehler`.
[[nodiscard]] inline Datum DatumVon(const Reihensatz& satz) {
    if (const auto datum = Datum::Aus(satz.Jahr, satz.Monat, satz.Tag)) return *datum;
    KeinReihendatum(satz);
}

}  // namespace zinfolio
