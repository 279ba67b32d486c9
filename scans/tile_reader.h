// Patterns of a part of a map as they are worked on: turned upside down, so that their frame is right-handed, and with
// no more pixels than indexing takes. A tile of large patterns then takes no more memory than one of small ones.
#pragma once

#include <mutex>
#include <span>

#include "indexing/gathering.h"
#include "scans/neighbour_average.h"
#include "scans/scan.h"

namespace zol {

/// A part of the map that is worked on at once.
struct MapTile {
  int column = 0, row = 0, columns = 0, rows = 0;
};

class TileReader {
 public:
  /// @param most_pixels  of a pattern that is worked on, about
  /// @param flip         patterns stand upside down in the file
  TileReader(Scan& scan, const ScanGrid& grid, int most_pixels, bool flip)
      : scan_(scan), grid_(grid), gathering_(scan.header().width, scan.header().height, most_pixels), flip_(flip) {}

  [[nodiscard]] const Gathering& gathering() const { return gathering_; }
  /// A pattern as it is worked on. @param reduced  of as many pixels as come out
  void reduce(std::span<const float> pattern, std::span<float> reduced) const;
  /// A tile with so many points about it as the margin; what lies outside the map is not present. Many threads may call
  /// it, each with storage of its own; one of them reads at a time.
  /// @param block  scratch
  void read(const MapTile& tile, int margin, PatternBlock& block, PatternTile& into);

 private:
  void read_run(std::size_t first, std::size_t count, std::size_t to, PatternBlock& block, PatternTile& into);

  Scan& scan_;
  const ScanGrid& grid_;
  Gathering gathering_;
  bool flip_;
  std::mutex reading_;
};

}  // namespace zol
