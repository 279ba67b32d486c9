// The parts of the program that take what comes from outside, each as a function of plain bytes. libFuzzer calls them
// with inputs that it makes up, a test with those that once went wrong.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zol::fuzz {

/// Returns whatever the bytes are: a failure of the run is one of its proper ends. All else is a defect.
struct Target {
  std::string_view name;
  void (*run)(const std::string& input);
};

[[nodiscard]] const std::vector<Target>& targets();

/// @throws std::out_of_range  there is no such target
[[nodiscard]] const Target& target(std::string_view name);

}  // namespace zol::fuzz
