// The two table editors on control objects.
#include "entry/window/table_editor.h"

#include <gtest/gtest.h>

#include "entry/window/input_atom_form.h"
#include "entry/window/input_jcpds_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

class TableEditor : public testing::Test {
 protected:
  TableEditor() {
    program.start();
    main1().Text7.set_text("2");
  }
  Main1Form& main1() { return program.windows().use<Main1Form>(); }
  InputAtomForm& atoms() { return program.windows().use<InputAtomForm>(); }
  InputJcpdsForm& lines() { return program.windows().use<InputJcpdsForm>(); }
  static void type(Grid& grid, const std::string& text) {
    for (const char c : text) grid.press_key(static_cast<unsigned char>(c));
  }

  FakeServices services;
  Program program{{ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services};
  CrystalState& state = program.state();
  ScratchFolder folder;
};

TEST_F(TableEditor, EnterWalksByRowsAndKeepsCellsWithNothingTyped) {
  auto& grid = atoms().G;
  type(grid, "Na1\rNa\r1\r0\r0\r0\r.5\rCl1\r\r");
  EXPECT_EQ(std::pair(grid.row(), grid.column()), std::pair(2, 3));
  EXPECT_EQ(grid.text(1, 7), ".5");
  EXPECT_EQ(grid.text(2, 1), "Cl1");
  grid.set_column(1);
  type(grid, "\r");
  EXPECT_EQ(grid.text(2, 1), "Cl1");
  type(grid, "ab\bc");
  EXPECT_EQ(atoms().Text1.text(), "ac");
  type(grid, "\b\b");
  EXPECT_EQ(atoms().Text1.text(), "");
  type(grid, "\bX\r");
  EXPECT_EQ(grid.text(2, 2), "\bX") << "a backspace stays in an empty buffer";
  grid.set_row(200);
  grid.set_column(7);
  EXPECT_EQ(failure_of([&] { type(grid, "1\r"); }),
            "row 201 of the table InputAtom.G is outside 0 to 200, while a key was pressed in InputAtom.G");
}

TEST_F(TableEditor, DeletedRowPullsTheOthersUp) {
  auto& grid = atoms().G;
  for (int row = 1; row <= 200; ++row) put_cell(grid, row, 1, std::to_string(row));
  grid.set_row(3);
  atoms().Command4.click();
  EXPECT_EQ(grid.text(2, 1), "2");
  EXPECT_EQ(grid.text(3, 1), "4");
  EXPECT_EQ(grid.text(3, 0), " 3") << "the numbers stay";
  EXPECT_EQ(grid.text(199, 1), "200");
  EXPECT_EQ(grid.text(200, 1), "200") << "the last row stays and stands twice";
  EXPECT_EQ(std::pair(grid.row(), grid.column()), std::pair(199, 7));
  grid.set_row(200);
  grid.set_column(1);
  atoms().Command4.click();
  EXPECT_EQ(grid.row(), 200) << "nothing follows the last row";
  EXPECT_EQ(grid.text(200, 1), "200");
  atoms().Command3.click();
  EXPECT_EQ(grid.text(200, 1), "");
}

TEST_F(TableEditor, OkTakesTheSitesBeforeTheFirstEmptyName) {
  auto& grid = atoms().G;
  type(grid, "A\rNa\rx\r.25(1)\r\r\r\rB\r");
  put_cell(grid, 4, 1, "dropped");
  atoms().Text2.set_text(".5");
  atoms().Text4.set_text("-.1");
  type(grid, "typed without Enter");
  atoms().Command1.click();
  EXPECT_EQ(main1().Label19.caption(), " 2");
  EXPECT_EQ(state.AtomOcc(1), 0);
  EXPECT_EQ(state.AtomPos(1, 1), 0.75F);
  EXPECT_EQ(state.AtomPos(2, 3), -0.1F) << "the shift goes to every site";
  EXPECT_EQ(state.AtomElement(2), "");
  EXPECT_EQ(state.NCell, 4);
  EXPECT_EQ(atoms().Text2.text(), "") << "a new window each time";
  EXPECT_EQ(atoms().G.text(1, 4), ".75");
  EXPECT_EQ(atoms().G.row(), 3);
  atoms().G.clear();
  atoms().Command2.click();
  EXPECT_EQ(state.NAtom, 2) << "CANCEL changes nothing";
  state.NAtom = 200;
  EXPECT_NE(failure_of([&] { (void)atoms(); }).find("row 201 of the table InputAtom.G"), std::string::npos)
      << "no room behind two hundred atoms";
}

TEST_F(TableEditor, ImportEmptiesTheTableEvenWhenCancelled) {
  put_cell(atoms().G, 5, 1, "old");
  services.answers = {folder.write("list", "Si1 .1 .2 .3\n"), ""};
  atoms().Import_CIF.click();
  EXPECT_EQ(atoms().G.text(1, 2), "Si");
  EXPECT_EQ(atoms().G.text(5, 1), "");
  EXPECT_EQ(atoms().G.text(5, 0), " 5");
  EXPECT_EQ(atoms().G.text(0, 7), "Biso");
  atoms().Import_MINCRYST.click();
  EXPECT_EQ(atoms().G.text(1, 1), "");
  EXPECT_EQ(state.NAtom, 0) << "only OK takes the table over";
}

TEST_F(TableEditor, ObservedReflectionsGoTheWholeWay) {
  main1().Text7.set_text("225");
  main1().Text1.set_text("3.615");
  main1().Text7.leave();
  main1().Command15.click();
  EXPECT_TRUE(lines().visible());
  type(lines().G, "100\r1\r1\r1\r46\r2\r0\r0\r");
  lines().Command1.click();
  EXPECT_EQ(main1().Label31.caption(), " 2");
  main1().Command6.click();
  EXPECT_EQ(main1().List2.list_count(), 14) << "8 of {111} and 6 of {200}";
  services.answers = {folder.path("Cu.cry"), folder.path("Cu.cry")};
  main1().DATA_SAVE.click();
  state.JcpdsCount = 0;
  main1().DATA_LOAD.click();
  EXPECT_EQ(state.JcpdsI(2), 46);
  EXPECT_EQ(main1().List2.list_count(), 14);
  EXPECT_EQ(lines().G.text(2, 1), "46");
  EXPECT_EQ(lines().G.row(), 3);
}

TEST_F(TableEditor, IcsdImportReplacesTheCrystal) {
  services.answers = {folder.write("icsd",
                                   "Unit Cell 4.123 4.123 4.123 90 90 90\nSG Pm3m 221\n"
                                   "Atom # OX SITE x y z SOF H ITF(B)\nCs 1 +1 1 a 0 0 0 1 0 2\n"),
                      ""};
  main1().ImportFromICSD.click();
  EXPECT_EQ(main1().Label16.caption(), "Pm3m");
  EXPECT_EQ(state.CellA, 4.123F);
  EXPECT_EQ(main1().Label20.caption(), " 1(1.0)");
  main1().ImportFromICSD.click();
  EXPECT_EQ(main1().Label19.caption(), " 1") << "cancelled";
}

}  // namespace
}  // namespace zol
