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

/// Lattice points of a cell.
int centring_of(std::string_view lattice_letter) {
  if (lattice_letter == "F") return 4;
  if (lattice_letter == "R") return 3;
  return lattice_letter == "A" || lattice_letter == "B" || lattice_letter == "C" || lattice_letter == "I" ? 2 : 1;
}

/// Upper bound of the arrays: the bounding box, divided by the centring of the lattice.
Long array_bound(const std::array<Integer, 3>& limits, std::string_view lattice_letter) {
  const auto span = [&limits](std::size_t axis) { return 2.0 * limits[axis].value() + 1.0; };
  const Long box = Long::rounded(to_single(span(0) * span(1) * span(2)));
  const int bound = box.value() / centring_of(lattice_letter);
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
  message << "the reflection list cannot have " << plain_text(bound) << " entries: cell constants give";
  for (std::size_t axis = 0; axis < 3; ++axis) {
    if (limits[axis] >= 0) continue;
    const auto& [edge, angle, reciprocal, length, angle_deg] = edges[axis];
    message << ' ' << edge << "* = " << plain_text(reciprocal) << " (" << edge << " is " << plain_text(length)
            << " angstroms, " << angle << ' ' << plain_text(angle_deg) << " degrees)";
  }
  throw RunFailure(message.str());
}

