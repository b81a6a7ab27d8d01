#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace zinfolio {

/// How the days of a period are counted and how long a year is. The numbers are the list indexes and the
/// stored values.
enum class Verzinsungsmethode : std::int16_t {
    /// 30/360, the "German method" (30E/360 in which the last day of February always counts as the 30th, also
    /// as the
    /// end date): `Tage30` over 360.
    deutsch = 0,
    /// Actual days over the real length of the calendar year, 365 or 366. A period over a year's end is cut
    /// once, at
    /// 31.12. of its first year; all days behind that go on the length of its last year, however many years
    /// lie between
    /// (wanted): 31.12.2007 to 31.12.2010 counts 1096 days of 365, though 2008 lies inside.
    englisch = 1,
    /// Actual days over 360.
    franzoesisch = 2,
    /// `Tage30` over 365.
    dreissig365 = 3,
    /// Actual days over 365, also in a leap year.
    kalender365 = 4,
};

/// The texts of the list, by index.
inline constexpr std::array<std::string_view, 5> verzinsungsmethoden{
    "30/360 Tage : Deutsche Methode",
    "Kalendertage/Kalenderjahrestage : Englische Methode",
    "Kalendertage/360 : Französische Methode",
    "30/365 Tage",
    "kal/365 Tage",
};

/// True where the method counts days by `Tage30`, false where it counts calendar days.
[[nodiscard]] constexpr bool ZaehltTage30(Verzinsungsmethode methode) {
    return methode == Verzinsungsmethode::deutsch || methode == Verzinsungsmethode::dreissig365;
}

/// Year length in days of every method but `englisch`.
[[nodiscard]] constexpr int FesteJahreslaenge(Verzinsungsmethode methode) {
    return methode == Verzinsungsmethode::deutsch || methode == Verzinsungsmethode::franzoesisch ? 360 : 365;
}

}  // namespace zinfolio
