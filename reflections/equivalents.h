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

namespace zol {

struct IndexTriple {
  Single h = 0, k = 0, l = 0;
  bool operator==(const IndexTriple&) const = default;
};

/// All equivalents of (h, k, l) in the Laue class of a space group number, in the order of the class's table; repeats
/// stand as they come. Empty for numbers outside 1 to 230.
[[nodiscard]] std::vector<IndexTriple> equivalent_indices(Integer space_group_number, const IndexTriple& hkl);

/// Factor from the observed intensity of a form to the value of one reflection of it, 1 outside 1 to 230.
[[nodiscard]] int form_weight(Integer space_group_number, const IndexTriple& hkl);

/// The observed reflections of a crystal with all their equivalents, ready to be asked.
class ObservedReflections {
 public:
  ObservedReflections() = default;  ///< none
  explicit ObservedReflections(const CrystalState& state);

  /// Weighted value of the last row that is equivalent to (h, k, l); none when there is no such row.
  [[nodiscard]] std::optional<Single> value(Integer h, Integer k, Integer l) const;

 private:
  std::unordered_map<long long, Single> values_;
};

/// Sets RefA(i) to the weighted value of the observed reflection that reflection i of the list is equivalent to.
/// RefA(i) stays when there is none.
void JcpdsFactor(CrystalState& state, const ObservedReflections& observed, int i);

}  // namespace zol
