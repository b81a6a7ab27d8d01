#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zinfolio {

/// Where a value stands in its job: a field of `eltern` or, without a name, its element `index` (from 0). The
/// job itself has no parent. Lives on the stack of whoever walks the job.
struct Feldpfad {
    const Feldpfad* eltern = nullptr;
    std::string_view name{};
    std::size_t index = 0;

    /// "Zahlungen[3].Betrag"; long names are cut. Empty for the job itself.
    [[nodiscard]] std::string Text() const;
};

/// At most `hoechstens` characters of a UTF-8 text, with "…" behind where something was cut.
[[nodiscard]] std::string Gekuerzt(std::string_view utf8, std::size_t hoechstens);

}  // namespace zinfolio
