#include "calculators/direction_search.h"

#include <algorithm>
#include <cmath>

#include "core/float_loop.h"
#include "core/lattice.h"

namespace zol::utility {
namespace {

constexpr double search_degree = 0.0174532925;  // radians in a degree, in the search by azimuths alone
constexpr double half_pi = 1.5707963;
constexpr double two_pi = 6.2831853;
constexpr Single starting_error = 100;

/// All values from one limit to the other, the limits and the step rounded as well.
template <class Visit>
void trials(double from, double to, double by, const Visit& visit) {
  float_loop("the search for a direction", to_single(from), to_single(to), to_single(by), LoopSense::Rising, visit);
}

/// A rotation of the specimen about x.
struct Rotation {
  explicit Rotation(Single angle_deg)
      : cosine(std::cos(double{angle_deg} * search_degree)), sine(std::sin(double{angle_deg} * search_degree)) {}
  double cosine;
  double sine;
};

CartesianVector unit_vector(double azimuth_deg, double polar_deg) {
  const double a = azimuth_deg * search_degree;
  const double p = polar_deg * search_degree;
  return {to_single(std::sin(p) * std::cos(a)), to_single(std::sin(p) * std::sin(a)), to_single(std::cos(p))};
}

Single apparent_azimuth(const CartesianVector& direction, const Rotation& rotation) {
  const double y = direction.y;
  const double z = direction.z;
  const Single turned_z = to_single(z * rotation.cosine + y * rotation.sine);
  const Single turned_y = to_single(-z * rotation.sine + y * rotation.cosine);
  const double sine = std::sin(double{ArcCos(turned_z)});
  Single azimuth = sine != 0 ? ArcCos(to_single(direction.x / sine)) : 0.0F;
  if (turned_y < 0) azimuth = to_single(two_pi - double{azimuth});
  return to_single(std::atan(std::tan(double{azimuth})) / search_degree);
}

/// One pass: keeps the trial nearest to the azimuths of the photographs.
class Pass {
 public:
  explicit Pass(const PhotographPair& wanted)
      : wanted_(wanted), rotation_1_(wanted.Rotate1), rotation_2_(wanted.Rotate2) {}

  void try_direction(Single azimuth, Single polar) {
    const CartesianVector direction = unit_vector(azimuth, polar);
    const Single phi_1 = apparent_azimuth(direction, rotation_1_);
    const Single phi_2 = apparent_azimuth(direction, rotation_2_);
    const double off_1 = double{phi_1} - double{wanted_.Phi1};
    const double off_2 = double{phi_2} - double{wanted_.Phi2};
    const Single error = to_single(std::sqrt(off_1 * off_1 + off_2 * off_2));
    if (!(error < smallest_error_)) return;
    smallest_error_ = error;
    best_ = {azimuth, polar, phi_1, phi_2};
  }
  [[nodiscard]] const DirectionTrial& best() const { return best_; }

 private:
  const PhotographPair& wanted_;
  Rotation rotation_1_;
  Rotation rotation_2_;
  Single smallest_error_ = starting_error;
  DirectionTrial best_;
};

/// The first two passes take polar angles inside azimuths, which decides between equal trials.
DirectionTrial coarse_pass(const PhotographPair& wanted, Task& task) {
  Pass pass(wanted);
  trials(0, 350, 10, [&](Single a) {
    task.check();
    trials(0, 90, 10, [&](Single p) { pass.try_direction(a, p); });
  });
  return pass.best();
}

DirectionTrial degree_pass(const PhotographPair& wanted, double azimuth, double polar, Task& task) {
  Pass pass(wanted);
  trials(azimuth - 10, azimuth + 10, 1, [&](Single a) {
    task.check();
    trials(polar - 10, polar + 10, 1, [&](Single p) { pass.try_direction(a, p); });
  });
  return pass.best();
}

/// The last two take azimuths inside polar angles.
DirectionTrial fine_pass(const PhotographPair& wanted, double azimuth, double polar, double reach, double step,
                         Task& task) {
  Pass pass(wanted);
  trials(polar - reach, polar + reach, step, [&](Single p) {
    task.check();
    trials(azimuth - reach, azimuth + reach, step, [&](Single a) { pass.try_direction(a, p); });
  });
  return pass.best();
}

}  // namespace

Single ArcCos(Single x) {
  if (std::abs(x) < 1) {
    const double cosine = x;
    return to_single(half_pi - std::atan(cosine / std::sqrt(1.0 - cosine * cosine)));
  }
  return x <= -1 ? 180.0F : 0.0F;  // degrees here, and meant so
}

Single folded_azimuth(Single azimuth_deg) {
  return to_single(std::atan(std::tan(double{azimuth_deg} * search_degree)) / search_degree);
}

DirectionSearch search_direction(const PhotographPair& photographs, Task& task) {
  constexpr int all_passes = 4;
  DirectionSearch search;
  auto& [first, second, third, fourth] = search.passes;
  first = coarse_pass(photographs, task);
  task.report(1, all_passes);
  first.polar = std::clamp(first.polar, 10.0F, 80.0F);
  second = degree_pass(photographs, first.azimuth, first.polar, task);
  task.report(2, all_passes);
  second.polar = std::clamp(second.polar, 1.0F, 89.0F);
  third = fine_pass(photographs, second.azimuth, second.polar, 1, 0.1, task);
  task.report(3, all_passes);
  second.polar = std::clamp(second.polar, 0.1F, 89.9F);
  fourth = fine_pass(photographs, second.azimuth, second.polar, 0.1, 0.01, task);
  task.report(4, all_passes);
  return search;
}

PlaneDirection direction_from_lengths(const LengthPair& lengths) {
  const Single ratio = to_single(divide(lengths.Length2, lengths.Length1, "length_1"));
  const auto cosine = [](Single phi, Single rotation) { return std::cos((double{phi} - double{rotation}) * degree); };
  Single smallest_error = starting_error;
  Single best = 0;
  trials(-90, 90, 0.1, [&](Single phi) {
    const double quotient =
        divide(cosine(phi, lengths.Rotate2), cosine(phi, lengths.Rotate1), "the cosine against the first rotation");
    const Single error = to_single(std::abs(double{ratio} - quotient));
    if (!(error < smallest_error)) return;
    smallest_error = error;
    best = phi;
  });
  return best < 0 ? PlaneDirection{-90, -best} : PlaneDirection{90, best};
}

}  // namespace zol::utility
