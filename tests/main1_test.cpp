// What the script of the main window (scripts/main_window.zs) cannot show: failures, report files, and where Enter
// leads.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/read_file.h"
#include "entry/window/input_atom_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"
#include "tests/focus_view.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class Main1Test : public testing::Test {
 protected:
  Main1Test() {
    program.start();
    services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry"};
    form().DATA_LOAD.click();
  }
  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  Main1Form& form() { return program.windows().use<Main1Form>(); }
  CrystalState& state = program.state();
  ScratchFolder folder;
};

// Opening a structure never ends the run: a failure of the calculation behind it leaves everything as it was, too.
TEST_F(Main1Test, StructuresAreSavedAndOpenedOrRefused) {
  services.answers = {folder.path("salt")};
  state.AtomElement(1) = "Na1+";
  form().ExportStructure.click();
  services.answers = {folder.path("salt.cif")};
  form().Text1.set_text("9");
  form().ImportStructure.click();
  EXPECT_EQ(state.CellA, 5.6402F);
  EXPECT_EQ(state.NCell, 8);
  EXPECT_EQ(form().Text17.text(), folder.path("salt.cif"));
  ASSERT_FALSE(services.messages.empty());
  EXPECT_EQ(services.messages.front(), "CIF: NaCl");

  // A setting of no table takes the origin of its group's table along, as some programs read the symbol alone.
  services.answers = {ZOL_SOURCE_DIR "/data/ZOLDATA/Titanium.cry"};
  form().DATA_LOAD.click();
  services.answers = {folder.path("titanium.cif")};
  form().ExportStructure.click();
  const std::string text = read_file(folder.path("titanium.cif"));
  for (const auto line : {"_name_H-M_alt 'P 63/m m c'\n", "_cell_length_a 2.95\n", "Ti .3333333 .6666667 -.25 1 "}) {
    EXPECT_NE(text.find(line), std::string::npos) << line << text;
  }
  services.answers = {folder.path("salt.cif")};
  form().ImportStructure.click();

  for (const auto& [number, axes] : {std::pair(255, "abc"), std::pair(225, "cba")}) {
    state.SGNumber = number;
    state.AxisSetting = axes;
    form().ExportStructure.click();
    EXPECT_TRUE(services.messages.back().starts_with("there are no operators of space group ")) << number;
  }
  state.SGNumber = 225;
  state.AxisSetting = "abc";

  form().Text18.set_text("99999");  // a fixed index that is no Integer
  services.answers = {ZOL_SOURCE_DIR "/examples/cif/quartz.cif"};
  form().ImportStructure.click();
  EXPECT_EQ(state.CellA, 5.6402F);
  EXPECT_EQ(state.AtomElement(1), "Na1+");
  EXPECT_EQ(form().Label16.caption(), "Fm3m");
  EXPECT_TRUE(services.messages.back().starts_with("quartz.cif: ")) << services.messages.back();
}

// The last box of a row keeps the focus, or calculates, as the scripts show.
TEST_F(Main1Test, EnterMovesOnInTheWindowsOfNumbers) {
  struct Row {
    const char* window;
    std::vector<std::string> boxes;
  };
  FocusView view;
  for (const auto& [window, boxes] :
       {Row{"Main1", {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}},
        {"Main1", {"Text18", "Text19", "Text20"}},
        {"Utility", {"Text1", "Text2", "Text3", "Text4"}},
        {"Utility", {"Text9", "Text8", "Text7", "Text6"}},
        {"Utility",
         {"Text5(0)", "Text5(1)", "Text5(2)", "Text5(3)", "Text5(4)", "Text5(5)", "Text5(6)", "Text5(7)", "Text5(8)"}},
        {"Utility", {"Text10", "Text11", "Text12", "Text13", "Text14", "Text15"}},
        {"Utility", {"Text46", "Text47", "Text48", "Text49", "Text50", "Text51"}},
        {"Pattern2", {"Text3", "Text4", "Text5"}},
        {"Pattern2", {"Text11", "Text12", "Text13"}},
        {"Zaxis", {"Text4", "Text5", "Text6"}}}) {
    Window& shown = program.windows().use(window);
    shown.set_view(&view);
    view.wanted = {boxes.front()};
    for (const auto& name : boxes) {
      if (name != boxes.back()) dynamic_cast<TextBox&>(*shown.find(name)).type('\r');
      EXPECT_EQ(dynamic_cast<TextBox&>(*shown.find(name)).text().find('\r'), std::string::npos) << name;
    }
    EXPECT_EQ(view.wanted, boxes) << window;
    shown.set_view(nullptr);
  }
}

