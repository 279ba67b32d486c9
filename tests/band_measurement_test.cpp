// Lines drawn by hand on a plane from -1 to 1, directions from planes, and the detector. Shifts, ratio and real widths:
// scripts/indexing.zs; degrees and millimetres: scripts/detector.zs.
#include "analysis/band_measurement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

#include "analysis/detector_geometry.h"
#include "analysis/direction_solvers.h"
#include "tests/cartesian_cell.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// Measures lines drawn in a window from -1 to 1 in both directions.
class MeasureBands : public testing::Test {
 protected:
  struct Line {
    double x1, y1, x2, y2;  // in the gnomonic plane
  };

  MeasureBands() {
    state.CamAcquisition = 45;
    state.CamXYRatio = 1;
    state.WaveLength = 0.1F;
  }
  void measure(const std::vector<Line>& drawn) {
    const auto picture = [](double plane) { return to_single((plane + 1) * 511 / 2); };
    int number = 0;
    for (const auto& line : drawn) {
      lines.LineX(number, 0) = picture(line.x1);
      lines.LineY(number, 0) = picture(line.y1);
      lines.LineX(number, 1) = picture(line.x2);
      lines.LineY(number++, 1) = picture(line.y2);
    }
    bands = measure_bands(state, lines, drawn.size() == 6, bands);
  }

  CrystalState state;
  PickedLines lines;
  MeasuredBands bands;
};

TEST_F(MeasureBands, NormalsPointAwayFromTheLineAndTheirAnglesAreFolded) {
  struct Row {
    Line line;
    double phi_deg, theta_deg;
  };
  // atan(0.5) = 26.5651, atan(0.5 / sqrt(2)) = 19.4712
  for (const auto& row :
       {Row{{0.5, -1, 0.5, 1}, 180, 63.4349}, Row{{-0.5, -1, -0.5, 1}, 359.999, 63.4349},
        Row{{-1, 0.5, 1, 0.5}, 270, 63.4349}, Row{{-1, -0.5, 1, -0.5}, 270, 63.4349},  // level, both to one side
        Row{{-1, -0.5, 0.5, 1}, 315, 70.5288}, Row{{-0.5, -1, 1, 0.5}, 135, 70.5288},
        Row{{-1, 0.5, 0.5, -1}, 45, 70.5288}, Row{{-1, -1, 1, 1}, 315, 90}}) {
    measure({row.line, row.line, row.line});
    EXPECT_NEAR(bands.BandPhi(0) / degree, row.phi_deg, 2e-3);
    EXPECT_NEAR(bands.BandTheta(0) / degree, row.theta_deg, 2e-3) << row.phi_deg;
  }
  measure({{0.5, -1, 0.5, 1}, {-1, 0.5, 1, 0.5}, {-0.5, -1, -0.5, 1}});
  EXPECT_NEAR(bands.BandAngle(0), 78.463, 1e-3);  // (-0.8944 0 0.4472) and (0 -0.8944 0.4472): cosine 0.2
  EXPECT_NEAR(bands.BandAngle(2), 53.1301, 1e-3) << "126.87, folded";
  EXPECT_NEAR(bands.BandCos(2), -0.6, 1e-5);
}

TEST_F(MeasureBands, TakesWidthsFromEdgesOnBothSidesOfTheCentre) {
  lines.LastLine = 5;
  const Line edge{0.1, -1, 0.1, 1};
  const Line other{0.3, -1, 0.3, 1};
  measure({edge, {-0.1, -1, -0.1, 1}, edge, other, edge, other});
  EXPECT_NEAR(bands.BandS(0), 0.995037, 2e-4) << "atan 0.1 to both sides";
  EXPECT_NEAR(bands.BandS(1), 0.957466, 2e-4) << "(16.6992 - 5.7106) / 2 degrees";
  EXPECT_NEAR(bands.LineDist(0), 0.1, 1e-5) << "the mean of two magnitudes";
  EXPECT_NEAR(bands.LineDist(1), 0.2, 1e-5);
  state.WaveLength = 0;
  EXPECT_TRUE(fails_with("the wavelength is 0", [&] { (void)measure_bands(state, lines, true, bands); }));
}

TEST(NearestEnd, IsTheLaterOneOfEquals) {
  PickedLines lines;
  lines.LineX(0, 0) = 10;
  lines.LineX(1, 1) = 30;
  for (const auto& [x, line, end] : {std::tuple{9.0F, 0, 0}, {20.0F, 1, 1}, {1.0F, 2, 1}}) {  // all others lie at 0
    const auto nearest = nearest_end(lines, x, 0);
    EXPECT_EQ(std::pair(nearest.line, nearest.end), std::pair(line, end)) << x;
  }
}

// Inverses: lattice_test.cpp.
TEST(InvertMatrix, TellsWhetherThereIsAnInverse) {
  BoundedTable<Single> matrix("M", 2, 2);
  matrix(1, 2) = matrix(2, 1) = 4;
  EXPECT_EQ(InvertMatrix(2, matrix), 0);
  EXPECT_EQ(matrix(1, 2), 0.25F);
  matrix(1, 2) = 0;
  EXPECT_EQ(InvertMatrix(2, matrix), 1);
}

