// The directions of the includes, as docs/images/architecture.svg shows them.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "core/read_file.h"

namespace zol {
namespace {

using Arrows = std::map<std::string, std::set<std::string>>;

/// Texts that the group of a pattern catches.
std::set<std::string> caught(const std::string& text, const std::string& pattern) {
  std::set<std::string> found;
  const std::regex expression(pattern);
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match) {
    found.insert((*match)[1]);
  }
  return found;
}

/// What can be reached from a place along one arrow or more, added to other places.
std::set<std::string> reached(const Arrows& arrows, const std::string& from, std::set<std::string> places = {}) {
  const auto here = arrows.find(from);
  if (here == arrows.end()) return places;
  for (const auto& next : here->second) {
    if (places.insert(next).second) places = reached(arrows, next, std::move(places));
  }
  return places;
}

/// What each source of the program includes of it and of Qt, by its path from the root.
Arrows includes_of_sources() {
  Arrows includes;
  for (const std::string room : {"analysis", "calculators", "core", "entry", "indexing", "kikuchi", "powder",
                                 "reflections", "shell", "spots", "structures"}) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(ZOL_SOURCE_DIR "/" + room)) {
      const auto file = entry.path().lexically_relative(ZOL_SOURCE_DIR).string();
      if (!file.ends_with(".h") && !file.ends_with(".cpp")) continue;
      includes[file] = caught(read_file(entry.path().string()), R"re(#include (?:"|<(?=Q))(.+)[">])re");
    }
  }
  return includes;
}

std::string folder_of(const std::string& file) { return file.substr(0, file.rfind('/')); }

/// The room that a file stands in, by the name of its box in the picture.
std::string room_of(const std::string& file) {
  if (file.starts_with("Q")) return "Qt";
  std::string folder = folder_of(file);
  if (folder.ends_with("/window")) return "windows";
  if (!folder.starts_with("shell/")) return folder;
  const std::string inside = folder.substr(folder.find('/') + 1);
  return inside.substr(0, inside.find('/'));  // a folder in a room belongs to it
}

/// In the rooms of the windows: forms, then operations, then handlers.
int kind_of(const std::string& file) {
  const std::string stem = file.substr(0, file.rfind('.'));
  return stem.ends_with("_form") ? 0 : (stem.ends_with("_handlers") ? 2 : 1);
}

TEST(Includes, GoAsTheArrowsOfThePictureAndHaveNoCircle) {
  Arrows drawn;
  for (const auto& arrow :
       caught(read_file(ZOL_SOURCE_DIR "/docs/images/architecture.svg"), R"(<path id="(\w+-\w+))")) {
    drawn[arrow.substr(0, arrow.find('-'))].insert(arrow.substr(arrow.find('-') + 1));
  }
  Arrows found;
  const Arrows includes = includes_of_sources();
  ASSERT_TRUE(reached(includes, "shell/script/main.cpp").contains("core/numbers.h"));
  for (const auto& [file, included] : includes) {
    EXPECT_FALSE(reached(includes, file).contains(file)) << file << " includes itself by a circle";
    const std::string from = room_of(file);
    const auto allowed = reached(drawn, from);
    for (const auto& other : included) {
      SCOPED_TRACE(file + " includes " + other);
      const std::string to = room_of(other);
      found[from].insert(to);
      EXPECT_TRUE(from == to || allowed.contains(to));
      if (from != "windows" || to != "windows") continue;
      EXPECT_LE(kind_of(other), kind_of(file));
      EXPECT_TRUE(kind_of(other) < 2 || folder_of(other) == folder_of(file)) << "the handlers of another window";
    }
  }
  for (const auto& [from, included] : drawn) {
    EXPECT_FALSE(reached(drawn, from).contains(from)) << from << " stands in a circle";
    for (const auto& to : included) EXPECT_TRUE(found[from].contains(to)) << "no include from " << from << " to " << to;
  }
}

}  // namespace
}  // namespace zol
