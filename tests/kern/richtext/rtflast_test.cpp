// How much the reader takes for files made to hurt: memory is counted byte by byte, so that the same figures
// come on every machine.

#include <cstdlib>
#include <gmock/gmock.h>
#include <new>

#include "kern/richtext/rtflesen.h"

namespace {

std::size_t belegt = 0;
std::size_t hoechststand = 0;
std::size_t belegungen = 0;

// Each block is led by its length.
constexpr std::size_t vorspann = alignof(std::max_align_t);

}  // namespace

void* operator new(std::size_t bytes) {
    auto* block = static_cast<unsigned char*>(std::malloc(bytes + vorspann));
    if (!block) throw std::bad_alloc();
    *reinterpret_cast<std::size_t*>(block) = bytes;
    belegt += bytes;
    ++belegungen;
    hoechststand = std::max(hoechststand, belegt);
    return block + vorspann;
}

void operator delete(void* zeiger) noexcept {
    if (!zeiger) return;
    auto* block = static_cast<unsigned char*>(zeiger) - vorspann;
    belegt -= *reinterpret_cast<std::size_t*>(block);
    std::free(block);
}

void operator delete(void* zeiger, std::size_t /*bytes*/) noexcept {
    operator delete(zeiger);
}

namespace zinfolio {
namespace {

struct Last {
    const char* name;
    std::string anfang;
    std::string wiederholt;
};

std::string Datei(const Last& last, std::size_t laenge) {
    std::string datei = "{\\rtf1 " + last.anfang;
    laenge += datei.size();
    while (datei.size() < laenge)
        datei += last.wiederholt;
    return datei;
}

struct Aufwand {
    std::size_t speicher;
    std::size_t belegungen;
};

Aufwand Messen(const std::string& datei) {
    const std::size_t vorher = belegt;
    const std::size_t belegungenVorher = belegungen;
    hoechststand = belegt;
    { const Richtext text = RtfLesen(datei); }
    return {hoechststand - vorher, belegungen - belegungenVorher};
}

std::string Tabulatoren() {
    std::string woerter;
    for (int stelle = 1; stelle <= 1000; ++stelle)
        woerter += "\\tx" + std::to_string(stelle * 20);
    return woerter;
}

class RtfLast : public testing::TestWithParam<Last> {};

TEST_P(RtfLast, SpeicherIstEinVielfachesDerDatei) {
    const std::string datei = Datei(GetParam(), 1U << 19U);
    const Aufwand aufwand = Messen(datei);
    RecordProperty("BytesJeByte", std::to_string(aufwand.speicher / datei.size()));
    EXPECT_LT(aufwand.speicher, 200 * datei.size());
}

TEST_P(RtfLast, DoppelteLaengeIstDoppelterAufwand) {
    const std::size_t laenge = 1U << 18U;
    const Aufwand einfach = Messen(Datei(GetParam(), laenge));
    const Aufwand doppelt = Messen(Datei(GetParam(), 2 * laenge));
    // A hundred blocks and some room for what comes once.
    EXPECT_LE(doppelt.belegungen, 2 * einfach.belegungen + 100);
    EXPECT_LE(doppelt.speicher, 2 * einfach.speicher + 1'000'000);
}

INSTANTIATE_TEST_SUITE_P(
    Boese, RtfLast,
    testing::Values(Last{"Absaetze", "", "\\\n"}, Last{"AbsaetzeMitTabulatoren", Tabulatoren(), "\\\n"},
                    Last{"KlammernAuf", "", "{"}, Last{"Klammerpaare", Tabulatoren(), "{}"},
                    Last{"Laeufe", "{\\fonttbl{\\f0 " + std::string(500, 'x') + ";}}\\f0 ",
                         "\\b x\\i y\\b0 x\\i0 y"},
                    Last{"Laufgruppen", "", "{\\b x}y"}, Last{"Farben", "{\\colortbl ", ";"},
                    Last{"Schriften", "{\\fonttbl ", "\\f1\\f2\\f3 a;"},
                    Last{"VieleSchriften", "{\\fonttbl{\\f0 " + std::string(5000, 'x'), "{\\fonttbl\\f7 y;}"},
                    Last{"Binaer", "", "\\bin1 {"}, Last{"Unicode", "\\uc1000000 ", "\\u-10179"},
                    Last{"Unbekannt", "", "{\\*\\x{"}, Last{"Schraegstriche", "", "\\\\"},
                    Last{"Hexbytes", "{\\fonttbl{\\f0\\fcharset2 Symbol;}}\\f0", "\\'ff"},
                    Last{"Ziffern", "\\b", "1234567890"}, Last{"Objekte", "", "{\\object{\\result x"},
                    Last{"Zellen", Tabulatoren(), "\\row"}),
    [](const auto& fall) { return fall.param.name; });

}  // namespace
}  // namespace zinfolio
