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
  /// @param settings  where tables keep what they show; nullptr: nowhere
  ListTables(Services& services, UserEvents& events, QSettings* settings)
      : services_(services), events_(events), settings_(settings) {}

  /// A window has come into being, and its lists are tied to their views.
  void add(Window& window, QMainWindow& top);
  /// To be called after each event.
  void update();

 private:
  void offer(ListBox& list, QListView& view, QMainWindow& top);

  Services& services_;
  UserEvents& events_;
  QSettings* settings_;
  std::vector<QPointer<TableWindow>> tables_;  ///< each goes with the window of its list
};

}  // namespace zol
