// The window of automatic indexing on real pictures: from the picture to indices, simulation, lines and report.
#include "analysis/window/pattern3_form.h"
#include "indexing/window/auto_index_form.h"
#include "indexing/window/show_orientation.h"
#include "kikuchi/window/pattern2_form.h"
#include "tests/offscreen_desktop.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Silicon as the example picture was drawn: the direction in the middle, and the turn of the reflection (w, w, -u-v).
Rotation drawn_orientation() {
  const Vector3 z = Vector3(0.25, 0.48, 0.84).normalized();
  const Vector3 start = Vector3(0.84, 0.84, -0.73).normalized();
  const double turn = 25 * std::numbers::pi / 180;
  const Vector3 x = std::cos(turn) * start - std::sin(turn) * z.cross(start);
  Rotation orientation;
  orientation << x, z.cross(x), z;
  return orientation;
}

double correlation(const GreyPicture& a, const GreyPicture& b) {
  const auto of = [](const GreyPicture& picture) {
    const Eigen::ArrayXd values =
        Eigen::Map<const Eigen::ArrayXf>(picture.values.data(), static_cast<Eigen::Index>(picture.values.size()))
            .cast<double>();
    return (values - values.mean()).matrix().normalized().eval();
  };
  return of(a).dot(of(b));
}

class AutoIndexTest : public DesktopTest {
 protected:
  AutoIndexTest() {
    click("MAIN_MENU", "Command3");
    for (auto* box : {&pattern().Text14, &pattern().Text15}) box->set_text("0");
    pattern().Text3.set_text("33");
  }
  void load_picture(const std::string& path = ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp") {
    services.answers = {path};
    pattern().ImageLoad.click();
    pattern().ImageFlip.click();
  }
  double error_deg() {
    const auto* solution = form().result.solution();
    if (solution == nullptr) return 180;
    return misorientation_deg(solution->found.crystal_from_picture, drawn_orientation(),
                              solution->model->reflectors.symmetry);
  }
  Pattern3Form& pattern() { return program.windows().use<Pattern3Form>(); }
  AutoIndexForm& form() { return program.windows().use<AutoIndexForm>(); }
};

TEST_F(AutoIndexTest, PictureIsIndexedShownAndTaken) {
  load("Silicon.cry");
  load_picture();
  form().Index.click();
  EXPECT_LT(error_deg(), 0.1);
  EXPECT_GE(form().result.solution()->found.matched, 8);
  EXPECT_GT(form().result.solution()->found.confidence, 0.2);
  ASSERT_EQ(form().Bands.list_count(), 9);
  EXPECT_EQ(form().Bands.items().front().size(), form().BandsHeading.caption().size()) << "numbers below their heads";
  const std::array<int, 2> place{1, 3};
  EXPECT_NEAR(Val(form().fields().text("Orientation", place)),
              form().result.solution()->found.crystal_from_picture(0, 2), 1e-12);

  // What is handed over shows the same orientation.
  form().Show.click();
  EXPECT_LT(
      misorientation_deg(shown_orientation(program.state()), form().result.solution()->found.crystal_from_picture),
      0.3);
  auto& pattern2 = program.windows().use<Pattern2Form>();
  EXPECT_GT(pattern2.List1.list_count(), 10);
  pattern2.BandsAsPicture.click();
  const auto bands = pattern2.Picture1.grey_picture();
  pattern2.DynamicalBands.click();
  const double alike = correlation(*bands, *pattern2.Picture1.grey_picture());
  EXPECT_TRUE(alike > 0.4 && alike < 0.95) << alike;

  // The told matching finds the same direction from the lines that were taken, plain and by edges.
  Vector3 direction = drawn_orientation().col(2).cwiseAbs();
  std::sort(direction.begin(), direction.end());
  for (const bool edges : {false, true}) {
    if (edges) pattern().Check2.click();
    form().TakeLines.click();
    pattern().Command1.click();
    ASSERT_GT(pattern().solutions.SolutionCount, 0) << edges;
    double nearest = 180;
    for (int i = 1; i <= pattern().solutions.SolutionCount.value(); ++i) {
      const auto& found = pattern().solutions.SolutionDir;
      Vector3 uvw = Vector3(found(i, 1), found(i, 2), found(i, 3)).normalized().cwiseAbs();
      std::sort(uvw.begin(), uvw.end());
      nearest = std::min(nearest, std::acos(std::min(1.0, uvw.dot(direction))) * 180 / std::numbers::pi);
    }
    EXPECT_LT(nearest, 1.5) << edges;
  }
}

