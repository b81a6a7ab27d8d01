#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace zinfolio {

/// "01 FC 20": bytes as a reader of a dump sees them.
inline std::string Hex(std::span<const std::byte> bytes) {
    constexpr std::string_view ziffern = "0123456789ABCDEF";
    std::string text;
    for (const std::byte b : bytes) {
        if (!text.empty()) text += ' ';
        text += ziffern[std::to_integer<std::size_t>(b) / 16];
        text += ziffern[std::to_integer<std::size_t>(b) % 16];
    }
    return text;
}

}  // namespace zinfolio
