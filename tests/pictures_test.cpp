// Pixels of pictures, and pictures as files.
#include <gtest/gtest.h>

#include <functional>
#include <regex>

#include <QImage>

#include "core/read_file.h"
#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/picture_export.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/quick_lines.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr Colour red = RGB(255, 0, 0);
constexpr Colour green = RGB(0, 255, 0);
constexpr Colour blue = RGB(0, 0, 255);
constexpr Colour white = RGB(255, 255, 255);

struct QtFakeServices : FakeServices {
  std::unique_ptr<Surface> make_surface(int width, int height) override { return pictures.make_surface(width, height); }
  OffscreenPictures pictures;
};

class Pictures : public testing::Test {
 protected:
  Pictures() {
    canvas.scale(-1, 1, 1, -1);
    canvas.set_fill_colour(blue);
  }

  QtFakeServices services;
  Window window{"W", ""};
  Canvas canvas{window, services, "Picture1", 1500, 1500};
  ScratchFolder folder;
};

// Pixels in rows, marked by hand: level, upright, at 45 degrees upward, flat through places between, beyond the image.
TEST(QuickLines, SetThePixelsNearestToThem) {
  const auto picture = [](const QLineF& line) {
    QImage image(5, 4, QImage::Format_RGB32);
    image.fill(Qt::white);
    QuickLines(image).draw(line, qRgb(255, 0, 0));
    std::string rows;
    for (int i = 0; i < 20; ++i) {
      rows += image.pixel(i % 5, i / 5) == qRgb(255, 0, 0) ? '#' : '.';
      if (i % 5 == 4 && i < 19) rows += ' ';
    }
    return rows;
  };
  EXPECT_EQ(picture({1.2, 2.7, 3.9, 2.7}), "..... ..... .###. .....");
  EXPECT_EQ(picture({2.1, 3.5, 2.1, 0.5}), "..#.. ..#.. ..#.. ..#..");
  EXPECT_EQ(picture({3.5, 0.5, 0.5, 3.5}), "...#. ..#.. .#... #....");
  EXPECT_EQ(picture({0.5, 1.25, 4.5, 3.25}), "..... ##... ..##. ....#");  // y 1.25, 1.75, 2.25, 2.75, 3.25
  EXPECT_EQ(picture({-9, 3.5, 99, 3.5}), "..... ..... ..... #####");
  EXPECT_EQ(picture({2.5, -50, 2.5, 50}), "..#.. ..#.. ..#.. ..#..");
  EXPECT_EQ(picture({-3, 9, 9, 9}), "..... ..... ..... .....");
}

// Bit by bit, and with more drawn between two bits, it becomes what it is in one go, in any size.
TEST_F(Pictures, DrawnBitByBitAreTheSame) {
  (void)canvas.stored_image();  // starts Qt
  for (const int size : {100, 170}) {
    canvas.clear();
    CanvasPainting bits(canvas, {size, size});
    for (int i = 0; i < 100; ++i) {
      canvas.scale(-1 - i % 2, 1, 1, -1);
      canvas.circle(std::cos(i), std::sin(i), 0.05, i % 3 == 0 ? red : green);
      canvas.set_point(0, i / 100.0, blue);
      if (i % 7 == 0) (void)bits.go_on([] { return true; });
    }
    while (!bits.go_on([] { return true; })) {
    }
    CanvasPainting whole(canvas, {size, size});
    EXPECT_TRUE(whole.go_on([] { return false; }));
    EXPECT_TRUE(bits.image() == whole.image()) << size;
    if (size == 100) {
      EXPECT_TRUE(whole.image().convertToFormat(QImage::Format_RGB32) == picture_image(canvas));
    }
    if (size != 100) {  // while it follows the pointer, and then as before
      whole.set_rough(true);
      canvas.line(-1, 0, 1, 0, red);
      EXPECT_TRUE(whole.go_on([] { return false; }) && whole.rough());
      EXPECT_TRUE(whole.image().pixelColor(3 * size / 4, size / 2) == Qt::red);
      whole.set_rough(false);
      EXPECT_TRUE(whole.go_on([] { return false; }) && bits.go_on([] { return false; }));
      EXPECT_TRUE(bits.image() == whole.image());
    }
    canvas.clear();
    EXPECT_TRUE(bits.go_on([] { return false; }) && bits.image().pixelColor(50, 50) == Qt::white);
  }
}

