// The windows Pattern and FiberTexture on control objects.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "reflections/window/main1_form.h"
#include "shell/program/program.h"
#include "spots/window/fiber_texture_form.h"
#include "spots/window/pattern_form.h"
#include "tests/fake_services.h"
#include "tests/focus_view.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Remembers which pictures were saved.
class SavingServices : public FakeServices {
 public:
  struct SavingSurface : FakeSurface {
    SavingSurface(int width, int height, std::vector<std::string>& paths) : FakeSurface(width, height), saved(paths) {}
    void save_bitmap(const std::string& path) const override { saved.push_back(path); }
    std::vector<std::string>& saved;
  };
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<SavingSurface>(width, height, saved);
  }
  std::vector<std::string> saved;
};

struct PointerView : FocusView {
  void window_changed(Window& window) override { pointers.push_back(window.mouse_pointer()); }
  std::vector<MousePointer> pointers;
};

class SpotsWindows : public testing::Test {
 protected:
  SpotsWindows() {
    program.windows().set_view(&view);
    program.start();
  }

  Main1Form& main1() { return program.windows().use<Main1Form>(); }
  PatternForm& pattern() { return program.windows().use<PatternForm>(); }
  FiberTextureForm& fiber() { return program.windows().use<FiberTextureForm>(); }

