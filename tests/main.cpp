// Runs tests where numbers are written with a comma: no text of the program may follow.
#include <gtest/gtest.h>
#include <unistd.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
#ifdef ZOL_COMMA_LOCALE
  // Programs that a test starts inherit it. Messages of the system stay English.
  setenv("LOCPATH", ZOL_COMMA_LOCALE, 1);
  setenv("LC_ALL", "de_DE.UTF-8", 1);
  setenv("LANGUAGE", "en", 1);
#endif
  std::setlocale(LC_ALL, "");
#ifdef ZOL_COMMA_LOCALE
  if (*std::localeconv()->decimal_point != ',') {
    std::fputs("there is no locale with decimal commas in " ZOL_COMMA_LOCALE "\n", stderr);
    return 1;
  }
#endif
  // What is kept for the next time: of this run alone, not the user's.
  const auto cache = std::filesystem::temp_directory_path() / ("zol-cache-" + std::to_string(getpid()));
  setenv("XDG_CACHE_HOME", cache.c_str(), 1);
  const int failed = RUN_ALL_TESTS();
  std::error_code error;
  std::filesystem::remove_all(cache, error);
  return failed;
}
