// Another order of the reflection list: found first, then applied to all arrays at once.
#pragma once

#include <vector>

#include "core/crystal_state.h"
#include "core/exchange_sort.h"
#include "core/task.h"

namespace zol {

/// The entry that goes to each place, from 0 to RefCount.
struct ListOrder {
  std::vector<int> from;
  bool with_structure_factors = false;  ///< RefA and RefB go with RefH, RefK, RefL, RefS and RefI; otherwise they stay
};

/// Brings the list into the order.
inline void reorder(Module1State& list, const ListOrder& order) {
  for (auto* array : {&list.RefS, &list.RefI}) reorder(*array, order.from);
  if (order.with_structure_factors) {
    for (auto* array : {&list.RefA, &list.RefB}) reorder(*array, order.from);
  }
  for (auto* array : {&list.RefH, &list.RefK, &list.RefL}) reorder(*array, order.from);
}

}  // namespace zol
