// One pattern of electrons that have lost different shares of their energy.
#pragma once

#include <span>

#include "dynamics/master_pattern.h"

namespace zol {

/// The mean of the patterns of all voltages, told as that of the highest.
/// @param weights  of each voltage in its order, 0 and above
/// @throws RunFailure  another number of weights than voltages, or none above 0
[[nodiscard]] MasterPattern summed_voltages(MasterPattern master, std::span<const double> weights);

}  // namespace zol
