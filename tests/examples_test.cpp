// The scripts of examples/ run as they stand, in a copy of the folder, and leave the files that they name.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <set>

#include <QImage>

#include "core/read_file.h"
#include "tests/test_files.h"

namespace zol {
namespace {

namespace fs = std::filesystem;

const fs::path source_tree = ZOL_SOURCE_DIR;

/// Paths below a folder of all files whose name is accepted, links not followed.
template <class Accept>
std::set<std::string> files_below(const fs::path& folder, Accept accept) {
  std::set<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file() && accept(entry)) found.insert(fs::relative(entry.path(), folder).string());
  }
  return found;
}

/// Files that a script names behind "export"; those of a shell script are made up as it runs.
std::set<std::string> exported_by(const fs::path& script) {
  std::set<std::string> names;
  std::istringstream lines(read_file(script.string()));
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string operation, picture, name;
    if (words >> operation >> picture >> name && operation == "export") names.insert(name);
  }
  return names;
}

bool has_one_colour(const QImage& image) {
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixel(x, y) != image.pixel(0, 0)) return false;
    }
  }
  return true;
}

bool is_blank(const fs::path& file) {
  const std::string ending = file.extension().string();
  if (ending == ".png" || ending == ".bmp") return has_one_colour(QImage(QString::fromStdString(file.string())));
  const std::string text = read_file(file.string());
  if (ending == ".svg") return text.find("<circle") == std::string::npos && text.find("<polyline") == std::string::npos;
  if (ending == ".pdf") return text.size() < 1400;  // an empty page has 1200
  return text.empty();
}

class Example : public testing::TestWithParam<std::string> {};

TEST_P(Example, RunsAndLeavesWhatItNames) {
  const ScratchFolder copy;
  const fs::path script = fs::path("examples") / GetParam();
  fs::copy(source_tree / "examples", copy.path("examples"), fs::copy_options::recursive);
  fs::create_directory_symlink(source_tree / "data", copy.path("data"));
  const auto is_new = [&copy](const fs::directory_entry& entry) {
    const std::string name = fs::relative(entry.path(), copy.path("")).string();
    return name != "told" && !name.starts_with("examples/");
  };

  const bool is_shell = script.extension() != ".zs";
  const std::string path = "PATH=" + fs::path(ZOL_SCRIPT).parent_path().string() + ":$PATH ";
  const std::string command =
      "cd " + copy.path("") + " && " + path + (is_shell ? "" : "zol-script ") + script.string() + " >/dev/null 2>told";
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 0);  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
  EXPECT_EQ(copy.read("told"), "");

  const auto made = files_below(copy.path(""), is_new);
  if (is_shell) {
    EXPECT_FALSE(made.empty());
  } else {
    EXPECT_EQ(made, exported_by(source_tree / script));
  }
  for (const auto& name : made) EXPECT_FALSE(is_blank(copy.path(name))) << name;
}

std::set<std::string> scripts() {
  return files_below(source_tree / "examples", [](const fs::directory_entry& entry) {
    const std::string ending = entry.path().extension().string();
    return ending == ".zs" || ending.empty();
  });
}
INSTANTIATE_TEST_SUITE_P(Examples, Example, testing::ValuesIn(scripts()), [](const auto& row) {
  std::string name = row.param;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '-' || c == '/' || c == '.'; }, '_');
  return name;
});

}  // namespace
}  // namespace zol
