// From lattice planes of known inclination to the direction of the beam.
//
// A plane (hkl) whose normal makes an angle with the beam gives one linear equation, h u + k v + l w = |g| cos(angle).
// Three independent planes are solved by inversion; planes of one zone need the length of the direction as well.
#pragma once

#include <array>

#include "core/bounded_array.h"
#include "core/crystal_state.h"
#include "core/triples.h"

namespace zol {

/// Values of MatchStatus. One root in case 1, 2, 3 is 11, 12, 13; two roots are 21, 22, 23.
namespace match_status {
inline constexpr int inverted = 0;
inline constexpr int singular = 1;
inline constexpr int no_real_root = 2;         ///< case 1 or 2
inline constexpr int no_real_root_case_3 = 3;  ///< case 3
inline constexpr int parallel_planes = 4;
inline constexpr int one_root = 10;   ///< and the case
inline constexpr int two_roots = 20;  ///< and the case
}  // namespace match_status

/// Inverts a matrix in place, indices 1 to n, n <= 10. There is no tolerance: only a pivot of exactly 0 is singular.
/// @returns 0 for an inverse, 1 for a singular matrix, which is left partly eliminated
[[nodiscard]] Integer InvertMatrix(Integer n, BoundedTable<Single>& a);

/// The two roots. The components are u, v, w only in case 1; case 2 gives v, w, u and case 3 gives w, u, v.
struct TwoDirections {
  SingleTriple A1{};
  SingleTriple A2{};
};

/// Directions of unit length that make the angles of the given cosines with the first two planes; the third plane is
/// not used. The case is that of the first minor different from 0, of u, w and v.
/// @returns MatchStatus: 2, 3 without a real root, 4 for parallel planes (the directions stay); one or two roots
/// @throws RunFailure  a minor beyond 16 bits, or a quadratic without its square term
[[nodiscard]] Integer SolveTwoPlanes(const Main1State& cell, const std::array<Indices<Integer>, 3>& planes,
                                     const SingleTriple& cosines, TwoDirections& directions);

}  // namespace zol
