#pragma once
// The tables at the head of a file that is written: which fonts and colours its text uses, by number.

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "kern/richtext/richtext.h"

namespace zinfolio {

/// Whether a font of that name has pictures for letters, and is written with the charset of such fonts.
[[nodiscard]] bool IstBilderschrift(std::string_view name);

/// The fonts and colours of a document, numbered as they come in it. Font 0 is `grundschrift`, colour 0 is
/// the automatic one. A document with bullets has the font Symbol behind its own.
class Rtftabellen {
  public:
    explicit Rtftabellen(const Richtext& text);

    [[nodiscard]] std::size_t Schrift(std::string_view name) const;
    [[nodiscard]] std::size_t Farbnummer(const std::optional<Farbe>& farbe) const;
    [[nodiscard]] std::size_t Punktschrift() const { return schriften_.size(); }

    /// `{\fonttbl…}`.
    void SchriftenAnhaengen(std::string& ziel) const;
    /// `{\colortbl ;…}` and a line end; nothing where no colour is used.
    void FarbenAnhaengen(std::string& ziel) const;

  private:
    void Aufnehmen(const Zeichenformat& format);
    void FarbeAufnehmen(const std::optional<Farbe>& farbe);

    std::vector<std::string_view> schriften_;
    std::map<std::string_view, std::size_t> schriftnummern_;
    std::vector<Farbe> farben_;
    std::map<std::uint32_t, std::size_t> farbnummern_;
    bool punkte_ = false;
};

}  // namespace zinfolio
