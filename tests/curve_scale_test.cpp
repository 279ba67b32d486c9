// Zooming in a curve, its scales there and back, and labels that leave each other room.
#include "shell/services/curve_scale.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "shell/services/label_places.h"

namespace zol {
namespace {

TEST(CurveScale, GoesThereAndBack) {
  for (const auto heights : {CurveHeights::Linear, CurveHeights::SquareRoot, CurveHeights::Logarithm}) {
    const CurvePlot plot{50, 20, 400, 300, {20, 60}, {1e-4, 1.01}, heights};
    EXPECT_DOUBLE_EQ(plot.pixel_y(1.01), 20);
    EXPECT_DOUBLE_EQ(plot.pixel_y(1e-4), 320);
    for (const double y : {1e-4, 0.003, 0.25, 1.0}) EXPECT_NEAR(plot.user_y(plot.pixel_y(y)), y, 1e-12);
    for (const double x : {20.0, 33.3, 60.0}) EXPECT_NEAR(plot.user_x(plot.pixel_x(x)), x, 1e-12);
  }
  const CurvePlot root{0, 0, 100, 100, {0, 1}, {0, 1}, CurveHeights::SquareRoot};
  EXPECT_DOUBLE_EQ(root.pixel_y(0.25), 50);
  const CurvePlot decades{0, 0, 100, 100, {0, 1}, {1e-4, 1}, CurveHeights::Logarithm};
  EXPECT_DOUBLE_EQ(decades.pixel_y(0.01), 50);
  EXPECT_DOUBLE_EQ(decades.pixel_y(-3), 100) << "what has no logarithm lies at the bottom";
}

TEST(CurveScale, ZoomsAroundAPlaceInsideAllThereIs) {
  const CurveRange all{0, 90};
  EXPECT_EQ(zoomed(all, 30, 2, all), (CurveRange{15, 60}));
  EXPECT_EQ(zoomed({15, 60}, 30, 0.5, all), all);
  EXPECT_EQ(zoomed({15, 60}, 30, 0.01, all), all);
  EXPECT_EQ(zoomed({80, 90}, 90, 0.5, all), (CurveRange{70, 90}));
  EXPECT_EQ(moved({80, 90}, 5, all), (CurveRange{80, 90}));
  EXPECT_EQ(moved({80, 90}, -85, all), (CurveRange{0, 10}));
  CurveRange deep = all;
  for (int i = 0; i < 500; ++i) deep = zoomed(deep, 45, 2, all);
  EXPECT_NEAR(deep.width(), 90e-6, 1e-9) << "and no deeper";
}

TEST(CurveScale, HasItsLogarithmsAtPowersOfTen) {
  const CurvePlot plot{0, 0, 100, 100, {0, 1}, {1e-4, 1.01}, CurveHeights::Logarithm};
  std::string told;
  for (const auto& tick : height_ticks(plot, 100, 5)) {
    if (!tick.text.empty()) told += tick.text + ' ';
  }
  EXPECT_EQ(told, "0.01 0.1 1 10 100 ");
}

TEST(LabelPlaces, NeverTouchAndTheHeaviestHasOne) {
  std::mt19937 random(7);
  const LabelBox room{40, 10, 500, 300};
  std::uniform_real_distribution<double> across(-50, 600);
  std::uniform_real_distribution<double> size(5, 90);
  for (int round = 0; round < 50; ++round) {
    std::vector<WantedLabel> wanted;
    wanted.reserve(121);
    for (int i = 0; i < 120; ++i) wanted.push_back({{across(random), across(random), 14, size(random)}, size(random)});
    wanted.push_back({{100, 250, 14, 60}, 1000});
    const auto places = label_places(wanted, room);
    ASSERT_TRUE(places.back().has_value());
    EXPECT_EQ(places.back()->top, 250);
    int placed = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (!places[i]) continue;
      ++placed;
      EXPECT_GE(places[i]->left, room.left);
      EXPECT_LE(places[i]->right(), room.right() + 1e-9);
      EXPECT_GE(places[i]->top, room.top);
      EXPECT_LE(places[i]->bottom(), room.bottom() + 1e-9);
      for (std::size_t j = 0; j < i; ++j) EXPECT_FALSE(places[j] && places[j]->touches(*places[i]));
    }
    EXPECT_GT(placed, 20);
  }
  EXPECT_FALSE(label_places({{{0, 0, 501, 5}, 1}}, room).front()) << "wider than the room";
}

}  // namespace
}  // namespace zol