TEST_F(Pictures, PixelsFallWhereTheListSaysAndComeBackFromABitmap) {
  canvas.line(-1, 0, 1, 0, red);                 // row 50
  canvas.line(-1e12, 1e12, 1e12, -1e12, green);  // far beyond, along the diagonal
  canvas.circle(0.5, 0.5, 0.1, 0);               // centre (75, 25), 5 pixels
  canvas.save_stored_image(folder.path("stored.bmp"));
  canvas.set_persistent(false);
  canvas.set_point(0, -0.5, RGB(1, 2, 3));
  canvas.save_image_with_overlay(folder.path("both.bmp"));
  for (const auto& [file, overlay] : {std::pair{"stored.bmp", white}, {"both.bmp", RGB(1, 2, 3)}}) {
    const QImage image(QString::fromStdString(folder.path(file)));
    canvas.load_picture(folder.path(file));
    const std::tuple<int, int, Colour> pixels[] = {{95, 50, red},  {5, 49, white},  {40, 40, green},
                                                   {75, 25, blue}, {75, 17, white}, {50, 75, overlay}};
    for (const auto& [x, y, colour] : pixels) {
      EXPECT_EQ(image.pixelColor(x, y), to_qt(colour)) << file << ' ' << x;
      EXPECT_EQ(canvas.stored_image().pixel(x, y), colour) << file << ' ' << x;
    }
  }
  canvas.set_height(6000);
  EXPECT_LT(qGreen(dynamic_cast<QtSurface&>(canvas.stored_image()).image().pixel(65, 202)), 64)
      << "scaled to fill, each direction by itself";
}

TEST_F(Pictures, AreOfASizeThatFitsTheMemory) {
  canvas.set_width(-15);
  canvas.set_height(8192 * 15);
  EXPECT_EQ(canvas.stored_image().height(), 8192);
  EXPECT_EQ(canvas.stored_image().width(), 1);
  canvas.set_width(std::numeric_limits<int>::max());
  EXPECT_EQ(failure_of([this] { (void)canvas.stored_image(); }),
            "cannot make an image of 143165576 x 8192 pixels: at most 8192 x 8192 are possible");
}

TEST_F(Pictures, ExportHasTheKindThatItsNameSays) {
  canvas.line(-1, 0, 1, 0, red);
  for (const auto& [name, magic] :
       {std::pair{"a.bmp", "BM"}, {"a.PNG", "\x89PNG"}, {"a.svg", "<?xml"}, {"a.pdf", "%PDF"}}) {
    services.pictures.export_picture(canvas, folder.path(name));
    EXPECT_TRUE(folder.read(name).starts_with(magic)) << name;
  }
  QuietTask quiet;
  for (const auto* name : {"with.png", "with.svg", "with.pdf"}) {
    export_picture(canvas, folder.path(name), 2.0, quiet, {QStringLiteral("Quartz"), {}});
  }
  const QImage with_caption(QString::fromStdString(folder.path("with.png")));
  const QImage plain = picture_image(canvas, 2.0);
  EXPECT_TRUE(with_caption.width() == 200 && with_caption.height() > 220) << with_caption.height();
  EXPECT_EQ(with_caption.copy(plain.rect()), plain);
  EXPECT_NE(folder.read("with.svg").find(">Quartz<"), std::string::npos);
  const QImage image = picture_image(canvas, 4.0);
  EXPECT_EQ(image.size(), QSize(400, 400));
  EXPECT_GT(qRed(image.pixel(200, 200)), 200);
  const std::pair<const char*, std::function<void()>> failures[] = {
      {"No such file", [&] { canvas.load_picture(folder.path("none.bmp")); }},
      {"cannot write", [&] { canvas.save_stored_image(folder.path("none/out.bmp")); }},
      {"must end in .bmp, .png, .svg or .pdf", [&] { services.pictures.export_picture(canvas, "/a.b/out"); }}};
  for (const auto& [message, act] : failures) EXPECT_NE(failure_of(act).find(message), std::string::npos) << message;
}

