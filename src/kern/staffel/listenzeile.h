#pragma once

#include <string>

#include "kern/staffel/staffelsatz.h"

namespace zinfolio {

/// A payment as one line of fixed columns (UTF-8): date, amount, description.
[[nodiscard]] std::string Zahlungszeile(const Staffelsatz& zahlung);

/// A condition as one line of fixed columns (UTF-8): date, the two credit rates, the credit limit, the two
/// debit rates, the debit limit.
[[nodiscard]] std::string Konditionszeile(const Staffelsatz& kondition);

}  // namespace zinfolio
