// Runs tests where numbers are written with a comma: no text of the program may follow.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>

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
  return RUN_ALL_TESTS();
}
