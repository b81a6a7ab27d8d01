// The search for the effective rate against the bare powers that it needs, and the table cells behind it.

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "kern/dates/zahl.h"
#include "kern/dates/zahlformat.h"
#include "kern/finmath/aufzinsung.h"
#include "kern/finmath/barwertfunktion.h"
#include "kern/finmath/bewertung.h"
#include "kern/finmath/effektivsuche.h"
#include "kern/finmath/herleitung.h"
#include "kern/finmath/reiheauswerten.h"
#include "kern/finmath/stellen15.h"

namespace zinfolio {
namespace {

/// A loan repaid monthly, `zeilen` rows in all, at 4.9 % or so.
std::vector<Reihensatz> Monatsraten(int zeilen) {
    const double monatszins = 0.004;
    const double schuld = 100000;
    const double rate = schuld * monatszins / (1 - std::pow(1 + monatszins, 1 - zeilen));
    std::vector<Reihensatz> reihe{Reihenzeile("15.01.2000", schuld)};
    for (int monat = 1; monat < zeilen; ++monat)
        reihe.push_back(Reihenzeile(PlusMonate(*Datum::Aus(2000, 1, 15), monat).Text(), -rate));
    return reihe;
}

/// The arguments of every power that one search calls.
struct Potenzfolge {
    std::vector<double> basen;
    std::vector<double> exponenten;

    Potenzfolge(const std::vector<Reihensatz>& reihe, Effektivmethode methode) {
        const Barwertfunktion barwert(reihe, methode);
        static_cast<void>(EffektivzinsSuchen([&](double zinssatz) {
            basen.push_back(1 + zinssatz / 100);
            return barwert(zinssatz);
        }));
        const Datum beginn = DatumVon(reihe.front());
        for (const Reihensatz& satz : reihe)
            exponenten.push_back(Exponent(methode, beginn, DatumVon(satz)));
    }

    [[nodiscard]] double Potenzieren() const {
        double summe = 0;
        for (const double basis : basen) {
            for (const double exponent : exponenten)
                summe += std::pow(basis, exponent);
        }
        return summe;
    }

    [[nodiscard]] double Anzahl() const { return static_cast<double>(basen.size() * exponenten.size()); }
};

double Sekunden(std::chrono::steady_clock::duration dauer) {
    return std::chrono::duration<double>(dauer).count();
}

/// One search, the time of its powers alone measured beside it, turn by turn. `mal_pow` is the best search
/// over the best powers: on a busy machine the means say little.
void SucheGegenPotenzen(benchmark::State& state) {
    const auto reihe = Monatsraten(static_cast<int>(state.range(0)));
    const auto methode = static_cast<Effektivmethode>(state.range(1));
    const Potenzfolge potenzen(reihe, methode);
    double suche = std::numeric_limits<double>::infinity();
    double bar = suche;
    for (auto _ : state) {
        const auto anfang = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(ReiheAuswerten(reihe, methode));
        const auto mitte = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(potenzen.Potenzieren());
        const auto ende = std::chrono::steady_clock::now();
        suche = std::min(suche, Sekunden(mitte - anfang));
        bar = std::min(bar, Sekunden(ende - mitte));
        state.SetIterationTime(Sekunden(mitte - anfang));
    }
    state.counters["pow"] = potenzen.Anzahl();
    state.counters["ns_je_pow"] = bar * 1e9 / potenzen.Anzahl();
    state.counters["mal_pow"] = suche / bar;
}
BENCHMARK(SucheGegenPotenzen)
    ->ArgNames({"zeilen", "methode"})
    ->ArgsProduct({{51, 360, 3000}, {2, 3, 4}})
    ->UseManualTime();

/// `PAngV(alt)` powers once a year only: no measure against powers.
void SuchePangvAlt(benchmark::State& state) {
    const auto reihe = Monatsraten(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(ReiheAuswerten(reihe, Effektivmethode::pangvAlt));
}
BENCHMARK(SuchePangvAlt)->ArgName("zeilen")->Arg(51)->Arg(360)->Arg(3000);

void BeideTabellen(benchmark::State& state) {
    const auto reihe = Monatsraten(static_cast<int>(state.range(0)));
    const auto methode = static_cast<Effektivmethode>(state.range(1));
    for (auto _ : state)
        benchmark::DoNotOptimize(ReiheAuswerten(reihe, methode, 4.9, Tabellen::schreiben));
}
BENCHMARK(BeideTabellen)->ArgNames({"zeilen", "methode"})->ArgsProduct({{51, 360}, {1, 4}});

/// What the batch command does for one series: rate, derivation, and the texts of its cells.
void ReiheMitHerleitung(benchmark::State& state) {
    const auto reihe = Monatsraten(static_cast<int>(state.range(0)));
    std::array<char, betragsbreite> text{};
    for (auto _ : state) {
        const Reihenauswertung rate = ReiheAuswerten(reihe, Effektivmethode::pangv2000);
        for (const Ergebnissatz& zeile :
             Herleitungszeilen(reihe, Effektivmethode::pangv2000, rate.Effektivzins)) {
            for (const Herleitungszelle zelle : Herleitungszellen())
                benchmark::DoNotOptimize(zelle(zeile, text.data()));
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ReiheMitHerleitung)->ArgName("zeilen")->Arg(51)->Arg(360);

void AlleZellen(benchmark::State& state) {
    const auto zeilen = Herleitungszeilen(Monatsraten(51), Effektivmethode::pangv2000, "4,90000");
    std::array<char, betragsbreite> text{};
    const Herleitungszelle zelle = Herleitungszellen()[static_cast<std::size_t>(state.range(0))];
    for (auto _ : state) {
        for (const Ergebnissatz& zeile : zeilen)
            benchmark::DoNotOptimize(zelle(zeile, text.data()));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(zeilen.size()));
}
BENCHMARK(AlleZellen)->ArgName("spalte")->DenseRange(0, 5);

void AufFuenfzehnStellen(benchmark::State& state) {
    double wert = 1234.567890123456;
    for (auto _ : state) {
        benchmark::DoNotOptimize(RundeAuf15Stellen(wert));
        wert += 0.1;
    }
}
BENCHMARK(AufFuenfzehnStellen);

}  // namespace
}  // namespace zinfolio
