// The windows of the powder patterns: their pictures, bars and files. The rest is walked through by tests/scripts.
#include <algorithm>
#include <cstdlib>

#include "powder/window/dring_form.h"
#include "powder/window/xd_form.h"
#include "tests/program_test.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using PowderWindows = ProgramTest;

TEST_F(PowderWindows, NeedAList) {
  main1().Command7.click();
  main1().Command8.click();
  EXPECT_EQ(program.windows().find("Xd"), nullptr);
  EXPECT_EQ(program.windows().find("Dring"), nullptr);
}

TEST_F(PowderWindows, XdDrawsOverWhatIsThereUntilCleared) {
  load("NaCl.cry");
  main1().Command7.click();
  auto& form = window<XdForm>();
  EXPECT_TRUE(form.visible());
  EXPECT_EQ(form.Picture1.mouse_pointer(), MousePointer::CrossHair);
  for (const double height : {1, 2}) {
    const auto lines = drawn<DrawnLine>(form.Picture1);
    ASSERT_EQ(lines.size(), 1000U);
    EXPECT_EQ(form.Picture1.user_scale(), (UserScale{0, 1.01, form.TwoThetaMax, -0.01}));
    EXPECT_EQ(lines.front().x1, 0);
    EXPECT_DOUBLE_EQ(lines.front().y1, height * form.Profile(0) / form.PeakMax);
    EXPECT_EQ(lines.back().x2, form.TwoThetaMax);
    EXPECT_DOUBLE_EQ(lines.back().y2, height * form.Profile(1000) / form.PeakMax);
    form.Command6.click();
  }
  view.pointers.clear();
  view.bars.clear();
  view.ranges.clear();
  form.Command1.click();
  EXPECT_EQ(drawn<DrawnLine>(form.Picture1).size(), 2000U);
  EXPECT_EQ(view.pointers, (std::vector{MousePointer::Hourglass, MousePointer::Default}));
  EXPECT_EQ(std::count(view.bars.begin(), view.bars.end(), 168), 2) << "the last reflection, then the new range";
  EXPECT_GT(view.bars.size(), 168U + 10U);
  EXPECT_EQ(view.bars.back(), 1000);
  EXPECT_EQ(view.ranges, (std::vector<std::pair<Single, Single>>{{1, 168}, {0, 1000}}));
  form.Command2.click();
  form.Command6.click();
  EXPECT_EQ(drawn<DrawnLine>(form.Picture1).size(), 1000U) << "the old pattern";
  EXPECT_EQ(form.Picture1.describe_place(3, 0.5), "2θ 3.00°   d 1.654 Å   I 50.0 %") << "20 kV: 0.0866 / 2 / sin 1.5°";
  EXPECT_EQ(form.Picture1.describe_place(0, 0.5), "2θ 0.00°   I 50.0 %");
}

TEST_F(PowderWindows, DringDrawsRingsAsItsChecksSay) {
  load("NaCl.cry");
  main1().Command8.click();
  auto& form = window<DringForm>();
  EXPECT_TRUE(form.visible());
  EXPECT_EQ(form.Picture1.mouse_pointer(), MousePointer::CrossHair);
  EXPECT_EQ(form.Picture2.mouse_pointer(), MousePointer::CrossHair);
  view.pointers.clear();
  view.ranges.clear();
  form.Command1.click();
  EXPECT_EQ(view.pointers, (std::vector{MousePointer::Hourglass, MousePointer::Default}));
  EXPECT_EQ(view.ranges, (std::vector<std::pair<Single, Single>>{{0, 168}, {0, 1000}}));
  const auto lines = drawn<DrawnLine>(form.Picture1);
  ASSERT_EQ(lines.size(), 2000U) << "the same text clears nothing";
  EXPECT_EQ(form.Picture1.user_scale(), (UserScale{0, 1.01, 1, -0.01}));
  EXPECT_TRUE(lines[0].x1 == 0 && lines[999].x2 == 1);
  EXPECT_NEAR(lines[0].y1, form.Profile(0) / form.DisplayMax, 1e-7);
  EXPECT_NEAR(lines[354].y2, form.Profile(355) / form.DisplayMax, 1e-7);
  form.Text7.set_text("9000");
  EXPECT_TRUE(drawn<DrawnLine>(form.Picture1).empty());
  EXPECT_EQ(drawn<DrawnCircle>(form.Picture2).size(), 2000U) << "a size clears the profile only";
  for (const bool inverse : {false, true}) {
    const auto rings = drawn<DrawnCircle>(form.Picture2);
    const Colour back = inverse ? RGB(255, 255, 255) : RGB(0, 0, 0);
    EXPECT_EQ(form.Picture2.back_colour(), back);
    EXPECT_EQ(form.Picture2.user_scale(), inverse ? (UserScale{-1, 1, 1, -1}) : (UserScale{0, 1, 1, 0}));
    EXPECT_EQ(rings.front().colour, back);
    EXPECT_EQ(rings[354].colour, inverse ? RGB(15, 15, 15) : RGB(240, 240, 240)) << "200: 0.940 of 255";
    EXPECT_NEAR(rings[354].radius, 0.355, 1e-7);
    EXPECT_FALSE(rings[354].fill.has_value());
    const auto beam = drawn<DrawnPoint>(form.Picture2).back();
    EXPECT_TRUE(beam.x == 0 && beam.y == 0 && beam.colour == RGB(255, 0, 0));
    form.Check2.click();
    form.Check3.click();
    form.Command1.click();
  }
  form.Text5.set_text("-3000");
  form.Command1.click();
  EXPECT_EQ(drawn<DrawnCircle>(form.Picture2)[354].colour, 0) << "a level below 0 is cut";
  EXPECT_EQ(form.Picture1.describe_place(0.4, 0.25), "d* 0.4000 Å⁻¹   d 2.500 Å   I 25.0 %");
  EXPECT_EQ(form.Picture2.describe_place(-0.3, 0.4), "d* 0.5000 Å⁻¹   d 2.000 Å");
}

