#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace zinfolio {

/// A text field of a record: N single bytes of Windows-1252, kept raw so that a record goes back to its file
/// byte for byte. Default: all zero bytes, a field never assigned, which differs from an assigned empty text
/// (all blanks).
template <std::size_t N>
class Festtext {
  public:
    constexpr Festtext() = default;

    /// Assigned text: left-justified, cut after N bytes, padded with blanks.
    [[nodiscard]] static constexpr Festtext AusWindows1252(std::string_view text) {
        Festtext feld;
        const auto ende = std::copy_n(text.begin(), std::min(text.size(), N), feld.bytes.begin());
        std::fill(ende, feld.bytes.end(), ' ');
        return feld;
    }

    /// The field as it stands in a record.
    [[nodiscard]] static constexpr Festtext AusSatz(std::span<const std::byte, N> quelle) {
        Festtext feld;
        std::transform(quelle.begin(), quelle.end(), feld.bytes.begin(),
                       [](std::byte b) { return static_cast<char>(b); });
        return feld;
    }

    /// All N bytes. The view lives as long as this object.
    [[nodiscard]] constexpr std::string_view Roh() const { return {bytes.data(), N}; }

    /// The bytes without blanks and zero bytes at the end. The view lives as long as this object.
    [[nodiscard]] constexpr std::string_view Getrimmt() const {
        std::size_t laenge = N;
        while (laenge > 0 && (bytes[laenge - 1] == ' ' || bytes[laenge - 1] == '\0'))
            --laenge;
        return Roh().substr(0, laenge);
    }

    friend constexpr bool operator==(const Festtext&, const Festtext&) = default;

  private:
    std::array<char, N> bytes{};
};

}  // namespace zinfolio
