// Lets the user move in a curve, and shows what its window offers to lay beside it. It stands in front of the view of
// the picture: as long as nothing is wanted, the view shows and does what it always does.
#pragma once

#include <optional>

#include <QObject>
#include <QPointF>
#include <QRubberBand>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/curve_painter.h"

class QMouseEvent;
class QWheelEvent;

namespace zol {

struct FileDrawing;

class CurveView : public QObject {
  Q_OBJECT

 public:
  /// @param canvas  with an offer; the view shows it and owns this
  CurveView(CanvasView& view, Canvas& canvas, UserEvents& events);

  [[nodiscard]] const CurveLook& look() const { return look_; }
  /// What is wanted, but the part of x.
  void set_look(const CurveLook& look);
  void zoom(double factor);  ///< around the middle
  void show_all();
  /// Shows a place, which is marked.
  void go_to(double x);
  /// Looks at what the window offers, where that has changed.
  void look_again();
  /// Whether anything is shown that the picture does not have.
  [[nodiscard]] bool in_use() const;
  /// The place of a pixel of the view in user coordinates.
  [[nodiscard]] CurvePoint user_place(const QPointF& position) const;

 signals:
  void looked_again();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] CurvePainter painter() const;
  [[nodiscard]] bool has_curve() const;
  void paint();
  bool mouse(QMouseEvent& event);
  bool wheel(const QWheelEvent& event);
  void drag(const QMouseEvent& event);
  /// @returns whether a part was chosen
  bool end_drag(const QPointF& position);
  /// Hands an event on to the view, at the pixel where it shows this place.
  bool hand_on(const QMouseEvent& event);
  void set_x(const CurveRange& x);
  [[nodiscard]] FileDrawing drawing(const QString& caption) const;

  CanvasView& view_;
  Canvas& canvas_;
  UserEvents& events_;
  CurveScene scene_;
  CurveLook look_;
  QRubberBand band_;
  std::optional<QPointF> pressed_;
  bool handing_on_ = false;
};

}  // namespace zol
