#include "batch/reference.h"

#include <algorithm>

#include "batch/command_words.h"
#include "batch/completions.h"
#include "core/atomic_file.h"

namespace zol {
namespace {

constexpr auto statuses = "0 done, 1 a failure, 2 words that cannot be read, 3 stopped by a signal.";

/// The value of an option as its choices, or by its kind.
std::string value_of(const WordOption& option, const char* between) {
  std::string text;
  for (const auto& choice : option.choices) text += (text.empty() ? "" : between) + choice;
  return text.empty() ? option.value : text;
}

/// A line of text that is no request to the formatter.
std::string man_text(const std::string& text) {
  std::string safe;
  for (const char c : text) {
    if (c == '\\') {
      safe += "\\e";
    } else if (c == '-') {
      safe += "\\-";
    } else {
      safe += c;
    }
  }
  return (safe.starts_with('.') || safe.starts_with('\'') ? "\\&" : "") + safe;
}

/// One argument of a macro.
std::string man_word(const std::string& text) { return "\"" + man_text(text) + "\""; }

std::string man_head(const std::string& title, const std::string& name, const std::string& description) {
  std::string upper = title;
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](char c) { return static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c); });
  return ".Dd November 26, 2026\n.Dt " + upper + " 1\n.Os\n.Sh NAME\n.Nm " + name + "\n.Nd " + man_text(description) +
         "\n";
}

std::string man_item(const WordOption& option) {
  std::string line = ".It";
  if (option.place) {
    line += " Ar " + man_word(option.name);
  } else {
    if (!option.letter.empty()) line += " Fl " + option.letter.substr(1) + " ,";
    line += " Fl " + option.name.substr(1);
  }
  if (!option.value.empty() && !option.place) line += " Ar " + man_word(value_of(option, "|"));
  return line + "\n" + man_text(option.description) + (option.required ? "; required" : "") + "\n";
}

std::string man_page(const WordCommand& command) {
  const std::string name = "zol-batch-" + command.name;
  std::string page = man_head(name, name, command.description);
  page += ".Sh SYNOPSIS\n.Nm zol-batch\n.Cm " + command.name + "\n";
  for (const auto& option : command.options) {
    if (option.place) page += ".Ar " + man_word(option.name) + (option.repeated ? " ..." : "") + "\n";
  }
  page += ".Op options\n.Sh DESCRIPTION\n.Bl -tag -width Ds\n";
  std::string group;
  for (const auto& option : command.options) {
    if (!option.place && option.group != group) {
      group = option.group;
      page += ".El\n.Ss " + group + "\n.Bl -tag -width Ds\n";
    }
    page += man_item(option);
  }
  page += ".El\n.Sh EXIT STATUS\n" + std::string(statuses) + "\n.Sh EXAMPLES\n.Dl " + man_text(command.example) +
          "\n.Sh SEE ALSO\n.Xr zol-batch 1\n";
  return page;
}

std::string man_overview(const std::vector<WordCommand>& commands) {
  std::string page = man_head("zol-batch", "zol-batch", "diffraction of crystals without a window");
  page += ".Sh SYNOPSIS\n.Nm\n.Ar command\n.Op options\n.Nm\n.Fl -help | Fl -version\n.Sh DESCRIPTION\n";
  page += "Results go to standard output, progress to standard error where that is a terminal.\n.Bl -tag -width Ds\n";
  for (const auto& command : commands) page += ".It Cm " + command.name + "\n" + man_text(command.description) + "\n";
  page += ".El\n.Sh EXIT STATUS\n" + std::string(statuses) + "\n.Sh EXAMPLES\n";
  for (const auto& command : commands) page += ".Dl " + man_text(command.example) + "\n";
  page += ".Sh SEE ALSO\n.Xr zol 1 ,\n";
  std::vector<std::string> others{"zol-script"};
  for (const auto& command : commands) others.push_back("zol-batch-" + command.name);
  std::sort(others.begin(), others.end());
  for (const auto& other : others) page += ".Xr " + other + " 1" + (other == others.back() ? "" : " ,") + "\n";
  return page;
}

std::string markdown_text(const std::string& text) {
  std::string safe;
  for (const char c : text) safe += c == '|' || c == '<' || c == '*' ? std::string("\\") + c : std::string(1, c);
  return safe;
}

std::string markdown_row(const WordOption& option) {
  std::string words = option.letter.empty() ? "" : "`" + option.letter + "`, ";
  words += "`" + option.name + (option.place && option.repeated ? "..." : "");
  if (!option.place && option.choices.empty() && !option.value.empty()) words += " " + option.value;
  words += "`";
  std::string choices;
  for (const auto& choice : option.choices) choices += (choices.empty() ? " `" : ", `") + choice + "`";
  return "| " + words + choices + " | " + markdown_text(option.description) + (option.required ? "; required" : "") +
         " |\n";
}

std::string reference_page(const std::vector<WordCommand>& commands) {
  std::string page =
      "# Commands of zol-batch\n\n"
      "Made from the words of the program by `zol-batch --write-reference FOLDER`. [zol-batch](batch.md) "
      "shows what to do with them.\n"
      "An option with \"once for each\" may be repeated. Status: " +
      std::string(statuses) + "\n";
  for (const auto& command : commands) {
    page += "\n## " + command.name + "\n\n" + markdown_text(command.description) + ":\n\n    " + command.example +
            "\n\n| | |\n|---|---|\n";
    std::string group = "Options";
    for (const auto& option : command.options) {
      if (!option.place && option.group != group) {
        group = option.group;
        page += "| **" + group + "** | |\n";
      }
      page += markdown_row(option);
    }
  }
  return page;
}

void write(const std::string& path, const std::string& text) {
  AtomicFile file(path);
  file.contain(text);
  file.commit();
}

}  // namespace

void write_reference(const CLI::App& app, const std::string& folder) {
  const auto commands = commands_of(app);
  write(folder + "/zol-batch.1", man_overview(commands));
  for (const auto& command : commands) write(folder + "/zol-batch-" + command.name + ".1", man_page(command));
  write(folder + "/zol-batch.bash", bash_completion(commands));
  write(folder + "/_zol-batch", zsh_completion(commands));
  write(folder + "/zol-batch.fish", fish_completion(commands));
  write(folder + "/batch-reference.md", reference_page(commands));
}

}  // namespace zol
