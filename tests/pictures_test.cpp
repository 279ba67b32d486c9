// Pixels of pictures, and pictures as files.
#include <gtest/gtest.h>

#include <QImage>

#include "core/read_file.h"
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

// The run-length file has 6 x 4 pixels from byte 1078 on: in each row a run of 6, one of 2 to fill it up, and its end,
// but one run of 8 in the last row.
TEST_F(Pictures, AreBitmapsWithAllTheirPixels) {
  const auto seed = [](const std::string& name) { return read_file(ZOL_SOURCE_DIR "/fuzz/seeds/bitmap/" + name); };
  const auto with = [](std::string bytes, std::size_t at, const std::string& other) {
    return bytes.replace(at, other.size(), other);
  };
  const auto refused = [&](const std::string& bytes, const std::string& message) {
    folder.write("a.bmp", bytes);
    const auto failure = failure_of([&] { canvas.load_picture(folder.path("a.bmp")); });
    EXPECT_NE(failure.find("a.bmp as a bitmap: " + message), std::string::npos) << failure;
  };
  for (const auto& [name, end] :
       {std::pair{"1-bit.bmp", 74U}, {"8-bit.bmp", 130U}, {"24-bit.bmp", 102U}, {"rle.bmp", 1098U}}) {
    folder.write("caf\xe9.bmp", seed(name));
    canvas.load_picture(folder.path("caf\xe9.bmp"));
    const std::string whole = seed(name);
    for (std::size_t missing = 1; missing + 2 < end; missing += 1 + missing / 8) {
      refused(whole.substr(0, end - missing), "it is cut short: ");
    }
  }
  const std::string deep = seed("24-bit.bmp");
  refused(deep.substr(0, deep.size() - 1), "it is cut short: 3 rows of 16 bytes need 48, there are 47, for 2 rows");
  refused(with(deep, 10, "\xff\xff\xff\xff"), "it is cut short: 3 rows of 16 bytes need 48, there are 0");
  refused(with(deep, 14, "8"), "its header is said to have 56 bytes");
  for (const auto* side : {"\0\0\0\0", "\xff\xff\xff\x7f", "\0\0\0\x80"}) {
    for (const std::size_t at : {18U, 22U}) refused(with(deep, at, std::string(side, 4)), "its header tells ");
  }
  refused(with(deep, 28, "\7"), "its header tells 7 bits a pixel in 1 planes");
  refused(with(seed("8-bit.bmp"), 47, "\1"), "its palette is said to have 272 colours");
  const std::string runs = seed("rle.bmp");
  for (const auto& [at, bytes, message] :
       {std::tuple{1084U, std::string("\0\1", 2), "its run-length code ends behind pixel 0 of 6 in row 2 of 4"},
        {1084U, std::string("\3\1\2\1"), "its run-length code ends behind pixel 5 of 6 in row 2 of 4"},
        {1084U, std::string("\7"), "its run-length code goes beyond the row behind pixel 7 of 6 in row 2 of 4"},
        {1084U, std::string("\0\2", 2), "its run-length code leaves pixels out"},
        {1096U, std::string("\0\6", 2), "it is cut short: it ends behind pixel 0 of 6 in row 4 of 4"}}) {
    refused(with(runs, at, bytes), message);
  }
  for (const auto& other : {std::string(), std::string("<svg xmlns=\"http://www.w3.org/2000/svg\"/>"),
                            seed("picture.png"), seed("picture.gif")}) {
    refused(other, "a bitmap (BMP) begins with the letters BM");
  }
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
