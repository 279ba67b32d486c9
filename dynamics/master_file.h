// Master patterns in files, in the HDF5 layout of EMsoft, which other programs read too.
#pragma once

#include <string>

#include "dynamics/master_pattern.h"

namespace zol {

/// EMData/EBSDmaster: mLPNH and mLPSH (sites x voltages x n x n, square Lambert grid), masterSPNH and masterSPSH
/// (voltages x n x n, stereographic), EkeVs; CrystalData in nanometres; the settings under ZOL. Written beside its
/// place first.
/// @throws RunFailure  it cannot be written
void write_master(const MasterPattern& master, const std::string& path);

/// The highest voltage of a file; sites are summed. Crystal and settings are those that the file tells.
/// @throws RunFailure  it is no master pattern or a damaged one; the message names the path and what is missing
[[nodiscard]] MasterPattern read_master(const std::string& path);

/// Stereographic projection of one half, n x n, row y, column x; beyond the circle 0.
[[nodiscard]] std::vector<float> stereographic(const MasterPattern& master, std::size_t pattern, bool south);

}  // namespace zol
