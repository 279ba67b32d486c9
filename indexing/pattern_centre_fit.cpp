#include "indexing/pattern_centre_fit.h"

#include <Eigen/Cholesky>
#include <cmath>
#include <vector>

#include "indexing/units.h"

namespace zol {
namespace {

constexpr int unknowns = 6;
constexpr int most_rounds = 20;
constexpr double most_shift = 0.15;  ///< of the centre, in widths: beyond, the bands do not tell

using Step = Eigen::Matrix<double, unknowns, 1>;

/// The line of a band on the picture, as the plane through it and a specimen in front of it at unit distance of the
/// picture's corner: (a, b, c) with a x + b y + c = 0, x and y in widths.
Vector3 line_of(const DetectedBand& band, const PatternCentre& centre) {
  const Vector3 n = band.normal();
  // n . ((x - x0) / z, (y - y0) / z, 1) = 0
  return {n[0], n[1], n[2] * centre.z - n[0] * centre.x - n[1] * centre.y};
}

/// Normal of the plane of a line for a centre.
Vector3 normal_of(const Vector3& line, const PatternCentre& centre) {
  return Vector3(line[0] * centre.z, line[1] * centre.z, line[0] * centre.x + line[1] * centre.y + line[2])
      .normalized();
}

struct Pair {
  Vector3 line, plane;  ///< the plane's normal on the side of the band's
  double weight;
};

double squared_deviations(const std::vector<Pair>& pairs, const Rotation& rotation, const PatternCentre& centre) {
  double sum = 0;
  for (const Pair& pair : pairs) {
    sum += pair.weight * (rotation * normal_of(pair.line, centre) - pair.plane).squaredNorm();
  }
  return sum;
}

}  // namespace

std::optional<CentreFit> fit_centre_on_bands(const VoteTable& table, std::span<const DetectedBand> bands,
                                             const Rotation& start, const PatternCentre& centre, double tolerance_deg) {
  std::vector<MatchedBand> matches;
  match_bands(table, bands, start, tolerance_deg, matches);
  std::vector<Pair> pairs;
  for (const MatchedBand& match : matches) {
    if (match.plane < 0) continue;
    const DetectedBand& band = bands[static_cast<std::size_t>(match.band)];
    const Vector3& plane = table.planes()[static_cast<std::size_t>(match.plane)].normal;
    pairs.push_back({line_of(band, centre), match.sign * plane, band.strength});
  }
  if (pairs.size() < 5) return std::nullopt;

  CentreFit fit{start, centre, 0};
  double deviations = squared_deviations(pairs, fit.crystal_from_picture, fit.centre);
  double damping = 1e-3;
  for (int round = 0; round < most_rounds; ++round) {
    Eigen::Matrix<double, unknowns, unknowns> normal = Eigen::Matrix<double, unknowns, unknowns>::Zero();
    Step right = Step::Zero();
    for (const Pair& pair : pairs) {
      const Vector3 n = normal_of(pair.line, fit.centre);
      Eigen::Matrix<double, 3, unknowns> slopes;
      for (int axis = 0; axis < 3; ++axis) slopes.col(axis) = fit.crystal_from_picture * Vector3::Unit(axis).cross(n);
      constexpr double h = 1e-6;
      for (int k = 0; k < 3; ++k) {
        PatternCentre moved = fit.centre;
        (k == 0 ? moved.x : k == 1 ? moved.y : moved.z) += h;
        slopes.col(3 + k) = fit.crystal_from_picture * (normal_of(pair.line, moved) - n) / h;
      }
      const Vector3 off = pair.plane - fit.crystal_from_picture * n;
      normal += pair.weight * slopes.transpose() * slopes;
      right += pair.weight * slopes.transpose() * off;
    }
    normal.diagonal() *= 1 + damping;
    const Step step = normal.ldlt().solve(right);
    if (!step.allFinite()) return std::nullopt;
    const Rotation rotation = fit.crystal_from_picture * rotation_of(step.head(3));
    const PatternCentre moved{fit.centre.x + step[3], fit.centre.y + step[4], fit.centre.z + step[5]};
    const double found = squared_deviations(pairs, rotation, moved);
    if (found >= deviations) {
      damping *= 10;
      if (damping > 1e3) break;
      continue;
    }
    damping /= 10;
    deviations = found;
    fit.crystal_from_picture = rotation;
    fit.centre = moved;
    if (step.norm() < 1e-7) break;
  }
  const Vector3 shift(fit.centre.x - centre.x, fit.centre.y - centre.y, fit.centre.z - centre.z);
  if (!(shift.norm() < most_shift)) return std::nullopt;
  for (const Pair& pair : pairs) {
    const double sine = (fit.crystal_from_picture * normal_of(pair.line, fit.centre)).cross(pair.plane).norm();
    fit.mean_deviation_deg += std::asin(std::min(1.0, sine)) / radians / static_cast<double>(pairs.size());
  }
  return fit;
}

}  // namespace zol
