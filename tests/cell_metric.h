// Metric matrices of cells in direct space, worked out apart from the program, for tests of the data files.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include "core/space_group.h"

namespace zol {

inline constexpr int standard_groups = 230;
inline constexpr int all_groups = 250;

/// Path of a space group file.
inline std::string file_of(int number) {
  std::string digits = std::to_string(number);
  digits.insert(0, 3 - digits.size(), '0');
  return std::string(ZOL_SOURCE_DIR "/data/ZOL/") + "SpaceGr/No" + digits + ".dat";
}

/// g(a, b) = a.b for the three edges, in Å^2.
using Metric = std::array<std::array<double, 3>, 3>;

inline Metric metric(double a, double b, double c, double alpha_deg, double beta_deg, double gamma_deg) {
  const auto cosine = [](double deg) { return std::cos(deg * std::numbers::pi / 180); };
  const double ab = a * b * cosine(gamma_deg);
  const double ac = a * c * cosine(beta_deg);
  const double bc = b * c * cosine(alpha_deg);
  return {{{a * a, ab, ac}, {ab, b * b, bc}, {ac, bc, c * c}}};
}

/// The largest difference in Å^2 between the metric and itself turned by an operator, R^T g R.
inline double metric_change(const SpaceGroup& group, const Metric& g) {
  double largest = 0.0;
  for (const auto& [r, translation] : group.operators) {
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) {
        double turned = 0.0;
        for (std::size_t k = 0; k < 3; ++k) {
          for (std::size_t l = 0; l < 3; ++l) turned += r[k][i] * g[k][l] * r[l][j];
        }
        largest = std::max(largest, std::abs(turned - g[i][j]));
      }
    }
  }
  return largest;
}

}  // namespace zol
