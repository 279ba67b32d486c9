#include "analysis/band_measurement.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/cell_geometry.h"
#include "core/number_text.h"

namespace zol {
namespace {

constexpr int bands_measured = 3;
constexpr Single upright_slope = 100000;

/// Ends of the window in the gnomonic plane.
void set_view_range(const CrystalState& state, BoundedArray<Single>& range) {
  const double acquisition = double{state.CamAcquisition} * degree;
  const double x_shift = double{state.CamXShift} * degree;
  const double y_shift = double{state.CamYShift} * degree;
  const double ratio = state.CamXYRatio;
  range(1) = to_single(std::tan(-acquisition) - std::tan(x_shift));
  range(2) = to_single(std::tan(acquisition) - std::tan(x_shift));
  range(3) = to_single((std::tan(-acquisition) - std::tan(y_shift)) * ratio);
  range(4) = to_single((std::tan(acquisition) - std::tan(y_shift)) * ratio);
  range(0) = 0;
  for (int i = 1; i <= 4; ++i) range(0) = std::max(range(0), std::abs(range(i)));
}

Single onto_plane(Single low, Single high, Single picture) {
  constexpr double picture_size = 511.0;
  return to_single((double{high} - double{low}) * double{picture} / picture_size + double{low});
}

void measure_line(MeasuredBands& bands, int line) {
  const double x0 = bands.GnomX(line, 0);
  const double y0 = bands.GnomY(line, 0);
  const double x1 = bands.GnomX(line, 1);
  const double y1 = bands.GnomY(line, 1);
  bands.LineSlope(line) = x1 == x0 ? upright_slope : to_single((y1 - y0) / (x1 - x0));
  const double slope = bands.LineSlope(line);
  bands.LineIntercept(line) = to_single(y0 - x0 * slope);
  bands.LineDist(line) = to_single(std::abs(double{bands.LineIntercept(line)}) / std::sqrt(slope * slope + 1.0));
}

/// Width of a band from its edges, which then give place to the line in their middle.
void join_edges(MeasuredBands& bands, int band, Single wavelength) {
  const int a = 2 * band;
  const int b = a + 1;
  const double angle_a = std::atan(double{bands.LineDist(a)});
  const double angle_b = std::atan(double{bands.LineDist(b)});
  const bool around_origin = to_single(double{bands.LineIntercept(a)} * double{bands.LineIntercept(b)}) < 0;
  const double opening = std::abs(around_origin ? angle_a + angle_b : angle_a - angle_b);
  bands.BandS(band) = to_single(divide(std::sin(opening / 2.0), wavelength, "the wavelength"));
  for (auto* value : {&bands.LineSlope, &bands.LineIntercept, &bands.LineDist}) {
    (*value)(band) = to_single((double{(*value)(a)} + double{(*value)(b)}) / 2.0);
  }
}

/// Azimuth and polar angle of the normal of the plane that the line is the trace of.
void measure_normal(MeasuredBands& bands, int band) {
  const double slope = bands.LineSlope(band);
  Single& phi = bands.BandPhi(band);
  phi = to_single(slope == 0.0 ? -program_pi / 2.0 : std::atan(-1.0 / slope));
  if (to_single(-slope * double{bands.LineIntercept(band)}) > 0) phi = to_single(double{phi} + program_pi);
  if (phi < 0) phi = to_single(double{phi} + program_two_pi);
  bands.BandTheta(band) = to_single(program_pi / 2.0 - std::atan(double{bands.LineDist(band)}));
}

struct PlanePoint {
  Single x, y;
};

PlanePoint point_of_normal(const MeasuredBands& bands, int band) {
  const double phi = bands.BandPhi(band);
  const double reach = std::tan(double{bands.BandTheta(band)});
  return {to_single(std::cos(phi) * reach), to_single(std::sin(phi) * reach)};
}

void measure_angle_to_next(MeasuredBands& bands, int band) {
  const auto a = point_of_normal(bands, band);
  const auto b = point_of_normal(bands, (band + 1) % bands_measured);
  const double xa = a.x;
  const double ya = a.y;
  const double xb = b.x;
  const double yb = b.y;
  bands.BandCos(band) =
      to_single((xb * xa + ya * yb + 1.0) / std::sqrt(ya * ya + xa * xa + 1.0) / std::sqrt(xb * xb + yb * yb + 1.0));
  bands.BandAngle(band) = ArcCos(bands.BandCos(band));
  if (bands.BandAngle(band) > 90) bands.BandAngle(band) = to_single(180.0 - double{bands.BandAngle(band)});
}

}  // namespace

MeasuredBands measure_bands(const CrystalState& state, const PickedLines& lines, bool two_edges, MeasuredBands before) {
  MeasuredBands bands = std::move(before);
  auto& range = bands.ViewRange;
  set_view_range(state, range);
  for (int line = 0; line <= lines.LastLine.value(); ++line) {
    for (int end = 0; end <= 1; ++end) {
      bands.GnomX(line, end) = onto_plane(range(1), range(2), lines.LineX(line, end));
      bands.GnomY(line, end) = onto_plane(range(3), range(4), lines.LineY(line, end));
    }
    measure_line(bands, line);
  }
  if (two_edges) {
    for (int band = 0; band < bands_measured; ++band) join_edges(bands, band, state.WaveLength);
  }
  for (int band = 0; band < bands_measured; ++band) measure_normal(bands, band);
  for (int band = 0; band < bands_measured; ++band) measure_angle_to_next(bands, band);
  return bands;
}

std::string band_text(const MeasuredBands& bands, int band, bool with_width) {
  std::string text = "Phi=" + Str(double{bands.BandPhi(band)} / degree);
  text += "Theta=" + Str(double{bands.BandTheta(band)} / degree);
  if (with_width) text += "Width=" + Str(divide(1.0, bands.BandS(band), "the width of a band") / 2.0);
  return text + "  Angle=" + Str(bands.BandAngle(band));
}

}  // namespace zol
