#pragma once

#include <vector>

#include "fenster/ausgabe/seitenmaler.h"
#include "kern/bericht/fortschritt.h"

class QPrinter;

namespace zinfolio {

/// Prepares a printer for a report before the user is asked: paper, orientation, the document's name, no
/// margins beside the report's own.
void DruckEinrichten(QPrinter& drucker, const Bericht& bericht);

/// The pages (from 0) that the user chose of `seiten` pages, in their order. Pages that do not exist are left
/// out.
[[nodiscard]] std::vector<int> GewaehlteSeiten(const QPrinter& drucker, int seiten);

/// Prints the chosen pages, each copy that the printer does not make itself included. A page is as large as
/// on its paper, and smaller where the printer's paper is. False: the printer did not take them.
/// `fortschritt` counts pages; what it answers is of no account, since a printer cannot take back what it has
/// got.
[[nodiscard]] bool Drucken(const Seitenmaler& maler, QPrinter& drucker, const Fortschritt& fortschritt = {});

}  // namespace zinfolio
