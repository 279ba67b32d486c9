// What the two windows of powder patterns have in common: the crystallites, and a pattern made by way of a histogram.
#pragma once

#include "powder/interference.h"
#include "shell/services/list_columns.h"
#include "shell/services/window.h"

namespace zol {

struct PowderPattern {
  Single HalfWidth = 0;   ///< full width at half maximum, in the units of the pattern
  Single DisplayMax = 0;  ///< drawn at full height; 0 asks the rings for their largest sample
  Single CellsP = 0, CellsQ = 0, CellsR = 0;
  BoundedArray<Single> Bins{"Bins"};          ///< histogram over 1/d
  BoundedArray<Single> Profile{"Profile"};    ///< the pattern, samples 0 to 1000
  BoundedArray<Single> BinsCopy{"BinsCopy"};  ///< for a smoothing of no passes: allocated, never read
  Integer BinCount;                           ///< highest bin that the lines are made from

  [[nodiscard]] CrystalliteSize size() const { return {CellsP, CellsQ, CellsR}; }
  /// Why a calculation would end the run; empty where it would not.
  [[nodiscard]] std::string fault(const CrystalState& seen) const;
  /// @param range  of the pattern, over 1000 steps
  [[nodiscard]] std::vector<std::string> remarks(double range, const char* unit) const;

  void show_fields(NamedValues& fields);
  /// Empty arrays for a list down to a spacing in angstroms, with a number of bins at least.
  void allocate(Single dmin, int least_bins);
};

/// How the list of peaks is read as a table; the line of its heads is no row.
[[nodiscard]] std::shared_ptr<const ListColumns> peak_table(std::vector<ListColumn> columns);

}  // namespace zol
