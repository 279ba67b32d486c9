// Indexing on pictures whose truth is known since they were drawn from it, plane by plane, apart from the program.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <random>
#include <vector>

#include "indexing/detector.h"
#include "indexing/pattern_centre_fit.h"
#include "indexing/pattern_indexer.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Operator = std::array<std::array<double, 3>, 3>;
using Position = std::array<double, 3>;

constexpr double radians = std::numbers::pi / 180;
constexpr double wavelength = 0.0859;  // angstroms, at 20 kV

struct Crystal {
  const char* name;
  CellConstants cell;
  std::vector<Operator> generators;
  std::vector<Position> atoms;  // all alike, each with its images under the operators and the inversion
};

constexpr Operator identity{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
const Crystal crystals[] = {
    {"cubic",
     {4, 4, 4, 90, 90, 90},
     {{{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}}, {{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}}},
     {{0, 0, 0}, {0, .5, .5}}},
    {"hexagonal",
     {3.2, 3.2, 5.2, 90, 90, 120},
     {{{{1, -1, 0}, {1, 0, 0}, {0, 0, 1}}}, {{{1, -1, 0}, {0, -1, 0}, {0, 0, -1}}}},
     {{1 / 3., 2 / 3., .19}}},
    {"monoclinic",
     {5.2, 6.1, 7.3, 90, 103, 90},
     {{{{-1, 0, 0}, {0, 1, 0}, {0, 0, -1}}}},
     {{.1, .17, .28}, {.36, 0, .07}}},
    {"triclinic", {5.1, 6.3, 7.7, 82, 101, 113}, {}, {{.11, .23, .37}, {.32, .05, .18}, {0, .41, .09}}}};

std::vector<Operator> group_of(const Crystal& crystal) {
  std::vector<Operator> group{identity};
  for (std::size_t done = 0; done < group.size(); ++done) {
    for (const Operator& generator : crystal.generators) {
      Operator product{};
      for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) {
          for (std::size_t k = 0; k < 3; ++k) product[i][j] += generator[i][k] * group[done][k][j];
        }
      }
      if (std::find(group.begin(), group.end(), product) == group.end()) group.push_back(product);
    }
  }
  return group;
}

std::vector<ListedReflection> reflections_of(const Crystal& crystal, const Lattice& lattice) {
  std::vector<ListedReflection> list;
  const auto group = group_of(crystal);
  constexpr int most = 7;
  for (int number = 0; number < 15 * 15 * 15 / 2; ++number) {
    const std::array<int, 3> hkl{number / 225 - most, number / 15 % 15 - most, number % 15 - most};
    const double spacing = lattice.spacing({1.0 * hkl[0], 1.0 * hkl[1], 1.0 * hkl[2]});
    if (spacing < 1.2) continue;
    double sum = 0;
    for (const Position& atom : crystal.atoms) {
      for (const Operator& op : group) {
        double phase = 0;
        for (std::size_t i = 0; i < 3; ++i) {
          phase += hkl[i] * (op[i][0] * atom[0] + op[i][1] * atom[1] + op[i][2] * atom[2]);
        }
        sum += std::cos(2 * std::numbers::pi * phase);
      }
    }
    sum *= std::exp(-1.5 / (spacing * spacing));
    list.push_back({hkl, sum * sum});
  }
  return list;
}

/// @param sphere_size  coarse where no picture is fitted: drawing it takes longest
CrystalModel model_of(const Crystal& crystal, const std::vector<ListedReflection>& reflections, int sphere_size = 21) {
  const Lattice lattice(crystal.cell);
  auto set = make_reflectors(lattice, proper_rotations(lattice, group_of(crystal)), reflections, wavelength, quiet);
  auto families = voting_families(set, 6);
  auto sphere = std::make_shared<const KinematicSphere>(set, sphere_size, StripShape{}, quiet);
  return make_crystal_model(crystal.name, std::move(set), std::move(families), std::move(sphere), quiet);
}

struct Drawn {
  int size = 128;
  std::vector<float> values;
  [[nodiscard]] PictureView view() const { return {values, size, size}; }
};

