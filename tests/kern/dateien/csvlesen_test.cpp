#include "kern/dateien/csvlesen.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <vector>

namespace zinfolio {
namespace csvlesen_test {

using namespace std::string_literals;
using testing::IsEmpty;

/// "3: a|b": the line of each row and its fields.
std::vector<std::string> Gelesen(std::string_view text) {
    std::vector<std::string> zeilen;
    for (const Csvzeile& zeile : CsvLesen(text)) {
        std::string anzeige = std::to_string(zeile.nummer) + ":";
        for (std::size_t i = 0; i < zeile.felder.size(); ++i)
            anzeige += (i == 0 ? " " : "|") + zeile.felder[i];
        zeilen.push_back(anzeige);
    }
    return zeilen;
}

struct Csvfall {
    std::string text;
    std::vector<std::string> zeilen;
};

void PrintTo(const Csvfall& fall, std::ostream* strom) {
    *strom << testing::PrintToString(fall.text);
}

class CsvLesenTest : public testing::TestWithParam<Csvfall> {};

TEST_P(CsvLesenTest, ZeilenUndFelder) {
    EXPECT_EQ(Gelesen(GetParam().text), GetParam().zeilen);
}

INSTANTIATE_TEST_SUITE_P(Schlicht, CsvLesenTest,
                         testing::Values(Csvfall{"a;b\nc;d\n", {"1: a|b", "2: c|d"}},
                                         Csvfall{"a;b\nc;d", {"1: a|b", "2: c|d"}}, Csvfall{"a", {"1: a"}},
                                         Csvfall{";", {"1: |"}}, Csvfall{";;\n", {"1: ||"}},
                                         Csvfall{" a ; b ", {"1:  a | b "}},
                                         Csvfall{"1,5;a,b", {"1: 1,5|a,b"}}, Csvfall{"a\tb", {"1: a\tb"}},
                                         Csvfall{"5\"-Rohr;'b'", {"1: 5\"-Rohr|'b'"}}));

INSTANTIATE_TEST_SUITE_P(Zeilenenden, CsvLesenTest,
                         testing::Values(Csvfall{"a;b\r\nc;d\r\n", {"1: a|b", "2: c|d"}},
                                         Csvfall{"a;\r\nb;\n", {"1: a|", "2: b|"}},
                                         Csvfall{"a\rb\n", {"1: a\rb"}}, Csvfall{"", {}}, Csvfall{"\n", {}},
                                         Csvfall{"\r\n\n", {}}, Csvfall{"a\n\n\r\nb\n\n\n", {"1: a", "4: b"}},
                                         Csvfall{"\n\na\n", {"3: a"}}));

INSTANTIATE_TEST_SUITE_P(Angefuehrt, CsvLesenTest,
                         testing::Values(Csvfall{"\"a;b\";c", {"1: a;b|c"}},
                                         Csvfall{"a;\"b\"\r\nc;d", {"1: a|b", "2: c|d"}},
                                         Csvfall{"\"\"", {"1: "}}, Csvfall{"\"\";\"\"\n", {"1: |"}},
                                         Csvfall{"\"er sagte \"\"ja\"\"\";b", {"1: er sagte \"ja\"|b"}},
                                         Csvfall{"\"\"\"\"", {"1: \""}}, Csvfall{"\"\"\"\"\"\"", {"1: \"\""}},
                                         Csvfall{"\"a\nb\";c\nd", {"1: a\nb|c", "3: d"}},
                                         Csvfall{"\"a\r\n\r\nb\"\r\nd", {"1: a\r\n\r\nb", "4: d"}}));

INSTANTIATE_TEST_SUITE_P(Zeichensatz, CsvLesenTest,
                         testing::Values(Csvfall{"\xEF\xBB\xBF"s + "a;ü\n", {"1: a|ü"}},
                                         Csvfall{"\xEF\xBB\xBF", {}}, Csvfall{"Größe €;b", {"1: Größe €|b"}},
                                         // Windows-1252: one byte a character.
                                         Csvfall{"Gr\xF6\xDF"s + "e \x80;b", {"1: Größe €|b"}},
                                         // One foreign byte makes the whole text Windows-1252.
                                         Csvfall{"ü;\xFC", {"1: Ã¼|ü"}}, Csvfall{"a\0b;c"s, {"1: a\0b|c"s}}));

struct Fehlerfall {
    std::string text;
    std::size_t zeile;
    std::string grund;
};

void PrintTo(const Fehlerfall& fall, std::ostream* strom) {
    *strom << testing::PrintToString(fall.text);
}

class CsvfehlerTest : public testing::TestWithParam<Fehlerfall> {};

TEST_P(CsvfehlerTest, NenntZeileUndGrund) {
    try {
        (void)CsvLesen(GetParam().text);
        FAIL() << "kein Fehler";
    } catch (const Csvfehler& fehler) {
        EXPECT_EQ(fehler.Zeile(), GetParam().zeile);
        EXPECT_EQ(fehler.what(), GetParam().grund);
    }
}

const std::string offen = "Ein Anführungszeichen wird nicht geschlossen.";
const std::string rest = "Hinter dem schließenden Anführungszeichen steht noch etwas.";

INSTANTIATE_TEST_SUITE_P(Anfuehrungszeichen, CsvfehlerTest,
                         testing::Values(Fehlerfall{"\"", 1, offen}, Fehlerfall{"a\nb;\"c\nd\ne\n", 2, offen},
                                         Fehlerfall{"\"a\"\"", 1, offen}, Fehlerfall{"\"a\"b;c", 1, rest},
                                         Fehlerfall{"a\n\"b\" ;c\n", 2, rest},
                                         Fehlerfall{"\"a\nb\"c\n", 2, rest},
                                         Fehlerfall{"\"a\"\rb", 1, rest}));

INSTANTIATE_TEST_SUITE_P(
    Felderzahl, CsvfehlerTest,
    testing::Values(Fehlerfall{"a\n" + std::string(1000, ';'), 2, "Die Zeile hat mehr als 1000 Felder."},
                    Fehlerfall{std::string(1 << 20, ';'), 1, "Die Zeile hat mehr als 1000 Felder."}));

TEST(CsvLesen, AndereTrenner) {
    EXPECT_EQ(CsvLesen("a;b\t\"c\td\"\n", '\t').at(0).felder, (std::vector<std::string>{"a;b", "c\td"}));
    EXPECT_EQ(CsvLesen("a,\"1,5\"", ',').at(0).felder, (std::vector<std::string>{"a", "1,5"}));
}

TEST(CsvLesen, TausendFelderSindNichtZuViele) {
    EXPECT_EQ(CsvLesen(std::string(999, ';')).at(0).felder.size(), 1000U);
}

// Looking through the rest of the text at every line would take half a minute.
TEST(CsvLesen, DieZeitWaechstNurMitDerLaenge) {
    std::string text;
    for (int i = 0; i < 500'000; ++i)
        text += "x\n";
    const auto beginn = std::chrono::steady_clock::now();
    EXPECT_EQ(CsvLesen(text).size(), 500'000U);
    EXPECT_LT(std::chrono::steady_clock::now() - beginn, std::chrono::seconds(5));
}

TEST(CsvLesen, LangerTextKommtGanz) {
    const std::string lang(1'000'000, 'x');
    const auto zeilen = CsvLesen("\"" + lang + "\";" + lang);
    ASSERT_EQ(zeilen.size(), 1U);
    EXPECT_EQ(zeilen[0].felder, (std::vector{lang, lang}));
}

TEST(CsvLesen, JederAnfangEinesTextesIstEinTextOderEinFehlerSeinerLetztenZeilen) {
    const std::string text = "\xEF\xBB\xBF"s + "a;\"ü\"\"\r\n;\";c\r\n\"d\";;\"\"\n";
    for (std::size_t laenge = 0; laenge <= text.size(); ++laenge) {
        try {
            (void)CsvLesen(std::string_view(text).substr(0, laenge));
        } catch (const Csvfehler& fehler) {
            EXPECT_GE(fehler.Zeile(), 1U) << laenge;
            EXPECT_LE(fehler.Zeile(), 3U) << laenge;
        }
    }
    EXPECT_THAT(Gelesen(text), testing::ElementsAre("1: a|ü\"\r\n;|c", "3: d||"));
}

}  // namespace csvlesen_test
}  // namespace zinfolio
