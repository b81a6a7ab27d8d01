// Reports as files: each view of a statement of 3 000 rows, and its derivation, as rich text and as HTML.

#include <benchmark/benchmark.h>
#include <cstdint>

#include "kern/bericht/htmlbericht.h"
#include "kern/bericht/probebericht.h"
#include "kern/bericht/rtfbericht.h"

namespace {

using namespace zinfolio;

constexpr std::size_t zeilen = 3'000;

using Schreiber = bool (*)(const Bericht&, const Berichtssenke&, const Fortschritt&);

void Messen(benchmark::State& zustand, Schreiber schreiben, const Bericht& bericht) {
    std::int64_t bytes = 0;
    const Berichtssenke senke = [&](std::string_view teil) {
        bytes += static_cast<std::int64_t>(teil.size());
        benchmark::DoNotOptimize(teil.data());
    };
    for (auto _ : zustand) {
        if (!schreiben(bericht, senke, {})) zustand.SkipWithError("abgebrochen");
    }
    zustand.SetBytesProcessed(bytes);
}

void Rtf(benchmark::State& zustand) {
    Messen(zustand, RtfBerichtSchreiben,
           Probekontobericht(static_cast<Kontoansicht>(zustand.range(0)), zeilen));
}
BENCHMARK(Rtf)->ArgName("ansicht")->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void Html(benchmark::State& zustand) {
    Messen(zustand, HtmlBerichtSchreiben,
           Probekontobericht(static_cast<Kontoansicht>(zustand.range(0)), zeilen));
}
BENCHMARK(Html)->ArgName("ansicht")->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

void RtfHerleitung(benchmark::State& zustand) {
    Messen(zustand, RtfBerichtSchreiben, Probeherleitung(zeilen));
}
BENCHMARK(RtfHerleitung)->Unit(benchmark::kMillisecond);

void HtmlHerleitung(benchmark::State& zustand) {
    Messen(zustand, HtmlBerichtSchreiben, Probeherleitung(zeilen));
}
BENCHMARK(HtmlHerleitung)->Unit(benchmark::kMillisecond);

}  // namespace
