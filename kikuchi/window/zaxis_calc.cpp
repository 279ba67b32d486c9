#include <array>
#include <cmath>

#include "kikuchi/window/kikuchi_operations.h"
#include "kikuchi/window/pattern2_form.h"
#include "kikuchi/window/zaxis_form.h"
#include "kikuchi/zone_map.h"
#include "reflections/window/main1_form.h"

namespace zol {
namespace {

using namespace colours;

constexpr Colour pale_blue = RGB(127, 127, 255);
constexpr Colour cyan = RGB(0, 255, 255);

Integer index_limit(const TextBox& box) { return box.text().empty() ? Integer(1) : integer_in(box); }

std::string numbers(Single u, Single v, Single w) { return Str(u) + ' ' + Str(v) + ' ' + Str(w) + ' '; }

/// The net of a pole figure: equator, spokes and rings every 10 degrees, a dot in the centre.
void draw_net(Canvas& picture, bool equidistant) {
  picture.set_solid_fill(false);
  picture.circle(0, 0, 1, blue);
  for (int a = 0; a <= 360; a += 10) picture.line(0, 0, std::cos(a * degree), std::sin(a * degree), pale_blue);
  for (int t = 10; t <= 80; t += 10) picture.circle(0, 0, equidistant ? t / 90.0 : std::cos(t * degree), pale_blue);
  constexpr double dot = 0.02;
  picture.circle(0, 0, dot, pale_blue);
  picture.set_solid_fill(true);
}

/// Place of a direction as the map shows it: from the screen normal or from the substrate normal.
DirectionPlace on_map(const CrystalState& state, const ZaxisForm& form, const DirectionPlace& place) {
  return form.Option2.on() ? from_substrate_normal(state, place) : place;
}

SweepLimits sweep_limits(const ZaxisForm& form) {
  return {index_limit(form.Text1).value(), index_limit(form.Text2).value(), index_limit(form.Text3).value()};
}

void draw_directions(const CrystalState& state, const std::deque<PlacedDirection>& directions, ZaxisForm& form,
                     Task& task) {
  constexpr double northern = 1.571;
  constexpr double disc = 0.01;
  Canvas& picture = form.Picture1;
  picture.set_fore_colour(black);
  int count = 0;
  for (const auto& direction : directions) {
    task.report(++count, static_cast<int>(directions.size()));
    task.check();
    const DirectionPlace place = on_map(state, form, direction.place);
    const bool is_northern = place.theta <= northern;
    if (!is_northern && !form.Check1.checked()) continue;
    const double radius = map_radius(place.theta, form.Check2.checked());
    const Colour colour = is_northern ? black : cyan;
    picture.set_fill_colour(colour);
    picture.circle(radius * std::cos(double{place.phi}), radius * std::sin(double{place.phi}), form.MapScale * disc,
                   colour);
    picture.print(numbers(direction.u, direction.v, direction.w));
    picture.mark({.h = static_cast<int>(direction.u),
                  .k = static_cast<int>(direction.v),
                  .l = static_cast<int>(direction.w),
                  .x = radius * std::cos(double{place.phi}),
                  .y = radius * std::sin(double{place.phi})});
  }
}

/// Degrees with one place, rounded down.
double tenth_of_degree(Single angle) { return std::floor(angle / degree * 10) / 10; }

std::optional<DirectionPlace> place_on_map(const CrystalState& state, const ZaxisForm& form, Single u, Single v,
                                           Single w) {
  const auto place = place_of_direction(state, u, v, w);
  return place ? std::optional(on_map(state, form, *place)) : std::nullopt;
}

std::string phi_text(const DirectionPlace& place) { return plain_text(Val(plain_text(tenth_of_degree(place.phi)))); }

std::string theta_text(const DirectionPlace& place) {
  return plain_text(Val(plain_text(90.0 - tenth_of_degree(place.theta))));
}

void show_axes(const CrystalState& state, ZaxisForm& form) {
  constexpr std::array<std::array<Single, 3>, 6> axes{
      {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 0}, {1, 0, 1}, {0, 1, 1}}};
  int row = 0;
  for (const auto& [u, v, w] : axes) {
    if (const auto place = place_on_map(state, form, u, v, w)) {
      form.Label_phi(row).set_caption(phi_text(*place));
      form.Label_theta(row).set_caption(theta_text(*place));
    }
    ++row;
  }
}

void show_typed_direction(const CrystalState& state, ZaxisForm& form) {
  const Single u = single_in(form.Text4);
  const Single v = single_in(form.Text5);
  const Single w = single_in(form.Text6);
  if (u == 0 && v == 0 && w == 0) return;
  if (const auto place = place_on_map(state, form, u, v, w)) {
    form.Text7.set_text(phi_text(*place));
    form.Text8.set_text(theta_text(*place));
  }
}

/// Labels the directions near the pattern on the Kikuchi picture, in its scale.
void label_pattern(const CrystalState& state, const std::deque<PlacedDirection>& directions, Canvas& picture,
                   Task& task) {
  const double reach_deg =
      std::abs(double{state.CamXShift}) + std::abs(double{state.CamAcquisition}) + std::abs(double{state.CamYShift});
  const Single limit = to_single(std::tan(reach_deg * degree));
  for (const auto& [u, v, w, place] : directions) {
    task.check();
    if (!(program_pi / 2 > place.theta)) continue;
    const double distance = std::tan(double{place.theta});
    if (!(distance <= limit * 1.5)) continue;
    picture.set_point(distance * std::cos(double{place.phi}), distance * std::sin(double{place.phi}), white);
    const Colour before = picture.fore_colour();
    picture.set_fore_colour(red);
    picture.print("[" + numbers(u, v, w) + "]");
    picture.set_fore_colour(before);
  }
}

}  // namespace

void Calc(Workbench& bench) {
  const CrystalState& state = main1_state(bench);
  auto& form = bench.windows.use<ZaxisForm>();
  Canvas& picture = form.Picture1;
  WindowTask task(bench.services);
  const auto directions = places_in_sweep(state, sweep_limits(form), task);
  if (form.KeepMap == 0) picture.clear();
  constexpr double label_size = 8;
  picture.set_font_size(label_size);
  picture.scale(-form.MapScale, form.MapScale, form.MapScale, -form.MapScale);
  draw_net(picture, form.Check2.checked());
  draw_directions(state, directions, form, task);
  picture.set_solid_fill(false);
  show_axes(state, form);
  show_typed_direction(state, form);
  if (form.Check3.checked()) label_pattern(state, directions, bench.windows.use<Pattern2Form>().Picture1, task);
}

}  // namespace zol
