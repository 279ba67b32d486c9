#include "shell/desktop/notices.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QStatusBar>
#include <QToolButton>

#include "shell/desktop/canvas_view.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

constexpr auto foot_name = "FootLine";

/// A line that gives way: as wide as there is room, with an ellipsis where that is too little.
class FootLabel : public QLabel {
 public:
  explicit FootLabel(QWidget* parent) : QLabel(parent) {
    setObjectName(QLatin1String(foot_name));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  }
  void say(const QString& text) {
    setToolTip(text);
    setAccessibleName(text);
    shorten();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    shorten();
  }

 private:
  void shorten() { setText(fontMetrics().elidedText(toolTip(), Qt::ElideRight, width())); }
};

}  // namespace

/// Lies along an edge of the view: on top of a picture, at the foot of a list, whose first lines are those that count.
class NoticeStrip : public QFrame {
 public:
  explicit NoticeStrip(QWidget& view)
      : QFrame(&view), view_(view), text_(new QLabel(this)), again_(new QToolButton(this)) {
    setObjectName(QStringLiteral("NoticeStrip"));
    setFrameShape(QFrame::NoFrame);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    text_->setForegroundRole(QPalette::ToolTipText);
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    again_->setText(tr("Draw again"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 2, 4, 2);
    row->addWidget(text_, 1);
    row->addWidget(again_);
    view.installEventFilter(this);
  }

  [[nodiscard]] QToolButton& button() const { return *again_; }
  void say(const QString& text, bool can_be_made_again) {
    text_->setText(text);
    setAccessibleName(text);
    setToolTip(text);
    again_->setVisible(can_be_made_again);
    place();
    show();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &view_ && event->type() == QEvent::Resize && isVisible()) place();
    return QFrame::eventFilter(watched, event);
  }

 private:
  void place() {
    const int height = std::min(layout()->heightForWidth(view_.width()), view_.height());
    const bool list = qobject_cast<QAbstractItemView*>(&view_) != nullptr;
    setGeometry(0, list ? view_.height() - height : 0, view_.width(), height);
    raise();
  }

  QWidget& view_;
  QLabel* text_;
  QToolButton* again_;
};

Notices::Notices(Program& program, Desktop& desktop) : program_(program), desktop_(desktop) {
  program_.set_told([this] { update(); });
}

Notices::~Notices() { program_.set_told({}); }

void Notices::update() {
  for (const auto& name : program_.windows().names()) {
    Window* window = program_.windows().find(name);
    const Binder* binder = window == nullptr || !window->visible() ? nullptr : desktop_.binder(name);
    if (binder != nullptr) update_window(*window, binder->widget());
  }
}

void Notices::update_window(Window& window, QWidget& top) {
  for (Control* control : window.controls()) {
    if (control->made_from.empty() && !control->remark) continue;
    if (auto* view = top.findChild<QWidget*>(QString::fromStdString(control->name()))) show_strip(*control, *view);
  }
  update_foot(window, top);
}

void Notices::update_foot(const Window& window, QWidget& top) {
  auto* frame = qobject_cast<QMainWindow*>(&top);
  if (!window.foot || frame == nullptr) return;
  auto* line = dynamic_cast<FootLabel*>(frame->statusBar()->findChild<QLabel*>(QLatin1String(foot_name)));
  if (line == nullptr) {
    line = new FootLabel(frame->statusBar());
    frame->statusBar()->addWidget(line, 1);
  }
  line->say(to_qt(window.foot()));
}

/// What it was drawn for and with.
std::string Notices::caption_of(const Control& control, const std::string& old) {
  const Window& window = control.window();
  std::string caption = program_.crystal_name();
  if (!program_.radiation().empty()) caption += (caption.empty() ? "" : ", ") + program_.radiation();
  if (!old.empty()) caption = old;
  if (window.foot && !window.foot().empty()) caption += "\n" + window.foot();
  return caption + "\nZOL " + program_version;
}

void Notices::show_strip(Control& control, QWidget& view) {
  const std::string old = program_.said_of(control);
  if (auto* picture = qobject_cast<CanvasView*>(&view)) picture->set_caption(caption_of(control, old));
  const std::string remark = control.remark && control.holds_something() ? control.remark() : "";
  auto& strip = strips_[control.path()];
  if (old.empty() && remark.empty()) {
    if (strip != nullptr) strip->hide();
    return;
  }
  if (strip == nullptr) {
    strip = new NoticeStrip(view);
    connect(&strip->button(), &QToolButton::clicked, this, [this, &control] { make_again(control); });
  }
  strip->say(to_qt(old + (old.empty() || remark.empty() ? "" : "\n") + remark),
             !old.empty() && control.made_by != nullptr);
}

/// First the list that it is made from, where that is old itself.
void Notices::make_again(Control& control) {
  std::vector<CommandButton*> buttons;
  if (std::find(control.made_from.begin(), control.made_from.end(), Source::Reflections) != control.made_from.end()) {
    for (const auto& name : program_.windows().names()) {
      const Window* window = program_.windows().find(name);
      if (window == nullptr) continue;
      for (Control* list : window->controls()) {
        const bool of_radiation =
            std::find(list->made_from.begin(), list->made_from.end(), Source::Radiation) != list->made_from.end();
        if (of_radiation && list->made_by != nullptr && !program_.said_of(*list).empty())
          buttons.push_back(list->made_by);
      }
    }
  }
  buttons.push_back(control.made_by);
  for (CommandButton* button : buttons) {
    desktop_.gate().enter(operation({"click", button->path()}, [button] { button->click(); }));
  }
}

}  // namespace zol
