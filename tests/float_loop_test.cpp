#include "core/float_loop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "tests/test_files.h"

namespace zol {
namespace {

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

}  // namespace
}  // namespace zol
