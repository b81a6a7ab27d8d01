#include "kern/sparen/planversuche.h"

#include <exception>

namespace zinfolio {

void Planversuche::Merken(const Planprobe& probe) {
    constexpr std::size_t abstand = 64;
    if (beobachter && anzahl % abstand == 0 && !beobachter(anzahl)) throw RechnungAbgebrochen();
    ++anzahl;
    vorletzter = std::exchange(letzter, probe);
}

double Planversuche::Ganz(const Planprobe& probe) {
    Merken(probe);
    Planlauf(form, plan, probe, lauf);
    return LetzterKontostand(lauf);
}

void Planversuche::Nachholen() noexcept {
    for (const std::optional<Planprobe>& probe : {vorletzter, letzter}) {
        if (!probe) continue;
        try {
            Planlauf(form, plan, *probe, lauf);
        } catch (const std::exception&) {  // the fault that is under way already
        }
    }
}

}  // namespace zinfolio
