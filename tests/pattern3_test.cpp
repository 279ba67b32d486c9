// PATTERN3 from end to end: patterns projected apart from the program, picked with the mouse, indexed, shown; the
// boxes, menus and modes of the window.
#include <gtest/gtest.h>

#include <map>

#include "analysis/hkl3make.h"
#include "analysis/pattern3_form.h"
#include "kikuchi/camera_parameters_form.h"
#include "kikuchi/pattern2_form.h"
#include "reflections/main1_form.h"
#include "shell/main_menu_form.h"
#include "shell/program.h"
#include "tests/band_choice.h"
#include "tests/fake_services.h"
#include "tests/projected_pattern.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Some cells of some use here; intensities come from the crystal files that ship.
struct CrystalCase {
  const char* name;
  const char* file;
  std::array<double, 6> cell;
};
constexpr CrystalCase silicon{"cubic", "Silicon.cry", {5.4309, 5.4309, 5.4309, 90, 90, 90}};
constexpr CrystalCase magnesium{"hexagonal", "Magnesium.cry", {3.2094, 3.2094, 5.2105, 90, 90, 120}};
constexpr CrystalCase kyanite{"triclinic", "Kyanite.cry", {7.12, 7.85, 5.58, 89.97, 101.18, 106.01}};

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
  void set_camera(const Camera& camera) {
    form().Text14.set_text(std::to_string(camera.x_shift));
    form().Text15.set_text(std::to_string(camera.y_shift));
    form().Text3.set_text(std::to_string(camera.acquisition));
    state.CamXYRatio = static_cast<Single>(camera.ratio);
  }
  void drag(const PictureLine& line) {
    Canvas& picture = form().Picture1;
    picture.press(line.x1, line.y1);
    picture.move((line.x1 + line.x2) / 2, (line.y1 + line.y2) / 2);
    picture.move(line.x2, line.y2);
    picture.release(line.x2, line.y2);
  }
  /// The cell as the program has it, so that a difference of lattice constants is no error of orientation.
  [[nodiscard]] CartesianCell cell() const { return CartesianCell(state); }

  Pattern3Form& form() { return program.windows().use<Pattern3Form>(); }
  Main1Form& main1() { return program.windows().use<Main1Form>(); }

  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
  ScratchFolder folder;
};

struct OrientationCase {
  CrystalCase crystal;
  const char* name;
  Vector uvw;
  double rotation_deg;
  Camera camera;
};

class Indexing : public Pattern3Test, public testing::WithParamInterface<OrientationCase> {
 protected:
  Indexing() {
    load(GetParam().crystal.file);
    set_camera(GetParam().camera);
    pattern = std::make_unique<ProjectedPattern>(cell(), GetParam().uvw, GetParam().rotation_deg, GetParam().camera);
    choice = std::make_unique<BandChoice>(state, static_cast<int>(form().NhklUsed), *pattern);
  }

