// Automatic indexing: each step by itself and the whole, by size of the picture, bands that are looked for and families
// that vote, for a crystal of high and one of low symmetry.
#include <benchmark/benchmark.h>

#include "bench/bench_crystals.h"
#include "core/run_failure.h"
#include "indexing/crystal_reflectors.h"
#include "indexing/pattern_indexer.h"

namespace zol {
namespace {

constexpr std::array crystals{"Silicon.cry", "Muscovite.cry"};
constexpr double kilovolt = 20;
const PatternCentre centre{0.48, 0.55, 0.7};

/// Families of a crystal that ships; the list is made once.
const ReflectorSet& reflectors_of(int crystal) {
  static std::array<ReflectorSet, crystals.size()> made;
  ReflectorSet& reflectors = made.at(static_cast<std::size_t>(crystal));
  if (reflectors.families.empty()) {
    const auto state = shipped_crystal(crystals.at(static_cast<std::size_t>(crystal)));
    const auto group =
        read_space_group(ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + Format(state->SGNumber.value(), "000") + ".dat");
    QuietTask task;
    reflectors = crystal_reflectors(*state, &group, kilovolt, task);
  }
  return reflectors;
}

CrystalModel model_of(int crystal, int families) {
  static std::array<std::shared_ptr<const KinematicSphere>, crystals.size()> spheres;
  auto& sphere = spheres.at(static_cast<std::size_t>(crystal));
  const ReflectorSet& reflectors = reflectors_of(crystal);
  QuietTask task;
  CrystalModel model = make_crystal_model("crystal", reflectors, voting_families(reflectors, families), sphere, task);
  sphere = model.sphere;
  return model;
}

const Rotation& orientation() {
  static const Rotation rotation = rotation_of_bunge({66, 137, 97});
  return rotation;
}

/// A picture of the crystal's bands with noise as strong as they are.
struct Picture {
  std::vector<float> values;
  int size;
  Picture(const CrystalModel& model, int pixels) : size(pixels) {
    draw_bands(*model.sphere, orientation(), {centre, static_cast<double>(size)}, size, size, values);
    double square = 0;
    for (const float value : values) square += static_cast<double>(value) * static_cast<double>(value);
    std::mt19937 random(1);
    std::normal_distribution<float> noise(0,
                                          static_cast<float>(std::sqrt(square / static_cast<double>(values.size()))));
    for (float& value : values) value += noise(random);
  }
  [[nodiscard]] PictureView view() const { return {values, size, size}; }
};

/// A picture of silicon with what each step leaves to the next.
struct Steps {
  CrystalModel model;
  Picture picture;
  PreparedPicture prepared;
  BandDetection detection;
  DetectionSettings settings;
  std::vector<DetectedBand> bands;
  Steps(int crystal, int pixels, int band_count, int families)
      : model(model_of(crystal, families)), picture(model, pixels) {
    settings.most_bands = band_count;
    if (!prepared.prepare(picture.view(), {})) throw RunFailure("the picture of the benchmark is blank");
    const auto found = detection.detect(prepared, centre, settings);
    bands.assign(found.begin(), found.end());
  }
};

/// Gathered to some 128 x 128 pixels, without background, of even contrast.
void IndexingPreparation(benchmark::State& run) {
  Steps steps(0, static_cast<int>(run.range(0)), 9, 6);
  for (auto _ : run) benchmark::DoNotOptimize(steps.prepared.prepare(steps.picture.view(), {}));
}
BENCHMARK(IndexingPreparation)->Arg(60)->Arg(128)->Arg(256)->Arg(512)->Unit(benchmark::kMicrosecond);

/// Radon transform, filter and picking of the bands, by size of the picture and number of bands.
void IndexingDetection(benchmark::State& run) {
  Steps steps(0, static_cast<int>(run.range(0)), static_cast<int>(run.range(1)), 6);
  for (auto _ : run) benchmark::DoNotOptimize(steps.detection.detect(steps.prepared, centre, steps.settings));
  run.counters["bands"] = static_cast<double>(steps.bands.size());
}
BENCHMARK(IndexingDetection)
    ->ArgsProduct({{60, 128, 256, 512}, {9}})
    ->ArgsProduct({{128}, {6, 12}})
    ->Unit(benchmark::kMicrosecond);

/// By crystal, bands and families.
void IndexingVote(benchmark::State& run) {
  Steps steps(static_cast<int>(run.range(0)), 128, static_cast<int>(run.range(1)), static_cast<int>(run.range(2)));
  OrientationVote vote;
  QuietTask task;
  for (auto _ : run) benchmark::DoNotOptimize(vote.vote(*steps.model.table, steps.bands, {}, task));
  run.counters["planes"] = static_cast<double>(steps.model.table->planes().size());
  run.counters["pairs"] = static_cast<double>(steps.model.table->pairs().size());
}
BENCHMARK(IndexingVote)->ArgsProduct({{0, 1}, {6, 9, 12}, {4, 6, 10}})->Unit(benchmark::kMicrosecond);

/// What depends on crystal and families alone: made once for all pictures.
void IndexingVoteTable(benchmark::State& run) {
  const ReflectorSet& reflectors = reflectors_of(static_cast<int>(run.range(0)));
  const auto families = voting_families(reflectors, static_cast<int>(run.range(1)));
  QuietTask task;
  for (auto _ : run) benchmark::DoNotOptimize(VoteTable(reflectors, families, task));
}
BENCHMARK(IndexingVoteTable)->ArgsProduct({{0, 1}, {4, 6, 10}})->Unit(benchmark::kMicrosecond);

/// From 0.6 degrees off, as the vote leaves it at worst.
void IndexingFit(benchmark::State& run) {
  Steps steps(0, static_cast<int>(run.range(0)), 9, 6);
  PictureFitter fitter;
  fitter.take(steps.prepared);
  const Rotation start = orientation() * rotation_of({0.006, -0.006, 0.006});
  PictureFit fit;
  for (auto _ : run) fit = fitter.fit(*steps.model.sphere, start, centre, {});
  run.counters["steps"] = fit.steps;
  run.counters["off_deg"] = misorientation_deg(fit.crystal_from_picture, orientation());
}
BENCHMARK(IndexingFit)->Arg(60)->Arg(128)->Arg(256)->Arg(512)->Unit(benchmark::kMicrosecond);

/// Orientation and centre on bands and picture, with a start 1 % of the width off.
void IndexingCentre(benchmark::State& run) {
  const CrystalModel model = model_of(static_cast<int>(run.range(0)), 6);
  const Picture picture(model, static_cast<int>(run.range(1)));
  const std::array<const CrystalModel*, 1> models{&model};
  const PatternCentre start{centre.x + 0.01, centre.y - 0.01, centre.z + 0.01};
  PatternIndexer indexer;
  const auto found = indexer.index(picture.view(), start, models, {});
  if (found.empty()) return run.SkipWithError("the picture is not indexed");
  const IndexSolution best = found.front();
  PictureFit fit;
  for (auto _ : run) fit = indexer.refine_centre(best, start, {});
  run.counters["steps"] = fit.steps;
  run.counters["off_percent"] =
      100 * std::hypot(fit.centre.x - centre.x, fit.centre.y - centre.y, fit.centre.z - centre.z);
}
BENCHMARK(IndexingCentre)->ArgsProduct({{0, 1}, {60, 128, 256, 512}})->Unit(benchmark::kMillisecond);

/// The bands of a crystal on the sphere of directions: once a crystal.
void IndexingSphere(benchmark::State& run) {
  const ReflectorSet& reflectors = reflectors_of(static_cast<int>(run.range(0)));
  QuietTask task;
  for (auto _ : run) {
    const KinematicSphere sphere(reflectors, static_cast<int>(run.range(1)), StripShape{}, task);
    benchmark::DoNotOptimize(sphere.values().data());
  }
}
BENCHMARK(IndexingSphere)->ArgsProduct({{0, 1}, {401, 801}})->Unit(benchmark::kMillisecond);

/// From the list of reflections on, as the first picture of a crystal has to wait for it.
void IndexingReflectors(benchmark::State& run) {
  const auto state = shipped_crystal(crystals.at(static_cast<std::size_t>(run.range(0))));
  const auto group =
      read_space_group(ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + Format(state->SGNumber.value(), "000") + ".dat");
  QuietTask task;
  for (auto _ : run) benchmark::DoNotOptimize(crystal_reflectors(*state, &group, kilovolt, task));
}
BENCHMARK(IndexingReflectors)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// A picture from its pixels to the solutions, by crystal, size, bands and families; `right`: the first solution is
/// that of the picture.
void IndexingWhole(benchmark::State& run) {
  const CrystalModel model = model_of(static_cast<int>(run.range(0)), static_cast<int>(run.range(3)));
  const Picture picture(model, static_cast<int>(run.range(1)));
  const std::array<const CrystalModel*, 1> models{&model};
  IndexSettings settings;
  settings.band_count = static_cast<int>(run.range(2));
  PatternIndexer indexer;
  std::span<const IndexSolution> found;
  for (auto _ : run) found = indexer.index(picture.view(), centre, models, settings);
  run.counters["right"] = !found.empty() && misorientation_deg(found.front().crystal_from_picture, orientation(),
                                                               model.reflectors.symmetry) < 1
                              ? 1
                              : 0;
}
BENCHMARK(IndexingWhole)
    ->ArgsProduct({{0, 1}, {60, 128, 256, 512}, {9}, {6}})
    ->ArgsProduct({{0, 1}, {128}, {6, 12}, {6}})
    ->ArgsProduct({{0, 1}, {128}, {9}, {4, 10}})
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zol
