// What the pointer and the keys do over a picture beside its own events: light up marks and rows, measure, tilt and
// turn.
#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QString>

#include "shell/desktop/picture_layers.h"
#include "shell/desktop/user_events.h"

class QKeyEvent;
class QListView;
class QMenu;
class QMouseEvent;
class QWidget;

namespace zol {

class PictureTools : public QObject {
 public:
  /// @param place  where the picture is now
  /// @param tell   shows words in the status line
  PictureTools(Canvas& canvas, UserEvents& events, QWidget& view, std::function<PicturePlace()> place,
               std::function<void(const QString&)> tell);

  // Each @returns whether it was for a tool: then it is not an event of the picture
  bool press(const QMouseEvent& event);
  bool move(const QMouseEvent& event);
  bool release(const QMouseEvent& event);
  bool key(const QKeyEvent& event);
  /// The picture follows the pointer.
  [[nodiscard]] bool dragging() const { return dragging_; }
  /// A press that may become a drag, to be handed to the picture when the button goes up before it did.
  [[nodiscard]] std::optional<QPointF> take_held() { return std::exchange(held_, std::nullopt); }

  /// The pointer is here, or nowhere.
  void point_at(const std::optional<QPointF>& position);
  /// Of the mark under the pointer.
  [[nodiscard]] QString words() const;
  void add_entries(QMenu& menu);
  [[nodiscard]] PictureLayers& layers() { return layers_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Lit { ByPointer, ByRow };
  void link_rows();
  void light_row(int row);
  void light_in_list(int row);
  void tell_lit();
  void walk(int by);
  void set_measuring(bool on);
  void tell_distance();
  void drag_to(const QPointF& position, int most_steps);
  void do_step(const DragStep& step);
  void do_action(const PictureAction& action);
  void show() const;

  Canvas& canvas_;
  UserEvents& events_;
  QWidget& view_;
  std::function<PicturePlace()> place_;
  std::function<void(const QString&)> tell_;
  PictureLayers layers_;
  QPointer<QListView> list_;
  int row_ = -1;      ///< under the pointer or walked to
  int revision_ = 0;  ///< of the list then
  bool measuring_ = false;
  std::optional<QPointF> measure_press_;
  std::optional<QPointF> held_;
  bool dragging_ = false;
  bool turning_ = false;
  std::string drag_name_;
};

}  // namespace zol
