#include "indexing/band_detection.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <tuple>

#include "indexing/units.h"
#include "indexing/vector_clones.h"

namespace zol {
namespace {

constexpr double first_azimuth = -std::numbers::pi / 4;

/// Adds a row to the line of sums at an offset of whole bins and a part of one.
ZOL_VECTOR_CLONES void add_shifted(const float* row, int count, float part, float* sums) {
  const float rest = 1 - part;
  sums[0] += rest * row[0];
  for (int i = 1; i < count; ++i) sums[i] += rest * row[i] + part * row[i - 1];
  sums[count] += part * row[count - 1];
}

/// A line of sums up to each place, read between places.
struct Box {
  int below;
  float part;
  explicit Box(double place)
      : below(static_cast<int>(std::floor(place))), part(static_cast<float>(place - std::floor(place))) {}
};

/// For each place the contrast of a band of some width about it, where it is above what stands there.
ZOL_VECTOR_CLONES void contrast(const float* values, const float* lengths, int count, const Box& outer_low,
                                const Box& inner_low, const Box& inner_high, const Box& outer_high, float least_length,
                                unsigned char width, float* responses, unsigned char* widths) {
  const auto at = [](const float* sums, const Box& box, int i) {
    const float low = sums[i + box.below];
    return low + box.part * (sums[i + box.below + 1] - low);
  };
  for (int i = 0; i < count; ++i) {
    const float v0 = at(values, outer_low, i);
    const float v1 = at(values, inner_low, i);
    const float v2 = at(values, inner_high, i);
    const float v3 = at(values, outer_high, i);
    const float l0 = at(lengths, outer_low, i);
    const float l1 = at(lengths, inner_low, i);
    const float l2 = at(lengths, inner_high, i);
    const float l3 = at(lengths, outer_high, i);
    const float inside = l2 - l1 + 1e-6F;
    const float outside = l3 - l2 + (l1 - l0) + 1e-6F;
    const float mean_in = (v2 - v1) / inside;
    const float mean_out = (v3 - v2 + (v1 - v0)) / outside;
    const float lesser = std::min(l3 - l2, l1 - l0);
    const float found = (mean_in - mean_out) * std::sqrt(inside * outside / (inside + outside));
    const bool better = inside >= least_length && lesser >= 0.25F * least_length && found > responses[i];
    responses[i] = better ? found : responses[i];
    widths[i] = better ? width : widths[i];
  }
}

void transpose(const std::vector<float>& image, int width, int height, std::vector<float>& to) {
  to.resize(image.size());
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      to[index(x) * index(height) + index(y)] = image[index(y) * index(width) + index(x)];
    }
  }
}

/// Place of the top of a parabola through three points at -1, 0, 1.
double top_between(double before, double here, double behind) {
  const double bend = before - 2 * here + behind;
  return bend < 0 ? std::clamp(0.5 * (before - behind) / bend, -0.5, 0.5) : 0;
}

}  // namespace

Vector3 DetectedBand::normal() const {
  return {std::cos(azimuth_rad) * std::cos(distance_rad), std::sin(azimuth_rad) * std::cos(distance_rad),
          -std::sin(distance_rad)};
}

/// Sums of an image along the lines of one azimuth. A line is x + slope y = constant, or y + slope x where the normal
/// is nearer to y; both take whole rows at a time, shifted by a part of a pixel.
void BandDetection::transform(const std::vector<float>& image, const std::vector<float>& transposed, int azimuth,
                              float* sums) const {
  const double angle = first_azimuth + azimuth * std::numbers::pi / azimuths_;
  const bool along_x = angle < std::numbers::pi / 4;
  const double slope = along_x ? std::tan(angle) : 1 / std::tan(angle);
  const int count = along_x ? width_ : height_;
  const int rows = along_x ? height_ : width_;
  const std::vector<float>& source = along_x ? image : transposed;
  const double middle = (bins_ - 1) / 2.0 - (count - 1) / 2.0;
  std::fill(sums, sums + bins_, 0.0F);
  for (int row = 0; row < rows; ++row) {
    const double shift = (row - (rows - 1) / 2.0) * slope + middle;
    const double whole = std::floor(shift);
    add_shifted(&source[index(row) * index(count)], count, static_cast<float>(shift - whole),
                sums + static_cast<int>(whole));
  }
}

