#pragma once
// Files of self-describing values by rows of data: which member of a value type stands in which record.
//
//   struct Vorgaben { std::string Zins = "10"; std::int16_t Rhythmus = 12; std::array<std::string, 40> Datum;
//   }; constexpr std::array vorgabezeilen{
//       Selbstfeld<&Vorgaben::Zins>(1),
//       Selbstfeld<&Vorgaben::Rhythmus>(2, {.sonst = 1}),
//       Selbstfeld<&Vorgaben::Datum>(3),  // an array takes as many records, here 3 to 42
//   };
//   constexpr Selbstwertaufbau<Vorgaben> vorgabedatei{500, vorgabezeilen};
//   Vorgaben v = vorgabedatei.Lesen(ordner / "Vorgaben");

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "kern/dateien/atomar.h"
#include "kern/dateien/dateifehler.h"
#include "kern/dateien/ganzedatei.h"
#include "kern/dateien/selbstwert.h"

namespace zinfolio {

/// What differs between rows besides their member.
struct Selbstangaben {
    /// Number of entries of the list whose index this is; 0 where any number is good.
    std::size_t eintraege = 0;
    /// What an empty value means; nothing leaves the member as it was.
    std::variant<std::monostate, int, std::string_view> sonst{};
};

/// A row: the member of a `T` in one record, or an array's elements in as many.
template <class T>
struct Selbstwertzeile {
    std::size_t satz;
    std::size_t anzahl;
    Selbstform form;
    Selbstangaben angaben;
    Selbstwert (*gib)(const T&, std::size_t i);
    void (*nimm)(T&, std::size_t i, const Selbstwert&, const Selbstangaben&);
};

namespace selbst {

template <class W>
struct Feldart {
    static constexpr std::size_t anzahl = 1;
    using Element = W;
};
template <class E, std::size_t N>
struct Feldart<std::array<E, N>> {
    static constexpr std::size_t anzahl = N;
    using Element = E;
};

template <class W>
struct Wahlfrei : std::false_type {};
template <class W>
struct Wahlfrei<std::optional<W>> : std::true_type {};

template <class W>
struct Mitgliedvon;
template <class T, class W>
struct Mitgliedvon<W T::*> {
    using Typ = T;
};

template <class W>
auto& Element(W& wert, std::size_t i) {
    if constexpr (Feldart<std::remove_const_t<W>>::anzahl == 1) {
        static_cast<void>(i);
        return wert;
    } else {
        return wert[i];
    }
}

template <class W>
Selbstwert Gib(const W& wert) {
    if constexpr (Wahlfrei<W>::value) {
        return wert ? Gib(*wert) : Selbstwert{};
    } else if constexpr (std::is_same_v<W, Selbstwert> || std::is_same_v<W, std::string>) {
        return wert;
    } else {
        static_assert(std::is_same_v<W, std::int16_t> || std::is_same_v<W, bool> || std::is_enum_v<W>);
        return static_cast<std::int16_t>(wert);
    }
}

/// The text or integer of a record. Throws `Satzfehler` for one of another kind.
[[nodiscard]] const std::string& Text(const Selbstwert& wert);
/// Also for an integer that is no index of a list of so many entries (0: any integer is good).
[[nodiscard]] std::int16_t Ganzzahl(const Selbstwert& wert, std::size_t eintraege);
/// The default of a row as a record would hold it.
[[nodiscard]] Selbstwert Vorgabe(const Selbstangaben& angaben);

template <class W>
void Nimm(W& ziel, const Selbstwert& wert, const Selbstangaben& angaben) {
    if constexpr (Wahlfrei<W>::value) {
        Nimm(ziel.emplace(), wert, angaben);
    } else if constexpr (std::is_same_v<W, Selbstwert>) {
        ziel = wert;
    } else if constexpr (std::is_same_v<W, std::string>) {
        ziel = Text(wert);
    } else {
        constexpr std::size_t wahrheitswerte = 2;
        ziel = static_cast<W>(Ganzzahl(wert, std::is_same_v<W, bool> ? wahrheitswerte : angaben.eintraege));
    }
}

template <class T, auto Zugriff>
static constexpr Selbstwertzeile<T> Zeile(std::size_t satz, Selbstform form, const Selbstangaben& angaben) {
    using Feld = std::remove_cvref_t<std::invoke_result_t<decltype(Zugriff), T&>>;
    return {
        satz,
        Feldart<Feld>::anzahl,
        form,
        angaben,
        [](const T& werte, std::size_t i) { return Gib(Element(std::invoke(Zugriff, werte), i)); },
        [](T& werte, std::size_t i, const Selbstwert& wert, const Selbstangaben& a) {
            Nimm(Element(std::invoke(Zugriff, werte), i), wert, a);
        },
    };
}

/// Runs the work on one record; a `Satzfehler` becomes a `Dateifehler` that names file and record.
template <class Arbeit>
void AnSatz(const std::filesystem::path& datei, std::size_t satz, Arbeit arbeit) {
    try {
        arbeit();
    } catch (const Satzfehler& fehler) {
        throw Dateifehler({datei, satz}, fehler.what());
    }
}

/// The bytes of a file; none for one that is missing.
[[nodiscard]] std::string Dateibytes(const std::filesystem::path& datei, std::size_t satzlaenge);

}  // namespace selbst

/// A row for a member with type tags: `std::string`, `std::int16_t`, `bool`, an enumeration that is the index
/// of a list, `Selbstwert` (whatever the record holds), an optional of these (nothing for an empty record),
/// or an array of them. `Zugriff` is the pointer to the member, or a function from `T&` to the member where
/// it lies deeper or in a base.
template <auto Zugriff, class T = typename selbst::Mitgliedvon<decltype(Zugriff)>::Typ>
[[nodiscard]] static constexpr Selbstwertzeile<T> Selbstfeld(std::size_t satz,
                                                             const Selbstangaben& angaben = {}) {
    return selbst::Zeile<T, Zugriff>(satz, Selbstform::MitKennung, angaben);
}

/// A row without type tag: a text behind its length, or a bare integer.
template <auto Zugriff, class T = typename selbst::Mitgliedvon<decltype(Zugriff)>::Typ>
[[nodiscard]] static constexpr Selbstwertzeile<T> Barfeld(std::size_t satz,
                                                          const Selbstangaben& angaben = {}) {
    using Feld = std::remove_cvref_t<std::invoke_result_t<decltype(Zugriff), T&>>;
    using Element = typename selbst::Feldart<Feld>::Element;
    static_assert(!selbst::Wahlfrei<Element>::value && !std::is_same_v<Element, Selbstwert>);
    constexpr auto form = std::is_same_v<Element, std::string> ? Selbstform::NurText : Selbstform::NurZahl;
    return selbst::Zeile<T, Zugriff>(satz, form, angaben);
}

/// The layout of a file: records of `satzlaenge` bytes, one value each. Records that no row names are empty.
template <class T>
struct Selbstwertaufbau {
    std::size_t satzlaenge;
    std::span<const Selbstwertzeile<T>> zeilen;

