#include "reflections/reflection_list.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

#include "core/available_memory.h"
#include "core/cell_geometry.h"
#include "core/exchange_sort.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "reflections/structure_factor.h"

namespace zol {
namespace {

/// Twice what the sphere needs; the array size follows from it.
Integer index_limit(Single dmin, Single reciprocal_edge, std::string_view edge_name) {
  return Integer::floor(divide(divide(2.0, dmin, "Dmin"), reciprocal_edge, edge_name));
}

/// Upper bound of the arrays: the bounding box, divided by the centring of the lattice.
Long array_bound(const std::array<Integer, 3>& limits, std::string_view lattice_letter) {
  const auto span = [&limits](std::size_t axis) { return 2.0 * limits[axis].value() + 1.0; };
  const Long box = Long::rounded(to_single(span(0) * span(1) * span(2)));
  int centring = 1;
  if (lattice_letter == "A" || lattice_letter == "B" || lattice_letter == "C" || lattice_letter == "I") centring = 2;
  if (lattice_letter == "R") centring = 3;
  if (lattice_letter == "F") centring = 4;
  const int bound = box.value() / centring;
  return Long::rounded(to_single(bound));  // the size is held in a Single
}

/// A negative cell constant gives a negative limit; with an odd number of those there is no list.
void check_bound(const CrystalState& state, const std::array<Integer, 3>& limits, Long bound) {
  if (bound >= 0) return;
  struct Edge {
    std::string_view edge, angle;
    Single reciprocal, length, angle_deg;
  };
  const std::array edges{Edge{"a", "alpha", state.AStar, state.CellA, state.CellAlpha},
                         Edge{"b", "beta", state.BStar, state.CellB, state.CellBeta},
                         Edge{"c", "gamma", state.CStar, state.CellC, state.CellGamma}};
  std::ostringstream message;
  message << "the reflection list can't have " << plain_text(bound) << " entries: cell constants give";
  for (std::size_t axis = 0; axis < 3; ++axis) {
    if (limits[axis] >= 0) continue;
    const auto& [edge, angle, reciprocal, length, angle_deg] = edges[axis];
    message << ' ' << edge << "* = " << plain_text(reciprocal) << " (" << edge << " is " << plain_text(length)
            << " angstroms, " << angle << ' ' << plain_text(angle_deg) << " degrees)";
  }
  throw RunFailure(message.str());
}

void create_arrays(Module1State& state, Long bound) {
  const int upper = bound.value();
  state.RefH.allocate(upper);
  state.RefK.allocate(upper);
  state.RefL.allocate(upper);
  state.RefS.allocate(upper);
  state.RefA.allocate(upper);
  state.RefB.allocate(upper);
  state.RefI.allocate(upper);
  state.RefTwoTheta.allocate(upper);
  state.BandHKL.allocate(upper, 2);
}

struct IndexRange {
  int lowest = 0;
  int highest = 0;
};

std::array<IndexRange, 3> index_ranges(const std::array<Integer, 3>& limits, const EnumerationSettings& settings) {
  std::array<IndexRange, 3> ranges;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const int limit = limits[axis].value();
    ranges[axis] = {settings.negative[axis] ? -limit : 0, limit};
    if (const auto& fixed = settings.fixed[axis]) ranges[axis] = {fixed->value(), fixed->value()};
  }
  return ranges;
}

/// The arrays are filled together, so together they must fit: each by itself says nothing.
void check_memory_for_list(Long bound, const std::array<IndexRange, 3>& ranges) {
  constexpr std::uint64_t bytes_per_reflection = 6 * sizeof(Integer) + 5 * sizeof(Single);
  std::uint64_t reached = 1;
  for (const auto& [lowest, highest] : ranges) reached *= static_cast<std::uint64_t>(std::max(0, highest - lowest + 1));
  const auto filled = std::min(reached, static_cast<std::uint64_t>(bound.value()));
  require_memory("a list of up to " + std::to_string(filled) + " reflections", filled * bytes_per_reflection);
}

bool odd(Integer n) { return n.value() % 2 != 0; }
bool multiple_of_3(Integer n) { return n.value() % 3 == 0; }

bool selection_allows(const EnumerationSettings& settings, Integer h, Integer k) {
  const auto keeps = [](bool zero_wanted, bool other_wanted, Integer n) {
    return !(zero_wanted && !multiple_of_3(n)) && !(other_wanted && multiple_of_3(n));
  };
  const bool difference_counts = settings.h_minus_k_mod_3_zero || settings.h_minus_k_mod_3_not_zero;
  const Integer difference = difference_counts ? h - k : Integer(0);
  return keeps(settings.k_mod_3_zero, settings.k_mod_3_not_zero, k) &&
         keeps(settings.h_minus_k_mod_3_zero, settings.h_minus_k_mod_3_not_zero, difference) &&
         keeps(settings.h_mod_3_zero, settings.h_mod_3_not_zero, h);
}

void append_reflection(CrystalState& state, int h, int k, int l, Single length) {
  state.RefCount += 1;
  const int i = state.RefCount.value();
  state.RefH(i) = h;
  state.RefK(i) = k;
  state.RefL(i) = l;
  state.RefS(i) = to_single(double{length} / 2.0);
}

/// Sets RefTwoTheta(i). @returns the Bragg angle in radians, none when there is none
std::optional<Single> set_angle(CrystalState& state, int i) {
  const Single sine = to_single(double{state.RefS(i)} * double{state.WaveLength});
  if (state.WaveLength == 0 || std::abs(sine) >= 1) {
    state.RefTwoTheta(i) = 0;
    return std::nullopt;
  }
  const double theta_deg = ArcSin(sine);
  state.RefTwoTheta(i) = to_single(theta_deg + theta_deg);
  return to_single(double{state.RefTwoTheta(i)} / 2.0 * degree);
}

/// The columns h, k, l, k/2, d and 2-theta.
std::string geometry_columns(const CrystalState& state, int i, bool has_angle) {
  constexpr std::string_view index_pattern = "##0";
  const double s = state.RefS(i);
  std::string line = right_field(Format(state.RefH(i).value(), index_pattern), 4);
  line += right_field(Format(state.RefK(i).value(), index_pattern), 4);
  line += right_field(Format(state.RefL(i).value(), index_pattern), 4);
  line += right_field(Format(s, "##0.000"), 8);
  line += right_field(s > 0.0 ? Format(1.0 / s / 2.0, "#0.0000") : "", 9);
  line += right_field(has_angle ? Format(state.RefTwoTheta(i), " ##0.000") : "", 8);
  return line;
}

}  // namespace

