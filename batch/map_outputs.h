// The files that "zol-batch map" writes, looked at before anything is read.
#pragma once

#include "batch/map_words.h"

namespace zol {

/// @throws CLI::ValidationError  an ending that is not known, or a file that would take the place of another one
/// @throws RunFailure  a folder is not there
void check_map_outputs(const MapWords& words);
/// Where finished points are kept until the end; needs an output.
[[nodiscard]] std::string part_path(const MapWords& words);
/// @throws RunFailure  points of a run that was stopped are kept there, and this one does not go on with it
void check_part(const MapWords& words);

}  // namespace zol
