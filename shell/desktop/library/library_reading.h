// Reads the library of crystals in the background.
#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>

#include <QObject>
#include <QString>

#include "structures/library_index.h"

namespace zol {

class LibraryReading : public QObject {
  Q_OBJECT

 public:
  using Entries = std::shared_ptr<const LibraryEntries>;

  /// @param index_file     where the index is kept; empty: nowhere
  /// @param path_of_group  of the file of a space group, asked on another thread
  LibraryReading(std::string folder, std::string index_file, std::function<std::string(int)> path_of_group);
  ~LibraryReading() override;

  /// Looks for what has changed; under way already, it looks again at the end.
  void look();

 signals:
  void found(const zol::LibraryReading::Entries& entries);
  void read(int done, int total);
  void ended(const QString& fault);  ///< empty where there was none

 private:
  class StoppedTask;
  void begin();
  void run();
  void finish(const QString& fault);

  std::string folder_, index_file_;
  SpaceGroupLibrary groups_;  ///< of the thread
  Entries known_;             ///< of the thread, from the last whole pass
  std::thread thread_;
  std::atomic<bool> stopped_ = false;
  bool under_way_ = false;
  bool again_ = false;
};

}  // namespace zol
