// Patterns apart from their drawing, growing with the reflection list.
#include <benchmark/benchmark.h>

#include "bench/bench_crystals.h"
#include "kikuchi/kikuchi_pattern.h"
#include "spots/fiber_texture.h"
#include "spots/spot_pattern.h"
#include "tests/plain_kikuchi.h"

namespace zol {
namespace {

std::unique_ptr<CrystalState> listed_crystal(benchmark::State& run) {
  auto state = p1_crystal(20);
  make_list(*state, dmin_for(static_cast<double>(run.range(0))), {false, true});
  state->CamXYRatio = 1;
  run.counters["reflections"] = state->RefCount.value();
  return state;
}

std::unique_ptr<CrystalState> kikuchi_crystal(benchmark::State& run) {
  auto state = listed_crystal(run);
  state->CamAcquisition = 37;
  state->ZoneU = state->ZoneV = 1;
  state->ZoneW = 3;
  state->OriginH = state->OriginK = 3;
  state->OriginL = -2;
  state->KikuchiRefLimit = state->RefCount;
  return state;
}

/// The sort of the list, the grey scale, all lines.
void KikuchiPattern(benchmark::State& run) {
  const auto state = kikuchi_crystal(run);
  QuietTask task;
  for (auto _ : run) {
    reorder(*state, order_for_kikuchi(*state, task), task);
    const auto view = gnomonic_view(*state);
    ListedPlanes planes(*state);
    state->DisplayScale = strongest_in_view(planes, view, task);
    benchmark::DoNotOptimize(kikuchi_lines(planes, view, false, task));
  }
}

/// Grey scale and lines alone.
void KikuchiLines(benchmark::State& run) {
  const auto state = kikuchi_crystal(run);
  QuietTask task;
  const auto view = gnomonic_view(*state);
  for (auto _ : run) {
    ListedPlanes planes(*state);
    benchmark::DoNotOptimize(strongest_in_view(planes, view, task));
    benchmark::DoNotOptimize(kikuchi_lines(planes, view, false, task));
  }
}
void KikuchiLinesPlain(benchmark::State& run) {
  const auto state = kikuchi_crystal(run);
  const auto view = gnomonic_view(*state);
  for (auto _ : run) {
    benchmark::DoNotOptimize(plain_strongest(*state, view));
    benchmark::DoNotOptimize(plain_lines(*state, view, false));
  }
}

/// The sort of the list, the arcs of all reflections within the picture.
void FiberTexture(benchmark::State& run) {
  const auto state = listed_crystal(run);
  state->CamAcquisition = 0.8F;
  state->Dispersion = 4;
  state->OriginL = 1;
  QuietTask task;
  for (auto _ : run) {
    reorder(*state, order_by_intensity(*state, task), task);
    for (int i = 1; i <= state->RefCount.value(); ++i) {
      benchmark::DoNotOptimize(fiber_arcs(*state, i, {800, 800, 0.5}, task));
    }
  }
}
/// A zone with w = 0 in the area that a Kikuchi pattern leaves behind.
void SpotsOfAWideZone(benchmark::State& run) {
  const auto state = shipped_crystal("Rutile.cry");
  make_list(*state, 1, {false, true});
  state->ZoneU = 1;
  state->ZoneV = -2;
  state->CamAcquisition = 37;
  QuietTask task;
  for (auto _ : run) benchmark::DoNotOptimize(diffraction_spots(*state, {false, true}, task));
}

BENCHMARK(SpotsOfAWideZone)->Unit(benchmark::kMillisecond);
BENCHMARK(KikuchiPattern)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(KikuchiLines)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(KikuchiLinesPlain)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(FiberTexture)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