TEST_F(AutoIndexTest, CentreIsRefinedIntoTheBoxes) {
  load("Silicon.cry");
  load_picture();
  pattern().Text3.set_text("34.2");
  pattern().Text14.set_text("1");
  pattern().Text15.set_text("-1");
  form().RefineCentre.click();
  EXPECT_NEAR(Val(pattern().Text3.text()), 33, 0.3);
  EXPECT_NEAR(Val(pattern().Text14.text()), 0, 0.3);
  EXPECT_NEAR(Val(pattern().Text15.text()), 0, 0.3);
  EXPECT_EQ(to_single(Val(pattern().Text3.text())), program.state().CamAcquisition);
  EXPECT_LT(error_deg(), 0.3);
  EXPECT_NEAR(Val(form().fields().text("CentreZ", {})), 0.5 / std::tan(33 * std::numbers::pi / 180), 0.01);
}

/// Bunge's angles to the rotation that they stand for.
Rotation crystal_from_sample(double phi1, double phi, double phi2) {
  const auto about = [](double degrees, const Vector3& axis) {
    return Eigen::AngleAxisd(-degrees * std::numbers::pi / 180, axis).toRotationMatrix();
  };
  return about(phi2, Vector3::UnitZ()) * about(phi, Vector3::UnitX()) * about(phi1, Vector3::UnitZ());
}

// Measured nickel, with the centre and the orientation that were published with it (examples/measured/README.md).
TEST_F(AutoIndexTest, AMeasuredPatternFitsTheDynamicalOneBetter) {
  show_main1();
  services.answers = {ZOL_SOURCE_DIR "/examples/measured/Nickel.cry"};
  child<QAction>("Main1", "DATA_LOAD").trigger();
  load_picture(ZOL_SOURCE_DIR "/examples/measured/nickel.png");
  pattern().Text3.set_text("44.955");
  pattern().Text14.set_text("-8.978");
  pattern().Text15.set_text("29.511");
  constexpr double tilt = 70;
  const Rotation published = crystal_from_sample(348.574, 88.846, 147.252) * picture_from_sample(tilt).transpose();
  const auto found = [this] { return form().result.solution()->found; };
  const auto off = [&] {
    return misorientation_deg(found().crystal_from_picture, published,
                              form().result.solution()->model->reflectors.symmetry);
  };
  form().Index.click();
  const double kinematic = found().correlation;
  EXPECT_LT(off(), 0.4);
  form().Dynamical.click();
  form().Index.click();
  EXPECT_GT(found().correlation, kinematic + 0.08);
  EXPECT_LT(off(), 0.25);
  EXPECT_NE(form().Status.caption().find(" dynamical, " + Format(kinematic, "0.00") + " kinematic"), std::string::npos)
      << form().Status.caption();

  // What is put back from a file has its crystals, and of these their patterns again where they are needed.
  StoreWriter out;
  zol::store(out, form().result);
  StoreReader in(out.bytes());
  form().result = zol::load<IndexResult>(in);
  const auto continuous = [this] { return form().result.solution()->model->sphere->continuous(); };
  EXPECT_FALSE(continuous());
  form().Over.click();
  EXPECT_TRUE(continuous());

  services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/CopperLines.cry"};
  form().AddCrystal.click();
  form().Index.click();
  EXPECT_LT(off(), 0.25);
  EXPECT_TRUE(
      form().Status.caption().ends_with("; CopperLines.cry has no dynamical pattern: it has observed lines and "
                                        "no atoms"))
      << form().Status.caption();
  for (const auto& solution : form().result.solutions) {
    EXPECT_EQ(solution.dynamical, solution.model->title == "Nickel.cry");
    EXPECT_EQ(solution.dynamical, solution.kinematic != solution.found.correlation);
  }
  EXPECT_TRUE(failures.empty());
}

