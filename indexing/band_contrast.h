// How well the bands of a crystal stand out in its dynamical pattern, which is not as their structure factors have it.
#pragma once

#include <memory>

#include "indexing/pattern_indexer.h"

namespace zol {

/// Mean brightness within the Bragg angles of a plane, less that of as much beyond them, over all directions.
[[nodiscard]] double band_contrast(const KinematicSphere& sphere, const Vector3& normal, double bragg_rad);

/// Orders the families by the contrast of their bands times their width. The weights stay.
/// Source, for the idea: Wright, Singh & De Graef, Microsc. Microanal. 25 (2019) 675.
void rank_by_contrast(ReflectorSet& reflectors, const KinematicSphere& sphere, Task& task);

/// The same crystal with its dynamical pattern: what stands out in it votes.
/// @param family_count  as voting_families has it
[[nodiscard]] CrystalModel with_pattern(const CrystalModel& drawn, std::shared_ptr<const KinematicSphere> pattern,
                                        int family_count, Task& task);

}  // namespace zol
