#include "kern/sparen/sparrechnung.h"

#include "kern/finmath/herleitung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/sparen/planpruefen.h"
#include "kern/sparen/planversuche.h"
#include "kern/sparen/spargang.h"
#include "kern/sparen/zinstabelle.h"
#include "kern/staffel/reiheausloesung.h"

namespace zinfolio {
namespace {

std::optional<Ablehnung> EndkapitalRechnen(Spargang& gang) {
    gang.ergebnis.loesung = gang.versuche.Ganz({});
    return std::nullopt;
}

/// By the numbers of `Sparziel`.
constexpr std::array loeser{EndkapitalRechnen, SparrateSuchen, RenditeSuchen, AnspardauerSuchen,
                            AnfangskapitalSuchen};

}  // namespace

void EffzinsRechnen(const Sparplan& plan, Sparergebnis& ergebnis) {
    const auto methode = static_cast<Effektivmethode>(plan.Combo5 + 1);
    ergebnis.Lösungszahlungsreihe = ReiheAusLoesung(*ergebnis.lauf.loesung);
    ergebnis.ezins =
        Effektivzinsanzeige(ReiheAuswerten(*ergebnis.Lösungszahlungsreihe, methode).Effektivzins);
}

std::optional<Ablehnung> SparplanRechnen(const Sparform& form, Sparplan& plan, Sparstand& stand,
                                         Sparergebnis& ergebnis, const Suchbeobachter& beobachter) {
    ergebnis = {};
    if (auto ablehnung = PlanPruefen(form, plan, stand)) return ablehnung;
    if (form.zinstabelle) {
        if (auto ablehnung = ZinstabellePruefen(plan)) return ablehnung;
    }
    Planversuche versuche(form, plan, ergebnis.lauf, beobachter);
    Spargang gang{form, plan, stand, ergebnis, versuche};
    auto ablehnung = loeser.at(static_cast<std::size_t>(form.ziel))(gang);
    ergebnis.durchlaeufe = versuche.Anzahl();
    if (ablehnung) return ablehnung;
    if (form.effektivzinsMitErgebnis) EffzinsRechnen(plan, ergebnis);
    ergebnis.summen = KontosummenBilden(*ergebnis.lauf.loesung);
    return std::nullopt;
}

}  // namespace zinfolio