  int true_solution() { return solution_with(form(), choice->planes); }
  double direction_error_deg(int n) {
    const auto& direction = form().solutions.SolutionDir;
    return pattern->angle_to_deg({direction(n, 1), direction(n, 2), direction(n, 3)});
  }
  void expect_true_solution() {
    ASSERT_EQ(form().lines.LastLine == 5 ? 5 : 2, form().lines.LastLine);
    const int number = true_solution();
    ASSERT_GT(number, 0) << form().List1.items().back() << form().Label1(0).caption();
    EXPECT_LT(direction_error_deg(number), 0.5);
    EXPECT_EQ(form().List1.list_count(), form().solutions.SolutionCount.value() + 1);

    form().List1.pick(number - 1);
    const double turn = state.PatternAngle * 180 / std::numbers::pi - GetParam().rotation_deg;
    EXPECT_NEAR(std::remainder(turn, 360), 0, 0.5);
    auto& pattern2 = program.windows().use<Pattern2Form>();
    EXPECT_TRUE(pattern2.visible());
    EXPECT_EQ(state.ZoneW, form().solutions.SolutionDir(number, 3));
    expect_marks_on_bands(pattern2);
  }
  /// The six red lines that the simulation ends with are the edges of the three bands: each pair encloses its trace.
  void expect_marks_on_bands(Pattern2Form& pattern2) {
    std::vector<DrawnLine> marks;
    for (const auto& entry : pattern2.Picture1.drawing()) {
      if (const auto* line = std::get_if<DrawnLine>(&entry.what)) {
        if (line->colour == RGB(255, 0, 0)) marks.push_back(*line);
      }
    }
    ASSERT_EQ(marks.size(), 6U);
    for (std::size_t i = 0; i < 3; ++i) {
      const double latitude = radians(pattern->latitude_deg(choice->planes[i]));
      const double azimuth = radians(pattern->azimuth_deg(choice->planes[i]));
      const double foot_x = -std::tan(latitude) * std::cos(azimuth);
      const double foot_y = -std::tan(latitude) * std::sin(azimuth);
      const auto side = [foot_x, foot_y](const DrawnLine& line) {
        const double length = std::hypot(line.x2 - line.x1, line.y2 - line.y1);
        return ((line.x2 - line.x1) * (foot_y - line.y1) - (line.y2 - line.y1) * (foot_x - line.x1)) / length;
      };
      const double one = side(marks[2 * i]);
      const double two = side(marks[2 * i + 1]);
      const double width = std::tan(radians(choice->thetas[i])) * 2;
      EXPECT_LT(std::abs(one) + std::abs(two), 1.4 * width + 0.02) << i;
    }
  }

  std::unique_ptr<ProjectedPattern> pattern;
  std::unique_ptr<BandChoice> choice;
};

TEST_P(Indexing, FindsTheTruthFromThreeLines) {
  ASSERT_EQ(choice->planes.size(), 3U);
  for (const auto& hkl : choice->planes) drag(*pattern->line(hkl));
  form().Command1.click();
  expect_true_solution();
}

TEST_P(Indexing, FindsTheTruthFromSixEdges) {
  ASSERT_EQ(choice->planes.size(), 3U);
  form().Check2.click();
  for (std::size_t i = 0; i < 3; ++i) {
    drag(*pattern->line(choice->planes[i], choice->thetas[i]));
    drag(*pattern->line(choice->planes[i], -choice->thetas[i]));
  }
  form().Command1.click();
  expect_true_solution();
  const int number = true_solution();
  for (int i = 0; i < 3; ++i) {
    const double true_s = std::sin(radians(choice->thetas[static_cast<std::size_t>(i)])) / state.WaveLength;
    EXPECT_NEAR(form().bands.BandS(i) / true_s, 1, 0.02) << i << " of solution " << number;
  }
}

constexpr Camera centred{37, 0, 0, 1};
constexpr Camera shifted{33, 3, -5, 1};
INSTANTIATE_TEST_SUITE_P(Patterns, Indexing,
                         testing::Values(OrientationCase{silicon, "a", {0.2, 0.45, 0.87}, 25, centred},
                                         OrientationCase{silicon, "b", {-0.5, 0.31, 0.66}, 160, shifted},
                                         OrientationCase{silicon, "c", {0.61, 0.58, -0.4}, 275, centred},
                                         OrientationCase{magnesium, "a", {0.3, 0.12, 0.9}, 70, centred},
                                         OrientationCase{magnesium, "b", {-0.7, 0.25, 0.33}, 190, shifted},
                                         OrientationCase{magnesium, "c", {0.9, 0.35, -0.1}, 340, centred},
                                         OrientationCase{kyanite, "a", {0.25, 0.4, 0.8}, 55, centred},
                                         OrientationCase{kyanite, "b", {0.8, -0.33, 0.4}, 205, shifted},
                                         OrientationCase{kyanite, "c", {-0.15, 0.85, -0.5}, 300, {35, -4, 2, 1.04}}),
                         [](const auto& row) { return std::string(row.param.crystal.name) + "_" + row.param.name; });

