// All windows of the program on the screen.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <QElapsedTimer>
#include <QObject>

#include "shell/desktop/binder.h"
#include "shell/desktop/long_work.h"
#include "shell/desktop/user_events.h"
#include "shell/services/event_gate.h"
#include "shell/services/window_services.h"

class QMainWindow;
class QWidget;

namespace zol {

class Advice;
class Desk;
class Guide;
class Program;

/// Makes the layouts and images that are built in available.
void use_desktop_resources();

/// Loads the top level of a window from its .ui file. @returns nullptr when there is none
[[nodiscard]] std::unique_ptr<QWidget> load_ui(const std::string& window_name);

class Desktop : public QObject, public WindowView {
  Q_OBJECT

 public:
  /// @param failed  takes the message of a failure of the run; the program ends after it
  explicit Desktop(Windows& windows, std::function<void(const std::string&)> failed);
  ~Desktop() override;

  /// Runs an action as an event: a failure ends the program, changes are shown afterwards.
  void enter(std::string name, std::function<void()> action) { gate_.enter({std::move(name), "", std::move(action)}); }
  /// Undo and redo by menu and keys in all windows; the titles show the crystal.
  void offer_undo(Program& program);
  /// Told of each window before it is fitted to the screen.
  void set_made(std::function<void(const Window&, QMainWindow&)> made) { made_ = std::move(made); }
  /// What the windows say beside their controls.
  void offer_advice(Program& program);
  /// Menus of windows and of recent files, kept places, first things to do. @param settings_file  see Desk
  void offer_desk(Program& program, const QString& settings_file);
  /// By the ways that a window declares. @throws nothing  what cannot be opened is reported
  void open_files(const std::vector<std::string>& paths);
  /// Asks whether what would end the run is to be done all the same, in the place of a message box.
  void set_question(std::function<bool(const std::string& reason)> question) {
    events_.set_question(std::move(question));
  }
  /// No event comes in any more; the event loop ends with this status.
  void end(int status);
  [[nodiscard]] bool ended() const { return gate_.ended(); }
  [[nodiscard]] EventGate& gate() { return gate_; }
  /// Of the event that runs.
  [[nodiscard]] LongWork& long_work() { return long_work_; }

  [[nodiscard]] Binder* binder(const std::string& window_name) const;
  /// Of the present crystal; empty where it has none.
  [[nodiscard]] std::string crystal_name() const;

  void window_created(Window& window) override;
  void window_shown(Window& window) override;
  void window_changed(Window& window) override;
  void window_unloaded(Window& window) override;
  void control_changed(Control& control) override;
  void focus_wanted(Control& control) override;

 signals:
  /// An event is over, and what it has changed is shown.
  void settled();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Shown {
    std::unique_ptr<QWidget> widget;
    std::unique_ptr<Binder> binder;
  };
  class Grave;
  class UndoKeys;

  [[nodiscard]] bool shows(const QWidget& top_level) const;
  void offer_guide(QWidget& widget);
  void add_undo(QWidget& widget);
  void go_in_history(bool back);
  void show_failure(const std::exception_ptr& failure);
  void settle();
  void show_changes(bool with_lists = true);
  void show_crystal();
  void breathe();
  void close_by_frame(Window& window);
  void window_activated(Window& window);

  Windows& windows_;
  std::function<void(const std::string&)> failed_;
  EventGate gate_;
  LongWork long_work_;
  UserEvents events_;
  std::map<std::string, Shown> shown_;
  std::vector<Shown> unloaded_;
  std::string active_;  ///< the window that was last activated, by the program or the user
  std::unique_ptr<Advice> advice_;
  std::unique_ptr<Desk> desk_;
  std::unique_ptr<Guide> guide_;
  Program* program_ = nullptr;  ///< whose steps can be undone, and whose crystal the titles show
  std::function<void(const Window&, QMainWindow&)> made_;
  QElapsedTimer since_breath_;
  qint64 work_ms_ = 0;  ///< between two breaths
};

}  // namespace zol
