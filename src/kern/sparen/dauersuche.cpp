#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "kern/dates/rundung.h"
#include "kern/dates/zahl.h"
#include "kern/grund/rechenfehler.h"
#include "kern/sparen/dauerlauf.h"
#include "kern/sparen/sekantensuche.h"
#include "kern/sparen/spargang.h"

namespace zinfolio {
namespace {

constexpr double gleicheAbweichung = 0.1;
constexpr int mindestrunden = 20;
constexpr double zweiterVersuch = 365;
constexpr int hoechstzahlTage = 100'000;

/// The best trial on one side of the target.
struct Bester {
    double f;
    double tage = 0;
    bool gesehen = false;
};

/// The search on whole days from `Anfdatum`.
class Dauersuche {
  public:
    explicit Dauersuche(Spargang& spargang)
        : gang(spargang), anfang(Datum::Lesen(gang.plan.Anfdatum)), ziel(Zahl(gang.plan.Vwert)) {}

    void Laufen() {
        const double f0 = gang.versuche.Ganz({.ende = anfang}) - ziel;
        dauerlauf.emplace(gang.form, gang.plan);
        sekante = {{0, f0}, {zweiterVersuch, Abweichung(zweiterVersuch)}};
        Einkreisen();
        if (std::fabs(sekante.neu.f - sekante.alt.f) > gleicheAbweichung) TagFuerTag();
    }

    /// The end that was tried last.
    [[nodiscard]] Datum Ende() const { return ende; }

  private:
    double Abweichung(double tage) {
        constexpr double kalenderlaenge = 4e6;
        if (!(std::fabs(tage) < kalenderlaenge)) throw Rechenfehler("Die Anspardauer ist zu lang.");
        ende = PlusTage(anfang, static_cast<std::int64_t>(tage));
        const auto endstand = [&](const Planprobe& p) { return dauerlauf->Endstand(*p.ende); };
        return gang.versuche.Schnell({.ende = ende}, endstand) - ziel;
    }

    void Einkreisen() {
        for (int runde = 1;; ++runde) {
            const double tage = RundeKaufmaennisch(Sekantenschritt(sekante), 0);
            sekante = {sekante.neu, {tage, Abweichung(tage)}};
            Merken(sekante.neu);
            if (runde > std::numeric_limits<std::int16_t>::max())
                throw Rechenfehler("Die Suche nach der Anspardauer kommt zu keinem Ende.");
            if (std::fabs(sekante.neu.f - sekante.alt.f) <= gleicheAbweichung) return;
            if (darunter.gesehen && darueber.gesehen && runde >= mindestrunden) return;
        }
    }

    void Merken(const Suchpunkt& versuch) {
        if (versuch.f <= 0 && versuch.f > darunter.f) darunter = {versuch.f, versuch.x, true};
        if (versuch.f > 0 && versuch.f < darueber.f) darueber = {versuch.f, versuch.x, true};
    }

    /// The target lies inside a jump: from the best trial below it on to the first day that reaches it.
    void TagFuerTag() {
        double tage = darunter.tage != 0 ? darunter.tage : sekante.neu.x;
        for (int schritt = 0; schritt < hoechstzahlTage; ++schritt) {
            if (Abweichung(++tage) >= 0) return;
        }
        throw Rechenfehler("Das Ziel wird nicht erreicht.");
    }

    Spargang& gang;
    Datum anfang;
    double ziel;
    Datum ende = anfang;
    std::optional<Dauerlauf> dauerlauf;
    Sekante sekante;
    Bester darunter{-999'999'999'999'999};
    Bester darueber{999'999'999'999'999};
};

}  // namespace

std::optional<Ablehnung> AnspardauerSuchen(Spargang& gang) {
    Dauersuche suche(gang);
    gang.versuche.Suchen([&] { suche.Laufen(); });
    // An end before the plan begins leaves no account to show.
    static_cast<void>(LetzterKontostand(gang.ergebnis.lauf));
    gang.ergebnis.Enddatum = suche.Ende().Text();
    return std::nullopt;
}

}  // namespace zinfolio
