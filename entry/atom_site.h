// One row of the atom sites, from a table or a structure file.
#pragma once

#include <optional>
#include <string>

#include "core/crystal_state.h"
#include "core/triples.h"

namespace zol {

struct AtomSite {
  std::string label;
  std::string element;
  Single occupancy = 1;
  SingleTriple position{};       ///< fractional
  std::optional<Single> b = {};  ///< square angstroms; none: the crystal's row keeps its value
};

/// Copies a site to a row of the asymmetric unit; NAtom stays.
/// @param row  from 1
/// @throws RunFailure  the crystal has no such row
void store_site(Module1State& crystal, int row, const AtomSite& site);

}  // namespace zol
