#include "analysis/picked_lines.h"

namespace zol {

std::optional<int> unfinished_line(const PickedLines& lines) {
  for (int line = 0; line <= lines.LastLine.value(); ++line) {
    if (lines.LineDone(line) == 0) return line;
  }
  return std::nullopt;
}

LineEnd nearest_end(const PickedLines& lines, Single x, Single y) {
  const auto squared_distance = [&lines, x, y](int line, int end) {
    const double dx = double{lines.LineX(line, end)} - double{x};
    const double dy = double{lines.LineY(line, end)} - double{y};
    return to_single(dx * dx + dy * dy);
  };
  LineEnd nearest;
  Single best = squared_distance(0, 0);
  for (int line = 0; line <= lines.LastLine.value(); ++line) {
    for (int end = 0; end <= 1; ++end) {
      const Single distance = squared_distance(line, end);
      if (!(distance <= best)) continue;
      nearest = {line, end};
      best = distance;
    }
  }
  return nearest;
}

void clear_lines(PickedLines& lines) {
  for (int line = 0; line <= lines.LastLine.value(); ++line) {
    for (int end = 0; end <= 1; ++end) {
      lines.LineX(line, end) = 0;
      lines.LineY(line, end) = 0;
    }
    lines.LineDone(line) = 0;
  }
}

}  // namespace zol
