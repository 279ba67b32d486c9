#include "indexing/picture_fit.h"

#include <Eigen/Cholesky>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "indexing/vector_clones.h"

namespace zol {
namespace {

constexpr double radians = std::numbers::pi / 180;

std::size_t index(int n) { return static_cast<std::size_t>(n); }

/// A row of directions: the first and the step to the next.
struct DirectionRow {
  float x, y, z, dx, dy, dz;
};

/// Where a row of directions falls on the sphere's grid: the point below, and the parts of a step beyond it.
ZOL_VECTOR_CLONES void places_of(const DirectionRow& row, int count, float scale, float middle, int size, int* places,
                                 float* parts_x, float* parts_y) {
  for (int i = 0; i < count; ++i) {
    const auto n = static_cast<float>(i);
    const float x = row.x + n * row.dx;
    const float y = row.y + n * row.dy;
    const float z = row.z + n * row.dz;
    const float per = std::copysign(scale, z) / (std::sqrt(x * x + y * y + z * z) + std::abs(z));
    const float gx = x * per + middle;
    const float gy = y * per + middle;
    const int column = static_cast<int>(gx);
    const int line = static_cast<int>(gy);
    places[i] = line * size + column;
    parts_x[i] = gx - static_cast<float>(column);
    parts_y[i] = gy - static_cast<float>(line);
  }
}

ZOL_VECTOR_CLONES void look_up(const float* grid, int size, int count, const int* places, const float* parts_x,
                               const float* parts_y, float* values) {
  for (int i = 0; i < count; ++i) {
    const float* at = grid + places[i];
    const float upper = at[0] + parts_x[i] * (at[1] - at[0]);
    const float lower = at[size] + parts_x[i] * (at[size + 1] - at[size]);
    values[i] = upper + parts_y[i] * (lower - upper);
  }
}

/// Sums of a row of a picture and the measured one.
struct PictureSums {
  float computed = 0, square = 0, product = 0;
};

ZOL_VECTOR_CLONES void add_row(const float* measured, const float* computed, const float* mask, int count,
                               PictureSums& sums) {
  float sum = 0;
  float square = 0;
  float product = 0;
#pragma omp simd reduction(+ : sum, square, product)
  for (int i = 0; i < count; ++i) {
    const float value = computed[i] * mask[i];
    sum += value;
    square += value * value;
    product += value * measured[i];
  }
  sums.computed = sum;
  sums.square = square;
  sums.product = product;
}

constexpr int most_parameters = 6;

/// How the computed picture changes along a row, a line of values for each parameter.
struct SlopeRow {
  const float *above, *here, *below, *mask;
  float x, dx, y, distance;  ///< gnomonic coordinates of the first pixel, the step, and pixels per unit
};

ZOL_VECTOR_CLONES void slopes_of(const SlopeRow& row, int count, bool centre, float* slopes, int stride) {
  const float y = row.y;
  for (int i = 0; i < count; ++i) {
    const float x = row.x + static_cast<float>(i) * row.dx;
    const float sx = 0.5F * (row.here[i + 1] - row.here[i - 1]) * row.mask[i];
    const float sy = 0.5F * (row.below[i] - row.above[i]) * row.mask[i];
    const float gx = sx * row.distance;
    const float gy = sy * row.distance;
    slopes[i] = -(gx * x * y + gy * (1 + y * y));
    slopes[i + stride] = gx * (1 + x * x) + gy * x * y;
    slopes[i + 2 * stride] = gy * x - gx * y;
    if (centre) {
      slopes[i + 3 * stride] = -sx;
      slopes[i + 4 * stride] = -sy;
      slopes[i + 5 * stride] = -(sx * x + sy * y);
    }
  }
}

ZOL_VECTOR_CLONES float dot(const float* a, const float* b, int count) {
  float sum = 0;
#pragma omp simd reduction(+ : sum)
  for (int i = 0; i < count; ++i) sum += a[i] * b[i];
  return sum;
}

ZOL_VECTOR_CLONES float total(const float* a, int count) {
  float sum = 0;
#pragma omp simd reduction(+ : sum)
  for (int i = 0; i < count; ++i) sum += a[i];
  return sum;
}

}  // namespace

void PictureFitter::take(const PreparedPicture& picture) {
  picture_ = &picture;
  const int w = picture.width();
  const int h = picture.height();
  const std::size_t size = index(w) * index(h);
  if (shape_version_ != picture.shape_version()) {
    shape_version_ = picture.shape_version();
    computed_.resize(size);
    measured_.resize(size);
    // The frame of one pixel has no slopes, it takes no part.
    mask_ = picture.mask();
    for (int y = 0; y < h; ++y) {
      for (int x = 0; x < w; ++x) {
        if (x == 0 || y == 0 || x == w - 1 || y == h - 1) mask_[index(y) * index(w) + index(x)] = 0;
      }
    }
    places_.resize(index(w));
    parts_.resize(2 * index(w));
    slopes_.resize(most_parameters * index(w));
  }
  double sum = 0;
  count_ = 0;
  for (std::size_t i = 0; i < size; ++i) {
    sum += static_cast<double>(picture.values()[i] * mask_[i]);
    count_ += static_cast<double>(mask_[i]);
  }
  const auto mean = static_cast<float>(sum / count_);
  double square = 0;
  for (std::size_t i = 0; i < size; ++i) {
    measured_[i] = (picture.values()[i] - mean) * mask_[i];
    square += static_cast<double>(measured_[i] * measured_[i]);
  }
  norm_ = std::sqrt(square);
}

void draw_bands(const KinematicSphere& sphere, const Rotation& crystal_from_picture, const Projection& projection,
                int width, int height, std::vector<float>& values) {
  values.resize(index(width) * index(height));
  std::vector<int> places(index(width));
  std::vector<float> parts(2 * index(width));
  draw_bands(sphere, crystal_from_picture, projection, {values.data(), width, height}, places.data(), parts.data());
}

void draw_bands(const KinematicSphere& sphere, const Rotation& crystal_from_picture, const Projection& projection,
                const BandPicture& picture, int* places, float* parts) {
  const Vector3 step = crystal_from_picture.col(0) / projection.distance();
  for (int y = 0; y < picture.height; ++y) {
    const Vector3 first = crystal_from_picture * projection.direction(0.5, y + 0.5);
    const DirectionRow row{static_cast<float>(first[0]), static_cast<float>(first[1]), static_cast<float>(first[2]),
                           static_cast<float>(step[0]),  static_cast<float>(step[1]),  static_cast<float>(step[2])};
    places_of(row, picture.width, sphere.scale(), sphere.middle(), sphere.size(), places, parts, parts + picture.width);
    look_up(sphere.values().data(), sphere.size(), picture.width, places, parts, parts + picture.width,
            picture.values + index(y) * index(picture.width));
  }
}

double PictureFitter::correlation(const KinematicSphere& sphere, const Rotation& crystal_from_picture,
                                  const PatternCentre& centre) {
  draw(sphere, crystal_from_picture, picture_->projection(centre));
  return correlate();
}

void PictureFitter::draw(const KinematicSphere& sphere, const Rotation& crystal_from_picture,
                         const Projection& projection) {
  draw_bands(sphere, crystal_from_picture, projection, {computed_.data(), picture_->width(), picture_->height()},
             places_.data(), parts_.data());
}

double PictureFitter::correlate() {
  const int w = picture_->width();
  sums_ = {};
  for (int y = 1; y + 1 < picture_->height(); ++y) {
    const std::size_t start = index(y) * index(w);
    PictureSums row;
    add_row(&measured_[start], &computed_[start], &mask_[start], w, row);
    sums_.computed += static_cast<double>(row.computed);
    sums_.square += static_cast<double>(row.square);
    sums_.product += static_cast<double>(row.product);
  }
  const double variance = sums_.square - sums_.computed * sums_.computed / count_;
  return variance > 0 && norm_ > 0 ? sums_.product / (norm_ * std::sqrt(variance)) : 0;
}

void PictureFitter::linearise(const Projection& projection, int parameters, Normal& normal, Parameters& right) {
  const int w = picture_->width();
  normal.setZero();
  right.setZero();
  Parameters sum = Parameters::Zero();
  Parameters along = Parameters::Zero();
  const int count = w - 2;
  const int stride = w;
  for (int y = 1; y + 1 < picture_->height(); ++y) {
    const std::size_t start = index(y) * index(w) + 1;
    const Vector3 first = projection.direction(1.5, y + 0.5);
    const SlopeRow row{&computed_[start - index(w)], &computed_[start],
                       &computed_[start + index(w)], &mask_[start],
                       static_cast<float>(first[0]), static_cast<float>(1 / projection.distance()),
                       static_cast<float>(first[1]), static_cast<float>(projection.distance())};
    slopes_of(row, count, parameters > 3, slopes_.data(), stride);
    for (int p = 0; p < parameters; ++p) {
      const float* slope = &slopes_[index(p * stride)];
      sum[p] += static_cast<double>(total(slope, count));
      along[p] += static_cast<double>(dot(slope, &computed_[start], count));
      right[p] += static_cast<double>(dot(slope, &measured_[start], count));
      for (int q = p; q < parameters; ++q) {
        normal(p, q) += static_cast<double>(dot(slope, &slopes_[index(q * stride)], count));
      }
    }
  }
  // What only changes the mean or the contrast of the computed picture is of no account.
  const double mean = sums_.computed / count_;
  const double variance = sums_.square - sums_.computed * mean;
  const double share = sums_.product / variance;
  for (int p = 0; p < parameters; ++p) along[p] -= mean * sum[p];
  for (int p = 0; p < parameters; ++p) {
    for (int q = p; q < parameters; ++q) {
      normal(p, q) -= sum[p] * sum[q] / count_ + along[p] * along[q] / variance;
      normal(q, p) = normal(p, q);
    }
    right[p] = (right[p] - share * along[p]) / share;
  }
}

PictureFit PictureFitter::fit(const KinematicSphere& sphere, const Rotation& start, const PatternCentre& centre,
                              const FitSettings& settings) {
  const int parameters = settings.centre ? 6 : 3;
  PictureFit best{start, centre, -1, 0, {}};
  Rotation rotation = start;
  PatternCentre at = centre;
  Parameters step = Parameters::Zero();
  Normal normal;
  Parameters right;
  double damping = 1;
  for (int round = 0; round <= settings.most_steps; ++round) {
    const Projection projection = picture_->projection(at);
    draw(sphere, rotation, projection);
    const double found = correlate();
    if (round > 0 && found <= best.correlation) {
      damping *= 0.4;  // too far: back, and a shorter step
      if (damping < 0.05) break;
    } else {
      const double gain = found - best.correlation;
      best.crystal_from_picture = rotation;
      best.centre = at;
      best.correlation = found;
      damping = std::min(1.0, damping * 2);
      if (found <= 0 || (round > 0 && gain < 1e-7)) break;
      if (round == settings.most_steps) break;
      linearise(projection, parameters, normal, right);
      step.setZero();
      const auto block = normal.topLeftCorner(parameters, parameters);
      step.head(parameters) = block.ldlt().solve(right.head(parameters));
      if (!step.allFinite()) break;
      const double turn = step.head(3).norm();
      const double most = settings.most_turn_deg * radians;
      if (turn > most) step *= most / turn;
      const double spread = norm_ * norm_ * (1 - found * found) / count_;
      const double contrast = sums_.product / (sums_.square - sums_.computed * sums_.computed / count_);
      const auto inverse = block.inverse().eval();
      for (int p = 0; p < parameters; ++p) {
        best.errors[index(p)] =
            std::sqrt(std::max(0.0, spread * inverse(p, p))) / contrast / (p < 3 ? radians : projection.width);
      }
    }
    const Parameters taken = damping * step;
    rotation = best.crystal_from_picture * rotation_of(taken.head(3));
    at = best.centre;
    at.x += taken[3] / projection.width;
    at.y += taken[4] / projection.width;
    at.z += taken[5] / projection.width;
    best.steps = round + 1;
    if (damping == 1 && taken.head(3).norm() < settings.least_turn_deg * radians &&
        taken.tail(3).norm() / projection.width < settings.least_turn_deg * radians) {
      best.crystal_from_picture = rotation;
      best.centre = at;
      break;
    }
    if (!(at.z > 0.05)) break;
  }
  return best;
}

}  // namespace zol
