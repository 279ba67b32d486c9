// The directions of the includes, as docs/images/architecture.svg shows them.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <string>

#include "core/text_records.h"

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

/// The sources of the program: what they include, and which target each belongs to, by its name without ending.
struct Sources {
  Arrows includes;
  std::map<std::string, std::string> targets;

  Sources() {
    for (const std::string folder :
         {"analysis", "calculators", "core", "entry", "kikuchi", "powder", "reflections", "shell", "spots"}) {
      const fs::path path = fs::path(ZOL_SOURCE_DIR) / folder;
      for (const auto& entry : fs::recursive_directory_iterator(path)) {
        const auto ending = entry.path().extension();
        if (ending == ".h" || ending == ".cpp") add_file(entry.path());
      }
      add_targets(folder, read_file((path / "CMakeLists.txt").string()));
    }
  }

  /// The box of the picture that a file belongs to.
  [[nodiscard]] std::string part(const std::string& file) const {
    if (file.starts_with("Q")) return "Qt";
    const std::string folder = file.substr(0, file.rfind('/'));
    if (folder.starts_with("shell/")) return folder.substr(folder.find('/') + 1);
    const auto target = targets.find(file.substr(0, file.rfind('.')));
    if (target != targets.end()) return target->second.ends_with("_window") ? "windows" : target->second;
    if (folder == "shell") return file.ends_with("_form.h") ? "windows" : "window_services";
    // A header without a source of its own name.
    return includes.at(file).contains("shell/workbench.h") || file.ends_with("_form.h") ? "windows" : folder;
  }

 private:
  void add_file(const fs::path& path) {
    auto& included = includes[path.lexically_relative(ZOL_SOURCE_DIR).string()];
    for (const auto& [quoted, of_qt] : all_matches(read_file(path.string()), R"re(#include (?:"(.+)"|<(Q.+)>))re")) {
      included.insert(quoted + of_qt);
    }
  }

  void add_targets(const std::string& folder, const std::string& lists) {
    for (const auto& [target, files] : all_matches(lists, R"(add_library\((\w+) STATIC([^)]*)\))")) {
      for (const auto& [stem, ending] : all_matches(files, R"(([\w/]+)\.(cpp))")) targets[folder + "/" + stem] = target;
    }
  }
};

TEST(Includes, HaveNoCircle) {
  const Sources sources;
  ASSERT_TRUE(reached(sources.includes, "shell/script/main.cpp").contains("core/numbers.h"));
  for (const auto& [file, included] : sources.includes) {
    EXPECT_FALSE(reached(sources.includes, file).contains(file)) << file << " includes itself by a circle";
  }
}

TEST(Includes, GoAsTheArrowsOfThePicture) {
  Arrows drawn;
  for (const auto& [from, to] :
       all_matches(read_file(ZOL_SOURCE_DIR "/docs/images/architecture.svg"), R"re(<path id="(\w+)-(\w+)")re")) {
    drawn[from].insert(to);
  }
  const Sources sources;
  Arrows found;
  for (const auto& [file, included] : sources.includes) {
    const std::string from = sources.part(file);
    for (const auto& other : included) {
      const std::string to = sources.part(other);
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
