// A pattern that the program draws, saves as a bitmap, loads, flips, indexes, and lays its solution over: real pixels.
#include <set>

#include "kikuchi/window/pattern2_form.h"
#include "tests/band_choice.h"
#include "tests/offscreen_desktop.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Part of a line, in picture coordinates, that has something drawn within a pixel of it.
double covered(Surface& image, const PictureLine& line) {
  int hits = 0;
  int samples = 0;
  for (int i = 2; i < 198; ++i) {
    const double x = line.x1 + (line.x2 - line.x1) * i / 199;
    const double y = line.y1 + (line.y2 - line.y1) * i / 199;
    if (std::min(x, y) < 1 || std::max(x, y) > 510) continue;
    ++samples;
    bool drawn = false;
    for (int place = 0; place < 9; ++place) {
      const auto pixel_x = std::lround(x * (image.width() - 1) / 511) + place / 3 - 1;
      const auto pixel_y = std::lround(y * (image.height() - 1) / 511) + place % 3 - 1;
      drawn = drawn || image.pixel(static_cast<int>(pixel_x), static_cast<int>(pixel_y)) != RGB(255, 255, 255);
    }
    hits += drawn ? 1 : 0;
  }
  return samples == 0 ? 0 : 1.0 * hits / samples;
}

/// The farthest that a mark's foot, or a place 100 pixels along it, is from a line.
double off_line(const PictureMark& mark, const PictureLine& line) {
  const double length = std::hypot(line.x2 - line.x1, line.y2 - line.y1);
  const double step = 100 / std::hypot(mark.along_x, mark.along_y);
  double most = 0;
  for (const double t : {0.0, step}) {
    const double x = mark.x + t * mark.along_x - line.x1;
    const double y = mark.y + t * mark.along_y - line.y1;
    most = std::max(most, std::abs(x * (line.y2 - line.y1) - y * (line.x2 - line.x1)) / length);
  }
  return most;
}

TEST_F(DesktopTest, SolutionLiesOnTheBandsOfThePicture) {
  const ScratchFolder folder;
  auto& analysis = program.windows().use<Pattern3Form>();
  auto& simulation = program.windows().use<Pattern2Form>();
  click("MAIN_MENU", "Command3");
  load("Silicon.cry");
  for (auto* box : {&analysis.Text14, &analysis.Text15}) box->set_text("0");
  for (auto* box : {&analysis.Text3, &simulation.Text1}) box->set_text("33");
  main1().Command10.click();
  simulation.Text19.set_text("100");  // few enough that a line off its band meets mostly white
  simulation.Text3.set_text("200");   // whole numbers: the azimuth counts from a reflection that is one
  simulation.Text4.set_text("450");
  simulation.Text5.set_text("870");
  simulation.Command8.click();
  services.answers = {folder.path("drawn"), folder.path("drawn.bmp")};
  simulation.ISAVE.click();
  analysis.ImageLoad.click();
  analysis.ImageFlip.click();
  analysis.Text2.leave();  // the strongest reflections first again: the drawing had sorted them the other way

  const CrystalState& state = program.state();
  const double rotation_deg = state.PatternAngle * 180 / std::numbers::pi;
  const ProjectedPattern pattern(CartesianCell(state), {200, 450, 870}, rotation_deg, {33, 0, 0, 1});
  const BandChoice choice(state, 50, pattern);
  ASSERT_EQ(choice.planes.size(), 3U);
  Canvas& picture = analysis.Picture1;
  for (std::size_t i = 0; i < 3; ++i) {
    for (const double edge : {choice.thetas[i], -choice.thetas[i]}) {
      const auto line = *pattern.line(choice.planes[i], edge);
      EXPECT_GT(covered(picture.stored_image(), line), 0.97)
          << "the picture shows the band where the projection has it";
      EXPECT_LT(covered(picture.stored_image(), {line.x1, 511 - line.y1, line.x2, 511 - line.y2}), 0.8)
          << "and not before the flip";
    }
    const auto trace = *pattern.line(choice.planes[i]);
    picture.press(trace.x1, trace.y1);
    picture.move(trace.x2, trace.y2);
    picture.release(trace.x2, trace.y2);
  }
  analysis.Command1.click();
  const int number = solution_with(analysis, choice.planes);
  ASSERT_GT(number, 0) << analysis.List1.items().back();

  simulation.ImageLoad.click();
  analysis.Command2.click();  // the lines go, the picture stays
  analysis.List1.pick(number - 1);
  EXPECT_TRUE(simulation.Picture1.has_picture());
  std::set<std::pair<double, double>> marks;  // where each line begins: six lines apart
  for (const auto& entry : simulation.Picture1.drawing()) {
    const auto* line = std::get_if<DrawnLine>(&entry.what);
    if (line == nullptr || line->colour != RGB(255, 0, 0)) continue;
    marks.emplace(line->x1, line->y1);
    // From tangents to the coordinates of the flipped picture, 0 to 511.
    const auto place = [](double tangent) { return (tangent / std::tan(radians(33)) + 1) * 511 / 2; };
    const PictureLine drawn{place(line->x1), place(line->y1), place(line->x2), place(line->y2)};
    EXPECT_GT(covered(picture.stored_image(), drawn), 0.9);
  }
  EXPECT_EQ(marks.size(), 6U);

  std::size_t lit = 0;  // what the mouse over the list lights up: the two edges of each of the three bands
  for (const auto& mark : picture.row_marks(number - 1)) {
    for (std::size_t i = 0; i < 3; ++i) {
      const auto& [h, k, l] = choice.planes[i];
      if (!mark.is_of({static_cast<int>(h), static_cast<int>(k), static_cast<int>(l)})) continue;
      const double off = std::min(off_line(mark, *pattern.line(choice.planes[i], choice.thetas[i])),
                                  off_line(mark, *pattern.line(choice.planes[i], -choice.thetas[i])));
      EXPECT_LT(off, 1);
      ++lit;
    }
  }
  EXPECT_EQ(lit, 6U);
}

}  // namespace
}  // namespace zol
