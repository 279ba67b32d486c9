#include "shell/desktop/quick_lines.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace zol {
namespace {

/// A line along its longer direction: x runs, y follows.
struct Run {
  double x1, y1, x2, y2;
};

/// Sets a pixel for each whole step along x.
/// @param along, across  pixels from one to the next in memory
void draw_run(QRgb* pixels, Run run, int length, int breadth, qsizetype along, qsizetype across, QRgb colour) {
  if (run.x1 > run.x2) run = {run.x2, run.y2, run.x1, run.y1};
  const int first = std::max(0, static_cast<int>(std::floor(run.x1)));
  const int last = std::min(length - 1, static_cast<int>(std::floor(run.x2)));
  constexpr int fraction_bits = 32;
  constexpr double one = 1LL << fraction_bits;
  const double slope = run.x2 > run.x1 ? (run.y2 - run.y1) / (run.x2 - run.x1) : 0;
  constexpr double middle = 0.5;
  const auto place = [](double y) { return static_cast<std::int64_t>(std::floor(y * one)); };
  std::int64_t y = place(run.y1 + slope * (first + middle - run.x1));
  const std::int64_t step = place(slope);
  QRgb* pixel = pixels + first * along;
  for (int x = first; x <= last; ++x, pixel += along, y += step) {
    const std::int64_t row = y >> fraction_bits;
    if (static_cast<std::uint64_t>(row) < static_cast<std::uint64_t>(breadth)) pixel[row * across] = colour;
  }
}

}  // namespace

QuickLines::QuickLines(QImage& image)
    : pixels_(reinterpret_cast<QRgb*>(image.bits())),
      width_(image.width()),
      height_(image.height()),
      row_(image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))) {}

void QuickLines::draw(const QLineF& line, QRgb colour) const {
  if (std::abs(line.dx()) >= std::abs(line.dy())) {
    draw_run(pixels_, {line.x1(), line.y1(), line.x2(), line.y2()}, width_, height_, 1, row_, colour);
  } else {
    draw_run(pixels_, {line.y1(), line.x1(), line.y2(), line.x2()}, height_, width_, row_, 1, colour);
  }
}

}  // namespace zol
