#include "core/crystal_file.h"

#include <gtest/gtest.h>

#include "core/camera_file.h"
#include "core/record_reader.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(Records, FieldsRunOverLinesOfAllKinds) {
  RecordReader file("x", "1, 2\r\n\"a, b\" ,c d\r3\n  .5");
  EXPECT_EQ(file.next_integer("n"), 1);
  EXPECT_EQ(file.next_single("x"), 2);
  EXPECT_EQ(file.next_string("s"), "a, b");
  EXPECT_EQ(file.next_string("s"), "c d");
  EXPECT_EQ(file.next_single("x"), 3);
  EXPECT_EQ(file.line(), 3);
  EXPECT_FALSE(file.at_end());
  EXPECT_EQ(file.next_single("x"), 0.5F);
  EXPECT_EQ(file.line(), 4);
  EXPECT_TRUE(file.at_end());
}

TEST(Records, NumbersTakeWhatAFieldStartsWith) {
  RecordReader file("x", "1 2,-.5E1,.333333343,12abc,2.5,\"7\",-32768.5");
  for (const Single number : {1.0F, -5.0F, 1.0F / 3.0F}) EXPECT_EQ(file.next_single("x"), number);
  for (const int number : {12, 2, 7, -32768})
    EXPECT_EQ(file.next_integer("n"), number) << "halves go to the even number";
  // Just above the middle between 1 and the next Single: as a Double it is that middle, which goes to the even side.
  EXPECT_EQ(RecordReader("x", "1.000000059604644775390626").next_single("x"), 1.0F);
}

TEST(Records, WhenBrokenAreToldWithFileLineAndField) {
  for (const auto& [text, message] :
       {std::pair{"", "line 1: the file ends where the label is expected"},
        {"a\r\n1\r\n\r\n", "line 3: the file ends where the count is expected"},
        {"a\nb,2", "line 2: x is \"b\", a number is expected"},
        {"a,1\n\n\nq", "line 2: the count is \"\", a whole number is expected"},
        {"a,1,32768", "line 1: the count is \"32768\", it must be within -32768 to 32767"},
        {"a,1,-32769", "line 1: the count is \"-32769\", it must be within -32768 to 32767"},
        {"a,1e40,1", "line 1: x is \"1e40\", too large for a Single (below 3.4E+38)"},
        {"\"a\nb\r\nc\",x", "line 3: x is \"x\", a number is expected"},
        {"\"a,1\n2", "line 1: the quote before the label has no closing quote"}}) {
    RecordReader file("my.cry", text);  // of a string, a Single and an Integer
    const auto failure = failure_of([&file] {
      (void)file.next_string("the label");
      (void)file.next_single("x");
      (void)file.next_integer("the count");
    });
    EXPECT_EQ(failure, std::string("my.cry, ") + message);
  }
}

constexpr auto cell_line = "4.05,5,6,90,91.5,90,\"F\",225,\"abc\"\r\n";

CrystalState load(const ScratchFolder& folder, const std::string& rest, bool has_contents = true) {
  CrystalState state;
  CrystalFileReader file(folder.write("x.cry", cell_line + rest));
  file.read_cell(state);
  EXPECT_EQ(file.read_contents(state), has_contents) << rest;
  return state;
}

TEST(CrystalFile, MayEndBehindTheCell) {
  const ScratchFolder folder;
  EXPECT_EQ(load(folder, " \r\n\r\n", false).NAtom, -1);
  EXPECT_EQ(load(folder, "-1\r\n").NAtom, -1) << "of no atoms";
}

// Behind a count below -1 stand four numbers of an older layout, the last of which counts.
TEST(CrystalFile, TakesTheAtomsThatTheCountTells) {
  const ScratchFolder folder;
  for (const std::string count : {"2", "-2,7,8,9,2", "-5\r\n7\r\n8\r\n9\r\n2"}) {
    const auto state = load(folder, count + "\r\n\"A,1\",\"Al\",1,0,.5,1E-1,0.5\r\nB,Fe3+,.5,0,0,0,1\r\nC,O,1,0,0,0,0");
    ASSERT_EQ(state.NAtom, 2) << count;
    EXPECT_EQ(state.AtomLabel(1), "A,1");
    EXPECT_EQ(state.AtomPos(1, 3), 0.1F);
    EXPECT_EQ(state.AtomElement(2), "Fe3+");
    EXPECT_EQ(state.AtomLabel(3), "");
  }
}

TEST(CrystalFile, WhenBrokenIsToldWithLineAndField) {
  const ScratchFolder folder;
  for (const auto& [rest, message] :
       {std::pair{"0\r\n", "line 3: the file ends where the number of observed reflections is expected"},
        {"1\r\n\"A\",\"Al\",1,0,0\r\n", "line 4: the file ends where z of atom 1 is expected"},
        {"1001\r\n", "line 2: the number of atoms is 1001, at most 1000 are allowed"},
        {"0\r\n201\r\n", "line 3: the number of observed reflections is 201, at most 200 are allowed"}}) {
    EXPECT_EQ(failure_of([&, contents = rest] { (void)load(folder, contents); }),
              folder.path("x.cry") + ", " + message);
  }
}

// What was read is written again letter for letter: a Single takes nine digits at most.
TEST(CrystalFile, ComesBackTheSameToTheBit) {
  const ScratchFolder folder;
  for (const std::string contents :
       {"2\r\n\"A,1\",\"Al\",.33333334,.1,.7,.12345679,.5\r\n\"B\",\"O\",1,0,0,0,.000000000001\r\n",
        "0\r\n2\r\n1,1,1,100\r\n2,0,.5,46\r\n"}) {
    auto state = load(folder, contents);
    if (state.NAtom > 0) state.JcpdsCount = 1;  // not saved beside atoms
    write_crystal_file(folder.path("y.cry"), state);
    EXPECT_EQ(folder.read("y.cry"), cell_line + contents);
  }
  auto state = load(folder, "0\r\n1\r\n1,1,1,100\r\n");
  state.NAtom = -1;  // the table is written all the same
  write_crystal_file(folder.path("y.cry"), state);
  EXPECT_EQ(folder.read("y.cry"), std::string(cell_line) + "-1\r\n1\r\n1,1,1,100\r\n");
  read_camera_file(folder.write("camera", "37,1.5,-2,40,1.25,.5\r\n"), state);
  write_camera_file(folder.path("copy"), state);
  EXPECT_EQ(folder.read("copy"), folder.read("camera"));
}

}  // namespace
}  // namespace zol
