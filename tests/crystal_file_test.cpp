#include "core/crystal_file.h"

#include <gtest/gtest.h>

#include "tests/test_files.h"

namespace zol {
namespace {

constexpr auto cell_line = "4.05,5,6,90,91.5,90,\"F\",225,\"abc\"\r\n";

struct Loaded {
  CrystalState state;
  bool has_contents = false;
};

Loaded load(const ScratchFolder& folder, const std::string& rest) {
  Loaded loaded;
  CrystalFileReader file(folder.write("x.cry", cell_line + rest));
  file.read_cell(loaded.state);
  loaded.has_contents = file.read_contents(loaded.state);
  return loaded;
}

TEST(CrystalFile, MayEndBehindTheCell) {
  const ScratchFolder folder;
  const auto loaded = load(folder, " \r\n\r\n");
  EXPECT_FALSE(loaded.has_contents);
  EXPECT_EQ(loaded.state.NAtom, -1);
  EXPECT_EQ(loaded.state.CellBeta, 91.5F);
  EXPECT_EQ(loaded.state.SGNumber, 225);
  EXPECT_EQ(loaded.state.AxisSetting, "abc");
}

TEST(CrystalFile, TakesTheAtomsThatTheCountTells) {
  const ScratchFolder folder;
  for (const auto* count : {"2", "-2,7,8,9,2", "-5\r\n7\r\n8\r\n9\r\n2"}) {
    const auto loaded =
        load(folder,
             std::string(count) + "\r\n\"A,1\",\"Al\",1,0,.5,1E-1,0.5\r\nB,Fe3+,.5,0,0,0,1\r\n\"C\",\"O\",1,0,0,0,0");
    EXPECT_TRUE(loaded.has_contents);
    ASSERT_EQ(loaded.state.NAtom, 2) << count;
    EXPECT_EQ(loaded.state.AtomLabel(1), "A,1");
    EXPECT_EQ(loaded.state.AtomPos(1, 3), 0.1F);
    EXPECT_EQ(loaded.state.AtomElement(2), "Fe3+");
    EXPECT_EQ(loaded.state.AtomLabel(3), "");
  }
}

TEST(CrystalFile, WithMinusOneAtomsHasNothingMore) {
  const ScratchFolder folder;
  const auto loaded = load(folder, "-1\r\n");
  EXPECT_TRUE(loaded.has_contents);
  EXPECT_EQ(loaded.state.NAtom, -1);
}

struct BrokenFile {
  const char* name;
  const char* rest;
  const char* message;
};
class BrokenCrystalFile : public testing::TestWithParam<BrokenFile> {};
TEST_P(BrokenCrystalFile, NamesLineAndField) {
  const ScratchFolder folder;
  const auto message = failure_of([&] { (void)load(folder, GetParam().rest); });
  EXPECT_EQ(message, folder.path("x.cry") + GetParam().message);
}
INSTANTIATE_TEST_SUITE_P(
    Files, BrokenCrystalFile,
    testing::Values(BrokenFile{"no_atoms_and_no_table", "0\r\n",
                               ", line 3: the file ends where the number of observed reflections is expected"},
                    BrokenFile{"atom_cut_short", "1\r\n\"A\",\"Al\",1,0,0\r\n",
                               ", line 4: the file ends where z of atom 1 is expected"},
                    BrokenFile{"bad_coordinate", "1\r\n\"A\",\"Al\",1,0,x,0,1\r\n",
                               ", line 3: y of atom 1 is \"x\", a number is expected"},
                    BrokenFile{"too_many_atoms", "1001\r\n",
                               ", line 2: the number of atoms is 1001, at most 1000 are allowed"},
                    BrokenFile{"too_many_rows", "0\r\n201\r\n",
                               ", line 3: the number of observed reflections is 201, at most 200 are allowed"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(CrystalFile, ComesBackTheSameToTheBit) {
  const ScratchFolder folder;
  auto first =
      load(folder, "2\r\n\"A,1\",\"Al\",.33333334,.1,.7,.123456789,0.5\r\n\"B\",\"O\",1,0,0,0,1e-12\r\n").state;
  first.CellA = 1.0F / 3.0F;
  first.JcpdsCount = 1;  // not saved beside atoms
  write_crystal_file(folder.path("y.cry"), first);
  CrystalState second;
  CrystalFileReader file(folder.path("y.cry"));
  file.read_cell(second);
  file.read_contents(second);
  EXPECT_EQ(second.CellA, first.CellA);
  for (int i = 1; i <= 2; ++i) {
    EXPECT_EQ(second.AtomLabel(i), first.AtomLabel(i));
    EXPECT_EQ(second.AtomOcc(i), first.AtomOcc(i));
    EXPECT_EQ(second.AtomB(i), first.AtomB(i));
    for (int axis = 1; axis <= 3; ++axis) EXPECT_EQ(second.AtomPos(i, axis), first.AtomPos(i, axis));
  }
  EXPECT_EQ(second.JcpdsCount, 0);
}

TEST(CrystalFile, StoresObservedReflectionsWithoutAtoms) {
  const ScratchFolder folder;
  auto state = load(folder, "0\r\n2\r\n1,1,1,100\r\n2,0,0.5,46\r\n").state;
  write_crystal_file(folder.path("y.cry"), state);
  EXPECT_EQ(folder.read("y.cry"), "4.05,5,6,90,91.5,90,\"F\",225,\"abc\"\r\n0\r\n2\r\n1,1,1,100\r\n2,0,.5,46\r\n");
  state.NAtom = -1;  // the table is written all the same
  write_crystal_file(folder.path("y.cry"), state);
  EXPECT_NE(folder.read("y.cry").find("\r\n-1\r\n2\r\n1,1,1,100\r\n"), std::string::npos);
}

}  // namespace
}  // namespace zol
