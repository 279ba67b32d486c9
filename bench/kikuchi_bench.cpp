// The Kikuchi pattern apart from its drawing: the sort of the list, the grey scale, the lines.
#include <benchmark/benchmark.h>

#include "bench/bench_crystals.h"
#include "kikuchi/kikuchi_pattern.h"
#include "reflections/reflection_list.h"

namespace zol {
namespace {

void KikuchiPattern(benchmark::State& run) {
  const auto state = p1_crystal(20);
  state->CamAcquisition = 37;
  state->CamXYRatio = 1;
  state->ZoneU = state->ZoneV = 1;
  state->ZoneW = 3;
  state->OriginH = state->OriginK = 3;
  state->OriginL = -2;
  state->Dmin = 1.26F;
  enumerate_reflections(*state, {{true, true, true}, {}});
  sort_by_s(*state);
  benchmark::DoNotOptimize(compute_list(*state, {false, true}));
  state->KikuchiRefLimit = state->RefCount;
  for (auto _ : run) {
    sort_for_kikuchi(*state);
    const auto view = gnomonic_view(*state);
    state->DisplayScale = strongest_in_view(*state, view);
    benchmark::DoNotOptimize(kikuchi_lines(*state, view, false));
  }
  run.counters["reflections"] = state->RefCount.value();
}
BENCHMARK(KikuchiPattern)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
