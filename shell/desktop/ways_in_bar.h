// The first things to do, at the foot of the window that declares them.
#pragma once

#include <functional>
#include <vector>

#include <QFrame>

#include "shell/services/uses.h"

class QMainWindow;

namespace zol {

class WaysInBar : public QFrame {
  Q_OBJECT

 public:
  /// @param go  takes one of the ways
  WaysInBar(const std::vector<WayIn>& ways, const std::function<void(const WayIn&)>& go);
  /// Puts it below what the window shows.
  static void add_to(QMainWindow& window, WaysInBar* bar);
};

}  // namespace zol
