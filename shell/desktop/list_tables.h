// Gives lists of columns the command "Show as table", by key and in their context menus.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <QPointer>

#include "shell/desktop/table_window.h"

class QListView;
class QMainWindow;

namespace zol {

class ListTables : public QObject {
 public:
  /// @param settings  where tables keep what they show; nullptr: nowhere
  /// @param crystal  its name, Latin-1
  ListTables(Services& services, UserEvents& events, QSettings* settings, std::function<std::string()> crystal)
      : services_(services), events_(events), settings_(settings), crystal_(std::move(crystal)) {}

  /// A window has come into being, and its lists are tied to their views.
  void add(Window& window, QMainWindow& top);
  /// To be called after each event.
  void update();

 private:
  void offer(ListBox& list, QListView& view, QMainWindow& top);

  Services& services_;
  UserEvents& events_;
  QSettings* settings_;
  std::function<std::string()> crystal_;
  std::vector<QPointer<TableWindow>> tables_;  ///< each goes with the window of its list
};

}  // namespace zol
