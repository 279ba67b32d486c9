#include "shell/services/bitmap_check.h"

#include <gtest/gtest.h>

#include <string>

#include "core/read_file.h"
#include "tests/test_files.h"

namespace zol {
namespace {

// The run-length file has 6 x 4 pixels from byte 1078 on: in each row a run of 6, one of 2 to fill it up, and its end,
// but one run of 8 in the last row.
TEST(Bitmaps, HaveAllTheirPixels) {
  const auto seed = [](const std::string& name) { return read_file(ZOL_SOURCE_DIR "/fuzz/seeds/bitmap/" + name); };
  const auto refused = [&](const std::string& bytes, const std::string& message) {
    const auto failure = failure_of([&] { check_bitmap("a.bmp", bytes); });
    EXPECT_TRUE(failure.starts_with("cannot read a.bmp as a bitmap: " + message)) << failure;
  };
  for (const auto& [name, end] :
       {std::pair{"1-bit.bmp", 74U}, {"8-bit.bmp", 130U}, {"24-bit.bmp", 102U}, {"rle.bmp", 1098U}}) {
    const std::string whole = seed(name);
    EXPECT_NO_THROW(check_bitmap("a.bmp", whole)) << name;
    for (std::size_t missing = 1; missing + 2 < end; missing += 1 + missing / 8) {
      refused(whole.substr(0, end - missing), "it is cut short: ");
    }
  }
  using namespace std::string_literals;
  struct Broken {
    const char* name;
    std::size_t at;
    std::string bytes;  // instead of those that stand there
    const char* message;
  };
  for (const auto& [name, at, bytes, message] :
       {Broken{"24-bit.bmp", 10, "\xff\xff\xff\xff", "it is cut short: 3 rows of 16 bytes need 48, there are 0"},
        {"24-bit.bmp", 14, "8", "its header is said to have 56 bytes"},
        {"24-bit.bmp", 18, "\0\0\0\0"s, "its header says "},
        {"24-bit.bmp", 18, "\xff\xff\xff\x7f", "its header says "},
        {"24-bit.bmp", 22, "\0\0\0\x80"s, "its header says "},
        {"24-bit.bmp", 28, "\7", "its header says 7 bits per pixel in 1 planes"},
        {"8-bit.bmp", 47, "\1", "its palette is said to have 272 colours"},
        {"rle.bmp", 1084, "\0\1"s, "its run-length code ends after pixel 0 of 6 in row 2 of 4"},
        {"rle.bmp", 1084, "\3\1\2\1", "its run-length code ends after pixel 5 of 6 in row 2 of 4"},
        {"rle.bmp", 1084, "\7", "its run-length code goes beyond the row after pixel 7 of 6 in row 2 of 4"},
        {"rle.bmp", 1084, "\0\2"s, "its run-length code leaves pixels out"},
        {"rle.bmp", 1096, "\0\6"s, "it is cut short: it ends after pixel 0 of 6 in row 4 of 4"},
        {"picture.gif", 0, "", "a bitmap (BMP) begins with the letters BM"}}) {
    refused(seed(name).replace(at, bytes.size(), bytes), message);
  }
  // The oldest header has 12 bytes, and sides of two; a pixel of 24 bits fills a row of 4.
  EXPECT_NO_THROW(check_bitmap("a.bmp", "BM\x1e\0\0\0\0\0\0\0\x1a\0\0\0\xc\0\0\0\1\0\1\0\1\0\x18\0xyz\0"s));
  refused("", "a bitmap (BMP) begins with the letters BM");
}

}  // namespace
}  // namespace zol
