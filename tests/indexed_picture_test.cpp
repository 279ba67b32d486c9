// A pattern that the program draws, saves as a bitmap, loads, flips, indexes, and lays its solution over: real pixels.
#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "analysis/window/pattern3_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/main_menu_form.h"
#include "shell/program/program.h"
#include "tests/band_choice.h"
#include "tests/offscreen_desktop.h"
#include "tests/projected_pattern.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct PictureCase {
  const char* name;
  const char* file;
  Vector uvw;  // whole numbers: the azimuth counts from a reflection that is one
};

class IndexedPicture : public testing::TestWithParam<PictureCase> {
 protected:
  static constexpr double half_opening_deg = 33;

  IndexedPicture() {
    program.start();
    program.windows().use<MainMenuForm>().Command3.click();
    services.answers.push_back(std::string(ZOL_SOURCE_DIR "/data/ZOLDATA/") + GetParam().file);
    program.windows().use<Main1Form>().DATA_LOAD.click();
    analysis().Text14.set_text("0");
    analysis().Text15.set_text("0");
    analysis().Text3.set_text("33");
  }
  /// Draws the strongest bands around the axis, saves them, and loads and flips the picture.
  void load_drawn_pattern() {
    auto& form = simulation();
    program.windows().use<Main1Form>().Command10.click();
    form.Text1.set_text("33");
    form.Text19.set_text("100");  // few enough that a line off its band meets mostly white
    std::size_t axis = 0;
    for (auto* box : {&form.Text3, &form.Text4, &form.Text5}) box->set_text(std::to_string(GetParam().uvw[axis++]));
    form.Command8.click();
    services.answers = {folder.path("drawn"), folder.path("drawn.bmp")};
    form.ISAVE.click();
    analysis().ImageLoad.click();
    analysis().ImageFlip.click();
    analysis().Text2.leave();  // the strongest reflections first again: the drawing had sorted them the other way
  }
  void drag(const PictureLine& line) {
    Canvas& picture = analysis().Picture1;
    picture.press(line.x1, line.y1);
    picture.move(line.x2, line.y2);
    picture.release(line.x2, line.y2);
  }

  /// Part of a line, in picture coordinates, that has something drawn within a pixel of it.
  double covered(const PictureLine& line) {
    Surface& image = analysis().Picture1.stored_image();
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
        const auto colour = image.pixel(static_cast<int>(pixel_x), static_cast<int>(pixel_y));
        drawn = drawn || (colour && *colour != RGB(255, 255, 255));
      }
      hits += drawn ? 1 : 0;
    }
    return samples == 0 ? 0 : 1.0 * hits / samples;
  }
  /// A line of the simulation (tangents, y upward) in the coordinates of the flipped picture (0 to 511, y downward on
  /// the screen and upward on the crystal).
  static PictureLine in_picture(const DrawnLine& line) {
    const double half = std::tan(radians(half_opening_deg));
    const auto place = [half](double tangent) { return (tangent / half + 1) * 511 / 2; };
    return {place(line.x1), place(line.y1), place(line.x2), place(line.y2)};
  }
  Pattern3Form& analysis() { return program.windows().use<Pattern3Form>(); }
  Pattern2Form& simulation() { return program.windows().use<Pattern2Form>(); }

  PixelServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
  ScratchFolder folder;
};

TEST_P(IndexedPicture, SolutionLiesOnTheBandsOfThePicture) {
  load_drawn_pattern();
  const double rotation_deg = state.PatternAngle * 180 / std::numbers::pi;
  const ProjectedPattern pattern(CartesianCell(state), GetParam().uvw, rotation_deg, {half_opening_deg, 0, 0, 1});

  const BandChoice choice(state, 50, pattern);
  ASSERT_EQ(choice.planes.size(), 3U);
  for (std::size_t i = 0; i < 3; ++i) {
    for (const double edge : {choice.thetas[i], -choice.thetas[i]}) {
      const auto line = *pattern.line(choice.planes[i], edge);
      EXPECT_GT(covered(line), 0.97) << "the picture shows the band where the projection has it";
      EXPECT_LT(covered({line.x1, 511 - line.y1, line.x2, 511 - line.y2}), 0.8) << "and not before the flip";
    }
    drag(*pattern.line(choice.planes[i]));
  }
  analysis().Command1.click();
  const int number = solution_with(analysis(), choice.planes);
  ASSERT_GT(number, 0) << analysis().List1.items().back();

  simulation().ImageLoad.click();
  analysis().Command2.click();  // the lines go, the picture stays
  analysis().List1.pick(number - 1);
  EXPECT_TRUE(simulation().Picture1.has_picture());
  std::set<std::pair<double, double>> marks;  // where each line begins: six lines apart
  for (const auto& entry : simulation().Picture1.drawing()) {
    const auto* line = std::get_if<DrawnLine>(&entry.what);
    if (line == nullptr || line->colour != RGB(255, 0, 0)) continue;
    marks.emplace(line->x1, line->y1);
    EXPECT_GT(covered(in_picture(*line)), 0.9);
  }
  EXPECT_EQ(marks.size(), 6U);
}

INSTANTIATE_TEST_SUITE_P(Crystals, IndexedPicture,
                         testing::Values(PictureCase{"cubic", "Silicon.cry", {200, 450, 870}},
                                         PictureCase{"triclinic", "Kyanite.cry", {250, 400, 800}}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zol
