// Electron spot pattern of one crystal: the points of a Laue zone in projection along the beam, with their kinematic
// intensities. Reciprocal lengths in inverse angstroms; positions in the unit of 1/(2d), x right, y up, the beam in the
// origin, +x along the reference reflection while PatternAngle is 0.
//
// Kinematic theory of diffraction: Hirsch et al., Electron Microscopy of Thin Crystals (1965), ch. 4.
#pragma once

#include <functional>
#include <vector>

#include "core/crystal_state.h"
#include "core/task.h"
#include "reflections/structure_factor.h"
#include "spots/grey_scale.h"
#include "spots/zone_geometry.h"

namespace zol {

/// One spot of the picture.
struct DiffractionSpot {
  Integer h, k, l;
  Single x = 0, y = 0;   ///< 1/(2d), projected on the plane normal to the beam
  Single intensity = 0;  ///< |F|^2
  bool operator==(const DiffractionSpot&) const = default;
};

/// Visits the reflections h u + k v + l w = Level, within 0.0001, that the lattice letter allows and whose indices do
/// not exceed 2 CamAcquisition / a* and so on; h outermost, l innermost, all rising. If w is not 0, only those l are
/// tried that can lie on the level.
/// @throws RunFailure  no cell, limits or reference reflection beyond 16 bits
void visit_reflections_on_level(const CrystalState& state, const std::function<void(const Indices<Integer>&)>& visit,
                                Task& task);

struct SpotPattern {
  std::vector<DiffractionSpot> spots;
  Single last_s = 0;             ///< RefS of the last spot
  Amplitude last_f;              ///< RefA and RefB of it
  bool scatter_missing = false;  ///< an element of a spot has no scattering factor
};

/// All reflections on the level whose projection lies inside the square of half width CamAcquisition, in that order,
/// including those of intensity 0.
/// @throws RunFailure  zero axis or zero reference reflection, indices beyond 16 bits, no reflection arrays, a spot
///                     whose direction cosine to the reference squares to more than 1.0001
[[nodiscard]] SpotPattern diffraction_spots(const CrystalState& state, const Radiation& radiation, Task& task);

/// Writes the last spot to entry 0 of the reflection arrays and sets ScatterMissing to 1 if a scattering factor was
/// missing. Without spots nothing changes.
void leave_last_spot(const SpotPattern& pattern, CrystalState& state);

/// The intensity of the strongest spot; 0 when there is none.
[[nodiscard]] Single strongest_intensity(const std::vector<DiffractionSpot>& spots);

/// Grey level of a spot, 0 (black) to 255 (white, not to be drawn).
/// @throws RunFailure  the black intensity is 0
[[nodiscard]] int spot_grey(Single intensity, Single black_intensity, const GreyScale& scale);

}  // namespace zol
