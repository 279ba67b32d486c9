#include "analysis/window/pattern3_solution.h"

#include <algorithm>

#include "core/cell_geometry.h"
#include "core/run_failure.h"
#include "kikuchi/kikuchi_pattern.h"
#include "spots/zone_geometry.h"

namespace zol {
namespace {

constexpr double last_pixel = 511;  // of the picture's scale

void take_axis(CrystalState& state, const SingleTriple& direction) {
  state.ZoneU = direction[0];
  state.ZoneV = direction[1];
  state.ZoneW = direction[2];
  const auto reference = reference_reflection(state.ZoneU, state.ZoneV, state.ZoneW);
  state.OriginH = reference.h;
  state.OriginK = reference.k;
  state.OriginL = reference.l;
}

PictureMark mark_of(const CrystalState& state, const GnomonicView& view, const KikuchiLine& line, int row) {
  const double per_x = last_pixel / (view.right - view.left);
  const double per_y = last_pixel / (view.top - view.bottom);
  return {.h = line.hkl.h.value(),
          .k = line.hkl.k.value(),
          .l = line.hkl.l.value(),
          .x = (line.foot_x - view.left) * per_x,
          .y = (line.foot_y - view.bottom) * per_y,
          .along_x = line.unit_y * per_x,
          .along_y = -line.unit_x * per_y,
          .d = 1 / double{DHKL(state, line.hkl.h, line.hkl.k, line.hkl.l)},
          .intensity = line.intensity,
          .row = row};
}

}  // namespace

PictureMarks bands_of_solution(const CrystalState& seen, const Pattern3Form& form, int row) {
  PictureMarks marks;
  const int number = row + 1;
  if (number < 1 || number > form.solutions.SolutionCount.value()) return marks;
  try {
    CrystalState state = seen;
    const auto& directions = form.solutions.SolutionDir;
    const SingleTriple direction{directions(number, 1), directions(number, 2), directions(number, 3)};
    state.PatternAngle =
        in_plane_rotations(seen, form.triples, form.bands, form.solutions.SolutionTriple(number).value(), direction)
            .mean();
    take_axis(state, direction);
    QuietTask task;
    reorder(state, order_for_kikuchi(state, task), task);
    constexpr int strongest = 60;
    state.KikuchiRefLimit = std::min(strongest, state.RefCount.value());
    const auto view = gnomonic_view(state);
    ListedPlanes planes(state);
    for (const auto& line : kikuchi_lines(planes, view, false, task)) {
      marks.push_back(mark_of(state, view, line, row));
    }
  } catch (const RunFailure&) {  // the crystal has changed since: there are none to be shown
    return {};
  }
  return marks;
}

std::array<double, 3> direction_in_picture(const CrystalState& seen, double x, double y) {
  const auto view = gnomonic_view(seen);
  return direction_of_gnomonic(view.left + x / last_pixel * (view.right - view.left),
                               view.bottom + y / last_pixel * (view.top - view.bottom));
}

CircleFrame circle_frame_of_picture(const CrystalState& seen) {
  const auto view = gnomonic_view(seen);
  const double width = view.right - view.left;
  const double height = view.top - view.bottom;
  if (!(width > 0) || height == 0) return {.unit_x = 0, .unit_y = 0};  // the camera is not set
  return {-view.left / width * last_pixel, -view.bottom / height * last_pixel, last_pixel / width, last_pixel / height};
}

bool take_back_line(PickedLines& lines) {
  for (int line = lines.LastLine.value(); line >= 0; --line) {
    if (lines.LineDone(line) == 0) continue;
    lines.LineDone(line) = 0;
    for (int end = 0; end <= 1; ++end) {
      lines.LineX(line, end) = 0;
      lines.LineY(line, end) = 0;
    }
    return true;
  }
  return false;
}

}  // namespace zol
