#include "indexing/picture_fit.h"

#include <Eigen/Cholesky>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "indexing/units.h"
#include "indexing/vector_clones.h"

namespace zol {
namespace {

/// A row of directions: the first and the step to the next.
struct DirectionRow {
  float x, y, z, dx, dy, dz;
};

/// Where a row of directions falls on the sphere's grid: the point below, and the parts of a step beyond it.
ZOL_VECTOR_CLONES void places_of(const DirectionRow& row, int count, float scale, float middle, int size, int opposite,
                                 int* places, float* parts_x, float* parts_y) {
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
    places[i] = line * size + column + (z < 0 ? opposite : 0);
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

/// Sums of a piece of a picture and the measured one.
struct PictureSums {
  float computed = 0, square = 0, product = 0;
};

ZOL_VECTOR_CLONES void add_piece(const float* measured, const float* computed, const float* mask, int count,
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

/// Pixels that are added up as float before a double takes their sum: few enough to stay exact, and several rows, so
/// that little is lost at the ends. The frame between two rows adds nothing: mask and slopes are 0 there.
constexpr int piece_size = 512;

/// Calls work(start, count) for all pieces of the rows between the first and the last.
template <class Work>
void for_each_piece(int width, int height, const Work& work) {
  const int end = width * (height - 1);
  for (int start = width; start < end; start += piece_size) work(index(start), std::min(piece_size, end - start));
}

constexpr int most_parameters = 6;
constexpr double least_distance = 0.05;  ///< of the specimen, in widths
constexpr double most_damping = 1000;

/// How the computed picture changes along a row, a line of values for each parameter.
struct SlopeRow {
  const float *above, *here, *below, *mask;
  float x, dx, y, distance;  ///< gnomonic coordinates of the first pixel, the step, and pixels per unit
};

ZOL_VECTOR_CLONES void slopes_of(const SlopeRow& row, int count, float* slopes, int stride) {
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
    even_.shape(w, h, picture.mask(), picture.background_radius());
    places_.resize(index(w));
    parts_.resize(2 * index(w));
    slopes_.assign(most_parameters * size, 0);
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

namespace {

void draw_row(const KinematicSphere& sphere, const Rotation& crystal_from_picture, const Projection& projection,
              const BandPicture& picture, int y, int* places, float* parts) {
  const Vector3 step = crystal_from_picture.col(0) / projection.distance();
  const Vector3 first = crystal_from_picture * projection.direction(0.5, y + 0.5);
  const DirectionRow row{static_cast<float>(first[0]), static_cast<float>(first[1]), static_cast<float>(first[2]),
                         static_cast<float>(step[0]),  static_cast<float>(step[1]),  static_cast<float>(step[2])};
  places_of(row, picture.width, sphere.scale(), sphere.middle(), sphere.size(), sphere.opposite(), places, parts,
            parts + picture.width);
  look_up(sphere.values().data(), sphere.size(), picture.width, places, parts, parts + picture.width,
          picture.values + index(y) * index(picture.width));
}

}  // namespace

void draw_bands(const KinematicSphere& sphere, const Rotation& crystal_from_picture, const Projection& projection,
                int width, int height, std::vector<float>& values, Task& task) {
  values.clear();
  values.reserve(index(width) * index(height));
  std::vector<int> places(index(width));
  std::vector<float> parts(2 * index(width));
  for (int y = 0; y < height; ++y) {
    task.check();
    values.resize(index(width) * (index(y) + 1));
    draw_row(sphere, crystal_from_picture, projection, {values.data(), width, height}, y, places.data(), parts.data());
  }
}

void draw_bands(const KinematicSphere& sphere, const Rotation& crystal_from_picture, const Projection& projection,
                const BandPicture& picture, int* places, float* parts) {
  for (int y = 0; y < picture.height; ++y) {
    draw_row(sphere, crystal_from_picture, projection, picture, y, places, parts);
  }
}

double PictureFitter::correlation(const KinematicSphere& sphere, const Rotation& crystal_from_picture,
                                  const PatternCentre& centre) {
  draw(sphere, {crystal_from_picture, centre});
  return correlate();
}

void PictureFitter::draw(const KinematicSphere& sphere, const Place& place) {
  draw_bands(sphere, place.crystal_from_picture, picture_->projection(place.centre),
             {computed_.data(), picture_->width(), picture_->height()}, places_.data(), parts_.data());
  if (evened_) (void)even_.even(computed_);
}

double PictureFitter::correlate() {
  sums_ = {};
  for_each_piece(picture_->width(), picture_->height(), [this](std::size_t start, int count) {
    PictureSums piece;
    add_piece(&measured_[start], &computed_[start], &mask_[start], count, piece);
    sums_.computed += static_cast<double>(piece.computed);
    sums_.square += static_cast<double>(piece.square);
    sums_.product += static_cast<double>(piece.product);
  });
  const double variance = sums_.square - sums_.computed * sums_.computed / count_;
  return variance > 0 && norm_ > 0 ? sums_.product / (norm_ * std::sqrt(variance)) : 0;
}

/// By the slopes of the computed picture itself: quick, and good enough where rotation alone is free.
void PictureFitter::slopes_from_picture(const Projection& projection) {
  const int w = picture_->width();
  for (int y = 1; y + 1 < picture_->height(); ++y) {
    const std::size_t start = index(y) * index(w) + 1;
    const Vector3 first = projection.direction(1.5, y + 0.5);
    const SlopeRow row{&computed_[start - index(w)], &computed_[start],
                       &computed_[start + index(w)], &mask_[start],
                       static_cast<float>(first[0]), static_cast<float>(1 / projection.distance()),
                       static_cast<float>(first[1]), static_cast<float>(projection.distance())};
    slopes_of(row, w - 2, &slopes_[start], static_cast<int>(computed_.size()));
  }
}

/// By pictures to both sides: rotation and centre do nearly the same, so that their small difference must be exact.
void PictureFitter::slopes_from_draws(const KinematicSphere& sphere, const Place& place, int parameters) {
  constexpr double turn = 0.1 * radians;
  kept_ = computed_;
  const double shift = turn * picture_->projection(place.centre).distance();
  // What evens a picture hardly changes with a small step.
  const bool evened = std::exchange(evened_, false);
  if (evened) gain_ = even_.gain();
  for (int p = 0; p < parameters; ++p) {
    Parameters step = Parameters::Zero();
    const double size = p < 3 ? turn : shift;
    step[p] = size;
    draw(sphere, moved(place, step));
    float* slope = &slopes_[index(p) * kept_.size()];
    std::copy(computed_.begin(), computed_.end(), slope);
    draw(sphere, moved(place, -step));
    const auto per = static_cast<float>(0.5 / size);
    for (std::size_t i = 0; i < kept_.size(); ++i) slope[i] = (slope[i] - computed_[i]) * per * mask_[i];
    for (std::size_t i = 0; evened && i < kept_.size(); ++i) slope[i] *= gain_[i];
  }
  evened_ = evened;
  std::swap(computed_, kept_);
}

void PictureFitter::sum_up(int parameters, Normal& normal, Parameters& right) const {
  normal.setZero();
  right.setZero();
  Parameters sum = Parameters::Zero();
  Parameters along = Parameters::Zero();
  for_each_piece(picture_->width(), picture_->height(), [&](std::size_t start, int count) {
    for (int p = 0; p < parameters; ++p) {
      const float* slope = &slopes_[index(p) * computed_.size() + start];
      sum[p] += static_cast<double>(total(slope, count));
      along[p] += static_cast<double>(dot(slope, &computed_[start], count));
      right[p] += static_cast<double>(dot(slope, &measured_[start], count));
      for (int q = p; q < parameters; ++q) {
        normal(p, q) += static_cast<double>(dot(slope, &slopes_[index(q) * computed_.size() + start], count));
      }
    }
  });
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

PictureFitter::Place PictureFitter::moved(const Place& place, const Parameters& step) const {
  const double width = picture_->projection(place.centre).width;
  return {place.crystal_from_picture * rotation_of(step.head(3)),
          {place.centre.x + step[3] / width, place.centre.y + step[4] / width, place.centre.z + step[5] / width}};
}

PictureFit PictureFitter::fit(const KinematicSphere& sphere, const Rotation& start, const PatternCentre& centre,
                              const FitSettings& settings) {
  const int parameters = settings.centre ? most_parameters : 3;
  evened_ = settings.evened;
  Place place{start, centre};
  draw(sphere, place);
  PictureFit best{start, centre, correlate(), 0, {}};
  Normal normal;
  Parameters right;
  // Rotations do little to each other, so that what overshoots is halved. The centre does nearly what rotations do:
  // there the damping has to be felt for.
  const double first_damping = settings.centre ? 1e-2 : 1;
  double damping = settings.centre ? 1e-3 : 0;
  bool fresh = true;  // whether the sums are to be made anew
  while (best.correlation > 0 && best.steps < settings.most_steps) {
    if (fresh) {
      if (settings.centre || settings.evened) {
        slopes_from_draws(sphere, place, parameters);
      } else {
        slopes_from_picture(picture_->projection(place.centre));
      }
      sum_up(parameters, normal, right);
      note_errors(parameters, normal, best);
    }
    Parameters step = Parameters::Zero();
    Normal damped = normal;
    damped.diagonal() *= 1 + damping;
    step.head(parameters) = damped.topLeftCorner(parameters, parameters).ldlt().solve(right.head(parameters));
    if (!step.allFinite()) break;
    const double turn = step.head(3).norm() / radians;
    if (turn > settings.most_turn_deg) step *= settings.most_turn_deg / turn;
    const Place trial = moved(place, step);
    if (!(trial.centre.z > least_distance)) break;
    draw(sphere, trial);
    const double found = correlate();
    ++best.steps;
    const double size = std::max(turn, step.tail(3).norm() / picture_->projection(place.centre).distance() / radians);
    fresh = found > best.correlation;
    if (fresh) {
      place = trial;
      best.crystal_from_picture = place.crystal_from_picture;
      best.centre = place.centre;
      best.correlation = found;
      damping = damping > 1e-4 ? damping / 5 : 0;
    } else {
      damping = std::max(damping * 10, first_damping);
    }
    if (size < settings.least_turn_deg || damping > most_damping) break;
  }
  evened_ = false;
  return best;
}

/// Standard errors of the parameters from what the computed picture does not explain.
void PictureFitter::note_errors(int parameters, const Normal& normal, PictureFit& fit) const {
  const double spread = norm_ * norm_ * (1 - fit.correlation * fit.correlation) / count_;
  const double contrast = sums_.product / (sums_.square - sums_.computed * sums_.computed / count_);
  const auto inverse = normal.topLeftCorner(parameters, parameters).inverse().eval();
  for (int p = 0; p < parameters; ++p) {
    fit.errors[index(p)] = std::sqrt(std::max(0.0, spread * inverse(p, p))) / contrast /
                           (p < 3 ? radians : picture_->projection(fit.centre).width);
  }
}

}  // namespace zol
