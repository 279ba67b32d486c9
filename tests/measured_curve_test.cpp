// Measured patterns and lists of lines from files, and a calculated curve fitted to a measured one.
#include "powder/measured_curve.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <numbers>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "powder/curve_fit.h"
#include "powder/doublet.h"
#include "powder/reflection_lines.h"
#include "tests/crystals.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

/// "x y sigma" of each point, or the message of the failure.
std::string read(const std::string& text, const std::string& file = "a.xy") {
  QuietTask task;
  try {
    std::string told;
    for (const auto& point : measured_columns(text, file, task).points) {
      told += plain_text(point.x) + ' ' + plain_text(point.intensity) +
              (point.sigma > 0 ? ' ' + plain_text(point.sigma) : "") + '|';
    }
    return told;
  } catch (const RunFailure& failure) {
    return failure.message();
  }
}

TEST(MeasuredColumns, AreReadAsProgramsWriteThem) {
  struct Row {
    const char* why;
    std::string text;
    std::string points;
    std::string file = "a.xy";
  };
  for (const Row& row : {
           Row{"blanks and tabs", "10 5\n 10.5\t6.25  \n", "10 5|10.5 6.25|"},
           Row{"comment marks, ends of lines, no end of the last line",
               "# a\r\n! b\r; c\n' d\n/ e\n\"f\"\n\n10 1 ! weak\n11 2 # 3\r\n12 3", "10 1|11 2|12 3|"},
           Row{"a header and a mark of Unicode",
               "\xEF\xBB\xBF"
               "2theta;counts\n10;1\n11;2\n",
               "10 1|11 2|"},
           Row{"commas between columns", "angle,I\n10.0,1\n10.5,2\n", "10 1|10.5 2|", "a.csv"},
           Row{"commas between whole numbers", "10,1\n11,2\n", "10 1|11 2|"},
           Row{"a comma and a blank", "10, 1\n11, 2\n", "10 1|11 2|"},
           Row{"decimal commas and semicolons", "10,25;1,5\n10,5;2\n", "10.25 1.5|10.5 2|", "a.csv"},
           Row{"decimal commas and tabs, whole numbers first", "10\t1\n10,5\t2,5\n", "10 1|10.5 2.5|"},
           Row{"a point in the file: the comma ends a column", "10.5 1,5\n11 2\n", "10.5 1|11 2|"},
           Row{"exponents", "1.0E+01 2e3\n11 1\n", "10 2000|11 1|"},
           Row{"falls", "12 3\n11 2\n10 1\n", "10 1|11 2|12 3|"},
           Row{"the third column is a deviation", "10 4 2\n11 9 3\n", "10 4 2|11 9 3|", "a.xye"},
           Row{"or it is not", "10 4 2\n11 9 3\n", "10 4|11 9|"},
       }) {
    EXPECT_EQ(read(row.text, row.file), row.points) << row.why;
  }
}

TEST(MeasuredColumns, FailWithFileLineAndWhatWasExpected) {
  const std::string two = ", expected are two numbers, the place and the intensity";
  for (const auto& [text, message] : std::vector<std::pair<std::string, std::string>>{
           {"", "a.xy: no line has two numbers, the place and the intensity"},
           {"only words\n", "a.xy: no line has two numbers, the place and the intensity"},
           {"# a\n10 1\n11 x\n", "a.xy, line 3: \"11 x\"" + two},
           {"10 1\n\n11\n", "a.xy, line 3: \"11\"" + two},
           {"10 1\nend\n", "a.xy, line 2: \"end\"" + two},
           {"10 1\n11 1e999\n", "a.xy, line 2: \"11 1e999\"" + two},
           {"10 1\n11 2\n11 3\n", "a.xy, line 3: 11 after 11, expected are places that rise from one line to the next"},
           {"12 1\n11 2\n13 3\n11 4",
            "a.xy, line 3: 13 after 11, expected are places that fall from one line to the next"},
           {"10 1\n", "a.xy has 1 points, expected are two or more"}}) {
    EXPECT_EQ(read(text), message);
  }
}