// A picture that shows the pattern from the other side is indexed once it is flipped: here its lines are.
TEST_P(Indexing, FindsNoTruthInAMirroredPattern) {
  if (std::string(GetParam().crystal.name) != "triclinic") return;
  for (const auto& hkl : choice->planes) {
    auto line = *pattern->line(hkl);
    drag({line.x1, 511 - line.y1, line.x2, 511 - line.y2});
  }
  form().Command1.click();
  EXPECT_EQ(true_solution(), 0);
}

TEST_F(Pattern3Test, LoadsWithItsDefaults) {
  const std::map<std::string, std::string> texts{
      {"Text1", "2.0"}, {"Text2", "50"}, {"Text17", "25"},    {"Text5", "20"}, {"Text3", "37"},
      {"Text14", "0"},  {"Text15", "0"}, {"Text12", "26.54"}, {"Text13", "0"}, {"Text16", "0"}};
  for (const auto& [name, text] : texts) {
    EXPECT_EQ(dynamic_cast<TextBox&>(*form().find(name)).text(), text) << name;
  }
  for (const auto* name : {"Text17", "Label16", "Frame1", "Command10(0)", "Text6", "Text8", "Text9", "Text10", "Text11",
                           "Command7", "Command8", "Command11", "Command12", "Command13", "Command14", "Command15"}) {
    EXPECT_FALSE(form().find(name)->visible()) << name;
  }
  EXPECT_FALSE(form().Option1.on() || form().Option2.on() || form().Option3.on());
  EXPECT_EQ(form().caption(), "KIKUCHI PATTERN ANALYSIS");
  EXPECT_EQ(form().Picture1.pixel_width(), 512);
}

TEST_F(Pattern3Test, CalcWithoutReflectionsDoesNothing) {
  form().Text3.set_text("30");
  state.CamAcquisition = 12;
  form().Command1.click();
  EXPECT_EQ(state.CamAcquisition, 12);
  EXPECT_EQ(form().List1.list_count(), 0);
}

TEST_F(Pattern3Test, NothingFoundListsTheCount) {
  load("Silicon.cry");
  drag({0, 100, 511, 110});
  drag({0, 130, 511, 145});
  drag({0, 160, 511, 190});
  form().Text1.set_text("0.001");
  form().Command1.click();
  EXPECT_EQ(form().List1.items(), std::vector<std::string>{"    No. of solution = 0"});
}

TEST_F(Pattern3Test, MatchingMethodAndEquivalenceAreAskedFor) {
  services.answers = {"1", "", "1"};
  form().Imatch.click();
  EXPECT_EQ(form().MatchMode, 1);
  form().Imatch.click();
  EXPECT_EQ(form().MatchMode, 1) << "an empty answer leaves it";
  (*form().operation("EquivSet"))();
  EXPECT_EQ(form().EquivMode, 1);
  EXPECT_EQ(
      services.prompts,
      (std::vector<std::string>{"[0] Input matching method (0:triangle and direction 1:only triangle)|Matching Method",
                                "[1] Input matching method (0:triangle and direction 1:only triangle)|Matching Method",
                                "[0] Equivalent solution (0:Display 1:Omitt)|Equivale solution"}));
}

TEST_F(Pattern3Test, LoadedPictureIsTakenOverUpsideDown) {
  load("Silicon.cry");
  services.answers = {"four.bmp"};
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

  form().ImageFlip.click();
  EXPECT_EQ(form().Picture1.stored_image().pixel(0, 0), 102);
  EXPECT_EQ(form().lines.LineDone(0), 0) << "the lines belonged to the other view";
  form().ImageMirror.click();
  EXPECT_EQ(form().Picture1.stored_image().pixel(0, 0), 103);
  form().Imageclear.click();
  EXPECT_EQ(form().caption(), "");
  EXPECT_EQ(form().ImageFile, "");
  EXPECT_EQ(form().Picture1.stored_image().pixel(0, 0), RGB(255, 255, 255));
  services.answers = {""};
  form().ImageLoad.click();
  EXPECT_EQ(form().ImageFile, "") << "cancelled";
}

