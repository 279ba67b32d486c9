// What the windows say before a click: guards against what ends the run or is of no use.
#include "tests/guarded_program.h"
#include "tests/test_files.h"

namespace zol {
namespace {

const std::string line_drawn =
    "press PATTERN3.Picture1 100 100\nmove PATTERN3.Picture1 200 300\nrelease PATTERN3.Picture1 200 300\n";
const std::string lines_drawn = line_drawn +
                                "press PATTERN3.Picture1 300 20\nmove PATTERN3.Picture1 40 260\n"
                                "release PATTERN3.Picture1 40 260\npress PATTERN3.Picture1 20 400\n"
                                "move PATTERN3.Picture1 480 380\nrelease PATTERN3.Picture1 480 380\n";

struct Action {
  std::string script;
  std::string reason;
};

std::string reason_of(const Reason& reason) { return reason ? reason() : ""; }

/// All that a single click or Enter does at a control, each with the reason against it.
std::vector<Action> actions_at(Control& control) {
  const std::string& path = control.path();
  const std::string reason = reason_of(control.warn_when);
  if (!control.visible()) return {};
  std::vector<Action> actions;
  switch (control.kind()) {
    case ControlKind::CommandButton:
    case ControlKind::MenuItem:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      return {{"click " + path, reason}};
    case ControlKind::TextBox: {
      const auto& box = dynamic_cast<TextBox&>(control);
      for (const std::string text : {"", "0", "1", "-3", "40000"}) {
        actions.push_back({"set " + path + " \"" + text + "\"", box.warn_text ? box.warn_text(text) : ""});
      }
      actions.push_back({"type " + path + R"( "\r")", reason});
      actions.push_back({"leave " + path, ""});
      return actions;
    }
    case ControlKind::Grid:
      return {{"type " + path + R"( "\r")", reason}};
    case ControlKind::ComboBox:
    case ControlKind::ListBox: {
      const auto* list = dynamic_cast<ListBox*>(&control);
      const auto* combo = dynamic_cast<ComboBox*>(&control);
      const auto& warn = list != nullptr ? list->warn_row : combo->warn_row;
      const int count = list != nullptr ? list->list_count() : static_cast<int>(combo->items().size());
      for (int row = 0; row < count; row += std::max(1, std::min(7, count - 1 - row))) {
        actions.push_back({"select " + path + " " + std::to_string(row), reason.empty() && warn ? warn(row) : reason});
      }
      return actions;
    }
    case ControlKind::Canvas: {
      const auto& canvas = dynamic_cast<Canvas&>(control);
      const UserScale& scale = canvas.user_scale();
      for (const double part : {0.0, 0.4, 1.0}) {
        const double x = scale.left + part * (scale.right - scale.left);
        const double y = scale.top + part * (scale.bottom - scale.top);
        const std::string place = path + " " + plain_text(x) + " " + plain_text(y);
        actions.push_back({"press " + place + "\nrelease " + place, canvas.reason_against(x, y)});
      }
      if (canvas.on_double_click) actions.push_back({"press " + path + " 0.1 0.1\ndoubleclick " + path, reason});
      return actions;
    }
    default:
      return {};
  }
}

enum class Outcome { Ends, Dead, Prints };

/// A state, an action with the reason against it there, what comes of it all the same, and a state where it is fine.
struct Row {
  std::string state;
  std::string action;  ///< first line; what follows shows the harm
  std::string reason;
  Outcome outcome;
  std::string printed = {};
  std::string healthy = silicon;
};

std::string reason_against(Program& program, const std::string& operation) {
  std::istringstream words(operation);
  std::string verb, path, first;
  double x = 0, y = 0;
  words >> verb >> path;
  const std::size_t dot = path.find('.');
  Control& control = *program.windows().use(path.substr(0, dot)).find(path.substr(dot + 1));
  if (verb == "set") return std::getline(words >> std::ws, first), dynamic_cast<TextBox&>(control).warn_text(first);
  if (verb == "select") {
    words >> x;
    auto* list = dynamic_cast<ListBox*>(&control);
    return (list != nullptr ? list->warn_row : dynamic_cast<ComboBox&>(control).warn_row)(static_cast<int>(x));
  }
  if (verb == "press") {
    const auto& canvas = dynamic_cast<Canvas&>(control);
    words >> x >> y;
    return canvas.warn_click ? canvas.warn_click() : canvas.reason_against(x, y);
  }
  return control.warn_when();
}

const std::string empty_list = "the list of reflections is empty: \"Calc\" of the main window makes it";
const std::string no_axis = "the zone axis u, v, w is 0 0 0";
const std::string spots = silicon + "set Pattern.Text1 2\nset Pattern.Text5 1\nclick Pattern.Command8\n";

const std::vector<Row>& rows() {
  static const std::vector<Row> table{
      {"", "click MAIN_MENU.Command2\nclick Pattern2.Command6", empty_list, Outcome::Ends},
      {"", "click Main1.Command6", "there is no cell: type one in the main window", Outcome::Ends},
      {"", "click Main1.Command7", empty_list, Outcome::Dead},
      {"", "click Main1.Command8", empty_list, Outcome::Dead},
      {"", "click Main1.Command9", empty_list, Outcome::Dead},
      {"", "click Main1.Command12", empty_list, Outcome::Dead},
      {"", "click Main1.Command10\nclick Pattern2.Command3", empty_list, Outcome::Ends},
      {"", "click Main1.Command11\nclick AtomDistance.Command1\nprint AtomDistance.List1", "there are no atoms",
       Outcome::Prints, ""},
      {silicon + "set Main1.Text15 0\n", "click Main1.Command9", "the box Dmin holds 0", Outcome::Ends},
      {silicon, "click Main1.Command15\nclick InputJCPDS.Command2\nprint Module1.NAtom",
       "this removes the atoms, even if you cancel there", Outcome::Prints, "0\n", ""},
      {"", "set Main1.Text7 251", "there is no file of this space group", Outcome::Ends, "", "-"},
      {"", "set Main1.Text7 40000", "there is no such space group", Outcome::Ends, "", "-"},
      {silicon, "set Main1.Text18 40000\nclick Main1.Command6", "the box takes whole numbers up to 32767",
       Outcome::Ends, "", "-"},
      {silicon, "select Main1.Combo2 5\ncall Main1.AtomCcalc\nprint Module1.NCell",
       "-cba has no operators: every atom falls on 0 0 0", Outcome::Prints, "1\n", "-"},
      {"sites 200", "click Main1.Command1", "the table has no room for 200 atoms or more", Outcome::Ends},
      {"rows 200", "click Main1.Command15", "the table has no room for 200 reflections", Outcome::Ends, "", ""},
      {"", "click InputAtom.Command1", "no space group has been chosen", Outcome::Ends},
      {"cell InputAtom.G 200 7\n", R"(type InputAtom.G "\r")", "this is the last cell: there is no next row",
       Outcome::Ends, "", "cell InputAtom.G 200 6\n"},
      {"", "click Bonds.Calc\nprint Bonds.BondList", "there are no atoms", Outcome::Prints},
      {"", "click AtomDistance.BondsAndAngles\nprint Bonds.BondList", "there are no atoms", Outcome::Prints},
      {"", "click AtomDistance.Command1\nprint AtomDistance.List1", "there are no atoms", Outcome::Prints, "",
       silicon + "set AtomDistance.Text1 3\n"},
      {powder + "click Xd.Command2\n", "press Xd.Picture1 2 0.5",
       R"("Clear" has removed the curve: press "CALC" first)", Outcome::Ends, "", powder},
      {powder + "set Xd.Text1 1\nset Xd.Text2 2\n", "press Xd.Picture1 4 0.5", "the curve does not reach to this place",
       Outcome::Ends, "", powder},
      {powder + "click Dring.Command2\n", "press Dring.Picture1 0.5 0.5",
       R"("Clear" has removed the curve: press "CALC" first)", Outcome::Ends, "", powder},
      {powder + "set Xd.Text6 0\n", "click Xd.Command1", "division by zero: the crystallite size P is 0", Outcome::Ends,
       "", powder},
      {powder + "set Xd.Text3 0\n", "click Dring.Command1\nset Dring.Text3 0\nclick Dring.Command1", "",
       Outcome::Prints, "", "-"},
      {powder + "set Xd.Text1 2\nset Xd.Text2 2\n", "click Xd.Command1\nprint Xd.List1",
       "2theta.min and 2theta.max are the same", Outcome::Prints, "2-Theta   d     I/Io\n", powder},
      {"", "click Xd.Command6", "there is no curve yet: press \"CALC\" first", Outcome::Ends, "", powder},
      {powder + "set Xd.Text5 0\n", R"(type Xd.Text5 "\r")", "an intensity of 0 cannot be drawn at full height",
       Outcome::Ends, "", powder},
      {silicon, "click Pattern.Command8", no_axis, Outcome::Ends, "", spots},
      {silicon + "set FiberTexture.Text5 0\n", "click FiberTexture.Command8", "the fiber direction H, K, L is 0 0 0",
       Outcome::Ends, "", silicon + "set FiberTexture.Text5 1\n"},
      {silicon, "click Pattern2.Command8", no_axis, Outcome::Dead, "", kikuchi},
      {silicon, "click Pattern2.Command6", no_axis, Outcome::Ends, "", kikuchi},
      {silicon + "set Pattern2.Text5 1\n", "press Pattern2.Picture1 0.1 0.1", "nothing is drawn yet: \"Calc\" first",
       Outcome::Ends, "", kikuchi},
      {kikuchi, "click Pattern2.Command4", "no axis has been found: click the picture first", Outcome::Ends, "",
       kikuchi + "press Pattern2.Picture1 0.1 0.1\n"},
      {kikuchi, "click Pattern2.Command13", "h, k, l of the mark are 0 0 0", Outcome::Ends, "",
       kikuchi + "set Pattern2.Text11 1\n"},
      {kikuchi + "answer 0\nclick Pattern2.Zpitch\n", "click Pattern2.Command2",
       "the zoom pitch is 0 (Option, Zoom pitch)", Outcome::Ends, "", kikuchi},
      {kikuchi + "click Main1.Command6\n", "select Pattern2.List1 3",
       "the bands are those of a list that is gone: draw them again", Outcome::Ends, "", kikuchi},
      {silicon, "click Zaxis.Command2", no_axis, Outcome::Ends, "", kikuchi},
      {kikuchi +
           [] {
             std::string zoomed;
             for (int i = 0; i < 12; ++i) zoomed += "click Zaxis.Command2\n";
             return zoomed;
           }(),
       "click Zaxis.Command2\nclick Zaxis.Command2\nprint Zaxis.MapScale",
       "the map cannot be made larger: it would turn over", Outcome::Prints, "-.1000002\n", kikuchi},
      {silicon, "click PATTERN3.Command1\nprint PATTERN3.SolutionCount", "no lines are picked", Outcome::Ends, "",
       silicon + lines_drawn},
      {silicon + line_drawn, "click PATTERN3.Command1\nprint PATTERN3.SolutionCount", "1 of 3 lines are picked",
       Outcome::Prints, "65\n", silicon + lines_drawn},
      {lines_drawn, "click PATTERN3.Command1", empty_list, Outcome::Dead, "", silicon + lines_drawn},
      {silicon + lines_drawn + "set PATTERN3.Text1 0\nclick PATTERN3.Command1\n", "select PATTERN3.List1 0",
       "this line is the number of solutions, not a solution", Outcome::Ends, "",
       silicon + lines_drawn + "set PATTERN3.Text1 20\nclick PATTERN3.Command1\n"},
      {silicon + lines_drawn + "click PATTERN3.CP_Setting_Show\nset PATTERN3.Text11 20000\n", "click PATTERN3.Command7",
       "there is no solution of this number to adjust", Outcome::Ends, "",
       silicon + lines_drawn + "set PATTERN3.Text1 20\nclick PATTERN3.Command1\nclick PATTERN3.CP_Setting_Show\n"},
      {"", "press PATTERN3.Picture1 100 100\nrelease PATTERN3.Picture1 100 100\nprint PATTERN3.LineX(0,1)",
       "a click without a drag draws the line to the corner", Outcome::Prints, "0\n", lines_drawn},
      {"", "click PATTERN3.ImageFlip", "no picture is loaded", Outcome::Dead, "", "-"},
      {"", "click PATTERN3.Command3", "no lines are picked", Outcome::Dead, "", line_drawn},
      {"", "click PATTERN3.Command9", "the markers of the two poles are not set, or at the same height", Outcome::Ends,
       "",
       "click PATTERN3.CPS_Si001\nclick PATTERN3.Option1\npress PATTERN3.Picture1 283 353\nclick PATTERN3.Option2\n"
       "press PATTERN3.Picture1 283 103\n"},
      {"", "click Utility.Command3", "length_1 is 0", Outcome::Ends, "", "set Utility.Text9 2\n"},
      {silicon, "click Utility.Command4", "u, v, w are 0 0 0", Outcome::Ends, "", silicon + "set Utility.Text10 1\n"},
      {silicon, "click Utility.Command5", "h, k, l are 0 0 0", Outcome::Ends, "", silicon + "set Utility.Text13 1\n"},
  };
  return table;
}

// Each reason holds in its state, not in a healthy one, and tells the truth: what is done all the same ends the run,
// does nothing, or gives what makes no sense.
TEST(GuardTable, ReasonsHoldAndTellTheTruth) {
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.action);
    GuardedProgram of;
    of.prepare(row.state);
    const std::string path = row.action.substr(row.action.find(' ') + 1);
    of.program.windows().use(path.substr(0, path.find('.'))).show();
    EXPECT_EQ(reason_against(of.program, row.action), row.reason);
    const auto seen = of.visible_work();
    of.output.str("");
    const std::string failure = of.run(row.action);
    EXPECT_EQ(failure.empty(), row.outcome != Outcome::Ends) << failure;
    if (row.outcome == Outcome::Prints) {
      EXPECT_EQ(of.output.str(), row.printed);
    }
    if (row.outcome == Outcome::Dead) {
      const auto after = of.visible_work();
      EXPECT_TRUE(same_work(seen, after) && seen.windows.size() == after.windows.size());
    }
    if (row.healthy == "-") continue;
    GuardedProgram healthy;
    healthy.prepare(row.healthy);
    EXPECT_EQ(reason_against(healthy.program, row.action), "");
  }
}

