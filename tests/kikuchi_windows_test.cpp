// Pattern2, Zaxis and CameraParameters on control objects.
#include <gtest/gtest.h>

#include <cmath>

#include "analysis/window/pattern3_form.h"
#include "kikuchi/window/camera_parameters_form.h"
#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/pattern2_form.h"
#include "kikuchi/window/zaxis_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/main_menu_form.h"
#include "shell/program/program.h"
#include "tests/cartesian_cell.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class KikuchiWindows : public testing::Test {
 protected:
  KikuchiWindows() {
    program.start();
    main1().Text15.set_text("1.2");
    services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry"};
    main1().DATA_LOAD.click();
    main1().Command10.click();
  }
  Main1Form& main1() { return program.windows().use<Main1Form>(); }
  Pattern2Form& form() { return program.windows().use<Pattern2Form>(); }
  ZaxisForm& map() { return program.windows().use<ZaxisForm>(); }
  void draw(const char* u, const char* v, const char* w) {
    form().Text3.set_text(u);
    form().Text4.set_text(v);
    form().Text5.set_text(w);
    form().Command8.click();
  }
  [[nodiscard]] Cartesian axis() const { return CartesianCell(state).direction(state.ZoneU, state.ZoneV, state.ZoneW); }
  template <class Kind>
  [[nodiscard]] static int count(const Canvas& picture) {
    int found = 0;
    for (const auto& entry : picture.drawing()) found += std::holds_alternative<Kind>(entry.what) ? 1 : 0;
    return found;
  }

  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
  ScratchFolder folder;
};

TEST_F(KikuchiWindows, WalkThereAndBackReturns) {
  draw("1", "1", "3");
  const auto start = axis();
  for (const int there : {0, 1}) {
    form().Command1(there).click();
    EXPECT_NEAR(angle_deg(axis(), start), 3.7, 0.2) << "a tenth of the half width";
    form().Command1(there + 2).click();
    EXPECT_LT(angle_deg(axis(), start), 0.3);
  }
  EXPECT_EQ(state.PatternFlag, 0);
  EXPECT_EQ(state.PatternAngleStep, 0);
}

TEST_F(KikuchiWindows, ClickFindsAndDoubleClickTakesOver) {
  draw("0", "0", "1");
  form().Picture1.press(0.2, 0.1);
  EXPECT_EQ(state.ZoneW, 1) << "a click does not transfer";
  EXPECT_NE(form().Text6.text(), "");
  form().Picture1.double_click();
  EXPECT_EQ(plain_text(state.ZoneU), form().Text6.text());
  EXPECT_NEAR(angle_deg(axis(), {0, 0, 1}), std::atan(std::hypot(0.2, 0.1)) * 180 / std::numbers::pi, 0.15);
}

TEST_F(KikuchiWindows, CalcWithoutAnAxisDoesNothing) {
  form().Command8.click();
  EXPECT_TRUE(form().Picture1.drawing().empty());
  EXPECT_EQ(failure_of([&] { form().Command2.click(); }).substr(0, 17), "division by zero:");
}

struct LimitCase {
  const char* x_shift;
  const char* y_shift;
  const char* typed;
  const char* shown;
};
TEST_F(KikuchiWindows, HalfWidthIsLimitedByTheShifts) {
  for (const auto& row :
       {LimitCase{"0", "0", "84", "84"}, LimitCase{"0", "0", "90", "85"}, LimitCase{"-10", "0", "80", "75"},
        LimitCase{"10", "0", "80", "75"}, LimitCase{"0", "-20", "70", "65"}, LimitCase{"0", "20", "70", "65"},
        LimitCase{"-10", "20", "80", "65"}}) {
    form().Text1.set_text("1");
    form().Text14.set_text(row.x_shift);
    form().Text15.set_text(row.y_shift);
    form().Text1.set_text(row.typed);
    EXPECT_EQ(form().Text1.text(), row.shown) << row.x_shift << ' ' << row.y_shift;
    EXPECT_EQ(plain_text(state.CamAcquisition), row.shown);
  }
}

