// zol-batch as a user calls it, in a folder of its own.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "tests/test_files.h"

namespace zol {

inline const std::string crystals = ZOL_SOURCE_DIR "/data/ZOLDATA/";
inline const std::string cif = ZOL_SOURCE_DIR "/examples/cif/";

struct Outcome {
  int status = -1;
  std::string out, err;
};

class Batch : public testing::Test {
 protected:
  /// Runs in the scratch folder.
  [[nodiscard]] Outcome run_program(const std::string& command) const {
    const std::string line =
        "cd '" + folder.path("") + "' && export XDG_CACHE_HOME=$PWD/cache && " + command + " >out 2>err </dev/null";
    const int status = std::system(line.c_str());  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder.read("out"), folder.read("err")};
  }
  [[nodiscard]] Outcome batch(const std::string& words) const { return run_program(ZOL_BATCH " " + words); }
  /// What a script prints.
  [[nodiscard]] std::string script(const std::string& text) const {
    folder.write("script", text);
    const auto outcome = run_program(ZOL_SCRIPT " script");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    return outcome.out;
  }
  static std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> all;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) all.push_back(line);
    return all;
  }
  /// Lines of numbers behind a head.
  [[nodiscard]] std::vector<std::vector<double>> numbers(const std::string& text, char between) const {
    std::vector<std::vector<double>> rows;
    for (auto line : lines(text)) {
      std::replace(line.begin(), line.end(), between, ' ');
      if (line.empty() || std::isalpha(static_cast<unsigned char>(line[0])) != 0 || line[0] == '#') continue;
      auto& row = rows.emplace_back();
      std::istringstream in(line);
      for (std::string word; in >> word;) row.push_back(Val(word));
    }
    return rows;
  }

  /// A folder "s" of two points.
  void make_scan() const {
    const std::string picture = ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp";
    ASSERT_EQ(run_program("mkdir s && cp " + picture + " s/a_x0y0.bmp && cp " + picture + " s/a_x1y0.bmp").status, 0);
  }

  const ScratchFolder folder;
};

}  // namespace zol