bool centring_allows(char lattice_letter, Integer h, Integer k, Integer l) {
  switch (lattice_letter) {
    case 'A':
      return !odd(k + l);
    case 'B':
      return !odd(h + l);
    case 'C':
      return !odd(h + k);
    case 'I':
      return !odd(h + k + l);
    case 'F': {
      const std::array sums{h + k, k + l, h + l};  // each of them must fit, whatever the others are
      return std::none_of(sums.begin(), sums.end(), odd);
    }
    case 'R':  // obverse setting, hexagonal axes
      return multiple_of_3(-h + k + l);
    default:
      return true;
  }
}

void enumerate_reflections(CrystalState& state, const EnumerationSettings& settings) {
  const std::array limits{index_limit(state.Dmin, state.AStar, "a*"), index_limit(state.Dmin, state.BStar, "b*"),
                          index_limit(state.Dmin, state.CStar, "c*")};
  const Long bound = array_bound(limits, state.LatticeLetter);
  check_bound(state, limits, bound);
  const auto ranges = index_ranges(limits, settings);
  check_memory_for_list(bound, ranges);
  create_arrays(state, bound);
  const auto& [h_range, k_range, l_range] = ranges;
  const Single sphere = to_single(divide(1.0, state.Dmin, "Dmin"));
  const char letter = state.LatticeLetter.empty() ? 'P' : state.LatticeLetter.front();

  state.RefCount = 0;
  for (int h = h_range.lowest; h <= h_range.highest; ++h) {
    for (int k = k_range.lowest; k <= k_range.highest; ++k) {
      if (!selection_allows(settings, h, k)) continue;
      for (int l = l_range.lowest; l <= l_range.highest; ++l) {
        if ((h == 0 && k == 0 && l == 0) || !centring_allows(letter, h, k, l)) continue;
        const Single length = DHKL(state, h, k, l);
        if (sphere >= length) append_reflection(state, h, k, l, length);
      }
    }
  }
  if (state.KikuchiRefLimit == 0 || state.KikuchiRefLimit > state.RefCount) state.KikuchiRefLimit = state.RefCount;
}

void sort_by_s(CrystalState& state) {
  constexpr double never_taken = 1000;  // a key from here on is passed over
  std::vector<double> keys;
  for (int i = 0; i <= state.RefCount.value(); ++i) keys.push_back(state.RefS(i));
  const auto order = exchange_order(keys, 1, first_smallest_below(never_taken));
  reorder(state.RefS, order);
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) reorder(*array, order);
}

std::vector<std::string> compute_list(CrystalState& state, const Radiation& radiation) {
  // Observed reflections left from another crystal don't count beside atoms, however absurd they are.
  const bool observed_count = state.NAtom <= 0 && state.RefCount > 0;
  const auto observed = observed_count ? ObservedReflections(state) : ObservedReflections();
  ScatteringCell atoms(state, radiation);
  std::vector<std::string> lines;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    const auto theta = set_angle(state, i);
    std::string line = geometry_columns(state, i, theta.has_value());
    ReflectionIntensity(state, i, theta.value_or(0.0F), radiation, observed, atoms, line);
    if (state.RefI(i) > 0 || state.NAtom >= 1) lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace zol