TEST_F(Pattern3Test, CorrectorMovesRowsToTheLeft) {
  std::string records;
  for (int y = 0; y < 512; ++y) records += std::to_string(y) + "," + (y == 300 ? "200" : "0") + "\r\n";
  services.answers = {"four.bmp", folder.write("corrector", records)};
  form().ImageLoad.click();
  form().CorrectFile.click();
  EXPECT_EQ(services.questions.back().initial_folder, ZOL_SOURCE_DIR "/data/ZOL");
  drag({100, 300, 110, 300});
  form().Command4.click();
  const Surface& image = form().Picture1.stored_image();
  EXPECT_EQ(image.pixel(255, 299), 102) << "rows without a shift stay";
  EXPECT_EQ(image.pixel(55, 300), 102);
  EXPECT_EQ(image.pixel(56, 300), 103) << "was at 256";
  EXPECT_EQ(image.pixel(310, 300), 103);
  EXPECT_EQ(image.pixel(311, 300), RGB(128, 128, 128)) << "511 - 200";
  EXPECT_EQ(image.pixel(511, 300), RGB(128, 128, 128));
  EXPECT_EQ(form().ProgressBar2.value(), 511);
  EXPECT_FALSE(form().Picture1.persistent());
  EXPECT_EQ(form().lines.LineDone(0), 1);
  form().Command2.click();
  EXPECT_EQ(form().Picture1.stored_image().pixel(56, 300), 103) << "what was corrected stays";

  services.answers = {folder.write("short", "0,0\r\n1,0\r\n"), folder.write("wide", "0,512\r\n")};
  form().CorrectFile.click();
  EXPECT_NE(failure_of([this] { form().Command4.click(); }).find("short"), std::string::npos);
  form().CorrectFile.click();
  EXPECT_NE(failure_of([this] { form().Command4.click(); }).find("the shift 512 must be 0 to 511"), std::string::npos);
}

TEST_F(Pattern3Test, ModesOfTheMouseExcludeEachOther) {
  form().CPS_Si001.click();
  EXPECT_EQ(form().SiMode, 1);
  EXPECT_TRUE(form().Frame1.visible());
  EXPECT_TRUE(form().Command10(3).visible());
  form().Option1.click();
  form().Picture1.press(100, 200);
  EXPECT_EQ(form().lines.LineX(0, 0), 0) << "no line is touched";
  EXPECT_EQ(form().markers.SiMarkY1, 200);
  form().Command10(0).click();
  EXPECT_EQ(form().markers.SiMarkY1, 200.5F);
  form().CenterPosition.click();
  EXPECT_EQ(form().SiMode, 0);
  EXPECT_EQ(form().CenterMode, 1);
  form().Command10(0).click();
  EXPECT_EQ(form().markers.SiMarkY1, 200.5F) << "only while the markers are set";
  form().Picture1.press(255, 510);
  EXPECT_EQ(form().Text14.text(), ".") << "no digit of a zero is significant";
  EXPECT_EQ(form().Text15.text(), "37.");
  form().CenterPosition.click();
  EXPECT_EQ(form().CenterMode, 0);
}

TEST_F(Pattern3Test, CalibrationOnSiliconReachesTheBoxes) {
  program.windows().use<CameraParametersForm>().Text7.set_text("20");
  form().CPS_Si001.click();
  // 33 degrees, shifts 4 and -6.5: length 393.434, centre (283.012, 210.672); poles 143.199 below, 107.371 above.
  form().Option1.click();
  form().Picture1.press(283.012, 353.871);
  form().Option2.click();
  form().Picture1.press(283.012, 103.301);
  form().Command9.click();
  EXPECT_EQ(form().Text3.text(), "33.");
  EXPECT_EQ(form().Text14.text(), "4.");
  EXPECT_EQ(form().Text15.text(), "-6.5");
  EXPECT_NEAR(state.CamYShift, -6.5, 1e-6);
  EXPECT_EQ(program.windows().use<CameraParametersForm>().Text3.text(), "-6.5");
}

