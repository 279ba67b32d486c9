// Three numbers that belong together. The name of a variable says which space they belong to. Vectors in Doubles, with
// a type for each space, are in core/lattice.h.
#pragma once

#include <array>

#include "core/numbers.h"

namespace zol {

/// Whole indices of a reflection h k l, or of a direction u v w, 16 or 32 bits wide.
template <class Whole>
struct Indices {
  Whole h, k, l;
  bool operator==(const Indices&) const = default;
};

/// Components in the direct or the reciprocal lattice, whole or not.
using SingleTriple = std::array<Single, 3>;

[[nodiscard]] inline SingleTriple as_singles(const Indices<Integer>& indices) {
  return {to_single(indices.h.value()), to_single(indices.k.value()), to_single(indices.l.value())};
}

}  // namespace zol
