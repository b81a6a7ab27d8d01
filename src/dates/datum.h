#pragma once
// The calendar of the system: real dates from 01.01.0100 to 31.12.9999 in the proleptic Gregorian calendar,
// read by position from a `Datumstext` (tt.mm.jjjj), counted in whole days.

#include <compare>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zinfolio {

/// A text that is no date, or a step that leaves the calendar.
class Datumsfehler : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// True where 29.02. of the year is a real calendar date.
[[nodiscard]] constexpr bool IstSchaltjahr(int jahr) {
    return jahr % 4 == 0 && (jahr % 100 != 0 || jahr % 400 == 0);
}

/// Calendar days from 01.01. to 31.12. of the year, plus 1: 365 or 366.
[[nodiscard]] constexpr int Jahreslaenge(int jahr) {
    return IstSchaltjahr(jahr) ? 366 : 365;
}

/// Last day of a month (1 to 12), 28 to 31.
[[nodiscard]] constexpr int Monatslaenge(int jahr, int monat) {
    if (monat == 2) return IstSchaltjahr(jahr) ? 29 : 28;
    return monat == 4 || monat == 6 || monat == 9 || monat == 11 ? 30 : 31;
}

/// A real calendar date. Dates compare and subtract; they do not add.
class Datum {
  public:
    static constexpr int erstesJahr = 100;
    static constexpr int letztesJahr = 9999;

    /// 01.01.0100, the first day of the calendar.
    constexpr Datum() = default;

    /// The date of three numbers, or nothing where there is no such day in the calendar.
    [[nodiscard]] static constexpr std::optional<Datum> Aus(int jahr, int monat, int tag) {
        if (jahr < erstesJahr || jahr > letztesJahr || monat < 1 || monat > 12) return std::nullopt;
        if (tag < 1 || tag > Monatslaenge(jahr, monat)) return std::nullopt;
        return Datum(jahr, monat, tag);
    }

    /// The date of a `Datumstext`, exactly tt.mm.jjjj, or nothing.
    [[nodiscard]] static constexpr std::optional<Datum> Versuche(std::string_view text) {
        if (text.size() != 10 || text[2] != '.' || text[5] != '.') return std::nullopt;
        unsigned fremd = 0;
        const auto ziffer = [&](std::size_t stelle) {
            const auto wert = static_cast<unsigned char>(text[stelle]) - unsigned{'0'};
            fremd |= static_cast<unsigned>(wert > 9);
            return static_cast<int>(wert);
        };
        const int tag = ziffer(0) * 10 + ziffer(1);
        const int monat = ziffer(3) * 10 + ziffer(4);
        const int jahr = ((ziffer(6) * 10 + ziffer(7)) * 10 + ziffer(8)) * 10 + ziffer(9);
        return fremd != 0 ? std::nullopt : Aus(jahr, monat, tag);
    }

    /// The date of a `Datumstext`; anything else is a `Datumsfehler` that shows the text.
    [[nodiscard]] static Datum Lesen(std::string_view text) {
        if (const auto datum = Versuche(text)) return *datum;
        Unlesbar(text);
    }

    /// The date of a day number of this calendar (see `Tageszahl`); outside of it a `Datumsfehler`.
    [[nodiscard]] static Datum AusTageszahl(std::int64_t tageszahl);

    [[nodiscard]] constexpr int Jahr() const { return jahr_; }
    [[nodiscard]] constexpr int Monat() const { return monat_; }
    [[nodiscard]] constexpr int Tag() const { return tag_; }

    /// Whole days since 01.03.0000, in [36465, 3652364].
    [[nodiscard]] constexpr std::int32_t Tageszahl() const {
        // A year that begins in March puts the leap day last: day of year = (153 * m + 2) / 5 + tag - 1, m in
        // [0, 11].
        const int jahr = jahr_ - (monat_ <= 2 ? 1 : 0);
        const int monat = monat_ > 2 ? monat_ - 3 : monat_ + 9;
        return 365 * jahr + jahr / 4 - jahr / 100 + jahr / 400 + (153 * monat + 2) / 5 + tag_ - 1;
    }

    /// The `Datumstext` tt.mm.jjjj.
    [[nodiscard]] std::string Text() const;

    friend constexpr auto operator<=>(const Datum&, const Datum&) = default;

    /// Calendar days from `frueher` to `spaeter`; the first day counts not, the last one does.
    friend constexpr int operator-(Datum spaeter, Datum frueher) {
        return spaeter.Tageszahl() - frueher.Tageszahl();
    }

  private:
    constexpr Datum(int jahr, int monat, int tag)
        : jahr_(static_cast<std::int16_t>(jahr)),
          monat_(static_cast<std::int8_t>(monat)),
          tag_(static_cast<std::int8_t>(tag)) {}

    [[noreturn]] static void Unlesbar(std::string_view text);

    std::int16_t jahr_ = erstesJahr;
    std::int8_t monat_ = 1;
    std::int8_t tag_ = 1;
};

/// The date a number of days later (earlier, if negative). Leaving the calendar is a `Datumsfehler`.
[[nodiscard]] Datum PlusTage(Datum datum, std::int64_t tage);

/// The date a number of months later. A day that the target month lacks is clipped to its last day, and the
/// clipped day is forgotten: 31.01.2007 plus 1 is 28.02.2007, plus 1 again is 28.03.2007.
[[nodiscard]] Datum PlusMonate(Datum datum, std::int64_t monate);

/// The date a number of years later, clipped alike: 29.02.2008 plus 1 is 28.02.2009.
[[nodiscard]] Datum PlusJahre(Datum datum, std::int64_t jahre);

/// The last day of the date's month, found by walking on until the month changes: in December 9999 that walk
/// leaves the calendar, which is a `Datumsfehler` (wanted).
[[nodiscard]] Datum Monatsletzter(Datum datum);

/// Three texts to one `Datumstext`: each trimmed, a day or month of one character gets a leading "0", a year
/// of two characters the prefix "20". No check is made.
[[nodiscard]] std::string DatumAusTeilen(std::string_view tag, std::string_view monat, std::string_view jahr);

/// The number jjjjmmtt of a `Datumstext`, for comparing dates without parsing them. Read by position; a text
/// whose positions hold no number is a `Datumsfehler`.
[[nodiscard]] double Datumsschluessel(std::string_view datumstext);

/// The text "jjjjmmtt" of a `Datumstext`, by position (7-10, 4-5, 1-2), whatever stands there.
[[nodiscard]] std::string Schluesseltext(std::string_view datumstext);

}  // namespace zinfolio
