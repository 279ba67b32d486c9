// A bar above the content of a window that offers the work of earlier runs. It blocks nothing and goes with the last of
// what it offers.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QFrame>

#include "shell/program/recovery_file.h"

class QMainWindow;
class QVBoxLayout;

namespace zol {

class KeptWorkBar : public QFrame {
  Q_OBJECT

 public:
  /// What is done with one of them; each answers why it could not be done, or nothing.
  struct Actions {
    std::function<std::string(const LeftOver&)> restore;
    std::function<std::string(const LeftOver&)> discard;
  };
  KeptWorkBar(std::vector<LeftOver> left, Actions actions);
  /// Puts it above what the window shows.
  static void add_to(QMainWindow& window, KeptWorkBar* bar);

 private:
  void show_rows();
  void add_row(const LeftOver& left);
  void act(const LeftOver& left, const std::function<std::string(const LeftOver&)>& action);
  void take_off(const std::string& path);

  std::vector<LeftOver> left_;
  Actions actions_;
  QVBoxLayout* rows_;
};

/// As "Quartz; Main1, Pattern2; 25 Nov 2026, 14:03; ended by a failure: ...".
[[nodiscard]] QString told_of(const WorkNote& note);

}  // namespace zol
