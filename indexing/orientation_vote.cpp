#include "indexing/orientation_vote.h"

#include <Eigen/SVD>
#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/run_failure.h"
#include "indexing/units.h"

namespace zol {
namespace {

constexpr int map_size = 129;
constexpr double map_middle = 64;
constexpr double map_nearest = map_middle + 0.5;  ///< cut off, it gives the nearest point
constexpr double map_scale = 62;
constexpr double map_reach_deg = 6;
constexpr double least_angle_deg = 12;  ///< between two planes that give an orientation
constexpr std::size_t examined = 400;   ///< candidates that are looked at closely
constexpr std::size_t kept_at_once = 16 * examined;

/// Frame of two unit vectors: their bisector, the direction across, their vector product.
Rotation frame_of(const Vector3& a, const Vector3& b) {
  const Vector3 bisector = (a + b).normalized();
  const Vector3 product = a.cross(b).normalized();
  Rotation frame;
  frame << bisector, product.cross(bisector), product;
  return frame;
}

double deviation_deg(const Vector3& a, const Vector3& b) {
  return std::asin(std::min(1.0, a.cross(b).norm())) / radians;
}

}  // namespace

VoteTable::VoteTable(const ReflectorSet& reflectors, const std::vector<bool>& families_used, Task& task)
    : symmetry_(reflectors.symmetry) {
  constexpr double parallel = 1 - 1e-6;
  std::vector<int> first_of_family;
  for (std::size_t number = 0; number < std::min(reflectors.families.size(), families_used.size()); ++number) {
    task.check();
    if (!families_used[number]) continue;
    const ReflectorFamily& family = reflectors.families[number];
    const auto* members = &reflectors.members[index(family.first)];
    const bool higher_order = std::any_of(planes_.begin(), planes_.end(), [members](const Reflector& plane) {
      return std::abs(plane.normal.dot(members->normal)) > parallel;
    });
    if (higher_order) continue;
    first_of_family.push_back(static_cast<int>(planes_.size()));
    planes_.insert(planes_.end(), members, members + family.count);
  }
  const auto planes = static_cast<double>(planes_.size());
  const double pairs = planes * static_cast<double>(first_of_family.size());
  constexpr double of_pair = 2e-7;
  constexpr double of_place = 2e-9;
  task.expect({pairs * of_pair + planes * map_size * map_size * of_place, pairs * sizeof(Pair)});
  for (const int first : first_of_family) {
    task.check();
    for (const Reflector& other : planes_) {
      const Vector3& a = planes_[index(first)].normal;
      const double cosine = a.dot(other.normal);
      if (std::abs(cosine) > std::cos(least_angle_deg * radians)) continue;
      const Vector3 b = cosine < 0 ? Vector3(-other.normal) : other.normal;
      pairs_.push_back({static_cast<float>(std::abs(cosine)), frame_of(a, b)});
      if (std::abs(cosine) < 1e-3) pairs_.push_back({static_cast<float>(std::abs(cosine)), frame_of(a, -b)});
    }
  }
  if (planes_.size() < 3 || pairs_.size() < 2) {
    throw RunFailure("the crystal has fewer than three families of planes to index with");
  }
  std::stable_sort(pairs_.begin(), pairs_.end(), [](const Pair& a, const Pair& b) { return a.cosine < b.cosine; });

  map_.assign(index(map_size * map_size), -1);
  for (int row = 0; row < map_size; ++row) {
    for (int column = 0; column < map_size; ++column) {
      task.check();
      const double x = (column - map_middle) / map_scale;
      const double y = (row - map_middle) / map_scale;
      const double square = x * x + y * y;
      const Vector3 direction = Vector3(2 * x, 2 * y, 1 - square) / (1 + square);
      double best = std::cos(map_reach_deg * radians);
      for (std::size_t plane = 0; plane < planes_.size(); ++plane) {
        const double cosine = std::abs(direction.dot(planes_[plane].normal));
        if (cosine <= best) continue;
        best = cosine;
        map_[index(row * map_size + column)] = static_cast<short>(plane);
      }
    }
  }
}

int VoteTable::nearest(const Vector3& direction) const {
  const double per = (direction[2] < 0 ? -map_scale : map_scale) / (1 + std::abs(direction[2]));
  const auto column = static_cast<int>(direction[0] * per + map_nearest);
  const auto row = static_cast<int>(direction[1] * per + map_nearest);
  return map_[index(row * map_size + column)];
}

void match_bands(const VoteTable& table, std::span<const DetectedBand> bands, const Rotation& crystal_from_picture,
                 double tolerance_deg, std::vector<MatchedBand>& matches) {
  matches.clear();
  for (std::size_t band = 0; band < bands.size(); ++band) {
    MatchedBand match{static_cast<int>(band), -1, 1, 0};
    const Vector3 turned = crystal_from_picture * bands[band].normal();
    const int plane = table.nearest(turned);
    if (plane >= 0) {
      const Vector3& normal = table.planes()[index(plane)].normal;
      match.deviation_deg = deviation_deg(turned, normal);
      if (match.deviation_deg <= tolerance_deg) {
        match.plane = plane;
        match.sign = turned.dot(normal) < 0 ? -1 : 1;
      }
    }
    matches.push_back(match);
  }
}

Rotation fit_orientation(const VoteTable& table, std::span<const DetectedBand> bands,
                         std::span<const MatchedBand> matches, const Rotation& start) {
  Eigen::Matrix3d sum = Eigen::Matrix3d::Zero();
  int count = 0;
  for (const MatchedBand& match : matches) {
    if (match.plane < 0) continue;
    const DetectedBand& band = bands[index(match.band)];
    sum += band.strength * match.sign * table.planes()[index(match.plane)].normal * band.normal().transpose();
    ++count;
  }
  if (count < 2) return start;
  const Eigen::JacobiSVD<Eigen::Matrix3d> parts(sum, Eigen::ComputeFullU | Eigen::ComputeFullV);
  const double handedness = parts.matrixU().determinant() * parts.matrixV().determinant() < 0 ? -1 : 1;
  return parts.matrixU() * Vector3(1, 1, handedness).asDiagonal() * parts.matrixV().transpose();
}

double OrientationVote::keep_best() {
  const auto last = candidates_.begin() + (examined - 1);
  std::nth_element(candidates_.begin(), last, candidates_.end(), Candidate::more_votes);
  candidates_.resize(examined);
  return candidates_.back().votes;
}

std::span<const Orientation> OrientationVote::vote(const VoteTable& table, std::span<const DetectedBand> bands,
                                                   const VoteSettings& settings, Task& task) {
  const double tolerance = settings.tolerance_deg * radians;
  const double per_chord = 1 / (4 * std::pow(std::sin(tolerance / 2), 2));
  normals_.clear();
  for (const DetectedBand& band : bands) normals_.push_back(band.normal());
  candidates_.clear();
  double enough = 2;
  const auto& pairs = table.pairs();
  for (std::size_t i = 0; i < bands.size(); ++i) {
    for (std::size_t k = 0; k < bands.size(); ++k) {
      if (i == k) continue;
      const double cosine = normals_[i].dot(normals_[k]);
      const double angle = std::acos(std::min(1.0, std::abs(cosine)));
      if (angle < least_angle_deg * radians) continue;
      const Rotation frame = frame_of(normals_[i], cosine < 0 ? Vector3(-normals_[k]) : normals_[k]);
      turned_.clear();
      for (const Vector3& normal : normals_) turned_.emplace_back(frame.transpose() * normal);
      const auto lowest = static_cast<float>(std::cos(std::min(std::numbers::pi / 2 + 1e-3, angle + tolerance)));
      const auto highest = static_cast<float>(std::cos(std::max(0.0, angle - tolerance)));
      auto pair = std::lower_bound(pairs.begin(), pairs.end(), lowest,
                                   [](const VoteTable::Pair& p, float value) { return p.cosine < value; });
      for (; pair != pairs.end() && pair->cosine <= highest; ++pair) {
        task.check();
        if (candidates_.size() >= kept_at_once) enough = keep_best();
        // Both normals turned round give the other orientation of the two planes.
        for (const double side : {1.0, -1.0}) {
          const Rotation crystal_frame = pair->frame * Vector3(side, side, 1).asDiagonal();
          double votes = 0;
          for (const Vector3& normal : turned_) {
            const Vector3 direction = crystal_frame * normal;
            const int plane = table.nearest(direction);
            if (plane < 0) continue;
            const double chord = 2 - 2 * std::abs(direction.dot(table.planes()[index(plane)].normal));
            votes += std::max(0.0, 1 - chord * per_chord);
          }
          if (votes > enough) candidates_.push_back({static_cast<float>(votes), crystal_frame * frame.transpose()});
        }
      }
    }
  }
  if (candidates_.size() > examined) (void)keep_best();
  std::sort(candidates_.begin(), candidates_.end(), Candidate::more_votes);

  solutions_.clear();
  for (const Candidate& candidate : candidates_) {
    if (static_cast<int>(solutions_.size()) >= settings.most_solutions) break;
    const auto same = [&](const Orientation& solution) {
      return misorientation_deg(solution.crystal_from_picture, candidate.rotation, table.symmetry()) <
             2 * settings.tolerance_deg;
    };
    if (std::any_of(solutions_.begin(), solutions_.end(), same)) continue;
    Orientation solution{candidate.rotation, 0, 0, 0};
    for (int round = 0; settings.turn_onto_bands && round < 3; ++round) {
      match_bands(table, bands, solution.crystal_from_picture, settings.tolerance_deg, matches_);
      solution.crystal_from_picture = fit_orientation(table, bands, matches_, solution.crystal_from_picture);
    }
    match_bands(table, bands, solution.crystal_from_picture, settings.tolerance_deg, matches_);
    for (const MatchedBand& match : matches_) {
      if (match.plane < 0) continue;
      ++solution.matched;
      solution.mean_deviation_deg += match.deviation_deg;
      solution.votes += 1 - std::pow(match.deviation_deg / settings.tolerance_deg, 2);
    }
    if (solution.matched < 3) continue;
    solution.mean_deviation_deg /= solution.matched;
    if (std::any_of(solutions_.begin(), solutions_.end(), [&](const Orientation& other) {
          return misorientation_deg(other.crystal_from_picture, solution.crystal_from_picture, table.symmetry()) <
                 2 * settings.tolerance_deg;
        })) {
      continue;
    }
    solutions_.push_back(solution);
  }
  std::sort(solutions_.begin(), solutions_.end(), [](const Orientation& a, const Orientation& b) {
    return a.votes != b.votes ? a.votes > b.votes : a.mean_deviation_deg < b.mean_deviation_deg;
  });
  return solutions_;
}

}  // namespace zol
