// Indexing: the triple table and matching against it, for the strongest reflections of quartz and a full list.
#include <benchmark/benchmark.h>

#include "analysis/band_matching.h"
#include "bench/bench_crystals.h"
#include "core/cell_geometry.h"

namespace zol {
namespace {

std::unique_ptr<CrystalState> quartz_list() {
  auto state = shipped_crystal("Quartz.cry");
  make_list(*state, 1, {false, true});
  QuietTask task;
  reorder(*state, order_by_weighted_intensity(*state, task), task);
  return state;
}

/// What Hkl3make does behind its boxes.
void TripleTableOf(benchmark::State& run) {
  const auto state = quartz_list();
  TripleTable table;
  QuietTask task;
  for (auto _ : run) {
    reorder(*state, order_by_weighted_intensity(*state, task), task);
    table = make_triple_table(*state, static_cast<Single>(run.range(0)), task);
    benchmark::DoNotOptimize(table.TripleAngle(1, 0));
  }
  run.counters["rows"] = table.upper_row();
}
BENCHMARK(TripleTableOf)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond);

/// What MatchAngle does behind its boxes: the bands of reflections 1, 8 and 15, some way off the screen normal.
void Matching(benchmark::State& run) {
  const auto state = quartz_list();
  QuietTask task;
  const auto used = static_cast<Single>(run.range(0));
  const TripleTable table = make_triple_table(*state, used, task);
  const auto count = static_cast<int>(run.range(0));
  const int row = ((1 - 1) * count + (8 - 1)) * count + 15;
  MeasuredBands bands;
  for (int i = 0; i < 3; ++i) {
    bands.BandAngle(i) = table.TripleAngle(row, i);
    bands.BandTheta(i) = static_cast<Single>((75 + 5 * i) * degree);
    bands.BandPhi(i) = static_cast<Single>(100 * i * degree);
  }
  const MatchSettings settings{2.0F, true, false, {}, 1, false};
  std::size_t solutions = 0;
  for (auto _ : run) {
    const auto found = match_bands(*state, table, used, bands, settings, task);
    solutions = found.solutions.size();
  }
  run.counters["solutions"] = static_cast<double>(solutions);
}
BENCHMARK(Matching)->Arg(50)->Arg(100)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
