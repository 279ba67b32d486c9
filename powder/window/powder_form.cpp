#include "powder/window/powder_form.h"

#include "powder/histogram.h"
#include "powder/line_profile.h"

namespace zol {

void PowderPattern::show_fields(NamedValues& fields) {
  fields.add("HalfWidth", HalfWidth);
  fields.add("DisplayMax", DisplayMax);
  fields.add("CellsP", CellsP);
  fields.add("CellsQ", CellsQ);
  fields.add("CellsR", CellsR);
  fields.add("Bins", Bins);
  fields.add("Profile", Profile);
  fields.add("BinsCopy", BinsCopy);
  fields.add("BinCount", BinCount);
}

void PowderPattern::allocate(Single dmin, int least_bins) {
  BinCount = bin_count(dmin);
  const int last_bin = highest_bin(BinCount, least_bins);
  Bins.allocate(last_bin);
  BinsCopy.allocate(last_bin);
  Profile.allocate(last_sample);
}

}  // namespace zol
