// The files that were used last, in the menus of the windows that open them.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <QObject>

#include "shell/desktop/file_opening.h"
#include "shell/program/recent_files.h"

class QMainWindow;
class QMenu;
class QSettings;

namespace zol {

class RecentMenu : public QObject {
  Q_OBJECT

 public:
  using Tell = std::function<void(const std::string&)>;

  /// @param settings  where the lists are kept; nullptr: they end with the program
  /// @param tell  of a file that is gone
  RecentMenu(QSettings* settings, FileOpening& opening, Tell tell);

  /// A window has come into being: where it opens files, its menu bar gets the menu.
  void add(Window& window, QMainWindow& top);
  /// A dialog was answered in the present event, which may yet fail.
  void chosen(const FileQuestion& question, const std::string& path);
  /// The present event is over and has not failed: what was chosen counts.
  void settle();
  /// Nothing came of the present event.
  void forget_chosen() { chosen_.clear(); }
  [[nodiscard]] const RecentFiles& files() const { return files_; }

 private:
  void fill(QMenu& menu, Window& window, FileKind kind);
  void open(Window& window, FileKind kind, const std::string& path);
  void change(const std::function<void()>& change);
  void read();

  QSettings* settings_;
  FileOpening& opening_;
  Tell tell_;
  RecentFiles files_;
  std::vector<std::pair<FileKind, std::string>> chosen_;
};

}  // namespace zol
