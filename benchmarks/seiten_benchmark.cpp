// What a user waits for between a report and its paper: the first page of a large statement, its PDF file,
// and the PDF file of an ordinary one. The second number of each measurement is the view: 0 Kurzform, 3
// Detailansicht 3.

#include <QGuiApplication>
#include <QImage>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include "fenster/ausgabe/pdf.h"
#include "kern/bericht/probebericht.h"

namespace {

using namespace zinfolio;

Bericht Messbericht(const benchmark::State& zustand) {
    return Probekontobericht(static_cast<Kontoansicht>(zustand.range(1)),
                             static_cast<std::size_t>(zustand.range(0)));
}

void Seiten(benchmark::State& zustand, const Seitenmaler& maler) {
    zustand.counters["Seiten"] = maler.Seiten();
}

/// The layout of the whole report and a page of its table, as large as on a screen.
void ErsteSeite(benchmark::State& zustand) {
    const Bericht bericht = Messbericht(zustand);
    for (auto _ : zustand) {
        const Seitenmaler maler(bericht);
        benchmark::DoNotOptimize(maler.Bild(maler.Seiten() - 1, 96));
        Seiten(zustand, maler);
    }
}
BENCHMARK(ErsteSeite)->ArgsProduct({{30'000}, {0, 3}})->Unit(benchmark::kMillisecond);

/// Layout, pages, and the file on the disk.
void Pdf(benchmark::State& zustand) {
    const Bericht bericht = Messbericht(zustand);
    const QTemporaryDir ordner;
    const std::filesystem::path datei = ordner.filePath("Bericht.pdf").toStdString();
    for (auto _ : zustand) {
        const Seitenmaler maler(bericht);
        benchmark::DoNotOptimize(PdfSchreiben(maler, datei));
        Seiten(zustand, maler);
    }
}
BENCHMARK(Pdf)->ArgsProduct({{1'000, 30'000}, {0, 3}})->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication programm(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
