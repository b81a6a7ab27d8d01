#include "kern/dateien/festtext.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace zinfolio {
namespace festtext_test {

using namespace std::string_view_literals;

static_assert(std::is_trivially_copyable_v<Festtext<10>>);
static_assert(sizeof(Festtext<25>) == 25);
static_assert(Festtext<4>::AusWindows1252("ab").Roh() == "ab  ");

TEST(Festtext, NieZugewiesenSindNullbytes) {
    const Festtext<3> feld;
    EXPECT_EQ(feld.Roh(), "\0\0\0"sv);
    EXPECT_EQ(feld.Getrimmt(), "");
}

TEST(Festtext, KurzerTextWirdMitLeerzeichenAufgefuellt) {
    const auto feld = Festtext<5>::AusWindows1252("ab");
    EXPECT_EQ(feld.Roh(), "ab   ");
    EXPECT_EQ(feld.Getrimmt(), "ab");
}

TEST(Festtext, GenauPassenderTextBleibt) {
    const auto feld = Festtext<3>::AusWindows1252("abc");
    EXPECT_EQ(feld.Roh(), "abc");
    EXPECT_EQ(feld.Getrimmt(), "abc");
}

TEST(Festtext, LangerTextWirdAbgeschnitten) {
    EXPECT_EQ(Festtext<3>::AusWindows1252("abcd").Roh(), "abc");
}

TEST(Festtext, LeererTextSindLeerzeichenUndNichtNieZugewiesen) {
    const auto leer = Festtext<2>::AusWindows1252("");
    EXPECT_EQ(leer.Roh(), "  ");
    EXPECT_EQ(leer.Getrimmt(), "");
    EXPECT_NE(leer, Festtext<2>());
}

TEST(Festtext, NurDasEndeWirdGetrimmt) {
    EXPECT_EQ(Festtext<8>::AusWindows1252(" a b").Getrimmt(), " a b");
    EXPECT_EQ(Festtext<8>::AusWindows1252("a\0b \0 "sv).Getrimmt(), "a\0b"sv);
}

TEST(Festtext, GleichIstBytegleich) {
    EXPECT_EQ(Festtext<4>::AusWindows1252("ab"), Festtext<4>::AusWindows1252("ab  "));
    EXPECT_NE(Festtext<4>::AusWindows1252("ab"), Festtext<4>::AusWindows1252("Ab"));
}

}  // namespace festtext_test
}  // namespace zinfolio
