#include "spots/fiber_texture.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>
#include <utility>

#include "core/cell_geometry.h"
#include "core/float_loop.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "spots/grey_scale.h"

namespace zol {
namespace {

constexpr double never_taken = 1000000;  ///< intensities from here on are passed over by the sort
constexpr int first_sorted = 2;

constexpr double full_turn_deg = 360;
constexpr double first_look_deg = 4 * full_turn_deg;  ///< a look at the whole ring costs as much as some turns
constexpr int black = 255;
constexpr double diagonal = 1.4142;  ///< of the picture, in half widths

/// Walks the arcs of one reflection. A wide arc goes round more than once. From its second turn on all that falls on a
/// pixel goes into one point, which gives the same picture since darkness adds up in any order, and directions where
/// the ring is black are skipped.
class ArcWalk {
 public:
  ArcWalk(const CrystalState& state, const FiberPicture& picture, double radius, double strength, Task& task)
      : picture_(picture),
        ring_{radius, state.PatternAngle, state.CamAcquisition, picture.width_px, picture.height_px},
        strength_(strength),
        dispersion_(state.Dispersion),
        step_(to_single(double{state.CamAcquisition} / radius / 10.0)),
        task_(task) {}

  /// From the centre outwards to two dispersions, clockwise (rising) or anticlockwise. Angles in degrees.
  void walk(Single centre, LoopSense sense) {
    const Single limit = to_single(double{centre} + (sense == LoopSense::Rising ? 2.0 : -2.0) * dispersion_);
    task_.check();  // a first turn takes less than a millisecond
    last_column_ = last_row_ = 0;
    next_look_deg_ = first_look_deg;
    points_on_.reset();
    first_point_ = points_.size();
    skipping_loop("an arc of the fiber texture", centre, limit, step_, sense, [&](Single t) {
      const double off = std::abs(double{centre} - t);
      if (off <= full_turn_deg) return add(off, t, points_);
      if (!points_on_) find_first_turn();
      if (off > next_look_deg_) look(off, sense);
      return walk_on(off, t);
    });
  }
  [[nodiscard]] std::vector<ArcPoint> take_points() { return std::move(points_); }
  [[nodiscard]] const TextureRing& ring() const { return ring_; }

 private:
  /// Adds the point at an angle, unless it falls on the pixel of the last one.
  double add(double off, double t, std::vector<ArcPoint>& points) {
    const auto [x, y] = ring_.position(t * degree);
    const double spread =
        to_single(std::exp(divide(divide(-(off * off), dispersion_, "the dispersion"), dispersion_, "the dispersion")));
    const Integer darkness = Integer::floor(strength_ * spread * 255.0);
    const double picture_width = 2.0 * ring_.half_width;
    const double column = round_half_even(double{x} * picture_.width_px / picture_width);
    const double row = round_half_even(double{y} * picture_.height_px / picture_width);
    if (column != last_column_ || row != last_row_) points.push_back({x, y, darkness});
    last_column_ = column;
    last_row_ = row;
    darkness_ = darkness;
    return 0;
  }

  /// The same from the second turn on. @returns the angle that can be skipped
  double walk_on(double off, double t) {
    check();
    new_point_.clear();
    (void)add(off, t, new_point_);
    if (darkness_ == 0) return HUGE_VAL;  // and less from here on
    for (const auto& point : new_point_) add_to_pixel(point);
    return next_look_deg_ > first_look_deg ? sectors_->done_from(t * degree) / degree : 0;
  }

  void add_to_pixel(const ArcPoint& point) {
    const auto pixel = pixel_of(point);
    if (!pixel || is_black(*pixel)) return;
    const auto [found, is_new] = points_on_->try_emplace(key(*pixel), points_.size());
    if (is_new) {
      points_.push_back(point);
    } else {
      Integer& sum = points_[found->second].darkness;
      sum = std::min(sum.value() + point.darkness.value(), black);
    }
  }

  void find_first_turn() {
    points_on_.emplace();
    for (std::size_t i = first_point_; i < points_.size(); ++i) {
      if (const auto pixel = pixel_of(points_[i])) points_on_->try_emplace(key(*pixel), i);
    }
  }

  /// Looks which parts of the ring are black, after some turns and whenever the arc has doubled since.
  void look(double off, LoopSense sense) {
    if (!sectors_) sectors_.emplace(ring_);
    sectors_->look(sense == LoopSense::Rising ? 1 : -1, [this](const PicturePixel& pixel) {
      check();
      return is_black(pixel);
    });
    next_look_deg_ = 2 * off;
  }

  void check() {
    constexpr unsigned points_between = 64;  // some microseconds
    if (++visits_ % points_between == 0) task_.check();
  }

