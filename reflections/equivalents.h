// Observed powder reflections spread over their symmetry-equivalent indices.
//
// A powder line is observed once for a whole form {hkl}. The value that a reflection takes is the observed one times
// the weights of the Laue class of the space group; the equivalent indices of each class are a table.
#pragma once

#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/crystal_state.h"
#include "core/triples.h"

namespace zol {

/// All equivalents of (h, k, l) in the Laue class of a space group number, in the order of the table of the class, with
/// repeats. Empty for numbers outside 1 to 230.
[[nodiscard]] std::vector<SingleTriple> equivalent_indices(Integer space_group_number, const SingleTriple& hkl);

/// Factor from the observed intensity of a form to the value of one reflection of it, 1 outside 1 to 230.
[[nodiscard]] int form_weight(Integer space_group_number, const SingleTriple& hkl);

/// The observed reflections of a crystal with all their equivalents, for look-up by index.
class ObservedReflections {
 public:
  ObservedReflections() = default;  ///< none
  explicit ObservedReflections(const CrystalState& state);

  /// Weighted value, in the unit of JcpdsI, of the last row that is equivalent to (h, k, l); none when there is no such
  /// row.
  [[nodiscard]] std::optional<Single> JcpdsFactor(Integer h, Integer k, Integer l) const;

 private:
  std::unordered_map<long long, Single> values_;
};

}  // namespace zol