TEST(SolveTwoPlanes, GivesDirectionsOfUnitLength) {
  struct Case {
    Indices<Integer> plane1, plane2;
    Single cosine1, cosine2;
    int status;
    SingleTriple A1, A2;
  };
  constexpr Indices<Integer> third{7, 7, 7};  // of no account, like its cosine
  Main1State cell;                            // cubic of edge 1 and free of the rounding of cos(90 degrees)
  cell.CellA = cell.CellB = cell.CellC = cell.AStar = cell.BStar = cell.CStar = 1;
  for (const auto& row : {
           // Case 2 gives v, w, u and case 3 w, u, v.
           Case{{0, 1, 0}, {0, 0, 1}, 0.6F, 0, 21, {0.8F, 0.6F, 0}, {-0.8F, 0.6F, 0}},
           Case{{1, 0, 0}, {0, 1, 0}, 0.6F, 0, 22, {0, 0.8F, 0.6F}, {0, -0.8F, 0.6F}},
           Case{{0, 0, 1}, {1, 0, 0}, 0.6F, 0, 23, {0.6F, 0, 0.8F}, {0.6F, 0, -0.8F}},
           // v = 0.36, v + w = sqrt(2) 0.6364 = 0.9, so w = 0.54, u = 0.760789
           Case{{0, 1, 0}, {0, 1, 1}, 0.36F, 0.6363961F, 21, {0.760789F, 0.36F, 0.54F}, {-0.760789F, 0.36F, 0.54F}},
           Case{{1, 0, 0}, {0, 1, 0}, 1, 0, 12, {0, 0, 1}, {0, 0, 0}},
           // no real root
           Case{{0, 1, 0}, {0, 0, 1}, 1, 1, 2, {1, 0, 0}, {1, 0, 0}},
           Case{{1, 0, 0}, {0, 1, 0}, 1, 1, 2, {0, 1, 0}, {0, 1, 0}},
           Case{{0, 0, 1}, {1, 0, 0}, 1, 1, 3, {0, 0, 1}, {0, 0, 1}},
           // parallel planes
           Case{{1, 0, 0}, {-1, 0, 0}, 0.5F, 0.5F, 4, {9, 9, 9}, {9, 9, 9}},
       }) {
    SCOPED_TRACE(testing::Message() << "status " << row.status << ", first cosine " << row.cosine1);
    TwoDirections directions{{9, 9, 9}, {9, 9, 9}};
    const std::array planes{row.plane1, row.plane2, third};
    EXPECT_EQ(SolveTwoPlanes(cell, planes, {row.cosine1, row.cosine2, 0.123F}, directions), row.status);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_NEAR(directions.A1[i], row.A1[i], 1e-6) << i;
      EXPECT_NEAR(directions.A2[i], row.A2[i], 1e-6) << i;
    }
  }
  TwoDirections none;
  const std::array steep{Indices<Integer>{0, 200, 1}, Indices<Integer>{0, 1, 200}, third};
  EXPECT_TRUE(fails_with("40000", [&] { (void)SolveTwoPlanes(cell, steep, {}, none); })) << "beyond 16 bits";
}

TEST(Detector, FailsOnDivisors) {
  Module1State camera;
  EXPECT_TRUE(fails_with("the detector position is 0", [&] { (void)acquisition_deg(camera, 0); }));
  EXPECT_TRUE(fails_with("the detector area is 0", [&] { (void)shift_deg(camera, 1); }));
  EXPECT_TRUE(fails_with("the tangent of the acquisition angle is 0", [&] { (void)detector_position_mm(camera); }));
}

// The poles lie on an upright line, <001> the substrate's normal below the screen normal, the other above it.
TEST(SiliconCalibration, GivesTheCameraBack) {
  constexpr double normal = 20;
  constexpr double pole = 35.264;
  const double length = 255.5 / std::tan(radians(33));
  const auto at = [length](double shift_deg, double pole_deg) {
    return to_single(255.5 + length * (std::tan(radians(shift_deg)) + std::tan(radians(pole_deg))));
  };
  const SiMarkers markers{at(4, 0), at(-6.5, normal), at(4, 0), at(-6.5, normal - pole), to_single(pole)};
  const auto camera = calibrate(markers, to_single(normal));
  EXPECT_NEAR(camera.acquisition_deg, 33, 1e-3);
  EXPECT_NEAR(camera.x_shift_deg, 4, 1e-3);
  EXPECT_NEAR(camera.y_shift_deg, -6.5, 1e-3);
  EXPECT_NEAR(camera.pattern.SiLength, length, 1e-2);
  // A slanting line is turned upright about a point that is not quite the centre, worked out at a desk calculator.
  const auto [x, y, turned_length] = calibrate({300, 330, 220, 90, to_single(pole)}, to_single(normal)).pattern;
  EXPECT_NEAR(x, 265.7203, 1e-2);
  EXPECT_NEAR(y, 189.2212, 1e-2);
  EXPECT_NEAR(turned_length, 397.2315, 1e-2);
  EXPECT_TRUE(fails_with("the height between the two markers is 0", [] { (void)calibrate({9, 8, 7, 8, 35}, 20); }));
}

}  // namespace
}  // namespace zol