// The dialog of a prompt says beforehand what an answer, or a cancel, does.
TEST(GuardTable, PromptsTellWhatAnAnswerDoes) {
  struct Answer {
    std::string state, click, answer, reason;
    Outcome outcome;
    std::string follow, printed;
  };
  for (const auto& [state, click, answer, reason, outcome, follow, printed] :
       {Answer{spots, "Pattern.Fsize", "", "this is not a font size", Outcome::Ends, "", ""},
        Answer{spots, "Pattern.Fsize", "3000", "this is not a font size", Outcome::Ends, "", ""},
        Answer{spots, "Pattern.Fsize", "8", "", Outcome::Prints, "", ""},
        Answer{spots, "Pattern.Spotsize", "", "without a size above 0 the first one is taken", Outcome::Prints,
               "print Main1.SpotScale", ".015\n"},
        Answer{spots, "Pattern.Spotsize", "2", "", Outcome::Prints, "print Main1.SpotScale", ".02\n"},
        Answer{spots, "Pattern.Rpitch", "0", "with 0 degrees nothing turns", Outcome::Prints,
               "click Pattern.Command6\nprint Main1.PatternAngle", "0\n"},
        Answer{kikuchi, "Pattern2.Zpitch", "0", "with 0 \"Zoom Up\" ends the program", Outcome::Ends,
               "click Pattern2.Command2", ""},
        Answer{kikuchi, "Pattern2.Spitch", "0", "with 0 degrees the arrows shift nothing", Outcome::Prints,
               "print Pattern2.ShiftPitch", "0\n"},
        Answer{silicon + "set Main1.Text15 0\nanswer 1\n", "Main1.Command6", "2", "", Outcome::Prints, "", ""}}) {
    SCOPED_TRACE(click + " " + answer);
    GuardedProgram of;
    of.prepare(state);
    of.output.str("");
    const std::string failure = of.run("answer \"" + answer + "\"\nclick " + click + "\n" + follow);
    ASSERT_TRUE(of.services.asked.warn_when);
    EXPECT_EQ(of.services.asked.warn_when(answer), reason);
    EXPECT_EQ(failure.empty(), outcome != Outcome::Ends) << failure;
    EXPECT_EQ(of.output.str(), printed);
  }
}

