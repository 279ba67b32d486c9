#include "spots/fiber_texture.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "core/cell_geometry.h"
#include "core/exchange_sort.h"
#include "core/float_loop.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "spots/grey_scale.h"

namespace zol {
namespace {

constexpr double never_taken = 1000000;  ///< intensities from here on are passed over by the sort
constexpr int first_sorted = 2;

/// Walks the arcs of one reflection.
class ArcWalk {
 public:
  ArcWalk(const CrystalState& state, const FiberPicture& picture, double radius, double strength)
      : picture_(picture),
        radius_(radius),
        strength_(strength),
        rotation_(state.PatternAngle),
        dispersion_(state.Dispersion),
        picture_width_(2.0 * state.CamAcquisition),
        step_(to_single(double{state.CamAcquisition} / radius / 10.0)) {}

  /// From the centre outwards to two dispersions, clockwise (rising) or anticlockwise. Angles in degrees.
  void walk(Single centre, LoopSense sense) {
    const Single limit = to_single(double{centre} + (sense == LoopSense::Rising ? 2.0 : -2.0) * dispersion_);
    last_column_ = last_row_ = 0;
    float_loop("an arc of the fiber texture", centre, limit, step_, sense, [&](Single t) { add(centre, t); });
  }
  [[nodiscard]] std::vector<ArcPoint> take_points() { return std::move(points_); }

  [[nodiscard]] std::pair<Single, Single> position(double angle_rad) const {
    return {to_single(std::sin(angle_rad + rotation_) * radius_), to_single(std::cos(angle_rad + rotation_) * radius_)};
  }

 private:
  void add(double centre, double t) {
    const auto [x, y] = position(t * degree);
    const double off = centre - t;
    const double spread =
        to_single(std::exp(divide(divide(-(off * off), dispersion_, "the dispersion"), dispersion_, "the dispersion")));
    const Integer darkness = Integer::floor(strength_ * spread * 255.0);
    const double column = round_half_even(double{x} * picture_.width_px / picture_width_);
    const double row = round_half_even(double{y} * picture_.height_px / picture_width_);
    if (column == last_column_ && row == last_row_) return;
    points_.push_back({x, y, darkness});
    last_column_ = column;
    last_row_ = row;
  }

  const FiberPicture& picture_;
  double radius_;
  double strength_;
  double rotation_;
  double dispersion_;
  double picture_width_;
  Single step_;
  double last_column_ = 0, last_row_ = 0;
  std::vector<ArcPoint> points_;
};

/// Intensity related to that of the strongest reflection, which stands last. Only the denominator takes the exponent.
Single relative_strength(const CrystalState& state, int i, const std::optional<double>& exponent) {
  constexpr auto quantity = "the strongest intensity";
  double strongest = state.RefI(state.RefCount.value());
  if (exponent) strongest = power(strongest, *exponent, quantity);
  return to_single(divide(state.RefI(i), strongest, quantity));
}

}  // namespace

void sort_by_intensity(CrystalState& state) {
  const int count = state.RefCount.value();
  if (count < 2) {
    throw RunFailure("a fiber texture needs two reflections or more, the list has " + plain_text(state.RefCount));
  }
  std::vector<double> keys;
  for (int i = 0; i <= count; ++i) keys.push_back(state.RefI(i));
  const auto order = exchange_order(keys, first_sorted, first_smallest_below(never_taken));
  for (auto* array : {&state.RefI, &state.RefA, &state.RefB, &state.RefS}) reorder(*array, order);
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) reorder(*array, order);
}

std::optional<FiberArcs> fiber_arcs(const CrystalState& state, int i, const FiberPicture& picture) {
  if (!(state.RefI(i) > 0)) return std::nullopt;
  const Integer h = state.RefH(i);
  const Integer k = state.RefK(i);
  const Integer l = state.RefL(i);
  const double g = DHKL(state, h, k, l);
  constexpr double diagonal = 1.4142;
  if (!(state.CamAcquisition * diagonal > g)) return std::nullopt;

  const double axis_length = DHKL(state, state.OriginH, state.OriginK, state.OriginL);
  const double product = Product(state, h, k, l, state.OriginH, state.OriginK, state.OriginL);
  const Single cosine = to_single(
      divide(divide(product, g, "the length of a reflection"), axis_length, "the length of the fiber direction"));
  const Single angle = ArcCos(cosine);  // to the fiber axis, degrees

  ArcWalk arcs(state, picture, g, relative_strength(state, i, picture.exponent));
  for (const Single centre : {angle, -angle}) {
    arcs.walk(centre, LoopSense::Falling);
    arcs.walk(centre, LoopSense::Rising);
  }
  const auto [label_x, label_y] = arcs.position(-double{angle});
  return FiberArcs{arcs.take_points(), label_x, label_y};
}

int darkened_grey(Integer darkness, int colour) {
  constexpr int no_colour = 16777216;
  constexpr int blue_unit = 65536;
  Integer sum = darkness;
  if (colour != no_colour) sum = sum + Integer(255) - Integer(colour / blue_unit);
  return 255 - std::min(sum.value(), 255);
}

}  // namespace zol
