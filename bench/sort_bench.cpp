// The sorts of the reflection list, growing with its length, beside the plain selection sorts.
#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

#include "tests/plain_sort.h"

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

void sort_list(benchmark::State& run, const ListSort& rule) {
  CrystalState state;
  for (auto _ : run) {
    run.PauseTiming();
    fill(state, static_cast<int>(run.range(0)));
    run.ResumeTiming();
    rule.sort(state);
  }
}

/// Of the keys alone.
void sort_plainly(benchmark::State& run, const ListSort& rule) {
  CrystalState state;
  fill(state, static_cast<int>(run.range(0)));
  std::vector<Single> keys;
  for (int i = 0; i <= state.RefCount.value(); ++i) {
    keys.push_back(rule.sort == sort_by_s                     ? state.RefS(i)
                   : rule.sort == sort_by<order_by_intensity> ? state.RefI(i)
                                                              : state.RefS(i) * state.RefI(i));
  }
  for (auto _ : run) benchmark::DoNotOptimize(plain_order(keys, rule));
}

void measure(const std::string& name, void (*sort)(benchmark::State&, const ListSort&), const ListSort& rule) {
  benchmark::RegisterBenchmark((name + rule.name).c_str(), sort, rule)
      ->RangeMultiplier(10)
      ->Range(1000, 100000)
      ->Arg(200000)
      ->Unit(benchmark::kMillisecond);
}

const bool measured = [] {
  for (const auto& rule : list_sorts) {
    measure("Sort/", sort_list, rule);
    measure("SortPlain/", sort_plainly, rule);
  }
  return true;
}();

}  // namespace
}  // namespace zol
