// The directions of the includes, as docs/images/architecture.svg shows them.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "core/read_file.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

using Arrows = std::map<std::string, std::set<std::string>>;

/// All pairs of texts that the two groups of a pattern catch.
std::vector<std::pair<std::string, std::string>> all_matches(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::vector<std::pair<std::string, std::string>> pairs;
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) {
    pairs.emplace_back((*match)[1], (*match)[2]);
  }
  return pairs;
}

/// What can be reached from a place along one arrow or more.
std::set<std::string> reached(const Arrows& arrows, const std::string& from) {
  std::set<std::string> places;
  std::vector<std::string> open{from};
  while (!open.empty()) {
    const auto here = arrows.find(open.back());
    open.pop_back();
    if (here == arrows.end()) continue;
    for (const auto& next : here->second) {
      if (places.insert(next).second) open.push_back(next);
    }
  }
  return places;
}

/// What each source of the program includes, by its path from the root.
Arrows includes_of_sources() {
  Arrows includes;
  for (const std::string room :
       {"analysis", "calculators", "core", "entry", "kikuchi", "powder", "reflections", "shell", "spots", "structures"}) {
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(ZOL_SOURCE_DIR) / room)) {
      const auto ending = entry.path().extension();
      if (ending != ".h" && ending != ".cpp") continue;
      auto& included = includes[entry.path().lexically_relative(ZOL_SOURCE_DIR).string()];
      for (const auto& [quoted, of_qt] :
           all_matches(read_file(entry.path().string()), R"re(#include (?:"(.+)"|<(Q.+)>))re")) {
        included.insert(quoted + of_qt);
      }
    }
  }
  return includes;
}

/// The room that a file stands in, by the name of its box in the picture.
std::string room_of(const std::string& file) {
  if (file.starts_with("Q")) return "Qt";
  const std::string folder = file.substr(0, file.rfind('/'));
  if (folder.ends_with("/window")) return "windows";
  return folder.starts_with("shell/") ? folder.substr(folder.find('/') + 1) : folder;
}

/// In the rooms of the windows: forms, then operations, then handlers.
int kind_of(const std::string& file) {
  const std::string stem = file.substr(0, file.rfind('.'));
  return stem.ends_with("_form") ? 0 : (stem.ends_with("_handlers") ? 2 : 1);
}

TEST(Includes, HaveNoCircle) {
  const Arrows includes = includes_of_sources();
  ASSERT_TRUE(reached(includes, "shell/script/main.cpp").contains("core/numbers.h"));
  for (const auto& [file, included] : includes) {
    EXPECT_FALSE(reached(includes, file).contains(file)) << file << " includes itself by a circle";
  }
}

TEST(Includes, OfWindowsGoFromHandlersToOperationsToForms) {
  for (const auto& [file, included] : includes_of_sources()) {
    if (room_of(file) != "windows") continue;
    for (const auto& other : included) {
      if (room_of(other) != "windows") continue;
      EXPECT_LE(kind_of(other), kind_of(file)) << file << " includes " << other;
      const bool same_folder = file.substr(0, file.rfind('/')) == other.substr(0, other.rfind('/'));
      EXPECT_TRUE(kind_of(other) < 2 || same_folder) << file << " includes the handlers " << other;
    }
  }
}

TEST(Includes, GoAsTheArrowsOfThePicture) {
  Arrows drawn;
  for (const auto& [from, to] :
       all_matches(read_file(ZOL_SOURCE_DIR "/docs/images/architecture.svg"), R"re(<path id="(\w+)-(\w+)")re")) {
    drawn[from].insert(to);
  }
  Arrows found;
  for (const auto& [file, included] : includes_of_sources()) {
    const std::string from = room_of(file);
    for (const auto& other : included) {
      const std::string to = room_of(other);
      found[from].insert(to);
      EXPECT_TRUE(from == to || reached(drawn, from).contains(to)) << file << " includes " << other;
    }
  }
  for (const auto& [from, included] : drawn) {
    EXPECT_FALSE(reached(drawn, from).contains(from)) << from << " stands in a circle";
    for (const auto& to : included) EXPECT_TRUE(found[from].contains(to)) << "no include from " << from << " to " << to;
  }
}

}  // namespace
}  // namespace zol
