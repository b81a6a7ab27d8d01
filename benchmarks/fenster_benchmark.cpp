// What a user waits for: the start screen against an empty window, and a large account from tab to shown
// view.

#include <QApplication>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>
#include <benchmark/benchmark.h>

#include "fenster/staffel/form48000.h"
#include "fenster/start/form1.h"
#include "fenster/ui/deutsch.h"

namespace {

using namespace zinfolio;

template <class Fenster, class... Werte>
void Aufbauen(benchmark::State& zustand, Werte... werte) {
    for (auto _ : zustand) {
        Fenster fenster(werte...);
        fenster.show();
        benchmark::DoNotOptimize(QTest::qWaitForWindowExposed(&fenster));
    }
}

void LeeresFenster(benchmark::State& zustand) {
    Aufbauen<QWidget>(zustand);
}
BENCHMARK(LeeresFenster)->Unit(benchmark::kMillisecond);

void Startbildschirm(benchmark::State& zustand) {
    Aufbauen<Form1>(zustand, std::filesystem::temp_directory_path());
}
BENCHMARK(Startbildschirm)->Unit(benchmark::kMillisecond);

/// 30 000 payments in the working folder; the tab is selected, the view is painted.
void GrossesKonto(benchmark::State& zustand) {
    const QTemporaryDir ordner;
    Form48000 form(ordner.path().toStdString());
    const Kontodateien dateien(ordner.path().toStdString());
    std::vector<Staffelsatz> zahlungen;
    const Datum anfang = *Datum::Aus(2000, 1, 1);
    for (int i = 0; i < 30'000; ++i) {
        zahlungen.push_back(
            Zahlungssatz(PlusTage(anfang, (i * 7919) % 9000).Text(), i % 1000 - 480, "Buchung"));
    }
    const std::array konditionen{Konditionssatz(
        "01.01.2000", {.Gutzins1 = 1, .Guthabenlinie = 1e9, .Kreditzins1 = 9, .Kreditlinie = 1e9})};
    form.show();
    benchmark::DoNotOptimize(QTest::qWaitForWindowExposed(&form));
    auto* register_ = form.findChild<QTabWidget*>("TabStrip1");
    register_->setCurrentIndex(Form48000::zinsverrechnung);
    form.findChild<QLineEdit*>("Kontodatum")->setText("31.12.2025");
    for (auto _ : zustand) {
        zustand.PauseTiming();
        register_->setCurrentIndex(Form48000::zinsverrechnung);
        dateien.Zahlungen().Schreiben(zahlungen);
        dateien.Konditionen().Schreiben(konditionen);
        QCoreApplication::processEvents();
        zustand.ResumeTiming();
        register_->setCurrentIndex(Form48000::berechnung);
        QCoreApplication::processEvents();
    }
}
BENCHMARK(GrossesKonto)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    QApplication programm(argc, argv);
    DeutscheTexteLaden(programm);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
