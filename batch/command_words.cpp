#include "batch/command_words.h"

#include <algorithm>

namespace zol {
namespace {

constexpr auto plain_group = "Options";

std::vector<std::string> split(const std::string& text, char between) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == between) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

/// "POSITIVE", "INT in [3 - 40]" in words.
std::string bounds_text(const std::string& check) {
  if (check == "POSITIVE") return "above 0";
  if (check == "NONNEGATIVE") return "0 or more";
  const std::size_t begin = check.find("in [");
  const std::size_t end = check.find(']');
  if (begin == std::string::npos || end == std::string::npos) return "";
  std::string range = check.substr(begin + 4, end - begin - 4);
  const std::size_t dash = range.find(" - ");
  if (dash != std::string::npos) range.replace(dash, 3, " to ");
  return range;
}

std::string value_name(const std::string& kind) {
  if (kind == "FLOAT" || kind == "INT" || kind == "UINT") return "NUMBER";
  return kind;
}

WordOption option_of(const CLI::Option& option) {
  WordOption found;
  found.place = option.get_positional();
  const auto& long_names = option.get_lnames();
  const auto& letters = option.get_snames();
  const bool letter_alone = long_names.empty();
  found.name = found.place ? option.get_name(true) : letter_alone ? "-" + letters.front() : "--" + long_names.front();
  if (!letters.empty() && !letter_alone) found.letter = "-" + letters.front();
  found.group = option.get_group();
  found.description = option.get_description();
  found.required = option.get_required();
  found.repeated = option.get_items_expected_max() > 1;
  if (option.get_type_size() == 0) return found;
  const std::string kind = option.get_type_name();  // as "TEXT:{right,left}", "FLOAT:POSITIVE"
  const std::size_t colon = kind.find(':');
  found.value = value_name(kind.substr(0, colon));
  const std::string check = colon == std::string::npos ? "" : kind.substr(colon + 1);
  if (check.starts_with('{')) {
    found.choices = split(check.substr(1, check.find('}') - 1), ',');
  } else if (const std::string bounds = bounds_text(check); !bounds.empty()) {
    found.description += "; " + bounds;
  }
  if (!option.get_default_str().empty()) found.description += "; default: " + option.get_default_str();
  return found;
}

std::string example_of(const std::string& footer) {
  const std::string head = "Example:\n";
  const std::size_t at = footer.find(head);
  if (at == std::string::npos) return "";
  const std::size_t begin = footer.find_first_not_of(' ', at + head.size());
  return footer.substr(begin, footer.find('\n', begin) - begin);
}

WordCommand command_of(const CLI::App& command) {
  WordCommand found{command.get_name(), command.get_description(), example_of(command.get_footer()), {}};
  std::vector<std::string> groups{plain_group};
  std::vector<WordOption> options;
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_group().empty()) continue;
    options.push_back(option_of(*option));
    const std::string& group = options.back().group;
    if (std::find(groups.begin(), groups.end(), group) == groups.end()) groups.push_back(group);
  }
  for (const auto& option : options) {
    if (option.place) found.options.push_back(option);
  }
  for (const auto& group : groups) {
    for (const auto& option : options) {
      if (!option.place && option.group == group) found.options.push_back(option);
    }
  }
  return found;
}

}  // namespace

std::vector<WordCommand> commands_of(const CLI::App& app) {
  std::vector<WordCommand> commands;
  for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
    if (!command->get_group().empty()) commands.push_back(command_of(*command));
  }
  return commands;
}

}  // namespace zol