/// Each band a bright strip between its Bragg angles with a dark line to either side, on light that falls off.
Drawn draw(const std::vector<ListedReflection>& reflections, const Lattice& lattice, const Rotation& rotation,
           const PatternCentre& centre, double noise) {
  Drawn drawn;
  std::mt19937 chance(5);
  std::normal_distribution<double> grain(0, 1);
  for (int y = 0; y < drawn.size; ++y) {
    for (int x = 0; x < drawn.size; ++x) {
      drawn.values.push_back(static_cast<float>(40 - 0.1 * x - 0.2 * y + (noise > 0 ? noise * grain(chance) : 0)));
    }
  }
  double strongest = 0;
  for (const auto& reflection : reflections) strongest = std::max(strongest, reflection.weight);
  for (const auto& [hkl, weight] : reflections) {
    if (weight < 0.05 * strongest) continue;
    const auto [gx, gy, gz] = lattice.cartesian(ReciprocalVector{1.0 * hkl[0], 1.0 * hkl[1], 1.0 * hkl[2]});
    const Vector3 g = rotation.transpose() * Vector3(gx, gy, gz);
    const double theta = std::asin(wavelength * g.norm() / 2);
    const double per_length = 1 / (g.norm() * theta);
    auto value = drawn.values.begin();
    for (int y = 0; y < drawn.size; ++y) {
      const double ry = (y + 0.5) / drawn.size - centre.y;
      for (int x = 0; x < drawn.size; ++x, ++value) {
        const double rx = (x + 0.5) / drawn.size - centre.x;
        const double off =
            std::abs(g[0] * rx + g[1] * ry + g[2] * centre.z) * per_length / std::hypot(rx, ry, centre.z);
        const double profile = off < 1 ? 1 : off < 1.4 ? -0.4 : 0;  // the sines of such angles are the angles
        *value += static_cast<float>(10 * profile * weight / strongest);
      }
    }
  }
  return drawn;
}

TEST(Indexing, DrawnPicturesOfFourSystemsAreFoundWithinADegree) {
  struct Row {
    Vector3 turn;
    PatternCentre centre;
    double noise;
  };
  const Row rows[] = {{{0.3, -0.2, 0.4}, {0.5, 0.5, 0.6}, 0},
                      {{-1.1, 0.9, 2.1}, {0.44, 0.62, 0.5}, 3},
                      {{1.9, 1.4, -0.6}, {0.57, 0.41, 0.75}, 0}};
  PatternIndexer indexer;
  for (const Crystal& crystal : crystals) {
    const Lattice lattice(crystal.cell);
    const auto reflections = reflections_of(crystal, lattice);
    const CrystalModel model = model_of(crystal, reflections, 401);
    for (const Row& row : rows) {
      const Rotation truth = rotation_of(row.turn);
      const Drawn drawn = draw(reflections, lattice, truth, row.centre, row.noise);
      const CrystalModel* const models[] = {&model};
      const auto solutions = indexer.index(drawn.view(), row.centre, models, {});
      ASSERT_FALSE(solutions.empty());
      const Rotation found = solutions.front().crystal_from_picture;
      EXPECT_LT(misorientation_deg(found, truth, model.reflectors.symmetry), 1)
          << crystal.name << " noise " << row.noise;
    }
  }
}

// 24 rotations want 20 + 40 / 24 planes: {100}, {110} and {210} are 3 + 6 + 12 of them; a second order is none.
TEST(Indexing, FamiliesVoteUntilThereAreEnoughPlanes) {
  const Lattice lattice(crystals[0].cell);
  const auto rotations = proper_rotations(lattice, group_of(crystals[0]));
  const std::vector<ListedReflection> list{
      {{1, 0, 0}, 64}, {{2, 0, 0}, 16}, {{1, 1, 0}, 8}, {{2, 1, 0}, 2}, {{1, 1, 1}, 1}};
  const auto set = make_reflectors(lattice, rotations, list, wavelength, quiet);
  ASSERT_EQ(rotations.size(), 24U);
  EXPECT_EQ(voting_families(set, 1), std::vector(4, true));
  EXPECT_EQ(voting_families(set, 5), std::vector(5, true));
}

TEST(Indexing, WhatCannotBeIndexedIsTold) {
  const Crystal& cubic = crystals[0];
  const CrystalModel model = model_of(cubic, reflections_of(cubic, Lattice(cubic.cell)));
  const CrystalModel* const models[] = {&model};
  PatternIndexer indexer;
  const Drawn blank{64, std::vector<float>(std::size_t{64} * 64, 17.0F)};
  EXPECT_TRUE(fails_with("the picture is blank", [&] { (void)indexer.index(blank.view(), {}, models, {}); }));
  const std::vector<ListedReflection> stack{{{0, 0, 1}, 5}, {{0, 0, 2}, 9}, {{0, 0, 3}, 2}};
  EXPECT_TRUE(fails_with("fewer than three families of planes", [&] { (void)model_of(crystals[3], stack); }));
}

