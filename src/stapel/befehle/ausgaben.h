#pragma once
// Where the results of a command go: a table on standard output or in a file, and reports.

#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "kern/bericht/bericht.h"
#include "kern/bericht/tabelle.h"
#include "kern/finmath/effektivmethode.h"
#include "kern/grund/ablehnung.h"
#include "stapel/json/jsonschreiber.h"

namespace zinfolio {

enum class Ausgabeformat { text, csv, json };

/// What is wanted. Names of files are as typed; empty: not wanted.
struct Ausgabewunsch {
    /// Nothing: only reports are wanted.
    std::optional<Ausgabeformat> format{};
    /// Empty or "-": standard output.
    std::string ausgabe{};
    std::string pdf{};
    std::string rtf{};
    std::string html{};

    [[nodiscard]] bool Berichte() const { return !pdf.empty() || !rtf.empty() || !html.empty(); }
};

/// What a command has calculated, in each form in which it may leave. Only the wanted ones are asked for.
struct Befehlsergebnis {
    /// Writes the fields of the job's result into the open object.
    std::function<void(JsonSchreiber& schreiber)> felder;
    std::function<Tabelleninhalt()> tabelle;
    /// Lines below the table where it is text.
    std::string nachsatz{};
    std::function<Bericht()> bericht;
};

/// The lines that tell an effective rate below a table; an empty `ezins`: none was found.
[[nodiscard]] std::string Effektivzeilen(std::string_view ezins, Effektivmethode methode);

/// Throws an `Aufruffehler` where an output would take the place of one of the files `eingaben`, or of
/// another output: no mistyped call may destroy an account.
void AusgabenPruefen(const Ausgabewunsch& wunsch, std::span<const std::filesystem::path> eingaben);

/// Calculates and writes what is wanted; gives the exit status. `fehlerregister` is the tab that a fault
/// selects. A refusal, and a fault of the calculation, is told on standard error, and in JSON. Throws
/// `Dateifehler` and `Kanalfehler` for what cannot be written.
[[nodiscard]] int ErgebnisAusgeben(const Ausgabewunsch& wunsch,
                                   const std::function<std::variant<Befehlsergebnis, Ablehnung>()>& rechnen,
                                   std::string_view fehlerregister = {});

}  // namespace zinfolio
