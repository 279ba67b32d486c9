// The windows Utility and AtomDistance on control objects, with the data files that ship.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "calculators/window/atom_distance_form.h"
#include "calculators/window/utility_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/main_menu_form.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"
#include "tests/focus_view.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class CalculatorsTest : public testing::Test {
 protected:
  CalculatorsTest() {
    program.windows().set_view(&view);
    program.start();
  }
  void load(const char* name) {
    services.answers.push_back(std::string(ZOL_SOURCE_DIR "/data/ZOLDATA/") + name);
    program.windows().use<Main1Form>().DATA_LOAD.click();
  }
  UtilityForm& utility() { return program.windows().use<UtilityForm>(); }

  FakeServices services;
  FocusView view;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
};

TEST_F(CalculatorsTest, EnterMovesOn) {
  const std::vector<std::vector<std::string>> rows = {
      {"Text1", "Text2", "Text3", "Text4"},
      {"Text9", "Text8", "Text7", "Text6"},
      {"Text5(0)", "Text5(1)", "Text5(2)", "Text5(3)", "Text5(4)", "Text5(5)", "Text5(6)", "Text5(7)", "Text5(8)"},
      {"Text10", "Text11", "Text12", "Text13", "Text14", "Text15"},
      {"Text46", "Text47", "Text48", "Text49", "Text50", "Text51"}};
  for (const auto& row : rows) {
    view.wanted = {row.front()};
    for (const auto& name : row) {
      auto& box = dynamic_cast<TextBox&>(*utility().find(name));
      EXPECT_EQ(box.press_key('7'), '7') << name;
      const bool calculates = name == "Text4" || name == "Text6";  // at the end of their rows
      EXPECT_EQ(calculates ? 0 : box.press_key(key_enter), 0) << name;
    }
    EXPECT_EQ(view.wanted, row);
  }
}

TEST_F(CalculatorsTest, BothDirectionBlocksShareTheRotations) {
  auto& form = utility();
  form.Text2.set_text("10");
  form.Text4.set_text("20");
  for (auto* box : {&form.Text9, &form.Text7}) box->set_text("1");
  form.Text8.set_text("0");
  form.Text6.set_text("30");
  EXPECT_EQ(form.Rotate2, 20) << "the boxes are read at the calculation alone";
  EXPECT_EQ(form.Text6.press_key(key_enter), 0);
  EXPECT_EQ(form.Rotate1, 0);
  EXPECT_EQ(form.Rotate2, 30);
  EXPECT_EQ(form.Text4.text(), "20") << "still shows the old one";
  // Azimuth 30, polar angle 50, turned by 0 and 30 degrees about x: azimuths 30 and 0.89 (projected by hand:
  // y' = sin p sin a cos r - cos p sin r = 0.01031, x = sin p cos a = 0.66341; atan(y'/x) = 0.8906).
  form.Text1.set_text("210");
  form.Text3.set_text("0.89");
  form.Command1.click();
  EXPECT_EQ(form.Text1.text(), " 30") << "folded";
  EXPECT_EQ(form.Phi1, 30);
  EXPECT_NEAR(Val(form.Label6.caption().substr(8)), 40, 0.021) << "the elevation, 90 less the polar angle";
  form.Text4.set_text("20.0");
  EXPECT_EQ(form.LengthRotate2, 20);
  form.Text9.set_text("");
  EXPECT_EQ(failure_of([&] { form.Command3.click(); }),
            "division by zero: length_1 is 0, while \"Calc.\" (Utility.Command3) was clicked");
}

TEST_F(CalculatorsTest, InverseMatrixShowsHowFarItCame) {
  auto& form = utility();
  for (int i = 0; i < 9; ++i) form.Text5(i).set_text("1");
  form.Command2.click();
  EXPECT_EQ(services.messages, std::vector<std::string>{"DET=0|ERROR"});
  // After the first column nothing is left in the second one.
  const std::array inverse{" 1", " 1", " 1", "-1", " 0", " 0", "-1", " 0", " 0"};
  for (int i = 0; i < 9; ++i) EXPECT_EQ(form.Label10(i).caption(), inverse[static_cast<std::size_t>(i)]) << i;
}

