// What a command line takes, as plain values.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace zol {

struct WordOption {
  std::string name;         ///< "--crystal", "-v" of a letter alone, or of a place "FILE"
  std::string letter;       ///< "-c", empty without one
  std::string group;        ///< heading of the help
  std::string description;  ///< with bounds and what holds when it is left out
  std::string value;        ///< "NUMBER", "TEXT", empty of a flag
  std::vector<std::string> choices;
  bool place = false;  ///< no option but a place of the line
  bool required = false, repeated = false;
};

struct WordCommand {
  std::string name, description, example;
  std::vector<WordOption> options;  ///< places first, then those of groups in their order
};

/// The commands in the order in which they are added.
[[nodiscard]] std::vector<WordCommand> commands_of(const CLI::App& app);

}  // namespace zol
