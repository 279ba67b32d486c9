// Pattern calculations stopped on their way: each asks often enough, and the list is as it was before.
#include <gtest/gtest.h>

#include <vector>

#include "analysis/band_matching.h"
#include "bench/bench_crystals.h"
#include "core/put_back.h"
#include "kikuchi/kikuchi_pattern.h"
#include "kikuchi/zone_map.h"
#include "reflections/reflection_list.h"
#include "spots/fiber_texture.h"
#include "spots/spot_pattern.h"
#include "tests/recorded_task.h"

namespace zol {
namespace {

constexpr Radiation electrons{false, true};
constexpr Single used = 10;

std::unique_ptr<CrystalState> quartz() {
  auto state = shipped_crystal("Quartz.cry");
  state->Dmin = 1;
  enumerate_reflections(*state, {{true, true, true}, {}});
  (void)compute_list(*state, electrons);
  state->CamAcquisition = 1;
  state->CamXYRatio = 1;
  state->Dispersion = 2000;  // arcs of several turns
  state->ZoneU = state->ZoneV = state->ZoneW = 1;
  state->OriginH = state->OriginK = 1;
  state->OriginL = -2;
  state->KikuchiRefLimit = state->RefCount;
  return state;
}

/// What the calculations and their sorts may write.
std::vector<double> values(const CrystalState& state) {
  std::vector<double> all{state.PatternAngle, state.DisplayScale, double(state.ScatterMissing.value())};
  for (int i = 0; i <= state.RefCount.value(); ++i) {
    for (const auto* array : {&state.RefH, &state.RefK, &state.RefL}) all.push_back((*array)(i).value());
    for (const auto* array : {&state.RefS, &state.RefI, &state.RefA, &state.RefB, &state.RefTwoTheta}) {
      all.push_back((*array)(i));
    }
  }
  return all;
}

struct Calculation {
  const char* name;
  int fewest_checks;
  void (*run)(CrystalState& state, Task& task);
};

// What the operations do until they keep the result.
void spots(CrystalState& state, Task& task) { (void)diffraction_spots(state, electrons, task); }
void arcs(CrystalState& state, Task& task) {
  const ReorderedList sorted(state, order_by_intensity(state, task));
  const int strongest = state.RefCount.value();
  (void)fiber_arcs(state, strongest, {100, 100, {}}, task);
  task.check();
}
void lines(CrystalState& state, Task& task) {
  const ReorderedList sorted(state, order_for_kikuchi(state, task));
  const PutBack before(state.PatternAngle, state.DisplayScale);
  state.PatternAngle = 1;
  const auto view = gnomonic_view(state);
  state.DisplayScale = strongest_in_view(state, view, task);
  (void)kikuchi_lines(state, view, false, task);
}
void map(CrystalState& state, Task& task) { (void)places_in_sweep(state, {3, 3, 3}, task); }
void triples(CrystalState& state, Task& task) {
  const ReorderedList sorted(state, order_by_weighted_intensity(state, task));
  (void)make_triple_table(state, used, task);
}
void match(CrystalState& state, Task& task) {
  QuietTask quiet;
  const auto table = make_triple_table(state, used, quiet);
  MatchSettings all_rows;
  all_rows.angle_tolerance = 1000;
  all_rows.only_triangle = true;
  MeasuredBands bands;
  for (int i = 0; i < 3; ++i) bands.BandTheta(i) = 1;
  (void)match_bands(state, table, used, bands, all_rows, task);
}

constexpr Calculation calculations[]{{"spots", 100, spots}, {"arcs", 250, arcs},      {"lines", 900, lines},
                                     {"map", 300, map},     {"triples", 11, triples}, {"matching", 1000, match}};

class Cancelling : public testing::TestWithParam<Calculation> {};
TEST_P(Cancelling, LeavesTheStateAsItWas) {
  const auto state = quartz();
  const auto before = values(*state);
  RecordedTask whole;
  GetParam().run(*state, whole);
  EXPECT_EQ(values(*state), before) << "nothing was kept";
  ASSERT_GE(whole.checks, GetParam().fewest_checks);
  for (const int check : {1, 2, whole.checks / 2, whole.checks - 1, whole.checks}) {
    RecordedTask task;
    task.cancel_at = check;
    EXPECT_THROW(GetParam().run(*state, task), Cancelled) << check;
    EXPECT_EQ(values(*state), before) << check;
  }
}
INSTANTIATE_TEST_SUITE_P(Patterns, Cancelling, testing::ValuesIn(calculations),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zol