TEST_F(CalculatorsTest, EquivalentVectorGoesIntoTheOtherBoxes) {
  auto& form = utility();
  form.Text10.set_text("1");
  EXPECT_NE(failure_of([&] { form.Command4.click(); }).find("no cell or no vector"), std::string::npos);
  load("Rutile.cry");  // tetragonal: [1 0 1] has h : l = a^2 : c^2 = 706.8 : 293.2
  form.Text12.set_text("1");
  form.Command4.click();
  EXPECT_EQ(form.Text13.text() + form.Text14.text() + form.Text15.text(), " 706 0 293");
  form.Command5.click();
  EXPECT_NEAR(Val(form.Text10.text()), 500, 1);
  EXPECT_NEAR(Val(form.Text12.text()), 500, 1);
}

TEST_F(CalculatorsTest, AngleFollowsEveryChange) {
  auto& form = utility();
  program.windows().use<MainMenuForm>().Show_Utility.click();
  EXPECT_TRUE(form.visible());
  form.Text46.set_text("1");
  form.Text49.set_text("1");
  EXPECT_EQ(form.Text52.text(), "") << "no crystal";
  load("Titanium.cry");  // hexagonal
  form.Text49.set_text("1 ");
  EXPECT_EQ(form.Text52.text(), "0");
  form.Text49.set_text("0");
  EXPECT_EQ(form.Text52.text(), "0") << "a vector without length leaves it";
  form.Text50.set_text("1");
  const auto angle = [&form] { return Val(form.Text52.text()); };
  EXPECT_NEAR(angle(), -60, 1e-3) << "120";
  EXPECT_GT(form.Text52.text().size(), 12U) << "digits of a Double";
  form.Option2.click();
  EXPECT_NEAR(angle(), 60, 1e-3);
  form.Option3.click();
  EXPECT_NEAR(angle(), 120, 1e-3);
  form.Text47.set_text("1");
  form.Text48.set_text("1");
  form.Text51.set_text("1");
  form.Option1.click();  // [1 1 1] and [0 1 1], c/a = 1.587: cos = (1/2 + 2.518)/(sqrt(3.518) sqrt(3.518))
  const double ratio = double{program.state().CellC} / double{program.state().CellA};
  EXPECT_NEAR(std::cos(angle() * degree), (0.5 + ratio * ratio) / (1 + ratio * ratio), 1e-5);
}

TEST_F(CalculatorsTest, DistancesOfRutile) {
  load("Rutile.cry");
  auto& distances = program.windows().use<AtomDistanceForm>();
  distances.Command1.click();
  EXPECT_EQ(distances.List1.items(), (std::vector<std::string>(2, "------------------------"))) << "no limit yet";
  distances.Text1.set_text("1.99");
  EXPECT_EQ(distances.List1.list_count(), 2) << "only the calculation fills the list";
  EXPECT_EQ(distances.Text1.press_key(key_enter), 0);
  // Four oxygens at sqrt(2 (1/2 - u)^2 a^2 + c^2/4) = 1.9485 and two at sqrt(2) u a = 1.9800, a 4.593659, c 2.958682,
  // u 0.30479; each oxygen has three titaniums.
  const auto& items = distances.List1.items();
  const auto count = [&items](const std::string& line) { return std::count(items.begin(), items.end(), line); };
  EXPECT_EQ(count("     Ti      (Ti) -      O      (O)   1.9485"), 4);
  EXPECT_EQ(count("     Ti      (Ti) -      O      (O)   1.9800"), 2);
  EXPECT_EQ(count("      O      (O) -     Ti     (Ti)   1.9485"), 2);
  EXPECT_EQ(count("      O      (O) -     Ti     (Ti)   1.9800"), 1);
  EXPECT_EQ(items[6], "------------------------");

  load("NaCl.cry");
  EXPECT_EQ(items.size(), 11U) << "the list does not follow the crystal";
  distances.Text1.set_text("2.9");
  distances.Command1.click();
  EXPECT_EQ(count("     Na      (Na) -     Cl     (Cl)   2.8201"), 6) << "a / 2";
}

}  // namespace
}  // namespace zol
