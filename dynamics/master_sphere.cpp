#include "dynamics/master_sphere.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

namespace zol {
namespace {

constexpr int sphere_size = 801;
constexpr double step_width = 2.0 / sphere_size;  ///< of the canvas, in radii of the projected equator

/// A half of the sphere in stereographic projection with so much beyond the equator that it can be smoothed. The
/// projection keeps angles, so that a small round spot stays round; its size grows by half of 1 + r^2.
class Canvas {
 public:
  Canvas(const MasterPattern& master, bool south, double blur, Task& task)
      : south_(south), half_(static_cast<int>(1 / step_width) + reach(blur) + 4) {
    for (int y = -half_; y <= half_; ++y) {
      task.check();
      for (int x = -half_; x <= half_; ++x) values_.push_back(static_cast<float>(master.at(direction(x, y))));
    }
    smooth(blur, true, task);
    smooth(blur, false, task);
  }
  [[nodiscard]] double at(const Vector3& d) const {
    const double per = 1 / ((1 + std::abs(d[2])) * step_width);
    const double x = std::clamp(d[0] * per + half_, 0.0, 2.0 * half_ - 1);
    const double y = std::clamp(d[1] * per + half_, 0.0, 2.0 * half_ - 1);
    const int column = std::min(static_cast<int>(x), 2 * half_ - 1);
    const int row = std::min(static_cast<int>(y), 2 * half_ - 1);
    const auto value = [&](int right, int down) {
      return static_cast<double>(values_[index(column + right, row + down)]);
    };
    const double upper = value(0, 0) + (x - column) * (value(1, 0) - value(0, 0));
    const double lower = value(0, 1) + (x - column) * (value(1, 1) - value(0, 1));
    return upper + (y - row) * (lower - upper);
  }

 private:
  /// Steps at the equator, where the spot is widest.
  static int reach(double blur) { return static_cast<int>(std::ceil(3 * blur / step_width)); }
  [[nodiscard]] std::size_t index(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(2 * half_ + 1) + static_cast<std::size_t>(column);
  }
  [[nodiscard]] GridDirection direction(int column, int row) const {
    const double x = column * step_width;
    const double y = row * step_width;
    const double square = x * x + y * y;
    const double z = (1 - square) / (1 + square);
    return {2 * x / (1 + square), 2 * y / (1 + square), south_ ? -z : z};
  }
  void smooth(double blur, bool along_rows, Task& task) {
    if (!(blur > 0)) return;
    const std::vector<float> before = values_;
    const int last = 2 * half_;
    std::vector<double> weights;
    for (int row = 0; row <= last; ++row) {
      task.check();
      for (int column = 0; column <= last; ++column) {
        const double square = (std::pow(column - half_, 2) + std::pow(row - half_, 2)) * step_width * step_width;
        const double width = blur / step_width * std::min(1.0, (1 + square) / 2);
        const int most = static_cast<int>(std::ceil(3 * width));
        double sum = 0;
        double all = 0;
        for (int shift = -most; shift <= most; ++shift) {
          const int x = along_rows ? std::clamp(column + shift, 0, last) : column;
          const int y = along_rows ? row : std::clamp(row + shift, 0, last);
          const double weight = std::exp(-shift * shift / (2 * width * width));
          sum += weight * static_cast<double>(before[index(x, y)]);
          all += weight;
        }
        values_[index(column, row)] = static_cast<float>(sum / all);
      }
    }
  }

  bool south_;
  int half_;
  std::vector<float> values_;
};

bool same_by_inversion(const MasterPattern& master) {
  const auto& [north, south] = master.patterns.front();
  const double mean = std::accumulate(north.begin(), north.end(), 0.0) / static_cast<double>(north.size());
  double difference = 0;
  double contrast = 0;
  // The opposite of a point is that of the other half with both coordinates reversed.
  for (std::size_t i = 0; i < north.size(); ++i) {
    const auto here = static_cast<double>(north[i]);
    difference += std::pow(here - static_cast<double>(south[south.size() - 1 - i]), 2);
    contrast += std::pow(here - mean, 2);
  }
  constexpr double rounding = 1e-4;
  return difference <= rounding * contrast;
}

}  // namespace

std::shared_ptr<const KinematicSphere> master_sphere(const MasterPattern& master, double blur_deg, Task& task) {
  const double blur = blur_deg * std::numbers::pi / 180;
  const bool inversion = same_by_inversion(master);
  const Canvas north(master, false, blur, task);
  const Canvas south(master, true, inversion ? 0 : blur, task);
  const auto& halves = master.patterns.front();
  // Points of the square grid stand for the same area each.
  const auto sum = [](const std::vector<float>& values) { return std::accumulate(values.begin(), values.end(), 0.0); };
  const double mean = (sum(halves.north) + sum(halves.south)) / static_cast<double>(2 * halves.north.size());
  return std::make_shared<const KinematicSphere>(
      [&](const Vector3& d) {
        if (inversion) return north.at(d[2] < 0 ? -d : d) - mean;
        return (d[2] < 0 ? south : north).at(d) - mean;
      },
      sphere_size, inversion, task);
}

double fitted_pixel_deg(int picture_width, double distance) {
  constexpr int gathered = 128;
  return std::atan(1 / (distance * std::min(picture_width, gathered))) * 180 / std::numbers::pi;
}

double fitted_blur_deg(double pixel_deg) {
  constexpr double blur_of_pixel = 0.14;
  return blur_of_pixel * pixel_deg;
}

void suit_to_pixels(MasterSettings& settings, const DynamicCrystal& crystal, double pixel_deg) {
  constexpr double coarse_deg = 0.75;
  constexpr double coarse_spacing = 0.5;
  if (pixel_deg > coarse_deg) {
    settings.smallest_spacing = std::max(coarse_spacing, master_choice(crystal, settings).smallest_spacing);
  }
}

}  // namespace zol