  [[nodiscard]] std::optional<PicturePixel> pixel_of(const ArcPoint& point) const {
    return ring_.pixel(ring_.column(point.x), ring_.row(point.y));
  }

  [[nodiscard]] std::int64_t key(const PicturePixel& pixel) const {
    return std::int64_t{pixel.row} * picture_.width_px + pixel.column;
  }

  [[nodiscard]] bool is_black(const PicturePixel& pixel) const {
    const auto found = points_on_->find(key(pixel));
    if (found != points_on_->end() && points_[found->second].darkness >= black) return true;
    return picture_.is_black && picture_.is_black(pixel);
  }

  const FiberPicture& picture_;
  TextureRing ring_;
  double strength_;
  double dispersion_;
  Single step_;
  Task& task_;
  unsigned visits_ = 0;
  double last_column_ = 0, last_row_ = 0;
  Integer darkness_;
  std::vector<ArcPoint> points_;

  // From the second turn of an arc on
  std::size_t first_point_ = 0;
  std::vector<ArcPoint> new_point_;
  std::optional<std::unordered_map<std::int64_t, std::size_t>> points_on_;  ///< the point on each pixel
  std::optional<RingSectors> sectors_;
  double next_look_deg_ = 0;
};

/// Intensity related to that of the strongest reflection, which stands last. Only the denominator takes the exponent.
Single relative_strength(const CrystalState& state, int i, const std::optional<double>& exponent) {
  constexpr auto quantity = "the strongest intensity";
  double strongest = state.RefI(state.RefCount.value());
  if (exponent) strongest = power(strongest, *exponent, quantity);
  return to_single(divide(state.RefI(i), strongest, quantity));
}

}  // namespace

ListOrder order_by_intensity(const CrystalState& state, Task& task) {
  const int count = state.RefCount.value();
  if (count < 2) {
    throw RunFailure("a fiber texture needs two reflections or more, the list has " + plain_text(state.RefCount));
  }
  std::vector<double> keys;
  for (int i = 0; i <= count; ++i) keys.push_back(state.RefI(i));
  return {exchange_order(keys, first_sorted, first_smallest_below(never_taken), false, task), true};
}

/// Up to a few turns all points of an arc are visited; further on, less and less of it is not black yet.
Effort effort_of_arcs(const CrystalState& state, const FiberPicture& picture, Task& task) try {
  constexpr double all_visited_deg = 4 * full_turn_deg;
  constexpr double of_point = 1.2e-7;
  constexpr double bytes_of_point = sizeof(ArcPoint) + 100;
  const double reach_deg = std::abs(2.0 * double{state.Dispersion});
  const double doublings = reach_deg > all_visited_deg ? std::log2(reach_deg / all_visited_deg) : 0;
  const double visited_deg = std::min(reach_deg, all_visited_deg) + doublings * all_visited_deg;
  double points = 0, kept = 0;
  for (int i = first_sorted; i <= state.RefCount.value(); ++i) {
    task.check();
    if (!(state.RefI(i) > 0)) continue;
    const double g = DHKL(state, state.RefH(i), state.RefK(i), state.RefL(i));
    if (!(state.CamAcquisition * diagonal > g)) continue;
    const double points_of_degree = 10 * g / double{state.CamAcquisition};
    const double pixels_of_degree = g / double{state.CamAcquisition} * picture.width_px / 2.0 * degree;
    points += 4 * visited_deg * points_of_degree;
    kept += 4 * std::min(reach_deg, full_turn_deg) * std::min(points_of_degree, pixels_of_degree);
  }
  return {points * of_point, kept * bytes_of_point};
} catch (const RunFailure&) {  // an impossible cell: that fails later, for an arc
  return {};
}

std::optional<FiberArcs> fiber_arcs(const CrystalState& state, int i, const FiberPicture& picture, Task& task) {
  if (!(state.RefI(i) > 0)) return std::nullopt;
  const Integer h = state.RefH(i);
  const Integer k = state.RefK(i);
  const Integer l = state.RefL(i);
  const double g = DHKL(state, h, k, l);
  if (!(state.CamAcquisition * diagonal > g)) return std::nullopt;

  const double axis_length = DHKL(state, state.OriginH, state.OriginK, state.OriginL);
  const double product = Product(state, h, k, l, state.OriginH, state.OriginK, state.OriginL);
  const Single cosine = to_single(
      divide(divide(product, g, "the length of a reflection"), axis_length, "the length of the fiber direction"));
  const Single angle = ArcCos(cosine);  // to the fiber axis, degrees

  ArcWalk arcs(state, picture, g, relative_strength(state, i, picture.exponent), task);
  for (const Single centre : {angle, -angle}) {
    arcs.walk(centre, LoopSense::Falling);
    arcs.walk(centre, LoopSense::Rising);
  }
  const auto [label_x, label_y] = arcs.ring().position(-double{angle});
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
