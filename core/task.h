// How a long calculation reports its progress and asks whether to go on, without knowing who shows or stops it.
#pragma once

namespace zol {

/// Ends a calculation that the user wants to stop. It is not a failure of the run: the caller of the calculation
/// catches it, and nothing of the result has been committed.
struct Cancelled {};

struct Task {
  Task() = default;
  Task(const Task&) = delete;
  Task& operator=(const Task&) = delete;
  virtual ~Task() = default;

  /// done rises from 0 to total, in whole steps; total is constant within a run
  virtual void report(int done, int total) = 0;
  /// To be called at points at most 10 ms apart. @throws Cancelled  the calculation is to stop
  virtual void check() = 0;
};

/// For calculations that nobody watches or stops.
struct QuietTask final : Task {
  void report(int /*done*/, int /*total*/) override {}
  void check() override {}
};

}  // namespace zol
