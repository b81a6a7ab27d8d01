#pragma once

#include <string>

#include "kern/dateien/dateifehler.h"

namespace zinfolio {

/// Something in a file that is passed over when it is read, and that the user must know: where, and a
/// sentence on what.
struct Befund {
    Fundstelle stelle;
    std::string was;
};

/// `Datei "X", Satz 3: ...`, as the message of a `Dateifehler`.
[[nodiscard]] inline std::string Befundtext(const Befund& befund) {
    return Dateifehler(befund.stelle, befund.was).what();
}

}  // namespace zinfolio
