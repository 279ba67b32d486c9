#include <gtest/gtest.h>

#include <cmath>

#include "core/run_failure.h"
#include "core/task.h"
#include "shell/services/attempt.h"
#include "shell/services/event_gate.h"
#include "shell/services/pasted_rows.h"
#include "shell/services/ruler.h"
#include "shell/services/window_services.h"
#include "tests/fake_services.h"
#include "tests/focus_view.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct SampleForm : Window {
  static constexpr auto window_name = "Sample";
  SampleForm() : Window(window_name, "a sample") {}
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  CheckBox Check1{*this, "Check1"};
  OptionButton Option1{*this, "Option1"};
  OptionButton Option2{*this, "Option2"};
  OptionButton Other{*this, "Other", "", "another frame"};
  ListBox List1{*this, "List1"};
  Grid G{*this, "G", 4, 3};
  ControlArray<CommandButton> Command1{*this, "Command1", 2};
};

struct Controls : testing::Test {
  SampleForm form;
};

TEST_F(Controls, TextBoxesFireInsideTheWriteAndOnlyWhenTheTextDiffers) {
  std::string seen;
  form.Text1.on_change = [&] {
    seen += form.Text1.text() + ' ';
    form.Text2.set_text(form.Text1.text() + "!");  // a cascade runs to its end before the write returns
    if (form.Text1.text() == "1.2") form.Text1.set_text("85");
  };
  form.Text2.on_change = [&] { seen += form.Text2.text() + ' '; };
  form.Text1.on_key_press = [](int& key) {
    if (key == 'x') key = 0;
    if (key == ',') key = '.';
  };
  for (const char c : std::string("\b1,x2\b\r")) form.Text1.type(c);
  form.Text1.set_text("8");
  EXPECT_EQ(seen, "1 1! 1. 1.! 1.2 1.2! 85 85! 8 8! ");
}

TEST_F(Controls, ButtonsTurnOverAndExcludeEachOther) {
  int clicks = 0;
  form.Check1.on_click = form.Option1.on_click = form.Option2.on_click = [&] { ++clicks; };
  form.Check1.click();
  EXPECT_TRUE(form.Check1.checked());
  form.Check1.click();
  EXPECT_FALSE(form.Check1.checked());
  form.Check1.set_value(1);
  form.Option1.set_on(true);
  form.Other.set_on(true);
  form.Option2.click();
  EXPECT_EQ(clicks, 3) << "the program's own writes fire nothing";
  EXPECT_TRUE(!form.Option1.on() && form.Option2.on());
  EXPECT_TRUE(form.Other.on()) << "it stands in another frame";
}

TEST_F(Controls, ListsAndGridsKeepToTheirItems) {
  form.List1.add_item("a");
  form.List1.set_fore_colour(colours::red);
  form.List1.add_item("b");
  form.List1.set_fore_colour(colours::black);
  EXPECT_EQ(form.List1.colour_of(0), colours::black);
  EXPECT_EQ(form.List1.colour_of(1), colours::red) << "that of the time when it was added";
  form.List1.pick(0);
  form.List1.clear();
  EXPECT_EQ(form.List1.list_index(), -1);
  EXPECT_EQ(failure_of([&] { form.List1.pick(0); }),
            "item 0 of Sample.List1 does not exist, it has 0 items, the first is 0");
  form.G.set_row(3);
  form.G.set_text("x");
  EXPECT_EQ(failure_of([&] { form.G.set_row(4); }), "row 4 of the table Sample.G is outside 0 to 3");
  EXPECT_THROW(form.G.set_column(3), RunFailure);
  EXPECT_EQ(form.G.text(), "x") << "a failure moves nothing";
}

TEST(WindowSet, ComesUpOnlyWhereItWasHidden) {
  SampleForm form;
  FocusView view;
  form.set_view(&view);
  const auto hidden = form.copy();
  form.show();
  const auto shown = form.copy();
  for (const auto* copy : {&shown, &hidden, &hidden, &shown}) form.put_back(*copy);
  EXPECT_EQ(view.shown, 1 + 1);
}