TEST_F(AutoIndexTest, CrystalsAreRankedAndFamiliesLeftOut) {
  load("Forsterite.cry");
  load_picture();
  for (const auto* other : {"Copper.cry", "Silicon.cry"}) {
    services.answers = {std::string(ZOL_SOURCE_DIR "/data/ZOLDATA/") + other};
    form().AddCrystal.click();
  }
  form().Index.click();
  ASSERT_NE(form().result.solution(), nullptr);
  EXPECT_EQ(form().result.solution()->model->title, "Silicon.cry");
  EXPECT_LT(error_deg(), 0.1);
  form().Crystals.pick(0);
  form().RemoveCrystal.click();
  EXPECT_EQ(form().Crystals.items(), std::vector<std::string>{"Silicon.cry"});
  form().Crystals.pick(0);
  form().RemoveCrystal.click();

  load("Silicon.cry");
  form().Index.click();
  ASSERT_EQ(form().Families.items().front().substr(0, 2), "x ");
  form().Families.pick(0);
  form().ToggleFamily.click();
  EXPECT_EQ(form().Families.items().front().substr(0, 2), "- ");
  form().Index.click();
  const auto& model = *form().result.solution()->model;
  for (const MatchedBand& match : form().result.solution()->matches) {
    if (match.plane < 0) continue;
    EXPECT_NE(model.table->planes()[static_cast<std::size_t>(match.plane)].family, 0);
  }
}

/// Mean grey of a part of the simulated picture.
double mean_grey(Surface& image, int left, int right) {
  double sum = 0;
  for (int x = left; x < right; ++x) sum += *image.pixel(x, image.height() / 2) & 255;
  return sum / (right - left);
}

TEST_F(AutoIndexTest, SimulatedPictureStandsBesideOverAndInTurn) {
  load("Silicon.cry");
  load_picture();
  form().Index.click();
  Surface& image = form().Simulated.stored_image();
  const int half = image.width() / 2;
  const double measured = mean_grey(image, 4, half - 4);
  const double simulated = mean_grey(image, half + 4, image.width() - 4);
  EXPECT_NE(measured, simulated);
  form().Over.click();
  for (const int share : {0, 100}) {
    form().Blend.set_value(share);
    EXPECT_NEAR(mean_grey(form().Simulated.stored_image(), half / 2 + 4, 3 * half / 2 - 4),
                share == 0 ? measured : simulated, 1)
        << share;
  }
  form().Alternating.click();
  const double first = mean_grey(form().Simulated.stored_image(), half / 2 + 4, 3 * half / 2 - 4);
  form().Simulated.press(1, 1);
  const double second = mean_grey(form().Simulated.stored_image(), half / 2 + 4, 3 * half / 2 - 4);
  EXPECT_NEAR(first, simulated, 1);
  EXPECT_NEAR(second, measured, 1);
}

TEST_F(AutoIndexTest, WhatIsMissingIsToldAndTheRunGoesOn) {
  const ScratchFolder folder;
  const auto message_of = [this](const CommandButton& button) {
    services.messages.clear();
    button.click();
    return services.messages.empty() ? std::string() : services.messages.back();
  };
  EXPECT_EQ(message_of(form().Index), "there is no picture: load one in PATTERN3 (Image, LOAD)");
  EXPECT_EQ(message_of(form().Show), "there is no solution yet: press Index");
  EXPECT_EQ(message_of(form().TakeLines), "there is no solution yet: press Index");
  load_picture();
  EXPECT_EQ(message_of(form().Index), "there is no crystal: load one in the main window, or add a crystal file");
  load("Silicon.cry");
  pattern().Text3.set_text("0");
  EXPECT_TRUE(message_of(form().Index).starts_with("the half angle of PATTERN3, Area (deg.), is 0"));
  pattern().Text3.set_text("33");
  form().BandCount.set_text("1e9");
  EXPECT_NE(message_of(form().Index), "");
  form().BandCount.set_text("9");
  QImage blank(64, 48, QImage::Format_Grayscale8);
  blank.fill(90);
  ASSERT_TRUE(blank.save(QString::fromStdString(folder.path("blank.png"))));
  load_picture(folder.path("blank.png"));
  EXPECT_EQ(message_of(form().Index), "the picture is blank: it has no contrast to find bands in");
  load_picture();
  EXPECT_EQ(message_of(form().Index), "");
  EXPECT_LT(error_deg(), 0.1);

  // A failure leaves what was found; a centre that is none leaves the boxes.
  load_picture(folder.path("blank.png"));
  EXPECT_NE(message_of(form().Index), "");
  EXPECT_LT(error_deg(), 0.1);
  for (const auto* centre : {"bruker 0.5 0.5", "bruker a 0.5 0.6", "bruker 0.5 0.5 0", "bruker 40 0.5 0.6"}) {
    services.answers = {centre};
    services.messages.clear();
    form().MakerCentre.click();
    EXPECT_EQ(services.messages.size(), 1U) << centre;
    EXPECT_EQ(pattern().Text3.text(), "33") << centre;
  }
}

}  // namespace
}  // namespace zol
