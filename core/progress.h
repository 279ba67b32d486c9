// How a long calculation tells how far it is, without knowing what shows it.
#pragma once

namespace zol {

struct Progress {
  Progress() = default;
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  virtual ~Progress() = default;

  /// done rises from 0 to total, in whole steps; total is constant within a run
  virtual void report(int done, int total) = 0;
};

}  // namespace zol