TEST(WindowSet, CreatesAtFirstUseAndUnloads) {
  Windows windows;
  int loads = 0;
  const auto load = [&](Window& window) {
    if (++loads > 2) throw std::bad_alloc();
    EXPECT_EQ(&windows.use("Sample"), &window) << "in place while its Form_Load runs";
    auto& form = dynamic_cast<SampleForm&>(window);
    form.Command1(0).on_click = [&windows, &form] {
      windows.unload("Sample");
      form.Text1.set_text("still there");  // the running handler may use it
    };
  };
  windows.add_type("Sample", {[] { return std::make_unique<SampleForm>(); }, load});
  EXPECT_EQ(windows.find("Sample"), nullptr);
  windows.use<SampleForm>().Text1.set_text("old");
  EXPECT_EQ(windows.use<SampleForm>().Text1.text(), "old");
  windows.use<SampleForm>().Command1(0).click();
  windows.free_unloaded();
  EXPECT_EQ(windows.use<SampleForm>().Text1.text(), "");
  windows.unload("Sample");
  EXPECT_THROW(windows.use("Sample"), std::bad_alloc);
  EXPECT_EQ(windows.find("Sample"), nullptr) << "no window whose load fails is kept";
  EXPECT_THROW(windows.use("None"), RunFailure);
}

// Copies of what has not changed are shared, also where that is known without a look; no way to change may be missed.
TEST(FieldCopies, AreNewAfterEachKindOfChange) {
  BoundedArray<Single> array{"A", 3};
  BoundedTable<Single> table{"T", 2, 2};
  NamedValues fields;
  fields.add("A", array);
  fields.add("T", table);
  auto copies = fields.copies();
  const auto change = [&](const char* name, const std::function<void()>& act) {
    auto later = fields.copies(copies);
    EXPECT_TRUE(later == copies) << "nothing has changed before: " << name;
    act();
    later = fields.copies(copies);
    EXPECT_NE(later.at(name), copies.at(name));
    fields.put_back(copies);
    EXPECT_TRUE(fields.copies(copies) == copies) << name;
    fields.put_back(later);
    EXPECT_EQ(fields.copies(later), later) << name;
    copies = std::move(later);
  };
  auto other = array;
  change("A", [&] { array(2) = 5; });
  change("A", [&] { array = std::move(other); });
  other = BoundedArray<Single>("A", 2);
  other(1) = 7;
  change("A", [&] { std::swap(array, other); });
  change("A", [&] { array.allocate(3); });
  change("T", [&] { table(1, 1) = 2; });
  change("T", [&] { table.allocate(2, 2); });
  array(1) = 0;
  EXPECT_EQ(fields.copies(copies), copies) << "a write of what stands there";
}

TEST(Gate, LetsEventsWaitAndEndsWithTheFirstFailure) {
  std::string log;
  EventGate gate([&log] { log += '.'; },
                 [&log](const std::exception_ptr& failure) { log += "! " + failure_text(failure); });
  gate.set_journal([&log](const UserEvent& event) { log += '\n' + event.name + ':'; });
  gate.enter({"dialog", "", [&] {
                gate.enter({"first", "", [&] { gate.enter({"third", "", [] { throw 1; }}); }});
                gate.enter({"unloaded meanwhile", "", [] {}, [] { return false; }});
                gate.enter({"second", "", [] {}});
                log += " runs";
              }});
  gate.enter({"behind the end", "", [] {}});
  gate.fail(std::make_exception_ptr(std::bad_alloc()));
  EXPECT_EQ(log, "\ndialog: runs.\nfirst:.\nsecond:.\nthird:! the program is at fault, it does not say how");
  EXPECT_EQ(script_line({"set", "A.B", "a\"\\ \n#"}), R"(set A.B "a\"\\ \n#")");
}

TEST_F(Controls, AttemptsTellWhatGoesWrongAndLetAStopThrough) {
  FakeServices services;
  Label status{form, "Status"};
  const auto told_of = [&](const std::function<void()>& action) {
    attempt(services, form, status, action);
    return status.caption() + "|" + (services.messages.empty() ? "" : services.messages.back());
  };
  EXPECT_EQ(told_of([] {}), "|");
  EXPECT_EQ(told_of([] { throw RunFailure("no file"); }), "no file|no file");
  EXPECT_EQ(told_of([] { throw std::bad_alloc(); }), "not enough memory|not enough memory");
  EXPECT_THROW(attempt(services, form, status, [] { throw Cancelled(); }), Cancelled);
}

