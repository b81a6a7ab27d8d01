#include "kern/bericht/probebericht.h"
#include "kern/bericht/proben/proben.h"

namespace zinfolio {
namespace {

template <Kontoansicht ansicht>
Berichtsprobe Konto(std::size_t zahlungen) {
    auto saetze = std::make_shared<const std::vector<Staffelsatz>>(Probekonto(zahlungen));
    return {Probekontobericht(ansicht, zahlungen), AnsichtBilden(ansicht, std::move(saetze))};
}

Berichtsprobe Herleitung(std::size_t zahlungen) {
    const auto ergebnis = KontoEffektivzinsRechnen(Probekonto(zahlungen), Effektivmethode::pangv2000);
    const auto herleitung = ergebnis.Herleitung();
    return {Probeherleitung(zahlungen),
            HerleitungstabelleBilden(
                std::make_shared<const std::vector<Ergebnissatz>>(herleitung.begin(), herleitung.end()), "")};
}

}  // namespace

std::vector<Probenart> Kontoproben() {
    return {{"konto-kurz", Konto<Kontoansicht::kurzform>},
            {"konto-detail1", Konto<Kontoansicht::detailansicht1>},
            {"konto-detail2", Konto<Kontoansicht::detailansicht2>},
            {"konto-detail3", Konto<Kontoansicht::detailansicht3>},
            {"herleitung", Herleitung}};
}

}  // namespace zinfolio
