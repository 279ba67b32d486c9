#include "shell/canvas.h"

#include <gtest/gtest.h>

#include "core/run_failure.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr Colour red = RGB(255, 0, 0);
constexpr Colour white = RGB(255, 255, 255);

struct Picture {
  FakeServices services;
  Window window{"Sample", "a sample"};
  Canvas canvas{window, services, "Picture1", 1500, 1500};  // 100 x 100 pixels
};

TEST(Canvas, MapsUserCoordinatesOntoPixels) {
  Picture p;
  p.canvas.scale(-1, 1, 1, -1);  // y upward
  p.canvas.set_point(-0.5, 0.5, red);
  EXPECT_EQ(p.canvas.stored_image().pixel(25, 25), red);
  EXPECT_EQ(p.canvas.point(-0.5, 0.5), red);
  EXPECT_EQ(p.canvas.point(0.5, 0.5), white);
  EXPECT_EQ(p.canvas.point(1.1, 0), -1) << "outside";
  EXPECT_EQ(p.canvas.point(-1.02, 0), -1) << "outside";
  EXPECT_EQ(p.canvas.point(-1.005, 0), white) << "a quarter pixel outside rounds into it";
  EXPECT_EQ(p.canvas.point(1, 0), -1) << "the right edge is pixel 100";
  EXPECT_DOUBLE_EQ(p.canvas.scale_x(0.5), 25);
  EXPECT_DOUBLE_EQ(p.canvas.scale_y(0.5), 25);
  EXPECT_THROW(p.canvas.scale(1, 0, 1, 2), RunFailure);
}

TEST(Canvas, RoundsItsSizeHalfToEven) {
  FakeServices services;
  Window window("W", "");
  EXPECT_EQ(Canvas(window, services, "P", 7740, 8500).pixel_width(), 516);
  EXPECT_EQ(Canvas(window, services, "P", 7740, 8500).pixel_height(), 567);  // 566.67
  EXPECT_EQ(Canvas(window, services, "P", 7507, 7523).pixel_width(), 500);
  EXPECT_EQ(Canvas(window, services, "P", 187, 202).pixel_width(), 12);  // 12.47
}

TEST(Canvas, MovesItsDrawingPosition) {
  Picture p;
  p.canvas.move_to(1, 2);
  p.canvas.line_to(3, 4, red);
  p.canvas.line_to(5, 6);
  p.canvas.circle(7, 8, 1);
  p.canvas.print("at the centre");
  const auto& list = p.canvas.drawing();
  ASSERT_EQ(list.size(), 4U);
  const auto& first = std::get<DrawnLine>(list[0].what);
  EXPECT_EQ(first.x1, 1);
  EXPECT_EQ(first.colour, red);
  EXPECT_EQ(std::get<DrawnLine>(list[1].what).x1, 3);
  EXPECT_EQ(std::get<DrawnLine>(list[1].what).colour, 0) << "the fore colour";
  EXPECT_EQ(std::get<DrawnText>(list[3].what).x, 7);
}

TEST(Canvas, FillsCirclesAsTheStyleTells) {
  Picture p;
  p.canvas.scale(0, 0, 50, 100);
  p.canvas.set_fill_colour(red);
  p.canvas.circle(1, 1, 2);
  p.canvas.set_solid_fill(false);
  p.canvas.circle(1, 1, 2);
  EXPECT_EQ(std::get<DrawnCircle>(p.canvas.drawing()[1].what).fill, red);
  EXPECT_EQ(std::get<DrawnCircle>(p.canvas.drawing()[2].what).fill, std::nullopt);
  EXPECT_DOUBLE_EQ(dynamic_cast<FakeSurface&>(p.canvas.stored_image()).last_radius, 4) << "by the scale of x";
}

TEST(Canvas, PrintsNumbersBetweenBlanks) {
  Picture p;
  p.canvas.print_number(0.5F);
  p.canvas.print_number(-1);
  EXPECT_EQ(std::get<DrawnText>(p.canvas.drawing()[0].what).text, " .5 ");
  EXPECT_EQ(std::get<DrawnText>(p.canvas.drawing()[1].what).text, "-1 ");
}