TEST_F(Pictures, HaveTheGreyValuesOfTheirFiles) {
  EXPECT_EQ(canvas.grey_picture(), nullptr);
  QImage image(3, 2, QImage::Format_Grayscale16);
  const auto expected = [](int x, int y) { return 10.0 + 40 * x + 100 * y; };
  for (const auto& [x, y] : std::vector<std::pair<int, int>>{{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}, {2, 1}}) {
    reinterpret_cast<quint16*>(image.scanLine(y))[x] = static_cast<quint16>(257 * expected(x, y) + 100);
  }
  struct Case {
    const char* name;
    const char* kind;
    QImage::Format format;
    double fraction = 0, tolerance = 0;
  };
  constexpr double part = 100.0 / 257;
  for (const auto& [name, kind, format, fraction, tolerance] :
       {Case{"24.bmp", "bitmap: ", QImage::Format_RGB32}, Case{"8.bmp", "bitmap: ", QImage::Format_Grayscale8},
        Case{"8.png", "PNG", QImage::Format_Grayscale8}, Case{"32.png", "PNG", QImage::Format_ARGB32},
        Case{"16.png", "PNG", QImage::Format_Grayscale16, part, 1e-5},
        Case{"64.png", "PNG", QImage::Format_RGBA64, part, 1e-5},
        Case{"8.jpg", "JPEG picture: it is cut short", QImage::Format_Grayscale8, 0, 3},
        Case{"8.tiff", "TIFF", QImage::Format_Grayscale8},
        Case{"16.tif", "TIFF", QImage::Format_Grayscale16, part, 1e-5}}) {
    SCOPED_TRACE(name);
    ASSERT_TRUE(image.convertToFormat(format).save(QString::fromStdString(folder.path(name)), nullptr, 100));
    canvas.load_picture(folder.path(name));
    const auto values_are = [&, shift = fraction, most = tolerance](int across, int down) {
      const auto grey = canvas.grey_picture();
      ASSERT_EQ(std::pair(grey->width, grey->height), std::pair(3, 2));
      for (int i = 0; i < 6; ++i) {
        EXPECT_NEAR(grey->values.at(static_cast<std::size_t>(i)),
                    expected(std::abs(across - i % 3), std::abs(down - i / 3)) + shift, most);
      }
      EXPECT_EQ(canvas.grey_picture(), grey) << "is kept";
    };
    const auto loaded = canvas.contents();
    canvas.line(-1, 0, 1, 0, red);
    values_are(0, 0);
    canvas.flip_picture();
    values_are(0, 1);
    canvas.mirror_picture();
    values_are(2, 1);
    canvas.edit_picture([](Surface& edited) { edited.set_pixel(99, 0, RGB(200, 100, 50)); });
    const auto edited = canvas.grey_picture();
    EXPECT_EQ(edited->width, 100);
    EXPECT_EQ(edited->values.at(99), 126) << "(200 * 11 + 100 * 16 + 50 * 5) / 32";
    EXPECT_NEAR(edited->values.back(), expected(0, 0), tolerance);
    canvas.set_contents(loaded);
    values_are(0, 0);
    const std::string whole = folder.read(name);
    const std::string cut = folder.write("cut", whole.substr(0, whole.size() - 40));
    const auto failure = failure_of([&] { canvas.load_picture(cut); });
    EXPECT_NE(failure.find("cannot read " + cut + " as a " + kind), std::string::npos) << failure;
    values_are(0, 0);
  }
  canvas.remove_picture();
  EXPECT_EQ(canvas.grey_picture(), nullptr);
}

// Lines: a curve of two, two that lie outside, and two that cross the border. Discs: inside, cut, and outside.
TEST_F(Pictures, VectorFilesHoldWhatIsInsideThePicture) {
  canvas.line(-0.5, 0.5, 0.5, 0.5, red);
  canvas.line(0.5, 0.5, 0.5, -0.5, red);
  canvas.line(-5, -5, 5, -5, red);
  canvas.line(-3, 0, 0, 3, red);
  canvas.line(-5, 0, 5, 0, red);
  canvas.line(0.2, 0, 0.2, 5, red);
  for (const double x : {0, 1, 3}) canvas.circle(x, 0, 0.2, red);
  canvas.print("outside");
  canvas.move_to(0, 0);
  canvas.print("inside");
  services.pictures.export_picture(canvas, folder.path("a.svg"));
  const auto svg = folder.read("a.svg");
  const std::regex element("<(circle|path|polyline[^>]* points=\"([^\"]*))");
  std::string drawn;
  for (std::sregex_iterator found(svg.begin(), svg.end(), element), end; found != end; ++found) {
    drawn += ((*found)[2].matched ? (*found)[2] : (*found)[1]).str() + '|';
  }
  EXPECT_TRUE(drawn.starts_with("25,25 75,25 75,75 |0,50 100,50 |60,50 60,0 |circle|path|")) << drawn;
  EXPECT_EQ(drawn.find("circle"), drawn.rfind("circle"));
  EXPECT_NE(svg.find(">inside<"), std::string::npos);
  EXPECT_EQ(svg.find(">outside<"), std::string::npos);
}

}  // namespace
}  // namespace zol
