// The camera parameter file: one record of six numbers.
#pragma once

#include <string>

#include "core/crystal_state.h"

namespace zol {

/// Reads, in this order: acquisition angle, x shift, y shift (degrees), detector edge (mm), xy ratio, substrate normal
/// (degrees).
/// @throws RunFailure  the file is missing or holds fewer than six numbers
void read_camera_file(const std::string& path, Module1State& state);

/// Writes the same record. @throws RunFailure  the file cannot be written
void write_camera_file(const std::string& path, const Module1State& state);

}  // namespace zol
