#pragma once

#include <optional>
#include <string>

#include "kern/finmath/effektivmethode.h"
#include "kern/staffel/kontoansicht.h"
#include "kern/staffel/kontoeinstellungen.h"

namespace zinfolio {

enum class Ausgabeformat { text, csv, json };

/// What the command `staffel` is asked for. Names of files are as typed; empty: not wanted.
struct Staffelaufruf {
    /// Empty: the account comes from the two tables and `einstellungen`.
    std::string projekt{};
    std::string zahlungen{};
    std::string zinssaetze{};
    Kontoeinstellungen einstellungen{};

    Kontoansicht ansicht = Kontoansicht::kurzform;
    std::optional<Effektivmethode> effektivmethode{};

    /// Nothing: only reports are wanted.
    std::optional<Ausgabeformat> format{};
    /// Empty or "-": standard output.
    std::string ausgabe{};
    std::string pdf{};
    std::string rtf{};
    std::string html{};
};

}  // namespace zinfolio
