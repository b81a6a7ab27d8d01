#pragma once
// The calendar of the system: real dates from 01.01.0100 to 31.12.9999 in the proleptic Gregorian calendar,
// read by position from a `Datumstext` (tt.mm.jjjj), counted in whole days.

#include <array>
#include <bit>
#include <compare>
#include <cstdint>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

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

/// By month, 1 to 12.
namespace kalendertafel {
/// Days of the month in a common year.
inline constexpr std::array<std::int8_t, 13> monatslaenge{0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
/// Days before the month in a year that begins in March, which puts the leap day last.
inline constexpr std::array<std::int16_t, 13> tageVorMonat{0,   306, 337, 0,   31,  61, 92,
                                                           122, 153, 184, 214, 245, 275};
}  // namespace kalendertafel

/// Last day of a month (1 to 12), 28 to 31.
[[nodiscard]] constexpr int Monatslaenge(int jahr, int monat) {
    return kalendertafel::monatslaenge[static_cast<std::size_t>(monat)] +
           (monat == 2 && IstSchaltjahr(jahr) ? 1 : 0);
}

/// Digits of a date text, several bytes at a time: statements of tens of thousands of rows read two dates a
/// row.
namespace datumsziffern {

struct Paare {
    std::uint64_t werte = 0;
    bool fremd = false;

    /// The number of the two digits at a place of the text.
    [[nodiscard]] constexpr int An(unsigned stelle) const {
        return static_cast<int>((werte >> (8 * stelle)) & 0xFFU);
    }
};

/// The first N bytes of a text as a number, the first one lowest.
template <std::size_t N>
[[nodiscard]] constexpr std::uint64_t Bytes(const char* text) {
    std::uint64_t zahl = 0;
    if (!std::is_constant_evaluated() && std::endian::native == std::endian::little) {
        std::memcpy(&zahl, text, N);
        return zahl;
    }
    for (std::size_t stelle = 0; stelle < N; ++stelle) {
        zahl |= static_cast<std::uint64_t>(static_cast<unsigned char>(text[stelle])) << (8 * stelle);
    }
    return zahl;
}

/// Reads up to eight characters that must be points where `grund` has points and digits where it has zeros.
[[nodiscard]] constexpr Paare Lesen(std::uint64_t zeichen, std::uint64_t grund) {
    // What is too small borrows and shows 0x80 or more; what is too large passes 0x7F by the addition.
    const std::uint64_t ziffern = zeichen - grund;
    const std::uint64_t punkte = (~grund & 0x1010'1010'1010'1010) >> 4U;
    const std::uint64_t zuwachs = 0x7676'7676'7676'7676 + punkte * 9;
    const bool fremd = ((ziffern | (ziffern + zuwachs)) & 0x8080'8080'8080'8080) != 0;
    return {ziffern * 10 + (ziffern >> 8U), fremd};
}

}  // namespace datumsziffern

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
        if (text.size() != 10) return std::nullopt;
        const datumsziffern::Paare vorn =
            datumsziffern::Lesen(datumsziffern::Bytes<8>(text.data()), 0x3030'2E30'302E'3030);
        const datumsziffern::Paare hinten =
            datumsziffern::Lesen(datumsziffern::Bytes<2>(text.data() + 8), 0x3030);
        if (vorn.fremd || hinten.fremd) return std::nullopt;
        return Aus(vorn.An(6) * 100 + hinten.An(0), vorn.An(3), vorn.An(0));
    }

    /// The day of the same month and year that has this number, or nothing.
    [[nodiscard]] constexpr std::optional<Datum> MitTag(int tag) const {
        if (tag < 1 || (tag > 28 && tag > Monatslaenge(jahr_, monat_))) return std::nullopt;
        Datum datum = *this;
        datum.tageszahl_ += tag - tag_;
        datum.tag_ = static_cast<std::int8_t>(tag);
        return datum;
    }

    /// The date of a `Datumstext` that may lie in the same month and year as `nachbar`, the date of
    /// `nachbartext`: then its day alone is read. REQUIRES: both texts have ten characters.
    [[nodiscard]] static constexpr std::optional<Datum> VersucheNeben(std::string_view text,
                                                                      const Datum& nachbar,
                                                                      std::string_view nachbartext) {
        if (datumsziffern::Bytes<8>(text.data() + 2) != datumsziffern::Bytes<8>(nachbartext.data() + 2))
            return Versuche(text);
        const datumsziffern::Paare tag = datumsziffern::Lesen(datumsziffern::Bytes<2>(text.data()), 0x3030);
        if (tag.fremd) return std::nullopt;
        return nachbar.MitTag(tag.An(0));
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
    [[nodiscard]] constexpr std::int32_t Tageszahl() const { return tageszahl_; }

    /// The `Datumstext` tt.mm.jjjj.
    [[nodiscard]] std::string Text() const;

    friend constexpr auto operator<=>(const Datum& a, const Datum& b) {
        return a.tageszahl_ <=> b.tageszahl_;
    }
    friend constexpr bool operator==(const Datum& a, const Datum& b) { return a.tageszahl_ == b.tageszahl_; }

    /// Calendar days from `frueher` to `spaeter`; the first day counts not, the last one does.
    friend constexpr int operator-(const Datum& spaeter, const Datum& frueher) {
        return spaeter.tageszahl_ - frueher.tageszahl_;
    }

  private:
    constexpr Datum(int jahr, int monat, int tag)
        : tageszahl_(Zaehle(jahr, monat, tag)),
          jahr_(static_cast<std::int16_t>(jahr)),
          monat_(static_cast<std::int8_t>(monat)),
          tag_(static_cast<std::int8_t>(tag)) {}

    [[nodiscard]] static constexpr std::int32_t Zaehle(int jahr, int monat, int tag) {
        const int maerzjahr = jahr - (monat <= 2 ? 1 : 0);
        return 365 * maerzjahr + maerzjahr / 4 - maerzjahr / 100 + maerzjahr / 400 +
               kalendertafel::tageVorMonat[static_cast<std::size_t>(monat)] + tag - 1;
    }

    [[noreturn]] static void Unlesbar(std::string_view text);

    std::int32_t tageszahl_ = 36465;
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