template <class Number>
void add(std::string& bytes, Number number) {
  bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

/// One range of version 1: 156 bytes of header.
std::string bruker_raw() {
  std::string bytes = "RAW ";
  add<std::uint32_t>(bytes, 3);
  add<float>(bytes, 1);      // seconds a step
  add<float>(bytes, 0.25F);  // step
  bytes.append(8, '\0');
  add<float>(bytes, 20);  // start
  bytes.append(156 - bytes.size(), '\0');
  for (const float counts : {7.0F, 9.5F, 8.0F}) add(bytes, counts);
  return bytes;
}

TEST(DiffractometerFiles, AreReadWithDecimalPointsInAnyLocale) {
  const ScratchFolder folder;
  const auto told = [&folder](const std::string& name, const std::string& bytes) {
    const std::string path = folder.write(name, bytes);
    QuietTask task;
    try {
      std::string text;
      for (const auto& point : read_measured_curve(path, task).points) {
        text += plain_text(point.x) + ' ' + plain_text(point.intensity) + '|';
      }
      return text;
    } catch (const RunFailure& failure) {
      return failure.message();
    }
  };
  EXPECT_EQ(told("a.xrdml",
                 "<?xml version=\"1.0\"?>\n<xrdMeasurements xmlns=\"http://www.xrdml.com/XRDMeasurement/1.3\">\n"
                 "<xrdMeasurement><scan>\n<dataPoints>\n<positions axis=\"2Theta\" unit=\"deg\">\n"
                 "<startPosition>10.5</startPosition>\n<endPosition>11.5</endPosition>\n</positions>\n"
                 "<commonCountingTime unit=\"seconds\">1</commonCountingTime>\n"
                 "<intensities unit=\"counts\">5 7.5 6</intensities>\n"
                 "</dataPoints></scan></xrdMeasurement></xrdMeasurements>\n"),
            "10.5 5|11 7.5|11.5 6|");
  EXPECT_EQ(told("a.RAW", bruker_raw()), "20 7|20.25 9.5|20.5 8|");
  EXPECT_EQ(told("b.raw", "20 7\n"),
            "b.raw begins with other bytes, expected is a Bruker .raw file, which begins with RAW");
  EXPECT_TRUE(told("c.raw", bruker_raw().substr(0, 100)).starts_with("c.raw: "));
  EXPECT_TRUE(told("d.xrdml", "<a/>").ends_with(", expected is an XRDML file"));
}

TEST(LineLists, HaveASpacingAndAnIntensity) {
  QuietTask task;
  const auto list = line_list_columns("d I h k l\n3.260 13 1 1 1\n2.821 100 2 0 0\n", "halite.txt", task);
  EXPECT_EQ(list.name, "halite.txt");
  EXPECT_EQ(list.lines.get(), (std::vector<ListedLine>{{3.26, 13}, {2.821, 100}}));
  EXPECT_EQ(failure_of([&task] { (void)line_list_columns("3.26 13\n0 5\n", "b.txt", task); }),
            "b.txt, line 2: 0 and 5, expected are a spacing above 0 and an intensity of 0 or more");
}

/// Three Gaussians, 1 at the first.
double lines_at(double x) {
  const auto line = [x](double centre, double height) {
    constexpr double width = 0.2;
    return height * std::exp(-4 * std::numbers::ln2 * (x - centre) * (x - centre) / (width * width));
  };
  return 100 * (line(27.4, 1) + line(31.7, 0.4) + line(45.4, 0.7));
}

SampledCurve sampled_lines() {
  std::vector<double> samples;
  for (int m = 0; m <= 1000; ++m) samples.push_back(lines_at(20 + 0.03 * m));
  return {20, 50, samples};
}

TEST(CurveFit, FindsScaleOffsetAndZero) {
  for (const double zero : {0.08, -0.21, 0.0}) {
    std::vector<MeasuredPoint> measured;
    for (double x = 18; x < 55; x += 0.017) {
      measured.push_back({x, 2.5 * lines_at(x - zero) + 30, x > 40 ? 2.0 : 1.0});
    }
    const auto match = fitted_match(measured, sampled_lines(), 0.5, quiet);
    EXPECT_NEAR(match.scale, 2.5, 1e-3);
    EXPECT_NEAR(match.offset, 30, 0.01);
    EXPECT_NEAR(match.zero, zero, 1e-5);
    EXPECT_LT(weighted_residual(match, measured, sampled_lines()), 0.1);
    const auto rough = rough_match(measured, 100);
    EXPECT_NEAR(rough.scale, 2.5, 0.03);
    EXPECT_NEAR(rough.offset, 30, 1e-6);
  }
}

TEST(CurveFit, TellsWhatDoesNotFit) {
  const auto failure = [](const std::vector<MeasuredPoint>& measured) {
    return failure_of([&measured] { (void)fitted_match(measured, sampled_lines(), 0.5, quiet); });
  };
  std::vector<MeasuredPoint> upside_down;
  for (double x = 20; x < 50; x += 0.05) upside_down.push_back({x, -lines_at(x), 0});
  EXPECT_TRUE(failure(upside_down).starts_with("no scale above 0"));
  EXPECT_TRUE(failure({{60, 1, 0}, {61, 2, 0}}).starts_with("the measured pattern has 0 points"));
}

// A cubic goes through its samples, and through a straight line in between and at the ends.
TEST(SampledCurve, GoesThroughItsSamplesAndEndsWithThem) {
  const SampledCurve line(10, 14, {1, 3, 5, 7, 9});
  EXPECT_EQ(line.at(9.999), std::nullopt);
  EXPECT_EQ(line.at(14.001), std::nullopt);
  for (const double x : {10.0, 10.3, 12.0, 13.9, 14.0}) EXPECT_NEAR(*line.at(x), 1 + 2 * (x - 10), 1e-12);
  const SampledCurve bump(0, 4, {0, 0, 8, 0, 0});
  EXPECT_NEAR(*bump.at(1.5), 4.5, 1e-12) << "9/16 of the two next samples less 1/16 of the two beyond";
}

TEST(Doublet, IsThatOfTheTubeOrNone) {
  EXPECT_EQ(doublet_at(1.542)->element, "Cu");
  EXPECT_EQ(doublet_at(0.717)->element, "Mo");
  EXPECT_EQ(doublet_at(1.5405)->alpha_2, 1.544427);
  EXPECT_FALSE(doublet_at(0.0251));
  EXPECT_FALSE(doublet_at(0));
}

// {210} of two intensities; what is extinct, or is not but for rounding, is no line. Of two weak reflections that
// differ by rounding the one without signs gives the name.
TEST(ReflectionLines, GatherReflectionsOfOneSpacing) {
  auto state = with_cell({5, 5, 5, 90, 90, 90});
  set_list(state, {{0, 0, 1, 3},
                   {1, 0, 0, 3},
                   {0, -1, 0, 3},
                   {1, 1, 0, 0},
                   {0, 2, 0, 8e-6F},
                   {2, 1, 0, 1},
                   {1, 2, 0, 4},
                   {2, 1, 1, 1},
                   {2, -1, 1, 1.0001220703125F},
                   {-1, -1, 1, 2},
                   {1, -1, 1, 2},
                   {1, 1, -1, 2}});
  std::string told;
  for (const auto& line : reflection_lines(state)) {
    told += indices_text(line) + ": " + Format(1 / line.d_star, "0.000") + ' ' + plain_text(line.intensity) + '|';
  }
  EXPECT_EQ(told, "1 0 0: 5.000 9|1 1 -1: 2.887 6|1 2 0: 2.236 5|2 1 1: 2.041 2.0001220703125|");
}

}  // namespace
}  // namespace zol
