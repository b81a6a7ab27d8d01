// Searches of the savings calculators: time, and the passes through the account that each makes.

#include <benchmark/benchmark.h>

#include "kern/sparen/dauerlauf.h"
#include "kern/sparen/sparrechnung.h"

namespace {

using namespace zinfolio;

/// 30 years of monthly rates that rise by 2 percent a year, interest once a year.
Sparplan Dreissigjahresplan() {
    Sparplan plan;
    plan.AnfVermögen = "5000";
    plan.Anfdatum = "01.01.2005";
    plan.ratdatum1 = "01.02.2005";
    plan.Betrag = "200";
    plan.Enddatum = "31.12.2034";
    plan.Zins = "3,5";
    plan.Vwert = "250000";
    plan.Vermendwert = "250000";
    plan.Check2 = 1;
    plan.Anzahl = "12";
    plan.Delta = "2";
    return plan;
}

void Rechnen(benchmark::State& stand, Sparziel ziel, const Sparplan& vorlage) {
    std::size_t durchlaeufe = 0;
    for (auto _ : stand) {
        Sparplan plan = vorlage;
        Sparstand gemerkt;
        Sparergebnis ergebnis;
        const auto ablehnung = SparplanRechnen(SparformVon(ziel), plan, gemerkt, ergebnis);
        if (ablehnung) stand.SkipWithError(ablehnung->Meldung.c_str());
        durchlaeufe = ergebnis.durchlaeufe;
        benchmark::DoNotOptimize(ergebnis);
    }
    stand.counters["Durchläufe"] = static_cast<double>(durchlaeufe);
}

void Endkapital(benchmark::State& stand) {
    Rechnen(stand, Sparziel::endkapital, Dreissigjahresplan());
}
BENCHMARK(Endkapital)->Unit(benchmark::kMicrosecond);

void Sparrate(benchmark::State& stand) {
    Rechnen(stand, Sparziel::sparrate, Dreissigjahresplan());
}
BENCHMARK(Sparrate)->Unit(benchmark::kMicrosecond);

void Rendite(benchmark::State& stand) {
    Rechnen(stand, Sparziel::rendite, Dreissigjahresplan());
}
BENCHMARK(Rendite)->Unit(benchmark::kMicrosecond);

void Anfangskapital(benchmark::State& stand) {
    Rechnen(stand, Sparziel::anfangskapital, Dreissigjahresplan());
}
BENCHMARK(Anfangskapital)->Unit(benchmark::kMicrosecond);

/// The target lies inside the jump of a yearly rate, some 40 years on: the search ends in a walk day by day.
void Anspardauer(benchmark::State& stand) {
    Sparplan plan = Dreissigjahresplan();
    plan.Check2 = 0;
    plan.Combo1 = 4;
    plan.Betrag = "2000";
    plan.Vwert = "196000";
    Rechnen(stand, Sparziel::anspardauer, plan);
}
BENCHMARK(Anspardauer)->Unit(benchmark::kMicrosecond);

/// Every single day of 40 000.
void Tagesgang(benchmark::State& stand) {
    const Sparplan plan = Dreissigjahresplan();
    const Datum anfang = Datum::Lesen(plan.Anfdatum);
    for (auto _ : stand) {
        Dauerlauf dauerlauf(SparformVon(Sparziel::anspardauer), plan);
        for (int tag = 0; tag < 40'000; ++tag)
            benchmark::DoNotOptimize(dauerlauf.Endstand(PlusTage(anfang, tag)));
    }
    stand.counters["Tage"] = 40'000;
}
BENCHMARK(Tagesgang)->Unit(benchmark::kMillisecond);

}  // namespace
