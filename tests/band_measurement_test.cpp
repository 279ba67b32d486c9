// Lines drawn by hand on a plane from -1 to 1. Shifts, ratio and real widths: scripts/indexing.zs.
#include "analysis/band_measurement.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

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
    const auto picture = [](double plane) { return static_cast<Single>((plane + 1) * 511 / 2); };
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

TEST_F(MeasureBands, NormalsPointAwayFromTheLine) {
  struct Row {
    Line line;
    double phi_deg, theta_deg;
  };
  // atan(0.5) = 26.5651, atan(0.5 / sqrt(2)) = 19.4712
  for (const auto& row :
       {Row{{0.5, -1, 0.5, 1}, 180, 63.4349}, Row{{-0.5, -1, -0.5, 1}, 359.999, 63.4349},
        Row{{-1, 0.5, 1, 0.5}, 270, 63.4349}, Row{{-1, -0.5, 1, -0.5}, 270, 63.4349},  // level, both to one side
        Row{{-1, -0.5, 0.5, 1}, 315, 70.5288}, Row{{-0.5, -1, 1, 0.5}, 135, 70.5288},
        Row{{-1, 0.5, 0.5, -1}, 45, 70.5288}}) {
    measure({row.line, row.line, row.line});
    EXPECT_NEAR(bands.BandPhi(0) / degree, row.phi_deg, 2e-3);
    EXPECT_NEAR(bands.BandTheta(0) / degree, row.theta_deg, 2e-3) << row.phi_deg;
  }
}

TEST_F(MeasureBands, FoldsTheAnglesBetweenNormals) {
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
  EXPECT_EQ(failure_of([&] { (void)measure_bands(state, lines, true, bands); }),
            "division by zero: the wavelength is 0");
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

}  // namespace
}  // namespace zol
