#include "powder/measured_curve.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "core/number_text.h"
#include "core/read_file.h"
#include "core/run_failure.h"
#include "powder/diffractometer_file.h"
#include "powder/plain_columns.h"

namespace zol {
namespace {

std::string name_of(const std::string& path) { return std::filesystem::path(path).filename().string(); }

bool ends_in_xye(const std::string& name) { return name.ends_with(".xye") || name.ends_with(".XYE"); }

/// A curve that falls is turned over. @param place  of a point in the file, for the message
template <class Place>
void put_in_order(MeasuredCurve& curve, const Place& place) {
  auto& points = curve.points.own();
  if (points.size() < 2)
    throw RunFailure(curve.name + " has " + std::to_string(points.size()) + " points, expected are two or more");
  const bool falls = points.front().x > points.back().x;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!std::isfinite(points[i].x) || !std::isfinite(points[i].intensity)) {
      throw RunFailure(curve.name + ", " + place(i) + ": expected are two finite numbers");
    }
    if (i == 0) continue;
    const double step = points[i].x - points[i - 1].x;
    if (falls ? step < 0 : step > 0) continue;
    throw RunFailure(curve.name + ", " + place(i) + ": " + plain_text(points[i].x) + " after " +
                     plain_text(points[i - 1].x) + ", expected are places that " + (falls ? "fall" : "rise") +
                     " from one line to the next");
  }
  if (falls) std::reverse(points.begin(), points.end());
}

}  // namespace

MeasuredCurve measured_columns(std::string_view text, const std::string& file, Task& task) {
  const auto rows = read_plain_columns(text, file, "the place and the intensity", task);
  MeasuredCurve curve{file, {}};
  auto& points = curve.points.own();
  const bool with_sigma = ends_in_xye(file);
  for (const auto& [values, line] : rows) {
    const double sigma = with_sigma && values.size() > 2 && values[2] > 0 ? values[2] : 0.0;
    points.push_back({values[0], values[1], sigma});
  }
  put_in_order(curve, [&rows](std::size_t i) { return "line " + std::to_string(rows[i].line); });
  return curve;
}

MeasuredCurve read_measured_curve(const std::string& path, Task& task) {
  const std::string bytes = read_file(path, task);
  if (!is_diffractometer_file(path)) return measured_columns(bytes, name_of(path), task);
  MeasuredCurve curve = diffractometer_curve(bytes, path);
  put_in_order(curve, [](std::size_t i) { return "point " + std::to_string(i + 1); });
  return curve;
}

LineList line_list_columns(std::string_view text, const std::string& file, Task& task) {
  LineList list{file, {}};
  for (const auto& [values, line] : read_plain_columns(text, file, "the spacing d and the intensity", task)) {
    if (!(values[0] > 0) || values[1] < 0) {
      throw RunFailure(file + ", line " + std::to_string(line) + ": " + plain_text(values[0]) + " and " +
                       plain_text(values[1]) + ", expected are a spacing above 0 and an intensity of 0 or more");
    }
    list.lines.push_back({values[0], values[1]});
  }
  return list;
}

LineList read_line_list(const std::string& path, Task& task) {
  return line_list_columns(read_file(path, task), name_of(path), task);
}

}  // namespace zol
