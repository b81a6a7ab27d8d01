#pragma once
// Reports of every calculator for readers from outside, each beside the table that its grid shows.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kern/bericht/bericht.h"
#include "kern/bericht/tabelle.h"

namespace zinfolio {

struct Berichtsprobe {
    Bericht bericht;
    /// What the grid shows. It is made without the report.
    Tabelleninhalt gitter;
};

/// A kind of report by its name, and how to make one of so many payments (years in a table of factors).
struct Probenart {
    std::string_view name;
    Berichtsprobe (*bilden)(std::size_t zahlungen);
};

/// The kinds of a calculator, or of a family of them.
[[nodiscard]] std::vector<Probenart> Kontoproben();
[[nodiscard]] std::vector<Probenart> Sparproben();
[[nodiscard]] std::vector<Probenart> Allroundproben();
[[nodiscard]] std::vector<Probenart> Tabellenproben();

/// The plain text of the calculator that prints one too, for the viewer.
[[nodiscard]] std::string Spartextprobe(std::size_t zahlungen);

}  // namespace zinfolio
