// Patterns averaged with those of their neighbours.
//
// By likeness: Brewick, Wright & Rowenhorst, Ultramicroscopy 200 (2019) 50. A neighbour counts the less the more it
// differs beyond what noise explains, so that boundaries between grains stay sharp.
#pragma once

#include <span>
#include <vector>

#include "scans/scan.h"

namespace zol {

enum class Averaging { none, plain, likeness };

/// A rectangle of patterns of a map, row by row.
struct PatternTile {
  int columns = 0, rows = 0;
  std::size_t pixels = 0;
  std::vector<float> values;  ///< pattern by pattern
  std::vector<char> present;

  [[nodiscard]] std::size_t place(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(column);
  }
  [[nodiscard]] std::span<const float> pattern(std::size_t i) const {
    return std::span(values).subspan(i * pixels, pixels);
  }
};

/// Averages by likeness with all neighbours at most radius away. Storage is used again.
class LikenessAverage {
 public:
  static constexpr int radius = 3;
  static constexpr int margin = radius + 1;  ///< of points around a tile that have to be known

  /// @param saturated  pixels from here on tell nothing
  /// @param rounding   variance of grey values by their rounding
  LikenessAverage(float saturated, float rounding) : saturated_(saturated), rounding_(rounding) {}

  /// Looks at a tile: spread of the noise of each point, and how much each two points differ beyond it.
  void look_at(const PatternTile& tile);
  /// How much each neighbour of a point differs from it beyond the noise, in units of the spread of that.
  [[nodiscard]] std::vector<double> distances(int column, int row) const;
  /// The average of a point. @param pattern  of as many pixels as those of the tile
  void average(int column, int row, double length, std::span<float> pattern) const;

 private:
  struct Offset {
    int right, down;
  };
  static const std::vector<Offset>& offsets();
  void compare_with_neighbours(int column, int row);
  [[nodiscard]] double difference(std::size_t i, std::size_t offset, bool forward, const Offset& step) const;
  template <class Visit>
  void each_neighbour(int column, int row, const Visit& visit) const;

  float saturated_, rounding_;
  const PatternTile* tile_ = nullptr;
  std::vector<float> squares_;  ///< of each offset and point the mean squared difference to the point there; < 0: none
  std::vector<float> counts_;   ///< pixels that it was taken over
  std::vector<float> variance_;
  std::vector<int> twins_;  ///< identical ones among the eight around
};

/// The length at which the middle one of some points keeps a share of itself; no longer than that at which neighbours
/// still count that differ by twice the spread of noise. @param distances  of each point those of its neighbours
[[nodiscard]] double length_of_likeness(const std::vector<std::vector<double>>& distances, double own_share);

}  // namespace zol
