// Two calculations run side by side.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bench/bench_crystals.h"
#include "powder/line_profile.h"
#include "reflections/structure_factor.h"

namespace zol {
namespace {

constexpr Radiation xrays{true, false};
constexpr CrystalliteSize crystallites{600, 400, 10000};

/// From the sites to the pattern: all numbers on the way, and the lines of the list.
std::pair<std::vector<Single>, std::vector<std::string>> whole_way(CrystalState state) {
  QuietTask task;
  state.Dmin = 1.4F;
  commit(state, expand_unit_cell(state, read_space_group(ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No225.dat"), task));
  auto list = reflection_list(state, {{true, true, true}, {}}, xrays, task);
  auto lines = list.lines;
  commit(state, std::move(list));
  const InterferenceTable table(interference_grid(state, crystallites), crystallites, task);
  const Integer count = bin_count(state.Dmin);
  auto histogram = fill_histogram(state, table, count, highest_bin(count, 1000), task);
  const auto bins = filled_bins(histogram, 1, count, state.Dmin);
  auto profile = sum_pseudo_voigt_lines(bins, state.WaveLength, {0, 100}, {0.2F, 50}, task);
  std::vector<Single> numbers;
  for (const auto* array : {&state.RefS, &state.RefA, &state.RefB, &state.RefI, &histogram, &profile}) {
    for (int i = 0; i <= array->upper(); ++i) numbers.push_back((*array)(i));
  }
  return {std::move(numbers), std::move(lines)};
}

/// Both at the same time.
template <class First, class Second>
auto together(First first, Second second) {
  decltype(first()) of_first;
  std::thread other([&] { of_first = first(); });
  auto of_second = second();
  other.join();
  return std::pair(std::move(of_first), std::move(of_second));
}

TEST(TwoThreads, GiveTheResultsOfSingleRuns) {
  const auto quartz = shipped_crystal("Quartz.cry");
  const auto rock_salt = shipped_crystal("NaCl.cry");
  const auto both = together([&] { return whole_way(*quartz); }, [&] { return whole_way(*rock_salt); });
  EXPECT_TRUE(both == std::pair(whole_way(*quartz), whole_way(*rock_salt)));

  make_list(*quartz, 1, xrays);
  const ScatteringCell cell(*quartz, xrays);  // one that both ask
  const auto factors = [&state = std::as_const(*quartz), &cell] {
    std::vector<Single> found;
    for (int i = 1; i <= state.RefCount.value(); ++i) {
      const auto f = cell.StructureFactor(state.RefH(i), state.RefK(i), state.RefL(i), state.RefS(i));
      found.insert(found.end(), {f.a, f.b});
    }
    return found;
  };
  EXPECT_TRUE(together(factors, factors) == std::pair(factors(), factors()));
}

}  // namespace
}  // namespace zol
