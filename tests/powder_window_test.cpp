// The windows of the powder patterns on control objects, with the data files that ship.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "powder/window/dring_form.h"
#include "powder/window/xd_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Counts how often each bar was told to move.
struct BarView : WindowView {
  void window_created(Window&) override {}
  void window_shown(Window&) override {}
  void window_changed(Window&) override {}
  void window_unloaded(Window&) override {}
  void control_changed(Control& control) override {
    if (const auto* bar = dynamic_cast<const ProgressBar*>(&control)) values.push_back(bar->value());
  }
  void focus_wanted(Control&) override {}
  std::vector<Single> values;
};

class PowderWindowTest : public testing::Test {
 protected:
  PowderWindowTest() { program.start(); }

  /// NaCl with Cu K-alpha and its list down to 1 angstrom.
  void load_nacl() {
    const auto& items = main1().Combo1.items();
    main1().Combo1.pick(static_cast<int>(std::find(items.begin(), items.end(), "CuKa") - items.begin()));
    services.answers.emplace_back(ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry");
    main1().DATA_LOAD.click();
  }
  XdForm& open_xd() {
    main1().Command7.click();
    return program.windows().use<XdForm>();
  }
  DringForm& open_dring() {
    main1().Command8.click();
    return program.windows().use<DringForm>();
  }
  Main1Form& main1() { return program.windows().use<Main1Form>(); }
  static int lines_in(const Canvas& picture) {
    return static_cast<int>(std::count_if(picture.drawing().begin(), picture.drawing().end(), [](const auto& entry) {
      return std::holds_alternative<DrawnLine>(entry.what);
    }));
  }
  template <class Kind>
  static const Kind& last_of(const Canvas& picture) {
    const auto& list = picture.drawing();
    const auto found =
        std::find_if(list.rbegin(), list.rend(), [](const auto& e) { return std::holds_alternative<Kind>(e.what); });
    return std::get<Kind>(found->what);
  }
  static double number_in(const std::string& line, std::size_t place) {
    std::istringstream words(line);
    double number = 0;
    for (std::size_t i = 0; i <= place; ++i) words >> number;
    return number;
  }

  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
};

// JCPDS 5-628: positions for 1.5405, spacings, intensities (200 is 100).
struct HaliteLine {
  int square_sum;
  double two_theta, d, intensity;
};
constexpr std::array halite{HaliteLine{3, 27.33, 3.260, 13}, HaliteLine{4, 31.69, 2.821, 100},
                            HaliteLine{8, 45.45, 1.994, 55}, HaliteLine{12, 56.47, 1.628, 15},
                            HaliteLine{16, 66.22, 1.410, 6}, HaliteLine{20, 75.28, 1.261, 11},
                            HaliteLine{24, 83.97, 1.1515, 7}};

TEST_F(PowderWindowTest, XdNeedsAList) {
  main1().Command7.click();
  main1().Command8.click();
  EXPECT_EQ(program.windows().find("Xd"), nullptr);
  EXPECT_EQ(program.windows().find("Dring"), nullptr);
}

TEST_F(PowderWindowTest, XdListsThePeaksOfHalite) {
  load_nacl();
  const auto& form = open_xd();
  EXPECT_TRUE(form.visible());
  EXPECT_EQ(form.List1.items().front(), "2-Theta   d     I/Io");
  for (const auto& line : halite) {
    const double d = 5.6402 / std::sqrt(line.square_sum);
    const auto at = std::find_if(form.List1.items().begin() + 1, form.List1.items().end(), [d](const auto& text) {
      return std::abs(number_in(text, 1) - d) < 0.011;  // two decimals, and half a step of 0.1 degrees
    });
    ASSERT_NE(at, form.List1.items().end()) << d;
    EXPECT_NEAR(number_in(*at, 1), line.d, 0.015);
    const double shift = 2 * std::tan(line.two_theta / 2 * degree) * (1.542 / 1.5405 - 1) / degree;
    EXPECT_NEAR(number_in(*at, 0), line.two_theta + shift, 0.07) << "half a step and the second decimal";
    EXPECT_NEAR(number_in(*at, 2), line.intensity, 15) << "no texture, no absorption";
  }
}

TEST_F(PowderWindowTest, XdOpensWithItsSettingsEveryTime) {
  load_nacl();
  auto& form = open_xd();
  const auto settings = [&form] {
    return form.Text1.text() + "|" + form.Text2.text() + "|" + form.Text3.text() + "|" + form.Text4.text() + "|" +
           form.Text6.text() + "|" + form.Text7.text() + "|" + form.Text8.text();
  };
  EXPECT_EQ(settings(), "0|100.8876|.2|50|10000|10000|10000");
  EXPECT_EQ(form.Label12.caption(), " 1 1 1");
  EXPECT_EQ(form.Picture1.mouse_pointer(), MousePointer::CrossHair);
  EXPECT_EQ(form.mouse_pointer(), MousePointer::Default);
  const Single maximum = form.PeakMax;
  form.Text1.set_text("20");
  form.Text4.set_text("100");
  form.Text7.set_text("60");
  form.Command1.click();
  EXPECT_NE(form.PeakMax, maximum);
  EXPECT_EQ(form.Label12.caption(), " 1 30 1") << "(2/60)/5.6402/0.0002 = 29.5";
  open_xd();
  EXPECT_EQ(settings(), "0|100.8876|.2|50|10000|10000|10000");
  EXPECT_NEAR(form.PeakMax, maximum, 1) << "the box, unchanged, does not cut 2theta.max to 7 digits this time";
}

TEST_F(PowderWindowTest, XdTakesTheListAsItStands) {
  load_nacl();
  auto& form = open_xd();
  for (int r = 1; r <= state.RefCount.value(); ++r) {
    if (state.RefH(r) != 1 || state.RefK(r) != 1 || state.RefL(r) != 1) state.RefI(r) = 0;
  }
  (*form.operation("XDCalc"))();
  ASSERT_EQ(form.List1.list_count(), 2);
  EXPECT_EQ(form.List1.items()[1].substr(0, 13), "27.34    3.26");
  const std::string no_peak =
      "division by zero: the largest intensity (PeakMax, which \"Clear\" sets to 0) is 0, while \"CALC\" (Xd.Command1) "
      "was clicked";
  form.Text3.set_text("-0.2");
  EXPECT_EQ(failure_of([&] { form.Command1.click(); }), no_peak) << "the largest of negative samples does not count";
  form.Text3.set_text("0.2");
  for (int r = 1; r <= state.RefCount.value(); ++r) state.RefI(r) = 0;
  EXPECT_EQ(failure_of([&] { form.Command1.click(); }), no_peak);
}

TEST_F(PowderWindowTest, XdBoxesClearThePictureAndKeepThePattern) {
  load_nacl();
  auto& form = open_xd();
  const Single sample = form.Profile(312);
  for (TextBox* box : {&form.Text1, &form.Text2, &form.Text3, &form.Text4, &form.Text6, &form.Text7, &form.Text8}) {
    form.Command6.click();
    EXPECT_EQ(lines_in(form.Picture1), 1000);
    box->set_text(box->text() + " ");
    EXPECT_EQ(lines_in(form.Picture1), 0) << box->name();
  }
  form.Text6.set_text("");
  EXPECT_EQ(form.CellsP, 10000) << "an empty box leaves the size";
  form.Text3.set_text("");
  EXPECT_EQ(form.HalfWidth, 0);
  form.Text2.set_text("");
  EXPECT_EQ(form.Profile(312), sample);
  form.Command1.click();
  EXPECT_EQ(form.Text2.text() + form.Text3.text() + form.Text6.text(), "60.110000");
  EXPECT_EQ(form.TwoThetaMax, 60);
  EXPECT_EQ(form.HalfWidth, 0.1F);
}

TEST_F(PowderWindowTest, XdRedrawsAtAnotherHeight) {
  load_nacl();
  auto& form = open_xd();
  const Single maximum = form.PeakMax;
  const double last = last_of<DrawnLine>(form.Picture1).y2;
  form.Command6.click();
  EXPECT_EQ(form.DisplayMax, maximum / 2);
  EXPECT_EQ(lines_in(form.Picture1), 1000) << "on a clear picture";
  EXPECT_DOUBLE_EQ(last_of<DrawnLine>(form.Picture1).y2, 2 * last);
  form.Command7.click();
  form.Command7.click();
  EXPECT_EQ(form.DisplayMax, maximum * 2);
  form.Text5.type('0');
  EXPECT_EQ(form.DisplayMax, maximum * 2) << "typing alone does nothing";
  form.Text5.set_text("12.75 x");
  int key = key_enter;
  EXPECT_EQ(form.Text5.press_key(key), 0) << "swallowed";
  EXPECT_EQ(form.DisplayMax, 12.75F);
  EXPECT_EQ(form.Text5.text(), " 12");
  form.Text5.set_text("0");
  EXPECT_THROW((void)form.Text5.press_key(key_enter), RunFailure);
}

TEST_F(PowderWindowTest, XdDrawsOverWhatIsThereUntilCleared) {
  load_nacl();
  auto& form = open_xd();
  form.Command1.click();
  EXPECT_EQ(lines_in(form.Picture1), 2000);
  form.Command2.click();
  EXPECT_EQ(lines_in(form.Picture1), 0);
  EXPECT_EQ(form.PeakMax, 0);
  EXPECT_EQ(failure_of([&] { form.Picture1.press(30, 0.5); }),
            "division by zero: the largest intensity (PeakMax, which \"Clear\" sets to 0) is 0, while Xd.Picture1 was "
            "pressed");
  form.Command6.click();
  EXPECT_EQ(lines_in(form.Picture1), 1000) << "the old pattern";
}

TEST_F(PowderWindowTest, XdReadsOutAtAClick) {
  load_nacl();
  auto& form = open_xd();
  form.Picture1.press(0, 0.5);
  EXPECT_EQ(form.Label5.caption(), "") << "nothing at exactly 0";
  form.Picture1.press(31.7, 0.5);
  EXPECT_EQ(form.Label5.caption(), "2-Theta=31.70");
  EXPECT_EQ(form.Label6.caption(), "d(A)=2.823") << "1.542 / 2 / sin(15.85 degrees)";
  const std::string height = form.Label7.caption();
  EXPECT_EQ(height, "I(%)=100.00");
  form.Command6.click();
  form.Picture1.press(31.7, 0.1);
  EXPECT_EQ(form.Label7.caption(), height) << "the arrows don't change it";
  EXPECT_EQ(failure_of([&] { form.Picture1.press(101, 0.1); }).substr(0, 21), "index 1001 of Profile");
  for (TextBox* end : {&form.Text1, &form.Text2}) end->set_text("30");
  form.Command1.click();
  EXPECT_EQ(lines_in(form.Picture1), 1000) << "equal ends are listed";
  EXPECT_EQ(failure_of([&] { form.Picture1.press(30, 0.1); }).substr(0, 58),
            "division by zero: the width of the pattern in 2-theta is 0");
}

TEST_F(PowderWindowTest, CrystallitesEndTheRunWhereTheirNumbersDo) {
  load_nacl();
  auto& form = open_xd();
  form.Text6.set_text("0");
  EXPECT_EQ(failure_of([&] { form.Command1.click(); }),
            "division by zero: the crystallite size P is 0, while \"CALC\" (Xd.Command1) was clicked");
  for (TextBox* box : {&form.Text6, &form.Text7, &form.Text8}) box->set_text("10");
  EXPECT_EQ(failure_of([&] { form.Command1.click(); }),
            "the interference grid has 100 x 100 x 100 points, at most 32767 are possible: P, Q or R is too small, "
            "while \"CALC\" (Xd.Command1) was clicked");
  auto& rings = open_dring();
  state.RefCount = 2;  // 8 million points each
  for (TextBox* box : {&rings.Text6, &rings.Text7, &rings.Text8}) box->set_text("10");
  rings.Command1.click();
  EXPECT_EQ(rings.Label6.caption(), " 100 100 100") << "rings form no product";
  rings.Text8.set_text("0");
  EXPECT_THROW(rings.Command1.click(), RunFailure);
}

TEST_F(PowderWindowTest, SmallDminEndsTheRunWhereTheBinsDo) {
  load_nacl();
  open_xd();
  main1().Text15.set_text("0.2");  // without a new list
  EXPECT_NO_THROW(program.windows().use<XdForm>().Command1.click());
  EXPECT_EQ(failure_of([&] { open_dring(); }),
            "the histogram would end at bin 34999, the last one possible is 32767: Dmin is too small, while "
            "\"Electron Debye-ring\" (Main1.Command8) was clicked");
  main1().Text15.set_text("0.157");
  EXPECT_THROW(open_xd(), RunFailure);
  main1().Text15.set_text("0");
  EXPECT_EQ(failure_of([&] { open_xd(); }),
            "division by zero: Dmin is 0, while \"Powder XRD Pattern\" (Main1.Command7) was clicked");
  main1().Text15.set_text("2.5");  // 111 and 200 alone lie in the bins, 220 at bin 2507 of 2000, the last ones beyond
  EXPECT_EQ(failure_of([&] { open_xd(); }).substr(0, 6), "index ");
}

TEST_F(PowderWindowTest, BarsShowBothLoops) {
  BarView view;
  load_nacl();
  auto& form = open_xd();
  form.set_view(&view);
  form.Command1.click();
  EXPECT_EQ(std::count(view.values.begin(), view.values.end(), 168), 2) << "the last reflection, then the new range";
  EXPECT_GT(view.values.size(), 168U + 10U);
  EXPECT_EQ(view.values.back(), 1000);
  EXPECT_EQ(form.ProgressBar1.minimum(), 0);
  EXPECT_EQ(form.ProgressBar1.maximum(), 1000);
  form.set_view(nullptr);
}

TEST_F(PowderWindowTest, XdSavesAndPrints) {
  const ScratchFolder folder;
  load_nacl();
  auto& form = open_xd();
  services.answers = {"", folder.path("nacl"), folder.path("nacl.txt")};
  form.Command3.click();
  EXPECT_EQ(folder.entries(), 0U) << "cancelled";
  form.Command3.click();
  form.Text4.set_text("20");
  form.Command3.click();
  EXPECT_EQ(folder.entries(), 2U);
  const std::string pattern = folder.read("nacl.XDP");
  EXPECT_NE(pattern.find("\"Gratio\",50\r\n"), std::string::npos);
  EXPECT_NE(folder.read("nacl.txt").find("\"Gratio\",20\r\n"), std::string::npos) << "the field as it stands";
  EXPECT_EQ(folder.read("nacl.txt").substr(200), pattern.substr(200)) << "with the old curve";
  EXPECT_TRUE(services.questions.back().save);
  form.Command5.click();
  EXPECT_EQ(services.printed, std::vector<std::string>{"window " + form.caption()});
}

TEST_F(PowderWindowTest, DringOpensWithTheWholeNumberOfItsMaximum) {
  load_nacl();
  auto& form = open_dring();
  EXPECT_EQ(form.Text2.text() + "|" + form.Text3.text() + "|" + form.Text6.text(), "1|.003|10000");
  EXPECT_EQ(form.DisplayMax, std::floor(form.DisplayMax)) << "cut by its box";
  EXPECT_EQ(form.Text5.text(), Str(form.DisplayMax));
  EXPECT_EQ(lines_in(form.Picture1), 1000);
  EXPECT_EQ(form.List1.items().front(), "d     I/Io");
  EXPECT_EQ(form.Picture1.mouse_pointer(), MousePointer::CrossHair);
  EXPECT_EQ(form.Picture2.mouse_pointer(), MousePointer::CrossHair);
  EXPECT_EQ(form.Picture2.user_scale(), (UserScale{0, 1, 1, 0})) << "the beam in the lower left corner";
  const auto& beam = last_of<DrawnPoint>(form.Picture2);
  EXPECT_EQ(beam.colour, RGB(255, 0, 0));
  EXPECT_FALSE(last_of<DrawnCircle>(form.Picture2).fill.has_value());
  form.Command1.click();
  EXPECT_EQ(lines_in(form.Picture1), 2000) << "the same text clears nothing";
  EXPECT_EQ(form.List1.list_count(), program.windows().use<DringForm>().List1.list_count());
}

TEST_F(PowderWindowTest, DringRingsFollowTheirChecks) {
  load_nacl();
  auto& form = open_dring();
  const auto brightest = [&form] {
    Colour level = form.Check3.checked() ? RGB(255, 255, 255) : 0;
    double radius = 0;
    for (const auto& entry : form.Picture2.drawing()) {
      const auto* ring = std::get_if<DrawnCircle>(&entry.what);
      if (ring == nullptr || (form.Check3.checked() ? ring->colour >= level : ring->colour <= level)) continue;
      level = ring->colour;
      radius = ring->radius;
    }
    return std::pair(level, radius);
  };
  EXPECT_EQ(brightest().first, RGB(255, 255, 255));
  EXPECT_NEAR(brightest().second, 1 / 2.8201, 0.001) << "200";
  const double share = form.Profile(307) / form.DisplayMax;  // beside 111
  for (CheckBox* box : {&form.Check1, &form.Check2, &form.Check3}) {
    form.Command1.click();
    box->click();
    EXPECT_EQ(form.DisplayMax, 0) << box->name();
    EXPECT_TRUE(lines_in(form.Picture1) == 0 && lines_in(form.Picture2) == 0);
  }
  form.Command1.click();
  EXPECT_EQ(form.Picture2.user_scale(), (UserScale{-1, 1, 1, -1}));
  EXPECT_EQ(form.Picture2.back_colour(), RGB(255, 255, 255));
  EXPECT_EQ(brightest().first, 0) << "black on white";
  EXPECT_NEAR(form.Profile(307) / form.DisplayMax, std::sqrt(share), 0.02 * std::sqrt(share));
}

TEST_F(PowderWindowTest, DringArrowsCalculateAnewAndKeepTheScale) {
  load_nacl();
  auto& form = open_dring();
  const Single maximum = form.DisplayMax;
  const auto peak = form.List1.items()[2];
  EXPECT_EQ(number_in(peak, 1), 100);
  form.Command6.click();
  EXPECT_EQ(form.DisplayMax, std::floor(maximum / 2));
  EXPECT_NEAR(number_in(form.List1.items()[2], 1), 200, 1) << "per cents follow the scale";
  form.Command7.click();
  form.Command7.click();
  EXPECT_NEAR(form.DisplayMax, 2 * maximum, 4);
  form.Command2.click();
  EXPECT_EQ(form.DisplayMax, 0);
  EXPECT_EQ(failure_of([&] { form.Picture1.press(0.3, 0.5); }).substr(0, 16), "division by zero");
  form.Command6.click();
  EXPECT_NEAR(form.DisplayMax, maximum, 1) << "taken anew";
  form.Text5.set_text("-3000");
  form.Command1.click();
  EXPECT_EQ(last_of<DrawnCircle>(form.Picture2).colour, 0) << "a level below 0 is cut";
  form.Text5.set_text("");
  form.Text3.set_text("-1");
  form.Command1.click();
  EXPECT_LT(form.DisplayMax, -1) << "the largest of negative samples";
  form.Text3.set_text("0.003");
  form.Text5.set_text("0.5");
  EXPECT_EQ(lines_in(form.Picture1), 0);
  EXPECT_EQ(failure_of([&] { form.Command1.click(); }).substr(0, 16), "division by zero") << "0.5 is shown as 0";
}

TEST_F(PowderWindowTest, DringReadsOutAtAClick) {
  load_nacl();
  auto& form = open_dring();
  form.Picture1.press(0, 0.4);
  form.Picture2.press(0, 0);
  EXPECT_EQ(form.Label4.caption() + form.Label1.caption(), "") << "nothing at exactly 0";
  form.Picture1.press(0.354, 0.4);
  EXPECT_EQ(form.Label4.caption(), "d(A)=2.825");
  EXPECT_EQ(form.Label5.caption(), "I(%)=100.00");
  form.Picture2.press(-0.3, 0.4);
  EXPECT_EQ(form.Label1.caption(), "d(A)=2.000");
  EXPECT_EQ(failure_of([&] { form.Picture1.press(1.2, 0.4); }).substr(0, 21), "index 1200 of Profile");
  form.Text2.set_text("0");
  form.Command1.click();
  EXPECT_EQ(failure_of([&] { form.Picture1.press(0.3, 0.4); }).substr(0, 55),
            "division by zero: the width of the pattern in 1/d is 0,");
}

TEST_F(PowderWindowTest, DringBoxesClearTheirPictures) {
  load_nacl();
  auto& form = open_dring();
  const auto rings = [&form] { return form.Picture2.drawing().size(); };
  form.Text7.set_text("9000");
  EXPECT_EQ(lines_in(form.Picture1), 0);
  EXPECT_GT(rings(), 1000U) << "a size clears the profile only";
  form.Text7.set_text("");
  EXPECT_EQ(form.CellsQ, 9000);
  form.Text3.set_text("");
  EXPECT_LT(rings(), 3U);
  form.Command1.click();
  EXPECT_EQ(form.Text3.text(), ".01");
  form.Text2.set_text(".5");
  EXPECT_EQ(form.DStarMax, 0.5F);
  EXPECT_LT(rings(), 3U);
  form.Command1.click();
  EXPECT_EQ(last_of<DrawnCircle>(form.Picture2).radius, 0.5);
}

// The real program, whose pictures have pixels.
TEST(PowderScript, SavesPicturesAndFiles) {
  const ScratchFolder folder;
  const auto script =
      folder.write("a.zs", "choose Main1.Combo1 CuKa\nanswer \"" ZOL_SOURCE_DIR
                           "/data/ZOLDATA/NaCl.cry\"\nclick Main1.DATA_LOAD\n"
                           "click Main1.Command7\nanswer " +
                               folder.path("x") +
                               "\nclick Xd.Command4\nclick Xd.Command5\nprinter\n"
                               "cancel\nclick Xd.Command4\nclick Main1.Command8\nanswer " +
                               folder.path("rings.Bmp") + "\nclick Dring.Command3\nanswer " + folder.path("rings") +
                               "\nclick Dring.Command4\nclick Dring.Command5\n"
                               "printer\n");
  const std::string command = std::string(ZOL_SCRIPT) + " " + script + " >" + folder.path("out") + " 2>&1";
  ASSERT_EQ(std::system(command.c_str()), 0) << folder.read("out");
  EXPECT_EQ(folder.read("out"), "window NaCl.cry\nwindow NaCl.cry\n");
  EXPECT_EQ(folder.read("x.BMP").substr(0, 2), "BM");
  const std::string rings = folder.read("rings.Bmp");
  EXPECT_EQ(rings.substr(0, 2), "BM");
  EXPECT_EQ(static_cast<unsigned char>(rings[18]) + 256 * static_cast<unsigned char>(rings[19]), 560) << "width";
  EXPECT_EQ(folder.read("rings.EDP").substr(0, 12), "0,0\r\n.001,0\r");
}

}  // namespace
}  // namespace zol
