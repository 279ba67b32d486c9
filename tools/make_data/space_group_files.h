// The 250 space group files: 230 groups in the standard setting of the International Tables, and 20 further settings.
#pragma once

#include <string>

namespace zol {

/// Writes No001.dat to No250.dat into the folder.
/// @throws RunFailure  a file cannot be written
void write_space_group_files(const std::string& folder);

}  // namespace zol
