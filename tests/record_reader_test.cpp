#include "core/record_reader.h"

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

}  // namespace
}  // namespace zol
