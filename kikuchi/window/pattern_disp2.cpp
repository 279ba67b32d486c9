#include <algorithm>
#include <cmath>
#include <span>

#include "kikuchi/degrees_text.h"
#include "kikuchi/kikuchi_pattern.h"
#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/pattern2_form.h"
#include "kikuchi/window/zaxis_form.h"
#include "reflections/window/main1_form.h"
#include "spots/grey_scale.h"
#include "spots/window/picture_controls.h"
#include "spots/zone_geometry.h"

namespace zol {
namespace {

using namespace colours;

constexpr double mark_size = 0.01;  // of the reach

void set_scale(Canvas& picture, const GnomonicView& view) {
  picture.scale(view.left, view.top, view.right, view.bottom);
}

/// Grey level of a line, at most 255, full at the intensity of the scale. A negative intensity has a negative one,
/// which ends just below all levels that the box of the lowest level can hold.
int grey_level(const CrystalState& state, Single intensity, const GreyScale& scale) {
  constexpr double never_drawn = -32769;
  const double level = std::floor(darkness(intensity, state.DisplayScale, scale) * 255);
  return static_cast<int>(std::clamp(level, never_drawn, 255.0));
}

/// Over a measured image strong lines are yellow.
Colour line_colour(int level, bool over_image) {
  const int dark = 255 - level;
  if (over_image) return RGB(127 + level / 2, 127 + level / 2, dark);
  return RGB(dark, dark, dark);
}

/// Draws a line through its foot, long enough to cross the picture.
void draw_line(Canvas& picture, const KikuchiLine& line, double reach, Colour colour) {
  const double along_x = 2 * reach * line.unit_y;
  const double along_y = 2 * reach * line.unit_x;
  picture.line(line.foot_x + along_x, line.foot_y - along_y, line.foot_x - along_x, line.foot_y + along_y, colour);
}

std::string band_text(int number, const KikuchiLine& line, int level) {
  constexpr std::size_t whole = 4;
  constexpr std::size_t angle = 6;
  std::string text(5 * whole + 2 * angle, ' ');
  std::span<char> left(text);
  const auto field = [&left](std::size_t width) {
    const auto taken = left.first(width);
    left = left.subspan(width);
    return taken;
  };
  for (const int n : {number, line.hkl.h.value(), line.hkl.k.value(), line.hkl.l.value()}) put_whole(field(whole), n);
  for (const Single degrees : {std::abs(line.latitude_deg), line.azimuth_deg}) put_one_place(field(angle), degrees);
  put_whole(field(whole), level);
  return text;
}

struct ShownLine {
  KikuchiLine line;
  int grey_level = 0;
};

constexpr int between_checks = 64;  // lines

/// The lines above the lowest grey level.
std::vector<ShownLine> shown_lines(const CrystalState& state, const Pattern2Form& form,
                                   const std::vector<KikuchiLine>& lines, Integer lowest_level, Task& task) {
  const GreyScale scale{form.Option2.on(), exponent_in(form.Text10)};
  std::vector<ShownLine> shown;
  shown.reserve(lines.size());
  int left = 0;
  for (const auto& line : lines) {
    if (left-- == 0) {
      task.check();
      left = between_checks;
    }
    const int level = grey_level(state, line.intensity, scale);
    if (level > lowest_level.value()) shown.push_back({line, level});
  }
  return shown;
}

PictureMark mark_of(const KikuchiLine& line, int row) {
  return {.h = line.hkl.h.value(),
          .k = line.hkl.k.value(),
          .l = line.hkl.l.value(),
          .x = line.foot_x,
          .y = line.foot_y,
          .along_x = line.unit_y,
          .along_y = -line.unit_x,
          .d = 1 / double{line.length},
          .intensity = line.intensity,
          .row = row};
}

void draw_bands(CrystalState& state, Pattern2Form& form, const GnomonicView& view, const std::vector<ShownLine>& lines,
                Task& task) {
  const bool over_image = !form.ImageMark.empty();
  std::vector<std::string> rows;
  rows.reserve(lines.size());
  for (int row = 0; row < static_cast<int>(lines.size()); ++row) {
    const auto& [line, level] = lines[static_cast<std::size_t>(row)];
    if (row % between_checks == 0) {
      task.report(row, static_cast<int>(lines.size()));
      task.check();
    }
    draw_line(form.Picture1, line, view.reach, line_colour(level, over_image));
    rows.push_back(band_text(row + 1, line, level));
    form.Picture1.mark(mark_of(line, row));
    state.BandHKL(row, 0) = line.hkl.h;
    state.BandHKL(row, 1) = line.hkl.k;
    state.BandHKL(row, 2) = line.hkl.l;
  }
  form.List1.add_items(std::move(rows), task);
}

void draw_disc(Canvas& picture, double x, double y, double radius, Colour colour) {
  picture.set_fill_colour(colour);
  picture.circle(x, y, radius, colour);
}

/// Eight lines each way, in a scale of 512 pixels, y downward.
void draw_grid(Canvas& picture, const GnomonicView& view) {
  constexpr int last = 511;
  constexpr int step = 64;
  picture.scale(0, 0, last, last);
  for (int i = 0; i < last; i += step) {
    picture.line(i, 0, i, last, green);
    picture.line(0, i, last, i, green);
  }
  set_scale(picture, view);
}

void draw_marks(const CrystalState& state, Pattern2Form& form, const GnomonicView& view) {
  Canvas& picture = form.Picture1;
  if (form.Check5.checked()) draw_disc(picture, 0, 0, view.reach * mark_size, blue);
  if (form.Check6.checked()) draw_disc(picture, 0, std::tan(state.CamNormal * degree), view.reach * mark_size, blue);
  if (!form.Text9.text().empty()) {
    picture.set_solid_fill(false);
    picture.circle(0, 0, std::tan(Val(form.Text9.text()) * degree), black);
    picture.set_solid_fill(true);
  }
  if (form.Check1.checked()) draw_grid(picture, view);
}

void take_reference(CrystalState& state) {
  const auto reference = reference_reflection(state.ZoneU, state.ZoneV, state.ZoneW);
  state.OriginH = reference.h;
  state.OriginK = reference.k;
  state.OriginL = reference.l;
}

void settle_opening(CrystalState& state, Pattern2Form& form) {
  constexpr Single smallest_opening = 3;
  constexpr Single default_opening = 37;
  if (!(state.CamAcquisition < smallest_opening)) return;
  state.CamAcquisition = default_opening;
  form.Text1.set_text(plain_text(state.CamAcquisition));
}

/// The lines to draw. Settles the order of the list, the reference, the rotation and the grey scale.
std::vector<ShownLine> find_lines(CrystalState& state, Pattern2Form& form, Integer lowest_level, Task& task) {
  reorder(state, order_for_kikuchi(state, task), task);
  settle_opening(state, form);
  const auto view = gnomonic_view(state);
  take_reference(state);
  if (state.PatternFlag == 1) {
    state.PatternAngle = to_single(double{state.PatternAngle} + double{state.PatternAngleStep} * degree);
  }
  ListedPlanes planes(state);
  if (!form.Check4.checked() || state.DisplayScale == 0) state.DisplayScale = strongest_in_view(planes, view, task);
  const auto lines = kikuchi_lines(planes, view, form.Check3.checked(), task);
  return shown_lines(state, form, lines, lowest_level, task);
}

}  // namespace

void PatternDisp2(Workbench& bench) {
  CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<Pattern2Form>();
  Canvas& picture = form.Picture1;
  const Integer lowest_level = integer_in(form.Text2);
  state.KikuchiRefLimit = long_in(form.Text19);
  if (state.KikuchiRefLimit == 0) state.KikuchiRefLimit = state.RefCount;
  WindowTask task(bench.services);
  const Hourglass hourglass(form);
  const auto lines = find_lines(state, form, lowest_level, task);
  const auto view = gnomonic_view(state);
  form.List1.clear();
  picture.set_back_colour(white);
  picture.set_fore_colour(black);
  picture.clear();
  set_scale(picture, view);
  draw_bands(state, form, view, lines, task);
  draw_marks(state, form, view);
  if (form.Check2.checked()) {
    bench.windows.use<ZaxisForm>().show();
    Calc(bench);
  }
}

void Patterndisp4(Workbench& bench) {
  const CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<Pattern2Form>();
  const Single reach = to_single(std::tan(state.CamAcquisition * degree));
  draw_line(form.Picture1, marked_line(state, form.Check3.checked()), reach, red);
}

}  // namespace zol
