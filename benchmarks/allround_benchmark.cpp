// The analyses of a payment series in memory, and the search behind a repayment plan.

#include <benchmark/benchmark.h>

#include "kern/allround/jahreswerte.h"
#include "kern/allround/planansicht.h"
#include "kern/allround/reihenzins.h"
#include "kern/allround/sensitivitaet.h"
#include "kern/allround/tilgungsplan.h"
#include "kern/allround/wertanalyse.h"
#include "kern/allround/zahlungsreihe.h"

namespace {

using namespace zinfolio;

constexpr int zeilen = 3'000;

/// An investment that is paid back monthly.
std::vector<Staffelsatz> Investition(int anzahl) {
    const Datum anfang = *Datum::Aus(1950, 1, 15);
    std::vector<Staffelsatz> saetze{Zahlungssatz(anfang.Text(), -100'000, "Anschaffung")};
    for (int monat = 1; monat < anzahl; ++monat)
        saetze.push_back(Zahlungssatz(PlusMonate(anfang, monat).Text(), 350.25 + monat % 7, "Ertrag"));
    return saetze;
}

/// A loan paid back in equal monthly rates.
std::vector<Reihensatz> Darlehen(int jahre) {
    const Datum anfang = *Datum::Aus(2000, 1, 15);
    std::vector<Staffelsatz> saetze{Zahlungssatz(anfang.Text(), 250'000, "")};
    for (int monat = 1; monat <= 12 * jahre; ++monat)
        saetze.push_back(Zahlungssatz(PlusMonate(anfang, monat).Text(), -1'342.05, ""));
    std::vector<Reihensatz> reihe;
    ReiheSchreiben(saetze, reihe);
    return reihe;
}

void Werttabelle(benchmark::State& lauf) {
    const auto zahlungen = Investition(static_cast<int>(lauf.range(0)));
    for (auto _ : lauf) {
        Werteingabe eingabe{.Anzeigeart = static_cast<Wertart>(lauf.range(1)), .Abzins2 = "4,25"};
        Wertergebnis ergebnis;
        benchmark::DoNotOptimize(WertAnalyse(zahlungen, eingabe, ergebnis));
    }
}
BENCHMARK(Werttabelle)
    ->ArgNames({"Zeilen", "Anzeigeart"})
    ->ArgsProduct({{50, zeilen}, {1, 2}})
    ->Unit(benchmark::kMicrosecond);

void Sensitivitaet(benchmark::State& lauf) {
    const auto zahlungen = Investition(zeilen);
    for (auto _ : lauf) {
        Sensitivitaetseingabe eingabe{.MiZins = "4,25", .Vorwert = -100};
        Zellentabelle tabelle;
        benchmark::DoNotOptimize(SensitivitaetRechnen(zahlungen, eingabe, tabelle));
    }
}
BENCHMARK(Sensitivitaet)->Unit(benchmark::kMicrosecond);

void Jahreswerte(benchmark::State& lauf) {
    const auto zahlungen = Investition(zeilen);
    for (auto _ : lauf) {
        Jahreswerteingabe eingabe{"4,25", "15.01.1950"};
        Zellentabelle tabelle;
        benchmark::DoNotOptimize(Jahreswerttabelle(zahlungen, eingabe, tabelle));
    }
}
BENCHMARK(Jahreswerte)->Unit(benchmark::kMicrosecond);

/// Effective rate, search for the nominal rate, and both tables.
void PlanMitMonatsenden(benchmark::State& lauf) {
    const auto reihe = Darlehen(static_cast<int>(lauf.range(0)));
    for (auto _ : lauf) {
        Tilgungsplan plan;
        if (TilgungsplanRechnen(reihe, {.Combo4 = Plantermine::monatsende}, plan))
            lauf.SkipWithError("kein Plan");
        benchmark::DoNotOptimize(Zinsstaffelanzeige1(*plan.Tableau, plan.Nominalzins));
        benchmark::DoNotOptimize(Zinsstaffelanzeige2(*plan.Kurztableau, plan.Nominalzins));
    }
}
BENCHMARK(PlanMitMonatsenden)->ArgName("Jahre")->Arg(30)->Unit(benchmark::kMicrosecond);

void Effektivzins(benchmark::State& lauf) {
    const auto zahlungen = Investition(zeilen);
    std::vector<Reihensatz> reihe;
    ReiheSchreiben(zahlungen, reihe);
    for (auto _ : lauf)
        benchmark::DoNotOptimize(EffektivzinsRechnen(reihe, Effektivmethode::pangv2000));
}
BENCHMARK(Effektivzins)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
