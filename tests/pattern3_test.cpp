// PATTERN3 from end to end: patterns projected apart from the program, picked with the mouse, indexed, shown; the
// menus of the window. Its modes and boxes: scripts/measured_pattern.zs.
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
  /// Three numbers of the detector as their boxes show them: acquisition angle, x and y shift.
  std::vector<std::string> detector_boxes() {
    return {form().Text3.text(), form().Text14.text(), form().Text15.text()};
  }

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

TEST_P(Indexing, FindsTheTruthFromThreeLines) {
  ASSERT_EQ(choice->planes.size(), 3U);
  for (const auto& hkl : choice->planes) drag(*pattern->line(hkl));
  expect_true_solution();
}

TEST_P(Indexing, FindsTheTruthFromSixEdges) {
  ASSERT_EQ(choice->planes.size(), 3U);
  form().Check2.click();
  for (std::size_t i = 0; i < 3; ++i) {
    drag(*pattern->line(choice->planes[i], choice->thetas[i]));
    drag(*pattern->line(choice->planes[i], -choice->thetas[i]));
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

TEST_F(Pattern3Test, CalcNeedsReflectionsAndListsTheCount) {
  form().Command1.click();
  EXPECT_EQ(form().List1.list_count(), 0) << "no reflections yet";
  load("Silicon.cry");
  for (const auto& line : {PictureLine{0, 100, 511, 110}, {0, 130, 511, 145}, {0, 160, 511, 190}}) drag(line);
  form().Text1.set_text("0.001");
  form().Command1.click();
  EXPECT_EQ(form().List1.items(), std::vector<std::string>{"    No. of solution = 0"});

  form().Text2.set_text("13.4");
  form().Text2.leave();
  form().Command1.click();
  const double used = form().NhklUsed;
  ASSERT_NE(used, std::floor(used));
  EXPECT_EQ(form().ProgressBar1.maximum(), to_single(used * used * used));
  EXPECT_EQ(form().ProgressBar1.value(), std::round(used * used * used)) << "the last row of the table";
}

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

TEST_F(Pattern3Test, MatchingMethodAndEquivalenceAreAskedFor) {
  services.answers = {"1", "", "1"};
  form().Imatch.click();
  form().Imatch.click();
  EXPECT_EQ(form().MatchMode, 1) << "an empty answer leaves it";
  (*form().operation("EquivSet"))();
  EXPECT_EQ(form().EquivMode, 1);
  const std::string matching = "] Input matching method (0:triangle and direction 1:only triangle)|Matching Method";
  EXPECT_EQ(services.prompts,
            (std::vector<std::string>{"[0" + matching, "[1" + matching,
                                      "[0] Equivalent solution (0:Display 1:Omitt)|Equivale solution"}));
}

TEST_F(Pattern3Test, LoadedPictureIsTakenOverUpsideDown) {
  load("Silicon.cry");
  services.answers = {"four.bmp", ""};
  drag({1, 2, 3, 4});
  form().ImageLoad.click();
  EXPECT_EQ(form().ImageFile, "four.bmp");
  EXPECT_EQ(form().caption(), "four.bmp");
  EXPECT_EQ(form().lines.LineDone(0), 0);
  EXPECT_EQ(services.questions.back().filter, "bmp|*.bmp|");
  drag({0, 0, 511, 511});
  auto& pattern2 = program.windows().use<Pattern2Form>();
  pattern2.ImageLoad.click();
  EXPECT_EQ(pattern2.Picture1.stored_image().pixel(0, 0), 102) << "lower left of the four, without the line";

  form().markers.SiMarkX1 = 100;
  form().ImageFlip.click();
  EXPECT_EQ(pixel(0, 0), 102);
  EXPECT_EQ(form().lines.LineDone(0), 0) << "the lines belonged to the other view";
  EXPECT_EQ(form().markers.SiMarkX1, 0);
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
}

TEST_F(Pattern3Test, SolutionsArePickedAndAdjustedFor) {
  load("Silicon.cry");
  const ProjectedPattern pattern(CartesianCell(state), {0.2, 0.45, 0.87}, 25, centred);
  for (const auto& hkl : BandChoice(state, 50, pattern).planes) drag(*pattern.line(hkl));
  form().Command1.click();
  const auto& solutions = form().solutions;
  const int count = solutions.SolutionCount.value();
  ASSERT_GT(count, 1);
  const int row = solutions.SolutionTriple(2).value();

  // The line of the count takes the entry behind the solutions.
  EXPECT_NE(failure_of([this, count] { form().List1.pick(count); }).find("the length of a reflection is 0"),
            std::string::npos)
      << "row 0 is empty";
  form().Check1.click();
  form().Command1.click();
  const int fewer = solutions.SolutionCount.value();
  ASSERT_LT(fewer, count);
  form().List1.pick(fewer);
  EXPECT_EQ(state.ZoneU, solutions.SolutionDir(fewer + 1, 1)) << "of the former run";
  form().Check1.click();
  form().Command1.click();

  // Of equally good places the search takes the first one: two steps down.
  form().CP_Setting_Show.click();
  EXPECT_TRUE(form().Command15.visible());
  EXPECT_EQ(form().Text10.text(), "2");
  form().Text11.set_text("2");
  form().Command15.click();
  EXPECT_EQ(detector_boxes(), (std::vector<std::string>{"36.8", "-.2", "-.2"}));
  EXPECT_EQ(form().AngleTol, 2);
  EXPECT_EQ(form().ProgressBar2.value(), 4);
  EXPECT_EQ(form().List1.list_count(), 2) << "one solution and the count";
  EXPECT_EQ(solutions.SolutionTriple(1), row);
  form().Command7.click();
  form().Command12.click();
  EXPECT_EQ(detector_boxes(), (std::vector<std::string>{"36.9", "-.3", "-.2"}));
  form().Text3.set_text("54.005");
  form().Text6.set_text("2.149393");
  form().Command7.click();
  EXPECT_EQ(form().Text3.text(), "56.15439") << "the step is a Double";
  form().CP_Setting_Show.click();
  EXPECT_FALSE(form().Text6.visible());
}

}  // namespace
}  // namespace zol
