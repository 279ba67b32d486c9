// Electron diffraction of a fiber texture, the beam normal to the fiber axis: each reflection gives arcs at the radius
// 1/d, at its angle to the fiber axis and mirrored, spread by a Gaussian. Positions in inverse angstroms, x right, y up
// along the fiber axis while PatternAngle is 0.
//
// Texture arcs: Vainshtein, Structure Analysis by Electron Diffraction (1964), ch. 1.
#pragma once

#include <optional>
#include <vector>

#include "core/crystal_state.h"
#include "core/list_order.h"
#include "core/task.h"
#include "spots/texture_ring.h"

namespace zol {

/// The reflection list by RefI from entry 2 on, ascending; entry 1 and RefTwoTheta stay. Equal intensities end in the
/// order that a selection sort with exchanges gives, found in n log n steps.
/// @throws RunFailure  fewer than two reflections
[[nodiscard]] ListOrder order_by_intensity(const CrystalState& state, Task& task);

/// The picture that the arcs are for.
struct FiberPicture {
  int width_px = 0, height_px = 0;  ///< pixels that span -CamAcquisition to CamAcquisition
  std::optional<double> exponent;   ///< applied to the strongest intensity, to which the others are related
  IsBlack is_black = {};            ///< pixels already black, which arcs of more than one turn may skip; may be empty
};

/// A pixel of an arc, in inverse angstroms, and what it adds to the darkness there.
struct ArcPoint {
  Single x = 0, y = 0;
  Integer darkness;  ///< 0 to 255 for the strongest reflection, more with an exponent below 1
  bool operator==(const ArcPoint&) const = default;
};

/// What is drawn for one reflection: the points of its four arcs in turn, and its label.
struct FiberArcs {
  std::vector<ArcPoint> points;
  Single label_x = 0, label_y = 0;  ///< not at the arcs: the sine is taken of its angle in degrees
};

/// What the arcs of the whole list take, with what is drawn of them.
[[nodiscard]] Effort effort_of_arcs(const CrystalState& state, const FiberPicture& picture, Task& task);

/// Arcs of reflection i of the sorted list; none if it has no intensity or lies beyond the corner of the picture.
/// Points on the same pixel as the point before them are omitted. An arc of more than one turn has all that its further
/// turns add to a pixel in one point there, up to black.
/// @throws RunFailure  the fiber direction is zero, a darkness does not fit 16 bits, the dispersion is too large
[[nodiscard]] std::optional<FiberArcs> fiber_arcs(const CrystalState& state, int i, const FiberPicture& picture,
                                                  Task& task);

/// Grey level of a pixel after a point has been added, 0 (black) to 255 (white).
/// @param colour  what the pixel shows, packed as r + 256 g + 65536 b, of which the blue part counts; -1 outside the
///                picture
/// @throws RunFailure  the sum does not fit 16 bits
[[nodiscard]] int darkened_grey(Integer darkness, int colour);

}  // namespace zol
