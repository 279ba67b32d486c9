// The user's own copy of the installed data files, which are read-only.
#pragma once

#include <string>

namespace zol {

/// Makes the copy where there is none: beside its place and renamed. A copy of another version gets what it lacks, and
/// the files of the new version for those that the user has not changed; what the user has changed stays.
/// @param version  of the installed data; a copy of this version is left unchanged, whatever is in it
/// @throws RunFailure  with both folders and the reason
void update_data_copy(const std::string& installed, const std::string& copy, const std::string& version);

}  // namespace zol