TEST_F(KikuchiWindows, SmallHalfWidthBecomesTheDefault) {
  form().Text1.set_text("2.9");
  draw("0", "0", "1");
  EXPECT_EQ(form().Text1.text(), "37");
  form().Text1.set_text("3");
  form().Command8.click();
  EXPECT_EQ(form().Text1.text(), "3");
}

TEST_F(KikuchiWindows, BandNumberFallsBackToAll) {
  form().Text19.set_text("12");
  EXPECT_EQ(state.KikuchiRefLimit, 12);
  form().Text19.set_text("");
  EXPECT_EQ(state.KikuchiRefLimit, state.RefCount);
}

TEST_F(KikuchiWindows, VoltageActsWhenTheBoxIsLeft) {
  form().Text21.set_text("15");
  EXPECT_EQ(state.AccVoltage, 20);
  form().Text21.leave();
  EXPECT_EQ(state.AccVoltage, 15);
  EXPECT_EQ(main1().Combo1.text(), "15");
  EXPECT_EQ(main1().Text16.text(), ".1");
  EXPECT_EQ(program.windows().use<Pattern3Form>().Text5.text(), "15");
  form().Text21.set_text("0");
  form().Text21.leave();
  EXPECT_EQ(main1().Text16.text(), ".1");
}

TEST_F(KikuchiWindows, ListedBandIsMarkedInRed) {
  draw("0", "0", "1");
  const int drawn = count<DrawnLine>(form().Picture1);
  EXPECT_EQ(drawn, form().List1.list_count());
  form().List1.pick(2);
  EXPECT_EQ(count<DrawnLine>(form().Picture1), drawn + 1);
  const auto& last = std::get<DrawnLine>(form().Picture1.drawing().back().what);
  EXPECT_EQ(last.colour, RGB(255, 0, 0));
  EXPECT_EQ(state.MarkH, state.BandHKL(2, 0));
}

TEST_F(KikuchiWindows, MarksAndGridAreDrawnWhenChecked) {
  form().Check5.set_value(1);
  form().Check6.set_value(1);
  form().Text9.set_text("10");
  draw("0", "0", "1");
  EXPECT_EQ(count<DrawnCircle>(form().Picture1), 3);
  const int before = count<DrawnLine>(form().Picture1);
  form().Command17.click();
  EXPECT_TRUE(form().Check1.checked());
  EXPECT_EQ(count<DrawnLine>(form().Picture1), before + 16);
  EXPECT_NEAR(form().Picture1.user_scale().right, 0.7536, 1e-3) << "the scale of the pattern is back";
}

TEST_F(KikuchiWindows, GreyScaleStaysWhileFixed) {
  draw("0", "0", "1");
  const Single scale = state.DisplayScale;
  form().Command14.click();
  EXPECT_TRUE(form().Check4.checked());
  EXPECT_FLOAT_EQ(state.DisplayScale, scale / std::sqrt(2.0F));
  form().Check4.set_value(0);
  form().Command8.click();
  EXPECT_EQ(state.DisplayScale, scale);
}

TEST_F(KikuchiWindows, NegativeIntensitiesAreDrawnAtNoLevel) {
  draw("0", "0", "1");
  const int drawn = form().List1.list_count();
  state.RefI(state.RefCount.value()) = -1000;  // the strongest, in view
  form().Check4.set_value(1);
  state.DisplayScale = 1e-30F;
  form().Text2.set_text("-32768");
  form().Command8.click();
  EXPECT_EQ(form().List1.list_count(), drawn - 1);
}

TEST_F(KikuchiWindows, SuperposedImageTurnsStrongLinesYellow) {
  form().ImageLoad.click();
  EXPECT_EQ(form().ImageMark, "ON");
  draw("0", "0", "1");
  bool strongest = false;
  for (const auto& entry : form().Picture1.drawing()) {
    if (const auto* line = std::get_if<DrawnLine>(&entry.what))
      strongest = strongest || line->colour == RGB(254, 254, 0);
  }
  EXPECT_TRUE(strongest);
  form().ImageClear.click();
  EXPECT_EQ(form().ImageMark, "");
  EXPECT_FALSE(form().Picture1.has_picture());
}

