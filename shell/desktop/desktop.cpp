#include "shell/desktop/desktop.h"

#include <algorithm>
#include <optional>

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QUiLoader>
#include <QWidget>

#include "core/run_failure.h"
#include "shell/desktop/advice.h"
#include "shell/desktop/canvas_view.h"
#include "shell/desktop/crystal_title.h"
#include "shell/desktop/curve_tools.h"
#include "shell/desktop/desk.h"
#include "shell/desktop/file_drops.h"
#include "shell/desktop/guarded_application.h"
#include "shell/desktop/guide.h"
#include "shell/desktop/language/shown_widgets.h"
#include "shell/desktop/look/folding.h"
#include "shell/desktop/look/look.h"
#include "shell/desktop/mnemonics.h"
#include "shell/desktop/note_line.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/screen_fit.h"
#include "shell/program/program.h"
#include "shell/program/step_name.h"

// Resources of a static library have to be asked for, outside any namespace.
static void init_resources() { Q_INIT_RESOURCE(desktop); }

namespace zol {
namespace {

constexpr qint64 least_work_ms = 50;   // between two breaths
constexpr qint64 most_step_ms = 1000;  // of a drag, which shows no half drawn pictures unless it takes longer

/// Makes the picture widget, and lists that leave room for a note, beside those that Qt knows.
class UiLoader : public QUiLoader {
 public:
  QWidget* createWidget(const QString& class_name, QWidget* parent, const QString& name) override {
    QWidget* view = nullptr;
    if (class_name == QLatin1String("CanvasView")) view = new CanvasView(parent);
    if (class_name == QLatin1String("QListView")) view = new NotedList(parent);
    if (view == nullptr) return QUiLoader::createWidget(class_name, parent, name);
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

/// Unloaded windows. It is deleted later, when their own events of Qt are over: first the ties, then the widgets and
/// the controls that these show.
class Desktop::Grave : public QObject {
 public:
  Grave(QObject* parent, std::vector<std::unique_ptr<Window>> windows, std::vector<Shown> shown)
      : QObject(parent), windows_(std::move(windows)), shown_(std::move(shown)) {
    deleteLater();
  }

 private:
  std::vector<std::unique_ptr<Window>> windows_;
  std::vector<Shown> shown_;
};

/// Sees all events of the application: a box of a window does not get the keys of undo and redo, they are the window's.
class Desktop::UndoKeys : public QObject {
 public:
  explicit UndoKeys(Desktop& desktop) : QObject(&desktop), desktop_(desktop) {
    QCoreApplication::instance()->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const auto* widget = qobject_cast<const QWidget*>(watched);
    const auto* key = dynamic_cast<const QKeyEvent*>(event);
    if (widget == nullptr || key == nullptr) return false;
    const bool undo_key = key->key() == Qt::Key_Z && key->modifiers().testFlag(Qt::ControlModifier);
    if (!undo_key || !desktop_.shows(*widget->window())) return false;
    event->ignore();
    return true;
  }

 private:
  const Desktop& desktop_;
};

Desktop::Desktop(Windows& windows, std::function<void(const std::string&)> failed)
    : windows_(windows),
      failed_(std::move(failed)),
      gate_([this] { settle(); }, [this](const std::exception_ptr& failure) { show_failure(failure); }),
      long_work_({[this](const std::string& window) {
                    const auto* shown = binder(window);
                    return shown == nullptr ? nullptr : &shown->widget();
                  },
                  [this](const UserEvent& event) { return latin1_to_qt(step_of(event, windows_).name); }}),
      events_(gate_) {
  windows_.set_view(this);
  gate_.set_follow(
      [this](const UserEvent& event) {
        if (!event.joins.empty()) since_breath_.start();
        if (event.joins.empty() != (work_ms_ != most_step_ms)) work_ms_ = event.joins.empty() ? 0 : most_step_ms;
        long_work_.begin(event);
      },
      [this](bool stopped) { long_work_.end(stopped); });
  if (auto* application = dynamic_cast<GuardedApplication*>(QCoreApplication::instance())) {
    application->set_failed([this](const std::exception_ptr& failure) { gate_.fail(failure); });
  }
  since_breath_.start();
}

Desktop::~Desktop() {
  gate_.end();
  if (auto* application = dynamic_cast<GuardedApplication*>(QCoreApplication::instance())) application->set_failed({});
  windows_.set_view(nullptr);
}

/// Ends the loop also when there is no memory left for the message.
void Desktop::show_failure(const std::exception_ptr& failure) {
  struct End {
    Desktop& desktop;
    ~End() { desktop.end(1); }
  };
  const End end{*this};
  failed_(failure_text(failure));
}

void Desktop::settle() {
  auto windows = windows_.take_unloaded();
  if (!windows.empty()) new Grave(this, std::move(windows), std::exchange(unloaded_, {}));
  if (program_ != nullptr) show_crystal();
  show_changes();
  if (desk_ && !ended()) desk_->update();
  if (advice_ && !ended()) advice_->update();
  emit settled();
}

void Desktop::end(int status) {
  gate_.end();
  QCoreApplication::exit(status);
}

void Desktop::show_changes(bool with_lists) {
  Binder* last = binder(active_);  // it may be one of several that come up: it stands in front of the others
  for (const auto& [name, shown] : shown_) {
    if (shown.binder.get() != last) shown.binder->show_changes(with_lists);
  }
  if (last != nullptr) last->show_changes(with_lists);
}

void Desktop::show_crystal() {
  const QString end = crystal_title_end(*program_);
  const bool unsaved = program_->crystal_unsaved();
  for (const auto& [name, shown] : shown_) {
    if (shown.binder->window().shows_crystal) shown.binder->set_title_end(end, unsaved);
  }
}

bool Desktop::shows(const QWidget& top_level) const {
  return std::any_of(shown_.begin(), shown_.end(),
                     [&top_level](const auto& entry) { return entry.second.widget.get() == &top_level; });
}

Binder* Desktop::binder(const std::string& window_name) const {
  const auto found = shown_.find(window_name);
  return found == shown_.end() ? nullptr : found->second.binder.get();
}

std::string Desktop::crystal_name() const { return program_ == nullptr ? "" : program_->crystal_name(); }

void Desktop::window_created(Window& window) {
  std::optional<TextsHeld> held(std::in_place);
  auto widget = load_ui(window.name());
  if (!widget) return;
  widget->installEventFilter(this);
  offer_curves(window, *widget, *this, events_);
  auto binder = std::make_unique<Binder>(window, *widget, events_);
  accept_file_drops(window, *widget, events_);
  offer_guide(*widget);
  auto* top = qobject_cast<QMainWindow*>(widget.get());
  if (desk_ && top != nullptr) top->menuBar();  // where the layout has none
  if (program_ != nullptr) add_undo(*widget);
  if (advice_) advice_->add(window, *widget);
  binder->show_everything();
  if (top != nullptr) {
    offer_view(*top);
    dress(*top);
    offer_folding(*top);
    if (made_) made_(window, *top);
    if (desk_) desk_->add(window, *top);
    held.reset();
    show_widget_texts(*top);
    fit_to_screen(*top);
    if (desk_) desk_->put_in_place(window, *top);
  }
  shown_[window.name()] = {std::move(widget), std::move(binder)};
}

/// F1 opens the guide at the page that the layout names.
void Desktop::offer_guide(QWidget& widget) {
  const QString page = widget.property("guidePage").toString();
  auto* shortcut = new QShortcut(QKeySequence::HelpContents, &widget);
  shortcut->setObjectName(QStringLiteral("help"));  // the tables of its lists have it too
  connect(shortcut, &QShortcut::activated, this, [this, page] {
    if (!guide_) guide_ = std::make_unique<Guide>();
    guide_->open(page);
  });
  if (auto* top = qobject_cast<QMainWindow*>(&widget)) {
    top->statusBar()->addPermanentWidget(new QLabel(tr("F1: user guide")));
  }
}

void Desktop::offer_undo(Program& program) {
  program_ = &program;
  new UndoKeys(*this);
  for (const auto& [name, shown] : shown_) add_undo(*shown.widget);
}

void Desktop::offer_advice(Program& program) {
  advice_ = std::make_unique<Advice>(program, events_);
  for (const auto& [name, shown] : shown_) advice_->add(shown.binder->window(), *shown.widget);
}

void Desktop::offer_desk(Program& program, const QString& settings_file) {
  desk_ = std::make_unique<Desk>(program, events_, settings_file);
}

void Desktop::open_files(const std::vector<std::string>& paths) {
  if (desk_) desk_->open_files(paths);
}

/// The keys in every window; the menu, which names the step, where there is a menu bar.
void Desktop::add_undo(QWidget& widget) {
  const auto* top = widget.findChild<QMenuBar*>() == nullptr ? nullptr : qobject_cast<QMainWindow*>(&widget);
  QMenu* menu = top == nullptr ? nullptr : top->menuBar()->addMenu(with_free_mnemonic(*top, tr("Edit")));
  struct Entry {
    QString text;
    QKeySequence keys;
    bool back;
  };
  for (const Entry& entry : {Entry{tr("Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z), true},
                             Entry{tr("Redo"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), false}}) {
    auto* action = new QAction(entry.text, &widget);
    action->setShortcut(entry.keys);
    widget.addAction(action);
    connect(action, &QAction::triggered, this, [this, back = entry.back] { go_in_history(back); });
    if (menu == nullptr) continue;
    menu->addAction(action);
    connect(menu, &QMenu::aboutToShow, action, [this, action, entry] {
      const auto& step = entry.back ? program_->history().undo_name() : program_->history().redo_name();
      action->setText(step.empty() ? entry.text : entry.text + QLatin1Char(' ') + latin1_to_qt(step));
      action->setEnabled(!step.empty());
    });
    connect(menu, &QMenu::aboutToHide, action, [action] { action->setEnabled(true); });
  }
}

void Desktop::go_in_history(bool back) {
  UserEvent event{back ? "undo" : "redo", "", [this, back] {
                    History& history = program_->history();
                    if (const auto step = back ? history.undo() : history.redo()) program_->put_back(*step);
                  }};
  event.stoppable = false;
  gate_.enter(std::move(event));
}

void Desktop::window_shown(Window& window) {
  auto* shown = binder(window.name());
  if (shown == nullptr) return;
  const std::string opener = window.beside.empty() ? active_ : window.beside;
  if (window.beside.empty()) active_ = window.name();
  if (auto* neighbour = opener == window.name() ? nullptr : binder(opener)) shown->set_neighbour(&neighbour->widget());
  shown->window_shown();
}

void Desktop::window_changed(Window& window) {
  if (auto* shown = binder(window.name())) shown->window_changed();
}

void Desktop::window_unloaded(Window& window) {
  const auto found = shown_.find(window.name());
  if (found == shown_.end()) return;
  found->second.widget->hide();
  if (advice_) advice_->remove(window);
  if (desk_) desk_->remove(window);
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
  const LongWork::Looking looking(long_work_);
  show_changes(false);
  // What is left out waits in the queue of the window system, where it would not be seen again until something comes
  // behind it; once the bar is there nothing is left out.
  QCoreApplication::processEvents(long_work_.shown() ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
  constexpr qint64 share = 4;  // a picture that takes long to paint is painted less often
  work_ms_ = std::max(least_work_ms, share * since_breath_.elapsed());
  since_breath_.start();
}

bool Desktop::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::LanguageChange && desk_ && !ended()) {
    desk_->update();
    if (auto* top = qobject_cast<QWidget*>(watched)) return_to_screen(*top);
  }
  const bool closes = event->type() == QEvent::Close;
  if ((!closes && event->type() != QEvent::WindowActivate) || ended()) return QObject::eventFilter(watched, event);
  const auto found = std::find_if(shown_.begin(), shown_.end(),
                                  [watched](const auto& entry) { return entry.second.widget.get() == watched; });
  if (found != shown_.end()) {
    Window& window = found->second.binder->window();
    closes ? close_by_frame(window) : window_activated(window);
  }
  if (closes) event->ignore();
  return closes;
}

/// Without any window left to see, the program ends.
void Desktop::close_by_frame(Window& window) {
  UserEvent event{window.name() + " was closed by its frame", "", [&window] { window.hide(); }};
  if (const auto* button = window.frame_button) {
    event = operation({"click", button->path()}, [button] { button->click(); });
  }
  event.run = [this, run = std::move(event.run)] {
    run();
    const bool any_left = std::any_of(shown_.begin(), shown_.end(),
                                      [](const auto& entry) { return entry.second.binder->window().visible(); });
    if (!any_left) end(0);
  };
  events_.act(window, std::move(event));
}

/// Back from a dialog or from another program, or shown by a handler, a window was the active one already.
void Desktop::window_activated(Window& window) {
  if (std::exchange(active_, window.name()) == window.name() || !window.on_activate) return;
  events_.act(window, operation({"show", window.name()}, [&window] { window.activate(); }));
}

}  // namespace zol
