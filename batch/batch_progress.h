// What a command tells of its work, and how it is stopped.
#pragma once

#include <chrono>
#include <string>

#include "core/task.h"

namespace zol {

/// "7 of 25 pictures, 12 a second, 2 s left" on standard error, where that is a terminal.
class BatchProgress {
 public:
  explicit BatchProgress(std::string things, bool quiet = false);
  BatchProgress(const BatchProgress&) = delete;
  BatchProgress& operator=(const BatchProgress&) = delete;
  ~BatchProgress();

  void show(std::size_t done, std::size_t all);

 private:
  std::string things_;
  bool shown_, begun_ = false;
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now(), last_ = start_;
};

/// Work that a signal stops.
class BatchTask final : public Task {
 public:
  explicit BatchTask(BatchProgress* progress = nullptr) : progress_(progress) {}
  void report(int done, int total) override;
  /// @throws Cancelled  a signal has come
  void check() override;

 private:
  BatchProgress* progress_;
};

}  // namespace zol