TEST_F(Pattern3Test, SearchMovesEachParameterTwoStepsDown) {
  load("Silicon.cry");
  const ProjectedPattern pattern(cell(), {0.2, 0.45, 0.87}, 25, {37, 0, 0, 1});
  for (const auto& hkl : BandChoice(state, 50, pattern).planes) drag(*pattern.line(hkl));
  form().Command1.click();
  ASSERT_GT(form().solutions.SolutionCount, 1);
  const int row = form().solutions.SolutionTriple(2).value();
  form().CP_Setting_Show.click();
  EXPECT_TRUE(form().Command15.visible());
  EXPECT_EQ(form().Text10.text(), "2");
  form().Text11.set_text("2");
  form().Command15.click();
  EXPECT_EQ(form().Text3.text(), "36.8");
  EXPECT_EQ(form().Text14.text(), "-.2");
  EXPECT_EQ(form().Text15.text(), "-.2");
  EXPECT_EQ(form().AngleTol, 2);
  EXPECT_EQ(form().ProgressBar2.value(), 4);
  EXPECT_EQ(form().List1.list_count(), 2) << "one solution and the count";
  EXPECT_EQ(form().solutions.SolutionTriple(1), row);
  form().Command7.click();
  EXPECT_EQ(form().Text3.text(), "36.9");
  form().Command12.click();
  EXPECT_EQ(form().Text14.text(), "-.3");
  form().CP_Setting_Show.click();
  EXPECT_FALSE(form().Text6.visible());
}

TEST_F(Pattern3Test, CountLineTakesTheEntryBehindTheSolutions) {
  load("Silicon.cry");
  const ProjectedPattern pattern(cell(), {0.2, 0.45, 0.87}, 25, {37, 0, 0, 1});
  for (const auto& hkl : BandChoice(state, 50, pattern).planes) drag(*pattern.line(hkl));
  form().Command1.click();
  const int count = form().solutions.SolutionCount.value();
  ASSERT_GT(count, 1);
  EXPECT_NE(failure_of([this, count] { form().List1.pick(count); }).find("the length of a reflection is 0"),
            std::string::npos)
      << "row 0 is empty";
  form().Check1.click();
  form().Command1.click();
  const int fewer = form().solutions.SolutionCount.value();
  ASSERT_LT(fewer, count);
  form().List1.pick(fewer);
  EXPECT_EQ(state.ZoneU, form().solutions.SolutionDir(fewer + 1, 1)) << "of the former run";
}

TEST_F(Pattern3Test, VoltageWithoutRelativity) {
  form().Text5.set_text("25");
  EXPECT_EQ(main1().Combo1.text(), "20") << "only when the box is left";
  form().Text5.leave();
  EXPECT_EQ(main1().Combo1.text(), "25");
  EXPECT_EQ(main1().Text16.text(), ".07745967");
  EXPECT_TRUE(main1().Option2.on());
  form().Text5.set_text("0");
  form().Text5.leave();
  EXPECT_EQ(state.AccVoltage, 0);
  EXPECT_EQ(main1().Text16.text(), ".07745967");
}

TEST_F(Pattern3Test, CrystalSelectRebuildsTheTable) {
  services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/Magnesium.cry"};
  form().Command5.click();
  EXPECT_EQ(form().Label6.caption(), "Magnesium.cry");
  EXPECT_GE(form().NhklUsed, 50);
  EXPECT_NE(form().triples.TripleS(1, 0), 0);
}

}  // namespace
}  // namespace zol
