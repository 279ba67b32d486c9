#include "core/sines.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace zol {
namespace {

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
  for (int n = 0; n < 400000; ++n) angles.push_back(within(random) * std::array{1.0, 4.0, 1e3, sine_limit}[n % 4U]);
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

}  // namespace
}  // namespace zol
