// The scripts of examples/ run as they stand, in a copy of the folder, and leave the files that they name. Each picture
// is exported as pixels and as vectors as well: these come about apart from each other, and show the same.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <regex>
#include <set>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include "shell/desktop/picture_export.h"
#include "shell/services/raster.h"
#include "tests/test_files.h"

namespace zol {
namespace {

namespace fs = std::filesystem;
const fs::path source_tree = ZOL_SOURCE_DIR;

std::set<std::string> files_below(const fs::path& folder) {
  std::set<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) found.insert(fs::relative(entry.path(), folder).string());
  }
  return found;
}

bool is_blank(const std::string& file) {
  const QImage image(QString::fromStdString(file));
  const std::uintmax_t least = file.ends_with(".pdf") ? 1400 : 1;  // an empty page has 1200 bytes
  if (image.isNull()) return fs::file_size(file) < least;
  QImage plain = image;
  plain.fill(image.pixelColor(0, 0));
  return plain == image;
}

/// Pixels that are darker or lighter than all that is drawn within one pixel of them.
int not_drawn(const QImage& pixels, const std::string& svg) {
  constexpr int fine = 3;
  constexpr int side = 3 * fine;
  constexpr int tolerance = 40;
  QImage drawn(pixels.size() * fine, QImage::Format_RGB32);
  QPainter painter(&drawn);
  QSvgRenderer(QString::fromStdString(svg)).render(&painter);
  int count = 0;
  for (int pixel = 0; pixel < pixels.width() * pixels.height(); ++pixel) {
    const QPoint place(pixel % pixels.width(), pixel / pixels.width());
    const int shown = qGray(pixels.pixel(place));
    int darkest = qGray(drawn.pixel(place * fine));
    int lightest = darkest;
    if (std::abs(shown - darkest) <= tolerance) continue;
    for (int i = 0; i < side * side; ++i) {
      const QPoint near = place * fine + QPoint(i % side, i / side) - QPoint(fine, fine);
      if (!drawn.valid(near)) continue;
      darkest = std::min(darkest, qGray(drawn.pixel(near)));
      lightest = std::max(lightest, qGray(drawn.pixel(near)));
    }
    count += shown < darkest - tolerance || shown > lightest + tolerance ? 1 : 0;
  }
  return count;
}

class Example : public testing::TestWithParam<std::string> {};

TEST_P(Example, LeavesWhatItNames) {
  const ScratchFolder copy;
  OffscreenPictures with_text;
  (void)with_text.make_surface(1, 1);
  fs::copy(source_tree / "examples", copy.path("examples"), fs::copy_options::recursive);
  fs::create_directory_symlink(source_tree / "data", copy.path("data"));
  for (const auto* folder : {"pixels", "vectors"}) fs::create_directory(copy.path(folder));
  const std::string script = "examples/" + GetParam();
  const std::string text = copy.read(script);
  const bool is_shell = text.starts_with("#!");
  const std::regex exports("\nexport (\\S+) (\\S+)");
  std::set<std::string> named;
  std::set<std::string> wanted;
  for (std::sregex_iterator found(text.begin(), text.end(), exports), end; !is_shell && found != end; ++found) {
    const std::string name = (*found)[2];
    named.insert(name);
    wanted.insert({name, "pixels/" + name + ".png", "vectors/" + name + ".svg"});
  }
  const auto* as_both = "$&\nexport $1 pixels/$2.png\nexport $1 vectors/$2.svg\n";
  if (!is_shell) copy.write(script, std::regex_replace(text, exports, as_both));
  copy.write("told", "");
  const auto before = files_below(copy.path(""));

  const std::string path = "PATH=" + fs::path(ZOL_SCRIPT).parent_path().string() + ":$PATH ";
  const std::string command =
      "cd " + copy.path("") + " && " + path + (is_shell ? "" : "zol-script ") + script + " >/dev/null 2>told";
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 0);  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
  EXPECT_EQ(copy.read("told"), "");

  auto made = files_below(copy.path(""));
  for (const auto& name : before) made.erase(name);
  EXPECT_TRUE(is_shell ? !made.empty() : made == wanted) << testing::PrintToString(made);
  for (const auto& name : made) EXPECT_FALSE(is_blank(copy.path(name))) << name;
  for (const auto& name : named) {
    const QImage pixels(QString::fromStdString(copy.path("pixels/" + name + ".png")));
    constexpr int specks = 20;  // such as the end of a text that begins outside: its pixels alone show it
    EXPECT_LT(not_drawn(pixels, copy.path("vectors/" + name + ".svg")), specks) << name;
  }
}

/// Those of examples/cif print what is stored beside them, which is a test of its own.
std::vector<std::string> scripts() {
  std::vector<std::string> found;
  for (const auto& name : files_below(source_tree / "examples")) {
    const bool runs = name.ends_with(".zs") || name.find('.') == std::string::npos;
    if (runs && !name.starts_with("cif/")) found.push_back(name);
  }
  return found;
}
INSTANTIATE_TEST_SUITE_P(Examples, Example, testing::ValuesIn(scripts()), [](const auto& row) {
  std::string name = row.param;
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '-' || c == '/' || c == '.'; }, '_');
  return name;
});

}  // namespace
}  // namespace zol
