// Powder patterns: histogram and lines, from a list that stands.
#include <benchmark/benchmark.h>

#include "bench/bench_crystals.h"
#include "powder/histogram.h"
#include "powder/interference.h"
#include "powder/line_profile.h"
#include "reflections/reflection_list.h"

namespace zol {
namespace {

struct NoProgress : Progress {
  void report(int /*done*/, int /*total*/) override {}
};

void make_list(CrystalState& state, Single dmin) {
  state.Dmin = dmin;
  enumerate_reflections(state, {{true, true, true}, {}});
  sort_by_s(state);
  (void)compute_list(state, {true, false});
}

void pattern(benchmark::State& run, CrystalState& state, const CrystalliteSize& size) {
  make_list(state, 1);
  NoProgress progress;
  BoundedArray<Single> profile("Profile", last_sample);
  std::size_t filled = 0;
  for (auto _ : run) {
    const Integer count = bin_count(state.Dmin);
    BoundedArray<Single> bins("Bins", highest_bin(count, 1000));
    const auto grid = interference_grid(state, size);
    fill_histogram(state, grid, InterferenceTable(grid, size), count, bins, progress);
    const auto lines = filled_bins(bins, 0, count, state.Dmin);
    const TwoThetaRange range{0, two_theta_limit(state.WaveLength, state.Dmin)};
    sum_pseudo_voigt_lines(lines, state.WaveLength, range, {0.2F, 50}, profile, progress);
    benchmark::DoNotOptimize(largest_sample(profile));
    filled = lines.size();
  }
  run.counters["reflections"] = state.RefCount.value();
  run.counters["bins"] = static_cast<double>(filled);
}

void rings(benchmark::State& run, CrystalState& state, const CrystalliteSize& size) {
  make_list(state, 1);
  NoProgress progress;
  BoundedArray<Single> profile("Profile", last_sample);
  for (auto _ : run) {
    const Integer count = bin_count(state.Dmin);
    BoundedArray<Single> bins("Bins", highest_bin(count, 10000));
    const auto grid = interference_grid(state, size);
    fill_histogram(state, grid, InterferenceTable(grid, size), count, bins, progress);
    sum_gaussian_lines(filled_bins(bins, 1, count, state.Dmin), 1, 0.003F, profile, progress);
    benchmark::DoNotOptimize(largest_sample(profile));
  }
}

void PowderQuartz(benchmark::State& run) { pattern(run, *shipped_crystal("Quartz.cry"), {10000, 10000, 10000}); }
void PowderLargeCellOf50(benchmark::State& run) { pattern(run, *p1_crystal(20), {50, 50, 50}); }
void RingsQuartz(benchmark::State& run) { rings(run, *shipped_crystal("Quartz.cry"), {10000, 10000, 10000}); }
BENCHMARK(PowderQuartz)->Unit(benchmark::kMillisecond);
BENCHMARK(PowderLargeCellOf50)->Unit(benchmark::kMillisecond);
BENCHMARK(RingsQuartz)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
