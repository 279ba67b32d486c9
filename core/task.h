// How a long calculation reports its progress and asks whether to go on, without knowing who shows or stops it.
#pragma once

namespace zol {

/// Ends a calculation that the user wants to stop. It is not a failure of the run: the caller of the calculation
/// catches it, and nothing of the result has been committed.
struct Cancelled {};

/// What a piece of work takes, as far as it can be told before.
struct Effort {
  double seconds = 0;  ///< of one core of a usual machine
  double bytes = 0;    ///< of memory at once
};

struct Task {
  Task() = default;
  Task(const Task&) = delete;
  Task& operator=(const Task&) = delete;
  virtual ~Task() = default;

  /// done rises from 0 to total, in whole steps; total is constant within a run
  virtual void report(int done, int total) = 0;
  /// To be called at points at most 10 ms apart. @throws Cancelled  the calculation is to stop
  virtual void check() = 0;
  /// To be called before work that may take minutes or much of the memory. @throws Cancelled  it is not wanted at that
  /// price
  virtual void expect(const Effort& /*effort*/) {}
};

/// For calculations that nobody watches or stops.
struct QuietTask final : Task {
  void report(int /*done*/, int /*total*/) override {}
  void check() override {}
};

}  // namespace zol
