// What the scripts of Pattern2, Zaxis and CameraParameters (scripts/kikuchi_window.zs, zone_map.zs, detector.zs) cannot
// show: failures, prompts, pictures, files, and which windows stand on the screen.
#include <gtest/gtest.h>

#include "analysis/window/pattern3_form.h"
#include "kikuchi/window/camera_parameters_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "kikuchi/window/zaxis_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class KikuchiWindows : public testing::Test {
 protected:
  KikuchiWindows() {
    program.start();
    services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry"};
    program.windows().use<Main1Form>().DATA_LOAD.click();
    program.windows().use<Main1Form>().Command10.click();
  }
  void draw() {
    form().Text5.set_text("1");
    form().Command8.click();
  }

  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  Pattern2Form& form() { return program.windows().use<Pattern2Form>(); }
  CrystalState& state = program.state();
  ScratchFolder folder;
};

TEST_F(KikuchiWindows, FailWithoutAnAxis) {
  EXPECT_EQ(failure_of([&] { form().Command2.click(); }).substr(0, 17), "division by zero:");
}

TEST_F(KikuchiWindows, NegativeIntensitiesAreDrawnAtNoLevel) {
  form().Text2.set_text("-32768");
  draw();
  const int drawn = form().List1.list_count();
  state.RefI(state.RefCount.value()) = -1000;  // the strongest, in view
  form().Check4.set_value(1);
  state.DisplayScale = 1e-30F;
  form().Command8.click();
  EXPECT_EQ(form().List1.list_count(), drawn - 1);
}

TEST_F(KikuchiWindows, SuperposedImageTurnsStrongLinesYellow) {
  form().ImageLoad.click();
  EXPECT_EQ(form().ImageMark, "ON");
  EXPECT_TRUE(form().Picture1.has_picture());
  draw();
  EXPECT_EQ(std::get<DrawnLine>(form().Picture1.drawing().back().what).colour, RGB(254, 254, 0));
  form().ImageClear.click();
  EXPECT_EQ(std::get<DrawnLine>(form().Picture1.drawing().back().what).colour, RGB(0, 0, 0)) << "drawn anew";
  EXPECT_EQ(form().ImageMark, "");
  EXPECT_FALSE(form().Picture1.has_picture());
}

TEST_F(KikuchiWindows, PromptsShowThePresentValue) {
  auto& main1 = program.windows().use<Main1Form>();
  auto& pattern3 = program.windows().use<Pattern3Form>();
  main1.Text15.set_text("-1");
  services.answers = {"7.5", "", "2", "1.5", "1", "1", "1", "x", "3"};
  for (MenuItem* item : {&form().Rpitch, &form().Rpitch, &form().Spitch, &form().Zpitch}) item->click();
  for (int i = 0; i < 2; ++i) pattern3.Imatch.click();
  (*pattern3.operation("EquivSet"))();
  main1.Command6.click();
  const std::string rotation = "] Input Rotation Angle Minimum (deg.)|Rotation Angle Pitch";
  const std::string matching = "] Input matching method (0:triangle and direction 1:only triangle)|Matching Method";
  const std::string dmin = "Input D-value Minimum|D-value Minimum";
  EXPECT_EQ(services.prompts,
            (std::vector<std::string>{
                "[5" + rotation, "[7.5" + rotation, "[3.7] Input Shift Angle  (deg.)|Shift Angle Pitch",
                "[1.4142] Input Zoom increment (ratio)|Zoom increment", "[0" + matching, "[1" + matching,
                "[0] Equivalent solution (0:Display 1:Omitt)|Equivale solution", dmin, dmin}));
}

TEST_F(KikuchiWindows, OpenAndClose) {
  draw();
  EXPECT_FALSE(program.windows().find("Zaxis")->visible()) << "made by the crystal load, not shown";
  form().Check2.set_value(1);
  form().Command8.click();
  EXPECT_TRUE(program.windows().find("Zaxis")->visible());
  EXPECT_EQ(program.windows().use<ZaxisForm>().Picture1.font_size(), 8);
  auto& camera = program.windows().use<CameraParametersForm>();
  services.answers = {folder.path("camera")};
  camera.Text7.set_text("70");
  camera.Command2.click();
  EXPECT_EQ(services.questions.back().initial_folder, ZOL_SOURCE_DIR "/data/ZOL");
  EXPECT_EQ(services.questions.back().file_name, ZOL_SOURCE_DIR "/data/ZOL/Camera_Parameters_New");
  EXPECT_EQ(folder.read("camera"), "37,0,0,40,1,70\r\n");
  EXPECT_EQ(state.CameraFile, folder.path("camera"));
  camera.show();
  camera.Command3.click();
  EXPECT_FALSE(camera.visible());
}

}  // namespace
}  // namespace zol
