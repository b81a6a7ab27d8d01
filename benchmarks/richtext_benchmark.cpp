// Reader and writer of rich text in bytes of the file a second, for notes as people write them and for files
// made to hurt the reader. A hostile file of twice the length must take twice the time.

#include <benchmark/benchmark.h>
#include <string>

#include "kern/richtext/rtflesen.h"
#include "kern/richtext/rtfschreiben.h"

namespace zinfolio {
namespace {

constexpr std::size_t megabyte = 1U << 20U;

/// Notes of about so many bytes as a file: paragraphs with a bold word, an amount, umlauts, and a list.
Richtext Notizen(std::size_t bytes) {
    Zeichenformat fett;
    fett.fett = true;
    Absatzformat punkt;
    punkt.liste.art = Listenart::punkte;
    Richtext text;
    for (std::size_t zeile = 0; zeile < bytes / 100; ++zeile) {
        Absatz& absatz = text.absaetze.emplace_back();
        if (zeile % 10 == 0) absatz.format = punkt;
        absatz.laeufe = {{"Zahlung ", {}},
                         {std::to_string(zeile), fett},
                         {"\tüber 1.250,00 € für die Rate von Öl-Müller, fällig am Monatsende", {}}};
    }
    return text;
}

void Durchsatz(benchmark::State& stand, std::size_t bytes) {
    stand.SetBytesProcessed(static_cast<std::int64_t>(stand.iterations() * bytes));
}

void Schreiben(benchmark::State& stand) {
    const Richtext text = Notizen(megabyte);
    std::size_t bytes = 0;
    for (auto _ : stand) {
        const std::string datei = RtfSchreiben(text);
        bytes = datei.size();
        benchmark::DoNotOptimize(datei.data());
    }
    Durchsatz(stand, bytes);
}
BENCHMARK(Schreiben)->Unit(benchmark::kMillisecond);

void Lesen(benchmark::State& stand, const std::string& datei) {
    for (auto _ : stand) {
        const Richtext text = RtfLesen(datei);
        benchmark::DoNotOptimize(text.absaetze.data());
    }
    Durchsatz(stand, datei.size());
}

void LesenNotizen(benchmark::State& stand) {
    Lesen(stand, RtfSchreiben(Notizen(megabyte)));
}
BENCHMARK(LesenNotizen)->Unit(benchmark::kMillisecond);

std::string Tabulatoren() {
    std::string woerter;
    for (int stelle = 1; stelle <= 1000; ++stelle)
        woerter += "\\tx" + std::to_string(stelle * 20);
    return woerter;
}

/// A file of one, two or four megabytes that repeats a piece behind a beginning.
void LesenBoese(benchmark::State& stand, const std::string& anfang, const std::string& wiederholt) {
    std::string datei = "{\\rtf1 " + anfang;
    const std::size_t laenge = datei.size() + static_cast<std::size_t>(stand.range(0)) * megabyte;
    while (datei.size() < laenge)
        datei += wiederholt;
    Lesen(stand, datei);
}

#define ZINFOLIO_BOESE(name, anfang, wiederholt)            \
    BENCHMARK_CAPTURE(LesenBoese, name, anfang, wiederholt) \
        ->Arg(1)                                            \
        ->Arg(2)                                            \
        ->Arg(4)                                            \
        ->Unit(benchmark::kMillisecond)

ZINFOLIO_BOESE(Absaetze, "", "\\\n");
ZINFOLIO_BOESE(AbsaetzeMitTabulatoren, Tabulatoren(), "\\\n");
ZINFOLIO_BOESE(KlammernAuf, "", "{");
ZINFOLIO_BOESE(Klammerpaare, Tabulatoren(), "{}");
ZINFOLIO_BOESE(Laeufe, "{\\fonttbl{\\f0 " + std::string(500, 'x') + ";}}\\f0 ", "\\b x\\i y\\b0 x\\i0 y");
ZINFOLIO_BOESE(Laufgruppen, "", "{\\b x}y");
ZINFOLIO_BOESE(Farben, "{\\colortbl ", ";");
ZINFOLIO_BOESE(Schriften, "{\\fonttbl ", "\\f1\\f2\\f3 a;");
ZINFOLIO_BOESE(Tabellen, "", "{\\fonttbl\\f7 y;}");
ZINFOLIO_BOESE(Binaer, "", "\\bin1 {");
ZINFOLIO_BOESE(Unicode, "\\uc1000000 ", "\\u-10179");
ZINFOLIO_BOESE(Unbekannt, "", "{\\*\\x{");
ZINFOLIO_BOESE(Hexbytes, "{\\fonttbl{\\f0\\fcharset2 Symbol;}}\\f0", "\\'ff");
ZINFOLIO_BOESE(Ziffern, "\\b", "1234567890");
ZINFOLIO_BOESE(Buchstaben, "\\", "b");
ZINFOLIO_BOESE(Nullbytes, "", std::string(1000, '\0'));

}  // namespace
}  // namespace zinfolio
