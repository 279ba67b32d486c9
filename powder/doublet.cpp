#include "powder/doublet.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zol {
namespace {

constexpr std::array<KAlphaDoublet, 5> doublets{{
    {"Cr", 2.289726, 2.293651},
    {"Fe", 1.936041, 1.939973},
    {"Co", 1.788996, 1.792835},
    {"Cu", 1.540593, 1.544427},
    {"Mo", 0.709317, 0.713607},
}};

}  // namespace

std::optional<KAlphaDoublet> doublet_at(double wavelength) {
  constexpr double tolerance = 0.015;
  const auto* found = std::find_if(doublets.begin(), doublets.end(), [wavelength](const KAlphaDoublet& doublet) {
    return std::abs(wavelength / doublet.mean() - 1) < tolerance;
  });
  return found == doublets.end() ? std::nullopt : std::optional(*found);
}

}  // namespace zol
