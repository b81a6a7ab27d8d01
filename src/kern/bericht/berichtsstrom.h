#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "kern/bericht/fortschritt.h"

namespace zinfolio {

/// Takes a document piece by piece, as it is written.
using Berichtssenke = std::function<void(std::string_view)>;

/// A document under way to its sink: what is written is collected and handed on in blocks, and each block is
/// a step of progress. The steps are rows of the table.
class Berichtsstrom {
  public:
    /// REQUIRES: both live as long as this object; `senke` is not empty.
    Berichtsstrom(const Berichtssenke& senke, const Fortschritt& fortschritt, std::size_t zeilen);

    /// To be called first. False: cancelled.
    [[nodiscard]] bool Beginnen() const { return Melden(0); }

    /// Where the document is appended to.
    [[nodiscard]] std::string& Text() { return puffer_; }

    /// To be called behind each row with the number of rows so far. False: cancelled.
    [[nodiscard]] bool Zeilenende(std::size_t erledigt) {
        return puffer_.size() < blockgroesse || Block(erledigt);
    }

    /// To be called last; hands on what is left. False: cancelled.
    [[nodiscard]] bool Beenden() { return Block(von_); }

  private:
    static constexpr std::size_t blockgroesse = 64U * 1024U;

    [[nodiscard]] bool Block(std::size_t erledigt);
    [[nodiscard]] bool Melden(std::size_t erledigt) const;

    const Berichtssenke& senke_;
    const Fortschritt& fortschritt_;
    std::size_t von_;
    std::string puffer_;
};

}  // namespace zinfolio
