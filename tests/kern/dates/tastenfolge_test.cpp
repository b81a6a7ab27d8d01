// Whole sequences of keys, typed into a field as small as a test needs it.

#include <gtest/gtest.h>
#include <ostream>
#include <string>
#include <utility>

#include "kern/dates/datumtippen.h"
#include "kern/dates/tastenfilter.h"

namespace zinfolio {
namespace tastenfolge_test {

/// An entry field that has just gained the focus: its old text is selected, and the first key replaces it.
class Feld {
  public:
    Feld(Tastenfilter filter, std::string alterText) : filter_(filter), text_(std::move(alterText)) {}

    void Tippe(const std::string& tasten) {
        for (const char taste : tasten) {
            if (!verlassen_) Druecke(taste);
        }
    }

    /// From here on `DatumTippen` helps with each change of the text.
    void HilfBeimTippen() { hilfe_ = true; }

    [[nodiscard]] const std::string& Text() const { return text_; }
    [[nodiscard]] bool Verlassen() const { return verlassen_; }

  private:
    void Druecke(int taste) {
        const Tastenantwort antwort = TasteFiltern(filter_, taste, text_, ersteTaste_);
        ersteTaste_ = antwort.ersteTaste;
        verlassen_ = antwort.naechstesFeld;
        const std::string vorher = text_;
        if (antwort.taste != 0) Schreibe(antwort.taste);
        if (antwort.caretAnsEnde) markiert_ = false;
        if (hilfe_ && text_ != vorher) text_ = DatumTippen(text_, taste);
    }

    void Schreibe(int taste) {
        const bool ersetzt = markiert_;
        markiert_ = false;
        if (ersetzt) text_.clear();
        if (taste != '\b') {
            text_ += static_cast<char>(taste);
        } else if (!ersetzt && !text_.empty()) {
            text_.pop_back();
        }
    }

    Tastenfilter filter_;
    std::string text_;
    bool markiert_ = true;
    ErsteTaste ersteTaste_ = false;
    bool verlassen_ = false;
    bool hilfe_ = false;
};

/// Old text, keys ("\b" is Backspace, "\r" Enter), the text they leave, and whether the focus has moved on.
struct Folge {
    std::string alterText;
    std::string tasten;
    std::string text;
    bool verlassen = false;

