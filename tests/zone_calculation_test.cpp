#include "spots/zone_calculation.h"

#include <gtest/gtest.h>

#include "core/number_text.h"
#include "tests/cartesian_cell.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Axis = std::array<int, 3>;

TEST(OrientationMatrix, IsOrthonormalInTheMetricOfEveryCrystalSystem) {
  for (const auto& cell : cells_of_all_systems) {
    for (const auto& axis : {Axis{0, 0, 1}, Axis{1, 1, 2}, Axis{-2, 1, 3}}) {
      const auto state = oriented_crystal(cell, axis);
      const auto frame = orientation(state);
      const auto product = [&state](const Vector3& a, const Vector3& b) {
        return ProductTS(state, a[0], a[1], a[2], b[0], b[1], b[2]);
      };
      for (const auto* v : {&frame.x, &frame.y, &frame.z}) EXPECT_NEAR(product(*v, *v), 1, 1e-5);
      EXPECT_NEAR(product(frame.x, frame.y), 0, 1e-5);
      EXPECT_NEAR(product(frame.y, frame.z), 0, 1e-5);
      EXPECT_NEAR(product(frame.z, frame.x), 0, 1e-5);
    }
  }
}

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
      const auto found = zone_axis_of(orientation(state), angles);
      EXPECT_LT(angle_deg(cartesian.direction(found.h.value(), found.k.value(), found.l.value()), direction), 0.15);
    }
  }
}

TEST(PointAngles, KeepTheirOddConstants) {
  struct Row {
    Single x, y, phi;
  };
  for (const auto& row : {Row{0, 1, 1.570745F}, Row{0, -1, -1.570795F}, Row{0, 0, -1.570795F}, Row{-1, 0, 0},
                          Row{1, 1, 0.7853982F}, Row{-1, 1, 2.3561918F}, Row{-1, -1, -2.3561918F}}) {
    EXPECT_NEAR(angles_of_point(row.x, row.y).phi, row.phi, 1e-6) << row.x << ' ' << row.y;
  }
  EXPECT_EQ(plain_text(angles_of_point(0, 1).phi), "1.570745");
  EXPECT_NEAR(angles_of_point(0.6F, 0.8F).theta, 0.785397, 1e-6) << "tangent 1";
}

TEST(NewAxis, TakesFloorsAndReducesOnce) {
  Orientation frame;
  frame.x = {1, 0, 0};
  frame.y = {0, 1, 0};
  frame.z = {0, 0, 1};
  const auto axis = [&frame](double theta_deg, double phi_deg) {
    const auto found = zone_axis_of(frame, {to_single(theta_deg * degree), to_single(phi_deg * degree)});
    return Axis{found.h.value(), found.k.value(), found.l.value()};
  };
  EXPECT_EQ(axis(0, 0), (Axis{1, 0, 0})) << "1000 0 0 is reduced";
  EXPECT_EQ(axis(0, 180.1), (Axis{-500, -1, 0})) << "the floor of -1.75 is -2, then 2 is taken out";
  EXPECT_EQ(axis(-30, 0), (Axis{500, 0, -289})) << "the floor of -577.35 is -578";
}

TEST(NewReference, LiesInThePlaneOfTheNewAxis) {
  const auto state = oriented_crystal({5.43F, 5.43F, 5.43F, 90, 90, 90}, {1, 0, 2});
  struct Row {
    Indices<Integer> axis, reflection;
  };
  for (const auto& row : {Row{{1, 2, 3}, {3, 3, -3}}, Row{{1, 1, 0}, {0, 0, -2}}, Row{{1, -1, 0}, {0, 0, 0}},
                          Row{{1000, 999, 500}, {500, 500, -1000}}, Row{{-1000, -999, 5}, {5, 5, 1000}}}) {
    EXPECT_EQ(new_reference(state, row.axis).reflection, row.reflection);
  }
  EXPECT_FALSE(new_reference(state, {1, -1, 0}).turn_degrees) << "a zero reference keeps the turn as it was";
  const auto along_edge = oriented_crystal({5.43F, 5.43F, 5.43F, 90, 90, 90}, {0, 0, 1});
  EXPECT_NE(failure_of([&] {
              (void)new_reference(along_edge, {1, 1, 0});
            }).find("division by zero"),
            std::string::npos)
      << "the new axis lies along the old reference";
}

// Tilting to a new axis changes the mark of azimuth zero; the turn is the angle between both marks seen along the new
// axis.
TEST(NewReference, TurnsByTheAngleBetweenTheReferences) {
  for (const auto& cell : cells_of_all_systems) {
    const auto state = oriented_crystal(cell, {0, 0, 1});
    const CartesianCell cartesian(state);
    for (const auto& axis : {Axis{1, 0, 5}, Axis{-1, 2, 6}, Axis{1, 1, 4}}) {
      const auto found = new_reference(state, {axis[0], axis[1], axis[2]});
      auto turned = oriented_crystal(cell, axis);
      const auto old_mark = cartesian.normal(state.OriginH.value(), state.OriginK.value(), state.OriginL.value());
      const double expected = std::abs(PatternFrame(turned).azimuth(old_mark));
      ASSERT_TRUE(found.turn_degrees);
      EXPECT_NEAR(std::abs(*found.turn_degrees), expected, 2e-2);
    }
  }
}

TEST(NormalPlane, IsInPercentOfTheSum) {
  const auto cubic = oriented_crystal({5, 5, 5, 90, 90, 90}, {0, 0, 1});
  EXPECT_EQ(normal_plane_percent(cubic, {1, 1, 2})[2], 49) << "floor of 49.99 with the truncated right angle";
  const auto hexagonal = oriented_crystal({3, 3, 5, 90, 90, 120}, {0, 0, 1});
  // [1 0 0] is normal to (2 -1 0): 66.7 and -33.3 percent
  const auto percent = normal_plane_percent(hexagonal, {1, 0, 0});
  EXPECT_EQ(percent[0], 66);
  EXPECT_EQ(percent[1], -34);
  EXPECT_THROW((void)normal_plane_percent(cubic, {0, 0, 0}), RunFailure);
}

TEST(Orientation, FailsOnAZeroAxisOrReference) {
  auto state = oriented_crystal({5, 5, 5, 90, 90, 90}, {0, 0, 1});
  state.ZoneW = 0;
  EXPECT_THROW((void)orientation(state), RunFailure);
  state.ZoneW = 1;
  state.OriginH = state.OriginK = 0;
  EXPECT_EQ(failure_of([&] { (void)orientation(state); }),
            "division by zero: the length of the reference reflection is 0");
}

}  // namespace
}  // namespace zol
