// The desktop program from its first window to its end.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/desktop/desktop.h"

namespace zol {

/// Whether the work is kept beyond the end of the program; measurements compare both.
enum class KeepWork { Yes, No };

/// @param begun  is called in the event loop as soon as the first window is on the screen
/// @param files  are opened after the start
/// @returns the exit status: 0 after the user's end, 1 after a failure, whose message was shown
int run_application(int argc, char** argv, const std::function<void(Desktop&)>& begun = {},
                    KeepWork keep_work = KeepWork::Yes, const std::vector<std::string>& files = {});

}  // namespace zol
