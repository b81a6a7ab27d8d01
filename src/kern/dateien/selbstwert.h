#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <variant>

namespace zinfolio {

/// The value of a record that says itself what it holds: nothing, a 2-byte integer or a text (UTF-8).
using Selbstwert = std::variant<std::monostate, std::int16_t, std::string>;

/// Fills the whole record, little-endian: 2 bytes of type tag (0 empty, 2 integer, 8 text), then the integer,
/// or the text in Windows-1252 behind its 2-byte length; zero bytes to the end. Throws `Satzfehler` when the
/// value does not fit; the record is undefined then.
void SelbstwertSchreiben(const Selbstwert& wert, std::span<std::byte> satz);

/// Reads such a record; a record of zero bytes, never written, is empty. Throws `Satzfehler` for an unknown
/// tag and for a value that runs over the record's end.
[[nodiscard]] Selbstwert SelbstwertLesen(std::span<const std::byte> satz);

/// A record of N bytes that holds one such value, for `Satzdatei<Selbstsatz<N>>`.
template <std::size_t N>
struct Selbstsatz {
    static constexpr std::size_t Satzlaenge = N;

    Selbstwert wert;

    void Schreiben(std::span<std::byte, N> ziel) const { SelbstwertSchreiben(wert, ziel); }
    [[nodiscard]] static Selbstsatz Lesen(std::span<const std::byte, N> quelle) {
        return {SelbstwertLesen(quelle)};
    }

    friend bool operator==(const Selbstsatz&, const Selbstsatz&) = default;
};

}  // namespace zinfolio
