#include "shell/services/label_places.h"

#include <algorithm>
#include <numeric>

namespace zol {
namespace {

/// The box moved into the room, sideways and downwards.
LabelBox inside(LabelBox box, const LabelBox& room) {
  box.left = std::clamp(box.left, room.left, room.right() - box.width);
  box.top = std::clamp(box.top, room.top, room.bottom() - box.height);
  return box;
}

/// The free place at or above a box, of those taken.
std::optional<LabelBox> free_place(LabelBox box, const LabelBox& room, const std::vector<LabelBox>& taken) {
  while (box.top >= room.top) {
    const auto blocker =
        std::find_if(taken.begin(), taken.end(), [&box](const LabelBox& other) { return box.touches(other); });
    if (blocker == taken.end()) return box;
    const double above = blocker->top - box.height;
    if (above >= box.top) return std::nullopt;  // a step that rounding takes away
    box.top = above;
  }
  return std::nullopt;
}

}  // namespace

std::vector<std::optional<LabelBox>> label_places(const std::vector<WantedLabel>& labels, const LabelBox& room) {
  std::vector<std::size_t> order(labels.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&labels](std::size_t a, std::size_t b) { return labels[a].weight > labels[b].weight; });
  std::vector<std::optional<LabelBox>> places(labels.size());
  std::vector<LabelBox> taken;
  for (const std::size_t i : order) {
    const LabelBox& box = labels[i].box;
    if (box.width > room.width || box.height > room.height) continue;
    places[i] = free_place(inside(box, room), room, taken);
    if (places[i]) taken.push_back(*places[i]);
  }
  return places;
}

}  // namespace zol
