#pragma once

#include <bit>
#include <cassert>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>

#include "kern/dateien/festtext.h"

namespace zinfolio {

/// Puts the fields of a record one behind the other, little-endian and packed. Floats go by their bit
/// pattern, so that every NaN survives. REQUIRES: the fields together are no longer than the span; the span
/// outlives the writer.
class Satzschreiber {
  public:
    explicit constexpr Satzschreiber(std::span<std::byte> zielbytes) : ziel(zielbytes) {}

    constexpr void Ganz16(std::int16_t wert) { Setze(static_cast<std::uint16_t>(wert)); }
    constexpr void Ganz32(std::int32_t wert) { Setze(static_cast<std::uint32_t>(wert)); }
    constexpr void Gleit4(float wert) { Setze(std::bit_cast<std::uint32_t>(wert)); }
    constexpr void Gleit8(double wert) { Setze(std::bit_cast<std::uint64_t>(wert)); }

    template <std::size_t N>
    constexpr void Text(const Festtext<N>& wert) {
        const std::span<std::byte> feld = Feld(N);
        for (std::size_t i = 0; i < N; ++i)
            feld[i] = static_cast<std::byte>(wert.Roh()[i]);
    }

    /// Bytes that no field has taken yet.
    [[nodiscard]] constexpr std::size_t Rest() const { return ziel.size(); }

  private:
    constexpr std::span<std::byte> Feld(std::size_t breite) {
        assert(breite <= ziel.size());
        const std::span<std::byte> feld = ziel.first(breite);
        ziel = ziel.subspan(breite);
        return feld;
    }

    template <std::unsigned_integral U>
    constexpr void Setze(U wert) {
        const std::span<std::byte> feld = Feld(sizeof(U));
        for (std::size_t i = 0; i < sizeof(U); ++i)
            feld[i] = static_cast<std::byte>(wert >> (8 * i));
    }

    std::span<std::byte> ziel;
};

/// Takes the fields of a record in the same order. REQUIRES: as `Satzschreiber`.
class Satzleser {
  public:
    explicit constexpr Satzleser(std::span<const std::byte> quellbytes) : quelle(quellbytes) {}

    [[nodiscard]] constexpr std::int16_t Ganz16() { return static_cast<std::int16_t>(Hole<std::uint16_t>()); }
    [[nodiscard]] constexpr std::int32_t Ganz32() { return static_cast<std::int32_t>(Hole<std::uint32_t>()); }
    [[nodiscard]] constexpr float Gleit4() { return std::bit_cast<float>(Hole<std::uint32_t>()); }
    [[nodiscard]] constexpr double Gleit8() { return std::bit_cast<double>(Hole<std::uint64_t>()); }

    template <std::size_t N>
    [[nodiscard]] constexpr Festtext<N> Text() {
        return Festtext<N>::AusSatz(Feld(N).template first<N>());
    }

    /// Bytes that no field has been taken from yet.
    [[nodiscard]] constexpr std::size_t Rest() const { return quelle.size(); }

  private:
    constexpr std::span<const std::byte> Feld(std::size_t breite) {
        assert(breite <= quelle.size());
        const std::span<const std::byte> feld = quelle.first(breite);
        quelle = quelle.subspan(breite);
        return feld;
    }

    template <std::unsigned_integral U>
    constexpr U Hole() {
        const std::span<const std::byte> feld = Feld(sizeof(U));
        U wert = 0;
        for (std::size_t i = 0; i < sizeof(U); ++i)
            wert = static_cast<U>(wert | static_cast<U>(static_cast<U>(feld[i]) << (8 * i)));
        return wert;
    }

    std::span<const std::byte> quelle;
};

}  // namespace zinfolio
