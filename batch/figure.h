// Figures of the commands that draw: what the windows show, as files.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "batch/batch_program.h"
#include "shell/services/curve_offer.h"

namespace zol {

/// ".svg", ".pdf", ".png" or ".bmp". @throws CLI::ValidationError  another ending
void check_figure_path(const std::string& option, const std::string& path, bool also_numbers = false);

/// The picture of a window. @param scale  pixels of the file per pixel of the window, for .png and .bmp
void write_picture(BatchProgram& program, Canvas& canvas, const std::string& path, double scale);

/// A curve as its window draws it, of one crystal.
struct NamedCurve {
  std::string name;  ///< UTF-8
  std::vector<CurvePoint> points;
};
[[nodiscard]] NamedCurve drawn_curve(const Canvas& canvas, const std::string& name);

struct CurveFile {
  std::string path;
  double scale = 1;      ///< pixels of the file per pixel of the window, for .png and .bmp
  bool indices = false;  ///< h k l at the peaks, of the crystal that was calculated last
};
/// A curve with its axes and the names of crystal and radiation; several ones of different colours with a legend.
void write_curves(Canvas& canvas, const std::vector<NamedCurve>& curves, const CurveFile& file);

/// Columns of numbers: the place, and the intensity of each crystal.
struct NumberColumns {
  std::string place;                             ///< name of the first column
  std::vector<std::string> names;                ///< of the others
  std::vector<std::array<std::string, 2>> head;  ///< what they were made with
  std::vector<Single> places;
  std::vector<std::vector<Single>> values;  ///< one list a crystal
};
/// Lines of numbers behind a head of comments. @throws RunFailure  the file cannot be written
void write_columns(const NumberColumns& columns, const std::string& path);

}  // namespace zol
