#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zinfolio {

/// UTF-8 text as single bytes of the Windows code page 1252, as record files hold it. A character that the
/// code page lacks becomes one "?", and so does each byte that is not part of well-formed UTF-8 (overlong
/// forms and surrogates are not). Never fails.
[[nodiscard]] std::string NachWindows1252(std::string_view utf8);

/// The byte that stands for a character in the code page; nothing where it lacks the character.
[[nodiscard]] std::optional<char> Windows1252Byte(char32_t codepunkt);

/// Windows-1252 bytes as UTF-8. The five bytes without a character (81, 8D, 8F, 90, 9D) become the control
/// character of the same number, so that all 256 bytes survive the way to UTF-8 and back. Never fails.
[[nodiscard]] std::string NachUtf8(std::string_view windows1252);

}  // namespace zinfolio
