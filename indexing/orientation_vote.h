// Orientations that explain the bands of a picture, by votes of pairs of bands checked on all the others.
//
// Two planes of the crystal that enclose the angle between two bands give an orientation each; every other band that
// falls on a plane of the crystal then votes for it, so that an orientation that three bands agree in stands out.
// Source: Morawiec, Acta Cryst. A76 (2020) 719, for the scheme; angles between planes are looked up in a sorted table.
#pragma once

#include <span>
#include <vector>

#include "indexing/band_detection.h"
#include "indexing/reflectors.h"

namespace zol {

/// What depends only on the crystal: the planes that vote, the angles between them, and which is near a direction.
class VoteTable {
 public:
  /// @param families_used  of each family of the set, whether it votes; shorter: the others do not
  /// @throws RunFailure    fewer than three planes in different directions are left
  VoteTable(const ReflectorSet& reflectors, const std::vector<bool>& families_used, Task& task);

  struct Pair {
    float cosine;    ///< of the acute angle between the two planes, ascending
    Rotation frame;  ///< columns: the bisector of the normals, the direction across, their vector product
  };
  [[nodiscard]] const std::vector<Pair>& pairs() const { return pairs_; }
  /// The voting planes; index of the member in the set.
  [[nodiscard]] const std::vector<Reflector>& planes() const { return planes_; }
  [[nodiscard]] std::span<const Rotation> symmetry() const { return symmetry_; }
  /// The plane whose normal is nearest to a direction or its opposite; -1 where none is within some 6 degrees.
  [[nodiscard]] int nearest(const Vector3& unit_direction) const;

 private:
  std::vector<Reflector> planes_;
  std::vector<Pair> pairs_;
  std::vector<Rotation> symmetry_;
  std::vector<short> map_;  ///< of the half sphere, stereographic
};

struct VoteSettings {
  double tolerance_deg = 2.5;  ///< between a band and the plane that it is taken for
  int most_solutions = 10;
  bool turn_onto_bands = true;  ///< by least squares over all that match; else two bands alone tell the orientation
};

struct MatchedBand {
  int band = 0;     ///< of those detected
  int plane = -1;   ///< of the voting ones; -1 where none fits
  double sign = 1;  ///< by which the plane's normal lies on the band's
  double deviation_deg = 0;
};

struct Orientation {
  Rotation crystal_from_picture = Rotation::Identity();
  double votes = 0;  ///< sum over matched bands, 1 for one without deviation
  int matched = 0;
  double mean_deviation_deg = 0;
};

/// Holds its storage for the next picture.
class OrientationVote {
 public:
  /// Distinct orientations, the one with most votes first; none where fewer than three bands agree.
  std::span<const Orientation> vote(const VoteTable& table, std::span<const DetectedBand> bands,
                                    const VoteSettings& settings, Task& task);

 private:
  struct Candidate {
    float votes;
    Rotation rotation;
    static bool more_votes(const Candidate& a, const Candidate& b) { return a.votes > b.votes; }
  };
  /// Leaves the best few candidates. @returns the votes of the least of them
  double keep_best();

  std::vector<Candidate> candidates_;
  std::vector<Vector3> normals_, turned_;
  std::vector<MatchedBand> matches_;
  std::vector<Orientation> solutions_;
};

/// For each band the plane that it is taken for in an orientation.
void match_bands(const VoteTable& table, std::span<const DetectedBand> bands, const Rotation& crystal_from_picture,
                 double tolerance_deg, std::vector<MatchedBand>& matches);

/// Least squares of the rotation over matched bands, weighted by their strength; the same where fewer than two match.
/// Source: Markley, J. Astronaut. Sci. 36 (1988) 245.
[[nodiscard]] Rotation fit_orientation(const VoteTable& table, std::span<const DetectedBand> bands,
                                       std::span<const MatchedBand> matches, const Rotation& start);

}  // namespace zol
