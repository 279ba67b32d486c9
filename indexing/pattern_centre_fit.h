// Pattern centre and orientation from the bands of one picture.
#pragma once

#include <optional>
#include <span>

#include "indexing/orientation_vote.h"

namespace zol {

struct CentreFit {
  Rotation crystal_from_picture = Rotation::Identity();
  PatternCentre centre;
  double mean_deviation_deg = 0;  ///< of the bands from their planes
};

/// Least squares of rotation and centre over the bands, each a straight line on the picture, weighted by strength. The
/// bands were measured with the centre that is given; their lines do not depend on it.
/// @returns none where fewer than five bands match, or the lines do not determine a centre near the given one
[[nodiscard]] std::optional<CentreFit> fit_centre_on_bands(const VoteTable& table, std::span<const DetectedBand> bands,
                                                           const Rotation& start, const PatternCentre& centre,
                                                           double tolerance_deg);

}  // namespace zol
