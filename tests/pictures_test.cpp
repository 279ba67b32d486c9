// Pixels of pictures, and pictures as files.
#include <gtest/gtest.h>

#include <QImage>

#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/picture_export.h"
#include "shell/desktop/qt_surface.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

OffscreenPictures* pictures = nullptr;  // lives in main: Qt has to end before the program does

struct QtFakeServices : FakeServices {
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return pictures->make_surface(width, height);
  }
};

class Pictures : public testing::Test {
 protected:
  Pictures() {
    canvas.scale(-1, 1, 1, -1);
    canvas.set_fill_colour(RGB(0, 0, 255));
  }

  QtFakeServices services;
  Window window{"W", ""};
  Canvas canvas{window, services, "Picture1", 1500, 1500};
  ScratchFolder folder;
};

constexpr Colour red = RGB(255, 0, 0);

TEST_F(Pictures, PixelsFallWhereTheListSaysAndComeBackFromABitmap) {
  canvas.line(-1, 0, 1, 0, red);                          // row 50
  canvas.line(-1e12, 1e12, 1e12, -1e12, RGB(0, 255, 0));  // far beyond, along the diagonal
  canvas.circle(0.5, 0.5, 0.1, 0);                        // centre (75, 25), 5 pixels
  canvas.save_stored_image(folder.path("stored.bmp"));
  canvas.set_persistent(false);
  canvas.set_point(0, -0.5, RGB(1, 2, 3));
  canvas.save_image_with_overlay(folder.path("both.bmp"));
  for (const auto& [file, point] : {std::pair{"stored.bmp", RGB(255, 255, 255)}, std::pair{"both.bmp", RGB(1, 2, 3)}}) {
    Canvas other(window, services, "Picture2", 1500, 1500);
    other.scale(-1, 1, 1, -1);
    other.load_picture(folder.path(file));
    EXPECT_EQ(other.point(0.9, 0), red);
    EXPECT_EQ(other.point(-0.9, 0.02), RGB(255, 255, 255));
    EXPECT_EQ(other.point(-0.2, 0.2), RGB(0, 255, 0)) << "a line far beyond the picture";
    EXPECT_EQ(other.point(0.5, 0.5), RGB(0, 0, 255));
    EXPECT_EQ(other.point(0.5, 0.65), RGB(255, 255, 255));
    EXPECT_EQ(other.point(0, -0.5), point);
  }
  Canvas large(window, services, "Picture3", 3000, 6000);
  large.load_picture(folder.path("stored.bmp"));
  EXPECT_LT(qGreen(dynamic_cast<QtSurface&>(large.stored_image()).image().pixel(130, 202)), 64)
      << "scaled to fill, each direction by itself";
}

TEST_F(Pictures, AreOfASizeThatFitsTheMemory) {
  canvas.set_width(-15);
  canvas.set_height(8192 * 15);
  EXPECT_EQ(canvas.stored_image().height(), 8192);
  EXPECT_EQ(canvas.stored_image().width(), 1);
  canvas.set_width(std::numeric_limits<int>::max());
  EXPECT_EQ(failure_of([this] { (void)canvas.stored_image(); }),
            "can't make an image of 143165576 x 8192 pixels: at most 8192 x 8192 are possible");
}

TEST_F(Pictures, ExportHasTheKindThatItsNameSays) {
  canvas.line(-1, 0, 1, 0, red);
  for (const auto& [name, magic] : {std::pair{"a.bmp", "BM"}, std::pair{"a.PNG", "\x89PNG"},
                                    std::pair{"a.svg", "<?xml"}, std::pair{"a.pdf", "%PDF"}}) {
    pictures->export_picture(canvas, folder.path(name));
    EXPECT_EQ(folder.read(name).substr(0, std::string(magic).size()), magic);
  }
  export_picture(canvas, folder.path("b.png"), 4.0);
  const QImage image(QString::fromStdString(folder.path("b.png")));
  EXPECT_EQ(image.size(), QSize(400, 400));
  EXPECT_GT(qRed(image.pixel(200, 200)), 200);

  folder.write("text.bmp", "no picture");
  const auto expect_failure = [](const char* message, const auto& action) {
    EXPECT_NE(failure_of(action).find(message), std::string::npos) << message;
  };
  expect_failure("text.bmp as a bitmap", [&] { canvas.load_picture(folder.path("text.bmp")); });
  expect_failure("No such file", [&] { canvas.load_picture(folder.path("none.bmp")); });
  expect_failure("can't write", [&] { canvas.save_stored_image(folder.path("none/out.bmp")); });
  expect_failure("must end in .bmp, .png, .svg or .pdf", [&] { pictures->export_picture(canvas, "/a.b/out"); });
}

// Three lines, of which one lies outside and one crosses the border; a disc inside, one cut, one outside; two texts.
TEST_F(Pictures, VectorFilesHoldWhatIsInsideThePicture) {
  canvas.line(-0.5, 0.5, 0.5, 0.5, red);
  canvas.line(-5, -5, 5, -5, red);
  canvas.line(-5, 0, 5, 0, red);
  for (const double x : {0, 1, 3}) canvas.circle(x, 0, 0.2, red);
  canvas.print("outside");
  canvas.move_to(0, 0);
  canvas.print("inside");
  pictures->export_picture(canvas, folder.path("a.svg"));
  const auto svg = folder.read("a.svg");
  const auto has = [&svg](const char* word) { return svg.find(word) != std::string::npos; };
  EXPECT_TRUE(has("<circle"));
  EXPECT_EQ(svg.find("<circle"), svg.rfind("<circle")) << "the cut disc is a path";
  EXPECT_TRUE(has(">inside<"));
  EXPECT_FALSE(has(">outside<"));
  EXPECT_TRUE(has("25,25 75,25")) << "the line inside";
  EXPECT_TRUE(has("0,50 100,50")) << "the crossing line, cut to the picture";
  EXPECT_FALSE(has("300")) << "nothing reaches beyond";
}

TEST(Clipping, CutsLinesToARectangle) {
  const QRectF picture(0, 0, 10, 20);
  struct Row {
    QLineF line;
    std::optional<QLineF> inside;
  };
  for (const auto& row : {Row{{2, 3, 4, 5}, QLineF(2, 3, 4, 5)}, Row{{-5, 5, 15, 5}, QLineF(0, 5, 10, 5)},
                          Row{{5, 30, 5, -30}, QLineF(5, 20, 5, 0)}, Row{{-1, 1, 1, -1}, QLineF(0, 0, 0, 0)},
                          Row{{-1, 5, -1, 15}, std::nullopt}, Row{{-5, 0, 0, -5}, std::nullopt},
                          Row{{11, 5, 20, 5}, std::nullopt}, Row{{3, 3, 3, 3}, QLineF(3, 3, 3, 3)}}) {
    EXPECT_EQ(clipped(row.line, picture), row.inside) << row.line.x1() << ' ' << row.line.y1();
  }
}

}  // namespace
}  // namespace zol

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  zol::OffscreenPictures made;
  zol::pictures = &made;
  return RUN_ALL_TESTS();
}
