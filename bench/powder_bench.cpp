// Powder patterns: histogram and lines, from a list that stands, beside the plain loops over all points and bins.
#include <benchmark/benchmark.h>

#include "bench/bench_crystals.h"
#include "tests/plain_powder.h"

namespace zol {
namespace {

constexpr PseudoVoigt line{0.2F, 50};
constexpr Single ring_width = 0.003F;  // 1/angstrom

/// The crystal, its reflections down to 1 angstrom, and how large its crystallites are.
struct Powder {
  explicit Powder(std::unique_ptr<CrystalState> crystal, Single cells)
      : state(std::move(crystal)), size{cells, cells, cells} {
    make_list(*state, 1, {true, false});
    range.maximum = two_theta_limit(state->WaveLength, state->Dmin);
  }
  [[nodiscard]] Histogram histogram() const {
    QuietTask task;
    const Integer count = bin_count(state->Dmin);
    const InterferenceTable table(interference_grid(*state, size), size, task);
    return fill_histogram(*state, table, count, highest_bin(count, 1000), task);
  }
  std::unique_ptr<CrystalState> state;
  CrystalliteSize size;
  TwoThetaRange range;
};

Powder quartz() { return Powder(shipped_crystal("Quartz.cry"), 10000); }
/// 35 000 points of the interference function a reflection.
Powder small_crystallites() { return Powder(p1_crystal(20), 50); }

template <Powder (*make)()>
void pattern(benchmark::State& run) {
  const Powder powder = make();
  QuietTask task;
  for (auto _ : run) {
    const auto bins = filled_bins(powder.histogram(), 0, bin_count(1), 1);
    benchmark::DoNotOptimize(sum_pseudo_voigt_lines(bins, powder.state->WaveLength, powder.range, line, task));
    run.counters["bins"] = static_cast<double>(bins.size());
  }
  run.counters["reflections"] = powder.state->RefCount.value();
}

template <Powder (*make)()>
void plain_pattern(benchmark::State& run) {
  const Powder powder = make();
  const auto two_theta = [&powder](Single d_star) {
    return to_single(2.0 * ArcSin(to_single(powder.state->WaveLength / 2.0 * d_star)));
  };
  const auto sample = [&powder](int m) { return powder.range.at(m); };
  for (auto _ : run) {
    const auto bins = plain_histogram(*powder.state, powder.size);
    benchmark::DoNotOptimize(plain_profile(bins, two_theta, sample, 1, 1, line.half_width));
  }
}

void rings(benchmark::State& run) {
  const Powder powder = quartz();
  QuietTask task;
  for (auto _ : run) {
    const auto bins = filled_bins(powder.histogram(), 1, bin_count(1), 1);
    benchmark::DoNotOptimize(sum_gaussian_lines(bins, 1, ring_width, task));
  }
}

void plain_rings(benchmark::State& run) {
  const Powder powder = quartz();
  const auto itself = [](Single d_star) { return d_star; };
  const auto sample = [](int m) { return d_star_at(1, m); };
  for (auto _ : run) {
    const auto bins = plain_histogram(*powder.state, powder.size);
    benchmark::DoNotOptimize(plain_profile(bins, itself, sample, 1, 0, ring_width));
  }
}

BENCHMARK(pattern<quartz>)->Name("Powder/Quartz")->Unit(benchmark::kMillisecond);
BENCHMARK(plain_pattern<quartz>)->Name("PowderPlain/Quartz")->Unit(benchmark::kMillisecond);
BENCHMARK(pattern<small_crystallites>)->Name("Powder/SmallCrystallites")->Unit(benchmark::kMillisecond);
BENCHMARK(plain_pattern<small_crystallites>)->Name("PowderPlain/SmallCrystallites")->Unit(benchmark::kMillisecond);
BENCHMARK(rings)->Name("Rings/Quartz")->Unit(benchmark::kMillisecond);
BENCHMARK(plain_rings)->Name("RingsPlain/Quartz")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
