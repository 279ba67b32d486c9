#include "analysis/window/pattern3_form.h"

#include "shell/services/place_text.h"

namespace zol {
namespace {

constexpr int picture_twips = 7680;  // 512 pixels

template <class... Arrays>
void add_arrays(NamedValues& fields, Arrays&... arrays) {
  (fields.add(arrays.name(), arrays), ...);
}

}  // namespace

Pattern3Form::Pattern3Form(Workbench& bench)
    : Window(window_name, "KIKUCHI PATTERN ANALYSIS"),
      Picture1(*this, bench.services, "Picture1", picture_twips, picture_twips),
      CommonDialog1(*this, bench.services, "CommonDialog1") {
  Picture1.describe_place = [](double x, double y) {
    return value_text("x", x, "0.0", "") + value_text("   y", y, "0.0", " pixels");
  };
  for (const auto* ending : {".bmp", ".png", ".jpg", ".jpeg", ".tif", ".tiff"}) {
    file_drops.push_back({ending, &ImageLoad, &CommonDialog1});
  }
  name_fields();
}

void Pattern3Form::name_fields() {
  add_arrays(fields(), lines.LineX, lines.LineY, lines.LineDone, LineLabel, LineColor, bands.ViewRange, bands.GnomX,
             bands.GnomY, bands.LineSlope, bands.LineIntercept, bands.LineDist, bands.BandS, bands.BandPhi,
             bands.BandTheta, bands.BandCos, bands.BandAngle, solutions.SolutionTriple, solutions.SolutionDir);
  add_triples<&TripleTable::TripleHKL>("TripleHKL");
  add_triples<&TripleTable::TripleS>("TripleS");
  add_triples<&TripleTable::TripleI>("TripleI");
  add_triples<&TripleTable::TripleAngle>("TripleAngle");
  fields().keep("triples", triples);
  fields().add("NhklWanted", NhklWanted);
  fields().add("NhklUsed", NhklUsed);
  fields().add("LastLine", lines.LastLine);
  fields().add("Dragging", Dragging);
  fields().add("DragEnd", DragEnd);
  fields().add("DragLine", DragLine);
  fields().add("SiMode", SiMode);
  fields().add("CenterMode", CenterMode);
  fields().add_file_name("ImageFile", ImageFile);
  fields().add_file_name("CorrectorFile", CorrectorFile);
  fields().add("AngleTol", AngleTol);
  fields().add("MatchMode", MatchMode);
  fields().add("EquivMode", EquivMode);
  fields().add("SolutionCount", solutions.SolutionCount);
  fields().add("MatchStatus", solutions.MatchStatus);
  fields().add("AngleError", solutions.AngleError);
  fields().add("AcqStep", AcqStep);
  fields().add("XShiftStep", XShiftStep);
  fields().add("YShiftStep", YShiftStep);
  fields().add("AdjustSteps", AdjustSteps);
  fields().add("AdjustSolution", AdjustSolution);
  fields().add("AdjustShown", AdjustShown);
  fields().add("BestError", BestError);
  fields().add("WdChange", working_distance.WdChange);
  fields().add("DetIncline", working_distance.DetIncline);
  fields().add("SiMarkX1", markers.SiMarkX1);
  fields().add("SiMarkY1", markers.SiMarkY1);
  fields().add("SiMarkX2", markers.SiMarkX2);
  fields().add("SiMarkY2", markers.SiMarkY2);
  fields().add("SiAngle", markers.SiAngle);
  fields().add("SiCentreX", calibration.SiCentreX);
  fields().add("SiCentreY", calibration.SiCentreY);
  fields().add("SiLength", calibration.SiLength);
}

}  // namespace zol
