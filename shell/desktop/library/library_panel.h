// The library of crystals beside a window: the crystal folder as a tree, a search, and what is known of the one chosen.
#pragma once

#include <functional>
#include <string>

#include <QDockWidget>
#include <QFileSystemWatcher>

#include "shell/desktop/library/library_reading.h"

class QLabel;
class QLineEdit;
class QMainWindow;
class QSettings;
class QTreeView;

namespace zol {

class LibraryModel;

struct LibrarySetup {
  std::string folder;
  std::string index_file;  ///< empty: none is kept
  std::function<std::string(int)> path_of_group;
  std::function<void(const std::string& path)> open;  ///< a file, as its dialog would
};

class LibraryPanel : public QDockWidget {
  Q_OBJECT

 public:
  LibraryPanel(LibrarySetup setup, QMainWindow& top);
  /// Comes up with the search, beside the window as far as the screen has room.
  /// @param window_has_room  its size has the panel in it, as a kept one does
  void come_up(bool window_has_room);

 signals:
  void shown(bool open);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void lay_out();
  void take(const LibraryReading::Entries& entries);
  void search();
  void choose(const QModelIndex& index);
  void open(const QModelIndex& index);
  void tell();
  [[nodiscard]] const LibraryEntry* chosen() const;

  LibrarySetup setup_;
  QMainWindow& top_;
  LibraryReading reading_;
  LibraryReading::Entries entries_;
  LibraryModel* model_;
  QLineEdit* search_;
  QTreeView* tree_;
  QLabel* state_;
  QLabel* details_;
  QFileSystemWatcher watcher_;
  std::string chosen_path_;
  QString fault_;     ///< of the folder
  QString mistake_;   ///< in the search
  QString progress_;  ///< of the reading
};

/// What is told of a crystal: name, formula, group, cell, density.
[[nodiscard]] QString described(const LibraryEntry& entry);

/// The entry of a window's menu "View", with Ctrl+L; the panel is made when it is first asked for.
/// @param settings  where it is kept whether the panel is open; nullptr: nowhere
void offer_library(QMainWindow& top, const LibrarySetup& setup, QSettings* settings);

}  // namespace zol
