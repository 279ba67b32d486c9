// A dialog of several lines that are read, selected and copied.
#pragma once

#include <string>
#include <vector>

namespace zol {

/// Modal; ends by "Close" or Esc.
/// @param lines  Latin-1; those that begin with "Warning:" stand out
void show_report(const std::vector<std::string>& lines, const std::string& title);

}  // namespace zol