TEST(SaveDialogs, KnowTheNameThatWillBeWritten) {
  FakeServices services;
  FileDialog dialog(services);
  for (const auto& [answer, ending, written] :
       {std::tuple{"/a.b/pattern", NameEnding{".XDP", true}, "/a.b/pattern.XDP"},  // a dot in the name of the folder
        {"/a.b/pattern.txt", {".XDP", true}, "/a.b/pattern.txt"},
        {"pattern.", {".BMP", true}, "pattern."},
        {".hidden", {".XDP", true}, ".hidden"},
        {"pattern.bmp", {".bmp"}, "pattern.bmp.bmp"},
        {"", {".bmp"}, ".bmp"},  // cancelled
        {"report", {}, "report"}}) {
    services.answers = {answer};
    EXPECT_EQ(dialog.save_as(FileKind::Picture, ending), written);
    EXPECT_EQ(services.questions.back().ending.added_to(answer), written) << "what the dialog may ask about";
  }
  dialog.answering("dropped.cry", [&dialog] { EXPECT_EQ(dialog.open(FileKind::Crystal), "dropped.cry"); });
  EXPECT_EQ(dialog.file_title(), "dropped.cry");
  dialog.answering("dropped.cry", [] {});  // opens no dialog: the answer does not outlive its action
  services.answers = {"asked.cry"};
  EXPECT_EQ(dialog.open(FileKind::Crystal), "asked.cry");
}

// A name is proposed for its own kind only, and a cancel takes it away from none.
TEST(SaveDialogs, ProposeTheLastNameOfTheKind) {
  FakeServices services;
  FileDialog dialog(services);
  dialog.set_initial_folder("/pictures");
  dialog.set_initial_folder(FileKind::Corrector, "/data");
  services.answers = {"a.bmp", "", "corrector", "", "p"};
  (void)dialog.save(FileKind::Picture);
  EXPECT_EQ(dialog.save(FileKind::Picture), "");
  EXPECT_EQ(dialog.file_title(), "");
  (void)dialog.open(FileKind::Corrector);
  (void)dialog.save(FileKind::Picture);
  dialog.set_file_name("preset");
  (void)dialog.save(FileKind::Picture);
  std::string proposed;
  for (const auto& question : services.questions) proposed += question.initial_folder + ':' + question.file_name + ' ';
  EXPECT_EQ(proposed, "/pictures: /pictures:a.bmp /data: /pictures:a.bmp /pictures:preset ");
}

TEST(PastedRows, AreCutWhereTheirProgramParts) {
  using Rows = std::vector<std::vector<std::string>>;
  const std::pair<const char*, Rows> cases[] = {
      {"", {}},
      {"\n \r\n", {}},
      {"Na\t0,5\t\t1,5,5\r\nCl\t\"1\"\r\n", {{"Na", "0.5", "", "1,5,5"}, {"Cl", "1"}}},
      {"a;1,25;-,5\rb", {{"a", "1.25", "-.5"}, {"b"}}},
      {"Na1, Na, 0.5\nCl1,Cl,1", {{"Na1", "Na", "0.5"}, {"Cl1", "Cl", "1"}}},
      {"0,5,1", {{"0", "5", "1"}}},
      {"  Na1  Na 0,5 \n\nCl", {{"Na1", "Na", "0.5"}, {""}, {"Cl"}}},
      {"x", {{"x"}}}};
  for (const auto& [text, rows] : cases) EXPECT_EQ(pasted_rows(text), rows) << text;
}

TEST(Rulers, TickRoundNumbers) {
  for (const auto& [from, to, most, wanted] : {std::tuple{0.0, 100.0, 5, "0|||20|||40|||60|||80|||100"},
                                               {100.0, 0.0, 2, "0||||50||||100"},  // an axis that runs the other way
                                               {29.7, 30.32, 4, "||29.8|||30.0|||30.2||"},
                                               {-0.1, 0.1, 2, "-0.1||||0.0||||0.1"},
                                               {1.0, 1.0, 10, ""},
                                               {0.0, HUGE_VAL, 10, ""},
                                               {1e300, 1e300 * (1 + 1e-15), 10, ""}}) {
    std::string ticks;
    for (const Tick& tick : ruler_ticks(from, to, most)) ticks += tick.text.empty() ? "|" : tick.text;
    EXPECT_EQ(ticks, wanted);
  }
}

TEST(PrintedLines, HaveZonesOfFourteenColumns) {
  PrintLine line;
  line.add("Na1").add(0.5F).add(Integer(-3)).add("a text of more than a zone").add("exactly14chars").add("c");
  EXPECT_EQ(line.text(), "Na1            .5           -3            a text of more than a zone  exactly14charsc");
}

}  // namespace
}  // namespace zol
