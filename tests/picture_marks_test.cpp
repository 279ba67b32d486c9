// What views make of the marks of a picture: scales, families, labels that do not collide, distances, turns.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "shell/services/turn_drag.h"

namespace zol {
namespace {

TEST(PictureMarks, RoundLengths) {
  for (const auto& [most, length] :
       {std::pair(0.99, 0.5), std::pair(1.0, 1.0), std::pair(4.99, 2.0), std::pair(7.0, 5.0), std::pair(0.3, 0.2),
        std::pair(0.002, 0.002), std::pair(0.0, 0.0), std::pair(-1.0, 0.0), std::pair(double{NAN}, 0.0)}) {
    EXPECT_DOUBLE_EQ(round_length(most), length) << most;
  }
}

TEST(PictureMarks, LabelsTouchNeitherEachOtherNorTheBorder) {
  std::mt19937 random(20261126);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same in each run
  std::uniform_real_distribution<double> across(0, 500), size(5, 40), weight(0, 1);
  for (int run = 0; run < 20; ++run) {
    std::vector<LabelWish> wishes(300);
    for (LabelWish& wish : wishes) wish = {across(random), across(random), size(random), size(random), weight(random)};
    wishes[7] = {250, 250, 30, 12, 2};
    const auto places = place_labels(wishes, 500, 500, 4);
    ASSERT_GT(places.size(), 20U);
    EXPECT_EQ(places.front().wish, 7) << "the heaviest stands first";
    const auto right = [&](const LabelPlace& place) {
      return place.left + wishes[static_cast<std::size_t>(place.wish)].width;
    };
    const auto bottom = [&](const LabelPlace& place) {
      return place.top + wishes[static_cast<std::size_t>(place.wish)].height;
    };
    for (std::size_t i = 0; i < places.size(); ++i) {
      const LabelPlace& a = places[i];
      EXPECT_TRUE(a.left >= 0 && a.top >= 0 && right(a) <= 500 && bottom(a) <= 500);
      for (std::size_t j = 0; j < i; ++j) {
        const LabelPlace& b = places[j];
        EXPECT_TRUE(right(a) < b.left || right(b) < a.left || bottom(a) < b.top || bottom(b) < a.top);
      }
    }
  }
}

// 333 and 511 of a cubic crystal have one spacing and are told apart by what they scatter.
TEST(PictureMarks, FamiliesHaveOneSpacingAndOneIntensity) {
  const auto mark = [](double d, double intensity) { return PictureMark{.d = d, .intensity = intensity}; };
  EXPECT_EQ(families({mark(1.0, 5), mark(1.2, 7), mark(1.0, 9), mark(1.0000001, 5.0001), mark(1.2, 7)}),
            (std::vector{1, 0, 2, 1, 0}));
}

TEST(PictureMarks, DistancesAndAngles) {
  const auto spots = PictureGeometry{2};  // 1/(2d)
  auto between = distance_between(spots, {0.1, 0}, {0, 0.1});
  EXPECT_NEAR(between.d_star, 0.2 * M_SQRT2, 1e-12);
  EXPECT_NEAR(between.d, 1 / (0.2 * M_SQRT2), 1e-12);
  EXPECT_NEAR(between.angle_deg, 90, 1e-9);
  EXPECT_EQ(distance_text(between), "d* 0.2828 Å⁻¹   d 3.536 Å   angle 90.00°");
  const PictureGeometry directions{.direction = direction_of_gnomonic, .wavelength = [] { return 0.0859; }};
  const double at_20_deg = std::tan(20 * M_PI / 180);
  between = distance_between(directions, {at_20_deg, 0}, {-at_20_deg, 0});
  EXPECT_NEAR(between.angle_deg, 40, 1e-9);
  EXPECT_NEAR(between.d, 0.0859 / (2 * std::sin(20 * M_PI / 180)), 1e-9) << "Bragg's law of a band 40 degrees wide";
  EXPECT_NEAR(distance_between(directions, {1, 0}, {0, 1}).angle_deg, 60, 1e-9) << "[101] and [011]";
  for (const bool equidistant : {false, true}) {
    const PictureGeometry map{.direction = [=](double x, double y) { return direction_of_map(x, y, equidistant); }};
    EXPECT_NEAR(distance_between(map, {map_circle(30, equidistant), 0}, {-map_circle(50, equidistant), 0}).angle_deg,
                80, 1e-9);
  }
}

TEST(PictureMarks, TheNearestMarkLiesUnderThePointer) {
  const std::vector<PictureMark> marks{{.x = 1, .y = 1, .intensity = 1},
                                       {.x = 0, .y = 2, .along_x = 1, .along_y = 0},
                                       {.radius = 5},
                                       {.x = 1, .y = 1, .intensity = 3}};
  EXPECT_EQ(mark_at(marks, 1.1, 1, 0.2), 3) << "the stronger one of two";
  EXPECT_EQ(mark_at(marks, 40, 2.1, 0.2), 1);
  EXPECT_EQ(mark_at(marks, 3, -4.1, 0.2), 2);
  EXPECT_EQ(mark_at(marks, 3, 3, 0.2), -1);
}

// A quarter of a turn by buttons of 50, 5 and 0.5 degrees: one, eight, none; the rest stays below half of the finest.
TEST(PictureMarks, TurnsByTheCoarsestButtonsThatDoNotGoTooFar) {
  std::vector<TurnButton> buttons;
  for (const double pitches : {-10.0, 10.0, -1.0, 1.0, -0.1, 0.1}) buttons.push_back({nullptr, pitches});
  TurnDrag drag;
  drag.begin(1, 0, buttons, 5);
  std::vector<double> clicked;
  double left = 90.2;
  const std::vector<TurnButton> coarse{{nullptr, -50}, {nullptr, 50}, {nullptr, 5}, {nullptr, 0.5}};
  while (const auto* turn = button_towards(coarse, left)) {
    clicked.push_back(turn->degrees);
    left -= turn->degrees;
  }
  EXPECT_EQ(clicked, (std::vector<double>{50, 5, 5, 5, 5, 5, 5, 5, 5}));
  int clicks = 0;
  while (drag.next(0, 1)) ++clicks;
  EXPECT_EQ(clicks, 9);
  while (drag.next(-1, -0.001)) ++clicks;
  EXPECT_EQ(clicks, 18) << "on beyond half a turn";
}

}  // namespace
}  // namespace zol
