// What tools/fuzz.sh found once, and its seeds: each input goes through its target.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/read_file.h"
#include "core/run_failure.h"
#include "fuzz/fuzz_targets.h"

namespace zol::fuzz {
namespace {

std::vector<std::filesystem::path> inputs() {
  std::vector<std::filesystem::path> files;
  for (const auto* folder : {ZOL_SOURCE_DIR "/tests/fuzz-findings", ZOL_SOURCE_DIR "/fuzz/seeds"}) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      if (entry.is_regular_file()) files.push_back(entry.path());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

class FuzzInput : public testing::TestWithParam<std::filesystem::path> {};
TEST_P(FuzzInput, EndsInSuccessOrFailureOfTheRun) {
  const Target& checked = target(GetParam().parent_path().filename().string());
  try {
    checked.run(read_file(GetParam().string()));
  } catch (const RunFailure& failure) {
    EXPECT_FALSE(failure.message().empty());
  }
}
INSTANTIATE_TEST_SUITE_P(Of, FuzzInput, testing::ValuesIn(inputs()), [](const auto& row) {
  std::string name = row.param.parent_path().filename().string() + "_" + row.param.filename().string();
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
  return name;
});

}  // namespace
}  // namespace zol::fuzz
