// The detector in degrees and in millimetres, the pattern centre from one point, and the calibration on a pattern of
// Si(001). Angles in degrees at the interface; lengths on the detector in millimetres, on the picture in its
// coordinates, 0 to 511, y downward.
#pragma once

#include <string>

#include "core/crystal_state.h"

namespace zol {

/// Floor(x * n)/n: the digits that a detector box shows.
[[nodiscard]] double truncated(double x, double n);

/// Distance from the source to the detector, mm.
/// @throws RunFailure  an acquisition angle of 0
[[nodiscard]] double detector_position_mm(const Module1State& camera);

/// Length of a shift on the detector, mm.
[[nodiscard]] double shift_mm(const Module1State& camera, Single shift_deg);

/// Angle of a length on the detector, degrees. @throws RunFailure  a detector of no size
[[nodiscard]] double shift_deg(const Module1State& camera, double mm);

/// Acquisition angle of a detector at this distance, degrees. @throws RunFailure  a distance of 0
[[nodiscard]] double acquisition_deg(const Module1State& camera, Single position_mm);

/// A change of working distance in front of a tilted detector, which changes its position and the y shift.
struct WorkingDistance {
  Single WdChange = 0;    ///< mm
  Single DetIncline = 0;  ///< degrees
};
/// The detector position after it, mm.
[[nodiscard]] double position_after(const Module1State& camera, const WorkingDistance& change);
/// The y shift after it, degrees.
[[nodiscard]] double y_shift_after(const Module1State& camera, const WorkingDistance& change);

/// Shift in degrees of a pattern whose centre is at this coordinate of the picture, in x or in y.
[[nodiscard]] Single centre_shift_deg(const Module1State& camera, Single picture);

/// Poles that were marked on a pattern of Si(001): <001>, and <112> or <111> at SiAngle from it.
struct SiMarkers {
  Single SiMarkX1 = 0, SiMarkY1 = 0;
  Single SiMarkX2 = 0, SiMarkY2 = 0;
  Single SiAngle = 0;  ///< degrees
};
struct SiCalibration {
  Single SiCentreX = 0, SiCentreY = 0;
  Single SiLength = 0;  ///< from the source to the picture, in pixels
};

struct CalibratedCamera {
  SiCalibration pattern;
  Single acquisition_deg = 0, x_shift_deg = 0, y_shift_deg = 0;
};

/// @param normal_deg  of the substrate against the screen normal
/// @throws RunFailure  markers at the same height, or poles on one another
[[nodiscard]] CalibratedCamera calibrate(const SiMarkers& markers, Single normal_deg);

}  // namespace zol
