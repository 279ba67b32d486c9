// Pattern centres as the makers of detectors write them, and the way from the picture to the sample.
//
// A picture as detector software stores it is seen from behind the screen. Turned upside down (FLIP), its axes are x to
// the right, y down, z from the specimen to the screen, a right-handed frame: what was up is y then.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "indexing/picture.h"

namespace zol {

/// How a pattern centre is written.
///   Bruker  x from the left in widths, y from the top in heights, z in heights
///   Edax    x from the left in widths, y from the bottom in heights, z in the smaller of width and height
///   Oxford  x from the left, y from the bottom, z, all in widths
///   Emsoft  x to the left of the middle and y above it in pixels, z in micrometres
enum class CentreConvention { Bruker, Edax, Oxford, Emsoft };

/// "bruker", "edax", "oxford", "emsoft" in any case. @returns none for another word
[[nodiscard]] std::optional<CentreConvention> centre_convention(std::string_view name);

struct PictureSize {
  int width = 0, height = 0;    ///< pixels
  double pixel_micrometre = 1;  ///< of one pixel of the picture on the screen; only Emsoft's z needs it
};

/// Three numbers of a maker for a picture as stored (not turned), and the centre in widths from its upper left corner.
[[nodiscard]] PatternCentre read_centre(const std::array<double, 3>& numbers, CentreConvention convention,
                                        const PictureSize& size);
[[nodiscard]] std::array<double, 3> written_centre(const PatternCentre& centre, CentreConvention convention,
                                                   const PictureSize& size);

/// The same centre when the picture is turned upside down.
[[nodiscard]] PatternCentre upside_down(const PatternCentre& centre, const PictureSize& size);

/// The three angles of the window of measured patterns: half the angle that the picture's width takes, and the shifts
/// of the pattern centre to the right and down from the middle of the picture as it is, degrees.
struct DetectorAngles {
  double half_width_deg = 45, x_shift_deg = 0, y_shift_deg = 0;
};
[[nodiscard]] PatternCentre centre_of(const DetectorAngles& angles, const PictureSize& size);
[[nodiscard]] DetectorAngles angles_of(const PatternCentre& centre, const PictureSize& size);

/// The rotation from sample axes to the axes of the turned picture: X down the slope of the sample, Y to the right, Z
/// its normal. @param tilt_deg  of the sample, less that of the screen
[[nodiscard]] Rotation picture_from_sample(double tilt_deg);

}  // namespace zol
