#include "kern/bericht/berichtsstrom.h"

#include <algorithm>

namespace zinfolio {

Berichtsstrom::Berichtsstrom(const Berichtssenke& senke, const Fortschritt& fortschritt, std::size_t zeilen)
    : senke_(senke), fortschritt_(fortschritt), von_(std::max<std::size_t>(zeilen, 1)) {
    puffer_.reserve(blockgroesse + blockgroesse / 8);
}

bool Berichtsstrom::Block(std::size_t erledigt) {
    senke_(puffer_);
    puffer_.clear();
    return Melden(erledigt);
}

bool Berichtsstrom::Melden(std::size_t erledigt) const {
    return !fortschritt_ || fortschritt_(erledigt, von_);
}

}  // namespace zinfolio
