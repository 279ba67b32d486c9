#include "spots/zone_calculation.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/cartesian_cell.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Axis = std::array<int, 3>;

// A direction has its place in the pattern by Cartesian geometry; the point there must give it back. Whole thousandths
// and floors leave up to 0.15 degrees.
TEST(NewAxis, IsTheDirectionAtThePoint) {
  for (const auto& cell : cells_of_all_systems) {
    const auto state = oriented_crystal(cell, {1, 1, 2});
    const CartesianCell cartesian(state);
    const PatternFrame frame(state);
    for (const auto& wanted : {Axis{1, 1, 3}, Axis{1, 2, 3}, Axis{2, 1, 2}, Axis{1, 1, 2}, Axis{3, 2, 4}}) {
      const auto direction = cartesian.direction(wanted[0], wanted[1], wanted[2]);
      const double along = dot(direction, frame.z);
      constexpr double off_the_axis = 1e-5;  // at y = 0 and x < 0 the azimuth is taken for 0
      const auto angles = angles_of_point(to_single(dot(direction, frame.x) / along),
                                          to_single(dot(direction, frame.y) / along + off_the_axis));
      const auto [u, v, w] = zone_axis_of(orientation(state), angles);
      EXPECT_LT(angle_deg(cartesian.direction(u.value(), v.value(), w.value()), direction), 0.15);
    }
  }
}

TEST(PointAngles, KeepTheirOddConstants) {
  using Row = SingleTriple;
  for (const auto& [x, y, phi] : {Row{0, 1, 1.570745F}, Row{0, -1, -1.570795F}, Row{0, 0, -1.570795F}, Row{-1, 0, 0},
                                  Row{1, 1, 0.7853982F}, Row{-1, 1, 2.3561918F}, Row{-1, -1, -2.3561918F}}) {
    EXPECT_NEAR(angles_of_point(x, y).phi, phi, 1e-6) << x << ' ' << y;
  }
  EXPECT_NEAR(angles_of_point(0.6F, 0.8F).theta, 0.785397, 1e-6) << "tangent 1";
}

TEST(NewAxis, TakesFloorsAndReducesOnce) {
  const auto axis = [](double theta_deg, double phi_deg) {
    return zone_axis_of({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
                        {to_single(theta_deg * degree), to_single(phi_deg * degree)});
  };
  EXPECT_EQ(axis(0, 0), (Indices<Integer>{1, 0, 0})) << "1000 0 0 is reduced";
  EXPECT_EQ(axis(0, 180.1), (Indices<Integer>{-500, -1, 0})) << "the floor of -1.75 is -2, then 2 is taken out";
  EXPECT_EQ(axis(-30, 0), (Indices<Integer>{500, 0, -289})) << "the floor of -577.35 is -578";
}

TEST(NewReference, LiesInThePlaneOfTheNewAxis) {
  const auto state = oriented_crystal(cubic_cell(5.43F), {1, 0, 2});
  using Two = std::pair<Indices<Integer>, Indices<Integer>>;
  for (const auto& [axis, reflection] :
       {Two{{1, 2, 3}, {3, 3, -3}}, Two{{1, 1, 0}, {0, 0, -2}}, Two{{1, -1, 0}, {0, 0, 0}},
        Two{{1, 1, 2000}, {1000, 1000, -2}}, Two{{1000, 999, 500}, {500, 500, -1000}},
        Two{{-1000, -999, 5}, {5, 5, 1000}}}) {
    EXPECT_EQ(new_reference(state, axis).reflection, reflection);
  }
  EXPECT_FALSE(new_reference(state, {1, -1, 0}).turn_degrees) << "a zero reference keeps the turn as it was";
}

// Tilting to a new axis changes the mark of azimuth zero; the turn is the angle between both marks seen along the new
// axis, with its sense seen along the old one.
TEST(NewReference, TurnsByTheAngleBetweenTheReferences) {
  for (const auto& cell : cells_of_all_systems) {
    const auto state = oriented_crystal(cell, {1, 0, 3});
    const CartesianCell cartesian(state);
    for (const auto& [u, v, w] : {Axis{1, 0, 5}, Axis{-1, 2, 6}, Axis{1, 1, 4}}) {
      const double turn = PatternFrame(oriented_crystal(cell, {u, v, w})).azimuth(cartesian.normal(3, 3, -1));
      const double sense = PatternFrame(state).azimuth(cartesian.normal(w, w, -u - v));
      EXPECT_NEAR(new_reference(state, {u, v, w}).turn_degrees.value(), std::copysign(turn, sense), 2e-2);
    }
  }
}

TEST(NormalPlane, IsInPercentOfTheSum) {
  EXPECT_EQ(normal_plane_percent(with_cell(cubic_cell(5)), {1, 1, 2})[2], 49) << "with the truncated right angle 49.99";
  EXPECT_EQ(normal_plane_percent(with_cell({3, 3, 5, 90, 90, 120}), {1, 0, 0}), (SingleTriple{66, -34, 0}))
      << "normal to (2 -1 0)";
}

TEST(ZoneCalculation, FailsOnDivisors) {
  auto state = oriented_crystal(cubic_cell(5), {0, 0, 1});
  EXPECT_TRUE(fails_with("division by zero", [&] { (void)normal_plane_percent(state, {0, 0, 0}); }));
  // The new axis lies along the old reference.
  EXPECT_TRUE(fails_with("division by zero", [&] { (void)new_reference(state, {1, 1, 0}); }));
  state.ZoneW = 0;
  EXPECT_TRUE(fails_with("the product of zone axis and", [&] { (void)orientation(state); }));
  state.OriginH = state.OriginK = 0;
  EXPECT_TRUE(fails_with("the length of the reference reflection is 0", [&] { (void)orientation(state); }));
}

}  // namespace
}  // namespace zol
