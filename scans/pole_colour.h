// Colours of directions in a crystal: the key of inverse pole figures.
//
// A direction is taken into the standard sector of the Laue group, a part of the sphere in which no two directions are
// equivalent. With the polar angle chi from the sector's axis and the azimuth eta, red falls from the axis to the rim,
// green and blue from either side to the other.
// Source: Nolze & Hielscher, J. Appl. Cryst. 49 (2016) 1786, section 2, for the classic key and its sectors.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "core/lattice.h"
#include "indexing/orientation.h"

namespace zol {

using Rgb = std::array<std::uint8_t, 3>;

/// "-1" to "m-3m" of the proper rotations of a crystal.
[[nodiscard]] std::string laue_class_of(std::span<const Rotation> rotations);

class PoleColours {
 public:
  /// @param rotations  proper ones of the Laue group, in the frame of core/lattice.h
  explicit PoleColours(std::vector<Rotation> rotations);

  /// Colour of a direction in the crystal's frame; the same for all that are equivalent, and for the opposite ones.
  [[nodiscard]] Rgb colour(const Vector3& direction) const;

  // The sector, in its own frame: z along its axis, eta from x.
  [[nodiscard]] double eta_end_deg() const { return eta_end_; }
  [[nodiscard]] double chi_end_deg(double eta_deg) const;
  /// Colour of a place in the sector.
  [[nodiscard]] Rgb colour_at(double chi_deg, double eta_deg) const;
  /// The crystal's direction at a place in the sector.
  [[nodiscard]] Vector3 direction(double chi_deg, double eta_deg) const;

 private:
  std::vector<Rotation> into_sector_;  ///< the crystal's rotations, then the turn into the sector's frame
  Rotation sector_from_crystal_ = Rotation::Identity();
  double eta_end_ = 360;
  bool cubic_ = false;
};

/// The direct lattice direction of small indices along a direction, as "[0 0 1]"; else the plane, as "(1 0 0)"; empty
/// where neither lies within half a degree.
[[nodiscard]] std::string indices_along(const Lattice& lattice, const Vector3& direction);

}  // namespace zol
