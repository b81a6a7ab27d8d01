#pragma once
// The one record of the account: payments, conditions, settlement dates and the calculated statement.
//
// On disk 129 bytes, packed, little-endian; text is Windows-1252, left-justified and padded with blanks once
// assigned, zero bytes before.
//
//   offset width  field               offset width  field
//        0     2  Zahlungsart             79     8  Kreditlinie
//        2    25  Zahlungstext            87     2  Zweitzinsart
//       27    10  Satzdatum               89     4  Reservefeld
//       37    10  Sortierschluessel       93     4  Zinstage
//       47     8  Zahlbetrag              97     8  Periodenzins
//       55     4  Gutzins1               105     8  Kumulzins
//       59     4  Gutzins2               113     8  Zinsgutschrift
//       63     8  Guthabenlinie          121     8  Kontostand
//       71     4  Kreditzins1
//       75     4  Kreditzins2

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "kern/dateien/festtext.h"
#include "kern/dates/datum.h"

namespace zinfolio {

/// What a row is: its stored `Zahlungsart`. Damaged files may hold other numbers.
namespace zahlungsart {
inline constexpr std::int16_t zahlung = 1;
inline constexpr std::int16_t kondition = 2;
inline constexpr std::int16_t zinstermin = 3;
}  // namespace zahlungsart

/// The conditions in force from a row on. Rates are percent per year, 4-byte on purpose; limits are currency,
/// `Kreditlinie` the positive amount of a debit balance.
struct Konditionen {
    float Gutzins1 = 0;
    float Gutzins2 = 0;
    double Guthabenlinie = 0;
    float Kreditzins1 = 0;
    float Kreditzins2 = 0;
    double Kreditlinie = 0;
    /// 1: the second rate applies to the whole balance; any other value: only to the part beyond the limit.
    std::int16_t Zweitzinsart = 0;

    friend bool operator==(const Konditionen&, const Konditionen&) = default;
};

/// A row as a file holds it. Texts stay raw bytes, so that a damaged row survives reading and writing
/// unchanged.
struct Staffelsatz {
    static constexpr std::size_t Satzlaenge =
        2 + 25 + 10 + 10 + 8 + 4 + 4 + 8 + 4 + 4 + 8 + 2 + 4 + 4 + 8 + 8 + 8 + 8;

    std::int16_t Zahlungsart = 0;
    Festtext<25> Zahlungstext;
    Festtext<10> Satzdatum;
    Festtext<10> Sortierschluessel;
    double Zahlbetrag = 0;
    Konditionen kondition;
    std::int32_t Reservefeld = 0;
    /// Days from this row to the next one.
    std::int32_t Zinstage = 0;
    /// Interest from this row to the next one, currency, two decimals.
    double Periodenzins = 0;
    /// Interest accrued since the last settlement, this row's included.
    double Kumulzins = 0;
    /// Interest credited to the balance at this row.
    double Zinsgutschrift = 0;
    /// Balance right after this row.
    double Kontostand = 0;

    void Schreiben(std::span<std::byte, Satzlaenge> ziel) const;
    [[nodiscard]] static Staffelsatz Lesen(std::span<const std::byte, Satzlaenge> quelle);

    friend bool operator==(const Staffelsatz&, const Staffelsatz&) = default;
};
static_assert(Staffelsatz::Satzlaenge == 129);

/// A payment row: date text (as it stands), amount, and the user's description (UTF-8, cut to 25 characters).
[[nodiscard]] Staffelsatz Zahlungssatz(std::string_view datumstext, double betrag, std::string_view text);

/// A condition row that is valid from the date on.
[[nodiscard]] Staffelsatz Konditionssatz(std::string_view datumstext, const Konditionen& kondition);

/// A settlement row; every field but kind and date stays unassigned.
[[nodiscard]] Staffelsatz Zinsterminsatz(Datum datum);

/// The row's date; a damaged text is a `Datumsfehler`.
[[nodiscard]] inline Datum DatumVon(const Staffelsatz& satz) {
    return Datum::Lesen(satz.Satzdatum.Roh());
}

/// Sets date text and sort key of a row.
void SetzeDatum(Staffelsatz& satz, std::string_view datumstext);

/// The date of a row as it is written (UTF-8), without blanks around it; it may be damaged.
[[nodiscard]] std::string SatzdatumText(const Staffelsatz& satz);

}  // namespace zinfolio
