#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "kern/bericht/tabelle.h"
#include "kern/staffel/staffelsatz.h"

class QWidget;

namespace zinfolio {

/// What the intake of payments needs to know of their list.
struct Einleseauftrag {
    /// over which the boxes stand
    QWidget* fenster = nullptr;
    /// how many more payments the list takes
    std::size_t platz = 0;
    /// payments as the list shows them
    std::function<Tabelleninhalt(const std::vector<Staffelsatz>&)> tabelle;
};

/// What the user accepted; nothing where he did not, or where there are no payments, which he is told.
using Eingelesene = std::optional<std::vector<Staffelsatz>>;
using Einleser = Eingelesene (*)(const Einleseauftrag& auftrag);

/// Asks for a file of a bank and shows what it would bring.
[[nodiscard]] Eingelesene ZahlungenAusDatei(const Einleseauftrag& auftrag);

/// The same for the clipboard: rows that were copied out of a table, or a file that was copied in the file
/// manager.
[[nodiscard]] Eingelesene ZahlungenAusZwischenablage(const Einleseauftrag& auftrag);

}  // namespace zinfolio
