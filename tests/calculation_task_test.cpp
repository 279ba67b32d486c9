// Calculations that are stopped on their way leave the crystal as it was, and two of them run side by side.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "analysis/band_matching.h"
#include "bench/bench_crystals.h"
#include "core/put_back.h"
#include "core/state_fields.h"
#include "kikuchi/kikuchi_pattern.h"
#include "kikuchi/zone_map.h"
#include "powder/line_profile.h"
#include "spots/fiber_texture.h"
#include "spots/spot_pattern.h"
#include "tests/recorded_task.h"

namespace zol {
namespace {

constexpr EnumerationSettings full_sphere{{true, true, true}, {}};
constexpr Radiation xrays{true, false};
constexpr Radiation electrons{false, true};
constexpr CrystalliteSize crystallites{600, 400, 10000};
constexpr Single used = 10;

template <class Value>
void append(std::string& bytes, const Value& value) {
  if constexpr (requires { value.upper(); }) {
    append(bytes, value.upper());
    for (int i = 0; i <= value.upper(); ++i) append(bytes, value(i));
  } else if constexpr (requires { value.upper_row(); }) {
    append(bytes, value.upper_row());
    for (int i = 0; i <= value.upper_row(); ++i) {
      for (int j = 0; j <= value.upper_column(); ++j) append(bytes, value(i, j));
    }
  } else if constexpr (std::is_same_v<Value, String>) {
    bytes += value + '\n';
  } else if constexpr (std::is_same_v<Value, AsfRow>) {
    bytes += value.Element + '\n';
    for (const Single x : {value.A1, value.B1, value.A2, value.B2, value.A3, value.B3, value.A4, value.B4, value.C}) {
      append(bytes, x);
    }
    append(bytes, value.Z);
  } else {
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);  // NOLINT: bytes of a number
  }
}

std::string bytes_of(const CrystalState& state) {
  std::string bytes;
  for_each_field(state, [&bytes](const FieldName&, const auto& field) { append(bytes, field); });
  return bytes;
}

/// A list to 1.3 angstroms, and what a pattern of each kind asks for besides; the next list goes to 1.2.
std::unique_ptr<CrystalState> quartz() {
  auto state = shipped_crystal("Quartz.cry");
  make_list(*state, 1.3F, electrons);
  state->Dmin = 1.2F;
  state->CamAcquisition = 1;
  state->CamXYRatio = 1;
  state->Dispersion = 2000;  // arcs of several turns
  state->ZoneU = state->ZoneV = state->ZoneW = 1;
  state->OriginH = state->OriginK = 1;
  state->OriginL = -2;
  state->KikuchiRefLimit = state->RefCount;
  return state;
}

Histogram histogram_of(const CrystalState& state, Task& task) {
  const InterferenceTable table(interference_grid(state, crystallites), crystallites, task);
  const Integer count = bin_count(state.Dmin);
  return fill_histogram(state, table, count, highest_bin(count, 1000), task);
}

std::vector<FilledBin> bins_of(const CrystalState& state) {
  QuietTask task;
  return filled_bins(histogram_of(state, task), 1, bin_count(state.Dmin), state.Dmin);
}

PowderProfile pattern_of(const CrystalState& state, Task& task) {
  return sum_pseudo_voigt_lines(bins_of(state), state.WaveLength, {0, 100}, {0.2F, 50}, task);
}

// What the operations do until they keep the result.
void expand(CrystalState& state, Task& task) {
  static const auto group = read_space_group(ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No225.dat");
  commit(state, expand_unit_cell(state, group, task));
}
void list(CrystalState& state, Task& task) { commit(state, reflection_list(state, full_sphere, xrays, task)); }
void arcs(CrystalState& state, Task& task) {
  const ReorderedList sorted(state, order_by_intensity(state, task));
  (void)fiber_arcs(state, state.RefCount.value(), {100, 100, {}}, task);
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

struct Calculation {
  const char* name;
  int fewest_checks;
  void (*run)(CrystalState&, Task&);
};

constexpr Calculation calculations[] = {
    {"unit_cell", 192, expand},  // one per operator
    {"list", 100, list},
    {"histogram", 500, [](CrystalState& state, Task& task) { (void)histogram_of(state, task); }},
    {"pattern", 16,
     [](CrystalState& state, Task& task) { (void)pattern_of(state, task); }},  // one per block of samples
    {"rings", 16, [](CrystalState& state, Task& task) { (void)sum_gaussian_lines(bins_of(state), 1, 0.003F, task); }},
    {"spots", 100, [](CrystalState& state, Task& task) { (void)diffraction_spots(state, electrons, task); }},
    {"arcs", 250, arcs},
    {"lines", 400, lines},
    {"map", 300,
     [](CrystalState& state, Task& task) {
       (void)places_in_sweep(state, {3, 3, 3}, task);
     }},
    {"triples", 11, triples},  // one per reflection, and the sort
    {"matching", 1000, match}};

class Cancelling : public testing::TestWithParam<Calculation> {};
TEST_P(Cancelling, LeavesTheStateAsItWas) {
  const auto state = quartz();
  const auto before = bytes_of(*state);
  auto finished = *state;
  RecordedTask whole;
  GetParam().run(finished, whole);
  ASSERT_GE(whole.checks, GetParam().fewest_checks);
  std::mt19937 random(1);
  const int anywhere = std::uniform_int_distribution(1, whole.checks)(random);
  for (const int check : {1, 2, anywhere, whole.checks - 1, whole.checks}) {
    RecordedTask stopped;
    stopped.cancel_at = check;
    EXPECT_THROW(GetParam().run(*state, stopped), Cancelled) << check;
    EXPECT_TRUE(bytes_of(*state) == before) << check;
  }
}
INSTANTIATE_TEST_SUITE_P(Calculations, Cancelling, testing::ValuesIn(calculations),
                         [](const auto& row) { return std::string(row.param.name); });

/// From the sites to the pattern.
std::string whole_way(CrystalState state) {
  QuietTask task;
  state.Dmin = 1.4F;
  expand(state, task);
  list(state, task);
  std::string bytes = bytes_of(state);
  append(bytes, histogram_of(state, task));
  append(bytes, pattern_of(state, task));
  return bytes;
}

TEST(TwoThreads, GiveTheBytesOfSingleRuns) {
  const auto quartz = shipped_crystal("Quartz.cry");
  const auto rock_salt = shipped_crystal("NaCl.cry");
  const std::string alone[] = {whole_way(*quartz), whole_way(*rock_salt)};
  std::string together[2];
  std::thread other([&] { together[0] = whole_way(*quartz); });
  together[1] = whole_way(*rock_salt);
  other.join();
  EXPECT_TRUE(together[0] == alone[0] && together[1] == alone[1]);

  // One cell that both ask.
  make_list(*quartz, 1, xrays);
  const ScatteringCell cell(*quartz, xrays);
  const auto factors = [&quartz = std::as_const(*quartz), &cell] {
    std::string bytes;
    for (int i = 1; i <= quartz.RefCount.value(); ++i) {
      append(bytes, cell.StructureFactor(quartz.RefH(i), quartz.RefK(i), quartz.RefL(i), quartz.RefS(i)));
    }
    return bytes;
  };
  std::thread asking([&] { together[0] = factors(); });
  together[1] = factors();
  asking.join();
  EXPECT_TRUE(together[0] == factors() && together[1] == together[0]);
}

}  // namespace
}  // namespace zol