    friend std::ostream& operator<<(std::ostream& strom, const Folge& folge) {
        return strom << "»" << folge.alterText << "« + " << testing::PrintToString(folge.tasten);
    }
};

void Pruefe(Tastenfilter filter, const Folge& folge) {
    Feld feld(filter, folge.alterText);
    feld.Tippe(folge.tasten);
    EXPECT_EQ(feld.Text(), folge.text);
    EXPECT_EQ(feld.Verlassen(), folge.verlassen);
}

class Datumsfeld : public testing::TestWithParam<Folge> {};
TEST_P(Datumsfeld, NimmtDieTasten) {
    Pruefe(Tastenfilter::datum, GetParam());
}
INSTANTIATE_TEST_SUITE_P(
    Folgen, Datumsfeld,
    testing::Values(Folge{"", "01.02.2007", "01.02.2007"}, Folge{"", "1.2.07\r", "1.2.07", true},
                    Folge{"", ".01..02.2007", "01.02.2007"},  // no point first, no two in a row
                    Folge{"", "1.2.2.7", "1.2.27"},           // no third point
                    Folge{"", "01.02.20071", "01.02.2007"},   // no eleventh character
                    Folge{"", "1a-,+2 /", "12"}, Folge{"", "12\b\b\b.3", "3"}, Folge{"", "1.\b.2", "1.2"},
                    Folge{"", "01.02.20071\b8\r", "01.02.2008", true}));
INSTANTIATE_TEST_SUITE_P(UeberAltemText, Datumsfeld,
                         testing::Values(Folge{"31.12.2006", "1.2.07", "1.2.07"},  //
                                         Folge{"31.12.2006", "\r", "31.12.2006", true},
                                         Folge{"31.12.2006", "\b", ""}, Folge{"31.12.2006", "\b.5", "5"},
                                         Folge{"31.12.20066", "\r", "31.12.20066", true},
                                         // A cancelled first key takes the selection away all the same.
                                         Folge{"31.12.2006", "x5", "31.12.2006"},
                                         Folge{"31.12.2006", ".\b\b07", "31.12.2007"},
                                         // Then a text that is too long is stuck.
                                         Folge{"31.12.20066", "x\b\r", "31.12.20066"}));

class Betragsfeld : public testing::TestWithParam<Folge> {};
TEST_P(Betragsfeld, NimmtDieTasten) {
    Pruefe(Tastenfilter::betrag, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Folgen, Betragsfeld,
                         testing::Values(Folge{"", "1234,56\r", "1234,56", true}, Folge{"", "-5", "-5"},
                                         Folge{"", "-1.234,5-6,7", "-1234,567"}, Folge{"", ",5", "5"},
                                         Folge{"", "+5", "5"}, Folge{"", "--5", "-5"},
                                         Folge{"", "-,5\r", "-,5", true}, Folge{"", "-\r", "-"},
                                         Folge{"", "-,\r", "-,"}, Folge{"", "\r", "", true},
                                         Folge{"", "-\r5\r", "-5", true}, Folge{"", "5\b-7", "-7"}));
INSTANTIATE_TEST_SUITE_P(UeberAltemText, Betragsfeld,
                         testing::Values(Folge{"100", "5", "5"}, Folge{"100", "-5", "-5"},
                                         Folge{"100", "\r", "100", true},
                                         // The comma is let through by the old text and stands alone then.
                                         Folge{"100", ",\r", ","}, Folge{"1,5", ",", "1,5"},
                                         // After a cancelled first key the sign comes too late.
                                         Folge{"100", "x-", "100"}, Folge{"100", "\b-5", "-5"}));

class Ganzzahlfeld : public testing::TestWithParam<Folge> {};
TEST_P(Ganzzahlfeld, NimmtDieTasten) {
    Pruefe(Tastenfilter::ganzzahl, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Folgen, Ganzzahlfeld,
                         testing::Values(Folge{"", "12\r", "12", true}, Folge{"", "-1,2.3+4x", "1234"},
                                         Folge{"7", "12", "12"}, Folge{"", "12\b3", "13"},
                                         Folge{"", "\r", "", true}));

class Prozentfeld : public testing::TestWithParam<Folge> {};
TEST_P(Prozentfeld, NimmtDieTasten) {
    Pruefe(Tastenfilter::prozent, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Folgen, Prozentfeld,
                         testing::Values(Folge{"", "3,5\r", "3,5", true}, Folge{"", ",5", "5"},
                                         Folge{"", "0,5,5", "0,55"}, Folge{"", "-3.5", "35"},
                                         Folge{"3,5", ",4", "4"}, Folge{"3", ",\r", ",", true},
                                         Folge{"", "3,\b\b,", ""}));

class Textfeld : public testing::TestWithParam<Folge> {};
TEST_P(Textfeld, NimmtDieTasten) {
    Pruefe(Tastenfilter::enter, GetParam());
}
INSTANTIATE_TEST_SUITE_P(Folgen, Textfeld,
                         testing::Values(Folge{"", "Rate -1,5 + 2.\r", "Rate -1,5 + 2.", true},
                                         Folge{"alt", "neu", "neu"}, Folge{"", "ab\bc", "ac"},
                                         Folge{"alt", "\r", "alt", true}));

class DatumsfeldMitHilfe : public testing::TestWithParam<Folge> {};
TEST_P(DatumsfeldMitHilfe, SetztPunkteUndStreichtZiffern) {
    Feld feld(Tastenfilter::datum, GetParam().alterText);
    feld.HilfBeimTippen();
    feld.Tippe(GetParam().tasten);
    EXPECT_EQ(feld.Text(), GetParam().text);
    EXPECT_EQ(feld.Verlassen(), GetParam().verlassen);
}
INSTANTIATE_TEST_SUITE_P(
    Folgen, DatumsfeldMitHilfe,
    testing::Values(Folge{"", "01022007\r", "01.02.2007", true}, Folge{"", "01.02.2007", "01.02.2007"},
                    Folge{"31.12.2006", "01022007", "01.02.2007"},
                    Folge{"", "0005", "05."},            // "00" is no day
                    Folge{"", "3124", "31."},            // no month begins with 2 or 4
                    Folge{"", "311302", "31.10.2"},      // there is no month 13
                    Folge{"", "310001", "31.01."},       // there is no month 00; the next 0 is struck as well
                    Folge{"", "31120207", "31.12.207"},  // a year begins with no 0
                    Folge{"", "31122007\b\b08", "31.12.2008"},
                    Folge{"", "3112\b", "31.1"},  // the point goes with the digit before it
                    Folge{"", "3112\b\b", "31."}, Folge{"", "3112\b\b\b", "3"},
                    Folge{"", "3112\b\b\b\b", ""}));

}  // namespace tastenfolge_test
}  // namespace zinfolio
