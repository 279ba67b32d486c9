// The lattice planes of a crystal that make bands, gathered into families.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "core/lattice.h"
#include "core/task.h"
#include "indexing/lookalikes.h"

namespace zol {

/// A reflection with the square of its structure factor, in units of any kind.
struct ListedReflection {
  std::array<int, 3> hkl{};
  double weight = 0;
};

/// Lattice planes that the crystal's rotations and the inversion take into each other.
struct ReflectorFamily {
  std::array<int, 3> hkl{};  ///< of the first member
  double spacing = 0;        ///< angstroms
  double weight = 0;         ///< of one reflection
  double bragg_rad = 0;      ///< Bragg angle, half the width of the band
  int first = 0, count = 0;  ///< where its members are
};

/// One plane of a family, of (h k l) and (-h -k -l) only one.
struct Reflector {
  std::array<int, 3> hkl{};
  Vector3 normal = Vector3::UnitZ();  ///< unit, in the crystal's frame
  int family = 0;
};

struct ReflectorSet {
  CellConstants cell;
  std::vector<ReflectorFamily> families;  ///< the strongest first
  std::vector<Reflector> members;         ///< family by family
  std::vector<Rotation> symmetry;         ///< rotations of the crystal's class with the inversion, the identity first
  std::vector<Lookalike> lookalikes;      ///< where the point group is known
};

/// Proper rotations in the crystal's frame of operators given as rotation parts on fractional coordinates, row by row;
/// one that turns the handedness counts with its inversion. What does not keep the cell's metric within 2 % is left
/// out, so that a wrong group does no harm.
[[nodiscard]] std::vector<Rotation> proper_rotations(const Lattice& lattice,
                                                     std::span<const std::array<std::array<double, 3>, 3>> operators);

/// Gathers the reflections into families, ordered by the weight of a reflection times its share of the bands that can
/// be seen. Weights of equivalent reflections are those of the first one.
/// @param wavelength  angstroms; reflections without a Bragg angle are left out
[[nodiscard]] ReflectorSet make_reflectors(const Lattice& lattice, std::span<const Rotation> symmetry,
                                           std::span<const ListedReflection> reflections, double wavelength,
                                           Task& task);

}  // namespace zol