// Whether the image is made before or after the drawing must not matter.
TEST(Canvas, ShowsTheSameWheneverTheImageIsMade) {
  for (const bool early : {true, false}) {
    Picture p;
    if (early) (void)p.canvas.stored_image();
    p.canvas.scale(0, 0, 100, 100);
    p.canvas.set_point(10, 10, red);
    p.canvas.scale(0, 0, 10, 10);
    p.canvas.set_point(5, 5, red);
    p.canvas.set_persistent(false);
    p.canvas.set_point(6, 6, 77);
    p.canvas.set_back_colour(12345);
    EXPECT_EQ(p.canvas.stored_image().pixel(10, 10), red) << early;
    EXPECT_EQ(p.canvas.stored_image().pixel(50, 50), red) << early;
    EXPECT_EQ(p.canvas.stored_image().pixel(60, 60), 12345) << early;
    EXPECT_EQ(p.canvas.point(6, 6), 77) << early;
    EXPECT_EQ(p.canvas.point(1, 2), 12345) << early;
  }
}

TEST(Canvas, ClearsTheLayerInForce) {
  for (const bool early : {true, false}) {
    Picture p;
    if (early) (void)p.canvas.stored_image();
    p.canvas.scale(0, 0, 100, 100);
    p.canvas.set_point(10, 10, red);
    p.canvas.set_persistent(false);
    p.canvas.set_point(20, 20, red);
    p.canvas.clear();
    EXPECT_TRUE(p.canvas.drawing().empty());
    EXPECT_EQ(p.canvas.point(10, 10), red) << "the stored image stays";
    EXPECT_TRUE(p.canvas.has_raster_base());
    EXPECT_EQ(p.canvas.point(20, 20), white);
    p.canvas.set_persistent(true);
    p.canvas.clear();
    EXPECT_EQ(p.canvas.point(10, 10), white);
    EXPECT_FALSE(p.canvas.has_raster_base());
    p.canvas.set_point(30, 30, red);
    EXPECT_EQ(p.canvas.point(30, 30), red) << "the scale outlives the clear";
  }
}

TEST(Canvas, KeepsItsBackgroundPictureUnderTheDrawing) {
  Picture p;
  p.canvas.scale(0, 0, 100, 100);
  p.canvas.load_picture("four.bmp");
  EXPECT_EQ(p.canvas.point(0, 0), 100);
  EXPECT_EQ(p.canvas.point(99, 99), 103) << "scaled to fill";
  p.canvas.set_point(0, 0, red);
  p.canvas.clear();
  EXPECT_EQ(p.canvas.point(0, 0), 100);

  Canvas other(p.window, p.services, "Picture2", 1500, 1500);
  other.scale(0, 0, 100, 100);
  other.take_picture(p.canvas, true);
  EXPECT_EQ(other.point(0, 0), 102) << "upside down";
  EXPECT_EQ(other.point(99, 99), 101);
  other.flip_picture();
  EXPECT_EQ(other.point(0, 0), 100) << "and back";
  other.mirror_picture();
  EXPECT_EQ(other.point(0, 0), 101) << "left to right";
  EXPECT_EQ(other.point(0, 99), 103);
  other.set_persistent(false);
  other.set_point(5, 5, red);
  other.edit_picture([](Surface& image) { image.set_pixel(99, 0, 777); });
  EXPECT_EQ(other.stored_image().pixel(99, 0), 777);
  EXPECT_EQ(other.stored_image().pixel(0, 0), 101);
  EXPECT_EQ(other.stored_image().pixel(5, 5), 101) << "the overlay is no part of the picture";
  EXPECT_EQ(other.point(5, 5), red);
  other.clear();
  EXPECT_EQ(other.stored_image().pixel(99, 0), 777) << "what was changed stays";
  other.set_persistent(true);
  other.remove_picture();
  EXPECT_EQ(other.point(0, 0), white);
  EXPECT_EQ(failure_of([&] { other.load_picture("none.txt"); }), "can't read none.txt");
}

}  // namespace
}  // namespace zol
