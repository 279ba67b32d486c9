#include "core/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace zol {
namespace {

TEST(LenientParse, TakesTheLongestLeadingNumber) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  using Row = std::pair<const char*, double>;
  for (const auto& [text, value] :
       {Row{"   ", 0.0}, Row{"-", 0.0}, Row{"1 2 3", 123.0}, Row{"- \t5", -5.0}, Row{"+.5", 0.5}, Row{"5.", 5.0},
        Row{"1.2.3", 1.2}, Row{"-.25x", -0.25}, Row{"1E-2", 0.01}, Row{"1d2", 100.0}, Row{"2D+1", 20.0},
        Row{"3e+", 3.0}, Row{"e3", 0.0}, Row{"0x10", 0.0}, Row{"1,5", 1.0}, Row{"-1e-999", 0.0}, Row{"1e999", infinite},
        Row{"1e-99999999999999999999", 0.0}, Row{"-1e99999999999999999999", -infinite}}) {
    EXPECT_DOUBLE_EQ(Val(text), value) << text;
  }
}

TEST(StrictParse, TakesNothingButANumber) {
  for (const auto* good : {"-1.5", ".5", "5.", "+2", "1e3", "1D-3"}) EXPECT_TRUE(strict_number(good)) << good;
  for (const auto* bad : {"", " 1", "1 ", "1 2", "0.5(3)", "?", ".", "1e", "1,5", "nan", "inf", "0x1", "\t1"}) {
    EXPECT_FALSE(strict_number(bad)) << bad;
  }
}

TEST(PlainText, HasSevenDigitsOfASingleFifteenOfADoubleAndNoExponent) {
  using Row = std::pair<Single, const char*>;
  for (const auto& [value, text] :
       {Row{0.0F, "0"}, Row{-0.0F, "0"}, Row{-1.0F, "-1"}, Row{-0.25F, "-.25"}, Row{0.08660254F, ".08660254"},
        Row{0.1F, ".1"}, Row{1.0e-10F, ".0000000001"}, Row{16777216.0F, "16777220"},
        Row{3.0e38F, "300000000000000000000000000000000000000"},
        Row{1.0000005F, "1"},            // 1.00000047683716, below the half
        Row{8388608.5F, "8388608"},      // an exact half goes to the even digit
        Row{9999999.5F, "10000000"}}) {  // 9999999.5 isn't a Single: it is 10000000
    EXPECT_EQ(plain_text(value), text);
  }
  EXPECT_EQ(plain_text(2.0 / 3.0), ".666666666666667");
  EXPECT_EQ(plain_text(1.0e15), "1000000000000000");
  EXPECT_EQ(Str(0.5F), " .5");
  EXPECT_EQ(Str(-0.5F), "-.5");
}

TEST(ShortestText, ReadsBackAsTheSameSingle) {
  EXPECT_EQ(shortest_text(0.1F), ".1");
  EXPECT_EQ(shortest_text(16777216), "16777216");
  // 7.038531e-26 is nearest to this one, but as a Double just half way to the next.
  EXPECT_EQ(shortest_text(std::bit_cast<Single>(0x15ae43fdU)), ".0000000000000000000000000703853069");
  std::mt19937 random(1);
  for (int n = 0; n < 20000; ++n) {
    const auto value = std::bit_cast<Single>(static_cast<std::uint32_t>(random()));
    if (!std::isfinite(value)) continue;
    const std::string text = shortest_text(value);
    ASSERT_EQ(text.find_first_of("eE"), std::string::npos);
    ASSERT_EQ(static_cast<Single>(leading_number(text)->value), value) << text;
  }
}

TEST(DigitPattern, GivesText) {
  struct Row {
    double value;
    const char* pattern;
    const char* text;
  };
  for (const auto& [value, pattern, text] :
       {Row{2, "##0.###", "2."}, Row{0, "###.##", "."}, Row{-0.5, "###.##", "-.5"}, Row{1234567, "##0", "1234567"},
        Row{-12.35, " ###0.00", "- 12.35"}, Row{-0.001, " ###0.00", "- 0.00"}, Row{-0.0, "0.00", "0.00"},
        Row{9.999, "#0.00", "10.00"}, Row{99.96, "##.#", "100."}, Row{0.30004, "#0.0###", "0.3"},
        Row{0.00849998, "#0.0####", "0.0085"}, Row{5, "000", "005"}, Row{1e22, "0", "10000000000000000000000"},
        Row{1e-20, "0.0#", "0.0"}, Row{12.5, ".00", "12.50"}, Row{0.125, "0.00", "0.13"},
        Row{-0.125, "0.00", "-0.13"},           // halves away from zero
        Row{1.005, "0.00", "1.01"},             // the decimal text decides, not the binary value
        Row{0.49999999999999994, "0", "1"}}) {  // its 15 digits are .500000000000000
    EXPECT_EQ(Format(value, pattern), text) << pattern;
  }
}

TEST(Fields, CutAndPad) {
  EXPECT_EQ(Format(std::string_view("Unobtainium"), "(&&&&&&) -"), "(Unobtainium) -") << "the whole name";
  EXPECT_EQ(right_field("12.5", 6), "  12.5");
  EXPECT_EQ(right_field("-123456.00", 8), "23456.00") << "loses its left end, sign included";
  EXPECT_EQ(left_field("Si1", 5), "Si1  ");
  EXPECT_EQ(left_field("verylonglabel", 8), "verylong");
}

}  // namespace
}  // namespace zol
