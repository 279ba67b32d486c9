// The main window and the start of the program, on control objects, with the data files that ship.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "analysis/window/pattern3_form.h"
#include "kikuchi/window/pattern2_form.h"
#include "reflections/window/main1_form.h"
#include "reflections/window/main1_operations.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"
#include "tests/focus_view.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class Main1Test : public testing::Test {
 protected:
  Main1Test() { program.start(); }

  void load(const std::string& path) {
    services.answers.push_back(path);
    form().DATA_LOAD.click();
  }
  Main1Form& form() { return program.windows().use<Main1Form>(); }

  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
  ScratchFolder folder;
};

constexpr auto nacl =
    "5.6402,5.6402,5.6402,90,90,90,\"F\",225,\"abc\"\r\n2\r\n"
    "\"Na1\",\"Na\",1,0,0,0,1.2\r\n\"Cl1\",\"Cl\",1,0.5,0.5,0.5,1.1\r\n";
constexpr auto bare_cell = "4,4,4,90,90,90,\"P\",221,\"abc\"\r\n";

TEST_F(Main1Test, RadiationSetsWavelengthAndMassRatio) {
  struct Row {
    const char* choice;
    double wavelength, mass_ratio;
  };
  // Below 100 kV Sqr(150/V), V in volts, without relativity; above, the tabulated pairs.
  for (const auto& row :
       {Row{"5", 0.17320508, 1}, Row{"30", 0.07071068, 1}, Row{"100", 0.0371, 1.194}, Row{"120", 0.0335, 1.22},
        Row{"200", 0.0251, 1.388}, Row{"300", 0.0197, 1.588}, Row{"400", 0.0164, 1.777}, Row{"1000", 0.00872, 2.931},
        Row{"1250", 0.00736, 3.434}, Row{"CuKa", 1.542, 3.434}, Row{"MoKa", 0.717, 3.434}, Row{"10", 0.12247449, 1}}) {
    const auto& items = form().Combo1.items();
    form().Combo1.pick(static_cast<int>(std::find(items.begin(), items.end(), row.choice) - items.begin()));
    EXPECT_NEAR(state.WaveLength, row.wavelength, 1e-7) << row.choice;
    EXPECT_NEAR(state.MassRatio, row.mass_ratio, 1e-6) << row.choice;
    EXPECT_EQ(form().Option1.on(), row.wavelength > 0.5) << row.choice << ": X-rays";
  }
  EXPECT_EQ(program.windows().use<Pattern2Form>().Text21.text(), "10");
  EXPECT_EQ(program.windows().use<Pattern3Form>().Text5.text(), "10");
}

TEST_F(Main1Test, SpaceGroupLoadsAtEveryKeystroke) {
  std::vector<std::string> passed;
  for (const char c : std::string("225")) {
    form().Text7.type(c);
    passed.push_back(form().Label16.caption());
  }
  EXPECT_EQ(passed, (std::vector<std::string>{"P-1", "F222", "Fm3m"}));
  EXPECT_EQ(form().List3.items().back(), " 250 P63/mmc-b");
  EXPECT_EQ(state.SystemName, "CUBIC");
  EXPECT_EQ(state.LatticeLetter, "F");
  form().Text7.type('0');
  EXPECT_EQ(form().Label16.caption(), "") << "2250 is no number of a file";
  EXPECT_EQ(state.SGName, "Fm3m");
  EXPECT_EQ(
      failure_of([&] { form().Text7.set_text("40000"); }),
      "\"S.G=\" (Main1.Text7) is \"40000\": overflow: 40000 does not fit an Integer (-32768 to 32767), while \"S.G=\" "
      "(Main1.Text7) changed");
}

