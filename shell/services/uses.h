// Ways through the program that a window declares: controls that are used one after the other, as a user would.
#pragma once

#include <string>
#include <vector>

#include "shell/services/services.h"

namespace zol {

class Windows;

/// One use of a control: a button or a menu item is clicked, a box gets a text.
struct Use {
  std::string control;    ///< as "Main1.DATA_LOAD"
  std::string text = {};  ///< what a box gets
  std::string file = {};  ///< answers the dialog of a menu item, which stands among the file drops of its window
};

/// How a file is opened: the last of the uses asks for it.
struct FileWay {
  FileKind kind = FileKind::Crystal;
  std::string ending = {};  ///< as ".cry", small letters; empty: any
  std::vector<Use> uses = {};
};

/// A first thing to do, offered as long as there is no crystal.
struct WayIn {
  std::string text;
  std::string tip;
  std::vector<Use> uses;
};

/// Windows come into being at these uses, as at all others. @throws RunFailure  there is no such control, or what its
/// handlers throw
void use_controls(Windows& windows, const std::vector<Use>& uses);

/// Operations of a script that repeat them.
[[nodiscard]] std::string script_of(const std::vector<Use>& uses);

}  // namespace zol
