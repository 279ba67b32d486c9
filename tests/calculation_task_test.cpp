// Calculations that are stopped on their way leave the crystal as it was, and two of them run side by side.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bench/bench_crystals.h"
#include "powder/histogram.h"
#include "powder/line_profile.h"
#include "reflections/structure_factor.h"
#include "tests/recorded_task.h"

namespace zol {
namespace {

constexpr EnumerationSettings full_sphere{{true, true, true}, {}};
constexpr Radiation xrays{true, false};
constexpr CrystalliteSize crystallites{600, 400, 10000};

template <class Value>
void append(std::string& bytes, const Value& value) {
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);  // NOLINT: bytes of a number
}
template <class Value>
void append(std::string& bytes, const BoundedArray<Value>& array) {
  append(bytes, array.upper());
  for (int i = 0; i <= array.upper(); ++i) append(bytes, array(i));
}

/// What the calculations write: the unit cell, the list and what goes with it.
std::string bytes_of(const CrystalState& state) {
  std::string bytes;
  for (const auto& count : {state.NCell, state.ScatterMissing}) append(bytes, count);
  for (const auto& count : {state.RefCount, state.KikuchiRefLimit}) append(bytes, count);
  for (int m = 0; m <= max_cell_atoms; ++m) {
    bytes += state.UCLabel(m) + ' ' + state.UCElement(m) + ' ';
    for (int axis = 0; axis <= 3; ++axis) append(bytes, state.UCPos(m, axis));
  }
  for (const auto* array : {&state.RefH, &state.RefK, &state.RefL}) append(bytes, *array);
  for (const auto* array :
       {&state.UCOcc, &state.UCB, &state.RefS, &state.RefA, &state.RefB, &state.RefI, &state.RefTwoTheta}) {
    append(bytes, *array);
  }
  return bytes;
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

void expand(CrystalState& state, Task& task) {
  static const auto group = read_space_group(ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No225.dat");
  commit(state, expand_unit_cell(state, group, task));
}

void list(CrystalState& state, Task& task) { commit(state, reflection_list(state, full_sphere, xrays, task)); }

struct Calculation {
  const char* name;
  void (*run)(CrystalState&, Task&);
  int least_checks;
};

constexpr Calculation calculations[] = {
    {"unit_cell", expand, 192},  // one an operator
    {"list", list, 100},
    {"histogram", [](CrystalState& state, Task& task) { (void)histogram_of(state, task); }, 500},
    {"pattern", [](CrystalState& state, Task& task) { (void)pattern_of(state, task); }, 16},  // one a block of samples
    {"rings", [](CrystalState& state, Task& task) { (void)sum_gaussian_lines(bins_of(state), 1, 0.003F, task); }, 16}};

class Cancelling : public testing::TestWithParam<Calculation> {};
TEST_P(Cancelling, LeavesTheStateAsItWas) {
  const auto state = shipped_crystal("Quartz.cry");
  make_list(*state, 1.5F, {false, true});
  state->Dmin = 1.4F;
  const auto before = bytes_of(*state);
  auto finished = *state;
  RecordedTask whole;
  GetParam().run(finished, whole);
  EXPECT_GE(whole.checks, GetParam().least_checks);
  for (const int at : {1, 2, whole.checks / 3, whole.checks - 1, whole.checks}) {
    RecordedTask stopped;
    stopped.cancel_at = at;
    EXPECT_THROW(GetParam().run(*state, stopped), Cancelled) << at;
    EXPECT_TRUE(bytes_of(*state) == before) << at;
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
  ASSERT_NE(alone[0], alone[1]);
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
