// A lattice in double precision: its direct and its reciprocal basis in one Cartesian frame.
//
// The frame is right-handed with e1 along a and e3 along c*. Lengths are in angstroms, reciprocal lengths in inverse
// angstroms without a factor 2 pi, so that a . a* = 1. A vector has a type of its own for each of the three spaces.
//
// Source: International Tables for Crystallography B (2001) 1.1.
#pragma once

#include <array>

namespace zol {

/// u a + v b + w c.
struct DirectVector {
  double u = 0, v = 0, w = 0;
  bool operator==(const DirectVector&) const = default;
};

/// h a* + k b* + l c*.
struct ReciprocalVector {
  double h = 0, k = 0, l = 0;
  bool operator==(const ReciprocalVector&) const = default;
};

/// Along e1, e2, e3; in angstroms or in inverse angstroms, as the space that it came from.
struct CartesianVector {
  double x = 0, y = 0, z = 0;
  bool operator==(const CartesianVector&) const = default;
};

[[nodiscard]] double dot(const CartesianVector& a, const CartesianVector& b);
[[nodiscard]] CartesianVector cross(const CartesianVector& a, const CartesianVector& b);
[[nodiscard]] double length(const CartesianVector& vector);
/// Angle between two vectors, 0 to 180 degrees, exact also near both ends; 0 when one of them has no length.
[[nodiscard]] double angle_deg(const CartesianVector& a, const CartesianVector& b);

/// Edges in angstroms (of a reciprocal cell in inverse angstroms), angles in degrees: alpha between b and c, beta
/// between c and a, gamma between a and b.
struct CellConstants {
  double a = 1, b = 1, c = 1;
  double alpha = 90, beta = 90, gamma = 90;
  bool operator==(const CellConstants&) const = default;
};

/// The two bases of a cell; immutable.
class Lattice {
 public:
  /// @throws RunFailure  an edge that is not above 0, an angle not between 0 and 180, angles that span no volume (V/abc
  /// of 1e-6 and below), or a volume beyond the range of a Double
  explicit Lattice(const CellConstants& cell);

  [[nodiscard]] const CellConstants& cell() const { return cell_; }
  [[nodiscard]] CellConstants reciprocal_cell() const;
  [[nodiscard]] double volume() const;  ///< cubic angstroms

  /// Conversions of a vector from one of both spaces to the frame, and back.
  [[nodiscard]] CartesianVector cartesian(const DirectVector& vector) const;
  [[nodiscard]] CartesianVector cartesian(const ReciprocalVector& vector) const;
  [[nodiscard]] DirectVector direct(const CartesianVector& vector) const;
  [[nodiscard]] ReciprocalVector reciprocal(const CartesianVector& vector) const;

  /// Interplanar spacing in angstroms. @throws RunFailure  the indices are 0 or not numbers
  [[nodiscard]] double spacing(const ReciprocalVector& hkl) const;

 private:
  CellConstants cell_;
  std::array<CartesianVector, 3> edges_{};       ///< a, b, c
  std::array<CartesianVector, 3> reciprocal_{};  ///< a*, b*, c*
};

}  // namespace zol
