#include "shell/desktop/picture_tools.h"

#include <algorithm>

#include <QApplication>
#include <QKeyEvent>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>

#include "shell/desktop/lit_reflection.h"
#include "shell/desktop/note_line.h"
#include "shell/desktop/picture_choices.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

constexpr int drag_begins = 4;  // pixels

/// Leaving a list unlights its row.
class LeaveFilter : public QObject {
 public:
  LeaveFilter(QObject& watched, std::function<void()> left) : QObject(&watched), left_(std::move(left)) {
    watched.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Leave) left_();
    return QObject::eventFilter(watched, event);
  }

 private:
  std::function<void()> left_;
};

PictureLayers::Place user_place(const PicturePlace& place, const QPointF& position) {
  const QPointF at = place.to_user(position);
  return {at.x(), at.y()};
}

}  // namespace

PictureTools::PictureTools(Canvas& canvas, UserEvents& events, QWidget& view, std::function<PicturePlace()> place,
                           std::function<void(const QString&)> tell)
    : canvas_(canvas), events_(events), view_(view), place_(std::move(place)), tell_(std::move(tell)) {
  view_.installEventFilter(this);
  connect(&LitReflection::of_program(), &LitReflection::changed, this,
          [this](const QObject* source, const LitReflection::Indices& hkl) {
            if (source == this || std::exchange(layers_.linked, hkl) == hkl || canvas_.marks().empty()) return;
            show();
          });
}

/// What a handler declares of its picture is there when the window is shown.
bool PictureTools::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Show && list_ == nullptr) {
    if (canvas_.rows != nullptr) link_rows();
    if (canvas_.row_marks) view_.setFocusPolicy(Qt::StrongFocus);
  }
  return QObject::eventFilter(watched, event);
}

/// The mark that is lit, in the other windows.
void PictureTools::tell_lit() {
  const auto& marks = canvas_.marks();
  LitReflection::Indices hkl;
  if (layers_.lit >= 0 && layers_.lit < static_cast<int>(marks.size())) {
    const PictureMark& mark = marks[static_cast<std::size_t>(layers_.lit)];
    if (mark.d > 0) hkl = {mark.h, mark.k, mark.l};  // else it is a direction
  }
  layers_.linked.reset();
  LitReflection::of_program().light(*this, hkl);
}

void PictureTools::link_rows() {
  list_ = view_.window()->findChild<QListView*>(QString::fromStdString(canvas_.rows->name()));
  if (list_ == nullptr) return;
  list_->setMouseTracking(true);
  connect(list_, &QListView::entered, this, [this](const QModelIndex& index) { light_row(index.row()); });
  new LeaveFilter(*list_->viewport(), [this, life = QPointer<PictureTools>(this)] {
    if (life) light_row(-1);
  });
}

void PictureTools::show() const { view_.update(); }

void PictureTools::light_in_list(int row) {
  if (auto* list = dynamic_cast<NotedList*>(list_.data())) list->light(row);
}

void PictureTools::light_row(int row) {
  row_ = row;
  revision_ = canvas_.rows->revision();
  const auto& marks = canvas_.marks();
  const auto found =
      std::find_if(marks.begin(), marks.end(), [row](const PictureMark& mark) { return mark.row == row; });
  layers_.lit = row < 0 || found == marks.end() ? -1 : static_cast<int>(found - marks.begin());
  if (canvas_.row_marks) events_.guard([&] { layers_.row_marks = row < 0 ? PictureMarks() : canvas_.row_marks(row); });
  light_in_list(row);
  tell_lit();
  show();
}

/// The keys of the picture walk along what the list offers, without picking it.
void PictureTools::walk(int by) {
  if (revision_ != canvas_.rows->revision()) row_ = -1;
  const int next = row_ + by;
  PictureMarks shown;
  events_.guard([&] { shown = canvas_.row_marks(next); });
  if (shown.empty()) return;
  light_row(next);
  tell_(latin1_to_qt(canvas_.rows->items()[static_cast<std::size_t>(next)]));
}

bool PictureTools::key(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Escape && (measuring_ || row_ >= 0)) {
    if (row_ >= 0) light_row(-1);
    set_measuring(false);
    return true;
  }
  if (!canvas_.row_marks || (event.key() != Qt::Key_Up && event.key() != Qt::Key_Down)) return false;
  walk(event.key() == Qt::Key_Up ? -1 : 1);
  return true;
}

void PictureTools::point_at(const std::optional<QPointF>& position) {
  if (canvas_.marks().empty() || dragging_) return;
  constexpr double near_px = 6;
  const PicturePlace place = place_();
  int lit = -1;
  if (position && place.canvas->user_scale().has_area()) {
    const QPointF at = place.to_user(*position);
    lit = mark_at(canvas_.marks(), at.x(), at.y(), near_px / place.pixels(1));
  }
  if (lit == layers_.lit) return;
  layers_.lit = lit;
  if (canvas_.rows != nullptr) light_in_list(lit < 0 ? -1 : canvas_.marks()[static_cast<std::size_t>(lit)].row);
  tell_lit();
  show();
}

QString PictureTools::words() const {
  const auto& marks = canvas_.marks();
  if (layers_.lit < 0 || layers_.lit >= static_cast<int>(marks.size())) return {};
  return to_qt(mark_text(marks[static_cast<std::size_t>(layers_.lit)]));
}

