// The reflection list as a histogram over 1/d, each reflection spread by the interference function of the crystallite.
#pragma once

#include "core/bounded_array.h"
#include "core/crystal_state.h"
#include "core/task.h"
#include "powder/interference.h"

namespace zol {

/// Length of h a* + k b* + l c* in inverse angstroms, for indices that need not be whole.
/// @throws RunFailure  the metric gives a negative square
[[nodiscard]] Single reciprocal_length(const Main1State& cell, Single h, Single k, Single l);

/// Number of the bin that 1/d of the smallest spacing falls into: bin n stands for n / dmin / bins.
/// @throws RunFailure  dmin is 0, or the number passes 16 bits
[[nodiscard]] Integer bin_count(Single dmin);

/// Upper bound of an array with so many bins more, which has to fit 16 bits.
/// @throws RunFailure  it does not, because dmin is too small
[[nodiscard]] int highest_bin(Integer count, int beyond);

/// Empties bins 0 to count and adds the reflections of the list, as it stands, with their intensities. The array has
/// bins beyond count for what the spread carries there. Progress goes by reflections.
/// @throws RunFailure  a point falls beyond the array, or a bin passes the range of a Single
void fill_histogram(const CrystalState& state, const InterferenceGrid& grid, const InterferenceTable& table,
                    Integer count, BoundedArray<Single>& bins, Task& task);

}  // namespace zol
