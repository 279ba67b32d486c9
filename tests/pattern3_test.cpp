// PATTERN3 from end to end: patterns projected apart from the program, picked with the mouse, indexed, shown; pictures
// and failures. Its modes and boxes: scripts/indexing.zs, detector.zs and measured_pattern.zs.
#include <gtest/gtest.h>

#include "analysis/window/hkl3make.h"
#include "analysis/window/pattern3_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/main_menu_form.h"
#include "shell/program/program.h"
#include "tests/band_choice.h"
#include "tests/fake_services.h"
#include "tests/projected_pattern.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class Pattern3Test : public testing::Test {
 protected:
  Pattern3Test() {
    program.start();
    program.windows().use<MainMenuForm>().Command3.click();
  }

  void load(const std::string& file) {
    services.answers.push_back(ZOL_SOURCE_DIR "/data/ZOLDATA/" + file);
    main1().DATA_LOAD.click();
  }
  void drag(const PictureLine& line) {
    Canvas& picture = form().Picture1;
    picture.press(line.x1, line.y1);
    picture.move((line.x1 + line.x2) / 2, (line.y1 + line.y2) / 2);
    picture.move(line.x2, line.y2);
    picture.release(line.x2, line.y2);
  }
  std::optional<Colour> pixel(int x, int y) { return form().Picture1.stored_image().pixel(x, y); }

  Pattern3Form& form() { return program.windows().use<Pattern3Form>(); }
  Main1Form& main1() { return program.windows().use<Main1Form>(); }

  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
  ScratchFolder folder;
};

struct OrientationCase {
  const char* name;
  const char* file;
  Vector uvw;
  double rotation_deg;
  Camera camera;
};

class Indexing : public Pattern3Test, public testing::WithParamInterface<OrientationCase> {
 protected:
  Indexing() {
    const Camera& camera = GetParam().camera;
    load(GetParam().file);
    form().Text14.set_text(std::to_string(camera.x_shift));
    form().Text15.set_text(std::to_string(camera.y_shift));
    form().Text3.set_text(std::to_string(camera.acquisition));
    state.CamXYRatio = static_cast<Single>(camera.ratio);
    // The cell as the program has it, so that a difference of lattice constants is no error of orientation.
    pattern = std::make_unique<ProjectedPattern>(CartesianCell(state), GetParam().uvw, GetParam().rotation_deg, camera);
    choice = std::make_unique<BandChoice>(state, static_cast<int>(form().NhklUsed), *pattern);
  }

  void expect_true_solution() {
    form().Command1.click();
    EXPECT_EQ(form().List1.list_count(), form().solutions.SolutionCount.value() + 1);
    const int number = solution_with(form(), choice->planes);
    ASSERT_GT(number, 0) << form().List1.items().back() << form().Label1(0).caption();
    const auto& direction = form().solutions.SolutionDir;
    EXPECT_LT(pattern->angle_to_deg({direction(number, 1), direction(number, 2), direction(number, 3)}), 0.5);

    form().List1.pick(number - 1);
    const double turn = state.PatternAngle * 180 / std::numbers::pi - GetParam().rotation_deg;
    EXPECT_NEAR(std::remainder(turn, 360), 0, 0.5);
    auto& pattern2 = program.windows().use<Pattern2Form>();
    EXPECT_TRUE(pattern2.visible());
    EXPECT_EQ(state.ZoneW, direction(number, 3));
    EXPECT_EQ(Val(pattern2.Text14.text()), GetParam().camera.x_shift);
    EXPECT_EQ(Val(pattern2.Text15.text()), GetParam().camera.y_shift);
  }

  std::unique_ptr<ProjectedPattern> pattern;
  std::unique_ptr<BandChoice> choice;
};

TEST_P(Indexing, FindsTheTruthFromThreeLinesAndFromSixEdges) {
  ASSERT_EQ(choice->planes.size(), 3U);
  for (const auto& hkl : choice->planes) drag(*pattern->line(hkl));
  expect_true_solution();
  form().Check2.click();  // the lines go
  for (std::size_t i = 0; i < 3; ++i) {
    for (const int side : {1, -1}) drag(*pattern->line(choice->planes[i], side * choice->thetas[i]));
  }
  expect_true_solution();
  for (int i = 0; i < 3; ++i) {
    const double true_s = std::sin(radians(choice->thetas[static_cast<std::size_t>(i)])) / state.WaveLength;
    EXPECT_NEAR(form().bands.BandS(i) / true_s, 1, 0.02) << i;
  }
}

constexpr Camera centred{37, 0, 0, 1};
constexpr Camera shifted{33, 3, -5, 1};
constexpr Camera stretched{35, -4, 2, 1.04};
INSTANTIATE_TEST_SUITE_P(
    Patterns, Indexing,
    testing::Values(OrientationCase{"cubic_a", "Silicon.cry", {0.2, 0.45, 0.87}, 25, centred},
                    OrientationCase{"cubic_b", "Silicon.cry", {-0.5, 0.31, 0.66}, 160, shifted},
                    OrientationCase{"cubic_c", "Silicon.cry", {0.61, 0.58, -0.4}, 0, centred},
                    OrientationCase{"hexagonal_a", "Magnesium.cry", {0.3, 0.12, 0.9}, 70, centred},
                    OrientationCase{"hexagonal_b", "Magnesium.cry", {-0.7, 0.25, 0.33}, 190, shifted},
                    OrientationCase{"hexagonal_c", "Magnesium.cry", {0.9, 0.35, -0.1}, 340, centred},
                    OrientationCase{"triclinic_a", "Kyanite.cry", {0.25, 0.4, 0.8}, 55, centred},
                    OrientationCase{"triclinic_b", "Kyanite.cry", {0.8, -0.33, 0.4}, 205, shifted},
                    OrientationCase{"triclinic_c", "Kyanite.cry", {-0.15, 0.85, -0.5}, 300, stretched}),
    [](const auto& row) { return std::string(row.param.name); });

