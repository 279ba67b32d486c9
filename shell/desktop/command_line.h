// The command line of the desktop program.
#pragma once

#include <string>
#include <vector>

namespace zol {

struct CommandLine {
  std::vector<std::string> files = {};  ///< to be opened, by their full paths
  std::string answer = {};              ///< what is printed, and the program ends
  int status = 0;                       ///< of that end; 2: the answer is a complaint
};

/// @param arguments  as main gets them; options of Qt are left to it
[[nodiscard]] CommandLine read_command_line(const std::vector<std::string>& arguments);

}  // namespace zol
