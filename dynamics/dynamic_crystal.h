// A crystal as dynamical diffraction sees it: atoms of the cell with electron scattering factors, and its point group.
#pragma once

#include <Eigen/Core>
#include <array>
#include <vector>

#include "core/crystal_state.h"
#include "core/lattice.h"
#include "core/space_group.h"

namespace zol {

/// Scattering factor for electrons at rest: sum of a exp(-b s^2) in angstroms, s = sin(theta)/lambda in 1/angstrom.
struct GaussianFactor {
  std::array<double, 4> a{}, b{};
};

/// Atoms of one element, charge aside, that vibrate alike.
struct AtomKind {
  GaussianFactor factor;
  int atomic_number = 0;
  double b_iso = 0;  ///< square angstroms
};

struct DynamicAtom {
  std::size_t kind = 0;
  double occupancy = 1;
  std::array<double, 3> position{};  ///< fractional
};

/// Of the asymmetric unit, as the crystal's setting has it.
struct DynamicSite {
  int atomic_number = 0;
  double occupancy = 1;
  std::array<double, 3> position{};  ///< fractional
  double b_iso = 0;                  ///< square angstroms
};

struct DynamicCrystal {
  CellConstants cell;
  std::vector<DynamicSite> sites;
  std::vector<AtomKind> kinds;
  std::vector<DynamicAtom> atoms;
  /// Of the point group, not the Laue group: on directions in the frame of core/lattice.h; the identity first.
  std::vector<Eigen::Matrix3d> operations;
  std::vector<std::array<double, 3>> centring;  ///< translations of the lattice within the cell, the zero one left out
  bool centrosymmetric = false;                 ///< the origin lies on a centre then
  int space_group = 1;
  int assumed_b = 0;  ///< sites whose missing B was taken as usual_b_iso

  [[nodiscard]] Lattice lattice() const { return Lattice(cell); }
};

/// Where a site tells no B, square angstroms.
inline constexpr double usual_b_iso = 0.5;

/// From the unit cell of the state and its table of electron scattering factors.
/// @param group  null: no symmetry. Operators that do not keep the cell's metric within 2 % are left out.
/// @throws RunFailure  no atoms, an element without a scattering factor for electrons, or no cell
[[nodiscard]] DynamicCrystal dynamic_crystal(const CrystalState& state, const SpaceGroup* group);

}  // namespace zol
