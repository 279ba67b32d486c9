#include "analysis/window/pattern3_handlers.h"
// PATTERN3: the picture, the lines on it, and its menu.
#include <array>
#include <cmath>

#include "analysis/window/corrector.h"
#include "analysis/window/pattern3_solution.h"
#include "shell/services/wiring.h"

namespace zol::pattern3 {
namespace {

void Command2_Click(Pattern3Form& form);

using namespace colours;

/// Angles of silicon between <001> and the second pole, degrees.
constexpr double angle_to_112 = 35.264;
constexpr double angle_to_111 = 54.735;

void end_point(Pattern3Form& form, int line, int end) {
  Canvas& picture = form.Picture1;
  picture.set_point(form.lines.LineX(line, end), form.lines.LineY(line, end));
  picture.print(form.LineLabel(2 * line + end));
}

void draw_line(Pattern3Form& form, int line) {
  const PickedLines& lines = form.lines;
  form.Picture1.set_fore_colour(form.LineColor(line));
  end_point(form, line, 0);
  end_point(form, line, 1);
  form.Picture1.line(lines.LineX(line, 0), lines.LineY(line, 0), lines.LineX(line, 1), lines.LineY(line, 1));
}

void redraw_to(Pattern3Form& form, int last_line) {
  form.Picture1.clear();
  for (int line = 0; line <= last_line; ++line) draw_line(form, line);
}

void put_end(Pattern3Form& form, int line, int end, Single x, Single y) {
  form.lines.LineX(line, end) = x;
  form.lines.LineY(line, end) = y;
}

void draw_cross(Pattern3Form& form, double x, double y) {
  constexpr double half_length = 5.0;
  form.Picture1.line(x - half_length, y, x + half_length, y, red);
  form.Picture1.line(x, y - half_length, x, y + half_length, red);
}

void draw_markers(Pattern3Form& form) {
  form.Picture1.clear();
  draw_cross(form, form.markers.SiMarkX1, form.markers.SiMarkY1);
  draw_cross(form, form.markers.SiMarkX2, form.markers.SiMarkY2);
}

void set_marker(Pattern3Form& form, Single x, Single y) {
  SiMarkers& markers = form.markers;
  if (form.Option1.on()) {
    markers.SiMarkX1 = x;
    markers.SiMarkY1 = y;
  }
  if (form.Option2.on() || form.Option3.on()) {
    markers.SiMarkX2 = x;
    markers.SiMarkY2 = y;
    markers.SiAngle = to_single(form.Option2.on() ? angle_to_112 : angle_to_111);
  }
  draw_markers(form);
}

/// Starts a line, or takes hold of the nearest end once all stand.
void pick(Pattern3Form& form, Single x, Single y) {
  form.Dragging = 1;
  if (const auto line = unfinished_line(form.lines)) {
    put_end(form, *line, 0, x, y);
    end_point(form, *line, 0);
    return;
  }
  const auto nearest = nearest_end(form.lines, x, y);
  form.DragLine = nearest.line;
  form.DragEnd = nearest.end;
  put_end(form, nearest.line, nearest.end, x, y);
  redraw_to(form, form.lines.LastLine.value());
}

void set_labels(Pattern3Form& form, const std::array<const char*, 6>& first_labels) {
  int entry = 0;
  for (const auto* label : first_labels) form.LineLabel(entry++) = label;
}

/// Turns the picture over, if there is one. Nothing that was picked on it lies where it did: it goes.
void turn_over(Pattern3Form& form, void (Canvas::*turn)()) {
  if (!form.Picture1.has_picture()) return;
  (form.Picture1.*turn)();
  form.markers = {};
  Command2_Click(form);
  form.List1.clear();
}

void Picture1_MouseDown(Workbench& bench, Pattern3Form& form, Single x, Single y) {
  if (form.SiMode == 0 && form.CenterMode == 0) pick(form, x, y);
  if (form.SiMode == 1) set_marker(form, x, y);
  if (form.CenterMode == 1) {
    take_centre(bench, form, x, y);
    form.Picture1.clear();
    draw_cross(form, x, y);
  }
}

void Picture1_MouseMove(Pattern3Form& form, Single x, Single y) {
  if (form.Dragging != 1) return;
  if (const auto line = unfinished_line(form.lines)) {
    put_end(form, *line, 1, x, y);
    redraw_to(form, *line);
    return;
  }
  put_end(form, form.DragLine.value(), form.DragEnd.value(), x, y);
  redraw_to(form, form.lines.LastLine.value());
}

void Picture1_MouseUp(Pattern3Form& form, Single /*x*/, Single /*y*/) {
  if (form.Dragging == 1) {
    if (const auto line = unfinished_line(form.lines)) form.lines.LineDone(*line) = 1;
  }
  form.Dragging = 0;
}

void Check2_Click(Pattern3Form& form) {
  const bool two_edges = form.Check2.checked();
  form.lines.LastLine = two_edges ? 5 : 2;
  form.Text17.set_visible(two_edges);
  form.Label16.set_visible(two_edges);
  form.LineColor(1) = two_edges ? red : green;
  form.LineColor(2) = two_edges ? green : blue;
  set_labels(form, two_edges ? std::array{"1A", "1B", "1C", "1D", "2A", "2B"}
                             : std::array{"1A", "1B", "2A", "2B", "3A", "3B"});
  Command2_Click(form);
}

void Command2_Click(Pattern3Form& form) {
  clear_lines(form.lines);
  form.Dragging = 0;
  form.Picture1.clear();
}

void Command3_Click(Pattern3Form& form) {
  for (int line = 0; line <= form.lines.LastLine.value(); ++line) {
    if (form.lines.LineDone(line) == 1) draw_line(form, line);
  }
}

void Command4_Click(Workbench& bench, Pattern3Form& form) {
  const auto shifts = read_corrector(form.CorrectorFile);
  const Hourglass hourglass(form);
  form.ProgressBar2.set_range(0, corrector_rows - 1);
  WindowTask task(bench.services, form.ProgressBar2);
  form.Picture1.edit_picture([&shifts, &task](Surface& image) { shift_rows(image, shifts, task); });
}

void Command6_Click(Pattern3Form& form) {
  for (int i = 0; i <= 448; i += 64) {
    form.Picture1.line(i, 0, i, 511, green);
    form.Picture1.line(0, i, 511, i, green);
  }
}

void Command10_Click(Pattern3Form& form, int index) {
  if (form.SiMode != 1) return;
  struct Nudge {
    double x, y;
  };
  constexpr std::array nudges{Nudge{0, 0.5}, Nudge{-0.5, 0}, Nudge{0.5, 0}, Nudge{0, -0.5}};
  const auto& by = nudges.at(static_cast<std::size_t>(index));
  SiMarkers& markers = form.markers;
  const auto move = [&by](Single& x, Single& y) {
    x = to_single(double{x} + by.x);
    y = to_single(double{y} + by.y);
  };
  if (form.Option1.on()) move(markers.SiMarkX1, markers.SiMarkY1);
  if (form.Option2.on() || form.Option3.on()) move(markers.SiMarkX2, markers.SiMarkY2);
  draw_markers(form);
}

void ImageLoad_Click(Pattern3Form& form) {
  form.CommonDialog1.set_filter(file_filters::pictures);
  const std::string path = form.CommonDialog1.open(FileKind::Picture);
  if (path.empty()) return;
  form.ImageFile = path;
  form.Picture1.load_picture(path);
  Command2_Click(form);
  form.set_caption(form.CommonDialog1.file_title());
  form.List1.clear();
  form.ProgressBar2.set_value(0);
}

void ImageSAve_Click(Pattern3Form& form) {
  form.CommonDialog1.set_filter(file_filters::bitmaps);
  const std::string path = form.CommonDialog1.save(FileKind::Picture);
  if (path.empty()) return;
  form.ImageFile = path;
  form.Picture1.save_image_with_overlay(path);
}

void Imageclear_Click(Pattern3Form& form) {
  form.ImageFile = "";
  form.Picture1.remove_picture();
  form.set_caption("");
}

void ImageFlip_Click(Pattern3Form& form) { turn_over(form, &Canvas::flip_picture); }

void ImageMirror_Click(Pattern3Form& form) { turn_over(form, &Canvas::mirror_picture); }

void CorrectFile_Click(Workbench& bench, Pattern3Form& form) {
  form.CommonDialog1.set_initial_folder(FileKind::Corrector, bench.data.root);
  form.CommonDialog1.set_filter("");
  const std::string path = form.CommonDialog1.open(FileKind::Corrector);
  if (!path.empty()) form.CorrectorFile = path;
}

void TakeBackLine(Pattern3Form& form) {
  if (!take_back_line(form.lines)) return;
  form.Dragging = 0;
  form.Picture1.clear();
  Command3_Click(form);
}

/// What a view shows and offers beside the picture.
void declare_picture(Workbench& bench, Pattern3Form& form) {
  Canvas& picture = form.Picture1;
  const CrystalState& seen = bench.seen();
  picture.geometry =
      PictureGeometry{.direction = [&seen](double x, double y) { return direction_in_picture(seen, x, y); },
                      .circle = [](double angle_deg) { return std::tan(angle_deg * degree); },
                      .circle_frame = [&seen] { return circle_frame_of_picture(seen); },
                      .wavelength = [&seen] { return double{seen.WaveLength}; }};
  picture.rows = &form.List1;
  picture.row_marks = [&seen, &form](int row) { return bands_of_solution(seen, form, row); };
  picture.actions.push_back({"Take back the last line", "TakeBackLine", [&form] {
                               PickedLines lines = form.lines;
                               return form.Dragging == 0 && take_back_line(lines);
                             }});
  form.add_operation("TakeBackLine", [&form] { TakeBackLine(form); });
}

}  // namespace

void name_lines(Pattern3Form& form) {
  int entry = 0;
  for (const auto* label : {"1A", "1B", "2A", "2B", "3A", "3B", "2C", "2D", "3A", "3B", "3C", "3D"}) {
    form.LineLabel(entry++) = label;
  }
  int line = 0;
  for (const Colour colour : {red, green, blue, green, blue, blue}) form.LineColor(line++) = colour;
  form.Text17.set_visible(false);
  form.Label16.set_visible(false);
}

void wire_picture(Workbench& bench, Pattern3Form& form) {
  const Wire on(bench, form);
  form.Command2.on_click = on(Command2_Click);
  form.Command3.on_click = on(Command3_Click);
  form.Command4.on_click = on(Command4_Click);
  form.Command6.on_click = on(Command6_Click);
  for (int i = 0; i < form.Command10.count(); ++i) {
    form.Command10(i).on_click = [&form, i] { Command10_Click(form, i); };
  }
  declare_picture(bench, form);
  form.Check2.on_click = on(Check2_Click);
  form.Picture1.on_mouse_down = on(Picture1_MouseDown);
  form.Picture1.on_mouse_move = on(Picture1_MouseMove);
  form.Picture1.on_mouse_up = on(Picture1_MouseUp);
  form.ImageLoad.on_click = on(ImageLoad_Click);
  form.ImageSAve.on_click = on(ImageSAve_Click);
  form.Imageclear.on_click = on(Imageclear_Click);
  form.ImageFlip.on_click = on(ImageFlip_Click);
  form.ImageMirror.on_click = on(ImageMirror_Click);
  form.CorrectFile.on_click = on(CorrectFile_Click);
}

}  // namespace zol::pattern3
