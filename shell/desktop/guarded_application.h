// The Qt application of the program. Texts hold names of files and crystals, so that no label takes one for markup; and
// no exception passes through Qt: what is thrown outside the gate, as in a repaint, ends the program there.
#pragma once

#include <exception>
#include <functional>

#include <QApplication>

namespace zol {

class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  /// Takes what was thrown while Qt delivered an event.
  void set_failed(std::function<void(const std::exception_ptr&)> failed) { failed_ = std::move(failed); }

  /// Asked for each event before anyone gets it. Where the answer is true, nobody does.
  void set_swallow(std::function<bool(QObject* receiver, QEvent* event)> swallow) { swallow_ = std::move(swallow); }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  std::function<void(const std::exception_ptr&)> failed_;
  std::function<bool(QObject*, QEvent*)> swallow_;
};

}  // namespace zol
