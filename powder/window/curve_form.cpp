#include "powder/window/curve_form.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "powder/doublet.h"
#include "shell/services/guards.h"

namespace zol {
namespace {

constexpr auto menu = "Curve";
constexpr double percent = 100;

std::vector<CurvePoint> curve_points(const SharedVector<double>& samples, const CalculatedWith& with, double height) {
  std::vector<CurvePoint> points;
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double share = static_cast<double>(i) / last_sample;
    points.push_back({with.from + share * (double{with.to} - double{with.from}), samples[i] / height});
  }
  return points;
}

}  // namespace

CurveControls::CurveControls(Window& window, Services& services, PowderPattern& calculated, Canvas& curve,
                             Source source, std::function<std::optional<double>(double d_star)> place_of)
    : AddMeasured(window, "AddMeasured", "Add measured pattern...", menu),
      RemoveMeasured(window, "RemoveMeasured", "Remove measured pattern", menu),
      FitMeasured(window, "FitMeasured", "Fit to measured pattern", menu),
      AddLines(window, "AddLines", "Add list of lines...", menu),
      RemoveLines(window, "RemoveLines", "Remove lists of lines", menu),
      MeasuredScale(window, "MeasuredScale", "measured: scale="),
      MeasuredOffset(window, "MeasuredOffset", "offset="),
      MeasuredZero(window, "MeasuredZero", "zero="),
      FitBoxes(window, "FitBoxes", "Fit"),
      MeasuredResidual(window, "MeasuredResidual"),
      Dialog(window, services, "CurveDialog"),
      pattern(calculated),
      picture(curve),
      place(std::move(place_of)) {
  if (source == Source::Tube) Doublet.emplace(window, "Doublet", "K-alpha 1 and K-alpha 2", menu);
  window.fields().keep("CurveData", data);
  show_measured();
  declare(window);
}

void CurveControls::declare(Window& window) {
  using namespace guard;
  Window::warn({&FitMeasured, &FitBoxes, &RemoveMeasured}, [this] {
    return when(data.measured.points.empty(), "there is no measured pattern: \"Add measured pattern...\" reads one");
  });
  RemoveLines.warn_when = [this] { return when(data.lists.empty(), "there is no list of lines"); };
  if (Doublet) {
    Doublet->warn_when = [this] {
      return when(!data.doublet && !doublet_at(data.with.wavelength),
                  "the wavelength is that of no known tube: Cr, Fe, Co, Cu or Mo");
    };
  }
  for (const auto* ending : {".xy", ".xye", ".csv", ".txt", ".dat", ".xrdml", ".raw", ".rd", ".udf", ".uxd", ".cpi"}) {
    window.file_drops.push_back({ending, &AddMeasured, &Dialog, FileKind::MeasuredPattern});
  }
}

CurveOffer CurveControls::offer() {
  CurveOffer offer;
  offer.reflections = [this] { return ticks(); };
  offer.layers = [this] { return layers(); };
  offer.radiation = [this] { return data.radiation; };
  offer.commands = {
      {&AddMeasured, {}, "a pattern from a file, shown under the curve: .xy, .xye, .csv, .xrdml, .raw and others"},
      {&RemoveMeasured, {}, "takes the measured pattern away"},
      {&FitMeasured, {}, "scale, offset and zero by least squares"},
      {&AddLines, {}, "a text file with d and I in each line, shown as sticks"},
      {&RemoveLines, {}, "takes the sticks away"}};
  if (Doublet) {
    offer.commands.push_back({&*Doublet, [this] { return data.doublet; },
                              "adds the curve of both lines of the tube, the second half as strong as the first"});
  }
  offer.changed = [this, seen = data, told = match()]() mutable {
    const auto tells = match();
    if (seen == data && told == tells) return false;
    seen = data;
    told = tells;
    return true;
  };
  offer.tools = {{&MeasuredScale, "measured units for one per cent of the highest calculated sample; above 0"},
                 {&MeasuredOffset, "constant background, in measured units"},
                 {&MeasuredZero, "what the instrument adds to the place", picture.x_axis ? picture.x_axis->unit : ""},
                 {&FitBoxes, "finds scale, offset and zero by least squares"},
                 {&MeasuredResidual, "what is left of the measured intensities: R-wp in per cent"}};
  return offer;
}