// Two points of each trace on the screen span its plane, also with a specimen that is taken for another place.
TEST(Indexing, ExactBandsGiveTheCentreBack) {
  const Crystal& cubic = crystals[0];
  const CrystalModel model = model_of(cubic, reflections_of(cubic, Lattice(cubic.cell)));
  const PatternCentre truth{0.47, 0.58, 0.62};
  const PatternCentre wrong{0.485, 0.57, 0.605};
  const Rotation rotation = rotation_of({0.7, -0.4, 1.2});
  std::vector<DetectedBand> bands;
  for (const Reflector& plane : model.table->planes()) {
    const Vector3 n = rotation.transpose() * plane.normal;
    if (std::abs(n[2]) > 0.5) continue;
    std::array<Vector3, 2> ends;
    for (int end = 0; end < 2; ++end) {
      const double along = end - 0.5;
      const double square = 1 - n[2] * n[2];
      const double x = truth.x + truth.z * (-n[2] * n[0] / square - along * n[1]);
      const double y = truth.y + truth.z * (-n[2] * n[1] / square + along * n[0]);
      ends[static_cast<std::size_t>(end)] = {(x - wrong.x) / wrong.z, (y - wrong.y) / wrong.z, 1};
    }
    const Vector3 seen = ends[0].cross(ends[1]).normalized();
    bands.push_back({std::atan2(seen[1], seen[0]), -std::asin(seen[2]), 0.02, 1});
  }
  ASSERT_GE(bands.size(), 8U);
  const auto fit = fit_centre_on_bands(*model.table, bands, rotation, wrong, 4);
  ASSERT_TRUE(fit);
  EXPECT_LT(std::hypot(fit->centre.x - truth.x, fit->centre.y - truth.y, fit->centre.z - truth.z), 1e-5);
  EXPECT_LT(misorientation_deg(fit->crystal_from_picture, rotation), 1e-3);
  EXPECT_FALSE(fit_centre_on_bands(*model.table, std::span(bands).first(4), rotation, wrong, 4));
}

// Under the prism's rotations by traces: cos 30 behind 120 degrees, 4/3 cos 30 + 1/3 behind 180.
TEST(Orientations, MisorientationUnderTheRotationsOfTheCrystal) {
  const Lattice cubic(crystals[0].cell);
  const Lattice hexagonal(crystals[1].cell);
  const auto of_cube = proper_rotations(cubic, group_of(crystals[0]));
  const auto of_prism = proper_rotations(hexagonal, group_of(crystals[1]));
  EXPECT_EQ(of_cube.size(), 24U);
  EXPECT_EQ(of_prism.size(), 12U);
  struct Row {
    Vector3 axis;
    double turn, plain, cube, prism;
  };
  const Vector3 diagonal = Vector3(1, 1, 1).normalized();
  for (const auto& [axis, turn, plain, cube, prism] : {Row{Vector3::UnitZ(), 90, 90, 0, 30},
                                                       {Vector3::UnitZ(), 70, 70, 20, 10},
                                                       {Vector3::UnitX(), 180, 180, 0, 0},
                                                       {diagonal, 120, 120, 0, 93.840966},
                                                       {diagonal, 180, 180, 60, 75.876255}}) {
    const Rotation turned = rotation_of(axis * turn * radians);
    EXPECT_NEAR(misorientation_deg(turned, Rotation::Identity()), plain, 1e-5);
    EXPECT_NEAR(misorientation_deg(turned, Rotation::Identity(), of_cube), cube, 1e-5);
    EXPECT_NEAR(misorientation_deg(turned, Rotation::Identity(), of_prism), prism, 1e-5);
  }
}

