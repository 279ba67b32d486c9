// What both powder windows lay beside their curves: a measured pattern, lists of lines, the second radiation.
#pragma once

#include <functional>
#include <string>

#include "core/shared_vector.h"
#include "powder/curve_fit.h"
#include "powder/line_profile.h"
#include "powder/measured_curve.h"
#include "powder/reflection_lines.h"
#include "powder/window/powder_form.h"
#include "shell/services/curve_offer.h"
#include "shell/services/window_services.h"

namespace zol {

/// What the last calculation was made with, since boxes and crystal may have changed since.
struct CalculatedWith {
  Single from = 0, to = 0;  ///< places of the first and the last sample
  Single wavelength = 0, dmin = 0;
  PseudoVoigt line = {};
  Integer grid_points = 1;
  bool operator==(const CalculatedWith& other) const {
    return from == other.from && to == other.to && wavelength == other.wavelength && dmin == other.dmin &&
           line.half_width == other.line.half_width && line.gaussian_ratio == other.line.gaussian_ratio &&
           grid_points == other.grid_points;
  }
};

struct CurveData {
  CalculatedWith with;
  SharedVector<ReflectionLine> reflections;
  std::string radiation;  ///< UTF-8
  MeasuredCurve measured;
  SharedVector<LineList> lists;
  bool doublet = false;         ///< the curve is that of K-alpha 1 and 2
  SharedVector<double> second;  ///< samples of only K-alpha 2, of a third of the intensity
  SharedVector<double> both;    ///< of both lines together
  bool operator==(const CurveData&) const = default;
};

/// Controls and data of one window.
struct CurveControls {
  enum class Source { Tube, Any };
  /// @param place_of  in user coordinates, of 1/d in 1/angstrom; none where there is none
  CurveControls(Window& window, Services& services, PowderPattern& calculated, Canvas& curve, Source source,
                std::function<std::optional<double>(double d_star)> place_of);

  MenuItem AddMeasured, RemoveMeasured, FitMeasured, AddLines, RemoveLines;
  std::optional<MenuItem> Doublet;  ///< of a tube
  TextBox MeasuredScale, MeasuredOffset, MeasuredZero;
  CommandButton FitBoxes;
  Label MeasuredResidual;
  FileDialog Dialog;

  CurveData data;
  PowderPattern& pattern;
  Canvas& picture;
  std::function<std::optional<double>(double)> place;

  /// Samples in per cent of the highest one of the pattern; none where there is no curve.
  [[nodiscard]] std::optional<SampledCurve> sampled() const;
  /// As the boxes have it; none where the scale is not above 0.
  [[nodiscard]] std::optional<CurveMatch> match() const;
  /// The offer without its second axis and its list of peaks.
  [[nodiscard]] CurveOffer offer();
  /// Shows boxes where there is a measured pattern, and how well it fits.
  void show_measured();

 private:
  [[nodiscard]] std::vector<CurveTick> ticks() const;
  [[nodiscard]] std::vector<CurveLayer> layers() const;
  void add_measured(std::vector<CurveLayer>& layers, double height_of_percent) const;
  void add_lists(std::vector<CurveLayer>& layers) const;
  void add_doublet(std::vector<CurveLayer>& layers) const;
  void declare(Window& window);
};

/// The number that a line of a list begins with.
[[nodiscard]] std::optional<double> number_at_head(const ListBox& list, int line);

}  // namespace zol
