#include "batch/word_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>

#include "tests/test_files.h"

namespace zol {
namespace {

/// A command with an option of each kind.
struct Command {
  std::string scan, name = "usual", read_from, write_to;
  std::vector<std::string> crystals;
  double number = 0;
  int count = 9;
  bool flag = false;
  CLI::App app{"", "test"};
  CLI::App* map = app.add_subcommand("map");
  Command() {
    std::setlocale(LC_ALL, "C");  // as zol-batch has while it reads its words
    add_settings_words(*map, read_from, write_to);
    map->add_option("SCAN", scan)->required();
    map->add_option("-c,--crystal", crystals)->required()->allow_extra_args(false);
    map->add_option("--name", name)->capture_default_str();
    map->add_option("--number", number);
    map->add_option("--count", count)->check(CLI::Range(3, 40))->capture_default_str();
    map->add_flag("--flag", flag);
  }
  void parse(std::vector<std::string> words) {
    std::reverse(words.begin(), words.end());
    app.parse(words);
  }
};

TEST(WordFile, RepeatsARunAndTheCommandLineWins) {
  const ScratchFolder folder;
  Command first;
  first.parse({"map", "a.h5", "-c", "Ni.cif", "-c", "Ti.cif", "--number", "33.6", "--flag"});
  const std::string text = words_text(*first.map, {});
  EXPECT_EQ(
      text,
      "{\n  \"scan\": \"a.h5\",\n  \"crystal\": [\n    \"Ni.cif\",\n    \"Ti.cif\"\n  ],\n  \"name\": \"usual\",\n"
      "  \"number\": 33.6,\n  \"count\": 9,\n  \"flag\": true\n}\n");
  Command second;
  second.parse({"map", "--settings", folder.write("a.json", text)});
  EXPECT_EQ(words_text(*second.map, {}), text);
  EXPECT_EQ(second.number, 33.6);
  EXPECT_TRUE(second.flag);
  Command third;
  third.parse({"map", "b.h5", "--count", "5", "--settings", folder.path("a.json"), "-c", "Al.cif"});
  EXPECT_EQ(third.scan, "b.h5");
  EXPECT_EQ(third.count, 5);
  EXPECT_EQ(third.crystals, std::vector<std::string>{"Al.cif"});
  EXPECT_EQ(words_text(*third.map, {"scan", "crystal", "name", "number", "flag"}), "{\n  \"count\": 5\n}\n");
}

TEST(WordFile, TellsPlaceAndNameOfWhatItDoesNotKnow) {
  const ScratchFolder folder;
  struct Row {
    const char *text, *words;
  };
  for (const auto& [text, words] :
       {Row{"{\n\"scan\": \"a\",\n\"scann\": 1}", "line 3: \"scann\" is not an option of zol-batch map"},
        Row{R"({"settings": "b.json"})", "line 1: \"settings\" is not an option"},
        Row{"{\"count\": 99}", "not in range 3 to 40"}, Row{R"({"count": "few"})", "\"count\" cannot be taken"},
        Row{"{\"flag\": 1}", "\"flag\" is true or false"}, Row{R"({"name": ["a", "b"]})", "\"name\" has one value"},
        Row{"{\"name\": {}}", "\"name\" has"}, Row{"{\n\"name\": a}", "line 2, column 9: this is not JSON"},
        Row{"[]", "names and values"}}) {
    Command command;
    const std::string path = folder.write("a.json", text);
    EXPECT_TRUE(fails_with(words, [&] { command.parse({"map", "--settings", path}); })) << text;
  }
}

}  // namespace
}  // namespace zol