TEST_F(Main1Test, CellFollowsTheCrystalSystem) {
  const std::array boxes{&form().Text1, &form().Text2, &form().Text3, &form().Text4, &form().Text5, &form().Text6};
  const std::array start{"4", "5", "6", "91", "92", "93"};
  const std::map<std::string, std::string> cells{
      {"225", "4 4 4 90 90 90 "}, {"194", "4 4 6 90 90 120 "}, {"167", "4 4 6 90 90 120 "},
      {"136", "4 4 6 90 90 90 "}, {"62", "4 5 6 90 90 90 "},   {"14", "4 5 6 90 92 90 "},
      {"2", "4 5 6 91 92 93 "},   {"238", "4 5 6 91 92 93 "}};  // MONOC is no system that constrains
  for (const auto& [number, cell] : cells) {
    form().Text7.set_text(number);
    for (std::size_t i = 0; i < 6; ++i) boxes[i]->set_text(start[i]);
    form().Text7.leave();
    std::string found;
    for (const auto* box : boxes) found += box->text() + ' ';
    EXPECT_EQ(found, cell) << number;
  }
  form().Text2.set_text("5");
  form().Text7.set_text("249");  // cubic, but no number of the International Tables
  form().Text1.leave();
  EXPECT_EQ(form().Text2.text(), "5");
  form().Text7.leave();
  EXPECT_EQ(form().Text2.text(), "4");
}

TEST_F(Main1Test, EnterMovesOn) {
  FocusView view;
  form().set_view(&view);
  for (auto* box : {&form().Text1, &form().Text2, &form().Text3, &form().Text4, &form().Text5, &form().Text6,
                    &form().Text18, &form().Text19, &form().Text20, &form().Text7}) {
    box->type('\r');
  }
  form().set_view(nullptr);
  const std::vector<std::string> expected{"Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text19", "Text20"};
  EXPECT_EQ(view.wanted, expected);
}

TEST_F(Main1Test, UnknownElementEmptiesTheList) {
  std::string text = nacl;
  text.replace(text.find("\"Cl\""), 4, "\"Xx\"");
  load(folder.write("Xx.cry", text));
  EXPECT_EQ(services.messages, (std::vector<std::string>{"No Scattering factor table|Error"}));
  EXPECT_EQ(state.RefCount, 0);
  EXPECT_EQ(form().Label26.caption(), "0");
  EXPECT_EQ(form().List2.list_count(), 0);
}

TEST_F(Main1Test, CalcTakesWhatTheBoxesHold) {
  load(folder.write("NaCl.cry", nacl));
  form().Text15.set_text("0");
  services.answers = {"-1", "", "x", "2.5"};
  form().Command6.click();
  EXPECT_EQ(services.prompts, std::vector<std::string>(4, "Input D-value Minimum|D-value Minimum"));
  EXPECT_EQ(form().Text15.text(), "2.5");
  EXPECT_EQ(state.RefCount, 14);
  for (const auto* zero : {"0", " "}) {
    form().Text19.set_text(zero);
    form().Command6.click();
    EXPECT_EQ(state.RefCount, 4) << "200 and 002 with their mates; a blank is a zero";
  }
  form().Text19.set_text("");
  form().Check4.set_value(1);
  form().Command6.click();
  EXPECT_EQ(state.RefCount, 4) << "k = 0; the hidden box acts";
  form().Text15.set_text("");
  EXPECT_NE(failure_of([&] { form().Command9.click(); }).find("division by zero"), std::string::npos);
}

