// One row of the atom sites, as a table or a structure file gives it.
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
  std::optional<Single> b = {};  ///< square angstroms; none: what stands in the crystal's row stays
};

/// @param row  from 1
/// @throws RunFailure  the crystal has no such row
void store_site(Module1State& crystal, int row, const AtomSite& site);

}  // namespace zol
