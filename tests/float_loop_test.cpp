#include "core/float_loop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "tests/test_files.h"

namespace zol {
namespace {

constexpr auto rising = LoopSense::Rising;
constexpr auto falling = LoopSense::Falling;

std::vector<Single> values(Single from, Single limit, double step, LoopSense sense) {
  std::vector<Single> visited;
  float_loop("a loop", from, limit, step, sense, [&visited](Single value) { visited.push_back(value); });
  return visited;
}

TEST(FloatLoop, RoundsAfterEachStepAndTestsTheLimitBeforeEachRound) {
  EXPECT_EQ(values(0, 1, 0.5, rising), (std::vector<Single>{0, 0.5F, 1}));
  EXPECT_EQ(values(1, -0.75F, 0.5, falling), (std::vector<Single>{1, 0.5F, 0, -0.5F}));
  EXPECT_TRUE(values(1, 0, 0.5, rising).empty());
  // Ten roundings of 0.1F end above 1, so that 1 is not reached.
  EXPECT_EQ(values(0, 1, 0.1F, rising).size(), 10U);
  EXPECT_EQ(values(0, 1, 0.1F, rising)[8], 0.8000001F);
}

TEST(FloatLoop, FailsWhenItsStepsLeadNowhere) {
  struct Row {
    Single from, limit;
    double step;
    LoopSense sense;
  };
  // Half the spacing of Singles is rounded to even: 16777217 lies between two of them.
  for (const Row& row :
       {Row{0, 1, 0, rising}, Row{0, 0, -0.1, rising}, Row{0, 1e20F, 1, rising}, Row{-1e20F, 0, 1, rising},
        Row{16777210.0F, 16777220.0F, 1, rising}, Row{0, -1e20F, 1, falling}, Row{1e20F, 0, 1, falling}}) {
    EXPECT_NE(failure_of([&] { (void)values(row.from, row.limit, row.step, row.sense); }).find("which lead nowhere"),
              std::string::npos)
        << row.from << ' ' << row.step;
  }
  EXPECT_EQ(failure_of([] { (void)values(0, 1, -0.5, rising); }),
            "a loop goes from 0 to 1 by steps of -.5, which lead nowhere");
}

TEST(SkippingLoop, MeetsTheValuesOfTheLoopThatVisitsThemAll) {
  struct Row {
    Single from, limit;
    double step;
    LoopSense sense;
  };
  // The last but one have steps that end half-way between two Singles.
  for (const Row& row :
       {Row{-3.7F, 1e5F, 0.2173F, rising}, Row{3.7F, -1e5F, 0.2173F, falling}, Row{8388600, 8396000, 1.5, rising},
        Row{16777200.0F, 16787200.0F, 3, rising}, Row{-54, 60, 0.01F, rising}}) {
    const auto all = values(row.from, row.limit, row.step, row.sense);
    for (const double distance : {2.0, 777.0, 1e9}) {
      std::vector<Single> some;
      skipping_loop("a loop", row.from, row.limit, row.step, row.sense, [&some, distance](Single value) {
        some.push_back(value);
        return distance;
      });
      EXPECT_TRUE(std::includes(all.begin(), all.end(), some.begin(), some.end(),
                                [&row](Single a, Single b) { return row.sense == rising ? a < b : a > b; }))
          << row.from << ' ' << distance;
      EXPECT_LE(some.size(), distance > 2 ? all.size() / 2 : all.size()) << row.from << ' ' << distance;
      for (std::size_t i = 1; i < some.size(); ++i) {
        EXPECT_LE(std::abs(some[i] - some[i - 1]), std::max(distance, 2.0 * row.step));
      }
    }
  }
}

}  // namespace
}  // namespace zol