void PictureTools::set_measuring(bool on) {
  measuring_ = on;
  layers_.from.reset();
  layers_.to.reset();
  measure_press_.reset();
  if (on) {
    if (view_.focusPolicy() == Qt::NoFocus) view_.setFocusPolicy(Qt::ClickFocus);
    view_.setFocus(Qt::OtherFocusReason);
    tell_(tr("Measure: click two places, or drag from one to the other; Esc ends it"));
  }
  show();
}

void PictureTools::tell_distance() {
  if (layers_.from && layers_.to && canvas_.geometry) {
    tell_(to_qt(distance_text(distance_between(*canvas_.geometry, *layers_.from, *layers_.to))));
  }
}

bool PictureTools::press(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  if (measuring_) {
    const auto at = user_place(place_(), event.position());
    const bool second = layers_.from && !layers_.to;
    if (second) {
      layers_.to = at;
    } else {
      layers_.from = at;
      layers_.to.reset();
      measure_press_ = event.position();
    }
    tell_distance();
    show();
    return true;
  }
  if (!canvas_.drag || canvas_.drawing().empty() || !canvas_.user_scale().has_area()) return false;
  held_ = event.position();
  turning_ = event.modifiers().testFlag(Qt::ControlModifier);
  return true;
}

bool PictureTools::move(const QMouseEvent& event) {
  if (measuring_) {
    const bool drags = layers_.from && event.buttons().testFlag(Qt::LeftButton);
    const bool far = !measure_press_ || (event.position() - *measure_press_).manhattanLength() >= drag_begins;
    if (drags && far) {
      layers_.to = user_place(place_(), event.position());
      tell_distance();
      show();
    }
    return true;
  }
  if (held_ && (event.position() - *held_).manhattanLength() >= drag_begins) {
    static int drags = 0;
    drag_name_ = "drag " + std::to_string(++drags);
    const QPointF from = place_().to_user(*std::exchange(held_, std::nullopt));
    canvas_.drag->begin(from.x(), from.y(), turning_);
    dragging_ = true;
    layers_.lit = -1;
  }
  if (!dragging_) return held_.has_value();
  drag_to(event.position(), 1);
  return true;
}

bool PictureTools::release(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  if (measuring_) {
    measure_press_.reset();
    return true;
  }
  if (!std::exchange(dragging_, false)) return false;
  constexpr int most_steps = 100;
  drag_to(event.position(), most_steps);
  return true;
}

/// What is left over waits for the next move of the pointer, so that each step is seen.
void PictureTools::drag_to(const QPointF& position, int most_steps) {
  for (int i = 0; i < most_steps; ++i) {
    const QPointF at = place_().to_user(position);
    std::optional<DragStep> step;
    events_.guard([&] { step = canvas_.drag->next(at.x(), at.y()); });
    if (!step) return;
    if (step->clicked->warn_when && !step->clicked->warn_when().empty()) return;
    do_step(*step);
  }
}

void PictureTools::do_step(const DragStep& step) {
  UserEvent event{turning_ ? "turned by dragging" : "tilted by dragging", "", [step] {
                    for (const auto& [box, text] : step.typed) box->set_text(text);
                    step.clicked->click();
                  }};
  for (const auto& [box, text] : step.typed) event.script += script_line({"set", box->path(), text}) + '\n';
  event.script += script_line({"click", step.clicked->path()});
  event.step = turning_ ? "turn by dragging" : "tilt by dragging";
  event.joins = drag_name_;
  events_.act(canvas_.window(), std::move(event));
}

void PictureTools::do_action(const PictureAction& action) {
  const auto* run = canvas_.window().operation(action.operation);
  if (run == nullptr) return;
  UserEvent event = operation({"call", canvas_.window().name() + '.' + action.operation}, *run);
  event.step = action.text;
  events_.act(canvas_.window(), std::move(event));
}

void PictureTools::add_entries(QMenu& menu) {
  for (const PictureAction& action : canvas_.actions) {
    QAction* entry = menu.addAction(to_qt(action.text), this, [this, &action] { do_action(action); });
    entry->setEnabled(action.possible());
  }
  if (!canvas_.actions.empty()) menu.addSeparator();
  const auto add = [&menu, this](const QString& text, PictureChoices::Choice choice) {
    QAction* entry = menu.addAction(text);
    entry->setCheckable(true);
    entry->setChecked(PictureChoices::of_program().on(choice));
    connect(entry, &QAction::toggled, this, [choice](bool on) {
      PictureChoices::of_program().set(choice, on);
      for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->inherits("zol::CanvasView")) widget->update();
      }
    });
  };
  if (!canvas_.geometry) return;
  const bool has_scale = canvas_.geometry->per_unit > 0 || canvas_.geometry->circle;
  if (has_scale) add(canvas_.geometry->per_unit > 0 ? tr("Sc&ale bar") : tr("An&gle circle"), PictureChoices::Scale);
  if (has_scale && !canvas_.row_marks) {
    add(tr("&Labels h k l"), PictureChoices::Labels);
    add(tr("Labels in colours of fam&ilies"), PictureChoices::Families);
  }
  if (canvas_.has_picture()) add(tr("Dark &halo behind coloured lines"), PictureChoices::Halos);
  QAction* measure = menu.addAction(tr("&Measure"));
  measure->setCheckable(true);
  measure->setChecked(measuring_);
  connect(measure, &QAction::toggled, this, &PictureTools::set_measuring);
  menu.addSeparator();
}

}  // namespace zol
