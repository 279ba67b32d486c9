#include "batch/completions.h"

namespace zol {
namespace {

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const auto& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

/// A text within single quotes, with some characters led in by a backslash.
std::string quoted(const std::string& text, std::string_view escaped = "") {
  std::string inside;
  for (const char c : text) {
    if (escaped.find(c) != std::string_view::npos) inside += '\\';
    inside += c == '\'' ? std::string(R"('\'')") : std::string(1, c);
  }
  return "'" + inside + "'";
}

std::vector<std::string> names_of(const WordOption& option) {
  if (option.letter.empty()) return {option.name};
  return {option.name, option.letter};
}

std::string zsh_option(const WordOption& option) {
  if (option.place) return quoted("*:file:_files");
  std::string text = "[" + option.description + "]";
  std::string value;
  if (!option.choices.empty()) {
    value = ":value:(" + joined(option.choices) + ")";
  } else if (!option.value.empty()) {
    value = ":value:" + std::string(option.value == "NUMBER" ? "" : "_files");
  }
  std::string line;
  for (const auto& name : names_of(option)) {
    line += (line.empty() ? "" : " ") + quoted((option.repeated ? "*" : "") + name + text + value);
  }
  return line;
}

}  // namespace

std::string bash_completion(const std::vector<WordCommand>& commands) {
  std::string names;
  std::string values;
  std::string options;
  for (const auto& command : commands) {
    names += command.name + " ";
    std::vector<std::string> words;
    for (const auto& option : command.options) {
      if (option.place) continue;
      for (const auto& name : names_of(option)) {
        words.push_back(name);
        if (option.choices.empty()) continue;
        values += "    \"" + command.name + " " + name + "\") words=\"" + joined(option.choices) + "\" ;;\n";
      }
    }
    options += "      " + command.name + ") words=\"" + joined(words) + "\" ;;\n";
  }
  return "# bash completion of zol-batch, made from its own words\n"
         "_zol_batch() {\n"
         "  local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command=${COMP_WORDS[1]} "
         "words=\n"
         "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
         "    words=\"" +
         names +
         "--help --version\"\n"
         "  else\n"
         "    case \"$command $before\" in\n" +
         values +
         "    esac\n"
         "    if [ -z \"$words\" ] && [[ $current == -* ]]; then\n"
         "      case $command in\n" +
         options +
         "      esac\n"
         "    fi\n"
         "  fi\n"
         "  COMPREPLY=()\n"
         "  [ -z \"$words\" ] || mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
         "}\n"
         "complete -o default -F _zol_batch zol-batch\n";
}

std::string zsh_completion(const std::vector<WordCommand>& commands) {
  std::string names;
  std::string cases;
  for (const auto& command : commands) {
    names += "    " + quoted(command.name + ":" + command.description) + "\n";
    cases += "    " + command.name + ")\n      _arguments";
    for (const auto& option : command.options) cases += " \\\n        " + zsh_option(option);
    cases += "\n      ;;\n";
  }
  return "#compdef zol-batch\n"
         "# zsh completion of zol-batch, made from its own words\n"
         "_zol_batch() {\n"
         "  local -a commands\n"
         "  commands=(\n" +
         names +
         "  )\n"
         "  if (( CURRENT == 2 )); then\n"
         "    _describe command commands\n"
         "    return\n"
         "  fi\n"
         "  local command=$words[2]\n"
         "  shift words\n"
         "  (( CURRENT-- ))\n"
         "  case $command in\n" +
         cases +
         "  esac\n"
         "}\n"
         "_zol_batch \"$@\"\n";
}

std::string fish_completion(const std::vector<WordCommand>& commands) {
  std::string text = "# fish completion of zol-batch, made from its own words\n";
  for (const auto& command : commands) {
    text += "complete -c zol-batch -n __fish_use_subcommand -f -a " + command.name + " -d " +
            quoted(command.description, "\\") + "\n";
  }
  for (const auto& command : commands) {
    for (const auto& option : command.options) {
      if (option.place) continue;
      text += "complete -c zol-batch -n '__fish_seen_subcommand_from " + command.name + "' ";
      text += option.name.starts_with("--") ? "-l " + option.name.substr(2) : "-s " + option.name.substr(1);
      if (!option.letter.empty()) text += " -s " + option.letter.substr(1);
      if (!option.choices.empty()) {
        text += " -x -a " + quoted(joined(option.choices), "\\");
      } else if (!option.value.empty()) {
        text += option.value == "NUMBER" ? " -x" : " -r";
      }
      text += " -d " + quoted(option.description, "\\") + "\n";
    }
  }
  return text;
}

}  // namespace zol
