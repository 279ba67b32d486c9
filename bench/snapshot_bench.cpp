// A snapshot after each event: with a long list and a picture, one box typed into between two of them. (The pixels of a
// picture are shared by all snapshots, so that its size is of no account.)
#include <benchmark/benchmark.h>

#include "analysis/window/pattern3_form.h"
#include "bench/bench_crystals.h"
#include "reflections/window/main1_form.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"

namespace zol {
namespace {

void Snapshot(benchmark::State& run) {
  FakeServices services;
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  program.start();
  for (const auto& name : program.windows().names()) program.windows().use(name);
  auto& main1 = program.windows().use<Main1Form>();
  auto& pattern = program.windows().use<Pattern3Form>();
  services.answers = {"four.bmp"};
  pattern.ImageLoad.click();
  auto crystal = p1_crystal(8);
  crystal->Dmin = dmin_for(static_cast<double>(run.range(0)));
  QuietTask task;
  auto list = reflection_list(*crystal, {{true, true, true}, {}}, {true, false}, task);
  for (const auto& line : list.lines) main1.List2.add_item(line);
  run.counters["reflections"] = static_cast<double>(list.lines.size());
  commit(program.state(), std::move(list));
  (void)program.snapshot();
  int typed = 0;
  for (auto _ : run) {
    main1.Text15.set_text(++typed % 2 == 0 ? "1.5" : "1.6");
    benchmark::DoNotOptimize(program.snapshot());
  }
}
BENCHMARK(Snapshot)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace zol
