#include "core/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "core/available_memory.h"
#include "core/bounded_array.h"
#include "core/float_loop.h"
#include "core/number_text.h"
#include "core/shared_vector.h"
#include "core/sines.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(Rounding, GoesToTheEvenNumberAtAHalf) {
  for (const auto& [value, whole] :
       {std::pair{0.5, 0}, {1.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.4999, 2}, {-32768.5, -32768}}) {
    EXPECT_EQ(Integer::rounded(value).value(), whole) << value;
  }
  EXPECT_EQ(Integer::floor(-0.25).value(), -1);
  EXPECT_EQ(Long::floor(2147483647.9).value(), 2147483647);
}

TEST(WholeNumbers, FailInsteadOfWrappingAround) {
  EXPECT_EQ((Integer(300) * Integer(109)).value(), 32700);
  EXPECT_TRUE(fails_with("33000 does not fit an Integer", [] { (void)(Integer(300) * Integer(110)); }));
  EXPECT_TRUE(fails_with("32768 does not fit an Integer", [] { (void)-Integer(-32768); }));
  EXPECT_TRUE(fails_with("32767.5 does not fit an Integer", [] { (void)Integer::rounded(32767.5); }));
  EXPECT_TRUE(fails_with("does not fit an Integer", [] { (void)Integer::rounded(NAN); }));
  EXPECT_TRUE(fails_with("does not fit a Long", [] { (void)(Long(2147483647) + Long(1)); }));
  EXPECT_TRUE(Integer(5) < 40000);  // a comparison is no conversion
}

TEST(CheckedSteps, NameWhatFailed) {
  EXPECT_TRUE(fails_with("too large for a Single", [] { (void)to_single(-1e39); }));
  EXPECT_TRUE(fails_with("a calculation gave no number", [] { (void)to_single(NAN); }));
  EXPECT_EQ(to_single(1e-60), 0.0F);
  EXPECT_EQ(failure_of([] { (void)divide(1.0, 0.0, "Dmin"); }), "division by zero: Dmin is 0");
  EXPECT_TRUE(fails_with("x is 0", [] { (void)divide(1.0, NAN, "x"); }));
  EXPECT_EQ(failure_of([] { (void)square_root(-0.5, "the radicand"); }),
            "square root of a negative number: the radicand is -.5");
}

// Copies share nothing; what lies behind the last element handed out counts as zero.
TEST(BoundedArrays, AreCopiedAndComparedByTheirElements) {
  BoundedArray<Single> array("A", 1000000), other("A", 1000000);
  array(3) = 1;
  auto copy = array;
  EXPECT_TRUE(copy == array && !(copy == other));
  (void)copy(999999);
  EXPECT_TRUE(copy == array && array == copy) << "looked at, not changed";
  copy(500000) = 2;
  EXPECT_TRUE(!(copy == array) && !(array == copy) && std::as_const(array)(500000) == 0);
  other = copy;
  array = std::move(copy);
  EXPECT_TRUE(array == other && array(500000) == 2);
  SharedVector<int> list, before;
  list.push_back(1);
  before = list;
  list.push_back(2);
  EXPECT_TRUE(before.size() == 1 && list.size() == 2 && !(before == list));
}

TEST(BoundedArrays, CheckEveryIndex) {
  BoundedArray<Single> array("RefS");
  EXPECT_EQ(failure_of([&] { (void)array(0); }), "index 0 of RefS, which has not been allocated yet");
  array.allocate(3);
  array(3) = 2;
  EXPECT_EQ(failure_of([&] { (void)array(4); }), "index 4 of RefS is outside 0 to 3");
  EXPECT_THROW((void)array(-1), RunFailure);
  array.allocate(5);
  EXPECT_EQ(array(3), 0) << "a new allocation discards the contents";

  BoundedTable<Integer> table("BandHKL", 2, 2);
  table(1, 2) = 7;
  EXPECT_EQ(table(2, 0), 0) << "columns must not run into the next row";
  for (const auto& [row, column] : {std::pair{1, 3}, {3, 0}, {0, -1}}) {
    EXPECT_THROW((void)table(row, column), RunFailure) << row << ' ' << column;
  }
  EXPECT_EQ(failure_of([&] { table.allocate(-1, 2); }), "the last index of BandHKL would be -1, it must be 0 or more");
  EXPECT_TRUE(fails_with("not enough memory for BandHKL(0 to 2147483646): it takes 4194303 MB, there are ",
                         [&] { table.allocate(2147483646, 1023); }));
  EXPECT_EQ(table.upper_row(), -1);
}

