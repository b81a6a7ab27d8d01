#include <functional>
#include <gmock/gmock.h>
#include <string>
#include <utility>
#include <vector>

#include "kern/bericht/htmlbericht.h"
#include "kern/bericht/kleinerbericht.h"
#include "kern/bericht/rtfbericht.h"

namespace zinfolio {
namespace schreibfortschritt_test {

using testing::ElementsAre;
using testing::Pair;

using Schreiber = bool (*)(const Bericht&, const Berichtssenke&, const Fortschritt&);
using Meldung = std::pair<std::size_t, std::size_t>;

/// Both writers keep the same promises.
class Berichtsschreiber : public testing::TestWithParam<Schreiber> {
  protected:
    /// Writes a report, cancels at the call of this number, and keeps what was told.
    bool Schreiben(const Bericht& bericht, std::size_t abbruchBei = 1'000'000) {
        return GetParam()(
            bericht,
            [&](std::string_view teil) {
                text_ += teil;
                ++teile_;
            },
            [&](std::size_t erledigt, std::size_t von) {
                meldungen_.emplace_back(erledigt, von);
                return meldungen_.size() != abbruchBei;
            });
    }

    std::string text_;
    std::size_t teile_ = 0;
    std::vector<Meldung> meldungen_;
};

/// A report of many rows, more than one block.
Bericht GrosserBericht() {
    Bericht bericht = KleinerBericht();
    bericht.tabelle.zeilen = 20'000;
    bericht.tabelle.zelle = [](std::size_t zeile, std::size_t) { return std::to_string(zeile); };
    return bericht;
}

TEST_P(Berichtsschreiber, EinKleinerBerichtHatAnfangUndEnde) {
    EXPECT_TRUE(Schreiben(KleinerBericht()));
    EXPECT_THAT(meldungen_, ElementsAre(Pair(0, 2), Pair(2, 2)));
    EXPECT_EQ(teile_, 1);
}

TEST_P(Berichtsschreiber, OhneZeilenIstEsEinSchritt) {
    EXPECT_TRUE(Schreiben(Bericht{}));
    EXPECT_THAT(meldungen_, ElementsAre(Pair(0, 1), Pair(1, 1)));
}

TEST_P(Berichtsschreiber, DerFortschrittGehtNieZurueckUndKommtAn) {
    EXPECT_TRUE(Schreiben(GrosserBericht()));
    ASSERT_GT(meldungen_.size(), 10U);
    EXPECT_TRUE(std::is_sorted(meldungen_.begin(), meldungen_.end()));
    EXPECT_THAT(meldungen_.front(), Pair(0, 20'000));
    EXPECT_THAT(meldungen_.back(), Pair(20'000, 20'000));
    EXPECT_EQ(teile_ + 1, meldungen_.size()) << "each block is a step, and the start is one";
}

TEST_P(Berichtsschreiber, OhneZuhoererKommtDasselbeDokument) {
    EXPECT_TRUE(Schreiben(GrosserBericht()));
    std::string still;
    EXPECT_TRUE(GetParam()(GrosserBericht(), [&](std::string_view teil) { still += teil; }, {}));
    EXPECT_EQ(still, text_);
}

TEST_P(Berichtsschreiber, EinAbbruchAmAnfangSchreibtNichts) {
    EXPECT_FALSE(Schreiben(GrosserBericht(), 1));
    EXPECT_EQ(text_, "");
    EXPECT_EQ(meldungen_.size(), 1U);
}

TEST_P(Berichtsschreiber, EinAbbruchUnterwegsHoertAuf) {
    EXPECT_FALSE(Schreiben(GrosserBericht(), 3));
    EXPECT_EQ(meldungen_.size(), 3U);
    EXPECT_EQ(teile_, 2U);
    EXPECT_LT(meldungen_.back().first, 20'000U);
}

TEST_P(Berichtsschreiber, EinAbbruchAmEndeGiltNoch) {
    EXPECT_FALSE(Schreiben(KleinerBericht(), 2));
}

TEST_P(Berichtsschreiber, EinFehlerDerSenkeKommtDurch) {
    const Berichtssenke voll = [](std::string_view) { throw std::runtime_error("voll"); };
    EXPECT_THROW((void)GetParam()(GrosserBericht(), voll, {}), std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Alle, Berichtsschreiber,
                         testing::Values(&RtfBerichtSchreiben, &HtmlBerichtSchreiben));

}  // namespace schreibfortschritt_test
}  // namespace zinfolio
