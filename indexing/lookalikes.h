// Orientations of a crystal whose bands lie where those of another one lie, though the whole pattern is another.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "core/lattice.h"
#include "indexing/orientation.h"

namespace zol {

/// An operation on directions of the crystal that keeps its cell and is none of its point group.
struct Lookalike {
  Rotation rotation = Rotation::Identity();
  /// The inversion beside it: only a crystal of the other hand has this pattern.
  bool other_hand = false;

  /// What takes the picture's directions to those where the crystal has the pattern of the look-alike.
  [[nodiscard]] Rotation applied(const Rotation& crystal_from_picture) const {
    return other_hand ? Rotation(-rotation * crystal_from_picture) : Rotation(rotation * crystal_from_picture);
  }
};

/// The point group in the crystal's frame, the identity first, of operators given as rotation parts on fractional
/// coordinates, row by row. What does not keep the cell's metric within 2 % is left out.
[[nodiscard]] std::vector<Rotation> point_group(const Lattice& lattice,
                                                std::span<const std::array<std::array<double, 3>, 3>> operators);

/// One of each coset of the point group among the operations that keep the cell within 2 %, but for the group itself:
/// those that the inversion adds, which for bands are symmetry, and those of twins whose lattices coincide. A proper
/// rotation stands for a coset that has one.
[[nodiscard]] std::vector<Lookalike> lookalikes_of(const Lattice& lattice, std::span<const Rotation> point_group);

}  // namespace zol
