// The rows of a triple table that are solutions already, among which equivalents are looked for.
//
// Thousands of solutions stand against hundreds of thousands of candidates. Which reflections are alike is worked out
// once, so that only former solutions whose first reflection is like that of the candidate are looked at.
#pragma once

#include <optional>
#include <vector>

#include "analysis/triple_table.h"

namespace zol {

class FormerSolutions {
 public:
  explicit FormerSolutions(const TripleTable& table) : table_(table), by_first_(table.reflections()) {}

  void add(int row);

  /// Whether a former solution has the same three spacings and the same three intensities, each within 0.1 per cent of
  /// the former one. Neither the indices nor the direction count.
  /// @throws RunFailure  a former solution that is met before an equivalent has a spacing or an intensity of 0
  [[nodiscard]] bool has_equivalent(int row) const;
  /// The same by looking at each former solution in turn.
  [[nodiscard]] bool has_equivalent_plainly(int row) const;

 private:
  using Likeness = std::vector<bool>;
  [[nodiscard]] bool is_equivalent(int row, int former) const;
  [[nodiscard]] const Likeness& like(std::size_t reflection) const;

  const TripleTable& table_;
  std::vector<int> rows_;
  bool comparable_ = true;  ///< no division by a value of a former solution fails
  std::vector<std::vector<TripleTable::Triple>> by_first_;
  mutable std::vector<std::optional<Likeness>> like_{by_first_.size()};  ///< [candidate][former]
};

}  // namespace zol
