// Fiber textures without a window: the sort, the arcs, the darkness.
#include "spots/fiber_texture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/crystals.h"
#include "tests/test_files.h"

namespace zol {
namespace {

QuietTask quiet;

// The orders by hand: each place from 2 to the last but one is exchanged with the first smallest intensity below a
// million that stands at or behind it, or with the one found before when there is none.
TEST(IntensitySort, ExchangesAllButTwoTheta) {
  struct Row {
    std::vector<Single> intensities;
    std::vector<int> order;
  };
  for (const auto& row : {Row{{9, 5, 3}, {0, 1, 2}}, Row{{9, 5, 3, 1}, {0, 1, 3, 2}},
                          Row{{9, 5, 4, 4, 1, 4}, {0, 1, 4, 3, 2, 5}},     // ties lose their order
                          Row{{9, 5, 2e6F, 3e6F}, {2, 1, 0, 3}},           // nothing found: entry 0
                          Row{{9, 5, 2e6F, 3e6F, 7}, {0, 1, 4, 2, 3}}}) {  // place 4, found before
    CrystalState state;
    const auto count = static_cast<int>(row.order.size()) - 1;
    state.RefCount = count;
    for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count);
    for (auto* array : {&state.RefI, &state.RefA, &state.RefB, &state.RefS, &state.RefTwoTheta}) array->allocate(count);
    for (int i = 0; i <= count; ++i) {
      state.RefH(i) = state.RefK(i) = state.RefL(i) = i;
      state.RefA(i) = state.RefB(i) = state.RefS(i) = state.RefTwoTheta(i) = to_single(i);
      state.RefI(i) = row.intensities[static_cast<std::size_t>(i)];
    }
    reorder(state, order_by_intensity(state, quiet));
    for (int i = 0; i <= count; ++i) {
      const int from = row.order[static_cast<std::size_t>(i)];
      for (const auto* array : {&state.RefH, &state.RefK, &state.RefL}) EXPECT_EQ((*array)(i), from) << i;
      for (const auto* array : {&state.RefA, &state.RefB, &state.RefS}) EXPECT_EQ((*array)(i), to_single(from)) << i;
      EXPECT_EQ(state.RefI(i), row.intensities[static_cast<std::size_t>(from)]) << i;
      EXPECT_EQ(state.RefTwoTheta(i), to_single(i)) << "2-theta stays";
    }
  }
  EXPECT_EQ(failure_of([] {
              CrystalState state;
              state.RefCount = 1;
              (void)order_by_intensity(state, quiet);
            }),
            "a fiber texture needs two reflections or more, the list has 1");
}

/// Cubic, 4 angstroms, with one reflection at the end of a list of three; the fiber axis is [111].
CrystalState textured(int h, int k, int l) {
  CrystalState state = with_cell(cubic_cell(4));
  set_list(state, {{1, 0, 0, 1}, {2, 0, 0, 10}, {h, k, l, 100}});
  state.OriginH = state.OriginK = state.OriginL = 1;
  state.CamAcquisition = 0.8F;
  state.Dispersion = 4;
  return state;
}

const FiberPicture fine{100000, 100000, {}};  // so fine that no two points share a pixel
const FiberPicture coarse{384, 384, {}};

/// Clockwise from up, degrees.
double direction_deg(const ArcPoint& point) {
  return std::atan2(double{point.x}, double{point.y}) * 180.0 / std::numbers::pi;
}

TEST(FiberArcs, LieAtTheAngleToTheAxisAndMirrored) {
  struct Row {
    std::array<int, 3> hkl;
    double angle_deg;  // between the normals of two planes of a cubic crystal
    double rotation_rad;
  };
  for (const auto& [hkl, angle, rotation] :
       {Row{{1, 1, 1}, 0, 0}, Row{{-1, -1, -1}, 180, 0}, Row{{2, 0, 0}, 54.7356, 0}, Row{{-1, 1, 1}, 70.5288, 0},
        Row{{2, 2, 0}, 35.2644, 0}, Row{{2, -2, 0}, 90, 0}, Row{{2, 0, 0}, 54.7356, 0.5}}) {
    SCOPED_TRACE(testing::PrintToString(hkl));
    auto state = textured(hkl[0], hkl[1], hkl[2]);
    state.PatternAngle = to_single(rotation);
    const auto arcs = fiber_arcs(state, 3, fine, quiet);
    ASSERT_TRUE(arcs);
    const double radius = std::sqrt(hkl[0] * hkl[0] + hkl[1] * hkl[1] + hkl[2] * hkl[2]) / 4.0;
    const double step = 0.8 / radius / 10.0;  // degrees
    const auto steps = static_cast<std::size_t>(8.0 / step) + 1;
    ASSERT_EQ(arcs->points.size(), 4 * steps);
    const double turn = rotation * 180.0 / std::numbers::pi;
    const std::array<double, 4> centre{angle, angle, -angle, -angle};
    const std::array<double, 4> sense{-1, 1, -1, 1};
    for (std::size_t i = 0; i < 4 * steps; ++i) {
      const auto& point = arcs->points[i];
      const double off = static_cast<double>(i % steps) * step;
      EXPECT_NEAR(std::hypot(double{point.x}, double{point.y}), radius, 1e-6);
      // A right angle is 1.5708, and the step is added in single precision.
      const double expected_deg = centre[i / steps] + sense[i / steps] * off + turn;
      EXPECT_NEAR(std::remainder(direction_deg(point) - expected_deg, 360.0), 0, 2e-3);
      EXPECT_NEAR(point.darkness.value(), 255.0 * std::exp(-off * off / 16.0), 1.0);
    }
    // The label takes the angle as radians. It comes out 0.0003 degrees large, since pi and a right angle are
    // truncated; here that counts in radians.
    EXPECT_NEAR(arcs->label_x, radius * std::sin(rotation - angle), 4e-4 * radius);
    EXPECT_NEAR(arcs->label_y, radius * std::cos(rotation - angle), 4e-4 * radius);
  }
}

TEST(FiberArcs, TakeEachPixelOnceInARow) {
  const auto state = textured(2, 0, 0);
  const auto points = fiber_arcs(state, 3, coarse, quiet)->points;
  const auto all = fiber_arcs(state, 3, fine, quiet)->points;
  EXPECT_LT(points.size(), all.size());
  EXPECT_EQ(points.front(), all.front());
  const auto pixel = [](Single length) { return std::nearbyint(length * 384.0 / 1.6); };
  for (std::size_t i = 1; i < points.size(); ++i) {
    EXPECT_FALSE(pixel(points[i].x) == pixel(points[i - 1].x) && pixel(points[i].y) == pixel(points[i - 1].y))
        << "an arc starts anew at its centre, which the one before has left";
  }
  // In a picture of one pixel all falls on (0, 0), where every arc starts as if it had been there.
  EXPECT_TRUE(fiber_arcs(state, 3, {1, 1, {}}, quiet)->points.empty());
}

TEST(FiberArcs, AreForWhatIsSeenRelatedToTheStrongestOrItsPower) {
  auto state = textured(2, 0, 0);  // intensities 10 and 100
  EXPECT_EQ(fiber_arcs(state, 2, coarse, quiet)->points.front().darkness, 25);
  EXPECT_EQ(fiber_arcs(state, 3, {384, 384, 0.5}, quiet)->points.front().darkness, 2550);  // 100 / sqrt(100)
  EXPECT_EQ(fiber_arcs(state, 3, {384, 384, 2.0}, quiet)->points.front().darkness, 2);     // 100 / 10000
  state.RefI(3) = 0;
  EXPECT_FALSE(fiber_arcs(state, 3, fine, quiet));
  state = textured(4, 2, 0);  // 1.118 of 0.8 * 1.4142 = 1.1314
  EXPECT_TRUE(fiber_arcs(state, 3, fine, quiet));
  state.CamAcquisition = 0.79F;
  EXPECT_FALSE(fiber_arcs(state, 3, fine, quiet));
}

/// A picture of greys, row by row.
struct Greys {
  explicit Greys(int width_px)
      : width(width_px), grey(static_cast<std::size_t>(width_px) * static_cast<std::size_t>(width_px), 255) {}
  [[nodiscard]] int& at(int column, int row) {
    return grey[static_cast<std::size_t>(row) * static_cast<std::size_t>(width) + static_cast<std::size_t>(column)];
  }
  void darken(const CrystalState& state, Single x, Single y, Integer darkness) {
    const double half = state.CamAcquisition;
    const double column = std::nearbyint((x + half) * (width / (2 * half)));
    const double row = std::nearbyint((y - half) * (width / (-2 * half)));
    if (column < 0 || column >= width || row < 0 || row >= width) return;
    int& here = at(static_cast<int>(column), static_cast<int>(row));
    here = darkened_grey(darkness, 65536 * here);
  }
  int width;
  std::vector<int> grey;
};

/// Every step of every turn.
void draw_plainly(const CrystalState& state, double radius, Single angle, double strength, Greys& picture) {
  const double dispersion = state.Dispersion;
  const double per_unit = picture.width / (2.0 * state.CamAcquisition);
  const double step = to_single(state.CamAcquisition / radius / 10.0);
  for (const Single centre : {angle, -angle}) {
    for (const double sign : {-1.0, 1.0}) {
      double last_column = 0;
      double last_row = 0;
      const Single limit = to_single(centre + sign * 2 * dispersion);
      for (Single t = centre; sign * t <= sign * limit; t = to_single(double{t} + sign * step)) {
        const Single x = to_single(std::sin(t * degree + state.PatternAngle) * radius);
        const Single y = to_single(std::cos(t * degree + state.PatternAngle) * radius);
        const double off = double{centre} - t;
        const Single spread = to_single(std::exp(-off * off / dispersion / dispersion));
        const double column = std::nearbyint(x * per_unit);
        const double row = std::nearbyint(y * per_unit);
        if (column == last_column && row == last_row) continue;
        picture.darken(state, x, y, Integer::floor(strength * spread * 255));
        last_column = column;
        last_row = row;
      }
    }
  }
}

TEST(FiberArcs, OfManyTurnsGiveThePictureOfAllTheirSteps) {
  for (const int width : {48, 61}) {
    for (const Single dispersion : {170.0F, 500.0F, 20000.0F}) {
      for (const Single weak : {40.0F, 3.0F, 0.2F}) {
        SCOPED_TRACE(testing::PrintToString(std::array<double, 3>{double(width), dispersion, weak}));
        auto state = textured(-1, 1, 1);
        state.RefI(2) = weak;
        state.Dispersion = dispersion;
        state.PatternAngle = 0.3F;
        Greys plain(width);
        draw_plainly(state, DHKL(state, 2, 0, 0), ArcCos(to_single(std::sqrt(1 / 3.0))), weak / 100.0, plain);
        Greys arcs(width);
        const FiberPicture picture{
            width, width, {}, [&arcs](const PicturePixel& pixel) { return arcs.at(pixel.column, pixel.row) == 0; }};
        const auto found = fiber_arcs(state, 2, picture, quiet);
        for (const auto& point : found->points) arcs.darken(state, point.x, point.y, point.darkness);
        EXPECT_EQ(arcs.grey, plain.grey);
        EXPECT_LT(found->points.size(), std::size_t{16} * static_cast<std::size_t>(width));
        EXPECT_TRUE(dispersion < 180 || fiber_arcs(state, 2, picture, quiet)->points.size() <= found->points.size());
      }
    }
  }
}

TEST(FiberArcs, FailWithTheReason) {
  auto state = textured(2, 0, 0);
  const auto failure = [&state](std::optional<double> exponent) {
    return failure_of([&] { (void)fiber_arcs(state, 3, {384, 384, exponent}, quiet); });
  };
  EXPECT_EQ(failure(-1), "overflow: 2550000 does not fit an Integer (-32768 to 32767)");
  state.Dispersion = 1e20F;
  EXPECT_NE(failure({}).find("an arc of the fiber texture goes from"), std::string::npos);
  state.OriginH = state.OriginK = state.OriginL = 0;
  EXPECT_EQ(failure({}), "division by zero: the length of the fiber direction is 0");
}

TEST(DarkenedGrey, AddsToTheBluePart) {
  struct Row {
    int darkness, colour, grey;
  };
  constexpr auto rgb = [](int r, int g, int b) { return r + 256 * g + 65536 * b; };
  for (const auto& row : {Row{100, rgb(155, 155, 155), 55}, Row{100, rgb(20, 20, 20), 0}, Row{100, rgb(0, 0, 255), 155},
                          Row{100, rgb(255, 255, 0), 0}, Row{100, -1, 0},  // outside the picture: as black
                          Row{100, 16777216, 155},                         // no colour
                          Row{0, rgb(255, 255, 255), 255}, Row{32512, rgb(255, 255, 255), 0}}) {
    EXPECT_EQ(darkened_grey(row.darkness, row.colour), row.grey) << row.darkness << " on " << row.colour;
  }
  EXPECT_EQ(failure_of([&rgb] { (void)darkened_grey(32513, rgb(255, 255, 255)); }),
            "overflow: 32768 does not fit an Integer (-32768 to 32767)");
}

}  // namespace
}  // namespace zol
