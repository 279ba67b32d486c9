#include "powder/window/powder_form.h"

#include "core/number_text.h"
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

std::string doubt_of_samples(double half_width, double step, const std::string& unit) {
  if (!(half_width > 0 && half_width < step)) return "";
  return "the half width of " + short_text(half_width, 4) + unit + " is below the step of the samples, " +
         short_text(step, 4) + unit + ": heights of peaks are wrong";
}

}  // namespace zol
