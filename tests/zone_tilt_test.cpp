// Tilts of a cubic crystal between its zone axes.
#include "spots/zone_tilt.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zol {
namespace {

using Direction = std::array<double, 3>;

Main1State cubic(const Direction& axis) {
  Main1State state;
  state.CellA = state.CellB = state.CellC = 4;
  state.CellAlpha = state.CellBeta = state.CellGamma = 90;
  state.ZoneU = to_single(axis[0]);
  state.ZoneV = to_single(axis[1]);
  state.ZoneW = to_single(axis[2]);
  return state;
}

// At [0 0 1] x lies along (1 1 0) and y along (-1 1 0): a tilt to the right by 35.26 degrees brings [-1 -1 2] to the
// centre, by 54.74 degrees [-1 -1 1]; upward by 45 degrees nothing below [1 -1 1] or [1 -1 2] but [2 -2 3].
TEST(ZoneTilt, GoesFromAxisToAxis) {
  const auto after = [](double right_deg, double up_deg, double turn_rad = 0) {
    Main1State state = cubic({0, 0, 1});
    state.PatternAngle = to_single(turn_rad);
    return axis_of_tilt(state, picture_frame(state), right_deg * M_PI / 180, up_deg * M_PI / 180);
  };
  EXPECT_EQ(after(0, 0), (Direction{0, 0, 1}));
  EXPECT_EQ(after(35.26, 0), (Direction{-1, -1, 2}));
  EXPECT_EQ(after(-54.74, 0), (Direction{1, 1, 1}));
  EXPECT_EQ(after(0, 54.74), (Direction{1, -1, 1}));
  EXPECT_EQ(after(0, 43.31), (Direction{2, -2, 3}));
  EXPECT_EQ(after(45, 0, M_PI / 4), (Direction{0, -1, 1})) << "turned clockwise, x of the screen lies along (0 1 0)";
}

TEST(ZoneTilt, StaysAtTheAxisWhichIsNearest) {
  const Main1State state = cubic({0, 0, 2});
  EXPECT_EQ(axis_of_tilt(state, picture_frame(state), 1e-9, 0), (Direction{0, 0, 2}));
  EXPECT_ANY_THROW((void)picture_frame(cubic({0, 0, 0})));
}

}  // namespace
}  // namespace zol
