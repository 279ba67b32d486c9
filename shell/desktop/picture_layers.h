// What a view draws over a picture: scale, labels, what lies under the pointer, a measurement, a loupe, and what to do
// as long as there is nothing. The picture and its files know nothing of it.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QImage>
#include <QPainter>
#include <QRectF>

#include "shell/services/canvas.h"

namespace zol {

/// Where a picture is in a view.
struct PicturePlace {
  const Canvas* canvas = nullptr;
  QRectF rect;
  [[nodiscard]] QPointF to_view(double x, double y) const;
  [[nodiscard]] QPointF to_user(const QPointF& position) const;
  /// Pixels of a length along x.
  [[nodiscard]] double pixels(double length) const;
};

/// The angle of a circle that fits into so many user units: the largest round one; 0 where none does.
[[nodiscard]] double circle_angle(const PictureGeometry& geometry, double most);

/// Colours of families of reflections, a row that repeats: told apart also by the colour-blind, readable on white.
inline constexpr int family_colours = 7;
[[nodiscard]] QColor family_colour(int family);

class PictureLayers {
 public:
  using Place = std::array<double, 2>;

  int lit = -1;                              ///< the mark under the pointer, or of the row under it
  PictureMarks row_marks = {};               ///< of a row of the list
  std::optional<std::array<int, 3>> linked;  ///< the reflection that is lit in another window
  std::optional<Place> from, to;             ///< a measurement, in user coordinates
  std::optional<QPointF> loupe_at;           ///< in the view

  /// What the user wants to see, what is lit and what is measured.
  void paint(QPainter& painter, const PicturePlace& place);
  /// Only scale and labels, for an export.
  void paint_wanted(QPainter& painter, const PicturePlace& place);
  void paint_loupe(QPainter& painter, const PicturePlace& place, const QImage& image) const;
  /// What to do, in the place of a picture.
  static void paint_hint(QPainter& painter, const QRectF& room, const Canvas& canvas, const QString& words);

 private:
  void paint_labels(QPainter& painter, const PicturePlace& place);
  void place_all(const QPainter& painter, const PicturePlace& place);

  // The labels as they were placed last
  PictureMarks placed_of_;
  QRectF placed_in_;
  UserScale placed_scale_;
  std::vector<LabelPlace> places_;  ///< which mark is where
  std::vector<int> families_;
};

}  // namespace zol