  void load_rock_salt(const std::string& dmin = "1.0") {
    main1().Text15.set_text(dmin);
    services.answers.emplace_back(ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry");
    main1().DATA_LOAD.click();
  }
  void open_pattern() {
    load_rock_salt();
    main1().Command9.click();
    pattern().Text5.set_text("1");
  }
  template <class Kind>
  static std::vector<Kind> drawn(const Canvas& canvas) {
    std::vector<Kind> found;
    for (const auto& primitive : canvas.drawing()) {
      if (const auto* kind = std::get_if<Kind>(&primitive.what)) found.push_back(*kind);
    }
    return found;
  }

  PointerView view;
  SavingServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
};

TEST_F(SpotsWindows, SingleCrystalOpensForAtomsOnlyAndTheFiberPatternForAnyList) {
  main1().Text15.set_text("0.8");
  main1().Command9.click();
  EXPECT_FALSE(pattern().visible());
  EXPECT_EQ(pattern().Text1.text(), " 1.25") << "in any case";
  main1().Command12.click();
  EXPECT_EQ(program.windows().find("FiberTexture"), nullptr);
  load_rock_salt();
  state.NAtom = 0;  // as with observed reflections only
  main1().Command9.click();
  EXPECT_FALSE(pattern().visible());
  main1().Command12.click();
  EXPECT_TRUE(fiber().visible());
  state.NAtom = 2;
  main1().Command9.click();
  EXPECT_TRUE(pattern().visible());
  EXPECT_EQ(pattern().caption(), "NaCl.cry");
  EXPECT_TRUE(pattern().Picture1.drawing().empty()) << "nothing is drawn before the user asks";
}

TEST_F(SpotsWindows, LoadAndDrawingRepairZeroValuesInTheirOwnWays) {
  state.CamAcquisition = 0;
  EXPECT_EQ(pattern().Text1.text(), "2");
  EXPECT_EQ(state.CamAcquisition, 1);
  EXPECT_EQ(fiber().Text1.text(), "") << "the width is there already";
  EXPECT_EQ(program.windows().find("Main1"), nullptr) << "no field of it was touched";

  open_pattern();
  state.CamAcquisition = 0;
  pattern().Text2.set_text("0.3");
  (*main1().operation("PatternDisp"))();
  EXPECT_EQ(pattern().Text2.text(), "0");
  EXPECT_EQ(pattern().Text1.text(), "1");
  EXPECT_EQ(state.CamAcquisition, 0.5F) << "the box halves it";
  EXPECT_EQ(state.SpotScale, 0.015F);
  EXPECT_EQ(pattern().Picture1.user_scale(), (UserScale{-0.5, 0.5, 0.5, -0.5}));

  state.SpotScale = state.CamAcquisition = 0;
  fiber().Text3.set_text("1");
  (*main1().operation("PatternDisp3"))();
  EXPECT_EQ(fiber().Text1.text(), "2");
  EXPECT_EQ(state.CamAcquisition, 1);
  EXPECT_EQ(state.SpotScale, 0.01F);
  EXPECT_EQ(fiber().Text2.text(), ".5");
  EXPECT_EQ(state.Dispersion, 0.5F);
}

TEST_F(SpotsWindows, ThePlaceUnderThePointerIsToldInTheScaleOfEachPicture) {
  open_pattern();
  pattern().Command8.click();
  main1().Command12.click();
  for (TextBox* box : {&fiber().Text1, &fiber().Text3, &fiber().Text4, &fiber().Text5}) box->set_text("1");
  fiber().Command8.click();
  const auto nearest_to_beam = [](const Canvas& canvas, const auto& marks) {
    const auto distance = [](const auto& mark) { return std::hypot(mark.x, mark.y); };
    const auto nearest = std::min_element(marks.begin(), marks.end(), [&distance](const auto& one, const auto& other) {
      return distance(one) < distance(other);
    });
    return canvas.describe_place(nearest->x, nearest->y);
  };
  auto spots = drawn<DrawnCircle>(pattern().Picture1);
  spots.erase(spots.begin());  // the beam
  EXPECT_EQ(nearest_to_beam(pattern().Picture1, spots), "d* 0.3546 Å⁻¹   d 2.820 Å") << "(2 0 0)";
  EXPECT_EQ(nearest_to_beam(fiber().Picture1, drawn<DrawnPoint>(fiber().Picture1)), "d* 0.3071 Å⁻¹   d 3.256 Å")
      << "(1 1 1)";
}

TEST_F(SpotsWindows, EnterMovesOnAndDraws) {
  open_pattern();
  fiber().Text3.set_text("1");
  view.pointers.clear();
  for (TextBox* box : {&pattern().Text3, &pattern().Text4, &fiber().Text3, &fiber().Text4}) box->type('\r');
  EXPECT_EQ(view.wanted, (std::vector<std::string>{"Text4", "Text5", "Text4", "Text5"}));
  EXPECT_TRUE(view.pointers.empty());
  pattern().Text5.type('\r');
  fiber().Text5.type('\r');
  EXPECT_FALSE(pattern().Picture1.drawing().empty());
  EXPECT_FALSE(fiber().Picture1.drawing().empty());
  EXPECT_EQ(view.pointers, (std::vector{MousePointer::Hourglass, MousePointer::Default, MousePointer::Hourglass,
                                        MousePointer::Default}));
}

TEST_F(SpotsWindows, ZoomRoundsThroughItsBox) {
  open_pattern();
  fiber().Text3.set_text("1");
  const auto width_after = [](const CommandButton& button, const TextBox& width) {
    button.click();
    return width.text();
  };
  EXPECT_EQ(width_after(pattern().Command2, pattern().Text1), "0.707");
  EXPECT_EQ(width_after(pattern().Command3, pattern().Text1), "1.");
  pattern().Text1.set_text("0.0006");  // below half a unit of the third decimal after the zoom
  EXPECT_EQ(width_after(pattern().Command2, pattern().Text1), "1") << "a width of 0 is repaired";
  EXPECT_EQ(width_after(fiber().Command2, fiber().Text1), "0.707");
  EXPECT_EQ(width_after(fiber().Command3, fiber().Text1), "1.");
}

TEST_F(SpotsWindows, ButtonsTurnThePatternAndGoBelowTheZeroLevel) {
  open_pattern();
  fiber().Text3.set_text("1");
  struct Row {
    CommandButton& button;
    double pitches;
  };
  // The same captions turn the angle the other way in the two windows.
  for (const auto& [button, pitches] :
       {Row{pattern().Command6, 1}, Row{pattern().Command9, 5}, Row{pattern().Command11, 0.2},
        Row{pattern().Command7, -1}, Row{pattern().Command10, -5}, Row{pattern().Command12, -0.2},
        Row{fiber().Command6, -1}, Row{fiber().Command9, -5}, Row{fiber().Command11, -0.2}, Row{fiber().Command7, 1},
        Row{fiber().Command10, 5}, Row{fiber().Command12, 0.2}}) {
    state.PatternAngle = 1;
    button.click();
    EXPECT_NEAR(state.PatternAngle, 1 + pitches * 5 * 3.14159 / 180, 1e-6) << button.path();
  }
  state.PatternAngle = 0;
  pattern().Check3.click();
  pattern().Command14.click();
  EXPECT_EQ(pattern().Text2.text(), "-1");
  EXPECT_EQ(drawn<DrawnText>(pattern().Picture1).front().text, "-5 -1 -1 ");
}

TEST_F(SpotsWindows, GreyScaleOutlivesTheAxis) {
  open_pattern();
  pattern().Command8.click();
  const Single first = state.DisplayScale;
  const auto darkest = [this] {
    Colour colour = RGB(255, 255, 255);
    const auto discs = drawn<DrawnCircle>(pattern().Picture1);
    for (std::size_t i = 1; i < discs.size(); ++i) colour = std::min(colour, discs[i].colour);
    return colour;
  };
  EXPECT_EQ(darkest(), RGB(0, 0, 0));
  pattern().Command13.click();  // "DWN"
  EXPECT_EQ(state.DisplayScale, 2 * first);
  EXPECT_EQ(darkest(), RGB(75, 75, 75));  // 255 - Int(255 / sqrt 2)
  pattern().Option1.click();
  pattern().Command8.click();
  EXPECT_EQ(darkest(), RGB(128, 128, 128));  // 255 - Int(255 / 2)
  pattern().Text6.set_text("1");
  pattern().Option2.click();
  pattern().Command8.click();
  EXPECT_EQ(darkest(), RGB(128, 128, 128)) << "the exponent goes before the options";
  pattern().Text3.set_text("1");
  pattern().Command4.click();  // "UP"
  EXPECT_EQ(state.DisplayScale, first) << "a new axis keeps it";
  main1().Command9.click();
  EXPECT_EQ(state.DisplayScale, 0);
}

TEST_F(SpotsWindows, MenusShowThePresentValue) {
  open_pattern();
  fiber().Text3.set_text("1");
  pattern().Command8.click();
  services.answers = {"2.5", "", "7.5", "", "10", "6000", "", "3", "12", "4500", "1.2"};
  pattern().Spotsize.click();
  EXPECT_EQ(state.SpotScale, 0.025F);
  pattern().Spotsize.click();
  EXPECT_EQ(state.SpotScale, 0.015F) << "an empty answer is 0, which the drawing repairs";
  pattern().Rpitch.click();
  pattern().Rpitch.click();
  EXPECT_EQ(pattern().RotationPitch, 7.5F) << "cancelled";
  pattern().Fsize.click();
  EXPECT_EQ(pattern().Picture1.font_size(), 10);
  for (int i = 0; i < 2; ++i) (*pattern().operation("Imagesize"))();
  EXPECT_EQ(pattern().Picture1.width(), 6000);
  EXPECT_EQ(pattern().Picture1.height(), 6000);
  fiber().Rpitch.click();
  EXPECT_EQ(fiber().RotationPitch, 3);
  fiber().Fsize.click();
  EXPECT_EQ(fiber().Picture1.font_size(), 12);
  fiber().Imagesize.click();
  EXPECT_EQ(fiber().Picture1.width(), 4500);
  EXPECT_FALSE(fiber().Picture1.drawing().empty());
  fiber().Picture1.clear();
  pattern().Picture1.clear();
  fiber().Spotsize.click();
  EXPECT_TRUE(fiber().Picture1.drawing().empty()) << "the spot pattern is drawn instead";
  EXPECT_FALSE(pattern().Picture1.drawing().empty());
  const std::vector<std::string> first(services.prompts.begin(), services.prompts.begin() + 7);
  EXPECT_EQ(first,
            (std::vector<std::string>{
                "[1.5] Input Diffraction spot size (% of the picture width)|Diffraction spot size",
                "[2.5] Input Diffraction spot size (% of the picture width)|Diffraction spot size",
                "[5] Input Rotation Angle Minimum (deg.)|Rotation Angle Pitch",
                "[7.5] Input Rotation Angle Minimum (deg.)|Rotation Angle Pitch", "[8.25] input fontsize|Font Size",
                "[8500] Input size of image|Image size", "[6000] Input size of image|Image size"}));
  fiber().Command5.click();
  EXPECT_EQ(services.printed, std::vector<std::string>{"window NaCl.cry"});
}

TEST_F(SpotsWindows, FontSizeMustBeANumber) {
  open_pattern();
  for (const auto& [answer, message] :
       {std::pair{"", "\"\", must be a number of points"}, std::pair{"8 pt", "\"8 pt\", must be a number of points"},
        std::pair{"0", "0 points, must be above 0 and at most 2160"},
        std::pair{"3000", "3000 points, must be above 0 and at most 2160"}}) {
    services.answers = {answer};
    EXPECT_EQ(failure_of([this] { pattern().Fsize.click(); }),
              std::string("the font size is ") + message + ", while \"Font size\" (Pattern.Fsize) was clicked");
  }
}

TEST_F(SpotsWindows, ImageSizesAreWholeNumbersOf32Bits) {
  open_pattern();
  fiber().Text3.set_text("1");
  services.answers = {"-100", "0.3", "3e9", "1e42"};
  for (int i = 0; i < 2; ++i) fiber().Imagesize.click();
  EXPECT_EQ(fiber().Picture1.width(), -100);
  EXPECT_EQ(failure_of([this] { fiber().Imagesize.click(); }),
            "the image size is \"3e9\": overflow: 3000000000 does not fit a Long (-2147483648 to 2147483647), while "
            "\"Image Size\" (FiberTexture.Imagesize) was clicked");
  EXPECT_EQ(failure_of([this] { pattern().Spotsize.click(); }).substr(0, 37),
            "the spot size is \"1e42\": overflow: a ");
}

TEST_F(SpotsWindows, SavedPictureAlwaysGetsTheEnding) {
  services.answers = {"/tmp/spots", "", "/tmp/fiber.bmp"};
  pattern().ISAVE.click();
  pattern().ISAVE.click();
  fiber().Isave.click();
  EXPECT_EQ(services.saved, (std::vector<std::string>{"/tmp/spots.bmp", ".bmp", "/tmp/fiber.bmp.bmp"}));
}

TEST_F(SpotsWindows, CrystalWithoutScatteringFailsAtItsFirstSpot) {
  open_pattern();
  state.NCell = 0;
  EXPECT_EQ(failure_of([this] { pattern().Command8.click(); }),
            "division by zero: the intensity that maps to black (DisplayScale) is 0, while \"Calc\" (Pattern.Command8) "
            "was clicked");
  EXPECT_EQ(pattern().mouse_pointer(), MousePointer::Default);
}

TEST_F(SpotsWindows, FiberTextureSortsTheListAndAddsUpWhereArcsCross) {
  load_rock_salt("1.5");
  fiber().Text1.set_text("1.6");
  fiber().Text3.set_text("1");
  fiber().Text4.set_text("1");
  fiber().Text5.set_text("1");
  fiber().Check3.click();
  fiber().Command8.click();
  for (int i = 3; i <= state.RefCount.value(); ++i) EXPECT_GE(state.RefI(i), state.RefI(i - 1));
  const Canvas& picture = fiber().Picture1;
  EXPECT_EQ(drawn<DrawnCircle>(picture).size(), 1U);
  const auto texts = drawn<DrawnText>(picture);
  EXPECT_EQ(texts.front().text, "0 0 0");
  EXPECT_GT(texts.size(), 20U);
  // The four arcs of (111) begin on the pixel at the top, where the fiber axis meets its ring.
  std::vector<Colour> top;
  for (const auto& point : drawn<DrawnPoint>(picture)) {
    if (std::abs(point.x) < 1e-3 && std::abs(point.y - std::sqrt(3) / 5.6402) < 1e-4) top.push_back(point.colour & 255);
  }
  ASSERT_EQ(top.size(), 4U);
  const Colour step = 255 - top.front();
  EXPECT_GT(step, 10);
  for (int n = 0; n < 4; ++n) EXPECT_EQ(top[static_cast<std::size_t>(n)], 255 - (n + 1) * step);
}

TEST_F(SpotsWindows, FiberTextureTakesWholeDirections) {
  fiber().Text3.set_text("2.5");
  fiber().Text4.set_text("-1.5");
  EXPECT_EQ(state.OriginH, 2) << "halves go to the even number";
  EXPECT_EQ(state.OriginK, -2);
  EXPECT_EQ(
      failure_of([this] { fiber().Text3.set_text("33000"); }),
      "\"H=\" (FiberTexture.Text3) is \"33000\": overflow: 33000 does not fit an Integer (-32768 to 32767), while "
      "\"H=\" (FiberTexture.Text3) changed");
}

}  // namespace
}  // namespace zol