ReflectionList empty_list(Long bound) {
  const int upper = bound.value();
  ReflectionList list;
  for (auto* array : {&list.h, &list.k, &list.l}) array->allocate(upper);
  for (auto* array : {&list.s, &list.a, &list.b, &list.i, &list.two_theta}) array->allocate(upper);
  list.bands.allocate(upper, 2);
  return list;
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

/// The box of indices reaches twice as far as the sphere; of what lies inside, the centring leaves its part.
Effort effort_of_list(const CrystalState& state, const EnumerationSettings& settings) {
  const std::array limits{index_limit(state.Dmin, state.AStar, "a*"), index_limit(state.Dmin, state.BStar, "b*"),
                          index_limit(state.Dmin, state.CStar, "c*")};
  double box = 1;
  for (const auto& [lowest, highest] : index_ranges(limits, settings)) box *= std::max(0, highest - lowest + 1);
  const double oblique = double{state.AStar} * double{state.BStar} * double{state.CStar} * double{state.CellVolume};
  constexpr double sphere_in_box = 3.14159265 / 6 / 8;
  const double part = std::clamp(oblique > 0 ? sphere_in_box * oblique : 1.0, 0.0, 1.0);
  const double reflections = box * part / centring_of(state.LatticeLetter);
  constexpr double of_place = 5e-9;
  constexpr double of_reflection = 4.5e-6;
  constexpr double of_atom = 1.4e-8;
  constexpr double bytes_of_reflection = 320;
  return {box * of_place + reflections * (of_reflection + of_atom * state.NCell.value()),
          reflections * bytes_of_reflection};
}

void append_reflection(ReflectionList& list, int h, int k, int l, Single length) {
  list.count += 1;
  const int i = list.count.value();
  list.h(i) = h;
  list.k(i) = k;
  list.l(i) = l;
  list.s(i) = to_single(double{length} / 2.0);
}

/// 2-theta in degrees, none when there is no angle.
std::optional<Single> angle_of(Single wavelength, Single s) {
  const Single sine = to_single(double{s} * double{wavelength});
  if (wavelength == 0 || std::abs(sine) >= 1) return std::nullopt;
  const double theta_deg = ArcSin(sine);
  return to_single(theta_deg + theta_deg);
}

/// The columns h, k, l, k/2, d and 2-theta.
std::string geometry_columns(const ListEntry& entry, std::optional<Single> two_theta_deg) {
  constexpr std::string_view index_pattern = "##0";
  constexpr std::size_t whole_line = 80;  // those of the intensity behind them included
  const double s = entry.s;
  std::string line;
  line.reserve(whole_line);
  line += right_field(Format(entry.h.value(), index_pattern), 4);
  line += right_field(Format(entry.k.value(), index_pattern), 4);
  line += right_field(Format(entry.l.value(), index_pattern), 4);
  line += right_field(Format(s, "##0.000"), 8);
  line += right_field(s > 0.0 ? Format(1.0 / s / 2.0, "#0.0000") : "", 9);
  line += right_field(two_theta_deg ? Format(*two_theta_deg, " ##0.000") : "", 8);
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

ReflectionList enumerate_reflections(const CrystalState& state, const EnumerationSettings& settings, Task& task) {
  const std::array limits{index_limit(state.Dmin, state.AStar, "a*"), index_limit(state.Dmin, state.BStar, "b*"),
                          index_limit(state.Dmin, state.CStar, "c*")};
  const Long bound = array_bound(limits, state.LatticeLetter);
  check_bound(state, limits, bound);
  const auto ranges = index_ranges(limits, settings);
  check_memory_for_list(bound, ranges);
  ReflectionList list = empty_list(bound);
  const auto& [h_range, k_range, l_range] = ranges;
  const Single sphere = to_single(divide(1.0, state.Dmin, "Dmin"));
  const char letter = state.LatticeLetter.empty() ? 'P' : state.LatticeLetter.front();

  for (int h = h_range.lowest; h <= h_range.highest; ++h) {
    for (int k = k_range.lowest; k <= k_range.highest; ++k) {
      task.check();
      if (!selection_allows(settings, h, k)) continue;
      for (int l = l_range.lowest; l <= l_range.highest; ++l) {
        if ((h == 0 && k == 0 && l == 0) || !centring_allows(letter, h, k, l)) continue;
        const Single length = DHKL(state, h, k, l);
        if (sphere >= length) append_reflection(list, h, k, l, length);
      }
    }
  }
  return list;
}

void sort_list(ReflectionList& list, Task& task) {
  constexpr double never_taken = 1000;  // a key from here on is passed over
  std::vector<double> keys;
  keys.reserve(static_cast<std::size_t>(list.count.value()) + 1);
  for (int i = 0; i <= list.count.value(); ++i) {
    task.check();
    keys.push_back(list.s(i));
  }
  const auto order = exchange_order(keys, 1, first_smallest_below(never_taken), false, task);
  reorder(list.s, order, task);
  for (auto* array : {&list.h, &list.k, &list.l}) reorder(*array, order, task);
}

void compute_list(const CrystalState& state, const Radiation& radiation, ReflectionList& list, Task& task) {
  // Observed reflections left from another crystal do not count beside atoms, however absurd they are.
  const bool observed_count = state.NAtom <= 0 && list.count > 0;
  const auto observed = observed_count ? ObservedReflections(state) : ObservedReflections();
  const ScatteringCell atoms(state, radiation);
  for (int i = 1; i <= list.count.value(); ++i) {
    task.report(i, list.count.value());
    task.check();
    const auto two_theta_deg = angle_of(state.WaveLength, list.s(i));
    list.two_theta(i) = two_theta_deg.value_or(0.0F);
    const Single theta = to_single(double{list.two_theta(i)} / 2.0 * degree);
    const ListEntry entry{list.h(i), list.k(i), list.l(i), list.s(i), theta};
    const auto intensity = ReflectionIntensity(state, entry, observed, atoms);
    list.a(i) = intensity.f.a;
    list.b(i) = intensity.f.b;
    list.i(i) = intensity.value;
    if (list.i(i) > 0 || state.NAtom >= 1)
      list.lines.push_back(geometry_columns(entry, two_theta_deg).append(intensity.columns));
  }
  list.scatter_missing = state.NAtom > 0 && list.count > 0 && atoms.scatter_missing();
}

ReflectionList reflection_list(const CrystalState& state, const EnumerationSettings& settings,
                               const Radiation& radiation, Task& task) {
  task.expect(effort_of_list(state, settings));
  auto list = enumerate_reflections(state, settings, task);
  sort_list(list, task);
  compute_list(state, radiation, list, task);
  return list;
}

void commit(CrystalState& state, ReflectionList list) {
  state.RefCount = list.count;
  state.RefH = std::move(list.h);
  state.RefK = std::move(list.k);
  state.RefL = std::move(list.l);
  state.RefS = std::move(list.s);
  state.RefA = std::move(list.a);
  state.RefB = std::move(list.b);
  state.RefI = std::move(list.i);
  state.RefTwoTheta = std::move(list.two_theta);
  state.BandHKL = std::move(list.bands);
  if (state.KikuchiRefLimit == 0 || state.KikuchiRefLimit > list.count) state.KikuchiRefLimit = list.count;
  if (list.scatter_missing) state.ScatterMissing = 1;
}

}  // namespace zol
