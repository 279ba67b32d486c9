#include "core/sines.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace zol {
namespace {

/// Angles where a mistake would show: around the eighths of a turn, over the whole range, the smallest ones.
std::vector<double> telling_angles() {
  std::vector<double> angles{0, -0.0, 1e-300, std::numeric_limits<double>::denorm_min(), sine_limit, -sine_limit};
  std::mt19937 random(1);
  std::uniform_real_distribution<double> within(-1, 1);
  for (int eighth = -40; eighth <= 40; ++eighth) {
    for (const double off : {0.0, 1e-12, -1e-7, 1e-3}) angles.push_back(eighth * M_PI / 4 + off);
  }
  for (const double reach : {1.0, 4.0, 1e3, sine_limit}) {
    for (int n = 0; n < 100000; ++n) angles.push_back(within(random) * reach);
  }
  return angles;
}

TEST(Sines, KeepTheirBound) {
  const auto angles = telling_angles();
  std::vector<double> sines(angles.size());
  std::vector<double> cosines(angles.size());
  approximate_sines(angles, sines, cosines);
  double worst = 0;
  for (std::size_t i = 0; i < angles.size(); ++i) {
    ASSERT_NEAR(sines[i], std::sin(angles[i]), sine_error) << angles[i];
    ASSERT_NEAR(cosines[i], std::cos(angles[i]), sine_error) << angles[i];
    worst = std::max(worst, std::abs(cosines[i] - std::cos(angles[i])));
  }
  EXPECT_GT(worst, sine_error / 10) << "the bound is not idle";
}

TEST(Sines, AreNoNumberBeyondTheLimit) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  const std::vector<double> angles{std::nextafter(sine_limit, infinity), -2e9, 1e300, infinity, -infinity, NAN};
  std::vector<double> sines(angles.size());
  std::vector<double> cosines(angles.size());
  approximate_sines(angles, sines, cosines);
  for (std::size_t i = 0; i < angles.size(); ++i) {
    EXPECT_TRUE(std::isnan(sines[i]) && std::isnan(cosines[i])) << angles[i];
  }
}

}  // namespace
}  // namespace zol