void CurveControls::show_measured() {
  const bool there = !data.measured.points.empty();
  for (Control* control :
       std::initializer_list<Control*>{&MeasuredScale, &MeasuredOffset, &MeasuredZero, &FitBoxes, &MeasuredResidual}) {
    control->set_visible(there);
  }
  const auto curve = sampled();
  const auto as_told = match();
  std::string text;
  if (there && !as_told) text = "the scale has to be above 0";
  if (there && curve && as_told) {
    text = "R-wp " + Format(weighted_residual(*as_told, data.measured.points.get(), *curve), "0.0") + " %";
  }
  MeasuredResidual.set_caption(text);
}

std::optional<SampledCurve> CurveControls::sampled() const {
  if (pattern.Profile.upper() < last_sample || !(data.with.to > data.with.from)) return std::nullopt;
  const double highest = largest_sample(pattern.Profile);
  if (!(highest > 0)) return std::nullopt;
  std::vector<double> samples;
  for (int m = 0; m <= last_sample; ++m) {
    const bool both = data.doublet && data.both.size() > last_sample;
    const double sample = both ? data.both[static_cast<std::size_t>(m)] : double{pattern.Profile(m)};
    samples.push_back(sample / highest * percent);
  }
  return SampledCurve(data.with.from, data.with.to, std::move(samples));
}

std::optional<CurveMatch> CurveControls::match() const {
  const CurveMatch told{Val(MeasuredScale.text()), Val(MeasuredOffset.text()), Val(MeasuredZero.text())};
  if (!(told.scale > 0) || !std::isfinite(told.scale + told.offset + told.zero)) return std::nullopt;
  return told;
}

std::vector<CurveTick> CurveControls::ticks() const {
  std::vector<CurveTick> ticks;
  for (const auto& line : data.reflections) {
    if (const auto x = place(line.d_star)) ticks.push_back({*x, indices_text(line), line.intensity});
  }
  return ticks;
}

std::vector<CurveLayer> CurveControls::layers() const {
  std::vector<CurveLayer> layers;
  add_lists(layers);
  if (!(pattern.DisplayMax > 0) || pattern.Profile.upper() < last_sample) return layers;
  add_measured(layers, double{largest_sample(pattern.Profile)} / pattern.DisplayMax / percent);
  add_doublet(layers);
  return layers;
}

void CurveControls::add_measured(std::vector<CurveLayer>& layers, double height_of_percent) const {
  const auto as_told = match();
  const auto curve = sampled();
  if (data.measured.points.empty() || !as_told || !curve) return;
  CurveLayer measured{data.measured.name, {}, curve_colours::measured, CurveStroke::Dots};
  CurveLayer difference{"difference", {}, curve_colours::difference, CurveStroke::Dashed, true};
  const double height_of_unit = height_of_percent / as_told->scale;
  for (const auto& point : data.measured.points) {
    const double x = point.x - as_told->zero;
    measured.points.push_back({x, (point.intensity - as_told->offset) * height_of_unit});
    const auto model = matched(*as_told, *curve, point.x);
    if (model) difference.points.push_back({x, (point.intensity - *model) * height_of_unit});
  }
  layers.push_back(std::move(measured));
  layers.push_back(std::move(difference));
}

void CurveControls::add_lists(std::vector<CurveLayer>& layers) const {
  constexpr std::array<Colour, 3> of_lists{RGB(0x8A, 0x2A, 0x5B), RGB(0x1F, 0x6B, 0x45), RGB(0x6B, 0x4F, 0xA0)};
  for (std::size_t i = 0; i < data.lists.size(); ++i) {
    const LineList& list = data.lists[i];
    CurveLayer sticks{list.name, {}, of_lists.at(i % of_lists.size()), CurveStroke::Sticks};
    double highest = 0;
    for (const auto& line : list.lines) highest = std::max(highest, line.intensity);
    for (const auto& line : list.lines) {
      const auto x = place(1 / line.spacing);
      if (x && highest > 0) sticks.points.push_back({*x, line.intensity / highest});
    }
    layers.push_back(std::move(sticks));
  }
}

void CurveControls::add_doublet(std::vector<CurveLayer>& layers) const {
  if (!data.doublet || data.both.empty()) return;
  layers.push_back({"Kα1 + Kα2", curve_points(data.both, data.with, pattern.DisplayMax), curve_colours::calculated});
  layers.push_back({"Kα2", curve_points(data.second, data.with, pattern.DisplayMax), curve_colours::ticks});
}

std::optional<double> number_at_head(const ListBox& list, int line) {
  if (line < 0 || line >= list.list_count()) return std::nullopt;
  const auto number = leading_number(list.items()[static_cast<std::size_t>(line)]);
  return number ? std::optional(number->value) : std::nullopt;
}

}  // namespace zol