void BandDetection::plan(const PreparedPicture& picture, const DetectionSettings& settings) {
  if (shape_version_ == picture.shape_version() && azimuths_ == settings.azimuths) return;
  shape_version_ = picture.shape_version();
  azimuths_ = settings.azimuths;
  width_ = picture.width();
  height_ = picture.height();
  bins_ = width_ + height_ + 4;
  sums_.resize(index(azimuths_) * index(bins_));
  lengths_.resize(sums_.size());
  transpose(picture.mask(), width_, height_, transposed_);
  for (int azimuth = 0; azimuth < azimuths_; ++azimuth) {
    transform(picture.mask(), transposed_, azimuth, &lengths_[index(azimuth) * index(bins_)]);
  }
}

/// From bins of the sums to equal steps of the angle between plane and screen normal, summed up from the first.
void BandDetection::lay_out(const Projection& projection) {
  const double px = projection.x0() - width_ / 2.0;
  const double py = projection.y0() - height_ / 2.0;
  const double z = projection.distance();
  const double reach = std::hypot(width_ / 2.0 + std::abs(px), height_ / 2.0 + std::abs(py));
  place_step_ = 0.8 / z;
  const int half = static_cast<int>(std::ceil(std::atan(reach / z) / place_step_));
  places_ = 2 * half + 1;
  const std::size_t line = index(places_) + 1;
  value_sum_.resize(index(azimuths_) * line);
  length_sum_.resize(value_sum_.size());
  tangents_.resize(index(places_));
  for (int place = 0; place < places_; ++place) {
    tangents_[index(place)] = static_cast<float>(z * std::tan((place - half) * place_step_));
  }
  for (int azimuth = 0; azimuth < azimuths_; ++azimuth) {
    const double angle = first_azimuth + azimuth * std::numbers::pi / azimuths_;
    const double cosine = std::max(std::cos(angle), std::sin(angle));
    const auto per_bin = static_cast<float>(1 / cosine);
    const auto start = static_cast<float>((px * std::cos(angle) + py * std::sin(angle)) / cosine + (bins_ - 1) / 2.0);
    const float* sums = &sums_[index(azimuth) * index(bins_)];
    const float* lengths = &lengths_[index(azimuth) * index(bins_)];
    float* value_sum = &value_sum_[index(azimuth) * line];
    float* length_sum = &length_sum_[index(azimuth) * line];
    float value = 0;
    float length = 0;
    for (int place = 0; place < places_; ++place) {
      value_sum[place] = value;
      length_sum[place] = length;
      const float bin = tangents_[index(place)] * per_bin + start;
      if (bin < 0 || bin >= static_cast<float>(bins_ - 1)) continue;
      const int below = static_cast<int>(bin);
      const float part = bin - static_cast<float>(below);
      value += sums[below] + part * (sums[below + 1] - sums[below]);
      length += lengths[below] + part * (lengths[below + 1] - lengths[below]);
    }
    value_sum[places_] = value;
    length_sum[places_] = length;
  }
}

