#include "kern/dates/fremdzahl.h"

#include <gtest/gtest.h>
#include <ostream>

namespace zinfolio {
namespace fremdzahl_test {

struct Fremdfall {
    std::string text;
    std::string zahl;
};

void PrintTo(const Fremdfall& fall, std::ostream* strom) {
    *strom << testing::PrintToString(fall.text);
}

class FremdzahlTest : public testing::TestWithParam<Fremdfall> {};

TEST_P(FremdzahlTest, WirdFeldtext) {
    EXPECT_EQ(Fremdzahl(GetParam().text).value_or("keine"), GetParam().zahl);
}

INSTANTIATE_TEST_SUITE_P(Deutsch, FremdzahlTest,
                         testing::Values(Fremdfall{"5", "5"}, Fremdfall{"1234,56", "1234,56"},
                                         Fremdfall{"1.234,56", "1234,56"},
                                         Fremdfall{"12.345.678", "12345678"}, Fremdfall{"1.234", "1234"},
                                         Fremdfall{",5", "0,5"}, Fremdfall{"1,234", "1,234"},
                                         Fremdfall{"  7,00 ", "7,00"}));

INSTANTIATE_TEST_SUITE_P(Englisch, FremdzahlTest,
                         testing::Values(Fremdfall{"1234.56", "1234,56"}, Fremdfall{"1,234.56", "1234,56"},
                                         Fremdfall{"12,345,678.9", "12345678,9"},
                                         Fremdfall{"1,234,567", "1234567"}, Fremdfall{".5", "0,5"},
                                         Fremdfall{"1.00", "1,00"}, Fremdfall{"1.2345", "1,2345"}));

INSTANTIATE_TEST_SUITE_P(Gruppen, FremdzahlTest,
                         testing::Values(Fremdfall{"1 234,56", "1234,56"},
                                         Fremdfall{"1\u00A0234,56", "1234,56"},
                                         Fremdfall{"1\u202F234\u202F567", "1234567"},
                                         Fremdfall{"1'234.50", "1234,50"},
                                         Fremdfall{"1\u2019234.50", "1234,50"}));

INSTANTIATE_TEST_SUITE_P(Vorzeichen, FremdzahlTest,
                         testing::Values(Fremdfall{"-5,00", "-5,00"}, Fremdfall{"+5,00", "5,00"},
                                         Fremdfall{"\u22125,00", "-5,00"}, Fremdfall{"5,00-", "-5,00"},
                                         Fremdfall{"5,00 -", "-5,00"}, Fremdfall{"5,00+", "5,00"}));

INSTANTIATE_TEST_SUITE_P(Waehrung, FremdzahlTest,
                         testing::Values(Fremdfall{"1 234,56 €", "1234,56"}, Fremdfall{"€ 5", "5"},
                                         Fremdfall{"EUR 5,00", "5,00"}, Fremdfall{"-5,00\u00A0EUR", "-5,00"},
                                         Fremdfall{"€ -5,00", "-5,00"}, Fremdfall{"-€5", "-5"}));

// "5,-" is five euros to whoever wrote it, and minus five to whoever looks for a sign behind.
INSTANTIATE_TEST_SUITE_P(
    Keine, FremdzahlTest,
    testing::Values(Fremdfall{"", "keine"}, Fremdfall{"-", "keine"}, Fremdfall{"€", "keine"},
                    Fremdfall{"5,-", "keine"}, Fremdfall{"5,", "keine"}, Fremdfall{"1OO", "keine"},
                    Fremdfall{"1,2,3", "keine"}, Fremdfall{"1.2.3", "keine"}, Fremdfall{"12 34", "keine"},
                    Fremdfall{"1.234 567", "keine"}, Fremdfall{"1234.567,00", "keine"},
                    Fremdfall{"1,234,56", "keine"}, Fremdfall{"--5", "keine"}, Fremdfall{"-5-", "keine"},
                    Fremdfall{"€ 5 €", "keine"}, Fremdfall{"5 USD", "keine"}, Fremdfall{"1e5", "keine"},
                    Fremdfall{"5\n6", "keine"}, Fremdfall{"01.02.2024", "keine"}));

TEST(Fremdzahl, EinGenanntesDezimalzeichenGiltAllein) {
    EXPECT_EQ(Fremdzahl("1.00", Dezimalzeichen::komma), std::nullopt);
    EXPECT_EQ(Fremdzahl("1.234", Dezimalzeichen::komma), "1234");
    EXPECT_EQ(Fremdzahl("1.234", Dezimalzeichen::punkt), "1,234");
    EXPECT_EQ(Fremdzahl("1,50", Dezimalzeichen::punkt), std::nullopt);
}

}  // namespace fremdzahl_test
}  // namespace zinfolio
