// Master patterns as programs ask for them: of a crystal of the program, made once and kept in the user's cache.
#pragma once

#include <memory>

#include "core/crystal_state.h"
#include "core/space_group.h"
#include "dynamics/master_pattern.h"
#include "indexing/kinematic_sphere.h"

namespace zol {

/// One voltage, all cores, the rest as it is left out.
[[nodiscard]] MasterSettings usual_master_settings(double kilovolt);

/// From the user's cache, or made and kept there. A cache that is full, damaged or cannot be written does no harm.
/// @throws RunFailure  as master_pattern
[[nodiscard]] MasterPattern kept_master(const DynamicCrystal& crystal, const MasterSettings& settings, Task& task);

/// The same of a crystal of the program.
/// @param group  null: no symmetry
/// @throws RunFailure  also as dynamic_crystal, and where the crystal has observed lines in place of atoms
[[nodiscard]] MasterPattern kept_master(const CrystalState& state, const SpaceGroup* group,
                                        const MasterSettings& settings, Task& task);

/// What pictures are fitted to: made of so many lines, and smoothed, as suits the size of their pixels.
/// @param pixel_deg  of fitted_pixel_deg
/// @throws RunFailure  as kept_master
[[nodiscard]] std::shared_ptr<const KinematicSphere> seen_sphere(const CrystalState& state, const SpaceGroup* group,
                                                                 MasterSettings settings, double pixel_deg, Task& task);

}  // namespace zol
