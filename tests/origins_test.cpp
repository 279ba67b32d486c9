// What is old says so, and what is right by rule and wrong by sense has a word beside it.
#include "shell/program/origins.h"

#include "calculators/window/atom_distance_form.h"
#include "entry/window/input_atom_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "powder/window/dring_form.h"
#include "powder/window/xd_form.h"
#include "reflections/window/shared_state.h"
#include "shell/services/event_gate.h"
#include "tests/program_test.h"

namespace zol {
namespace {

class OriginsTest : public ProgramTest {
 protected:
  OriginsTest() {
    program.watch(gate);
    act([this] { load("Quartz.cry"); });
    act([this] { main1().Command10.click(); });
    act([this] { pattern().Text5.set_text("1"); });
    act([this] { pattern().Command8.click(); });
  }
  void act(std::function<void()> action) { gate.enter({"a test", "", std::move(action)}); }
  Pattern2Form& pattern() { return window<Pattern2Form>(); }
  /// Of picture, list of bands, and list of reflections.
  std::string said() {
    return program.said_of(pattern().Picture1) + "|" + program.said_of(pattern().List1) + "|" +
           program.said_of(main1().List2);
  }

  EventGate gate{[] {}, [](const std::exception_ptr& failure) { FAIL() << failure_text(failure); }};
};

constexpr auto fresh = "||";
constexpr auto other_crystal =
    "drawn for Quartz, 20 kV; crystal changed since|listed for Quartz, 20 kV; crystal changed since|listed for "
    "Quartz, 20 kV; crystal changed since";

TEST_F(OriginsTest, TellWhatHasChangedUntilItIsMadeAgain) {
  ASSERT_GT(pattern().List1.list_count(), 5);
  EXPECT_EQ(said(), fresh);
  act([this] { main1().Text1.set_text("5.1"); });
  EXPECT_EQ(said(), other_crystal);
  act([this] { pattern().List1.pick(1); });
  EXPECT_EQ(said(), other_crystal) << "a mark makes nothing new";
  act([this] { pattern().Command8.click(); });
  EXPECT_EQ(said(), other_crystal) << "it is drawn from the old list";
  act([this] { main1().Command6.click(); });
  EXPECT_EQ(said(), std::string(other_crystal).substr(0, std::string(other_crystal).rfind('|') + 1));
  act([this] { pattern().Command8.click(); });
  EXPECT_EQ(said(), fresh);

  act([this] { main1().Text15.set_text("1.3"); });
  EXPECT_EQ(said(), fresh) << "a limit that was not used yet";
  act([this] { main1().Command6.click(); });
  EXPECT_EQ(said(),
            "drawn for Quartz, 20 kV; reflections changed since|listed for Quartz, 20 kV; reflections changed "
            "since|");
  act([this] { main1().Combo1.pick(0); });
  EXPECT_NE(said().find("radiation changed since|"), std::string::npos) << said();
}

TEST_F(OriginsTest, GoBackAndForthWithTheHistory) {
  std::vector<std::string> seen{said()};
  const std::function<void()> steps[] = {[this] { main1().Text1.set_text("5.1"); },
                                         [this] { main1().Command6.click(); }, [this] { pattern().Command8.click(); },
                                         [this] { load("NaCl.cry"); }};
  for (const auto& step : steps) {
    act(step);
    seen.push_back(said());
  }
  ASSERT_EQ(seen[3], fresh);
  ASSERT_NE(seen[4], fresh);
  for (std::size_t i = std::size(steps); i-- > 0;) {
    program.put_back(*program.history().undo());
    EXPECT_EQ(said(), seen[i]) << "before step " << i;
  }
  for (std::size_t i = 1; i <= std::size(steps); ++i) {
    program.put_back(*program.history().redo());
    EXPECT_EQ(said(), seen[i]) << "behind step " << i;
  }
}

TEST_F(OriginsTest, SharedStateStandsInOneLine) {
  const auto all = [this] { return pattern().foot(); };
  EXPECT_EQ(all(), "20 kV, 0.0866 Å; half width 37°; shifts 0°, 0°; axis [0 0 1]; turn 0°; list by intensity");
  act([this] { pattern().Command7.click(); });
  act([this] { pattern().Text14.set_text("-2.5"); });
  EXPECT_NE(all().find("shifts -2.5°, 0°; axis [0 0 1]; turn 5°"), std::string::npos) << all();
}

// Silicon: a line of 0.05 degrees between samples that are 0.09 apart.
TEST_F(ProgramTest, RemarksStandBesideWhatIsRightByRuleAlone) {
  load("Silicon.cry", "0.8");
  main1().Command7.click();
  auto& xd = window<XdForm>();
  const auto narrow = [&] { return xd.List1.remark(); };
  EXPECT_EQ(narrow(), "");
  xd.Text1.set_text("0");
  xd.Text2.set_text("90");
  xd.Text3.set_text("0.05");
  EXPECT_EQ(narrow(), "the half width of 0.05° is below the step of the samples, 0.09°: heights of peaks are wrong");
  xd.Text3.set_text("0.09");
  EXPECT_EQ(narrow(), "");
  EXPECT_EQ(xd.Picture1.remark(), "electrons: the angles are those of their wavelength");
  main1().Combo1.pick(0);
  EXPECT_EQ(xd.Picture1.remark().empty(), state.AccVoltage == 0);

  const auto atoms = [&] { return main1().List1.remark(); };
  EXPECT_EQ(atoms(), "");
  state.AtomOcc(1) = 1.5F;
  EXPECT_EQ(atoms(), "the occupancy of " + state.AtomLabel(1) + " is 1.5, above 1");
  load("NaCl.cry");
  main1().Text7.set_text("1");
  main1().Command1.click();
  window<InputAtomForm>().Command1.click();
  EXPECT_EQ(atoms(), "no symmetry operators: these sites are all atoms of the cell");

  main1().Command11.click();
  auto& distances = window<AtomDistanceForm>();
  for (const auto& [a, remark] : {std::pair{"1.5", ""}, {"0.8", "atoms 0.69 Å apart: nearer than any bond"}}) {
    for (TextBox* edge : {&main1().Text1, &main1().Text2, &main1().Text3}) edge->set_text(a);
    distances.Text1.set_text("2");
    distances.Command1.click();
    EXPECT_EQ(distances.List1.remark(), remark) << a;
  }
}

}  // namespace
}  // namespace zol
