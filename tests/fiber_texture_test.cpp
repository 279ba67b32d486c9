// Fiber textures without a window: arcs of many turns, the darkness. tests/scripts/fiber_window.zs has short arcs.
#include "spots/fiber_texture.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/crystals.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Cubic, 4 angstroms, with one reflection at the end of a list of three; the fiber axis is [111].
CrystalState textured(int h, int k, int l) {
  CrystalState state = with_cell(cubic_cell(4));
  set_list(state, {{1, 0, 0, 1}, {2, 0, 0, 10}, {h, k, l, 100}});
  state.OriginH = state.OriginK = state.OriginL = 1;
  state.CamAcquisition = 0.8F;
  state.Dispersion = 4;
  return state;
}

TEST(FiberArcs, AreForWhatIsSeen) {
  const FiberPicture coarse{384, 384, {}};
  auto state = textured(4, 2, 0);  // 1.118 of 0.8 * 1.4142 = 1.1314
  EXPECT_TRUE(fiber_arcs(state, 3, coarse, quiet));
  state.CamAcquisition = 0.79F;
  EXPECT_FALSE(fiber_arcs(state, 3, coarse, quiet));
  state = textured(2, 0, 0);
  EXPECT_EQ(fiber_arcs(state, 3, {384, 384, 2.0}, quiet)->points.front().darkness, 2);  // 100 / 10000
  // In a picture of one pixel all falls on (0, 0), where every arc starts as if it had been there.
  EXPECT_TRUE(fiber_arcs(state, 3, {1, 1, {}}, quiet)->points.empty());
  state.RefI(3) = 0;
  EXPECT_FALSE(fiber_arcs(state, 3, coarse, quiet));
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

TEST(DarkenedGrey, AddsToTheBluePart) {
  struct Row {
    int darkness, colour, grey;
  };
  constexpr auto rgb = [](int r, int g, int b) { return r + 256 * g + 65536 * b; };
  for (const auto& row : {Row{100, rgb(155, 155, 155), 55}, Row{100, rgb(20, 20, 20), 0}, Row{100, rgb(0, 0, 255), 155},
                          Row{100, rgb(255, 255, 0), 0}, Row{100, -1, 0},  // outside the picture: as black
                          Row{100, 16777216, 155},                         // no colour
                          Row{32512, rgb(255, 255, 255), 0}}) {
    EXPECT_EQ(darkened_grey(row.darkness, row.colour), row.grey) << row.darkness << " on " << row.colour;
  }
  EXPECT_EQ(failure_of([&rgb] { (void)darkened_grey(32513, rgb(255, 255, 255)); }),
            "overflow: 32768 does not fit an Integer (-32768 to 32767)");
}

}  // namespace
}  // namespace zol
