#include "dynamics/beam_choice.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "indexing/vector_clones.h"

namespace zol {
namespace {

constexpr std::size_t block = 16;
constexpr float endless = std::numeric_limits<float>::max();

struct Candidates {
  const float *x, *y, *z, *square, *weight;
};

ZOL_VECTOR_CLONES void rank_all(const Candidates& all, std::size_t count, float dx, float dy, float dz,
                                float* deviation, float* rank) {
  for (std::size_t i = 0; i < count; ++i) {
    const float value = dx * all.x[i] + dy * all.y[i] + dz * all.z[i] - all.square[i];
    deviation[i] = value;
    rank[i] = std::abs(value) * all.weight[i];
  }
}

ZOL_VECTOR_CLONES bool any_below(const float* rank, float limit) {
  int below = 0;
  for (std::size_t i = 0; i < block; ++i) below += rank[i] < limit ? 1 : 0;
  return below > 0;
}

}  // namespace

BeamChoice::BeamChoice(const CrystalPotential& potential)
    : potential_(&potential), padded_((potential.candidates().size() + block - 1) / block * block) {
  for (auto* part : {&x_, &y_, &z_, &square_, &weight_, &deviation_, &rank_}) part->resize(padded_);
  std::size_t i = 0;
  const double twice = 2 * potential.wave_number();
  for (const auto& candidate : potential.candidates()) {
    const auto& g = candidate.g;
    x_[i] = static_cast<float>(twice * g[0]);
    y_[i] = static_cast<float>(twice * g[1]);
    z_[i] = static_cast<float>(twice * g[2]);
    square_[i] = static_cast<float>(g[0] * g[0] + g[1] * g[1] + g[2] * g[2]);
    weight_[i] = static_cast<float>(1 / (2 * candidate.strength));
    ++i;
  }
  weight_[0] = 0;  // 000 comes in
  for (; i < padded_; ++i) {
    square_[i] = 1;
    weight_[i] = endless;
  }
}

/// Those below a limit, in their order.
void BeamChoice::gather(float limit) {
  near_.clear();
  for (std::size_t first = 0; first < padded_; first += block) {
    if (!any_below(&rank_[first], limit)) continue;
    for (std::size_t i = first; i < first + block; ++i) {
      if (rank_[i] < limit) near_.emplace_back(rank_[i], static_cast<int>(i));
    }
  }
}

void BeamChoice::rank(const std::array<double, 3>& direction) {
  rank_all({x_.data(), y_.data(), z_.data(), square_.data(), weight_.data()}, padded_, static_cast<float>(direction[0]),
           static_cast<float>(direction[1]), static_cast<float>(direction[2]), deviation_.data(), rank_.data());
  for (auto* part : {&offsets_, &weak_offsets_}) part->clear();
  for (auto* part : {&deviations_, &weak_deviations_}) part->clear();
}

void BeamChoice::take(int candidate, std::vector<int>& offsets, std::vector<float>& deviations) const {
  const auto i = static_cast<std::size_t>(candidate);
  const double per_depth = std::numbers::pi / potential_->wave_number();
  offsets.push_back(potential_->candidates()[i].offset);
  deviations.push_back(static_cast<float>(-per_depth * static_cast<double>(deviation_[i])));
}

void BeamChoice::choose(const std::array<double, 3>& direction, int count) {
  rank(direction);
  const std::size_t wanted = std::min(static_cast<std::size_t>(std::max(1, count)), potential_->candidates().size());
  near_.clear();
  if (limit_ > 0) gather(limit_);
  if (near_.size() < wanted) gather(endless);
  constexpr float reserve = 1.3F;
  if (near_.size() > wanted) {
    const auto last = near_.begin() + static_cast<std::ptrdiff_t>(wanted) - 1;
    std::nth_element(near_.begin(), last, near_.end());
    limit_ = last->first * reserve;
    near_.resize(wanted);
  }
  chosen_.clear();
  for (const auto& [rank, index] : near_) chosen_.push_back(index);
  std::sort(chosen_.begin(), chosen_.end());
  for (const int index : chosen_) take(index, offsets_, deviations_);
}

void BeamChoice::choose(const std::array<double, 3>& direction, const CouplingRule& rule) {
  rank(direction);
  near_.clear();
  gather(static_cast<float>(rule.listed));
  const PairTerm* pairs = potential_->pairs();
  const auto& candidates = potential_->candidates();
  const double per_depth = std::numbers::pi / potential_->wave_number();
  for (const auto& [rank, index] : near_) {
    const auto i = static_cast<std::size_t>(index);
    double strongest = 0;
    for (const auto& [other_rank, other] : near_) {
      // The beam itself counts too, by the mean potential.
      const PairTerm& pair = pairs[candidates[i].offset - candidates[static_cast<std::size_t>(other)].offset];
      strongest = std::max(strongest, std::hypot(static_cast<double>(pair.re), static_cast<double>(pair.im)));
    }
    const double deviation = std::abs(static_cast<double>(deviation_[i])) / 2 * per_depth;
    if (index == 0 || deviation <= rule.strong * strongest) {
      take(index, offsets_, deviations_);
    } else if (deviation <= rule.weak * strongest) {
      take(index, weak_offsets_, weak_deviations_);
    }
  }
}

}  // namespace zol
