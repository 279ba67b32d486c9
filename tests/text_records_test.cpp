#include "core/text_records.h"

#include <gtest/gtest.h>

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
  RecordReader file("x", "1 2,12abc,-.5E1,1d2,2.5,\"7\",.333333343");
  EXPECT_EQ(file.next_single("x"), 1);
  EXPECT_EQ(file.next_integer("n"), 12);
  EXPECT_EQ(file.next_single("x"), -5);
  EXPECT_EQ(file.next_single("x"), 100);
  EXPECT_EQ(file.next_integer("n"), 2) << "halves go to the even number";
  EXPECT_EQ(file.next_integer("n"), 7);
  EXPECT_EQ(file.next_single("x"), 1.0F / 3.0F);
}

struct BrokenCase {
  const char* name;
  const char* text;
  const char* message;  ///< of reading a string, a Single and an Integer
};
class BrokenRecord : public testing::TestWithParam<BrokenCase> {};
TEST_P(BrokenRecord, NamesFileLineAndField) {
  const auto message = failure_of([] {
    RecordReader file("my.cry", GetParam().text);
    (void)file.next_string("the label");
    (void)file.next_single("x");
    (void)file.next_integer("the count");
  });
  EXPECT_EQ(message, GetParam().message);
}
INSTANTIATE_TEST_SUITE_P(
    Rows, BrokenRecord,
    testing::Values(
        BrokenCase{"empty_file", "", "my.cry, line 1: the file ends where the label is expected"},
        BrokenCase{"too_short", "a\r\n1\r\n\r\n", "my.cry, line 3: the file ends where the count is expected"},
        BrokenCase{"no_number", "a\nb,2", "my.cry, line 2: x is \"b\", a number is expected"},
        BrokenCase{"empty_field", "a,,2", "my.cry, line 1: x is \"\", a number is expected"},
        BrokenCase{"no_whole_number", "a,1\n\n\nq", "my.cry, line 2: the count is \"\", a whole number is expected"},
        BrokenCase{"too_large", "a,1,40000",
                   "my.cry, line 1: the count is \"40000\", it must be within -32768 to 32767"},
        BrokenCase{"beyond_single", "a,1e40,1",
                   "my.cry, line 1: x is \"1e40\", too large for a Single (below 3.4E+38)"},
        BrokenCase{"open_quote", "\"a,1\n2", "my.cry, line 1: the quote before the label has no closing quote"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(Records, WrittenLinesAreReadBack) {
  const ScratchFolder folder;
  RecordWriter file(folder.path("out"));
  file.field("a, b").field(0.1F).field(Integer(-3)).field(Long(100000)).end_line();
  file.field(1.0F / 3.0F).end_line();
  file.commit();
  EXPECT_EQ(folder.read("out"), "\"a, b\",.1,-3,100000\r\n.33333334\r\n");
}

TEST(AtomicFiles, LeaveTheOldFileUnlessCommitted) {
  const ScratchFolder folder;
  folder.write("out", "old");
  {
    RecordWriter file(folder.path("out"));
    file.field("new").end_line();
  }
  EXPECT_EQ(folder.read("out"), "old");
  EXPECT_EQ(folder.entries(), 1U) << "a temporary file was left behind";
  RecordWriter file(folder.path("out"));
  file.field("new").end_line();
  file.commit();
  EXPECT_EQ(folder.read("out"), "\"new\"\r\n");
  EXPECT_EQ(folder.entries(), 1U);
}

TEST(AtomicFiles, KeepPermissionsAndSymbolicLinks) {
  const ScratchFolder folder;
  namespace fs = std::filesystem;
  folder.write("real", "old");
  fs::permissions(folder.path("real"), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  fs::create_symlink("real", folder.path("link"));
  AtomicFile file(folder.path("link"));
  file.write("new");
  file.commit();
  EXPECT_EQ(folder.read("real"), "new");
  EXPECT_TRUE(fs::is_symlink(folder.path("link")));
  EXPECT_EQ(fs::status(folder.path("real")).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST(Files, ThatCantBeOpenedAreNamed) {
  const ScratchFolder folder;
  EXPECT_EQ(failure_of([&] { (void)read_file(folder.path("none")); }),
            "can't open " + folder.path("none") + ": No such file or directory");
  EXPECT_NE(failure_of([&] { (void)read_file(folder.path("")); }).find("it is a folder"), std::string::npos);
  EXPECT_NE(failure_of([&] { AtomicFile(folder.path("none/out")); }).find("none/out"), std::string::npos);
}

}  // namespace
}  // namespace zol
