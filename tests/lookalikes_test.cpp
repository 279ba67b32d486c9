// Which of the orientations whose bands coincide is the right one, on pictures of dynamical patterns with noise.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <numbers>
#include <random>

#include "core/cell_geometry.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/unit_cell.h"
#include "dynamics/master_sphere.h"
#include "indexing/band_contrast.h"
#include "indexing/crystal_reflectors.h"
#include "indexing/index_report.h"
#include "reflections/scattering.h"
#include "scans/map_run.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

const PatternCentre centre{.48, .55, .6};
constexpr int side = 60;

constexpr auto gallium_arsenide =
    "5.6533,5.6533,5.6533,90,90,90,\"F\",216,\"abc\"\n2\n"
    "\"Ga\",\"Ga\",1,0,0,0,.6\n\"As\",\"As\",1,.25,.25,.25,.6\n";
constexpr auto zinc_oxide =
    "3.2501,3.2501,5.2071,90,90,120,\"P\",186,\"abc\"\n2\n"
    "\"Zn\",\"Zn\",1,.3333333,.6666667,0,.6\n\"O\",\"O\",1,.3333333,.6666667,.3817,.6\n";
constexpr auto pyrite =
    "5.4179,5.4179,5.4179,90,90,90,\"P\",205,\"abc\"\n2\n"
    "\"Fe\",\"Fe\",1,0,0,0,.3\n\"S\",\"S\",1,.385,.385,.385,.3\n";
/// On the screw 3_2, and its image by inversion on 3_1.
constexpr auto quartz =
    "4.91239,4.91239,5.40385,90,90,120,\"P\",154,\"abc\"\n2\n"
    "\"Si\",\"Si\",1,.4701,0,.6666667,.6\n\"O\",\"O\",1,.4139,.2674,.7856,1\n";
constexpr auto other_quartz =
    "4.91239,4.91239,5.40385,90,90,120,\"P\",152,\"abc\"\n2\n"
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

std::vector<Rotation> some_orientations() {
  return {rotation_of({.3, 1.1, -.4}), rotation_of({-2.1, .2, .9}), rotation_of({1.4, -.8, 2.2})};
}

