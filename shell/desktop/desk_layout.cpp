#include "shell/desktop/desk_layout.h"

#include <algorithm>
#include <tuple>

namespace zol {
namespace {

qint64 area(const QRect& rect) { return qint64{rect.width()} * rect.height(); }

qint64 overlap(const QRect& one, const QRect& other) {
  const QRect both = one.intersected(other);
  return both.isEmpty() ? 0 : area(both);
}

/// A place within the room; the size has to fit.
QRect moved_into(const QRect& rect, const QRect& room) {
  const int x = std::max(room.left(), std::min(rect.left(), room.right() + 1 - rect.width()));
  const int y = std::max(room.top(), std::min(rect.top(), room.bottom() + 1 - rect.height()));
  return {QPoint(x, y), rect.size()};
}

struct Row {
  std::size_t first = 0;
  std::vector<int> widths = {};
  int height = 0;
};
using Page = std::vector<Row>;

std::vector<Row> rows_of(const std::vector<QSize>& sizes, int width) {
  std::vector<Row> rows;
  int taken = 0;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    if (rows.empty() || taken + sizes[i].width() > width) {
      rows.push_back({i});
      taken = 0;
    }
    taken += sizes[i].width();
    rows.back().widths.push_back(sizes[i].width());
    rows.back().height = std::max(rows.back().height, sizes[i].height());
  }
  return rows;
}

std::vector<Page> pages_of(const std::vector<QSize>& least, const QSize& room) {
  std::vector<QSize> sizes;
  sizes.reserve(least.size());
  for (const QSize& size : least) sizes.push_back(size.boundedTo(room));
  std::vector<Page> pages;
  int taken = 0;
  for (Row& row : rows_of(sizes, room.width())) {
    if (pages.empty() || taken + row.height > room.height()) {
      pages.emplace_back();
      taken = 0;
    }
    taken += row.height;
    pages.back().push_back(std::move(row));
  }
  return pages;
}

/// What is left goes to all alike.
void stretch(std::vector<int>& lengths, int total) {
  int left = total;
  for (const int length : lengths) left -= length;
  auto parts = static_cast<int>(lengths.size());
  for (int& length : lengths) {
    const int share = left / parts--;
    length += share;
    left -= share;
  }
}

void place_page(Page& page, int number, const QRect& room, std::vector<Tile>& tiles) {
  std::vector<int> heights;
  for (const Row& row : page) heights.push_back(row.height);
  stretch(heights, room.height());
  int y = room.top();
  for (std::size_t i = 0; i < page.size(); ++i) {
    stretch(page[i].widths, room.width());
    int x = room.left();
    for (const int width : page[i].widths) {
      tiles.push_back({{x, y, width, heights[i]}, number});
      x += width;
    }
    y += heights[i];
  }
}

}  // namespace

QRect on_screens(const QRect& kept, const std::vector<QRect>& screens) {
  const auto most = std::max_element(screens.begin(), screens.end(), [&kept](const QRect& a, const QRect& b) {
    return overlap(a, kept) < overlap(b, kept);
  });
  return moved_into({kept.topLeft(), kept.size().boundedTo(most->size())}, *most);
}

QRect beside(const QSize& size, const QRect& opener, const std::vector<QRect>& others, const QRect& room) {
  const QSize fitting = size.boundedTo(room.size());
  std::tuple<qint64, qint64> least;
  QRect best;
  for (const QPoint at :
       {QPoint(opener.right() + 1, opener.top()), QPoint(opener.left() - fitting.width(), opener.top()),
        QPoint(opener.left(), opener.bottom() + 1), QPoint(opener.left(), opener.top() - fitting.height())}) {
    const QRect place = moved_into({at, fitting}, room);
    std::tuple<qint64, qint64> covered{overlap(place, opener), 0};
    for (const QRect& other : others) std::get<1>(covered) += overlap(place, other);
    if (!best.isNull() && covered >= least) continue;
    least = covered;
    best = place;
  }
  return best;
}

std::optional<Pair> both_beside(const Narrowing& opener, const Narrowing& opened, const QRect& room) {
  const int covered = opener.least_width + opened.least_width - room.width();
  if (covered > opener.least_width / 2) return std::nullopt;
  const auto shared = [&room](const Narrowing& one, int other_width) {
    return std::min(one.place.width(), std::max(one.least_width, room.width() - other_width));
  };
  const int fair = opener.least_width + std::max(0, -covered) / 2;
  const int opened_width = shared(opened, std::min(opener.place.width(), fair));
  const int opener_width = shared(opener, opened_width);
  const bool wide = opener.place.width() > room.width() / 2;
  const bool at_left = wide || opener.place.center().x() <= room.center().x();
  const int least_left = room.left() + (at_left ? 0 : opened_width);
  const int spare = std::max(0, room.width() - opener_width - opened_width);
  const int left = std::clamp(opener.place.left(), least_left, least_left + spare);
  const QRect narrowed = moved_into({{left, opener.place.top()}, QSize(opener_width, opener.place.height())}, room);
  const int beside_it = at_left ? narrowed.right() + 1 : narrowed.left() - opened_width;
  const QSize size(opened_width, std::min(opened.place.height(), room.height()));
  return Pair{narrowed, moved_into({{beside_it, narrowed.top()}, size}, room)};
}

std::vector<Tile> arranged(const std::vector<QSize>& least, const QRect& room, int strip) {
  const auto lowered = [&room, strip](std::size_t strips) {
    return room.adjusted(0, std::min(strip * static_cast<int>(strips), room.height() / 2), 0, 0);
  };
  std::vector<Page> pages = pages_of(least, room.size());
  for (std::size_t before = 1; pages.size() > before;) {  // the strips take some of the room
    before = pages.size();
    pages = pages_of(least, lowered(before - 1).size());
  }
  std::vector<Tile> tiles;
  for (std::size_t i = 0; i < pages.size(); ++i) {
    place_page(pages[i], static_cast<int>(i), lowered(pages.size() - 1 - i), tiles);
  }
  return tiles;
}

std::vector<Tile> arranged_before(const QSize& last, const std::vector<QSize>& least, const QRect& room, int strip) {
  std::vector<QSize> all = least;
  all.push_back(last);
  auto tiles = arranged(all, room, strip);
  if (tiles.back().page > 0) {
    tiles = arranged(least, room.adjusted(0, std::min(strip, room.height() / 2), 0, 0), strip);
    tiles.push_back({room, tiles.empty() ? 0 : tiles.back().page + 1});
  }
  tiles.back().place.setSize(last.boundedTo(tiles.back().place.size()));
  return tiles;
}

}  // namespace zol
