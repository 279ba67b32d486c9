#include "shell/desktop/desktop.h"

#include <algorithm>
#include <new>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QShortcut>
#include <QStatusBar>
#include <QUiLoader>
#include <QWidget>

#include "core/run_failure.h"
#include "shell/desktop/canvas_view.h"
#include "shell/desktop/file_drops.h"
#include "shell/desktop/guide.h"
#include "shell/desktop/screen_fit.h"

// Resources of a static library have to be asked for, outside any namespace.
static void init_resources() { Q_INIT_RESOURCE(desktop); }

namespace zol {
namespace {

/// Makes the picture widget beside those that Qt knows.
class UiLoader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& class_name, QWidget* parent, const QString& name) override {
    if (class_name != QLatin1String("CanvasView")) return QUiLoader::createWidget(class_name, parent, name);
    auto* view = new CanvasView(parent);
    view->setObjectName(name);
    return view;
  }
};

}  // namespace

void use_desktop_resources() { init_resources(); }

std::unique_ptr<QWidget> load_ui(const std::string& window_name) {
  use_desktop_resources();
  QFile file(QStringLiteral(":/ui/%1.ui").arg(QString::fromStdString(window_name)));
  if (!file.open(QIODevice::ReadOnly)) return nullptr;
  UiLoader loader;
  std::unique_ptr<QWidget> widget(loader.load(&file));
  if (!widget) throw RunFailure("the layout of " + window_name + " is broken: " + loader.errorString().toStdString());
  return widget;
}

Desktop::Desktop(Windows& windows, std::function<void(const std::string&)> failed)
    : windows_(windows), failed_(std::move(failed)) {
  windows_.set_view(this);
  since_breath_.start();
}

Desktop::~Desktop() { windows_.set_view(nullptr); }

void Desktop::run_guarded(const std::function<void()>& action) {
  try {
    action();
  } catch (const RunFailure& failure) {
    if (depth_ > 1) throw;
    ended_ = true;
    failed_(failure.message());
    end(1);
  } catch (const std::bad_alloc&) {
    if (depth_ > 1) throw;
    ended_ = true;
    failed_("not enough memory");
    end(1);
  }
}

void Desktop::enter(const std::function<void()>& action) {
  if (ended_) return;
  ++depth_;
  run_guarded(action);
  --depth_;
  if (depth_ > 0 || ended_) return;
  windows_.free_unloaded();
  unloaded_.clear();
  show_changes();
}

void Desktop::end(int status) {
  ended_ = true;
  QCoreApplication::exit(status);
}

void Desktop::show_changes() {
  for (const auto& [name, shown] : shown_) shown.binder->show_changes();
}

Binder* Desktop::binder(const std::string& window_name) const {
  const auto found = shown_.find(window_name);
  return found == shown_.end() ? nullptr : found->second.binder.get();
}

void Desktop::window_created(Window& window) {
  auto widget = load_ui(window.name());
  if (!widget) return;
  widget->installEventFilter(this);
  const EnterEvent enter_event = [this](const std::function<void()>& action) { enter(action); };
  auto binder = std::make_unique<Binder>(window, *widget, enter_event);
  accept_file_drops(window, *widget, enter_event);
  offer_guide(*widget);
  binder->show_everything();
  if (auto* top = qobject_cast<QMainWindow*>(widget.get())) fit_to_screen(*top);
  shown_[window.name()] = {std::move(widget), std::move(binder)};
}

/// F1 opens the guide at the page that the layout names.
void Desktop::offer_guide(QWidget& widget) {
  const QString page = widget.property("guidePage").toString();
  auto* shortcut = new QShortcut(QKeySequence::HelpContents, &widget);
  connect(shortcut, &QShortcut::activated, this, [this, page] {
    if (!guide_) guide_ = std::make_unique<Guide>();
    guide_->open(page);
  });
  if (auto* top = qobject_cast<QMainWindow*>(&widget)) {
    top->statusBar()->addPermanentWidget(new QLabel(tr("F1: user guide")));
  }
}

void Desktop::window_shown(Window& window) {
  if (auto* shown = binder(window.name())) shown->window_shown();
}

void Desktop::window_changed(Window& window) {
  if (auto* shown = binder(window.name())) shown->window_changed();
}

void Desktop::window_unloaded(Window& window) {
  const auto found = shown_.find(window.name());
  if (found == shown_.end()) return;
  found->second.widget->hide();
  unloaded_.push_back(std::move(found->second));  // its own event may still be under way
  shown_.erase(found);
}

void Desktop::control_changed(Control& control) {
  auto* shown = binder(control.window().name());
  if (shown == nullptr) return;
  shown->control_changed(control);
  const bool grows =
      control.kind() == ControlKind::Canvas && control.window().mouse_pointer() == MousePointer::Hourglass;
  if (grows || control.kind() == ControlKind::ProgressBar) breathe();
}

void Desktop::focus_wanted(Control& control) {
  if (auto* shown = binder(control.window().name())) shown->focus_wanted(control);
}

/// During a long handler windows repaint now and then; input waits.
void Desktop::breathe() {
  if (since_breath_.elapsed() < work_ms_) return;
  since_breath_.start();
  show_changes();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  constexpr qint64 least_ms = 50;
  constexpr qint64 share = 4;  // a picture that takes long to paint is painted less often
  work_ms_ = std::max(least_ms, share * since_breath_.elapsed());
  since_breath_.start();
}

/// The frame button hides a window; without any window left to see, the program ends.
bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Close || ended_) return QObject::eventFilter(watched, event);
  for (const auto& [name, shown] : shown_) {
    if (shown.widget.get() != watched) continue;
    Window& window = shown.binder->window();
    enter([&window] { window.hide(); });
    break;
  }
  const bool any_left =
      std::any_of(shown_.begin(), shown_.end(), [](const auto& entry) { return entry.second.widget->isVisible(); });
  if (!any_left) end(0);
  event->ignore();
  return true;
}

}  // namespace zol
