// Gives lists of columns the command "Show as table", by key and in their context menus.
#pragma once

#include <vector>

#include <QPointer>

#include "shell/desktop/table_window.h"

class QListView;
class QMainWindow;

namespace zol {

class ListTables : public QObject {
 public:
  ListTables(Services& services, UserEvents& events) : services_(services), events_(events) {}

  /// A window has come into being, and its lists are tied to their views.
  void add(Window& window, QMainWindow& top);
  /// To be called after each event.
  void update();

 private:
  void offer(ListBox& list, QListView& view, QMainWindow& top);

  Services& services_;
  UserEvents& events_;
  std::vector<QPointer<TableWindow>> tables_;  ///< each goes with the window of its list
};

}  // namespace zol
