// Shows a Canvas: scaled to the room, square pixels, sharp at any resolution; mouse events come back in user
// coordinates. A curve has rulers at its left and lower border.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include <QImage>
#include <QPointer>
#include <QWidget>

class QMenu;

#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/picture_tools.h"
#include "shell/desktop/user_events.h"
#include "shell/services/canvas.h"

class QMenu;

namespace zol {

class CanvasView : public QWidget {
  Q_OBJECT

 public:
  explicit CanvasView(QWidget* parent = nullptr);

  /// Ties the view to a canvas; what the user does there goes to the events.
  void attach(Canvas& canvas, UserEvents& events);
  /// The canvas has changed.
  void refresh();

  [[nodiscard]] Canvas* canvas() const { return canvas_; }
  [[nodiscard]] QSize sizeHint() const override;
  /// Where the picture is inside the view.
  [[nodiscard]] QRectF picture_rect() const;

  /// All of the picture is shown.
  [[nodiscard]] bool up_to_date() const { return up_to_date_; }
  void copy_to_clipboard() const;
  /// Leaves so many pixels free above the picture.
  void set_note_room(int pixels);
  /// What an export says of the picture where that is wanted, and the name that its file is proposed with.
  void set_caption(std::function<QString()> caption, std::function<std::string()> file_name = {}) {
    caption_ = std::move(caption);
    file_name_ = std::move(file_name);
  }
  /// What is copied and exported in place of the picture.
  struct StandIn {
    std::function<QImage()> image;
    std::function<void(const std::string& path, double factor, Task& task, const QString& caption)> write;
  };
  void set_stand_in(StandIn stand_in) { stand_in_ = std::move(stand_in); }
  /// A menu that the context menu holds too.
  void set_menu(QMenu& menu);

 signals:
  /// The pointer is over this place; an empty text when it has left the picture.
  void pointed_at(const QString& place);
  /// The canvas has changed.
  void refreshed();

 protected:
  void leaveEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  [[nodiscard]] QPointF user_position(const QPointF& position) const;
  /// A press inside the picture.
  bool begins(const QMouseEvent& event);
  /// The operation of a script that repeats a mouse event.
  [[nodiscard]] UserEvent mouse_event(const char* name, const QPointF& position,
                                      void (Canvas::*fire)(double, double) const);
  void draw_some(bool all);
  void smooth();
  [[nodiscard]] bool shows_something() const;
  /// Room for the rulers around the picture.
  [[nodiscard]] QMarginsF ruler_margins() const;
  void paint();
  void draw_x_ruler(QPainter& painter, const QRectF& place) const;
  void draw_y_ruler(QPainter& painter, const QRectF& place) const;
  void ask_export(double factor, const char* ending);
  void ask_resolution();
  void add_exports(QMenu& menu);
  void press_at(const QPointF& position);
  void point_at(const QPointF& position);
  void paint_mat(QPainter& painter) const;
  void paint_layers(QPainter& painter, const QRectF& place);

  Canvas* canvas_ = nullptr;
  UserEvents* events_ = nullptr;
  bool pressed_ = false;               ///< inside the picture: what follows belongs to it, wherever the pointer goes
  std::optional<QPointF> held_press_;  ///< of what may become a click that is warned of
  int note_room_ = 0;
  std::function<QString()> caption_;
  StandIn stand_in_;
  QPointer<QMenu> menu_;
  std::function<std::string()> file_name_;
  std::unique_ptr<PictureTools> tools_;
  std::optional<CanvasPainting> painting_;
  QImage before_;  ///< shown in its place as long as it is not whole; mostly null
  bool up_to_date_ = false;
};

}  // namespace zol