// Three bands that are one and the same have no direction of their own.
TEST_F(Pattern3Test, DirectionsThatWereNotSolvedStandInRed) {
  load("Kyanite.cry");
  form().Text2.set_text("3");
  form().Text2.leave();
  services.answers = {"1"};
  form().Imatch.click();
  for (int i = 0; i < 3; ++i) drag({0, 100, 511, 110});
  form().Command1.click();
  ASSERT_GT(form().List1.list_count(), 1);
  ASSERT_GT(form().solutions.MatchStatus, 1);
  EXPECT_EQ(form().List1.colour_of(0), colours::red);
  EXPECT_EQ(form().List1.colour_of(form().List1.list_count() - 1), colours::black);
}

TEST_F(Pattern3Test, LoadedPictureIsTakenOverUpsideDown) {
  load("Silicon.cry");
  services.answers = {"four.bmp", ""};
  drag({1, 2, 3, 4});
  form().ImageLoad.click();
  EXPECT_EQ(form().ImageFile, "four.bmp");
  EXPECT_EQ(form().caption(), "four.bmp");
  EXPECT_EQ(form().lines.LineDone(0), 0);
  EXPECT_EQ(services.questions.back().filter, file_filters::pictures);
  drag({0, 0, 511, 511});
  auto& pattern2 = program.windows().use<Pattern2Form>();
  pattern2.ImageLoad.click();
  EXPECT_EQ(pattern2.Picture1.stored_image().pixel(0, 0), 102) << "lower left of the four, without the line";

  form().markers.SiMarkX1 = 100;
  form().List1.add_item("of the other view");
  form().ImageFlip.click();
  EXPECT_EQ(pixel(0, 0), 102);
  EXPECT_EQ(form().lines.LineDone(0), 0) << "the lines belonged to the other view";
  EXPECT_EQ(form().markers.SiMarkX1, 0);
  EXPECT_EQ(form().List1.list_count(), 0);
  form().ImageMirror.click();
  EXPECT_EQ(pixel(0, 0), 103);
  form().Imageclear.click();
  drag({0, 0, 511, 511});
  form().ImageMirror.click();
  EXPECT_EQ(form().lines.LineDone(0), 1) << "no picture, nothing to turn over";
  EXPECT_EQ(form().caption(), "");
  EXPECT_EQ(pixel(0, 0), RGB(255, 255, 255));
  form().ImageLoad.click();
  EXPECT_EQ(form().ImageFile, "") << "cleared, and then cancelled";
}

TEST_F(Pattern3Test, CorrectorMovesRowsToTheLeft) {
  std::string records;
  for (int y = 0; y < 512; ++y) records += std::to_string(y) + "," + (y == 300 ? "200" : "0") + "\r\n";
  services.answers = {"four.bmp", folder.write("corrector", records), folder.write("short", "0,0\r\n1,0\r\n"),
                      folder.write("wide", "0,512\r\n")};
  form().ImageLoad.click();
  form().CorrectFile.click();
  EXPECT_EQ(services.questions.back().initial_folder, ZOL_SOURCE_DIR "/data/ZOL");
  EXPECT_EQ(services.questions.back().filter, "");
  drag({100, 300, 110, 300});
  form().Command4.click();
  EXPECT_EQ(form().ProgressBar2.value(), 511);
  EXPECT_EQ(form().lines.LineDone(0), 1);
  form().Command2.click();  // what was corrected stays
  EXPECT_EQ(pixel(255, 299), 102) << "rows without a shift stay";
  EXPECT_EQ(pixel(55, 300), 102);
  EXPECT_EQ(pixel(56, 300), 103) << "was at 256";
  EXPECT_EQ(pixel(310, 300), 103);
  EXPECT_EQ(pixel(311, 300), RGB(128, 128, 128)) << "511 - 200";
  EXPECT_EQ(pixel(511, 300), RGB(128, 128, 128));

  for (const auto* words : {"short", "the shift 512 must be 0 to 511"}) {
    form().CorrectFile.click();
    EXPECT_NE(failure_of([this] { form().Command4.click(); }).find(words), std::string::npos) << words;
  }
  services.answers = {"four.bmp"};
  form().ImageLoad.click();
  EXPECT_EQ(form().ProgressBar2.value(), 0);
}

TEST_F(Pattern3Test, FailuresLeaveTheParametersAsTheyWere) {
  load("Silicon.cry");
  const ProjectedPattern pattern(CartesianCell(state), {0.2, 0.45, 0.87}, 25, centred);
  for (const auto& hkl : BandChoice(state, 50, pattern).planes) drag(*pattern.line(hkl));
  form().Command1.click();
  const int count = form().List1.list_count() - 1;
  EXPECT_NE(failure_of([this, count] { form().List1.pick(count); }).find("the length of a reflection is 0"),
            std::string::npos)
      << "the line of the count takes the row behind the solutions";
  form().CP_Setting_Show.click();
  form().Check2.click();  // three more lines are wanted, whose bands have no width
  state.CamXShift = 1;
  EXPECT_NE(failure_of([this] { form().Command15.click(); }), "");
  EXPECT_EQ(std::pair(form().AngleTol, state.CamXShift), std::pair(2.0F, 1.0F));
}

}  // namespace
}  // namespace zol
