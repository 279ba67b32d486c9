#include "scans/map_pictures.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace zol {
namespace {

Rotation about(const Vector3& axis, double angle_deg) {
  return Eigen::AngleAxisd(angle_deg * 3.14159265358979323846 / 180, axis.normalized()).toRotationMatrix();
}

/// All products of the generators.
std::vector<Rotation> group_of(const std::vector<Rotation>& generators) {
  std::vector<Rotation> group{Rotation::Identity()};
  for (std::size_t i = 0; i < group.size(); ++i) {
    for (const auto& one : generators) {
      const Rotation product = one * group[i];
      const auto same = [&product](const Rotation& known) { return (known - product).norm() < 1e-6; };
      if (std::none_of(group.begin(), group.end(), same)) group.push_back(product);
    }
  }
  return group;
}

const Vector3 x = Vector3::UnitX();
const Vector3 y = Vector3::UnitY();
const Vector3 z = Vector3::UnitZ();

struct Row {
  const char* laue;
  std::size_t rotations;
  std::vector<Rotation> generators;
  Vector3 red, green, blue;
};

// Corners: the axis of highest order is red, and the two ends of the rim green and blue. Of -3m they lie in the two
// mirrors, half-way between twofold axes; of 2/m the axis is b.
std::vector<Row> rows() {
  const auto at = [](double eta_deg) { return Vector3(about(z, eta_deg) * x); };
  return {{"-1", 1, {}, z, x, at(359.99)},
          {"2/m", 2, {about(y, 180)}, y, x, -x},
          {"mmm", 4, {about(z, 180), about(x, 180)}, z, x, y},
          {"4/m", 4, {about(z, 90)}, z, x, at(89.99)},
          {"4/mmm", 8, {about(z, 90), about(x, 180)}, z, x, at(45)},
          {"-3", 3, {about(z, 120)}, z, x, at(119.99)},
          {"-3m", 6, {about(z, 120), about(x, 180)}, z, at(-29.99), at(29.99)},
          {"6/m", 6, {about(z, 60)}, z, x, at(59.99)},
          {"6/mmm", 12, {about(z, 60), about(x, 180)}, z, x, at(30)},
          {"m-3", 12, {about(z, 180), about({1, 1, 1}, 120)}, z, {1, 0, 1}, {0, .9999, 1}},
          {"m-3m", 24, {about(z, 90), about({1, 1, 1}, 120)}, z, {1, 0, 1}, {1, 1, 1}}};
}

bool close(const Rgb& a, const Rgb& b) {
  for (std::size_t i = 0; i < 3; ++i) {
    if (std::abs(int{a[i]} - int{b[i]}) > 4) return false;
  }
  return true;
}

TEST(PoleColours, HavePureCornersAndOneColourForAllEquivalents) {
  std::mt19937 random(1);
  std::normal_distribution<double> normal;
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.laue);
    const auto group = group_of(row.generators);
    ASSERT_EQ(group.size(), row.rotations);
    EXPECT_EQ(laue_class_of(group), row.laue);
    const PoleColours key(group);
    // A hair inside the sector, since the corners of some are shared by sectors.
    EXPECT_TRUE(close(key.colour(row.red), {255, 0, 0}));
    EXPECT_TRUE(close(key.colour(row.green + 1e-6 * row.red), {0, 255, 0}));
    EXPECT_TRUE(close(key.colour(row.blue + 1e-6 * row.red), {0, 0, 255}));
    for (int i = 0; i < 200; ++i) {
      const Vector3 direction(normal(random), normal(random), normal(random));
      const Rgb colour = key.colour(direction);
      EXPECT_FALSE(colour == (Rgb{255, 0, 0})) << "outside every sector";
      for (const auto& rotation : group) EXPECT_TRUE(close(key.colour(-(rotation * direction)), colour));
    }
  }
}

TEST(PoleColours, CornersBearTheIndicesOfTheLattice) {
  const Lattice hexagonal({2.95, 2.95, 4.68, 90, 90, 120});
  EXPECT_EQ(indices_along(hexagonal, z), "[0 0 1]");
  EXPECT_EQ(indices_along(hexagonal, about(z, 30) * x), "[2 1 0]");
  const Lattice monoclinic({5, 6, 7, 90, 103, 90});
  EXPECT_EQ(indices_along(monoclinic, z), "(0 0 1)") << "c* is no lattice direction";
  EXPECT_EQ(indices_along(monoclinic, {0.3, 0.2, 0.5}), "");
}

// By hand: turns of 0, 1 and 3 degrees about the normal along a row, then another grain; a quarter turn is none in a
// cubic crystal.
TEST(MapPictures, LocalMisorientationStopsAtTheGrain) {
  MapResult map;
  map.grid = {5, 1, 1, 1};
  map.phases.resize(1);
  map.phases[0].rotations = group_of({about(z, 90), about({1, 1, 1}, 120)});
  const auto radian = [](double degree) { return static_cast<float>(degree * 3.14159265358979323846 / 180); };
  for (const double turn : {0.0, 91.0, 3.0, 33.0})
    map.points.push_back({{radian(turn), 0, 0}, .5F, .5F, .1F, 1, 0, 0, 0});
  map.points.emplace_back();
  const auto found = local_misorientation_deg(map);
  const std::vector<float> expected{1, 1.5, 2, -1, -1};
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_NEAR(found[i], expected[i], 1e-3F) << i;
  const MapPicture picture = map_picture(map, MapPictureKind::local_misorientation);
  EXPECT_NEAR(picture.scale_end, 2, 1e-9);
  EXPECT_TRUE(close(picture.pixels[2], picture.scale.back()));
  EXPECT_EQ(picture.pixels[4], Rgb{}) << "black";
}

}  // namespace
}  // namespace zol
