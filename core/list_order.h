// Another order of the reflection list: found first, then taken over by all arrays at once.
#pragma once

#include <utility>
#include <vector>

#include "core/crystal_state.h"
#include "core/exchange_sort.h"
#include "core/task.h"

namespace zol {

/// Which entry comes to stand at each place, from 0 to RefCount.
struct ListOrder {
  std::vector<int> from;
  bool with_structure_factors = false;  ///< RefA and RefB go with RefH, RefK, RefL, RefS and RefI; else they stay
};

/// Brings the list into the order.
inline void reorder(Module1State& list, const ListOrder& order) {
  for (auto* array : {&list.RefS, &list.RefI}) reorder(*array, order.from);
  if (order.with_structure_factors) {
    for (auto* array : {&list.RefA, &list.RefB}) reorder(*array, order.from);
  }
  for (auto* array : {&list.RefH, &list.RefK, &list.RefL}) reorder(*array, order.from);
}

/// The same search, which asks at each round whether to go on.
[[nodiscard]] inline FindEntry with_checks(FindEntry find, Task& task) {
  return [find = std::move(find), &task](const TournamentTree& left) {
    task.check();
    return find(left);
  };
}

}  // namespace zol
