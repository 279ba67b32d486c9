#include "powder/window/powder_form.h"

#include "core/number_text.h"
#include "powder/histogram.h"
#include "powder/line_profile.h"
#include "shell/services/guards.h"

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

std::string PowderPattern::fault(const CrystalState& seen) const {
  using namespace guard;
  return first_of({no_cell(seen), no_reflections(seen), when(HalfWidth == 0, "the half width is 0"),
                   failure_of([&] { return grid_points(interference_grid(seen, size())); })});
}

std::vector<std::string> PowderPattern::remarks(double range, const char* unit) const {
  const double step = range / last_sample;
  if (HalfWidth >= step) return {};
  return {"the half width is below the step of the samples, " + Format(step, "0.0000") + unit +
          ": heights of peaks are wrong"};
}

void PowderPattern::allocate(Single dmin, int least_bins) {
  BinCount = bin_count(dmin);
  const int last_bin = highest_bin(BinCount, least_bins);
  Bins.allocate(last_bin);
  BinsCopy.allocate(last_bin);
  Profile.allocate(last_sample);
}

std::shared_ptr<const ListColumns> peak_table(std::vector<ListColumn> columns) {
  columns.push_back({"I/Io", "%"});
  return std::make_shared<const ListColumns>(
      ListColumns{"Peaks", always(std::move(columns)),
                  [](std::string_view line) { return line.find("I/Io") == std::string_view::npos; }});
}

}  // namespace zol
