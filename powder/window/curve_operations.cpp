#include "powder/window/curve_operations.h"

#include <cmath>
#include <utility>

#include "powder/doublet.h"
#include "reflections/window/main1_form.h"

namespace zol {
namespace {

constexpr auto measured_filter =
    "Measured patterns|*.xy;*.xye;*.csv;*.txt;*.dat;*.xrdml;*.raw;*.rd;*.udf;*.uxd;*.cpi|All files|*|";
constexpr auto lists_filter = "Lists of d and I|*.txt;*.csv;*.dat;*.dI|All files|*|";

/// To six significant digits.
std::string box_text(double value) {
  if (value == 0 || !std::isfinite(value)) return "0";
  constexpr int digits = 5;
  const double unit = std::pow(10.0, digits - std::floor(std::log10(std::abs(value))));
  return plain_text(std::round(value * unit) / unit);
}

/// What cannot be done is told and leaves all as it was.
template <class Action>
void told_where_it_fails(Workbench& bench, const char* title, const Action& action) {
  try {
    action();
  } catch (const RunFailure& failure) {
    bench.services.message(failure.message(), title);
  }
}

void changed(CurveControls& curves) {
  curves.show_measured();
  curves.picture.surroundings_changed();
}

void show_match(CurveControls& curves, const CurveMatch& match) {
  curves.MeasuredScale.set_text(box_text(match.scale));
  curves.MeasuredOffset.set_text(box_text(match.offset));
  curves.MeasuredZero.set_text(box_text(match.zero));
}

void add_measured(Workbench& bench, CurveControls& curves) {
  curves.Dialog.set_filter(measured_filter);
  const std::string path = curves.Dialog.open(FileKind::MeasuredPattern);
  if (path.empty()) return;
  told_where_it_fails(bench, "Measured pattern", [&] {
    WindowTask task(bench.services);
    curves.data.measured = read_measured_curve(path, task);
    constexpr double highest = 100;  // per cent
    show_match(curves, rough_match(curves.data.measured.points.get(), highest));
    changed(curves);
  });
}

void remove_measured(CurveControls& curves) {
  curves.data.measured = {};
  changed(curves);
}

void fit_measured(Workbench& bench, CurveControls& curves) {
  told_where_it_fails(bench, "Fit", [&] {
    const auto curve = curves.sampled();
    if (curves.data.measured.points.empty()) throw RunFailure("there is no measured pattern");
    if (!curve) throw RunFailure("there is no calculated curve: press \"CALC\" first");
    constexpr double part = 0.02;  // of the range
    const double most_zero = part * (curve->to() - curve->from());
    WindowTask task(bench.services);
    show_match(curves, fitted_match(curves.data.measured.points.get(), *curve, most_zero, task));
    changed(curves);
  });
}

void add_lines(Workbench& bench, CurveControls& curves) {
  curves.Dialog.set_filter(lists_filter);
  const std::string path = curves.Dialog.open(FileKind::LineList);
  if (path.empty()) return;
  told_where_it_fails(bench, "List of lines", [&] {
    WindowTask task(bench.services);
    curves.data.lists.push_back(read_line_list(path, task));
    changed(curves);
  });
}

void remove_lines(CurveControls& curves) {
  curves.data.lists.clear();
  changed(curves);
}

/// The pattern of one line of the tube, with a share of the intensity.
PowderProfile profile_of(const CurveControls& curves, double wavelength, Task& task) {
  const CalculatedWith& with = curves.data.with;
  const auto bins = filled_bins(curves.pattern.Bins, 0, curves.pattern.BinCount, with.dmin);
  auto profile = sum_pseudo_voigt_lines(bins, to_single(wavelength), {with.from, with.to}, with.line, task);
  return divided_samples(std::move(profile), with.grid_points);
}

void make_doublet(Workbench& bench, CurveControls& curves) {
  curves.data.second.clear();
  curves.data.both.clear();
  const auto doublet = doublet_at(curves.data.with.wavelength);
  if (!curves.data.doublet || !doublet || curves.pattern.Profile.upper() < last_sample) return;
  WindowTask task(bench.services);
  const auto first = profile_of(curves, doublet->alpha_1, task);
  const auto second = profile_of(curves, doublet->alpha_2, task);
  for (int m = 0; m <= last_sample; ++m) {
    curves.data.second.push_back(second(m) / 3.0);
    curves.data.both.push_back((2.0 * first(m) + second(m)) / 3.0);
  }
}

void turn_doublet(Workbench& bench, CurveControls& curves) {
  told_where_it_fails(bench, "K-alpha 1 and K-alpha 2", [&] {
    if (!curves.data.doublet && !doublet_at(curves.data.with.wavelength)) {
      throw RunFailure("the wavelength, " + plain_text(curves.data.with.wavelength) +
                       " angstroms, is that of no known tube: expected is K-alpha of Cr, Fe, Co, Cu or Mo");
    }
    curves.data.doublet = !curves.data.doublet;
    make_doublet(bench, curves);
    changed(curves);
  });
}

std::string radiation_text(const CrystalState& state) {
  const std::string wavelength = "λ = " + plain_text(state.WaveLength) + " Å";
  if (state.AccVoltage > 0) return "electrons, " + plain_text(state.AccVoltage) + " kV, " + wavelength;
  const auto doublet = doublet_at(state.WaveLength);
  return (doublet ? std::string(doublet->element) + " Kα, " : "X-rays, ") + wavelength;
}

}  // namespace

void wire_curves(Workbench& bench, CurveControls& curves) {
  curves.AddMeasured.on_click = [&bench, &curves] { add_measured(bench, curves); };
  curves.RemoveMeasured.on_click = [&curves] { remove_measured(curves); };
  curves.FitMeasured.on_click = [&bench, &curves] { fit_measured(bench, curves); };
  curves.FitBoxes.on_click = [&bench, &curves] { fit_measured(bench, curves); };
  curves.AddLines.on_click = [&bench, &curves] { add_lines(bench, curves); };
  curves.RemoveLines.on_click = [&curves] { remove_lines(curves); };
  if (curves.Doublet) curves.Doublet->on_click = [&bench, &curves] { turn_doublet(bench, curves); };
  for (TextBox* box : {&curves.MeasuredScale, &curves.MeasuredOffset, &curves.MeasuredZero}) {
    box->on_change = [&curves] { changed(curves); };
  }
}

void curve_calculated(Workbench& bench, CurveControls& curves, const CalculatedWith& with) {
  const CrystalState& state = main1_state(bench);
  curves.data.with = with;
  curves.data.reflections = reflection_lines(state);
  curves.data.radiation = radiation_text(state);
  make_doublet(bench, curves);
  changed(curves);
}

}  // namespace zol
