// Many processes on one map, by MPI: the first one hands out tiles and writes, the others ask for them. Where the
// program was built without MPI there is one process.
#pragma once

#include "scans/map_run.h"

namespace zol {

/// The processes of this run. One object a process, which lives as long as MPI is used.
class MapRanks {
 public:
  /// Joins the others where a launcher has started the program. @throws RunFailure  MPI cannot begin
  MapRanks();
  MapRanks(const MapRanks&) = delete;
  MapRanks& operator=(const MapRanks&) = delete;
  ~MapRanks();  // NOLINT(performance-trivially-destructible): it ends MPI, where there is that

  [[nodiscard]] int count() const { return count_; }
  [[nodiscard]] bool first() const { return rank_ == 0; }
  /// Cores that this process may use: those it is bound to, or its share of the machine's.
  [[nodiscard]] int cores() const;

  /// To be called by all, with the same map. Points are complete in the first process alone.
  /// @returns false where it was stopped
  /// @throws RunFailure  as run_map; in the first process also where another one failed
  [[nodiscard]] bool run(MapIndexer& indexer, const ScanGrid& grid, const MapRun& run,
                         std::vector<PointResult>& points) const;
  /// Ends all processes at once, those too that wait for this one. Nothing where there is one process.
  void abandon() const;

 private:
  int rank_ = 0, count_ = 1, on_machine_ = 1;
  bool begun_ = false;
};

}  // namespace zol
