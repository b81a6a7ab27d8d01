#pragma once

#include <string>
#include <string_view>

namespace zinfolio {

/// Appends plain text (UTF-8) to an HTML document, where it may stand between tags and in quoted attributes:
/// & < > and " are escaped. What HTML does not allow (control characters besides tab and line feed, what is
/// no character in Unicode, bytes that are not well-formed UTF-8) becomes U+FFFD.
void HtmlTextAnhaengen(std::string& ziel, std::string_view utf8);

}  // namespace zinfolio
