// What the windows say beside results: words on what is odd, what is old, and the state that they share.
#include "shell/program/result_notes.h"

#include "tests/guarded_program.h"

namespace zol {
namespace {

// Words beside results: each in the state that is odd, none where all is well.
TEST(Remarks, StandBesideWhatIsRightByRuleAlone) {
  struct Remark {
    std::string script, control, words;
  };
  const std::string xray = "choose Main1.Combo1 CuKa\n" + silicon + "click Main1.Command7\n";
  for (const auto& [script, control, words] :
       {Remark{xray, "Xd.Picture1", ""},
        // to 2 asin(1.542/2/1) = 100.89 degrees in 1000 steps
        Remark{xray + "set Xd.Text3 0.05\nclick Xd.Command1\n", "Xd.Picture1",
               "the half width is below the step of the samples, 0.1009°: heights of peaks are wrong"},
        Remark{silicon + "click Main1.Command7\n", "Xd.Picture1", "the intensities are those of electrons"},
        Remark{xray + "click Main1.Command8\n", "Dring.Picture1", "the intensities are those of X-rays"},
        Remark{silicon + "click Main1.Option1\n", "Main1.List2",
               "the wavelength is still that of electrons of 20 kV: choose CuKa or MoKa"},
        // X-rays of 100 keV have 0.124
        Remark{silicon + "click Main1.Option1\nset Main1.Text16 .124\n", "Main1.List2", ""},
        Remark{silicon, "Main1.List1", ""},
        Remark{silicon + "cell InputAtom.G 1 3\ntype InputAtom.G \"1.5\\r\"\nclick InputAtom.Command1\n", "Main1.List1",
               "the occupancy of Si is 1.5, above 1"},
        Remark{silicon + "set Main1.Text1 1.5\nset Main1.Text2 1.5\nset Main1.Text3 1.5\ncall Main1.AtomCcalc\n",
               "Main1.List1", "Si and Si are 0.65 Å apart, nearer than any bond"},
        Remark{silicon + "set Main1.Text7 1\ncall Main1.AtomCcalc\n", "Main1.List1",
               "P 1 has no symmetry operators: only the sites fill the cell"},
        Remark{silicon + "set Main1.Text7 300\ncall Main1.AtomCcalc\n", "Main1.List1",
               "group 300 has no operators: those of the previous group stay"}}) {
    SCOPED_TRACE(script);
    GuardedProgram of;
    of.prepare(script);
    ResultNotes notes(of.program);
    notes.update();
    const std::size_t dot = control.find('.');
    EXPECT_EQ(notes.note_of(*of.program.windows().use(control.substr(0, dot)).find(control.substr(dot + 1))).line(),
              words);
  }
}

/// Notes after each event, as the desktop takes them.
struct NotedProgram : GuardedProgram {
  void step(const std::string& operation) {
    EXPECT_EQ(run(operation), "");
    notes.update();
  }
  std::string line(const std::string& control) {
    const std::size_t dot = control.find('.');
    return notes.note_of(*program.windows().use(control.substr(0, dot)).find(control.substr(dot + 1))).line();
  }
  ResultNotes notes{program};
};

// What lists and pictures say of their age, step by step.
TEST(Origins, TellWhatHasChangedSince) {
  struct Step {
    std::string operation, control, line;
  };
  NotedProgram of;
  const std::string changed = "Silicon, 20 kV; crystal changed since";
  const std::string still = "the wavelength is still that of electrons of 15 kV: choose CuKa or MoKa";
  for (const auto& [operation, control, line] :
       {Step{silicon, "Main1.List2", ""}, Step{kikuchi, "Pattern2.Picture1", ""},
        Step{"set Main1.Text1 5", "Main1.List2", "made for " + changed}, Step{"", "Main1.List1", "made for " + changed},
        Step{"", "Pattern2.Picture1", "drawn for " + changed},
        // Drawn again from the old list it is no better.
        Step{"click Pattern2.Command8", "Pattern2.Picture1", "drawn for " + changed},
        Step{"set Main1.Text1 5.4307", "Pattern2.Picture1", ""},
        Step{"choose Main1.Combo1 15", "Pattern2.Picture1", "drawn for Silicon, 20 kV; radiation changed since"},
        Step{"set Pattern2.Text14 3", "Pattern2.Picture1",
             "drawn for Silicon, 20 kV; radiation and settings changed since"},
        Step{"click Main1.Command6", "Main1.List2", ""},
        Step{"", "Pattern2.Picture1", "drawn for Silicon, 20 kV; radiation and settings changed since"},
        // A mark is no new drawing.
        Step{"set Pattern2.Text11 1\nclick Pattern2.Command13", "Pattern2.Picture1",
             "drawn for Silicon, 20 kV; radiation and settings changed since"},
        Step{"click Pattern2.Command8", "Pattern2.Picture1", ""},
        Step{"click Main1.Option1", "Main1.List2", "made for Silicon, 15 kV; radiation changed since"},
        Step{"set Main1.Text15 2", "Main1.List2", "made for Silicon, 15 kV; radiation and settings changed since"},
        Step{"click Main1.Command6", "Main1.List2", still}}) {
    SCOPED_TRACE(operation + " " + control);
    if (!operation.empty()) of.step(operation);
    EXPECT_EQ(of.line(control), line);
  }
}

// Undone, a list comes back with what it was made for; so does one that was made anew.
TEST(Origins, GoBackWithWhatIsUndone) {
  NotedProgram of;
  of.step(silicon);
  of.step("set Main1.Text1 5");
  const auto old = of.program.snapshot();
  const std::string line = of.line("Main1.List2");
  EXPECT_NE(line, "");
  of.step("click Main1.Command6");
  EXPECT_EQ(of.line("Main1.List2"), "");
  const auto fresh = of.program.snapshot();
  for (const auto& [snapshot, wanted] : {std::pair(old, line), std::pair(fresh, std::string()), std::pair(old, line)}) {
    of.program.put_back(*snapshot);
    of.notes.update();
    EXPECT_EQ(of.line("Main1.List2"), wanted);
  }
}

TEST(SharedParts, TellTheStateThatWindowsShare) {
  GuardedProgram of;
  of.prepare(silicon);
  const CrystalState& state = of.program.state();
  EXPECT_EQ(shared::radiation(state), "20 kV, λ 0.0866 Å");
  EXPECT_EQ(shared::order(state), "list by I/d");
  EXPECT_EQ(shared::half_angle(state), "area 37°");
  EXPECT_EQ(shared::zone_axis(state), "") << "none yet";
  of.prepare("call Main1.CalcReflections");
  EXPECT_EQ(shared::order(state), "list by 1/d");
  of.prepare("set FiberTexture.Text1 2\nset FiberTexture.Text5 1\nclick FiberTexture.Command8\n");
  EXPECT_EQ(shared::order(state), "list by I, weakest first");
  EXPECT_EQ(shared::half_width(state), "half width 1 Å⁻¹");
  EXPECT_EQ(shared::half_angle(state), "") << "1 degree is no angle of the Kikuchi window";
  EXPECT_EQ(shared::fiber_axis(state), "HKL 0 0 1");
  of.prepare("set Pattern2.Text1 37\nset Pattern2.Text5 1\nclick Pattern2.Command8\n");
  EXPECT_EQ(shared::order(state), "list by I/d, weakest first");
  of.prepare("click FiberTexture.Command6\nchoose Main1.Combo1 CuKa\nset Pattern2.Text14 -1.5\nset Pattern2.Text5 2\n");
  EXPECT_EQ(shared::turn(state), "turn -5°");
  EXPECT_EQ(shared::radiation(state), "λ 1.542 Å");
  EXPECT_EQ(shared::shifts(state), "shifts -1.5°, 0°");
  EXPECT_EQ(shared::zone_axis(state), "axis [0 0 2]");
}
}  // namespace
}  // namespace zol
