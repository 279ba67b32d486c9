// A solution in words and as JSON, to be pasted into a notebook or read by another program.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "indexing/detector.h"
#include "indexing/pattern_indexer.h"

namespace zol {

struct ReportedSolution {
  const IndexSolution* solution = nullptr;
  std::span<const DetectedBand> bands;
  std::span<const MatchedBand> matches;
  PictureSize size;
  PatternCentre centre;  ///< of the picture as it is, turned upside down
  double sample_tilt_deg = 70;
  std::optional<double> kinematic = std::nullopt;  ///< correlation of the drawn bands, where the fit was dynamical
};

/// Components [u v w] of the direction in the middle of the picture, the largest 1.
[[nodiscard]] std::array<double, 3> middle_direction(const ReportedSolution& reported);

/// Crystal, centre in the conventions of the makers, orientation as matrix, quaternion and Euler angles, bands.
[[nodiscard]] std::vector<std::string> report_lines(const ReportedSolution& reported);
/// The same, angles in degrees, lengths in widths of the picture.
[[nodiscard]] std::string report_json(const ReportedSolution& reported);

}  // namespace zol
