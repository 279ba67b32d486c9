// All windows of the program on the screen, and the one place where an event enters it.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include <QElapsedTimer>
#include <QObject>

#include "shell/desktop/binder.h"
#include "shell/window_services.h"

class QWidget;

namespace zol {

class Guide;

/// Makes the layouts and images that are built in available.
void use_desktop_resources();

/// Loads the top level of a window from its .ui file. @returns nullptr when there is none
[[nodiscard]] std::unique_ptr<QWidget> load_ui(const std::string& window_name);

class Desktop : public QObject, public WindowView {
  Q_OBJECT

 public:
  /// @param failed  takes the message of a failure of the run; the program ends behind it
  explicit Desktop(Windows& windows, std::function<void(const std::string&)> failed);
  ~Desktop() override;

  /// Runs an action as an event: a failure of the run ends the program, changes are shown afterwards.
  void enter(const std::function<void()>& action);
  /// No event comes in any more; the event loop ends with this status.
  void end(int status);
  [[nodiscard]] bool ended() const { return ended_; }

  [[nodiscard]] Binder* binder(const std::string& window_name) const;

  void window_created(Window& window) override;
  void window_shown(Window& window) override;
  void window_changed(Window& window) override;
  void window_unloaded(Window& window) override;
  void control_changed(Control& control) override;
  void focus_wanted(Control& control) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Shown {
    std::unique_ptr<QWidget> widget;
    std::unique_ptr<Binder> binder;
  };

  void offer_guide(QWidget& widget);
  void run_guarded(const std::function<void()>& action);
  void show_changes();
  void breathe();

  Windows& windows_;
  std::function<void(const std::string&)> failed_;
  std::map<std::string, Shown> shown_;
  std::vector<Shown> unloaded_;
  std::unique_ptr<Guide> guide_;
  QElapsedTimer since_breath_;
  qint64 work_ms_ = 0;  ///< between two breaths
  int depth_ = 0;
  bool ended_ = false;
};

}  // namespace zol
