// Places for labels over a curve, none of which covers another.
#pragma once

#include <optional>
#include <vector>

namespace zol {

struct LabelBox {
  double left = 0, top = 0, width = 0, height = 0;  ///< pixels, y growing downwards
  [[nodiscard]] double right() const { return left + width; }
  [[nodiscard]] double bottom() const { return top + height; }
  [[nodiscard]] bool touches(const LabelBox& other) const {
    return left < other.right() && other.left < right() && top < other.bottom() && other.top < bottom();
  }
};

struct WantedLabel {
  LabelBox box;       ///< where it would like to stand
  double weight = 0;  ///< the heavier one goes first
};

/// A place for each label inside the room, in the order given: its own, or the first free one above it; none where
/// there is none. The heaviest that fits in the room always has one.
[[nodiscard]] std::vector<std::optional<LabelBox>> label_places(const std::vector<WantedLabel>& labels,
                                                                const LabelBox& room);

}  // namespace zol
