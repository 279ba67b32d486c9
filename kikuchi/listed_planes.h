// The planes of the reflection list around the zone axis. The grey scale and the lines of a pattern need the same
// angles of them: each is worked out when it is first asked for, and once.
#pragma once

#include <optional>
#include <vector>

#include "core/crystal_state.h"
#include "core/triples.h"

namespace zol {

class ListedPlanes {
 public:
  /// @param state  cell, zone axis, wavelength and list of it stay the same as long as this lives
  explicit ListedPlanes(const CrystalState& state);

  struct Place {
    Single length = 0;        ///< 1/d
    Single latitude_deg = 0;  ///< angle of the reciprocal vector above the plane normal to the axis
  };
  /// @param i  0 to RefCount
  /// @throws RunFailure  a zero reflection or zone axis
  [[nodiscard]] Place place(int i);
  /// Of the reflection, whose place has been asked for.
  [[nodiscard]] Single bragg_angle_deg(int i);

  [[nodiscard]] Indices<Integer> indices(int i) const { return {state_.RefH(i), state_.RefK(i), state_.RefL(i)}; }
  [[nodiscard]] const CrystalState& state() const { return state_; }

 private:
  const CrystalState& state_;
  std::optional<Single> axis_length_;
  std::vector<Place> places_;  ///< of length 0: not yet asked for
  Single last_length_ = 0;     ///< whose Bragg angle was asked for last: those of a family follow each other
  Single last_bragg_angle_deg_ = 0;
};

/// Angle of the reciprocal vector above the plane normal to the zone axis, and its length.
/// @throws RunFailure  a zero reflection or zone axis
[[nodiscard]] ListedPlanes::Place place_of_plane(const CrystalState& state, const Indices<Integer>& hkl,
                                                 std::optional<Single>& axis_length);
/// Bragg angle in degrees of a spacing of 1 / length.
[[nodiscard]] Single bragg_angle_deg(const CrystalState& state, Single length);

/// Whether the tangent of an angle of degrees, as the program has them, is below a limit: nearly always decided by the
/// angle itself.
class TangentLimit {
 public:
  explicit TangentLimit(double limit);
  /// @param angle_deg  not below 0
  [[nodiscard]] bool above(Single angle_deg) const;

 private:
  double limit_;
  double surely_below_deg_, surely_not_below_deg_;
};

}  // namespace zol
