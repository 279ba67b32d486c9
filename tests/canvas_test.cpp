#include "shell/services/canvas.h"

#include <gtest/gtest.h>

#include <array>

#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr Colour red = RGB(255, 0, 0);
constexpr Colour white = RGB(255, 255, 255);

struct CanvasTest : testing::Test {
  FakeServices services;
  Window window{"Sample", "a sample"};
  Canvas canvas{window, services, "Picture1", 1507, 1493};  // 100.47 x 99.53 pixels: 100 x 100
};

TEST_F(CanvasTest, MapsUserCoordinatesOntoPixels) {
  canvas.scale(-1, 1, 1, -1);  // y upward
  canvas.set_point(-0.5, 0.5, red);
  EXPECT_EQ(canvas.stored_image().pixel(25, 25), red);
  EXPECT_EQ(canvas.point(-0.5, 0.5), red);
  EXPECT_EQ(canvas.point(-1.02, 0), -1) << "outside";
  EXPECT_EQ(canvas.point(-1.005, 0), white) << "a quarter pixel outside rounds into it";
  EXPECT_EQ(canvas.point(1, 0), -1) << "the right edge is pixel 100";
}

TEST_F(CanvasTest, ListsButDoesNotPaintInAScaleWithoutAnArea) {
  (void)canvas.stored_image();
  canvas.scale(1, 0, 1, 2);
  EXPECT_EQ(canvas.stored_image().width(), 100) << "nothing is drawn yet";
  EXPECT_THROW((void)canvas.point(1, 1), RunFailure);
  canvas.line(1, 0, 1, 2);
  EXPECT_EQ(canvas.drawing().size(), 2U);
  EXPECT_EQ(failure_of([&] { canvas.save_stored_image("x"); }), canvas.fault());
  canvas.clear();
  canvas.scale(1, 0, 2, 2);
  canvas.set_point(1.5, 1, red);
  EXPECT_EQ(canvas.stored_image().pixel(50, 50), red);
}

TEST_F(CanvasTest, ListsWhatIsDrawnFromItsPosition) {
  canvas.scale(0, 0, 50, 100);
  canvas.move_to(1, 2);
  canvas.line_to(3, 4, red);
  canvas.line_to(5, 6);
  canvas.set_fill_colour(red);
  canvas.circle(7, 8, 2);
  canvas.print("text");
  canvas.set_solid_fill(false);
  canvas.circle(7, 8, 2);
  const DrawingList wanted{{UserScale{0, 0, 50, 100}},         {DrawnLine{1, 2, 3, 4, red}},
                           {DrawnLine{3, 4, 5, 6, 0}},         {DrawnCircle{7, 8, 2, 0, red}},
                           {DrawnText{7, 8, 0, "text", 8.25}}, {DrawnCircle{7, 8, 2, 0, std::nullopt}}};
  EXPECT_TRUE(canvas.drawing() == wanted);
  EXPECT_DOUBLE_EQ(dynamic_cast<FakeSurface&>(canvas.stored_image()).last_radius, 4) << "by the scale of x";
}

// Whether the image is made before or after the drawing must not matter.
class CanvasLayers : public CanvasTest, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(ImageMadeEarly, CanvasLayers, testing::Bool());
TEST_P(CanvasLayers, AreStoredImageAndOverlay) {
  if (GetParam()) (void)canvas.stored_image();
  canvas.scale(0, 0, 100, 100);
  canvas.set_point(10, 10, red);
  canvas.scale(0, 0, 10, 10);
  canvas.set_point(5, 5, red);
  canvas.set_persistent(false);
  canvas.set_point(6, 6, 77);
  canvas.set_back_colour(12345);
  for (const auto& [place, colour] : {std::pair{10, red}, {50, red}, {60, 12345}}) {
    EXPECT_EQ(canvas.stored_image().pixel(place, place), colour) << place;
  }
  EXPECT_EQ(canvas.point(6, 6), 77);
  canvas.save_stored_image("stored");
  canvas.save_image_with_overlay("both");
  auto& files = FakeSurface::saved();
  EXPECT_EQ((std::array{files["stored"][{50, 50}], files["stored"][{60, 60}]}), (std::array{red, 0}));
  EXPECT_EQ((std::array{files["both"][{50, 50}], files["both"][{60, 60}]}), (std::array{red, 77}));
  EXPECT_EQ(canvas.point(1, 2), 12345);
  canvas.clear();
  EXPECT_TRUE(canvas.drawing().empty());
  EXPECT_EQ(canvas.point(6, 6), 12345);
  canvas.set_back_colour(54321);
  EXPECT_EQ(canvas.point(5, 5), red) << "the stored image stays";
  EXPECT_TRUE(canvas.has_raster_base());
  canvas.set_persistent(true);
  canvas.clear();
  EXPECT_EQ(canvas.point(5, 5), 54321);
  EXPECT_FALSE(canvas.has_raster_base());
  canvas.set_point(3, 3, red);
  canvas.set_width(1500);  // the image is made anew from the list
  EXPECT_EQ(canvas.stored_image().pixel(30, 30), red) << "the scale outlives the clear";
}

TEST(CanvasWithoutPixels, DrawsAndTellsWhatItLacks) {
  struct : FakeServices {
    std::unique_ptr<Surface> make_surface(int, int) override { return nullptr; }
  } services;
  Window window{"Sample", "a sample"};
  Canvas canvas{window, services, "Picture1", 1500, 1500};
  canvas.line(1, 2, 3, 4);
  canvas.clear();
  EXPECT_EQ(failure_of([&] { (void)canvas.point(1, 1); }), "the picture Sample.Picture1 has no pixels here");
  EXPECT_EQ(failure_of([&] { canvas.load_picture("x"); }), "cannot load x: there are no pixel images here");
}

TEST_F(CanvasTest, KeepsItsBackgroundPictureUnderTheDrawing) {
  canvas.scale(0, 0, 100, 100);
  canvas.set_point(1, 1, red);
  canvas.load_picture("four.bmp");
  EXPECT_TRUE(canvas.point(99, 99) == 103 && canvas.point(1, 1) == 100) << "scaled to fill, over what was drawn";
  canvas.set_point(0, 0, red);
  canvas.clear();
  EXPECT_EQ(canvas.point(0, 0), 100);
  canvas.set_persistent(false);
  canvas.set_point(5, 5, red);
  canvas.edit_picture([](Surface& image) { image.set_pixel(99, 0, 777); });
  EXPECT_EQ(canvas.stored_image().pixel(5, 5), 100) << "the overlay is no part of the picture";
  EXPECT_EQ(canvas.point(5, 5), red);
}

}  // namespace
}  // namespace zol
