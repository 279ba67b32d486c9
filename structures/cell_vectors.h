// The three edges of a cell as vectors, for formats that give these in place of lengths and angles.
#pragma once

#include <array>

#include "core/lattice.h"
#include "structures/notes.h"

namespace zol {

/// Edges and positions in the frame of the file, in angstroms.
struct CellVectors {
  std::array<CartesianVector, 3> edges{};  ///< a, b, c

  /// Cubic angstroms; below 0 where the edges are left-handed.
  [[nodiscard]] double volume() const;
  /// Left-handed edges, of which the crystal comes out mirrored, are noted.
  /// @throws RunFailure  the edges make no cell that atoms fit into
  [[nodiscard]] CellConstants cell(Notes& notes) const;
  /// @param position  in the frame of the edges, angstroms; the volume must not be 0
  [[nodiscard]] DirectVector fractional(const CartesianVector& position) const;
};

}  // namespace zol
