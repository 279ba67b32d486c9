#include "analysis/detector_geometry.h"

#include <cmath>

namespace zol {
namespace {

double tangent(Single angle_deg) { return std::tan(double{angle_deg} * degree); }

double in_degrees(double tangent_of_angle) { return std::atan(tangent_of_angle) / degree; }

}  // namespace

double truncated(double x, double n) { return std::floor(x * n) / n; }

double detector_position_mm(const Module1State& camera) {
  return divide(double{camera.CamDetector} / 2.0, tangent(camera.CamAcquisition),
                "the tangent of the acquisition angle");
}

double shift_mm(const Module1State& camera, Single shift) { return detector_position_mm(camera) * tangent(shift); }

double shift_deg(const Module1State& camera, double mm) {
  return in_degrees(divide(2.0 * mm, camera.CamDetector, "the detector area") * tangent(camera.CamAcquisition));
}

double acquisition_deg(const Module1State& camera, Single position_mm) {
  return in_degrees(divide(double{camera.CamDetector} / 2.0, position_mm, "the detector position"));
}

double position_after(const Module1State& camera, const WorkingDistance& change) {
  return detector_position_mm(camera) + double{change.WdChange} * std::sin(double{change.DetIncline} * degree);
}

double y_shift_after(const Module1State& camera, const WorkingDistance& change) {
  return shift_mm(camera, camera.CamYShift) - double{change.WdChange} * std::cos(double{change.DetIncline} * degree);
}

Single centre_shift_deg(const Module1State& camera, Single picture) {
  constexpr double half_picture = 255.0;
  return to_single(in_degrees((double{picture} - half_picture) / half_picture * tangent(camera.CamAcquisition)));
}

CalibratedCamera calibrate(const SiMarkers& markers, Single normal_deg) {
  SiCalibration result;
  const double x1 = markers.SiMarkX1;
  const double y1 = markers.SiMarkY1;
  const double x2 = markers.SiMarkX2;
  const double y2 = markers.SiMarkY2;
  const double normal = double{normal_deg} * degree;
  const double t1 = to_single(std::tan(normal));
  const double t2 = to_single(std::tan(double{markers.SiAngle} * degree - normal));
  constexpr auto both = "the distance of the two poles";

  const double turn = to_single(std::atan(divide(x1 - x2, y1 - y2, "the height between the two markers")));
  result.SiCentreX = to_single(divide(x1 * t1 + x2 * t2, t2 + t1, both));
  result.SiLength = to_single(divide(y1 - y2, t2 + t1, both));
  result.SiCentreY = to_single(y1 - double{result.SiLength} * t1);

  const double centre_x = result.SiCentreX;
  const double centre_y = result.SiCentreY;
  const double turned_y1 = to_single((y1 - centre_y) * std::cos(turn) + centre_y + (x1 - centre_x) * std::sin(turn));
  const double turned_y2 = to_single((y2 - centre_y) * std::cos(turn) + centre_y + (x2 - centre_x) * std::sin(turn));
  result.SiLength = to_single(divide(turned_y1 - turned_y2, t2 + t1, both));
  result.SiCentreY = to_single(turned_y1 - double{result.SiLength} * t1);

  constexpr double half_picture = 255.5;
  const auto angle = [length_px = result.SiLength](double length) {
    return to_single(in_degrees(divide(length, length_px, "the distance of the picture from the source")));
  };
  return {result, angle(half_picture), angle(double{result.SiCentreX} - half_picture),
          angle(double{result.SiCentreY} - half_picture)};
}

}  // namespace zol