TEST_F(Main1Test, ButtonsAnswer) {
  form().Command6.click();
  for (const auto& [owner, button, opened] : {std::array{"MAIN_MENU", "Command1", "Main1"},
                                              {"MAIN_MENU", "Command2", "Pattern2"},
                                              {"MAIN_MENU", "Command3", "PATTERN3"},
                                              {"MAIN_MENU", "Camera_parameters", "CameraParameters"},
                                              {"MAIN_MENU", "Show_Utility", "Utility"},
                                              {"Main1", "Command1", "InputAtom"},
                                              {"Main1", "Command7", "Xd"},
                                              {"Main1", "Command8", "Dring"},
                                              {"Main1", "Command9", "Pattern"},
                                              {"Main1", "Command10", "Pattern2"},
                                              {"Main1", "Command11", "AtomDistance"},
                                              {"Main1", "Command12", "FiberTexture"},
                                              {"Main1", "Command13", "PATTERN3"},
                                              {"Main1", "Command15", "InputJCPDS"},
                                              {"Main1", "Show_utility", "Utility"}}) {
    program.windows().use(opened).hide();
    Control* control = program.windows().use(owner).find(button);
    if (auto* item = dynamic_cast<MenuItem*>(control)) item->click();
    if (auto* command = dynamic_cast<CommandButton*>(control)) command->click();
    EXPECT_TRUE(program.windows().use(opened).visible()) << owner << '.' << button;
  }
  for (const auto& name : program.windows().names()) {
    for (const Control* control : program.windows().use(name).controls()) {
      const auto* command = dynamic_cast<const CommandButton*>(control);
      const auto* item = dynamic_cast<const MenuItem*>(control);
      if ((command != nullptr && !command->on_click) || (item != nullptr && !item->on_click))
        ADD_FAILURE() << control->path() << " does nothing";
    }
  }
}

TEST_F(Main1Test, FailuresTellTheBoxAndTheFile) {
  EXPECT_EQ(
      failure_of([&] { form().Text7.set_text("40000"); }),
      "\"S.G=\" (Main1.Text7) is \"40000\": overflow: 40000 does not fit an Integer (-32768 to 32767), while \"S.G=\" "
      "(Main1.Text7) changed");
  services.answers = {folder.write("bad.cry", "4,4,4,90,90,90,\"P\",299,\"abc\"\r\n")};
  const auto message = failure_of([&] { form().DATA_LOAD.click(); });
  EXPECT_NE(message.find("SpaceGr/NO299.dat"), std::string::npos) << message;
  EXPECT_NE(message.find("while \"S.G=\" (Main1.Text7) changed, while \"LOAD\" (Main1.DATA_LOAD) was clicked"),
            std::string::npos)
      << message;
  form().Text15.set_text("");
  EXPECT_NE(failure_of([&] { form().Command9.click(); }).find("division by zero"), std::string::npos);
}

TEST_F(Main1Test, FilesAreAskedForWithTheirFilters) {
  services.questions.clear();
  services.answers.assign(6, "");
  for (MenuItem* item : {&form().DATA_LOAD, &form().DATA_SAVE, &form().ImportFromICSD, &form().ImportfromCIF}) {
    item->click();
  }
  form().Command2.click();
  program.windows().use<InputAtomForm>().Import_CIF.click();
  std::vector<std::string> asked;
  for (const auto& question : services.questions) asked.push_back(question.filter + (question.save ? " saves" : ""));
  EXPECT_EQ(asked, (std::vector<std::string>{"Crystal files|*.cry|", "Crystal files|*.cry| saves", "Text files|*.txt|",
                                             "CIF|*.cif|", "Text files|*.txt| saves", "Lists of atoms|*.txt;*.cif|"}));
  EXPECT_EQ(services.questions[1].initial_folder, ZOL_SOURCE_DIR "/data/ZOLDATA");
}

TEST_F(Main1Test, ReportsHaveNoHeader) {
  form().Text15.set_text("3");
  form().Command6.click();
  services.answers = {folder.path("atoms"), folder.path("reflections"), ""};
  form().Command2.click();
  form().Command4.click();
  EXPECT_EQ(folder.read("atoms").substr(0, 27), "8\r\n\"Na\",\"Na\",1,0,0,0,1.6\r\n\"");
  const auto reflections = folder.read("reflections");
  EXPECT_EQ(std::count(reflections.begin(), reflections.end(), '\n'), 8);
  EXPECT_EQ(std::count(reflections.begin(), reflections.end(), ','), 40);
  EXPECT_EQ(state.CrystalFile, folder.path("reflections"));
  EXPECT_EQ(form().Text17.text(), ZOL_SOURCE_DIR "/data/ZOLDATA/NaCl.cry");
  form().Command4.click();
  EXPECT_EQ(state.CrystalFile, "") << "a cancelled dialog leaves it empty";
}

}  // namespace
}  // namespace zol
