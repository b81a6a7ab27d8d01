// The engine in memory: the walk over a statement, the sort, the merge.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <random>

#include "kern/staffel/dateienmischen.h"
#include "kern/staffel/konto.h"
#include "kern/staffel/staffelberechnung.h"
#include "kern/staffel/staffelsortierung.h"

namespace {

using namespace zinfolio;

constexpr int zeilen = 30'000;

/// One condition and `anzahl` payments, so many a day from 2000 on, in order of date.
std::vector<Staffelsatz> Staffel(int anzahl, int jeTag = 3) {
    std::vector<Staffelsatz> saetze{Konditionssatz("01.01.2000", {.Gutzins1 = 0.5F,
                                                                  .Gutzins2 = 1.25F,
                                                                  .Guthabenlinie = 10'000,
                                                                  .Kreditzins1 = 9.75F,
                                                                  .Kreditzins2 = 14.5F,
                                                                  .Kreditlinie = 5'000,
                                                                  .Zweitzinsart = 2})};
    std::mt19937 zufall(1);
    const Datum anfang = *Datum::Aus(2000, 1, 1);
    for (int i = 0; i < anzahl; ++i) {
        const double betrag = (static_cast<int>(zufall() % 200'001) - 100'000) / 100.0;
        saetze.push_back(Zahlungssatz(PlusTage(anfang, i / jeTag).Text(), betrag, "Buchung"));
    }
    return saetze;
}

void Berechnung(benchmark::State& zustand) {
    const auto methode = static_cast<Verzinsungsmethode>(zustand.range(0));
    std::vector<Staffelsatz> saetze = Staffel(zeilen - 1, static_cast<int>(zustand.range(1)));
    for (auto _ : zustand) {
        Staffelberechnung(saetze, methode);
        benchmark::DoNotOptimize(saetze.data());
    }
    zustand.counters["ns_je_Zeile"] = benchmark::Counter(
        zeilen / 1e9, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(Berechnung)->ArgNames({"methode", "je_Tag"})->ArgsProduct({{0, 1, 2, 3, 4}, {3, 1}});

std::vector<Staffelsatz> Durcheinander() {
    std::vector<Staffelsatz> saetze = Staffel(32'767);
    saetze.erase(saetze.begin());
    std::shuffle(saetze.begin(), saetze.end(), std::mt19937(2));
    return saetze;
}

void Sortierung(benchmark::State& zustand) {
    const std::vector<Staffelsatz> saetze = Durcheinander();
    for (auto _ : zustand) {
        zustand.PauseTiming();
        std::vector<Staffelsatz> kopie = saetze;
        zustand.ResumeTiming();
        SortiereZahlungen(kopie);
        benchmark::DoNotOptimize(kopie.data());
    }
}
BENCHMARK(Sortierung)->Unit(benchmark::kMillisecond);

/// The yardstick: the library's stable sort of the same records by the same key.
void SortierungDerBibliothek(benchmark::State& zustand) {
    const std::vector<Staffelsatz> saetze = Durcheinander();
    for (auto _ : zustand) {
        zustand.PauseTiming();
        std::vector<Staffelsatz> kopie = saetze;
        zustand.ResumeTiming();
        std::stable_sort(kopie.begin(), kopie.end(), [](const Staffelsatz& a, const Staffelsatz& b) {
            return a.Sortierschluessel.Roh() < b.Sortierschluessel.Roh();
        });
        benchmark::DoNotOptimize(kopie.data());
    }
}
BENCHMARK(SortierungDerBibliothek)->Unit(benchmark::kMillisecond);

void GanzesKonto(benchmark::State& zustand) {
    Konto konto;
    konto.zahlungen = Staffel(zeilen);
    konto.konditionen.assign(konto.zahlungen.begin(), konto.zahlungen.begin() + 1);
    konto.zahlungen.erase(konto.zahlungen.begin());
    konto.einstellungen.Kontodatum = "31.12.2030";
    for (auto _ : zustand)
        benchmark::DoNotOptimize(KontoRechnen(konto));
}
BENCHMARK(GanzesKonto)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
