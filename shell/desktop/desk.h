// What helps to find one's way among the windows: menus of windows and of recent files, kept places, first things to
// do.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <QString>

#include "shell/desktop/file_opening.h"
#include "shell/desktop/list_tables.h"
#include "shell/desktop/recent_menu.h"
#include "shell/desktop/window_places.h"
#include "shell/desktop/windows_menu.h"

class QSettings;
class QWidget;

namespace zol {

class Desk {
 public:
  /// @param settings_file  what is kept between runs; empty: nothing is
  Desk(Program& program, UserEvents& events, const QString& settings_file);
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;
  ~Desk();

  /// A window has come into being; it has no place on the screen yet.
  void add(Window& window, QMainWindow& top);
  /// It has been made fit for the screen.
  void put_in_place(const Window& window, QMainWindow& top) { places_.follow(window, top); }
  void remove(const Window& window);
  /// To be called after each event.
  void update();
  /// Opens files as the ending of each asks for, by the first window that knows ways.
  void open_files(const std::vector<std::string>& paths);

 private:
  void show_ways_in();
  void offer_crystals(Window& window, QMainWindow& top);

  Program& program_;
  std::unique_ptr<QSettings> settings_;
  FileOpening opening_;
  WindowsMenu windows_menu_;
  RecentMenu recent_;
  WindowPlaces places_;
  ListTables tables_;
  std::map<std::string, QWidget*> ways_in_;  ///< the bar of each window that has one
};

}  // namespace zol
