#pragma once
// Small views into a text.

#include <array>
#include <string_view>

namespace zinfolio {

/// The text without blanks at either end.
[[nodiscard]] constexpr std::string_view Getrimmt(std::string_view text) {
    const auto erstes = text.find_first_not_of(' ');
    if (erstes == std::string_view::npos) return {};
    return text.substr(erstes, text.find_last_not_of(' ') - erstes + 1);
}

/// True for '0' to '9'.
[[nodiscard]] constexpr bool IstZiffer(char zeichen) {
    return zeichen >= '0' && zeichen <= '9';
}

/// The two digits of 0 to 99, one pair behind the other, for writing numbers two digits at a time.
inline constexpr auto ziffernpaare = [] {
    std::array<char, 200> paare{};
    for (std::size_t i = 0; i < 100; ++i) {
        paare[2 * i] = static_cast<char>('0' + i / 10);
        paare[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return paare;
}();

}  // namespace zinfolio
