// The reflection list as a histogram over 1/d, each reflection spread by the interference function of the crystallite.
#pragma once

#include "core/bounded_array.h"
#include "core/crystal_state.h"
#include "core/task.h"
#include "powder/interference.h"

namespace zol {

/// Number of the bin that 1/d of the smallest spacing falls into: bin n stands for n / dmin / bins.
/// @throws RunFailure  dmin is 0, or the number passes 16 bits
[[nodiscard]] Integer bin_count(Single dmin);

/// Upper bound of an array with so many bins more, which has to fit 16 bits.
/// @throws RunFailure  it does not, because dmin is too small
[[nodiscard]] int highest_bin(Integer count, int beyond);

/// Content of each bin. It has bins beyond that of the smallest spacing, since reflections are spread.
using Histogram = BoundedArray<Single>;

/// The intensities of the reflections of the list in bins 0 to last. Reports reflections.
/// @param count  the bin of the smallest spacing
/// @throws RunFailure  a point falls beyond the last bin, or a bin passes the range of a Single
[[nodiscard]] Histogram fill_histogram(const CrystalState& state, const InterferenceTable& table, Integer count,
                                       int last, Task& task);

}  // namespace zol
