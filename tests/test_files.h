// Files for tests: a folder of its own for each, gone afterwards.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/run_failure.h"

namespace zol {

class ScratchFolder {
 public:
  ScratchFolder() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test->test_suite_name()) + "-" + test->name();
    for (char& c : name) c = c == '/' ? '-' : c;
    folder_ = std::filesystem::temp_directory_path() / ("zol-" + name + "-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  ~ScratchFolder() { std::filesystem::remove_all(folder_); }

  [[nodiscard]] std::string path(const std::string& name) const { return (folder_ / name).string(); }
  // NOLINTNEXTLINE(modernize-use-nodiscard): often called for the file alone
  std::string write(const std::string& name, const std::string& text) const {
    std::filesystem::create_directories((folder_ / name).parent_path());
    std::ofstream(folder_ / name, std::ios::binary) << text;
    return path(name);
  }
  [[nodiscard]] std::string read(const std::string& name) const {
    std::ifstream file(folder_ / name, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }
  [[nodiscard]] std::size_t entries() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder_), {}));
  }

 private:
  std::filesystem::path folder_;
};

/// Message of the failure that the action ends in; the test fails when there is none.
template <class Action>
std::string failure_of(Action action) {
  try {
    action();
  } catch (const RunFailure& failure) {
    return failure.message();
  }
  ADD_FAILURE() << "no failure of the run";
  return "";
}

/// Whether the action ends in a failure whose message holds the words.
template <class Action>
testing::AssertionResult fails_with(const std::string& words, Action action) {
  const std::string message = failure_of(action);
  return (message.find(words) == std::string::npos ? testing::AssertionFailure() : testing::AssertionSuccess())
         << "the message is: " << message;
}

}  // namespace zol