// 8 GB free in a machine of which a control group may have 2 GB, less what it uses and cannot give back.
TEST(AvailableMemory, IsTheLeastOfMachineAndControlGroups) {
  constexpr std::uint64_t kb = 1024;
  constexpr std::uint64_t gb = kb * kb * kb;
  const ScratchFolder root;
  EXPECT_EQ(available_memory(root.path("")), std::nullopt);
  root.write("proc/meminfo", "MemTotal:       16000000 kB\nMemAvailable:    8388608 kB\n");
  EXPECT_EQ(available_memory(root.path("")), 8 * gb);
  root.write("proc/self/cgroup", "3:cpu,memory:/a\n0::/user/work\n");
  root.write("sys/fs/cgroup/user/work/memory.max", "max\n");
  root.write("sys/fs/cgroup/user/work/memory.current", "1024\n");
  root.write("sys/fs/cgroup/user/memory.max", std::to_string(2 * gb));
  root.write("sys/fs/cgroup/user/memory.current", std::to_string(gb + 5 * kb));
  root.write("sys/fs/cgroup/user/memory.stat", "anon 1\ninactive_file 1024\n");
  EXPECT_EQ(available_memory(root.path("")), gb - 4 * kb) << "a group above";
  root.write("sys/fs/cgroup/memory/memory.limit_in_bytes", std::to_string(gb));
  root.write("sys/fs/cgroup/memory/memory.usage_in_bytes", std::to_string(2 * gb));
  EXPECT_EQ(available_memory(root.path("")), 0U) << "version 1, mounted at the group itself";
}

constexpr auto falling = LoopSense::Falling;

struct Loop {
  Single from, limit;
  double step;
  LoopSense sense = LoopSense::Rising;
};

std::vector<Single> values(const Loop& loop, double distance = 0) {
  std::vector<Single> visited;
  skipping_loop("a loop", loop.from, loop.limit, loop.step, loop.sense, [&visited, distance](Single value) {
    visited.push_back(value);
    return distance;
  });
  return visited;
}

TEST(FloatLoop, RoundsAfterEachStepAndTestsTheLimitBeforeEachRound) {
  EXPECT_EQ(values({0, 1, 0.5}), (std::vector<Single>{0, 0.5F, 1}));
  EXPECT_EQ(values({1, -0.75F, 0.5, falling}), (std::vector<Single>{1, 0.5F, 0, -0.5F}));
  EXPECT_TRUE(values({1, 0, 0.5}).empty());
  // Ten roundings of 0.1F end above 1, so that 1 is not reached.
  EXPECT_EQ(values({0, 1, 0.1F}).size(), 10U);
  EXPECT_EQ(values({0, 1, 0.1F})[8], 0.8000001F);
}

TEST(FloatLoop, FailsWhenItsStepsLeadNowhere) {
  // Half the spacing of Singles is rounded to even: 16777217 lies between two of them.
  for (const Loop& loop :
       {Loop{0, 1, 0}, Loop{0, 0, -0.1}, Loop{0, 1e20F, 1}, Loop{-1e20F, 0, 1}, Loop{16777210.0F, 16777220.0F, 1},
        Loop{0, -1e20F, 1, falling}, Loop{1e20F, 0, 1, falling}}) {
    EXPECT_TRUE(fails_with("which lead nowhere", [&loop] { (void)values(loop); })) << loop.from << ' ' << loop.step;
  }
  EXPECT_TRUE(fails_with("a loop goes from 0 to 1 by steps of -.5, which", [] { (void)values({0, 1, -0.5}); }));
}

