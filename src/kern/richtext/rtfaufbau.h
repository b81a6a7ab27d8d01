#pragma once

#include <cstdint>
#include <string_view>

#include "kern/richtext/richtext.h"

namespace zinfolio {

/// Puts a document together from its start to its end, in normal form.
class Textaufbau {
  public:
    /// Appends ASCII characters from blank to tilde.
    void Text(std::string_view ascii, const Zeichenformat& format);
    /// Appends a character as `Textzeichen` takes it; what is no text is passed over.
    void Zeichen(char32_t zeichen, const Zeichenformat& format);
    /// Appends a UTF-16 unit. The two halves of a pair may come with other words between them; a half alone
    /// becomes U+FFFD.
    void Einheit(std::uint16_t einheit, const Zeichenformat& format);

    /// Ends the paragraph, which has this format in whole.
    void AbsatzEnde(const Absatzformat& format);
    /// Ends the paragraph if it has text, and begins the next on a new page.
    void Seitenwechsel(const Absatzformat& format);

    /// The document. The last paragraph counts if it has text or is the only one. The builder is empty then.
    [[nodiscard]] Richtext Fertig(const Absatzformat& letztesFormat);

  private:
    void HalbesPaarBeenden(const Zeichenformat& format);
    void Anhaengen(std::string_view utf8, const Zeichenformat& format);

    Richtext fertig_{.absaetze = {}};
    Absatz offen_;
    char32_t halbesPaar_ = 0;
    bool neueSeite_ = false;
};

}  // namespace zinfolio
