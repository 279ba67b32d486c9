#include "indexing/detector.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <string>

#include "indexing/units.h"

namespace zol {
namespace {

/// Height in widths.
double aspect(const PictureSize& size) { return static_cast<double>(size.height) / size.width; }

/// The unit of Edax's z in widths.
double smaller_side(const PictureSize& size) { return std::min(1.0, aspect(size)); }

}  // namespace

std::optional<CentreConvention> centre_convention(std::string_view name) {
  std::string lower;
  for (const char c : name) lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (lower == "bruker") return CentreConvention::Bruker;
  if (lower == "edax") return CentreConvention::Edax;
  if (lower == "oxford") return CentreConvention::Oxford;
  if (lower == "emsoft") return CentreConvention::Emsoft;
  return std::nullopt;
}

PatternCentre read_centre(const std::array<double, 3>& numbers, CentreConvention convention, const PictureSize& size) {
  const auto [x, y, z] = numbers;
  switch (convention) {
    case CentreConvention::Bruker:
      return {x, y * aspect(size), z * aspect(size)};
    case CentreConvention::Edax:
      return {x, (1 - y) * aspect(size), z * smaller_side(size)};
    case CentreConvention::Oxford:
      return {x, aspect(size) - y, z};
    case CentreConvention::Emsoft:
      break;
  }
  return {0.5 - x / size.width, aspect(size) / 2 - y / size.width, z / (size.width * size.pixel_micrometre)};
}

std::array<double, 3> written_centre(const PatternCentre& centre, CentreConvention convention,
                                     const PictureSize& size) {
  switch (convention) {
    case CentreConvention::Bruker:
      return {centre.x, centre.y / aspect(size), centre.z / aspect(size)};
    case CentreConvention::Edax:
      return {centre.x, 1 - centre.y / aspect(size), centre.z / smaller_side(size)};
    case CentreConvention::Oxford:
      return {centre.x, aspect(size) - centre.y, centre.z};
    case CentreConvention::Emsoft:
      break;
  }
  return {(0.5 - centre.x) * size.width, (aspect(size) / 2 - centre.y) * size.width,
          centre.z * size.width * size.pixel_micrometre};
}

PatternCentre upside_down(const PatternCentre& centre, const PictureSize& size) {
  return {centre.x, aspect(size) - centre.y, centre.z};
}

PatternCentre centre_of(const DetectorAngles& angles, const PictureSize& size) {
  const double z = 0.5 / std::tan(angles.half_width_deg * radians);
  return {0.5 + z * std::tan(angles.x_shift_deg * radians),
          aspect(size) / 2 + z * std::tan(angles.y_shift_deg * radians), z};
}

DetectorAngles angles_of(const PatternCentre& centre, const PictureSize& size) {
  return {std::atan(0.5 / centre.z) / radians, std::atan((centre.x - 0.5) / centre.z) / radians,
          std::atan((centre.y - aspect(size) / 2) / centre.z) / radians};
}

Rotation picture_from_sample(double tilt_deg) {
  const double sine = std::sin(tilt_deg * radians);
  const double cosine = std::cos(tilt_deg * radians);
  Rotation rotation;
  rotation << 0, 1, 0, -sine, 0, cosine, cosine, 0, sine;
  return rotation;
}

}  // namespace zol
