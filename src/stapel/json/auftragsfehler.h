#pragma once
// What is told of a text that is no valid job: where in it, and why.

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

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

/// The German words for an error code of the parser, to be put behind "kein gültiges JSON: ".
[[nodiscard]] std::string_view JsonGrund(int fehlercode);

/// Throws the `Auftragsfehler` for a text that is no JSON.
[[noreturn]] void KeinJson(int fehlercode, const char* stelle);

/// Where a value stands in its job: a field of `eltern` or, without a name, its element `index` (from 0). The
/// job itself has no parent. Lives on the stack of whoever walks the job.
struct Feldpfad {
    const Feldpfad* eltern = nullptr;
    std::string_view name{};
    std::size_t index = 0;

    /// "Zahlungen[3].Betrag"; long names are cut. Empty for the job itself.
    [[nodiscard]] std::string Text() const;
};

}  // namespace zinfolio
