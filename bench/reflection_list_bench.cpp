// The reflection list: enumeration, sort, structure factors and lines.
#include <benchmark/benchmark.h>

#include "bench/bench_crystals.h"

namespace zol {
namespace {

void calculate(benchmark::State& run, CrystalState& state, Single dmin, const Radiation& radiation) {
  for (auto _ : run) make_list(state, dmin, radiation);
  run.counters["reflections"] = state.RefCount.value();
  run.counters["atoms"] = state.NCell.value();
}

void NaCl(benchmark::State& run) { calculate(run, *shipped_crystal("NaCl.cry"), 0.3F, {true, false}); }
void Quartz(benchmark::State& run) { calculate(run, *shipped_crystal("Quartz.cry"), 0.5F, {true, false}); }
void P1Of200Atoms(benchmark::State& run) { calculate(run, *p1_crystal(200), 0.8F, {false, true}); }
/// Growth with the number of reflections.
void ListOf(benchmark::State& run) {
  calculate(run, *p1_crystal(20), dmin_for(static_cast<double>(run.range(0))), {true, false});
}
BENCHMARK(NaCl)->Unit(benchmark::kMillisecond);
BENCHMARK(Quartz)->Unit(benchmark::kMillisecond);
BENCHMARK(P1Of200Atoms)->Unit(benchmark::kMillisecond);
BENCHMARK(ListOf)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
