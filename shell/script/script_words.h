// The words of a script line and what they mean. All texts are UTF-8.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "shell/script/script_services.h"

namespace zol {

/// @throws ScriptError  with this message; the driver adds the line
[[noreturn]] void fail_script(const std::string& message);

/// Words of a line: separated by blanks; a word in double quotes may hold blanks, and in it \" \\ \n \r \t \b stand for
/// the character; "#" outside quotes begins a comment.
/// @throws ScriptError  an open quote or an unknown backslash
[[nodiscard]] std::vector<std::string> split_words(const std::string& line);

/// A word as text of a box, in Latin-1. @throws ScriptError  a character outside it
[[nodiscard]] std::string box_text(const std::string& word);

/// @param what  the word's name in the message
/// @throws ScriptError  the word is not a number, or not a whole one
[[nodiscard]] int whole_number(const std::string& word, const std::string& what);
[[nodiscard]] double number(const std::string& word, const std::string& what);

/// "Window.Rest" as a pair. @throws ScriptError  a part is missing
[[nodiscard]] std::pair<std::string, std::string> split_name(const std::string& name);

/// "NAME(i,j)" as name and indices. @throws ScriptError  an open bracket or an index that is not a whole number
[[nodiscard]] std::pair<std::string, std::vector<int>> split_indices(const std::string& text);

}  // namespace zol