TEST_F(Main1Test, TheTwoLoadsDifferOnAFileThatEndsBehindTheCell) {
  const auto full_path = folder.write("NaCl.cry", nacl);
  const auto cell_path = folder.write("cell.cry", bare_cell);
  load(full_path);
  services.answers = {cell_path};
  CRYSTAL_SELECT(program.bench());
  EXPECT_EQ(form().Text17.text(), full_path);
  EXPECT_EQ(program.windows().use<Pattern2Form>().Label18.caption(), "NaCl.cry");
  EXPECT_EQ(form().Label19.caption(), "-1");
  load(cell_path);
  EXPECT_EQ(form().Text17.text(), cell_path);
  EXPECT_EQ(program.windows().use<Pattern2Form>().Label18.caption(), "cell.cry");
  EXPECT_EQ(program.windows().use<Pattern3Form>().Label6.caption(), "cell.cry");
  EXPECT_EQ(form().Label26.caption(), "");

  load(folder.write("jcpds.cry", std::string(bare_cell) + "0\r\n1\r\n1,0,0,9\r\n"));
  services.answers = {full_path};
  CRYSTAL_SELECT(program.bench());
  EXPECT_EQ(form().Label31.caption(), " 1") << "only the menu empties it";
  load(full_path);
  EXPECT_EQ(form().Label31.caption(), "");

  services.answers = {folder.write("bad.cry", "4,4,4,90,90,90,\"P\",299,\"abc\"\r\n")};
  const auto message = failure_of([&] { form().DATA_LOAD.click(); });
  EXPECT_NE(message.find("SpaceGr/NO299.dat"), std::string::npos) << message;
  EXPECT_NE(message.find("while \"S.G=\" (Main1.Text7) changed, while \"LOAD\" (Main1.DATA_LOAD) was clicked"),
            std::string::npos)
      << message;
}

TEST_F(Main1Test, KikuchiButtonResetsTheCameraOffset) {
  state.CamXShift = 3;
  state.CamXYRatio = 2;
  auto& pattern2 = program.windows().use<Pattern2Form>();
  pattern2.Check2.set_value(1);
  form().Command10.click();
  EXPECT_FALSE(pattern2.Check2.checked());
  EXPECT_EQ(pattern2.Text14.text(), "0");
  EXPECT_EQ(state.CamXShift, 0);
  EXPECT_EQ(state.CamXYRatio, 1);
}

TEST_F(Main1Test, JcpdsButtonKeepsTheAtomsButForgetsTheirNumber) {
  load(folder.write("NaCl.cry", nacl));
  form().Command15.click();
  EXPECT_EQ(state.NAtom, 0);
  EXPECT_EQ(state.AtomLabel(2), "Cl1");
  EXPECT_EQ(form().List1.list_count(), 0);
}

TEST_F(Main1Test, WantedReflectionsAreClippedWhenTheBoxIsLeft) {
  load(folder.write("NaCl.cry", nacl));
  auto& pattern3 = program.windows().use<Pattern3Form>();
  EXPECT_EQ(state.RefCount, 168);
  EXPECT_EQ(pattern3.Label8.caption(), "56") << "50 wanted, six more of the same form";
  form().Text15.set_text("3");
  form().Command6.click();
  pattern3.Text2.set_text("500");
  pattern3.Text2.leave();
  EXPECT_EQ(pattern3.Text2.text(), "8");
  EXPECT_EQ(pattern3.NhklUsed, 8);
}

TEST_F(Main1Test, ReportsHaveNoHeader) {
  load(folder.write("NaCl.cry", nacl));
  form().Text15.set_text("3");
  form().Command6.click();
  services.answers = {folder.path("atoms"), folder.path("reflections"), ""};
  form().Command2.click();
  form().Command4.click();
  EXPECT_EQ(folder.read("atoms").substr(0, 28), "8\r\n\"Na1\",\"Na\",1,0,0,0,1.2\r\n\"");
  const auto reflections = folder.read("reflections");
  EXPECT_EQ(std::count(reflections.begin(), reflections.end(), '\n'), 8);
  EXPECT_EQ(std::count(reflections.begin(), reflections.end(), ','), 40);
  EXPECT_EQ(state.CrystalFile, folder.path("reflections"));
  EXPECT_EQ(form().Text17.text(), folder.path("NaCl.cry"));
  form().Command4.click();
  EXPECT_EQ(state.CrystalFile, "") << "a cancelled dialog leaves it empty";
}

}  // namespace
}  // namespace zol
