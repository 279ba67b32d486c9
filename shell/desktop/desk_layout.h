// Where windows stand on screens: only rectangles, frames included.
#pragma once

#include <optional>
#include <vector>

#include <QRect>

namespace zol {

constexpr QSize usual_frame(8, 34);  ///< of a window that has not been on the screen yet

/// Where a window that stood somewhere in an earlier run comes up: there, or moved and made smaller until it stands on
/// the screen that it covers most of; on the first one when its own is gone.
/// @param screens  their usable parts, at least one
[[nodiscard]] QRect on_screens(const QRect& kept, const std::vector<QRect>& screens);

/// Where a window comes up that another one has opened: at the side where it covers the least of that one, then the
/// least of the others.
[[nodiscard]] QRect beside(const QSize& size, const QRect& opener, const std::vector<QRect>& others, const QRect& room);

/// How narrow a window may become, with its frame, and where it stands or how large it wants to be.
struct Narrowing {
  int least_width = 0;
  QRect place;
};
struct Pair {
  QRect opener;
  QRect opened;
};
/// Where both stand side by side: each as wide as it wants while there is room, else narrower. A wide
/// opener goes to the left.
/// @returns nothing where more than half of the opener would be covered all the same
[[nodiscard]] std::optional<Pair> both_beside(const Narrowing& opener, const Narrowing& opened, const QRect& room);

/// A place in an arrangement. The windows of a page do not overlap; of the pages after the first one only a strip at
/// the top is seen.
struct Tile {
  QRect place;
  int page = 0;
};

constexpr int page_strip = 32;  // pixels, a title

/// Side by side in rows, in their order, as far as the room goes; what is left over makes pages behind.
/// @param least  the smallest size of each window; one that is larger than the room gets the room
/// @param strip  height of a title, pixels
[[nodiscard]] std::vector<Tile> arranged(const std::vector<QSize>& least, const QRect& room, int strip = page_strip);

/// The same with one more window, the last, which keeps its size: behind all others, with its title above theirs,
/// unless all have room side by side.
[[nodiscard]] std::vector<Tile> arranged_before(const QSize& last, const std::vector<QSize>& least, const QRect& room,
                                                int strip = page_strip);

}  // namespace zol
