// The windows Pattern and FiberTexture: when they open, where the focus goes, sizes. The rest is walked through by
// tests/scripts.
#include <algorithm>
#include <cmath>

#include "spots/window/fiber_texture_form.h"
#include "spots/window/pattern_form.h"
#include "tests/program_test.h"

namespace zol {
namespace {

class SpotsWindows : public ProgramTest {
 protected:
  PatternForm& pattern() { return window<PatternForm>(); }
  FiberTextureForm& fiber() { return window<FiberTextureForm>(); }
};

TEST_F(SpotsWindows, OpenForAtomsAndForAnyList) {
  main1().Command9.click();
  EXPECT_FALSE(pattern().visible());
  main1().Command12.click();
  EXPECT_EQ(program.windows().find("FiberTexture"), nullptr);
  load("NaCl.cry", "2.5");
  state.NAtom = 0;  // as with observed reflections only
  main1().Command9.click();
  EXPECT_FALSE(pattern().visible());
  main1().Command12.click();
  EXPECT_TRUE(fiber().visible());
  fiber().Command1.click();
  EXPECT_FALSE(fiber().visible());
  state.NAtom = 1;
  main1().Command9.click();
  EXPECT_TRUE(pattern().visible());
  pattern().Command1.click();
  EXPECT_FALSE(pattern().visible());
}

TEST_F(SpotsWindows, EnterMovesOnAndDraws) {
  load("NaCl.cry", "2.5");
  for (TextBox* box : {&pattern().Text1, &pattern().Text5}) box->set_text("1");
  fiber().Text3.set_text("1");
  view.pointers.clear();
  for (TextBox* box : {&pattern().Text3, &pattern().Text4, &fiber().Text3, &fiber().Text4}) box->type('\r');
  EXPECT_EQ(view.wanted, (std::vector<std::string>{"Text4", "Text5", "Text4", "Text5"}));
  EXPECT_TRUE(view.pointers.empty());
  for (TextBox* box : {&pattern().Text5, &fiber().Text5}) {
    box->type('x');
    EXPECT_TRUE(view.pointers.empty());
    box->type('\r');
    EXPECT_EQ(view.pointers, (std::vector{MousePointer::Hourglass, MousePointer::Default}));
    view.pointers.clear();
  }
}

TEST_F(SpotsWindows, SizesBelongToOneWindowAndDrawItAnew) {
  load("NaCl.cry", "2.5");
  for (TextBox* box : {&pattern().Text1, &pattern().Text5}) box->set_text("1");
  fiber().Text3.set_text("1");
  services.answers = {"10", "6000", "12", "4500"};
  pattern().Fsize.click();
  EXPECT_FALSE(pattern().Picture1.drawing().empty());
  pattern().Picture1.clear();
  (*pattern().operation("Imagesize"))();
  EXPECT_FALSE(pattern().Picture1.drawing().empty());
  fiber().Fsize.click();
  fiber().Imagesize.click();
  EXPECT_EQ(pattern().Picture1.font_size(), 10);
  EXPECT_TRUE(pattern().Picture1.width() == 6000 && pattern().Picture1.height() == 6000);
  EXPECT_EQ(fiber().Picture1.font_size(), 12);
  EXPECT_TRUE(fiber().Picture1.width() == 4500 && fiber().Picture1.height() == 4500);
}

// The eight {111} start with 255 * 352.7 / 3278.9^1.2 = 5.43, 54.7 or 125.3 degrees from the top. At 180 degrees each
// has two arcs that reach it within a turn, with 4 or 3: 255 - 4 * 2 * 4 - 4 * 2 * 3. At 1000 many turns add up to
// black.
TEST_F(SpotsWindows, WideArcsGoRoundUntilTheyAreBlack) {
  load("NaCl.cry", "2.5");
  for (TextBox* box : {&fiber().Text1, &fiber().Text3}) box->set_text("1");
  fiber().Text6.set_text("1.2");
  for (const auto& [dispersion, grey] : {std::pair{"180", 199}, std::pair{"1000", 0}}) {
    fiber().Text2.set_text(dispersion);
    fiber().Command8.click();
    EXPECT_EQ(fiber().Picture1.point(0, 0.3071F) & 255, grey);
  }
}

TEST_F(SpotsWindows, ThePlaceUnderThePointerIsToldInTheScaleOfEachPicture) {
  load("NaCl.cry", "2.5");
  for (TextBox* box : {&pattern().Text1, &pattern().Text5}) box->set_text("1");
  pattern().Command8.click();
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

}  // namespace
}  // namespace zol