// A crystal saved with neither atoms nor reflections cannot be loaded again.
TEST(GuardTable, WarnsOfAFileThatCannotBeLoaded) {
  const ScratchFolder folder;
  const std::string file = "answer " + folder.path("bare.cry") + "\n";
  GuardedProgram of;
  of.prepare("set Main1.Text1 4\n");
  EXPECT_EQ(reason_against(of.program, "click Main1.DATA_SAVE"),
            "a file without atoms and reflections cannot be loaded again");
  EXPECT_EQ(of.run(file + "click Main1.DATA_SAVE"), "");
  EXPECT_NE(of.run(file + "click Main1.DATA_LOAD"), "");
}

class SingleClicks : public testing::TestWithParam<std::string>, protected GuardedProgram {};
INSTANTIATE_TEST_SUITE_P(States, SingleClicks,
                         testing::Values("", silicon,
                                         silicon + "set Main1.Text15 2\nclick Main1.Command6\nclick Main1.Command7\n"
                                                   "click Main1.Command8\nset Pattern2.Text5 1\n"
                                                   "click Pattern2.Command8\nshow Zaxis\nset Pattern.Text1 2\n"
                                                   "set Pattern.Text5 1\nclick Pattern.Command8\n"));

// From a fresh program, a crystal, and all pictures drawn: what nothing warns of does not end the run.
TEST_P(SingleClicks, EndTheRunOnlyWhereAGuardSaysSo) {
  prepare(GetParam());
  for (const auto& name : program.windows().names()) program.windows().use(name);
  const auto before = program.snapshot();
  for (const auto& name : program.windows().names()) {
    const std::size_t controls = program.windows().use(name).controls().size();
    for (std::size_t i = 0; i < controls; ++i) {
      for (const auto& [script, reason] : actions_at(*program.windows().use(name).controls()[i])) {
        services.asked = {};
        const std::string failure = run(script);
        const bool warned = !reason.empty() || (services.asked.warn_when && !services.asked.warn_when("").empty());
        EXPECT_TRUE(failure.empty() || warned) << script << ": " << failure;
        program.put_back(*before);
      }
    }
  }
}

}  // namespace
}  // namespace zol
