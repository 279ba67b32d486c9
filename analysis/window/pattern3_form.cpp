#include "analysis/window/pattern3_form.h"

#include <filesystem>

#include "core/miller_bravais.h"
#include "core/number_text.h"
#include "reflections/window/crystal_tables_form.h"
#include "shell/services/guards.h"
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
  for (const auto* ending : file_filters::picture_endings) {
    file_drops.push_back({ending, &ImageLoad, &CommonDialog1, FileKind::Picture});
  }
  Picture1.hint = "Drop a measured pattern here, or Image > LOAD. Then draw three lines along bands and press CALC";
  Picture1.loupe = true;
  Imatch.checked_when = [this] { return MatchMode == 1; };
  CPS_Si001.checked_when = [this] { return SiMode == 1; };
  CenterPosition.checked_when = [this] { return CenterMode == 1; };
  CP_Setting_Show.checked_when = [this] { return AdjustShown == 1; };
  name_fields();
  declare_guards(bench);
  List1.made_from = Origin{{inputs::settings({"CamAcquisition", "CamXShift", "CamYShift", "CamXYRatio"},
                                             {&Text1, &Check1, &Check2, &Text17})},
                           {&Command1},
                           "Main1.List2"};
  List1.table = solution_table(bench.seen());
  reads = {shared::radiation, shared::half_angle, shared::shifts, shared::order};
}

std::shared_ptr<const ListColumns> Pattern3Form::solution_table(const CrystalState& seen) const {
  const auto columns = [this] {
    std::vector<ListColumn> all{{"no"}};
    for (const auto* index : {"h1", "k1", "l1", "h2", "k2", "l2", "h3", "k3", "l3"}) all.push_back({index, "", 4});
    for (const auto* component : {"u", "v", "w"}) all.push_back({component, "", 7});
    for (const auto* error : {"d12", "d23", "d31"}) {
      all.push_back({error, "°", 5, ListColumn::Number, ' ', "angle between two bands, computed less measured"});
    }
    const bool has_widths = Heading.caption().ends_with("w3");
    for (const auto* error : {"w1", "w2", "w3"}) {
      if (has_widths)
        all.push_back({error, "%", 6, ListColumn::Number, ' ', "width of a band, computed less measured"});
    }
    all.push_back({"solved by", "", ListColumn::to_the_end, ListColumn::Word});
    return all;
  };
  constexpr int u = 10;
  const auto added = [&seen] {
    std::vector<AddedColumns> directions;
    if (has_hexagonal_axes(seen.CellA, seen.CellB, seen.CellAlpha, seen.CellBeta, seen.CellGamma)) {
      directions.push_back(direction_columns(u, [](const ListCells&) { return true; }));
    }
    return directions;
  };
  return std::make_shared<const ListColumns>(
      ListColumns{"Solutions", columns, [](std::string_view line) { return !line.starts_with("    No. of"); }, added});
}

std::string Pattern3Form::lines_missing() const {
  const int wanted = lines.LastLine.value() + 1;
  int picked = 0;
  for (int line = 0; line < wanted; ++line) picked += lines.LineDone(line).value();
  if (picked == wanted) return "";
  return picked == 0 ? "no lines are picked" : plain_text(picked) + " of " + plain_text(wanted) + " lines are picked";
}

void Pattern3Form::declare_guards(const Workbench& bench) {
  using namespace guard;
  const CrystalState& seen = bench.seen();
  warn({&Command1, &Command7, &Command8, &Command11, &Command12, &Command13, &Command14, &Command15}, [this, &seen] {
    const bool unknown = AdjustShown == 1 && (AdjustSolution < 1 || AdjustSolution > solutions.SolutionCount);
    return first_of({no_reflections(seen, 3), lines_missing(), when(Val(Text3.text()) == 0, "the area is 0 degrees"),
                     when(unknown, "there is no solution of this number to adjust")});
  });
  const Reason no_picture = [this] { return when(!Picture1.has_picture(), "no picture is loaded"); };
  warn({&ImageFlip, &ImageMirror}, no_picture);
  Command4.warn_when = [this, no_picture] {
    std::error_code error;
    const bool missing = !std::filesystem::exists(CorrectorFile, error);
    return first_of({no_picture(), when(missing, "the corrector file is missing")});
  };
  Command3.warn_when = [this] { return when(lines.LineDone(0) == 0, "no lines are picked"); };
  Command9.warn_when = [this, &seen] {
    return when(!failure_of([&] { return calibrate(markers, seen.CamNormal); }).empty(),
                "the markers of the two poles are not set, or at the same height");
  };
  List1.warn_row = [this](int row) {
    return when(row >= solutions.SolutionCount.value(), "this line is the number of solutions, not a solution");
  };
  Picture1.warn_click = [this] {
    const bool begins_line = SiMode == 0 && CenterMode == 0 && unfinished_line(lines);
    return when(begins_line, "a click without a drag draws the line to the corner");
  };
  for (TextBox* box : {&Text10, &Text11}) whole_number(*box);
  Text2.warn_text = [](const std::string& text) { return when(Val(text) < 0, "no list has fewer than 0 reflections"); };
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
