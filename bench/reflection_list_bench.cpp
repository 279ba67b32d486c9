// The reflection list: enumeration, sort, structure factors and lines.
#include <benchmark/benchmark.h>

#include "bench/bench_crystals.h"
#include "reflections/reflection_list.h"

namespace zol {
namespace {

constexpr EnumerationSettings full_sphere{{true, true, true}, {}};

void calculate(benchmark::State& run, CrystalState& state, Single dmin, const Radiation& radiation) {
  state.Dmin = dmin;
  for (auto _ : run) {
    enumerate_reflections(state, full_sphere);
    sort_by_s(state);
    benchmark::DoNotOptimize(compute_list(state, radiation));
  }
  run.counters["reflections"] = state.RefCount.value();
  run.counters["atoms"] = state.NCell.value();
}

void NaCl(benchmark::State& run) { calculate(run, *shipped_crystal("NaCl.cry"), 0.3F, {true, false}); }
void Quartz(benchmark::State& run) { calculate(run, *shipped_crystal("Quartz.cry"), 0.5F, {true, false}); }
void P1Of200Atoms(benchmark::State& run) { calculate(run, *p1_crystal(200), 0.8F, {false, true}); }
BENCHMARK(NaCl)->Unit(benchmark::kMillisecond);
BENCHMARK(Quartz)->Unit(benchmark::kMillisecond);
BENCHMARK(P1Of200Atoms)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
