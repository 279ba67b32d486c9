// Two calculations run side by side.
#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "bench/bench_crystals.h"
#include "core/state_fields.h"
#include "powder/line_profile.h"
#include "reflections/structure_factor.h"

namespace zol {
namespace {

constexpr EnumerationSettings full_sphere{{true, true, true}, {}};
constexpr Radiation xrays{true, false};
constexpr CrystalliteSize crystallites{600, 400, 10000};

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
