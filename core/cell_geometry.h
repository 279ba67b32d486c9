// Metric of the cell: the reciprocal cell, lengths and scalar products in both spaces, and the program's own inverse
// functions in degrees. Lengths in angstroms, reciprocal lengths in inverse angstroms (no 2 pi), angles in degrees.
//
// Source of the formulas: International Tables for Crystallography B (2001) 1.1.
#pragma once

#include "core/bounded_array.h"
#include "core/crystal_state.h"
#include "core/numbers.h"

namespace zol {

/// Sets the derived fields of the cell (cosines, sines, volume, reciprocal cell).
/// @returns false when no such cell exists; then only the cosines and sines have changed
/// @throws RunFailure  a division by zero
bool calc_cell(Main1State& cell);

/// One basis of the cell as all forms of its metric take it: three lengths and the cosines of the angles between them.
struct Axes {
  double a, b, c;
  double cos_alpha, cos_beta, cos_gamma;
};
[[nodiscard]] Axes direct_axes(const Main1State& cell);
[[nodiscard]] Axes reciprocal_axes(const Main1State& cell);

/// Length of h a* + k b* + l c*, that is 1/d, in inverse angstroms. (0, 0, 0) gives 0.
/// @throws RunFailure  the metric gives a negative square
[[nodiscard]] Single DHKL(const Main1State& cell, Integer h, Integer k, Integer l);
[[nodiscard]] Single DHKL_Long(const Main1State& cell, Long h, Long k, Long l);
[[nodiscard]] Single DHKLS(const Main1State& cell, Single h, Single k, Single l);

/// Length of u a + v b + w c in angstroms. @throws RunFailure  the metric gives a negative square
[[nodiscard]] Single DHKLT(const Main1State& cell, Single u, Single v, Single w);
[[nodiscard]] Single DHKLTI(const Main1State& cell, Integer u, Integer v, Integer w);

/// Scalar product of two reciprocal vectors, in square inverse angstroms.
[[nodiscard]] Single Product(const Main1State& cell, Integer h1, Integer k1, Integer l1, Integer h2, Integer k2,
                             Integer l2);
[[nodiscard]] Single Product_Long(const Main1State& cell, Long h1, Long k1, Long l1, Long h2, Long k2, Long l2);

/// Scalar product of two direct vectors, in square angstroms.
[[nodiscard]] Single ProductT(const Main1State& cell, Integer ua, Integer va, Integer wa, Integer ub, Integer vb,
                              Integer wb);
[[nodiscard]] Single ProductTS(const Main1State& cell, Single ua, Single va, Single wa, Single ub, Single vb,
                               Single wb);

/// 0 to 180 degrees; arguments beyond -1 and 1 give the end values. The quarter turn is 1.5708, so that ArcCos(0) is
/// just above 90.
[[nodiscard]] Single ArcCos(Single x);
/// -90 to 90 degrees; arguments beyond -1 and 1 give the end values.
[[nodiscard]] Single ArcSin(Single x);

/// d in angstroms of a reflection at this 2-theta (degrees) at the wavelength of the state.
/// @throws RunFailure  2-theta is 0
[[nodiscard]] Single Bragg(const Main1State& beam, Single two_theta_deg);

/// Inverts a matrix in place by Gauss-Jordan elimination with the largest pivot of the column, elements rounded to
/// Single. Indices 1 to n, n <= 10.
/// @returns false for a singular matrix, which is left partly eliminated
/// @throws RunFailure  n > 10, or an element passes the range of a Single
[[nodiscard]] bool Matrix(Integer n, BoundedTable<Single>& matrix);

}  // namespace zol
