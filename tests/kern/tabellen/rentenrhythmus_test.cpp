#include "kern/tabellen/rentenrhythmus.h"

#include <gtest/gtest.h>

namespace zinfolio {
namespace rentenrhythmus_test {

struct Rhythmusfall {
    Rentenrhythmus rhythmus;
    double m;
    double vorschuessig;
    double nachschuessig;
};

TEST(Rentenrhythmus, ZahlungenUndKonstantenDerTafel) {
    constexpr Rhythmusfall tafel[] = {
        {Rentenrhythmus::monatlich, 12, 6.5, 5.5},       {Rentenrhythmus::alle2Monate, 6, 3.5, 2.5},
        {Rentenrhythmus::vierteljaehrlich, 4, 2.5, 1.5}, {Rentenrhythmus::alle4Monate, 3, 2, 1},
        {Rentenrhythmus::halbjaehrlich, 2, 1.5, 0.5},    {Rentenrhythmus::jaehrlich, 1, 1, 0},
    };
    for (const Rhythmusfall& fall : tafel) {
        EXPECT_EQ(Zahlungszahl(fall.rhythmus), fall.m);
        EXPECT_EQ(Rentenkonstante(fall.rhythmus, Rentenfaelligkeit::vorschuessig), fall.vorschuessig);
        EXPECT_EQ(Rentenkonstante(fall.rhythmus, Rentenfaelligkeit::nachschuessig), fall.nachschuessig);
    }
}

TEST(Rentenrhythmus, TexteDerListen) {
    constexpr std::array<std::string_view, 6> rhythmen{"Monatlich",     "Alle 2 Monate", "Vierteljährlich",
                                                       "Alle 4 Monate", "Halbjährlich",  "Jährlich"};
    EXPECT_EQ(rentenrhythmen, rhythmen);
    constexpr std::array<std::string_view, 2> faelligkeiten{"nachschüssig", "vorschüssig"};
    EXPECT_EQ(rentenfaelligkeiten, faelligkeiten);
}

}  // namespace rentenrhythmus_test
}  // namespace zinfolio
