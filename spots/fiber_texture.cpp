#include "spots/fiber_texture.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <string>
#include <utility>

#include <queue>

#include "core/cell_geometry.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "spots/grey_scale.h"

namespace zol {
namespace {

constexpr Single never_taken = 1000000;  ///< intensities from here on are passed over by the sort
constexpr int first_sorted = 2;

/// Order that the selection sort leaves: element i comes from entry order[i]. Each round exchanges its place with the
/// first smallest entry behind it, which here is the head of a queue by value, then place. A round without a candidate
/// uses the entry of the round before, at first entry 0.
std::vector<int> selection_order(const CrystalState& state, int count) {
  std::vector<Single> value;
  for (int i = 0; i <= count; ++i) value.push_back(state.RefI(i));
  std::vector<int> order(value.size());
  std::iota(order.begin(), order.end(), 0);

  using Entry = std::pair<Single, int>;
  std::priority_queue<Entry, std::vector<Entry>, std::greater<>> smallest;
  for (int i = first_sorted; i <= count; ++i) smallest.emplace(value[static_cast<std::size_t>(i)], i);
  int found = 0;
  for (int place = first_sorted; place < count; ++place) {
    const auto outdated = [&value, place](const Entry& entry) {
      return entry.second < place || value[static_cast<std::size_t>(entry.second)] != entry.first;
    };
    while (!smallest.empty() && outdated(smallest.top())) smallest.pop();
    if (!smallest.empty() && smallest.top().first < never_taken) {
      found = smallest.top().second;
      smallest.pop();
    }
    std::swap(value[static_cast<std::size_t>(place)], value[static_cast<std::size_t>(found)]);
    std::swap(order[static_cast<std::size_t>(place)], order[static_cast<std::size_t>(found)]);
    if (found > place) smallest.emplace(value[static_cast<std::size_t>(found)], found);
  }
  return order;
}

template <class Value>
void reorder(BoundedArray<Value>& array, const std::vector<int>& order) {
  std::vector<Value> sorted;
  sorted.reserve(order.size());
  for (const int from : order) sorted.push_back(array(from));
  for (int i = 0; i < static_cast<int>(order.size()); ++i) array(i) = sorted[static_cast<std::size_t>(i)];
}

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

  /// From the centre outwards to two dispersions, clockwise (1) or anticlockwise (-1). Angles in degrees.
  void walk(Single centre, double sense) {
    const Single limit = to_single(double{centre} + sense * 2.0 * dispersion_);
    // A step that gets lost in the rounding would never come to the end.
    const double spacing = std::nextafter(std::abs(limit), HUGE_VALF) - std::abs(limit);
    if (dispersion_ > 0.0 && !(2.0 * step_ > spacing)) {
      throw RunFailure("the dispersion is " + plain_text(dispersion_) + " degrees, too large for an arc");
    }
    last_column_ = last_row_ = 0;
    for (Single t = centre; sense > 0.0 ? t <= limit : t >= limit; t = to_single(double{t} + sense * double{step_})) {
      add(centre, t);
    }
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
  const auto order = selection_order(state, count);
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
    arcs.walk(centre, -1.0);
    arcs.walk(centre, 1.0);
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
