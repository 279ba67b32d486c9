#include "batch/word_file.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <nlohmann/json.hpp>

#include "core/read_file.h"
#include "core/run_failure.h"

namespace zol {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::array<const char*, 3> of_files{"settings", "write-settings", "help"};

/// The long name of an option; of what stands without a name, that of its place in small letters.
std::string name_of(const CLI::Option& option) {
  if (!option.get_lnames().empty()) return option.get_lnames().front();
  std::string name = option.get_name(true);
  for (char& letter : name) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  return name;
}

bool many(const CLI::Option& option) { return option.get_items_expected_max() > 1; }
bool is_flag(const CLI::Option& option) { return option.get_items_expected_max() == 0; }

Json value_of(const CLI::Option& option, const std::string& text) {
  const std::string type = option.get_type_name();
  if (!type.starts_with("INT") && !type.starts_with("FLOAT")) return text;
  const Json number = Json::parse(text, nullptr, false);
  return number.is_number() ? number : Json(text);
}

/// The line on which a name stands as a key.
std::size_t line_of(const std::string& text, const std::string& name) {
  const std::size_t at = std::min(text.find(Json(name).dump()), text.size());
  return 1 + static_cast<std::size_t>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
}

CLI::Option* find_option(CLI::App& command, const std::string& name) {
  if (std::any_of(of_files.begin(), of_files.end(), [&name](const char* one) { return name == one; })) return nullptr;
  for (CLI::Option* option : command.get_options()) {
    if (name_of(*option) == name) return option;
  }
  return nullptr;
}

/// A value as the command line would have it. @returns none where it is of a kind that no option takes
std::optional<std::string> word_of(const Json& value) {
  if (value.is_string()) return value.get<std::string>();
  if (value.is_number()) return value.dump();
  return std::nullopt;
}

/// @returns what is wrong with the value, empty where it was taken
std::string take_value(CLI::Option& option, const Json& value) {
  if (is_flag(option)) {
    if (!value.is_boolean()) return "is true or false";
    if (option.count() == 0 && value.get<bool>()) option.add_result("true");
    return "";
  }
  const Json all = value.is_array() ? value : Json::array({value});
  if (all.empty() || (all.size() > 1 && !many(option))) return "has one value";
  std::vector<std::string> words;
  for (const Json& one : all) {
    const auto word = word_of(one);
    if (!word) return "has texts or numbers";
    words.push_back(*word);
  }
  if (option.count() > 0) return "";
  for (const auto& word : words) option.add_result(word);
  return "";
}

/// "line 3, column 5" of the library's message.
std::string place_of(const Json::parse_error& error, const std::string& text) {
  const std::size_t at = std::min<std::size_t>(error.byte == 0 ? 0 : error.byte - 1, text.size());
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(at);
  const std::size_t before = text.rfind('\n', at == 0 ? 0 : at - 1);
  const std::size_t column = before == std::string::npos || before >= at ? at + 1 : at - before;
  return "line " + std::to_string(1 + std::count(text.begin(), end, '\n')) + ", column " + std::to_string(column);
}

}  // namespace

void read_words(CLI::App& command, const std::string& path) {
  const std::string text = read_file(path);
  Json all;
  try {
    all = Json::parse(text);
  } catch (const Json::parse_error& error) {
    throw RunFailure(path + ", " + place_of(error, text) + ": this is not JSON");
  }
  if (!all.is_object()) throw RunFailure(path + ": expected are names and values between { and }");
  for (const auto& [name, value] : all.items()) {
    const auto failure = [&, &key = name](const std::string& what) {
      return RunFailure(path + ", line " + std::to_string(line_of(text, key)) + ": \"" + key + "\" " + what);
    };
    CLI::Option* option = find_option(command, name);
    if (option == nullptr) throw failure("is not an option of zol-batch " + command.get_name());
    const std::string wrong = take_value(*option, value);
    if (!wrong.empty()) throw failure(wrong);
    if (option->count() == 0 || option->get_callback_run()) continue;
    try {
      option->run_callback();
    } catch (const CLI::ParseError& error) {
      throw failure(std::string("cannot be taken: ") + error.what());
    }
  }
}

void add_settings_words(CLI::App& command, std::string& read_from, std::string& write_to) {
  const auto* group = "Settings";
  command
      .add_option_function<std::string>(
          "--settings",
          [&command, &read_from](const std::string& path) {
            read_from = path;
            read_words(command, path);
          },
          "JSON with the same names, for options that are not given here")
      ->group(group);
  command.add_option("--write-settings", write_to, "file for all options of this run, to repeat it with --settings")
      ->group(group);
}

std::string words_text(const CLI::App& command, const std::vector<std::string>& left_out) {
  Json all = Json::object();
  for (const CLI::Option* option : command.get_options()) {
    const std::string name = name_of(*option);
    const auto is_name = [&name](const auto& one) { return name == one; };
    if (std::any_of(of_files.begin(), of_files.end(), is_name)) continue;
    if (std::any_of(left_out.begin(), left_out.end(), is_name)) continue;
    if (option->count() == 0) {
      if (!option->get_default_str().empty()) all[name] = value_of(*option, option->get_default_str());
      continue;
    }
    if (is_flag(*option)) {
      all[name] = true;
    } else if (many(*option)) {
      for (const auto& word : option->results()) all[name].push_back(value_of(*option, word));
    } else {
      all[name] = value_of(*option, option->results().back());
    }
  }
  return all.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace zol
