#include "analysis/band_measurement.h"

#include <gtest/gtest.h>

#include "tests/test_files.h"

namespace zol {
namespace {

/// A window from -1 to 1 in both directions.
struct Measurement {
  Measurement() {
    state.CamAcquisition = 45;
    state.CamXYRatio = 1;
    state.WaveLength = 0.1F;
  }
  /// Ends in the gnomonic plane.
  void line(int number, double x1, double y1, double x2, double y2) {
    const auto picture = [](double plane) { return static_cast<Single>((plane + 1) * 511 / 2); };
    lines.LineX(number, 0) = picture(x1);
    lines.LineY(number, 0) = picture(y1);
    lines.LineX(number, 1) = picture(x2);
    lines.LineY(number, 1) = picture(y2);
  }
  [[nodiscard]] double phi_deg(int band) const { return bands.BandPhi(band) / degree; }
  [[nodiscard]] double theta_deg(int band) const { return bands.BandTheta(band) / degree; }

  CrystalState state;
  PickedLines lines;
  MeasuredBands bands;
};

struct NormalCase {
  const char* name;
  double x1, y1, x2, y2;
  double phi_deg, theta_deg;
};
class BandNormal : public testing::TestWithParam<NormalCase> {};
TEST_P(BandNormal, PointsAwayFromTheLine) {
  const auto& row = GetParam();
  Measurement m;
  for (int i = 0; i < 3; ++i) m.line(i, row.x1, row.y1, row.x2, row.y2);
  measure_bands(m.state, m.lines, false, m.bands);
  EXPECT_NEAR(m.phi_deg(0), row.phi_deg, 2e-3);
  EXPECT_NEAR(m.theta_deg(0), row.theta_deg, 2e-3);
}
// atan(0.5) = 26.5651, atan(0.5 / sqrt(2)) = 19.4712
INSTANTIATE_TEST_SUITE_P(Lines, BandNormal,
                         testing::Values(NormalCase{"upright_right", 0.5, -1, 0.5, 1, 180, 63.4349},
                                         NormalCase{"upright_left", -0.5, -1, -0.5, 1, 359.999, 63.4349},
                                         NormalCase{"level_below", -1, 0.5, 1, 0.5, 270, 63.4349},
                                         NormalCase{"level_above_too", -1, -0.5, 1, -0.5, 270, 63.4349},
                                         NormalCase{"falling", -1, -0.5, 0.5, 1, 315, 70.5288},
                                         NormalCase{"falling_right", -0.5, -1, 1, 0.5, 135, 70.5288},
                                         NormalCase{"rising", -1, 0.5, 0.5, -1, 45, 70.5288}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(MeasureBands, FoldsTheAnglesBetweenNormals) {
  Measurement m;
  m.line(0, 0.5, -1, 0.5, 1);
  m.line(1, -1, 0.5, 1, 0.5);
  m.line(2, -0.5, -1, -0.5, 1);
  measure_bands(m.state, m.lines, false, m.bands);
  EXPECT_NEAR(m.bands.BandAngle(0), 78.463, 1e-3);  // (-0.8944 0 0.4472) and (0 -0.8944 0.4472): cosine 0.2
  EXPECT_NEAR(m.bands.BandAngle(2), 53.1301, 1e-3) << "126.87, folded";
  EXPECT_NEAR(m.bands.BandCos(2), -0.6, 1e-5);
  EXPECT_EQ(band_text(m.bands, 0, false).substr(0, 5), "Phi= ");
  EXPECT_NE(band_text(m.bands, 0, false).find("  Angle= 78.46"), std::string::npos);
}

TEST(MeasureBands, MapsThePictureThroughShiftsAndRatio) {
  Measurement m;
  m.state.CamXShift = 10;
  m.state.CamYShift = -20;
  m.state.CamXYRatio = 1.5F;
  measure_bands(m.state, m.lines, false, m.bands);
  // tan 10 = 0.176327, tan 20 = 0.363970
  EXPECT_NEAR(m.bands.ViewRange(1), -1.176327, 1e-5);
  EXPECT_NEAR(m.bands.ViewRange(2), 0.823673, 1e-5);
  EXPECT_NEAR(m.bands.ViewRange(3), -0.954045, 1e-5);
  EXPECT_NEAR(m.bands.ViewRange(4), 2.045955, 1e-5);
  EXPECT_EQ(m.bands.ViewRange(0), m.bands.ViewRange(4));
  EXPECT_EQ(m.bands.GnomX(0, 0), m.bands.ViewRange(1)) << "pixel 0 is the low end";
  EXPECT_EQ(m.bands.GnomX(3, 0), 0) << "lines not in use are not measured";
}

TEST(MeasureBands, TakesWidthsFromTwoEdges) {
  Measurement m;
  m.lines.LastLine = 5;
  m.line(0, 0.1, -1, 0.1, 1);
  m.line(1, -0.1, -1, -0.1, 1);
  m.line(2, 0.1, -1, 0.1, 1);
  m.line(3, 0.3, -1, 0.3, 1);
  m.line(4, -1, 0.2, 1, 0.2);
  m.line(5, -1, 0.4, 1, 0.4);
  measure_bands(m.state, m.lines, true, m.bands);
  EXPECT_NEAR(m.bands.BandS(0), 0.995037, 2e-4) << "around the centre: atan 0.1 to both sides";
  EXPECT_NEAR(m.bands.BandS(1), 0.957466, 2e-4) << "(16.6992 - 5.7106) / 2 degrees";
  EXPECT_NEAR(m.bands.LineDist(1), 0.2, 1e-5);
  EXPECT_NEAR(m.bands.LineDist(0), 0.1, 1e-5) << "the mean of two magnitudes";
  EXPECT_NEAR(m.theta_deg(2), 73.3008, 2e-3) << "the line at 0.3";
  EXPECT_NE(band_text(m.bands, 0, true).find("Width= .5024"), std::string::npos) << band_text(m.bands, 0, true);
  m.state.WaveLength = 0;
  EXPECT_EQ(failure_of([&] { measure_bands(m.state, m.lines, true, m.bands); }),
            "division by zero: the wavelength is 0");
}

TEST(NearestEnd, IsTheLaterOneOfEquals) {
  PickedLines lines;
  lines.LineX(0, 0) = 10;
  lines.LineX(1, 1) = 30;
  EXPECT_EQ(nearest_end(lines, 9, 0).line, 0);
  EXPECT_EQ(nearest_end(lines, 9, 0).end, 0);
  EXPECT_EQ(nearest_end(lines, 20, 0).line, 1) << "10 and 30 are as near; 1 end 1 comes later";
  EXPECT_EQ(nearest_end(lines, 1, 0).line, 2) << "all other ends lie at 0";
  EXPECT_EQ(nearest_end(lines, 1, 0).end, 1);
}

}  // namespace
}  // namespace zol