TEST_F(KikuchiWindows, PromptsShowThePresentValue) {
  services.answers = {"7.5", "", "2", "1.5"};
  form().Rpitch.click();
  form().Rpitch.click();
  form().Spitch.click();
  form().Zpitch.click();
  EXPECT_EQ(services.prompts,
            (std::vector<std::string>{"[5] Input Rotation Angle Minimum (deg.)|Rotation Angle Pitch",
                                      "[7.5] Input Rotation Angle Minimum (deg.)|Rotation Angle Pitch",
                                      "[3.7] Input Shift Angle  (deg.)|Shift Angle Pitch",
                                      "[1.4142] Input Zoom increment (ratio)|Zoom increment"}));
  EXPECT_EQ(form().RotationPitch, 7.5F);
  EXPECT_EQ(form().ShiftPitch, 2);
  EXPECT_EQ(form().ZoomRatio, 1.5F);
}

TEST_F(KikuchiWindows, CopyPrintsTheWindowOfTheSpotPattern) {
  form().Command5.click();
  EXPECT_EQ(services.printed, std::vector<std::string>{"window NaCl.cry"});
}

TEST_F(KikuchiWindows, MapFollowsThePattern) {
  draw("0", "0", "1");
  EXPECT_EQ(program.windows().find("Zaxis")->visible(), false) << "made by the crystal load, not shown";
  form().Check2.set_value(1);
  form().Command8.click();
  EXPECT_TRUE(map().visible());
  // 26 directions without the axis and its opposite; 8 of them with w < 0 lie behind the equator
  EXPECT_EQ(count<DrawnText>(map().Picture1), 16);
  map().Check1.click();
  EXPECT_EQ(count<DrawnText>(map().Picture1), 24);
  EXPECT_EQ(map().Label_theta(0).caption(), "0") << "[100] lies on the equator";
  const int labels = count<DrawnText>(form().Picture1);
  map().Check3.click();
  EXPECT_GT(count<DrawnText>(form().Picture1), labels);
}

TEST_F(KikuchiWindows, MapRoundsItsTiltAndAddsItsAnglesInDouble) {
  form().Check2.set_value(1);
  draw("1", "1", "0");
  state.CamNormal = -70;
  map().Option2.click();
  EXPECT_EQ(map().Label_theta(1).caption(), "65.1") << "the tilt is a Single";
  form().Text1.set_text("54");
  form().Text14.set_text("30.000075");
  state.CamAcquisition = 60;  // the sum is below a right angle, its nearest Single above
  const auto labels = count<DrawnText>(form().Picture1);
  map().Check3.click();
  EXPECT_EQ(count<DrawnText>(form().Picture1), labels + 8);
}

TEST_F(KikuchiWindows, TypedDirectionKeepsTheMap) {
  draw("1", "1", "2");
  map().Text4.set_text("1");
  const auto drawn = map().Picture1.drawing().size();
  map().Text5.set_text("1");
  EXPECT_GT(map().Picture1.drawing().size(), drawn);
  EXPECT_EQ(map().Text8.text(), "35.3") << "[110] stands 54.74 degrees from [112]";
  EXPECT_EQ(map().KeepMap, 0);
  map().Text6.set_text("2");
  EXPECT_EQ(map().Text8.text(), "35.3") << "the axis itself leaves the boxes";
}

TEST_F(KikuchiWindows, CameraFileGoesToBoxesAndBack) {
  auto& camera = program.windows().use<CameraParametersForm>();
  camera.Text2.set_text("2.5");
  camera.Text7.set_text("70");
  EXPECT_EQ(state.CamXShift, 2.5F);
  services.answers = {folder.path("camera"), folder.write("other", "30,1,2,35,1.1,5\r\n"), ""};
  camera.Command2.click();
  EXPECT_EQ(folder.read("camera"), "37,2.5,0,40,1,70\r\n");
  camera.Command1.click();
  EXPECT_EQ(state.CameraFile, folder.path("other"));
  EXPECT_EQ(camera.Text6.text(), "1.1");
  EXPECT_EQ(state.CamDetector, 35);
  camera.Command1.click();
  EXPECT_EQ(state.CameraFile, folder.path("other"));
  camera.show();
  camera.Command3.click();
  EXPECT_FALSE(camera.visible());
}

}  // namespace
}  // namespace zol
