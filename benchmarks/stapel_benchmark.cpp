// The batch on jobs in memory: reading, calculating and writing, without the process around it.

#include <array>
#include <benchmark/benchmark.h>
#include <string>

#include "kern/dates/datum.h"
#include "stapel/auftraege/auftragsrechner.h"
#include "stapel/json/jsonzahl.h"

namespace {

using namespace zinfolio;

/// An account of so many postings, one each day or several where a year of 360 days is too short.
std::string Kontoauftrag(int buchungen) {
    std::string zahlungen;
    for (int i = 0; i < buchungen; ++i) {
        const Datum datum =
            PlusTage(*Datum::Aus(2007, 1, 1), buchungen <= 360 ? i * (360 / buchungen) : i / 2);
        zahlungen += zahlungen.empty() ? "" : ",";
        zahlungen += R"({"Datum":")" + datum.Text() + R"(","Betrag":)" +
                     std::to_string((i * 7919) % 200'000 - 90'000) + R"(.25,"Text":"Buchung )" +
                     std::to_string(i + 1) + "\"}";
    }
    const std::string abschluss =
        PlusTage(*Datum::Aus(2007, 12, 31), buchungen <= 360 ? 0 : buchungen / 2).Text();
    return R"({"id":1,"rechnung":"staffel","Zahlungen":[)" + zahlungen +
           R"(],"Konditionen":[{"Datum":"01.01.2007","Gutzins1":2,"Gutzins2":3,"Guthabenlinie":10000,)"
           R"("Kreditzins1":9.5,"Kreditzins2":12.75,"Kreditlinie":2500,"Zweitzinsart":2}],"Kontodatum":")" +
           abschluss + R"(","Zinsverrechnungsart":2,"Verzinsungsmethode":1})";
}

void Rechne(benchmark::State& lauf, const std::string& auftrag) {
    const std::string puffer = auftrag + std::string(nachlauf, '\0');
    const std::string_view text = std::string_view(puffer).substr(0, auftrag.size());
    Auftragsrechner rechner;
    std::string ergebnis;
    for (auto _ : lauf) {
        ergebnis.clear();
        const Auftragsausgang ausgang = rechner.Rechnen(text, ergebnis);
        if (ausgang.ausgang != Ausgang::gerechnet) lauf.SkipWithError(ausgang.meldung.c_str());
        benchmark::DoNotOptimize(ergebnis.data());
    }
    lauf.SetBytesProcessed(static_cast<std::int64_t>(lauf.iterations() * ergebnis.size()));
}

void Konto(benchmark::State& lauf) {
    Rechne(lauf, Kontoauftrag(static_cast<int>(lauf.range(0))));
    lauf.SetItemsProcessed(lauf.iterations() * lauf.range(0));
}
BENCHMARK(Konto)->Arg(1)->Arg(50)->Arg(1000)->Arg(30000);

/// A value analysis of so many payments.
void Wertanalyse(benchmark::State& lauf) {
    std::string zahlungen;
    for (int i = 0; i < lauf.range(0); ++i) {
        zahlungen += zahlungen.empty() ? "" : ",";
        zahlungen += R"({"Datum":")" + PlusMonate(*Datum::Aus(2000, 1, 15), i).Text() + R"(","Betrag":)" +
                     (i == 0 ? "-5000" : "120.25") + "}";
    }
    Rechne(lauf, R"({"id":1,"rechnung":"wertanalyse","Zahlungen":[)" + zahlungen +
                     R"(],"Anzeigeart":1,"Abzins2":"4,25","BarwDatum":""})");
}
BENCHMARK(Wertanalyse)->Arg(50);

void Tage(benchmark::State& lauf) {
    Rechne(lauf,
           R"({"id":1,"rechnung":"tage","Von":"01.01.2007","Bis":"31.03.2007","Verzinsungsmethode":0})");
}
BENCHMARK(Tage);

/// One number as JSON.
void Zahl(benchmark::State& lauf, double zahl) {
    const volatile double wert = zahl;
    std::array<char, zahlbreite> puffer{};
    for (auto _ : lauf)
        benchmark::DoNotOptimize(ZahlSchreiben(puffer.data(), wert));
}
BENCHMARK_CAPTURE(Zahl, GanzeCents, 15086.53);
BENCHMARK_CAPTURE(Zahl, AlleStellen, 31949.180000000008);

}  // namespace

BENCHMARK_MAIN();
