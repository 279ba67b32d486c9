#include <gtest/gtest.h>

#include "core/run_failure.h"
#include "shell/window_services.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct SampleForm : Window {
  static constexpr auto window_name = "Sample";
  SampleForm() : Window(window_name, "a sample") { fields().add("Answer", Answer); }
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  CheckBox Check1{*this, "Check1"};
  OptionButton Option1{*this, "Option1"};
  OptionButton Option2{*this, "Option2"};
  OptionButton Other{*this, "Other", "", "another frame"};
  ComboBox Combo1{*this, "Combo1"};
  ListBox List1{*this, "List1"};
  Grid G{*this, "G", 4, 3};
  ControlArray<CommandButton> Command1{*this, "Command1", 2, {"left", "right"}};
  Single Answer = 42;
};

TEST(TextBoxes, FireInsideTheWriteAndOnlyWhenTheTextDiffers) {
  SampleForm form;
  std::vector<std::string> seen;
  form.Text1.on_change = [&] {
    seen.push_back(form.Text1.text());
    form.Text2.set_text(form.Text1.text() + "!");  // a cascade runs to its end before the write returns
    if (form.Text1.text() == "90") form.Text1.set_text("85");
  };
  form.Text2.on_change = [&] { seen.push_back(form.Text2.text()); };
  form.Text1.set_text("1");
  form.Text1.set_text("1");
  form.Text1.set_text("90");
  EXPECT_EQ(seen, (std::vector<std::string>{"1", "1!", "90", "90!", "85", "85!"}));
}

TEST(TextBoxes, TypeCharacterByCharacter) {
  SampleForm form;
  std::vector<std::string> seen;
  form.Text1.on_change = [&] { seen.push_back(form.Text1.text()); };
  form.Text1.on_key_press = [](int& key) {
    if (key == key_enter || key == 'x') key = 0;
    if (key == ',') key = '.';
  };
  for (const char c : std::string("1,x2\b\r")) form.Text1.type(c);
  EXPECT_EQ(seen, (std::vector<std::string>{"1", "1.", "1.2", "1."}));
  form.Text2.type('\b');
  form.Text2.type('\r');
  EXPECT_EQ(form.Text2.text(), "");
}

TEST(Buttons, TurnOverAndExcludeEachOther) {
  SampleForm form;
  int clicks = 0;
  form.Check1.on_click = form.Option2.on_click = [&] { ++clicks; };
  form.Check1.click();
  EXPECT_TRUE(form.Check1.checked());
  form.Check1.click();
  EXPECT_FALSE(form.Check1.checked());
  form.Check1.set_value(1);
  form.Option1.set_on(true);
  form.Other.set_on(true);
  form.Option2.click();
  EXPECT_EQ(clicks, 3) << "the program's own writes fire nothing";
  EXPECT_FALSE(form.Option1.on());
  EXPECT_TRUE(form.Option2.on());
  EXPECT_TRUE(form.Other.on()) << "it stands in another frame";
}

TEST(Lists, PickFiresAndWritesDoNot) {
  SampleForm form;
  int clicks = 0;
  form.Combo1.on_click = form.List1.on_click = [&] { ++clicks; };
  form.Combo1.add_item("CuKa");
  form.Combo1.add_item("20");
  form.Combo1.set_text("17.5");
  EXPECT_EQ(form.Combo1.text(), "17.5");
  EXPECT_EQ(clicks, 0);
  form.Combo1.pick(1);
  EXPECT_EQ(form.Combo1.text(), "20");
  form.List1.add_item("a");
  form.List1.add_item("b");
  form.List1.pick(1);
  EXPECT_EQ(clicks, 2);
  EXPECT_TRUE(form.List1.selected(1));
  EXPECT_FALSE(form.List1.selected(0));
  form.List1.clear();
  EXPECT_EQ(form.List1.list_index(), -1);
  EXPECT_EQ(failure_of([&] { form.List1.pick(0); }),
            "item 0 of Sample.List1 does not exist, it has 0 items, the first is 0");
}

