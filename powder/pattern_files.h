// Text files of the powder patterns, in the records of all data files.
#pragma once

#include <string>

#include "core/bounded_array.h"
#include "powder/interference.h"
#include "powder/line_profile.h"

namespace zol {

/// ".XDP": seven settings by name, then 2-theta and intensity of each sample.
/// @throws RunFailure  the file cannot be written
void write_xdp(const std::string& path, const TwoThetaRange& range, const PseudoVoigt& line,
               const CrystalliteSize& size, const PowderProfile& profile);

/// ".EDP": 1/d and intensity of each sample. @throws RunFailure  the file cannot be written
void write_edp(const std::string& path, Single d_star_max, const PowderProfile& profile);

}  // namespace zol
