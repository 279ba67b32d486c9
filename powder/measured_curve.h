// A measured pattern, and lists of lines, as they come from files.
#pragma once

#include <string>
#include <string_view>

#include "core/shared_vector.h"
#include "core/task.h"

namespace zol {

struct MeasuredPoint {
  double x = 0;          ///< 2-theta in degrees, or 1/d in 1/angstrom, as the file has it
  double intensity = 0;  ///< counts, or whatever the file has
  double sigma = 0;      ///< its standard deviation; 0 where it is not known
  bool operator==(const MeasuredPoint&) const = default;
};

struct MeasuredCurve {
  std::string name;                    ///< of the file, without its folder
  SharedVector<MeasuredPoint> points;  ///< x rises
  bool operator==(const MeasuredCurve&) const = default;
};

/// One line of a list of d and I.
struct ListedLine {
  double spacing = 0;    ///< angstroms
  double intensity = 0;  ///< in any unit
  bool operator==(const ListedLine&) const = default;
};

struct LineList {
  std::string name;
  SharedVector<ListedLine> lines;
  bool operator==(const LineList&) const = default;
};

/// Reads a file by its ending: .xrdml and .raw, .rd, .udf, .uxd, .cpi as those of the makers of diffractometers, all
/// others as columns of numbers: x, intensity and, in a file .xye, the standard deviation. x has to rise, or to fall
/// throughout.
/// @throws RunFailure  the file cannot be read, or is none; it names file, line and what was expected
[[nodiscard]] MeasuredCurve read_measured_curve(const std::string& path, Task& task);

/// Only the columns, of a text. @param file  its name, which may end in .xye
[[nodiscard]] MeasuredCurve measured_columns(std::string_view text, const std::string& file, Task& task);

/// A text file with a spacing d in angstroms and an intensity in each line; what follows is left out.
/// @throws RunFailure  the same, or a spacing that is not above 0, or an intensity below 0
[[nodiscard]] LineList read_line_list(const std::string& path, Task& task);
[[nodiscard]] LineList line_list_columns(std::string_view text, const std::string& file, Task& task);

}  // namespace zol
