#include "batch/figure.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>

#include <QGuiApplication>

#include "batch/batch_progress.h"
#include "core/atomic_file.h"
#include "core/number_text.h"
#include "shell/desktop/curve_drawing.h"

namespace zol {
namespace {

/// Told apart by their darkness too, for printers without colours.
constexpr std::array curve_inks{curve_colours::calculated, RGB(0xC8, 0x38, 0x1E), curve_colours::measured,
                                RGB(0x2E, 0x8B, 0x57),     RGB(0x8A, 0x4F, 0xBF), curve_colours::difference};

std::string zero_before_point(std::string text) {
  const std::size_t first = text.starts_with('-') ? 1 : 0;
  return text.substr(first).starts_with('.') ? text.insert(first, "0") : text;
}

}  // namespace

void check_figure_path(const std::string& option, const std::string& path, bool also_numbers) {
  std::string lower = path;
  std::transform(lower.begin(), lower.end(), lower.begin(), [](unsigned char c) { return std::tolower(c); });
  for (const auto* ending : {".svg", ".pdf", ".png", ".bmp"}) {
    if (lower.ends_with(ending)) return;
  }
  if (also_numbers && lower.ends_with(".xy")) return;
  throw CLI::ValidationError(option,
                             path + " does not end in " + (also_numbers ? ".xy, " : "") + ".svg, .pdf, .png or .bmp");
}

void write_picture(BatchProgram& program, Canvas& canvas, const std::string& path, double scale) {
  (void)program.services().make_surface(1, 1);
  BatchTask task;
  export_picture(canvas, path, scale, task);
}

NamedCurve drawn_curve(const Canvas& canvas, const std::string& name) {
  NamedCurve curve{name, {}};
  for (auto& part : scene_of(canvas).curves) {
    curve.points.insert(curve.points.end(), part.points.begin(), part.points.end());
  }
  return curve;
}

void write_curves(Canvas& canvas, const std::vector<NamedCurve>& curves, const CurveFile& file) {
  CurveScene scene = scene_of(canvas);
  scene.curves.clear();
  scene.layers.clear();
  for (std::size_t i = 0; i < curves.size(); ++i) {
    const Colour ink = curve_inks[i % curve_inks.size()];
    if (curves.size() == 1) {
      scene.radiation = curves[i].name + ", " + scene.radiation;
      scene.curves.push_back({curves[i].points, colours::black});
    } else {
      const auto stroke = i < curve_inks.size() ? CurveStroke::Solid : CurveStroke::Dashed;
      scene.layers.push_back({curves[i].name, curves[i].points, ink, stroke});
    }
  }
  CurveLook look;
  look.x = scene.all();
  look.radiation = true;
  look.indices = file.indices;
  write_drawing(curve_drawing(canvas, scene, look, QGuiApplication::font(), {}), file.path, file.scale);
}

void write_columns(const NumberColumns& columns, const std::string& path) {
  AtomicFile file(path);
  for (const auto& [name, value] : columns.head) file.write("# " + name + ": " + value + "\n");
  file.write("# " + columns.place);
  for (const auto& name : columns.names) file.write("  " + name);
  file.write("\n");
  for (std::size_t i = 0; i < columns.places.size(); ++i) {
    std::string line = zero_before_point(shortest_text(columns.places[i]));
    for (const auto& values : columns.values) line += " " + zero_before_point(shortest_text(values[i]));
    file.write(line + "\n");
  }
  file.commit();
}

}  // namespace zol