TEST(Grids, KeepTheCurrentCellInsideTheTable) {
  SampleForm form;
  form.G.set_row(3);
  form.G.set_column(2);
  form.G.set_text("x");
  EXPECT_EQ(form.G.text(3, 2), "x");
  EXPECT_EQ(failure_of([&] { form.G.set_row(4); }), "row 4 of the table Sample.G is outside 0 to 3");
  EXPECT_THROW(form.G.set_column(3), RunFailure);
  EXPECT_EQ(form.G.row(), 3);
  form.G.set_columns(4);
  EXPECT_EQ(form.G.text(3, 2), "x") << "cells keep their place when the table grows";
  form.G.clear();
  EXPECT_EQ(form.G.text(), "");
}

TEST(WindowControls, AreFoundByName) {
  SampleForm form;
  EXPECT_EQ(form.find("Command1(1)"), &form.Command1(1));
  EXPECT_EQ(form.Command1(1).caption(), "right");
  EXPECT_EQ(form.find("Command1"), nullptr);
  EXPECT_EQ(form.fields().text("Answer", {}), "42");
  form.Answer = 7;
  EXPECT_EQ(form.fields().text("Answer", {}), "7");
  EXPECT_EQ(form.fields().dimensions("Question"), -1);
}

TEST(Failures, TellWhatWasBeingDone) {
  SampleForm form;
  form.Text2.on_change = [] { throw RunFailure("the file is missing"); };
  form.Command1(0).on_click = [&] { form.Text2.set_text("x"); };
  EXPECT_EQ(failure_of([&] { form.Command1(0).click(); }),
            "the file is missing, while Sample.Text2 changed, while Sample.Command1(0) was clicked");
}

TEST(WindowSet, CreatesAtFirstUseAndUnloads) {
  Windows windows;
  int loads = 0;
  windows.add_type("Sample", {[] { return std::make_unique<SampleForm>(); },
                              [&](Window& window) {
                                ++loads;
                                EXPECT_EQ(&windows.use("Sample"), &window) << "in place while its Form_Load runs";
                                auto& form = dynamic_cast<SampleForm&>(window);
                                form.Command1(0).on_click = [&windows, &form] {
                                  windows.unload("Sample");
                                  form.Text1.set_text("still there");  // the running handler may use it
                                };
                              }});
  EXPECT_EQ(windows.find("Sample"), nullptr);
  windows.use<SampleForm>().Text1.set_text("old");
  EXPECT_EQ(windows.use<SampleForm>().Text1.text(), "old");
  windows.use<SampleForm>().Command1(0).click();
  windows.free_unloaded();
  EXPECT_EQ(windows.find("Sample"), nullptr);
  EXPECT_EQ(windows.use<SampleForm>().Text1.text(), "");
  EXPECT_EQ(loads, 2);
  EXPECT_THROW(windows.use("None"), RunFailure);
}

TEST(PrintedLines, HaveZonesOfFourteenColumns) {
  PrintLine line;
  line.add("Na1").add(0.5F).add(Integer(-3)).add("").add("x");
  EXPECT_EQ(line.text(), "Na1            .5           -3                          x");
  PrintLine wide;
  wide.add("a text of more than a zone").add("b").add("exactly14chars").add("c");
  EXPECT_EQ(wide.text(), "a text of more than a zone  b             exactly14charsc");
}

TEST(FileDialogs, GivePathAndTitle) {
  FakeServices services;
  FileDialog dialog(services);
  dialog.set_initial_folder("/data");
  dialog.set_filter("bmp|*.bmp|");
  services.answers = {"/data/a/NaCl.cry", ""};
  EXPECT_EQ(dialog.open(), "/data/a/NaCl.cry");
  EXPECT_EQ(dialog.file_title(), "NaCl.cry");
  EXPECT_EQ(services.questions.front().initial_folder, "/data");
  EXPECT_EQ(services.questions.front().filter, "bmp|*.bmp|");
  EXPECT_EQ(dialog.save(), "");
  EXPECT_TRUE(services.questions.back().save);
  EXPECT_EQ(dialog.file_title(), "");
}

}  // namespace
}  // namespace zol
