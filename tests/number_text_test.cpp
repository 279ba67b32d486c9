#include "core/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace zol {
namespace {

struct ValCase {
  const char* text;
  double value;
};
class LenientParse : public testing::TestWithParam<ValCase> {};
TEST_P(LenientParse, TakesTheLongestLeadingNumber) { EXPECT_DOUBLE_EQ(Val(GetParam().text), GetParam().value); }
INSTANTIATE_TEST_SUITE_P(Texts, LenientParse,
                         testing::Values(ValCase{"", 0}, ValCase{"   ", 0}, ValCase{"abc", 0}, ValCase{".", 0},
                                         ValCase{"-", 0}, ValCase{"5.64", 5.64}, ValCase{" 5.64 ", 5.64},
                                         ValCase{"1 2 3", 123}, ValCase{"- \t5", -5}, ValCase{"+.5", 0.5},
                                         ValCase{"5.", 5}, ValCase{"-.25x", -0.25}, ValCase{"1.2.3", 1.2},
                                         ValCase{"90 deg", 90}, ValCase{"1e3", 1000}, ValCase{"1E-2", 0.01},
                                         ValCase{"1d2", 100}, ValCase{"2D+1", 20}, ValCase{"3e", 3}, ValCase{"3e+", 3},
                                         ValCase{"3ex", 3}, ValCase{"e3", 0}, ValCase{"--3", 0}, ValCase{"0x10", 0},
                                         ValCase{"1,5", 1}, ValCase{"1e-999", 0}, ValCase{"-1e-999", 0},
                                         ValCase{"1e999", std::numeric_limits<double>::infinity()},
                                         ValCase{"-1e99999999999999999999", -std::numeric_limits<double>::infinity()},
                                         ValCase{"1e-99999999999999999999", 0}));

TEST(StrictParse, TakesNothingButANumber) {
  for (const auto* good : {"1", "-1.5", ".5", "5.", "+2", "1e3", "1D-3"}) EXPECT_TRUE(strict_number(good)) << good;
  for (const auto* bad : {"", " 1", "1 ", "1 2", "0.5(3)", "?", ".", "1e", "1,5", "nan", "inf", "0x1", "\t1"}) {
    EXPECT_FALSE(strict_number(bad)) << bad;
  }
}

struct PlainCase {
  Single value;
  const char* text;
};
class PlainSingle : public testing::TestWithParam<PlainCase> {};
TEST_P(PlainSingle, HasSevenDigitsAndNoExponent) { EXPECT_EQ(plain_text(GetParam().value), GetParam().text); }
INSTANTIATE_TEST_SUITE_P(
    Values, PlainSingle,
    testing::Values(PlainCase{0, "0"}, PlainCase{-0.0F, "0"}, PlainCase{1, "1"}, PlainCase{-1, "-1"},
                    PlainCase{0.5F, ".5"}, PlainCase{-0.25F, "-.25"}, PlainCase{0.08660254F, ".08660254"},
                    PlainCase{123456789.0F, "123456800"}, PlainCase{1.0e-10F, ".0000000001"},
                    PlainCase{3.0e38F, "300000000000000000000000000000000000000"}, PlainCase{5.6402F, "5.6402"},
                    PlainCase{0.1F, ".1"}, PlainCase{16777216, "16777220"},
                    PlainCase{1.0000005F, "1"},           // 1.00000047683716, below the half
                    PlainCase{8388608.5F, "8388608"},     // an exact half goes to the even digit
                    PlainCase{9999999.5F, "10000000"}));  // 9999999.5 isn't a Single: it is 10000000

TEST(PlainText, OfADoubleHas15DigitsAndOfAWholeNumberAll) {
  EXPECT_EQ(plain_text(1.0 / 3.0), ".333333333333333");
  EXPECT_EQ(plain_text(2.0 / 3.0), ".666666666666667");
  EXPECT_EQ(plain_text(1.0e15), "1000000000000000");
  EXPECT_EQ(plain_text(Long(-2147483647)), "-2147483647");
  EXPECT_EQ(Str(0.5F), " .5");
  EXPECT_EQ(Str(-0.5F), "-.5");
  EXPECT_EQ(Str(Integer(12)), " 12");
}

TEST(ShortestText, ReadsBackAsTheSameSingle) {
  EXPECT_EQ(shortest_text(0.1F), ".1");
  EXPECT_EQ(shortest_text(5.6402F), "5.6402");
  EXPECT_EQ(shortest_text(16777216), "16777216");
  EXPECT_EQ(shortest_text(1.0F / 3.0F), ".33333334");
  std::mt19937 random(1);
  for (int n = 0; n < 20000; ++n) {
    const auto value = std::bit_cast<Single>(static_cast<std::uint32_t>(random()));
    if (!std::isfinite(value)) continue;
    const std::string text = shortest_text(value);
    ASSERT_EQ(text.find_first_of("eE"), std::string::npos);
    ASSERT_EQ(leading_number(text)->single, value) << text;
  }
}

struct FormatCase {
  double value;
  const char* pattern;
  const char* text;
};
class DigitPattern : public testing::TestWithParam<FormatCase> {};
TEST_P(DigitPattern, GivesText) { EXPECT_EQ(Format(GetParam().value, GetParam().pattern), GetParam().text); }
INSTANTIATE_TEST_SUITE_P(
    Values, DigitPattern,
    testing::Values(FormatCase{2.5, "##0.000", "2.500"}, FormatCase{2, "##0.###", "2."}, FormatCase{0, "##0.###", "0."},
                    FormatCase{0, "###.##", "."}, FormatCase{0.5, "###.##", ".5"}, FormatCase{-0.5, "###.##", "-.5"},
                    FormatCase{60, "####.###", "60."}, FormatCase{1234567, "##0", "1234567"},
                    FormatCase{-12.35, " ###0.00", "- 12.35"}, FormatCase{12.345, " ##0.000", " 12.345"},
                    FormatCase{-0.001, " ###0.00", "- 0.00"}, FormatCase{-0.0, "0.00", "0.00"},
                    FormatCase{0.125, "0.00", "0.13"},          // halves away from zero
                    FormatCase{-0.125, "0.00", "-0.13"},        //
                    FormatCase{1.005, "0.00", "1.01"},          // the decimal text decides, not the binary value
                    FormatCase{2.675, "#0.0#", "2.68"},         //
                    FormatCase{0.49999999999999994, "0", "1"},  // its 15 digits are .500000000000000
                    FormatCase{9.999, "#0.00", "10.00"}, FormatCase{99.96, "##.#", "100."},
                    FormatCase{0.3, "#0.0####", "0.3"}, FormatCase{0.30004, "#0.0###", "0.3"},
                    FormatCase{0.00849998, "#0.0####", "0.0085"}, FormatCase{5, "000", "005"},
                    FormatCase{299, "000", "299"}, FormatCase{7, "(#0)", "(7)"},
                    FormatCase{1e22, "0", "10000000000000000000000"}, FormatCase{1e-20, "0.0#", "0.0"},
                    FormatCase{0.5, ".00", ".50"}, FormatCase{12.5, ".00", "12.50"}));

TEST(TextPattern, PutsTheWholeNameInsideTheLiterals) {
  EXPECT_EQ(Format(std::string_view("Fe"), "(&&&&&&) -"), "(Fe) -");
  EXPECT_EQ(Format(std::string_view(""), "(&&&&&&) -"), "() -");
  EXPECT_EQ(Format(std::string_view("Unobtainium"), "&&&&&&"), "Unobtainium");
}

TEST(Fields, CutAndPad) {
  EXPECT_EQ(right_field("12.5", 6), "  12.5");
  EXPECT_EQ(right_field("-123456.00", 8), "23456.00");  // loses its left end, sign included
  EXPECT_EQ(left_field("Si1", 5), "Si1  ");
  EXPECT_EQ(left_field("verylonglabel", 8), "verylong");
}

}  // namespace
}  // namespace zol