// The real program, whose pictures have pixels. An ending is added where the name has none.
TEST(PatternFiles, OfAllWindowsAreWritten) {
  const ScratchFolder folder;
  folder.write(
      "a.zs",
      "set Main1.Text15 2.5\nanswer \"" ZOL_SOURCE_DIR
      "/data/ZOLDATA/NaCl.cry\"\nclick Main1.DATA_LOAD\n"
      "click Main1.Command7\nanswer x\nclick Xd.Command4\nanswer x.pic\nclick Xd.Command4\ncancel\nclick "
      "Xd.Command4\ncancel\n"
      "click Xd.Command3\nanswer x\nclick Xd.Command3\nset Xd.Text4 20\nanswer x.txt\nclick Xd.Command3\n"
      "click Main1.Command8\nanswer rings.Bmp\nclick Dring.Command3\ncancel\nclick Dring.Command3\n"
      "answer rings\nclick Dring.Command4\nanswer rings.txt\nclick Dring.Command4\ncancel\nclick Dring.Command4\n"
      "answer spots\nclick Pattern.ISAVE\ncancel\nclick Pattern.ISAVE\n"
      "answer fiber.bmp\nclick FiberTexture.Isave\n");
  const std::string command = "cd " + folder.path("") + " && " ZOL_SCRIPT " a.zs >out 2>&1";
  ASSERT_EQ(std::system(command.c_str()), 0) << folder.read("out");  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
  struct Row {
    const char* name;
    int width_px, height_px;
  };
  for (const auto& [name, width, height] : {Row{"x.BMP", 800, 560},
                                            {"x.pic", 800, 560},
                                            {"rings.Bmp", 560, 560},
                                            {"spots.bmp", 567, 567},
                                            {".bmp", 567, 567},  // cancelled
                                            {"fiber.bmp.bmp", 384, 384}}) {
    const std::string picture = folder.read(name);
    ASSERT_EQ(picture.substr(0, 2), "BM") << name;
    const auto number_at = [&picture](std::size_t at) {
      return static_cast<unsigned char>(picture[at]) + 256 * static_cast<unsigned char>(picture[at + 1]);
    };
    EXPECT_TRUE(number_at(18) == width && number_at(22) == height) << name;
  }
  const std::string pattern = folder.read("x.XDP");
  EXPECT_NE(pattern.find("\"Gratio\",50\r\n"), std::string::npos);
  EXPECT_NE(folder.read("x.txt").find("\"Gratio\",20\r\n"), std::string::npos) << "the field as it stands";
  EXPECT_EQ(folder.read("x.txt").substr(200), pattern.substr(200)) << "with the old curve";
  EXPECT_TRUE(folder.read("rings.EDP").starts_with("0,0\r\n.0004"));
  EXPECT_EQ(folder.read("rings.EDP"), folder.read("rings.txt"));
  EXPECT_EQ(folder.entries(), 12U) << "nothing else for a cancelled dialog";
}

}  // namespace
}  // namespace zol
