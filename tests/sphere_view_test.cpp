#include "dynamics/sphere_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "core/run_failure.h"
#include "dynamics/sphere_names.h"
#include "tests/quiet.h"

namespace zol {
namespace {

using Place = std::array<double, 2>;

constexpr auto stereographic = SphereProjection::Stereographic;
constexpr auto lambert = SphereProjection::Lambert;
constexpr auto globe = SphereProjection::Globe;

SphereView view(SphereProjection projection, bool south = false, const Rotation& turned = Rotation::Identity()) {
  return {projection, south, turned};
}

// Stereographic: tan(angle / 2) from the middle. Equal area: sqrt(1 - cos angle) along an axis of the square, which
// the direction at 45 degrees between two axes leaves through its corner. Globe: sine of the angle.
TEST(SphereView, HasDirectionsAtTheirPlaces) {
  const double half = std::sqrt(.5);
  const Rotation about_111 = globe_about({1, 1, 1}, 0);
  const struct {
    SphereView view;
    Vector3 direction;
    std::optional<Place> place;
  } cases[]{
      {view(stereographic), {0, 0, 2}, Place{0, 0}},
      {view(stereographic), {1, 0, 0}, Place{1, 0}},
      {view(stereographic), {0, 1, 1}, Place{0, std::tan(std::numbers::pi / 8)}},
      {view(stereographic), {1, 1, 1}, Place{.36602540378, .36602540378}},  // 1 / (1 + sqrt 3)
      {view(stereographic), {0, 1, -1}, {}},
      {view(stereographic, true), {0, 1, -1}, Place{0, std::tan(std::numbers::pi / 8)}},
      {view(stereographic, true), {1, 1, 1}, {}},
      {view(lambert), {0, -1, 0}, Place{0, -1}},
      {view(lambert), {1, 1, 0}, Place{1, 1}},
      {view(lambert), {1, 0, 1}, Place{std::sqrt(1 - half), 0}},
      {view(lambert), {1, 0, -1}, {}},
      {view(globe), {0, 1, 1}, Place{0, half}},
      {view(globe), {0, 0, -1}, {}},
      {view(globe, true), {0, 0, 1}, Place{0, 0}},  // has no halves
      {view(globe, false, about_111), {1, 1, 1}, Place{0, 0}},
      {view(globe, false, about_111), {0, 0, 1}, Place{0, std::sqrt(2 / 3.)}},  // upward, by 54.74 degrees
      {view(globe, false, about_111), {-1, 1, 0}, Place{1, 0}},
      {view(globe, false, globe_about({1, 1, 1}, 90)), {0, 0, 1}, Place{-std::sqrt(2 / 3.), 0}},
      {view(globe, false, globe_about({0, 0, 1}, 0)), {1, 0, 0}, Place{1, 0}},  // c* itself: b upward
      {view(globe, false, globe_about({0, 0, -1}, 0)), {0, 1, 0}, Place{0, 1}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << "row " << &c - cases);
    const auto place = c.view.place(c.direction);
    ASSERT_EQ(place.has_value(), c.place.has_value());
    if (!place) continue;
    EXPECT_NEAR((*place)[0], (*c.place)[0], 1e-9);
    EXPECT_NEAR((*place)[1], (*c.place)[1], 1e-9);
  }
}

TEST(SphereView, FindsTheDirectionOfAPlaceAgain) {
  for (const auto& seen : {view(stereographic), view(stereographic, true), view(lambert), view(lambert, true),
                           view(globe, false, globe_about({.3, -1, .4}, 25))}) {
    EXPECT_FALSE(seen.direction(.99, seen.projection == lambert ? 1.01 : .99));
    EXPECT_LT((*seen.direction(0, 0) - seen.middle()).norm(), 1e-12);
    for (const Place& at : {Place{.1, -.3}, {-.62, .62}, {.05, .9}, {-.7, 0}}) {
      const auto direction = seen.direction(at[0], at[1]);
      ASSERT_TRUE(direction);
      EXPECT_NEAR(direction->norm(), 1, 1e-12);
      const auto back = seen.place(*direction);
      ASSERT_TRUE(back);
      EXPECT_NEAR((*back)[0], at[0], 1e-9);
      EXPECT_NEAR((*back)[1], at[1], 1e-9);
    }
  }
}

TEST(SphereView, FollowsADrag) {
  const Rotation start = globe_about({1, 2, 3}, 40);
  const Vector3 taken = *view(globe, false, start).direction(.2, -.5);
  const Rotation dragged = dragged_globe(start, {.2, -.5}, {-.3, .1});
  const auto at = view(globe, false, dragged).place(taken);
  EXPECT_NEAR((*at)[0], -.3, 1e-12);
  EXPECT_NEAR((*at)[1], .1, 1e-12);
  const Rotation spun = spun_globe(start, {.5, 0}, {0, .2});  // a quarter, anticlockwise
  EXPECT_LT((spun - globe_about({1, 2, 3}, 130)).norm(), 1e-12);
  EXPECT_NEAR(globe_turn_deg(spun, {1, 2, 3}), 130, 1e-9);
  EXPECT_NEAR(globe_turn_deg(globe_about({0, 0, 1}, -35), {0, 0, 1}), -35, 1e-9);
  EXPECT_NEAR(misorientation_deg(dragged_globe(start, {0, 0}, {5, 0}), dragged_globe(start, {0, 0}, {1, 0})), 0, 1e-6)
      << "beyond the edge as at it";
}

/// Bright where z is large, of both halves.
MasterPattern by_height() {
  MasterPattern master;
  master.size = 101;
  master.kilovolts = {20};
  master.patterns.resize(1);
  const SquareGrid grid(101);
  for (std::size_t i = 0; i < grid.count(); ++i) {
    auto& half = i < grid.count() / 2 ? master.patterns[0].north : master.patterns[0].south;
    half.push_back(static_cast<float>(grid.direction(i)[2]));
  }
  return master;
}

// Heights of an even distribution over the sphere are evenly distributed from -1 to 1, of which 2 % are cut off.
TEST(SphereView, DrawsThePatternUprightAndEven) {
  const MasterPattern master = by_height();
  constexpr int pixels = 64;
  const auto values = draw_sphere(master, view(globe, false, globe_about({1, 0, 0}, 0)), pixels, 1.25, quiet);
  const auto at = [&values](int row, int column) {
    return values.at(static_cast<std::size_t>(row) * pixels + static_cast<std::size_t>(column));
  };
  EXPECT_LT(at(0, 0), 0) << "beyond the edge";
  for (int row = 7; row < pixels - 7; ++row) {
    const double height = 1.25 * (1 - (2 * row + 1.0) / pixels);
    const double wanted = std::clamp(height / .98 / 2 + .5, 0.0, 1.0);
    for (const int column : {31, 32}) EXPECT_NEAR(at(row, column), wanted, .02) << row;
  }
  for (const double value : draw_sphere(master, view(stereographic, true), 20, 1, quiet)) EXPECT_LT(value, .51);
}

ReflectorSet cube() {
  ReflectorSet set;
  set.cell = {4, 4, 4, 90, 90, 90};
  const auto add = [&set](double weight, const std::vector<std::array<int, 3>>& planes) {
    ReflectorFamily family{
        planes.front(), 1, weight, .02, static_cast<int>(set.members.size()), static_cast<int>(planes.size())};
    for (const auto& hkl : planes) {
      set.members.push_back({hkl, Vector3(hkl[0], hkl[1], hkl[2]).normalized(), static_cast<int>(set.families.size())});
    }
    set.families.push_back(family);
  };
  add(10, {{1, 1, 0}, {1, -1, 0}, {1, 0, 1}, {1, 0, -1}, {0, 1, 1}, {0, 1, -1}});
  add(20, {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}});
  add(5, {{2, 0, 0}, {0, 2, 0}, {0, 0, 2}});  // in the bands of (1 0 0)
  add(4, {{1, 1, 1}, {1, 1, -1}, {1, -1, 1}, {-1, 1, 1}});
  return set;
}

TEST(SphereNames, AreOfStrongPlanesAndWholeFamilies) {
  for (const auto& [most, count] : {std::pair{20, 13}, {12, 9}, {9, 9}, {8, 3}, {1, 3}}) {
    const auto bands = named_bands(cube(), most);
    EXPECT_EQ(bands.size(), static_cast<std::size_t>(count)) << most;
    EXPECT_EQ(bands.front().hkl, (std::array{1, 0, 0}));
  }
}

// <100> has two planes of 25 and two of 10 in a period of 4; <110> 25 + 10 + 2 of 4 in 5.66; <111> three of 10 in 6.93.
TEST(SphereNames, AreOfAxesWhereManyPlanesMeet) {
  const auto axes = named_axes(cube(), 30);
  ASSERT_EQ(axes.size(), 26U);
  const double weights[]{70. / 4, 43 / std::sqrt(32.), 30 / std::sqrt(48.)};
  for (std::size_t i = 0; i < axes.size(); ++i) {
    EXPECT_NEAR(axes[i].weight, weights[i < 6 ? 0 : i < 18 ? 1 : 2], 1e-9) << i;
  }
  EXPECT_EQ(named_axes(cube(), 25).size(), 18U) << "no family in part";
  const Vector3 beside = Vector3(1, 1.02, -1);
  const NamedAxis& nearest = nearest_axis(axes, beside);
  EXPECT_EQ(nearest.uvw, (std::array{1, 1, -1}));
  EXPECT_NEAR(angle_between_deg(nearest.direction, beside), .536, .001);  // .02 sqrt(2/3) / sqrt 3, nearly
}

TEST(SphereNames, TellDirectionsAlongTheEdgesOfTheCell) {
  const Lattice hexagonal({3, 3, 5, 90, 90, 120});
  const Vector3 e2(0, 1, 0);  // along a + 2 b
  const auto uvw = components_of(hexagonal, e2);
  EXPECT_NEAR(uvw[0], .5, 1e-9);
  EXPECT_NEAR(uvw[1], 1, 1e-9);
  EXPECT_NEAR(uvw[2], 0, 1e-9);
  EXPECT_LT((direction_of(hexagonal, {1, 2, 0}) - e2).norm(), 1e-9);
  EXPECT_THROW((void)direction_of(hexagonal, {0, 0, 0}), RunFailure);
}

}  // namespace
}  // namespace zol
