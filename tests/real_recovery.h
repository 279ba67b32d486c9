// The program ended in all ways, and its work restored.
#pragma once

#include <string_view>

#include "tests/real_user.h"

namespace zol {

/// Brings one kind of failure of the run about and prints the text of its message.
void fail(const User& user, std::string_view kind);
/// By the words of the command line: changes a crystal and ends, or restores what such a run left.
void recover(const User& user, int argc, char** argv);

}  // namespace zol
