#include "scans/pole_colour.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <utility>

#include "indexing/units.h"

namespace zol {
namespace {

/// 1, 2, 3, 4 or 6.
int order_of(const Rotation& rotation) {
  const double cosine = std::clamp((rotation.trace() - 1) / 2, -1.0, 1.0);
  const double angle = std::acos(cosine) * degrees;
  constexpr double full = 360;
  return angle < 1 ? 1 : static_cast<int>(std::lround(full / angle));
}

Vector3 axis_of(const Rotation& rotation) { return Eigen::AngleAxisd(rotation).axis(); }

int highest_order(std::span<const Rotation> rotations) {
  int highest = 1;
  for (const auto& one : rotations) highest = std::max(highest, order_of(one));
  return highest;
}

/// The axis of an order nearest to a direction.
std::optional<Vector3> axis_near(std::span<const Rotation> rotations, int order, const Vector3& wanted,
                                 const Vector3& across = Vector3::Zero()) {
  std::optional<Vector3> best;
  for (const auto& one : rotations) {
    if (order_of(one) != order) continue;
    Vector3 axis = axis_of(one);
    if (std::abs(axis.dot(across)) > 0.1) continue;
    if (axis.dot(wanted) < 0) axis = -axis;
    if (!best || axis.dot(wanted) > best->dot(wanted) + 1e-6) best = axis;
  }
  return best;
}

bool is_cubic(const std::string& laue) { return laue == "m-3" || laue == "m-3m"; }

double sector_width(const std::string& laue) {
  constexpr std::array<std::pair<const char*, double>, 11> widths{{{"-1", 360},
                                                                   {"2/m", 180},
                                                                   {"mmm", 90},
                                                                   {"4/m", 90},
                                                                   {"4/mmm", 45},
                                                                   {"-3", 120},
                                                                   {"-3m", 60},
                                                                   {"6/m", 60},
                                                                   {"6/mmm", 30},
                                                                   {"m-3", 90},
                                                                   {"m-3m", 45}}};
  return std::find_if(widths.begin(), widths.end(), [&laue](const auto& one) { return laue == one.first; })->second;
}

/// The frame of the sector: z along the axis of highest order, x along a twofold axis across it or as near to e1 as can
/// be. The sector of -3m lies between two mirrors, which are half-way between its twofold axes.
Rotation sector_frame(std::span<const Rotation> rotations, const std::string& laue) {
  if (is_cubic(laue)) return Rotation::Identity();
  const int highest = highest_order(rotations);
  const Vector3 z = highest == 1 ? Vector3::UnitZ() : *axis_near(rotations, highest, Vector3::UnitZ());
  Vector3 x = Vector3::UnitX() - z * z.x();
  if (x.norm() < 0.1) x = Vector3::UnitY() - z * z.y();
  x.normalize();
  if (const auto twofold = axis_near(rotations, 2, x, z)) x = *twofold;
  if (laue == "-3m") {
    constexpr double half = 30;
    x = Eigen::AngleAxisd(-half / degrees, z) * x;
  }
  Rotation frame;
  frame.row(0) = x;
  frame.row(1) = z.cross(x);
  frame.row(2) = z;
  return frame;
}

}  // namespace

std::string laue_class_of(std::span<const Rotation> rotations) {
  const int highest = highest_order(rotations);
  switch (rotations.size()) {
    case 2:
      return "2/m";
    case 3:
      return "-3";
    case 4:
      return highest == 4 ? "4/m" : "mmm";
    case 6:
      return highest == 6 ? "6/m" : "-3m";
    case 8:
      return "4/mmm";
    case 12:
      return highest == 6 ? "6/mmm" : "m-3";
    case 24:
      return "m-3m";
    default:
      return "-1";
  }
}

PoleColours::PoleColours(std::vector<Rotation> rotations) : into_sector_(std::move(rotations)) {
  if (into_sector_.empty()) into_sector_.emplace_back(Rotation::Identity());
  const std::string laue = laue_class_of(into_sector_);
  cubic_ = is_cubic(laue);
  eta_end_ = sector_width(laue);
  sector_from_crystal_ = sector_frame(into_sector_, laue);
  for (auto& one : into_sector_) one = sector_from_crystal_ * one;
}

double PoleColours::chi_end_deg(double eta_deg) const {
  constexpr double quarter = 90;
  if (!cubic_) return quarter;
  const double slope = std::tan(std::min(eta_deg, quarter - eta_deg) / degrees);
  return std::acos(std::sqrt(1 / (2 + slope * slope))) * degrees;
}

Rgb PoleColours::colour_at(double chi_deg, double eta_deg) const {
  const double to_rim = std::clamp(chi_deg / chi_end_deg(eta_deg), 0.0, 1.0);
  const double across = std::clamp(eta_deg / eta_end_, 0.0, 1.0);
  std::array<double, 3> parts{1 - to_rim, (1 - across) * to_rim, across * to_rim};
  for (double& part : parts) part = std::sqrt(part);
  const double most = *std::max_element(parts.begin(), parts.end());
  constexpr double full = 255;
  Rgb colour{};
  for (std::size_t i = 0; i < 3; ++i) colour[i] = static_cast<std::uint8_t>(std::lround(full * parts[i] / most));
  return colour;
}

Vector3 PoleColours::direction(double chi_deg, double eta_deg) const {
  const double chi = chi_deg / degrees;
  const double eta = eta_deg / degrees;
  return sector_from_crystal_.transpose() *
         Vector3(std::sin(chi) * std::cos(eta), std::sin(chi) * std::sin(eta), std::cos(chi));
}

Rgb PoleColours::colour(const Vector3& direction) const {
  constexpr double close = 1e-6;  // degrees, and of unit lengths
  constexpr double turn = 360;
  const Vector3 unit = direction.normalized();
  for (const auto& rotation : into_sector_) {
    Vector3 turned = rotation * unit;
    for (int side = 0; side < 2; ++side, turned = -turned) {
      if (turned.z() < -close) continue;
      const double chi = std::atan2(std::hypot(turned.x(), turned.y()), turned.z()) * degrees;
      double eta = std::atan2(turned.y(), turned.x()) * degrees;
      if (eta < -close) eta += turn;
      if (chi < close) return colour_at(0, 0);
      if (eta <= eta_end_ + close && chi <= chi_end_deg(std::clamp(eta, 0.0, eta_end_)) + close) {
        return colour_at(chi, eta);
      }
    }
  }
  return colour_at(0, 0);  // not reached: equivalents of the sector cover the sphere
}

std::string indices_along(const Lattice& lattice, const Vector3& direction) {
  constexpr int most = 3;
  constexpr double near_deg = 0.5;
  const CartesianVector wanted{direction.x(), direction.y(), direction.z()};
  std::string best;
  int least = 3 * most + 1;
  for (const bool plane : {false, true}) {
    for (int u = -most; u <= most; ++u) {
      for (int v = -most; v <= most; ++v) {
        for (int w = -most; w <= most; ++w) {
          const int size = std::abs(u) + std::abs(v) + std::abs(w);
          if (size == 0 || size >= least || std::gcd(std::gcd(u, v), w) != 1) continue;
          const double h = u;
          const double k = v;
          const double l = w;
          const auto place =
              plane ? lattice.cartesian(ReciprocalVector{h, k, l}) : lattice.cartesian(DirectVector{h, k, l});
          if (angle_deg(place, wanted) > near_deg) continue;
          least = size;
          best = (plane ? "(" : "[") + std::to_string(u) + ' ' + std::to_string(v) + ' ' + std::to_string(w) +
                 (plane ? ")" : "]");
        }
      }
    }
    if (!best.empty()) return best;
  }
  return best;
}

}  // namespace zol