// Columns are the sample's axes in the crystal: for brass the normal (0 1 1), the rolling direction [2 -1 1].
TEST(Orientations, BungeAnglesThereAndBack) {
  struct Row {
    std::array<double, 3> angles;
    Vector3 first, third;
  };
  const double half = std::sqrt(0.5);
  for (const auto& [angles, first, third] :
       {Row{{0, 0, 0}, {1, 0, 0}, {0, 0, 1}},
        {{90, 0, 0}, {0, -1, 0}, {0, 0, 1}},
        {{90, 90, 0}, {0, 0, 1}, {0, 1, 0}},
        {{0, 90, 90}, {0, -1, 0}, {1, 0, 0}},
        {{40, 180, 0}, {std::cos(40 * radians), std::sin(40 * radians), 0}, {0, 0, -1}},
        {{std::atan(half) / radians, 45, 0}, Vector3(2, -1, 1) / std::sqrt(6.0), {0, half, half}},
        {{300, 60, 200}, {-0.617945, -0.235889, -0.75}, {-0.296198, -0.813798, 0.5}}}) {
    const Rotation rotation = rotation_of_bunge(angles);
    EXPECT_LT((rotation.col(0) - first).norm(), 1e-5) << rotation.col(0).transpose();
    EXPECT_LT((rotation.col(2) - third).norm(), 1e-5) << rotation.col(2).transpose();
    const auto back = bunge_deg(rotation);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(back[i], angles[i], 1e-6);
  }
}

// 256, 144 and 384 pixels in a wide picture; 192, 192 and 384 in a tall one; 50 micrometres each.
TEST(Detector, PatternCentresOfFourMakers) {
  struct Row {
    const char* maker;
    PictureSize size;
    std::array<double, 3> numbers, centre;
  };
  const PictureSize wide{640, 480, 50};
  const PictureSize tall{480, 640, 50};
  for (const auto& [maker, size, numbers, centre] : {Row{"Bruker", wide, {0.4, 0.3, 0.8}, {0.4, 0.225, 0.6}},
                                                     {"EDAX", wide, {0.4, 0.7, 0.8}, {0.4, 0.225, 0.6}},
                                                     {"oxford", wide, {0.4, 0.525, 0.6}, {0.4, 0.225, 0.6}},
                                                     {"emsoft", wide, {64, 96, 19200}, {0.4, 0.225, 0.6}},
                                                     {"bruker", tall, {0.4, 0.3, 0.6}, {0.4, 0.4, 0.8}},
                                                     {"edax", tall, {0.4, 0.7, 0.8}, {0.4, 0.4, 0.8}},
                                                     {"oxford", tall, {0.4, 448 / 480., 0.8}, {0.4, 0.4, 0.8}},
                                                     {"emsoft", tall, {48, 128, 19200}, {0.4, 0.4, 0.8}}}) {
    const auto convention = centre_convention(maker);
    ASSERT_TRUE(convention) << maker;
    const PatternCentre read = read_centre(numbers, *convention, size);
    EXPECT_NEAR(std::hypot(read.x - centre[0], read.y - centre[1], read.z - centre[2]), 0, 1e-12) << maker;
    const auto written = written_centre(read, *convention, size);
    for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(written[i], numbers[i], 1e-9) << maker;
  }
  EXPECT_FALSE(centre_convention("leica"));
  // Upside down 336 pixels; half of 640 at 384 is 39.806 degrees, 64 to the left 9.462, 96 down 14.036.
  const PatternCentre turned = upside_down({0.4, 0.225, 0.6}, wide);
  EXPECT_NEAR(turned.y, 0.525, 1e-12);
  const DetectorAngles angles = angles_of(turned, wide);
  EXPECT_NEAR(angles.half_width_deg, 39.80557, 1e-5);
  EXPECT_NEAR(angles.x_shift_deg, -9.46232, 1e-5);
  EXPECT_NEAR(angles.y_shift_deg, 14.03624, 1e-5);
  const PatternCentre back = centre_of(angles, wide);
  EXPECT_NEAR(std::hypot(back.x - 0.4, back.y - 0.525, back.z - 0.6), 0, 1e-12);
  // A sample on edge looks at the screen; lying flat, its normal is up.
  EXPECT_LT((picture_from_sample(90) * Vector3::UnitZ() - Vector3::UnitZ()).norm(), 1e-12);
  EXPECT_LT((picture_from_sample(0) * Vector3::UnitZ() - Vector3::UnitY()).norm(), 1e-12);
  EXPECT_LT((picture_from_sample(70) * Vector3::UnitY() - Vector3::UnitX()).norm(), 1e-12);
}

}  // namespace
}  // namespace zol
