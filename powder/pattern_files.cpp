#include "powder/pattern_files.h"

#include "core/record_writer.h"

namespace zol {

void write_xdp(const std::string& path, const TwoThetaRange& range, const PseudoVoigt& line,
               const CrystalliteSize& size, const PowderProfile& profile) {
  RecordWriter file(path);
  file.field("2-theta min").field(range.minimum).end_line();
  file.field("2-theta max").field(range.maximum).end_line();
  file.field("FWHM(deg.)").field(line.half_width).end_line();
  file.field("Gratio").field(line.gaussian_ratio).end_line();
  file.field("P").field(size.CellsP).end_line();
  file.field("Q").field(size.CellsQ).end_line();
  file.field("R").field(size.CellsR).end_line();
  for (int m = 0; m <= last_sample; ++m) file.field(range.at(m)).field(profile(m)).end_line();
  file.commit();
}

void write_edp(const std::string& path, Single d_star_max, const PowderProfile& profile) {
  RecordWriter file(path);
  for (int m = 0; m <= last_sample; ++m) file.field(d_star_at(d_star_max, m)).field(profile(m)).end_line();
  file.commit();
}

}  // namespace zol
