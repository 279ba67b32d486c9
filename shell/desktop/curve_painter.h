// Draws a curve with its axes, and what a window offers to lay beside it, for the screen and for files.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QFont>
#include <QPainter>
#include <QPolygonF>
#include <QRectF>

#include "shell/desktop/curve_scene.h"

namespace zol {

/// What the user wants to see.
struct CurveLook {
  CurveRange x;  ///< the part that is shown
  CurveHeights heights = CurveHeights::Linear;
  bool follows_height = true;  ///< a part of x is shown as high as there is room
  bool indices = false, ticks = false, second_axis = false, radiation = false;
  std::optional<double> marked;  ///< a place to be found
};

/// The parts of the picture, in pixels.
struct CurveLayout {
  CurvePlot plot;
  QRectF whole;  ///< the plot and the strips below it
  QRectF ticks;  ///< empty where there are none
  QRectF below;
};

/// Room that is left around texts and for ticks, in pixels.
namespace curve_room {
inline constexpr double large_tick = 6;
inline constexpr double gap = 3;
}  // namespace curve_room

class CurvePainter {
 public:
  /// @param picture  where picture and strips go; the axes are around it, the second one inside its upper end
  CurvePainter(const Canvas& canvas, const CurveScene& scene, const CurveLook& look, const QRectF& picture,
               const QFont& font);
  [[nodiscard]] const CurveLayout& layout() const { return layout_; }
  /// @param ink  of axes and their texts
  void paint(QPainter& painter, const QColor& ink) const;
  /// Labels with their places, as they are drawn.
  struct Label {
    QRectF place;
    std::string text;
  };
  [[nodiscard]] std::vector<Label> labels() const;
  /// Room that the axes take around a picture.
  [[nodiscard]] static QMarginsF margins(const Canvas& canvas, const QFont& font);

 private:
  void lay_out(const QRectF& picture);
  void paint_curves(QPainter& painter) const;
  void paint_layer(QPainter& painter, const CurveLayer& layer, const CurvePlot& plot, const QRectF& inside) const;
  void paint_below(QPainter& painter) const;
  void paint_ticks(QPainter& painter) const;
  void paint_labels(QPainter& painter) const;
  void paint_legend(QPainter& painter) const;
  void paint_x_axis(QPainter& painter) const;
  void paint_second_axis(QPainter& painter) const;
  void paint_y_axis(QPainter& painter) const;
  /// The lines of the legend: the radiation, and a name of each layer with its colour.
  struct LegendLine {
    std::string text;
    const CurveLayer* layer = nullptr;
  };
  [[nodiscard]] std::vector<LegendLine> legend() const;
  [[nodiscard]] QRectF legend_place() const;
  [[nodiscard]] CurvePlot plot_below() const;

  const Canvas& canvas_;
  const CurveScene& scene_;
  const CurveLook& look_;
  QFont font_, small_font_;
  double line_ = 0;  ///< height of a line of text
  CurveLayout layout_;
};

}  // namespace zol
