// Every ordered triple of the strongest reflections with the acute angles between their plane normals: the table that a
// measured Kikuchi pattern is indexed against.
#pragma once

#include "core/bounded_array.h"
#include "core/crystal_state.h"
#include "core/progress.h"

namespace zol {

/// Rows are numbered from 1; row 0 and the rows behind the last one filled hold zeros.
struct TripleTable {
  BoundedTable<Integer> TripleHKL{"TripleHKL"};     ///< columns 0 to 8: h, k, l of the three reflections
  BoundedTable<Single> TripleS{"TripleS"};          ///< columns 0 to 2: RefS, 1/(2d) in inverse angstroms
  BoundedTable<Single> TripleI{"TripleI"};          ///< columns 0 to 2: RefI
  BoundedTable<Single> TripleAngle{"TripleAngle"};  ///< columns 0 to 2: degrees between 1 and 2, 2 and 3, 3 and 1
};

/// Sorts the reflection list by RefS * RefI, descending, by exchanges of RefS, RefI, RefH, RefK and RefL alone; among
/// equal products the order is that of a selection sort.
void sort_by_weighted_intensity(CrystalState& state);

/// The wanted number of reflections extended so that no two of equal RefI (within 0.1 per cent) are cut apart.
[[nodiscard]] Single extend_over_ties(const CrystalState& state, Single wanted);

/// Fills the table with the first `used` reflections of the list, of which there are N = used rounded half to even.
/// Row ((i - 1) N + (j - 1)) N + k holds reflections i, j, k. Progress goes by i.
/// @throws RunFailure  a reflection of zero length, or not enough memory
void fill_triple_table(const CrystalState& state, Single used, TripleTable& table, Progress& progress);

/// Highest row of a table of so many reflections: their third power.
[[nodiscard]] int triple_rows(Single reflections);

}  // namespace zol
