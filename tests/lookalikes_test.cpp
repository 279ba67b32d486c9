// Which of the orientations whose bands coincide is the right one, on pictures of dynamical patterns with noise.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <random>

#include "core/cell_geometry.h"
#include "core/crystal_file.h"
#include "core/data_root.h"
#include "core/number_text.h"
#include "core/unit_cell.h"
#include "dynamics/master_sphere.h"
#include "indexing/crystal_reflectors.h"
#include "indexing/pattern_indexer.h"
#include "reflections/scattering.h"
#include "tests/test_files.h"

namespace zol {
namespace {

QuietTask quiet;
const PatternCentre centre{.48, .55, .6};
constexpr int side = 60;

constexpr auto gallium_arsenide = "5.6533,5.6533,5.6533,90,90,90,\"F\",216,\"abc\"\n2\n"
                                  "\"Ga\",\"Ga\",1,0,0,0,.6\n\"As\",\"As\",1,.25,.25,.25,.6\n";
constexpr auto zinc_oxide = "3.2501,3.2501,5.2071,90,90,120,\"P\",186,\"abc\"\n2\n"
                            "\"Zn\",\"Zn\",1,.3333333,.6666667,0,.6\n\"O\",\"O\",1,.3333333,.6666667,.3817,.6\n";
constexpr auto pyrite = "5.4179,5.4179,5.4179,90,90,90,\"P\",205,\"abc\"\n2\n"
                        "\"Fe\",\"Fe\",1,0,0,0,.3\n\"S\",\"S\",1,.385,.385,.385,.3\n";
/// On the screw 3_2, and its image by inversion on 3_1.
constexpr auto quartz = "4.91239,4.91239,5.40385,90,90,120,\"P\",154,\"abc\"\n2\n"
                        "\"Si\",\"Si\",1,.4701,0,.6666667,.6\n\"O\",\"O\",1,.4139,.2674,.7856,1\n";
constexpr auto other_quartz = "4.91239,4.91239,5.40385,90,90,120,\"P\",152,\"abc\"\n2\n"
                              "\"Si\",\"Si\",1,-.4701,0,-.6666667,.6\n\"O\",\"O\",1,-.4139,-.2674,-.7856,1\n";

struct Crystal {
  CrystalModel model;
  std::vector<Rotation> proper;  // of the point group
};

Crystal made(const char* text) {
  const ScratchFolder folder;
  CrystalState state;
  const std::string data = ZOL_SOURCE_DIR "/data/ZOL/";
  state.AsfXCount = read_scatter_table(data + "Asf/ASF-X.csv", state.AsfX);
  state.AsfECount = read_scatter_table(data + "Asf/ASF-E.csv", state.AsfE);
  CrystalFileReader file(folder.write("crystal.cry", text));
  file.read_cell(state);
  file.read_contents(state);
  EXPECT_TRUE(calc_cell(state));
  const SpaceGroup group = read_space_group(data + "SpaceGr/No" + Format(state.SGNumber.value(), "000") + ".dat");
  state.SGName = group.symbol;
  state.LatticeLetter = group.symbol.substr(0, 1);
  commit(state, expand_unit_cell(state, group, quiet));
  const DynamicCrystal dynamic = dynamic_crystal(state, &group);
  MasterSettings settings;
  settings.size = 201;
  settings.smallest_spacing = 0.7;
  settings.beams = 48;
  settings.threads = 2;
  auto reflectors = crystal_reflectors(state, &group, 20, quiet);
  auto used = voting_families(reflectors, 6);
  Crystal crystal{make_crystal_model("", std::move(reflectors), std::move(used),
                                     master_sphere(master_pattern(dynamic, settings, quiet), .2, quiet), quiet),
                  {}};
  for (const auto& operation : dynamic.operations) {
    if (operation.determinant() > 0) crystal.proper.emplace_back(operation);
  }
  return crystal;
}

const Crystal& crystal_of(const char* text) {
  static std::map<const char*, Crystal> all;
  const auto known = all.find(text);
  return known != all.end() ? known->second : all.emplace(text, made(text)).first->second;
}

/// Of an orientation, with noise of so many times its own spread.
std::vector<float> picture(const CrystalModel& model, const Rotation& truth, double noise, unsigned seed) {
  std::vector<float> values;
  draw_bands(*model.sphere, truth, {centre, double{side}}, side, side, values);
  double square = 0;
  for (const float value : values) square += static_cast<double>(value * value);
  std::mt19937 random(seed);
  std::normal_distribution<double> grain(0, noise * std::sqrt(square / (side * side)));
  for (float& value : values) value += static_cast<float>(grain(random));
  return values;
}

TEST(Experiment, Prints) {
  for (const auto& [name, text] : {std::pair("GaAs", gallium_arsenide), {"ZnO", zinc_oxide}, {"pyrite", pyrite}, {"quartz", quartz}}) {
    const Crystal& crystal = crystal_of(text);
    std::printf("%s: %zu lookalikes, laue %zu, own %zu, opposite %d\n", name, crystal.model.reflectors.lookalikes.size(), crystal.model.reflectors.symmetry.size(), crystal.proper.size(), crystal.model.sphere->opposite());
    for (const double noise : {0., .6, 1.5}) {
      int right = 0, all = 0; double least = 9, mean = 0; int chosen_right = 0, chosen = 0;
      PatternIndexer indexer;
      IndexSettings settings;
      for (unsigned i = 0; i < 20; ++i) {
        const Rotation truth = rotation_of({.3 + .37 * i, 1.1 - .21 * i, .9 * i});
        const auto values = picture(crystal.model, truth, noise, i);
        const CrystalModel* const models[] = {&crystal.model};
        const auto solutions = indexer.index({values, side, side}, centre, models, settings);
        ++all;
        if (!solutions.empty()) {
        const double off = misorientation_deg(solutions.front().crystal_from_picture, truth, crystal.proper);
        right += off < .5;
        if (solutions.front().lead) { least = std::min(least, *solutions.front().lead); mean += *solutions.front().lead / 20; }
        }
        for (const auto& l : crystal.model.reflectors.lookalikes) {
          if (l.other_hand) continue;
          const auto fit = indexer.fit(crystal.model, l.rotation.transpose() * truth, centre, settings);
          const auto c = indexer.choose(crystal.model, fit, centre, settings);
          ++chosen; chosen_right += misorientation_deg(c.fit.crystal_from_picture, truth, crystal.proper) < .5;
          if (i < 3 && noise == 0) std::printf("   fit of lookalike %.3f, chosen %.3f\n", fit.correlation, c.fit.correlation);
        }
      }
      std::printf("  noise %.1f: right %d of %d, chosen %d of %d, lead least %.4f mean %.4f\n", noise, right, all, chosen_right, chosen, least, mean);
    }
  }
}

}  // namespace
}  // namespace zol