    /// The values of a file; `werte` are those of a new one. A missing or short file leaves them as they are
    /// where it has no value, and is not created. Throws `Dateifehler`, for a value of another kind than its
    /// row too.
    [[nodiscard]] T Lesen(const std::filesystem::path& datei, T werte = {}) const {
        return AusBytes(AlsBytes(selbst::Dateibytes(datei, satzlaenge)), datei, std::move(werte));
    }

    /// The same from the bytes of a file; `datei` is named in a fault.
    [[nodiscard]] T AusBytes(std::span<const std::byte> bytes, const std::filesystem::path& datei,
                             T werte = {}) const {
        JeSatz([&](const Selbstwertzeile<T>& zeile, std::size_t satz, std::size_t i) {
            selbst::AnSatz(datei, satz, [&] {
                Selbstwert wert = SelbstwertAus(bytes, satzlaenge, satz, zeile.form);
                if (wert.index() == 0) wert = selbst::Vorgabe(zeile.angaben);
                if (wert.index() != 0) zeile.nimm(werte, i, wert, zeile.angaben);
            });
        });
        return werte;
    }

    /// Number of the last record, where the file's end cuts off the value that it began; nothing otherwise.
    [[nodiscard]] std::optional<std::size_t> AbgeschnittenerSatz(std::span<const std::byte> bytes) const {
        const std::size_t letzter = bytes.size() / satzlaenge + 1;
        std::optional<std::size_t> abgeschnitten;
        JeSatz([&](const Selbstwertzeile<T>& zeile, std::size_t satz, std::size_t) {
            if (satz == letzter &&
                SelbstwertIstAbgeschnitten(bytes.last(bytes.size() % satzlaenge), zeile.form))
                abgeschnitten = satz;
        });
        return abgeschnitten;
    }

    /// Replaces the file, all or nothing. Throws `Dateifehler`, also for a text that its record cannot hold.
    void Schreiben(const std::filesystem::path& datei, const T& werte,
                   Sicherung sicherung = Sicherung::Fluechtig) const {
        AtomarSchreiben(datei, Bytes(werte, datei), sicherung);
    }

    /// The same as the bytes of a file; `datei` is named in a fault.
    [[nodiscard]] std::vector<std::byte> Bytes(const T& werte, const std::filesystem::path& datei) const {
        std::size_t letzter = 0;
        for (const auto& zeile : zeilen)
            letzter = std::max(letzter, zeile.satz + zeile.anzahl - 1);
        std::vector<std::byte> bytes(letzter * satzlaenge);
        JeSatz([&](const Selbstwertzeile<T>& zeile, std::size_t satz, std::size_t i) {
            const auto ziel = std::span(bytes).subspan((satz - 1) * satzlaenge, satzlaenge);
            selbst::AnSatz(datei, satz, [&] { SelbstwertSchreiben(zeile.gib(werte, i), ziel, zeile.form); });
        });
        return bytes;
    }

  private:
    template <class Arbeit>
    void JeSatz(Arbeit arbeit) const {
        for (const auto& zeile : zeilen)
            for (std::size_t i = 0; i < zeile.anzahl; ++i)
                arbeit(zeile, zeile.satz + i, i);
    }
};

}  // namespace zinfolio
