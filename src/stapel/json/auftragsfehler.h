#pragma once

#include <stdexcept>
#include <string>

namespace zinfolio {

/// A text that is no valid job. `what()` is the German message that names the field at fault; `Stelle` points
/// into the job's text, or is null where no place can be told.
class Auftragsfehler : public std::runtime_error {
  public:
    Auftragsfehler(const std::string& meldung, const char* stelle)
        : std::runtime_error(meldung), stelle_(stelle) {}

    [[nodiscard]] const char* Stelle() const noexcept { return stelle_; }

  private:
    const char* stelle_;
};

}  // namespace zinfolio
