#include "spots/texture_ring.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zol {
namespace {

constexpr double turn = 2 * std::numbers::pi;
constexpr double margin_px = 0.001;  ///< for roundings to 32 bits

/// Least and largest distance from the middle of the picture along one axis, within a pixel.
std::pair<double, double> distances(int index, int pixels, double half_width) {
  const double size = 2 * half_width / pixels;
  const double one = std::abs((index - 0.5 - margin_px) * size - half_width);
  const double other = std::abs((index + 0.5 + margin_px) * size - half_width);
  const bool in_the_middle = std::abs(index - pixels / 2.0) < 0.5 + margin_px;
  return {in_the_middle ? 0 : std::min(one, other), std::max(one, other)};
}

}  // namespace

std::pair<Single, Single> TextureRing::position(double angle) const {
  return {to_single(std::sin(angle + rotation) * radius), to_single(std::cos(angle + rotation) * radius)};
}

double TextureRing::column(double x) const {
  return round_half_even((x + half_width) * (width_px / (2.0 * half_width)));
}

double TextureRing::row(double y) const {
  return round_half_even((y - half_width) * (height_px / (-2.0 * half_width)));
}

std::optional<PicturePixel> TextureRing::pixel(double column, double row) const {
  if (!(column >= 0 && column < width_px && row >= 0 && row < height_px)) return std::nullopt;
  return PicturePixel{static_cast<int>(column), static_cast<int>(row)};
}

bool TextureRing::meets(const PicturePixel& pixel) const {
  const auto [near_x, far_x] = distances(pixel.column, width_px, half_width);
  const auto [near_y, far_y] = distances(pixel.row, height_px, half_width);
  return std::hypot(near_x, near_y) <= radius && radius <= std::hypot(far_x, far_y);
}

RingSectors::RingSectors(const TextureRing& ring) : ring_(ring) {
  constexpr double to_a_pixel = 4;
  constexpr double fewest = 16;
  constexpr double most = 100000;
  const double pixels = turn * ring.radius / std::abs(2 * ring.half_width) * std::max(ring.width_px, ring.height_px);
  done_ahead_.resize(static_cast<std::size_t>(std::clamp(to_a_pixel * pixels, fewest, most)));
  width_ = turn / static_cast<double>(done_ahead_.size());
}

void RingSectors::look(int sense, const IsBlack& is_black) {
  const auto count = static_cast<int>(done_ahead_.size());
  for (int i = 0; i < count; ++i) done_ahead_[static_cast<std::size_t>(i)] = is_done(i, is_black) ? count : 0;
  // Twice round against the sense: the first time does not know what lies ahead of where it starts.
  int ahead = count;
  for (int i = 0; i < 2 * count; ++i) {
    int& here = done_ahead_[static_cast<std::size_t>((sense > 0 ? 2 * count - 1 - i : i) % count)];
    ahead = here == 0 ? 0 : std::min(ahead + 1, count);
    here = ahead;
  }
}

double RingSectors::done_from(double angle) const {
  const auto count = static_cast<double>(done_ahead_.size());
  const double turns = (angle + ring_.rotation) / turn;
  const double sector = std::min(std::floor((turns - std::floor(turns)) * count), count - 1);
  const int ahead = done_ahead_[static_cast<std::size_t>(sector)];
  if (ahead == static_cast<int>(done_ahead_.size())) return HUGE_VAL;
  return std::max(ahead - 1, 0) * width_;  // where in the first one the angle lies is left open
}

/// Looks at the pixels of the box around both ends, a little wider for the bulge between them and for roundings.
bool RingSectors::is_done(int sector, const IsBlack& is_black) const {
  constexpr double bulge_px = 0.01;
  const double across = 2 * std::abs(ring_.half_width);
  const double margin_x = bulge_px * across / std::max(ring_.width_px, 1);
  const double margin_y = bulge_px * across / std::max(ring_.height_px, 1);
  const auto [x1, y1] = ring_.position(sector * width_ - ring_.rotation);
  const auto [x2, y2] = ring_.position((sector + 1) * width_ - ring_.rotation);
  const auto [left, right] =
      std::minmax({ring_.column(std::min(x1, x2) - margin_x), ring_.column(std::max(x1, x2) + margin_x)});
  const auto [top, bottom] =
      std::minmax({ring_.row(std::min(y1, y2) - margin_y), ring_.row(std::max(y1, y2) + margin_y)});
  for (double column = left; column <= right; ++column) {
    for (double row = top; row <= bottom; ++row) {
      const auto pixel = ring_.pixel(column, row);
      if (pixel && !is_black(*pixel) && ring_.meets(*pixel)) return false;
    }
  }
  return true;
}

}  // namespace zol
