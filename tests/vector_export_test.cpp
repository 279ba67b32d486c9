// Vector files of real patterns: what the drawing list has inside the picture is in the file, as elements of their own.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <sstream>

#include <QRectF>

#include "core/read_file.h"
#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/picture_export.h"
#include "shell/desktop/qt_surface.h"
#include "shell/program/program.h"
#include "shell/script/script_driver.h"
#include "shell/script/script_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct PixelScriptServices : ScriptServices {
  using ScriptServices::ScriptServices;
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<QtSurface>(width, height);
  }
  void export_picture(Canvas& /*canvas*/, const std::string& /*path*/) override {}
};

/// Elements of a picture that the eye can count. A disc that crosses the border counts as cut; each line from where the
/// last one ends, in its colour, as joint.
struct Elements {
  int lines = 0, circles = 0, texts = 0, points = 0, cut = 0, joints = 0;
};

Elements in_list(const Canvas& canvas) {
  const QRectF picture(0, 0, canvas.pixel_width(), canvas.pixel_height());
  UserScale scale = canvas.list_scale();
  const auto place = [&](double x, double y) {
    return QPointF((x - scale.left) / (scale.right - scale.left) * picture.width(),
                   (y - scale.top) / (scale.bottom - scale.top) * picture.height());
  };
  Elements count;
  const DrawnLine* last = nullptr;  // unless another element stands between
  for (const Primitive& primitive : canvas.drawing()) {
    if (const auto* changed = std::get_if<UserScale>(&primitive.what)) scale = *changed;
    if (const auto* line = std::get_if<DrawnLine>(&primitive.what)) {
      if (!clipped({place(line->x1, line->y1), place(line->x2, line->y2)}, picture)) continue;
      ++count.lines;
      const bool joint =
          last != nullptr && last->colour == line->colour && last->x2 == line->x1 && last->y2 == line->y1;
      count.joints += joint ? 1 : 0;
      last = line;
      continue;
    }
    last = nullptr;
    if (const auto* circle = std::get_if<DrawnCircle>(&primitive.what)) {
      const double radius = std::abs(circle->radius / (scale.right - scale.left) * picture.width());
      const QRectF box(place(circle->x, circle->y) - QPointF(radius, radius), QSizeF(2 * radius, 2 * radius));
      count.circles += picture.contains(box) ? 1 : 0;
      count.cut += !picture.contains(box) && picture.intersects(box) ? 1 : 0;
    } else if (const auto* text = std::get_if<DrawnText>(&primitive.what)) {
      count.texts += picture.contains(place(text->x, text->y)) ? 1 : 0;
    } else if (const auto* point = std::get_if<DrawnPoint>(&primitive.what)) {
      const QPoint pixel = place(point->x, point->y).toPoint();
      count.points += picture.contains(QRectF(pixel, QSizeF(1, 1))) ? 1 : 0;
    }
  }
  return count;
}

Elements in_svg(const std::string& svg) {
  const auto count = [&svg](const std::string& element) {
    int number = 0;
    for (std::size_t at = 0; (at = svg.find('<' + element + ' ', at)) != std::string::npos; ++at) ++number;
    return number;
  };
  int polylines = 0;
  int ends = 0;
  for (std::size_t at = 0; (at = svg.find("<polyline ", at)) != std::string::npos; ++at) {
    const auto points =
        svg.begin() + static_cast<std::ptrdiff_t>(svg.find(" points=\"", at) + std::strlen(" points=\""));
    ends += static_cast<int>(std::count(points, std::find(points, svg.end(), '"'), ','));
    ++polylines;
  }
  Elements found;
  found.lines = ends - polylines;
  found.joints = ends - 2 * polylines;
  found.circles = count("circle") + count("ellipse");
  found.texts = count("text");
  found.points = count("rect") - 1;  // one is the background
  return found;
}

struct Drawing {
  const char* script;  // of examples/figures
  const char* window;
  const char* picture;
  int least;  // elements that the pattern has at least
};

void PrintTo(const Drawing& drawing, std::ostream* out) { *out << drawing.window << ' ' << drawing.picture; }

class VectorExport : public testing::TestWithParam<Drawing> {};
INSTANTIATE_TEST_SUITE_P(
    Patterns, VectorExport,
    testing::Values(Drawing{"powder", "Xd", "Picture1", 500}, Drawing{"rings", "Dring", "Picture1", 500},
                    Drawing{"rings", "Dring", "Picture2", 100}, Drawing{"spot-pattern", "Pattern", "Picture1", 50},
                    Drawing{"fiber-texture", "FiberTexture", "Picture1", 1000},
                    Drawing{"kikuchi", "Pattern2", "Picture1", 50}, Drawing{"zone-axis-map", "Zaxis", "Picture1", 50},
                    Drawing{"zone-axis-map", "Pattern2", "Picture1", 100}));

TEST_P(VectorExport, HoldsEachElementInsideThePicture) {
  const auto& [script_name, window, picture, least] = GetParam();
  const ScratchFolder folder;
  std::ostringstream output;
  PixelScriptServices services(output);
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  program.start();
  std::filesystem::current_path(ZOL_SOURCE_DIR);  // where the paths of the script start
  std::istringstream lines(read_file("examples/figures/" + std::string(script_name) + ".zs"));
  ScriptDriver(program, services, output).run(lines);

  auto& canvas = dynamic_cast<Canvas&>(*program.windows().use(window).find(picture));
  const Elements drawn = in_list(canvas);
  EXPECT_GE(drawn.lines + drawn.circles + drawn.texts + drawn.points + drawn.cut, least);
  export_picture(canvas, folder.path("a.svg"), 1.0);
  const Elements exported = in_svg(folder.read("a.svg"));
  EXPECT_EQ(exported.texts, drawn.texts);
  EXPECT_EQ(exported.circles, drawn.circles);
  EXPECT_EQ(exported.points, drawn.points);
  if (drawn.cut == 0) {
    EXPECT_EQ(exported.lines, drawn.lines);
    EXPECT_EQ(exported.joints, drawn.joints) << "a curve is one line";
  } else {
    EXPECT_GE(exported.lines, drawn.lines + drawn.cut) << "a cut circle is a line of pieces";
  }
}

}  // namespace
}  // namespace zol
