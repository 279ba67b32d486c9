// Directions and rotations of indexing: the picture's frame, the crystal's Cartesian frame, sample axes, Euler angles.
//
// The picture's frame is right-handed: x to the right, y down, z from the specimen to the screen. The crystal's frame
// has e1 along a and e3 along c*, as core/lattice.h. An orientation is the rotation that takes a vector from the
// picture's frame into the crystal's: its columns are the axes of the picture as the crystal sees them.
#pragma once

#include <Eigen/Core>
#include <Eigen/Geometry>
#include <array>
#include <span>

namespace zol {

using Vector3 = Eigen::Vector3d;
using Rotation = Eigen::Matrix3d;

/// Angle of the rotation between two orientations, degrees.
[[nodiscard]] double misorientation_deg(const Rotation& a, const Rotation& b);

/// The same, the smallest over rotations of the crystal that leave it as it is.
[[nodiscard]] double misorientation_deg(const Rotation& a, const Rotation& b, std::span<const Rotation> symmetry);

/// Rotation by a vector along the axis, its length the angle in radians.
[[nodiscard]] Rotation rotation_of(const Vector3& axis_angle);

/// Bunge's angles phi1, Phi, phi2 of the rotation from sample to crystal axes, degrees; 0 to 360, 0 to 180, 0 to 360.
/// Where Phi is 0 or 180, phi2 is 0. Source: Bunge, Texture Analysis in Materials Science (1982) 2.1.2.
[[nodiscard]] std::array<double, 3> bunge_deg(const Rotation& crystal_from_sample);
[[nodiscard]] Rotation rotation_of_bunge(const std::array<double, 3>& angles_deg);

/// Unit quaternion w, x, y, z with w >= 0.
[[nodiscard]] std::array<double, 4> quaternion_of(const Rotation& rotation);

}  // namespace zol