TEST(SkippingLoop, MeetsTheValuesOfTheLoopThatVisitsThemAll) {
  // The last but one have steps that end half-way between two Singles.
  for (const Loop& loop : {Loop{-3.7F, 1e5F, 0.2173F}, Loop{3.7F, -1e5F, 0.2173F, falling}, Loop{8388600, 8396000, 1.5},
                           Loop{16777200.0F, 16787200.0F, 3}, Loop{-54, 60, 0.01F}}) {
    const auto all = values(loop);
    const auto before = [&loop](Single a, Single b) { return loop.sense == falling ? a > b : a < b; };
    for (const double distance : {2.0, 777.0, 1e9}) {
      SCOPED_TRACE(testing::Message() << loop.from << ' ' << distance);
      const auto some = values(loop, distance);
      EXPECT_TRUE(std::includes(all.begin(), all.end(), some.begin(), some.end(), before));
      EXPECT_LE(some.size(), distance > 2 ? all.size() / 2 : all.size());
      for (std::size_t i = 1; i < some.size(); ++i) {
        EXPECT_LE(std::abs(some[i] - some[i - 1]), std::max(distance, 2.0 * loop.step));
      }
    }
  }
}

// Around the eighths of a turn, over the whole range, the smallest angles, and beyond the limit.
TEST(Sines, KeepTheirBoundUpToTheLimit) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const double beyond = std::nextafter(sine_limit, infinity);
  std::vector<double> angles{0, -0.0, 5e-324, sine_limit, -sine_limit, beyond, -beyond, 1e300, -infinity, NAN};
  std::mt19937 random(1);
  std::uniform_real_distribution<double> within(-1, 1);
  for (int eighth = -40; eighth <= 40; ++eighth) {
    for (const double off : {0.0, 1e-12, -1e-7, 1e-3}) angles.push_back(eighth * M_PI / 4 + off);
  }
  for (std::size_t n = 0; n < 400000; ++n) {
    angles.push_back(within(random) * std::array{1.0, 4.0, 1e3, sine_limit}[n % 4]);
  }
  std::vector<double> sines(angles.size());
  std::vector<double> cosines(angles.size());
  approximate_sines(angles, sines, cosines);
  double worst = 0;
  for (std::size_t i = 0; i < angles.size(); ++i) {
    if (std::abs(angles[i]) <= sine_limit) {
      ASSERT_NEAR(sines[i], std::sin(angles[i]), sine_error) << angles[i];
      ASSERT_NEAR(cosines[i], std::cos(angles[i]), sine_error) << angles[i];
      worst = std::max(worst, std::abs(cosines[i] - std::cos(angles[i])));
    } else {
      EXPECT_TRUE(std::isnan(sines[i]) && std::isnan(cosines[i])) << angles[i];
    }
  }
  EXPECT_GT(worst, sine_error / 10) << "the bound is not idle";
}

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
        Row{9999999.5F, "10000000"}}) {  // 9999999.5 is not a Single: it is 10000000
    EXPECT_EQ(plain_text(value), text);
  }
  EXPECT_EQ(plain_text(2.0 / 3.0), ".666666666666667");
  EXPECT_EQ(plain_text(1.0e15), "1000000000000000");
  EXPECT_EQ(Str(0.5F), " .5");
  EXPECT_EQ(Str(-0.5F), "-.5");
}

TEST(ShortText, HasNoMoreDigitsThanItTakes) {
  for (const auto& [value, text] : {std::pair{0.05, "0.05"},
                                    {-0.00001, "0"},
                                    {30.0, "30"},
                                    {-2.5, "-2.5"},
                                    {1e-9, "0"},
                                    {0.99999, "1"},
                                    {100.0, "100"},
                                    {0.12345, "0.1235"}}) {
    EXPECT_EQ(short_text(value, 4), text);
  }
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
