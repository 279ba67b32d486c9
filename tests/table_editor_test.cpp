// The edges of the two tables; the rest of them walks through scripts/tables.zs.
#include "entry/window/table_editor.h"

#include <gtest/gtest.h>

#include "entry/window/input_atom_form.h"
#include "reflections/window/main1_form.h"
#include "shell/program/program.h"
#include "tests/fake_services.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(TableEditor, HasTwoHundredRows) {
  FakeServices services;
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  program.start();
  auto& form = program.windows().use<InputAtomForm>();
  Grid& grid = form.G;
  for (int row = 1; row <= 200; ++row) put_cell(grid, row, 1, std::to_string(row));
  EXPECT_EQ(filled_rows(grid), 200);
  grid.set_row(199);
  form.Command4.click();
  EXPECT_EQ(grid.text(199, 0) + grid.text(199, 1) + grid.text(200, 1), " 199200200") << "the last row stays";
  EXPECT_EQ(std::pair(grid.row(), grid.column()), std::pair(199, 7));
  grid.set_row(200);
  form.Command4.click();
  EXPECT_EQ(grid.row(), 200) << "nothing follows the last row";
  EXPECT_EQ(failure_of([&] { grid.press_key(key_enter); }),
            "row 201 of the table InputAtom.G is outside 0 to 200, while a key was pressed in InputAtom.G");
  EXPECT_EQ(grid.press_key(key_backspace), 0) << "nothing else takes it";
  form.Command2.click();
  program.state().NAtom = 200;
  EXPECT_NE(failure_of([&] { program.windows().use<InputAtomForm>(); }).find("row 201 of the table InputAtom.G"),
            std::string::npos)
      << "no room behind two hundred atoms";
}

}  // namespace
}  // namespace zol
