// Calibration, and what fails. Degrees and millimetres: scripts/detector.zs.
#include "analysis/detector_geometry.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/cartesian_cell.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(Detector, FailsOnDivisors) {
  Module1State camera;
  EXPECT_TRUE(fails_with("the detector position is 0", [&] { (void)acquisition_deg(camera, 0); }));
  EXPECT_TRUE(fails_with("the detector area is 0", [&] { (void)shift_deg(camera, 1); }));
  EXPECT_TRUE(fails_with("the tangent of the acquisition angle is 0", [&] { (void)detector_position_mm(camera); }));
}

// The poles lie on an upright line, <001> the substrate's normal below the screen normal, the other above it.
TEST(SiliconCalibration, GivesTheCameraBack) {
  struct Row {
    double acquisition, x_shift, y_shift, normal, pole;
  };
  for (const auto& row : {Row{33, 4, -6.5, 20, 35.264}, Row{40, -3, 8, 25, 54.735}}) {
    const double length = 255.5 / std::tan(radians(row.acquisition));
    const double x = 255.5 + length * std::tan(radians(row.x_shift));
    const double y = 255.5 + length * std::tan(radians(row.y_shift));
    SiMarkers markers;
    markers.SiMarkX1 = markers.SiMarkX2 = static_cast<Single>(x);
    markers.SiMarkY1 = static_cast<Single>(y + length * std::tan(radians(row.normal)));
    markers.SiMarkY2 = static_cast<Single>(y - length * std::tan(radians(row.pole - row.normal)));
    markers.SiAngle = static_cast<Single>(row.pole);
    const auto camera = calibrate(markers, static_cast<Single>(row.normal));
    EXPECT_NEAR(camera.acquisition_deg, row.acquisition, 1e-3);
    EXPECT_NEAR(camera.x_shift_deg, row.x_shift, 1e-3);
    EXPECT_NEAR(camera.y_shift_deg, row.y_shift, 1e-3);
    EXPECT_NEAR(camera.pattern.SiLength, length, 1e-2);
  }
}

// Hand calculation: T1 = tan 20 = 0.36397, T2 = tan 15.264 = 0.27291; markers 3 pixels apart in x over 240 in y.
TEST(SiliconCalibration, TurnsTheMarkersUpright) {
  SiMarkers markers{260, 330, 257, 90, 35.264F};
  const auto result = calibrate(markers, 20).pattern;
  EXPECT_NEAR(result.SiLength, 240.0 / 0.63688 * std::sqrt(1 + 0.0125 * 0.0125), 0.05);
  EXPECT_NEAR(result.SiCentreX, (260 * 0.36397 + 257 * 0.27291) / 0.63688, 1e-2);
  markers.SiMarkY2 = 330;
  EXPECT_TRUE(fails_with("the height between the two markers is 0", [&] { (void)calibrate(markers, 20); }));
}

}  // namespace
}  // namespace zol