// The order of the group of the cell over that of the crystal, less one. A class of rotations alone lacks the
// inversion as such; with others, what the inversion adds can be turned to.
TEST(Lookalikes, AreTheCosetsOfThePointGroup) {
  using Operator = std::array<std::array<double, 3>, 3>;
  constexpr Operator inversion{{{-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}}, about_c{{{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}};
  constexpr Operator across_c{{{1, 0, 0}, {0, 1, 0}, {0, 0, -1}}}, across_a{{{-1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  constexpr Operator across_b{{{1, 0, 0}, {0, -1, 0}, {0, 0, 1}}};
  const struct {
    CellConstants cell;
    std::vector<Operator> group;
    std::size_t all, of_other_hand;
  } rows[] = {{{4, 5, 6, 80, 95, 101}, {}, 1, 1},
              {{4, 5, 6, 80, 95, 101}, {inversion}, 0, 0},
              {{4, 5, 6, 90, 90, 110}, {about_c}, 1, 1},
              {{4, 5, 6, 90, 90, 110}, {across_c}, 1, 0},
              {{4, 5, 6, 90, 90, 110}, {about_c, across_c, inversion}, 0, 0},
              {{4, 5, 6, 90, 90, 90}, {about_c, across_c, inversion}, 1, 0},
              {{4, 4, 6, 90, 90, 90}, {across_a, across_b, about_c}, 3, 0}};
  for (const auto& [cell, group, all, of_other_hand] : rows) {
    const Lattice lattice(cell);
    const auto found = lookalikes_of(lattice, point_group(lattice, group));
    EXPECT_EQ(found.size(), all);
    EXPECT_EQ(static_cast<std::size_t>(
                  std::count_if(found.begin(), found.end(), [](const Lookalike& one) { return one.other_hand; })),
              of_other_hand);
    for (const auto& one : found) EXPECT_NEAR(one.rotation.determinant(), 1, 1e-9);
  }
}

// Turned to a look-alike, all bands lie where they did: zinc blende by 90 degrees, zinc oxide upside down, pyrite by
// 90, quartz by 60 degrees. Weak contrast of gallium and arsenic is told by pictures without noise alone.
TEST(Lookalikes, TheRightOneFitsBest) {
  PatternIndexer indexer;
  for (const auto& [text, noise] : {std::pair(gallium_arsenide, 0.), {zinc_oxide, 1.5}, {pyrite, 1.5}, {quartz, 1.5}}) {
    SCOPED_TRACE(text);
    const Crystal& crystal = crystal_of(text);
    unsigned seed = 0;
    for (const Rotation& truth : some_orientations()) {
      const auto values = picture(crystal.model, truth, noise, ++seed);
      const CrystalModel* const models[] = {&crystal.model};
      const auto solutions = indexer.index({values, side, side}, centre, models, {});
      ASSERT_FALSE(solutions.empty());
      EXPECT_LT(misorientation_deg(solutions.front().crystal_from_picture, truth, crystal.proper), .5);
      EXPECT_GT(solutions.front().lead.value_or(-1), 0);
      for (const auto& lookalike : crystal.model.reflectors.lookalikes) {
        if (lookalike.other_hand) continue;
        const Rotation start = lookalike.rotation.transpose() * truth;
        ASSERT_GT(misorientation_deg(start, truth, crystal.proper), 30);
        const auto fit = indexer.fit(crystal.model, start, centre, {});
        const auto chosen = indexer.choose(crystal.model, fit, centre, {});
        EXPECT_LT(misorientation_deg(chosen.fit.crystal_from_picture, truth, crystal.proper), .5);
        EXPECT_GT(chosen.lead.value_or(-1), 0);
      }
    }
  }
}

TEST(Lookalikes, OfQuartzTheOtherHandIsTheInvertedPattern) {
  const Crystal& one = crystal_of(quartz);
  const Crystal& other = crystal_of(other_quartz);
  double same = 0;
  double opposite = 0;
  for (int i = 0; i < 300; ++i) {
    const Vector3 d = rotation_of({.1 * i, 1.7 * i, -.4 * i}).col(2);
    same = std::max(same, std::abs(static_cast<double>(one.model.sphere->at(d) - other.model.sphere->at(d))));
    opposite = std::max(opposite, std::abs(static_cast<double>(one.model.sphere->at(d) - other.model.sphere->at(-d))));
  }
  EXPECT_GT(same, .08);
  EXPECT_LT(opposite, .02);
}

// Quartz at the strongest noise that bands are found in: by structure factors (011) is the first, while in the pattern
// its higher orders are.
TEST(BandContrast, OfThePatternRanksFamiliesBetter) {
  const CrystalModel& drawn = crystal_of(quartz).model;
  const CrystalModel ranked = with_pattern(drawn, drawn.sphere, 6, quiet);
  ASSERT_EQ(ranked.reflectors.members.size(), drawn.reflectors.members.size());
  EXPECT_EQ(drawn.reflectors.families.front().hkl, (std::array{0, 1, 1}));
  EXPECT_EQ(ranked.reflectors.families.front().hkl, (std::array{0, 2, 2}));
  PatternIndexer indexer;
  IndexSettings settings;
  settings.fit_picture = false;
  std::array<int, 2> right{};
  for (unsigned i = 0; i < 30; ++i) {
    const Rotation truth = rotation_of({.3 + .37 * i, 1.1 - .21 * i, .9 * i});
    const auto values = picture(drawn, truth, 2.5, i);
    for (const CrystalModel* model : {&drawn, &ranked}) {
      const auto votes = indexer.index({values, side, side}, centre, {&model, 1}, settings);
      if (votes.empty()) continue;
      // Planes of quartz have the symmetry of its cell.
      const Rotation& found = votes.front().crystal_from_picture;
      const Rotation twin = rotation_of({0, 0, std::numbers::pi / 3}) * found;
      const auto& symmetry = drawn.reflectors.symmetry;
      if (std::min(misorientation_deg(found, truth, symmetry), misorientation_deg(twin, truth, symmetry)) < 3) {
        ++right.at(model == &ranked ? 1 : 0);
      }
    }
  }
  EXPECT_GT(right[1], right[0] + 3) << right[0];
}

TEST(Lookalikes, TheHandOfQuartzIsFound) {
  PatternIndexer indexer;
  const CrystalModel* const both[] = {&crystal_of(other_quartz).model, &crystal_of(quartz).model};
  unsigned seed = 0;
  for (const CrystalModel* right : both) {
    const CrystalModel* const wrong = right == both[0] ? both[1] : both[0];
    for (const Rotation& truth : some_orientations()) {
      const auto values = picture(*right, truth, 1, ++seed);
      EXPECT_EQ(indexer.index({values, side, side}, centre, both, {}).front().model, right);
      const auto mistaken = indexer.index({values, side, side}, centre, {&wrong, 1}, {});
      EXPECT_LT(mistaken.front().lead.value_or(1), 0);
      EXPECT_NE(lookalike_text(mistaken.front()).find("other hand"), std::string::npos);
    }
  }
}

/// A row of points, each with an orientation of a crystal.
class Domains : public Scan {
 public:
  struct Domain {
    const CrystalModel* model;
    Rotation truth;
  };
  explicit Domains(std::vector<Domain> domains) : domains_(std::move(domains)) {
    header_.width = header_.height = side;
    header_.points = domains_.size();
    header_.grid = ScanGrid{static_cast<int>(domains_.size()), 1};
  }
  void read(std::size_t first, std::size_t count, PatternBlock& block) override {
    block.begin(first, count, std::size_t{side} * side);
    for (std::size_t i = 0; i < count; ++i) {
      const auto& [model, truth] = domains_[first + i];
      const auto drawn = picture(*model, truth, 1, static_cast<unsigned>(first + i));
      for (std::size_t y = 0; y < side; ++y) {
        for (std::size_t x = 0; x < side; ++x)
          block.pattern(i)[(side - 1 - y) * side + x] = 100 + 40 * drawn[y * side + x];
      }
      block.present[i] = 1;
    }
  }

 private:
  std::vector<Domain> domains_;
};

// The neighbour's orientation fits nearly as well beyond the boundary.
TEST(Lookalikes, BoundariesOfTwinsAreSeenInMaps) {
  const Rotation truth = some_orientations().front();
  const CrystalModel& oxide = crystal_of(zinc_oxide).model;
  const CrystalModel& left = crystal_of(other_quartz).model;
  const CrystalModel& right = crystal_of(quartz).model;
  const std::vector<Domains::Domain> domains{
      {&oxide, truth}, {&oxide, oxide.reflectors.lookalikes.front().rotation * truth}, {&oxide, truth}, {&right, truth},
      {&left, truth},  {&right, rotation_of({0, 0, std::numbers::pi / 3}) * truth}};
  Domains scan(domains);
  const ScanGrid grid = *scan.header().grid;
  MapSettings settings;
  settings.averaging = Averaging::none;
  settings.background = Background::none;
  settings.index.candidates_fitted = 3;
  const std::vector<const CrystalModel*> models{&oxide, &left, &right};
  MapIndexer indexer(scan, grid, MapCentres(upside_down(centre, {side, side, 1}), {}, grid), models, settings);
  indexer.prepare(quiet);
  std::vector<PointResult> points;
  ASSERT_TRUE(run_map(indexer, grid, {}, points));
  for (std::size_t i = 0; i < points.size(); ++i) {
    SCOPED_TRACE(i);
    ASSERT_GT(points[i].phase, 0);
    const CrystalModel* found = models[static_cast<std::size_t>(points[i].phase - 1)];
    EXPECT_EQ(found, domains[i].model);
    const auto& [phi1, phi, phi2] = points[i].bunge_rad;
    constexpr double degrees = 180 / std::numbers::pi;
    const Rotation of_point =
        rotation_of_bunge({degrees * static_cast<double>(phi1), degrees * static_cast<double>(phi),
                           degrees * static_cast<double>(phi2)}) *
        picture_from_sample(70).transpose();
    EXPECT_LT(misorientation_deg(of_point, domains[i].truth, crystal_of(found == &oxide ? zinc_oxide : quartz).proper),
              .5);
    EXPECT_GT(points[i].lead, 0);
  }
}

}  // namespace
}  // namespace zol
