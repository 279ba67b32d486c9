// The sorts of the reflection list, growing with its length.
#include <benchmark/benchmark.h>

#include <random>

#include "analysis/triple_table.h"
#include "kikuchi/kikuchi_pattern.h"
#include "reflections/reflection_list.h"
#include "spots/fiber_texture.h"

namespace zol {
namespace {

/// Lengths in forms of eight, intensities with ties, in no order.
void fill(CrystalState& state, int count) {
  std::mt19937 random(3);
  std::uniform_real_distribution<Single> uniform(0, 1);
  state.RefCount = count;
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count);
  for (auto* array : {&state.RefS, &state.RefI, &state.RefA, &state.RefB}) array->allocate(count);
  for (int i = 1; i <= count; ++i) {
    state.RefS(i) = i % 8 == 1 ? uniform(random) : state.RefS(i - 1);
    state.RefI(i) = i % 8 == 1 ? 1000 * uniform(random) : state.RefI(i - 1);
  }
}

template <void (*sort)(CrystalState&)>
void sort_list(benchmark::State& run) {
  CrystalState state;
  for (auto _ : run) {
    run.PauseTiming();
    fill(state, static_cast<int>(run.range(0)));
    run.ResumeTiming();
    sort(state);
  }
  run.SetComplexityN(run.range(0));
}
BENCHMARK(sort_list<sort_by_s>)
    ->Name("SortByLength")
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Arg(200000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(sort_list<sort_by_weighted_intensity>)
    ->Name("SortForTriples")
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Arg(200000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(sort_list<sort_by_intensity>)
    ->Name("SortForFiber")
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Arg(200000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(sort_list<sort_for_kikuchi>)
    ->Name("SortForKikuchi")
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Arg(200000)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