void BandDetection::filter(const DetectionSettings& settings) {
  half_widths_ = settings.half_widths;
  if (half_widths_.empty()) half_widths_ = {0.6 * radians, 0.9 * radians, 1.3 * radians, 1.9 * radians, 2.8 * radians};
  const std::size_t line = index(places_) + 1;
  responses_.assign(index(azimuths_) * index(places_), 0.0F);
  widths_.assign(responses_.size(), 0);
  for (std::size_t w = 0; w < half_widths_.size(); ++w) {
    const double half = std::max(half_widths_[w] / place_step_, 0.75);
    const double outer = half + std::max(0.8 * half, 1.0);
    const int margin = static_cast<int>(std::ceil(outer)) + 1;
    if (2 * margin >= places_) break;
    const auto least = static_cast<float>(2 * half * 0.3 * std::min(width_, height_));
    for (int azimuth = 0; azimuth < azimuths_; ++azimuth) {
      const std::size_t start = index(azimuth) * line + index(margin);
      const std::size_t place = index(azimuth) * index(places_) + index(margin);
      contrast(&value_sum_[start], &length_sum_[start], places_ - 2 * margin, Box(0.5 - outer), Box(0.5 - half),
               Box(0.5 + half), Box(0.5 + outer), least, static_cast<unsigned char>(w), &responses_[place],
               &widths_[place]);
    }
  }
}

/// Behind the last azimuth the first comes again, turned over.
float BandDetection::response(int azimuth, int place) const {
  if (azimuth < 0) return response(azimuth + azimuths_, places_ - 1 - place);
  if (azimuth >= azimuths_) return response(azimuth - azimuths_, places_ - 1 - place);
  return responses_[index(azimuth) * index(places_) + index(place)];
}

void BandDetection::pick(const DetectionSettings& settings) {
  candidates_.clear();
  const double azimuth_step = std::numbers::pi / azimuths_;
  const int half = (places_ - 1) / 2;
  for (int azimuth = 0; azimuth < azimuths_; ++azimuth) {
    for (int place = 1; place + 1 < places_; ++place) {
      const float here = response(azimuth, place);
      if (here <= 0) continue;
      bool highest = true;
      for (int da = -1; da <= 1 && highest; ++da) {
        for (int dp = -1; dp <= 1; ++dp) {
          if ((da != 0 || dp != 0) && response(azimuth + da, place + dp) > here) {
            highest = false;
            break;
          }
        }
      }
      if (!highest) continue;
      const auto h = static_cast<double>(here);
      const auto near = [this, azimuth, place](int da, int dp) {
        return static_cast<double>(response(azimuth + da, place + dp));
      };
      DetectedBand band;
      band.azimuth_rad = first_azimuth + (azimuth + top_between(near(-1, 0), h, near(1, 0))) * azimuth_step;
      band.distance_rad = (place - half + top_between(near(0, -1), h, near(0, 1))) * place_step_;
      band.half_width_rad = half_widths_[widths_[index(azimuth) * index(places_) + index(place)]];
      band.strength = h;
      candidates_.push_back(band);
    }
  }
  // A stable sort would need memory; equal ones go by their place.
  std::sort(candidates_.begin(), candidates_.end(), [](const DetectedBand& a, const DetectedBand& b) {
    return std::tie(b.strength, a.azimuth_rad, a.distance_rad) < std::tie(a.strength, b.azimuth_rad, b.distance_rad);
  });
  bands_.clear();
  const double nearest = std::cos(settings.least_separation_deg * radians);
  for (const DetectedBand& band : candidates_) {
    if (static_cast<int>(bands_.size()) >= settings.most_bands) break;
    const Vector3 normal = band.normal();
    const bool taken = std::any_of(bands_.begin(), bands_.end(), [&](const DetectedBand& other) {
      return std::abs(other.normal().dot(normal)) > nearest;
    });
    if (!taken) bands_.push_back(band);
  }
}

std::span<const DetectedBand> BandDetection::detect(const PreparedPicture& picture, const PatternCentre& centre,
                                                    const DetectionSettings& settings) {
  plan(picture, settings);
  transpose(picture.values(), width_, height_, transposed_);
  for (int azimuth = 0; azimuth < azimuths_; ++azimuth) {
    transform(picture.values(), transposed_, azimuth, &sums_[index(azimuth) * index(bins_)]);
  }
  lay_out(picture.projection(centre));
  filter(settings);
  pick(settings);
  return bands_;
}

}  // namespace zol
