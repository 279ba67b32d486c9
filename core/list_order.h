// Another order of the reflection list: found first, then applied to all arrays at once.
#pragma once

#include <utility>
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

/// Brings the list into the order, all of it or, when the task stops, nothing.
inline void reorder(Module1State& list, const ListOrder& order, Task& task) {
  const auto ordered = [&order, &task](auto array) {
    reorder(array, order.from, task);
    return array;
  };
  auto s = ordered(list.RefS);
  auto i = ordered(list.RefI);
  auto h = ordered(list.RefH);
  auto k = ordered(list.RefK);
  auto l = ordered(list.RefL);
  if (order.with_structure_factors) {
    auto a = ordered(list.RefA);
    list.RefB = ordered(list.RefB);
    list.RefA = std::move(a);
  }
  list.RefS = std::move(s);
  list.RefI = std::move(i);
  list.RefH = std::move(h);
  list.RefK = std::move(k);
  list.RefL = std::move(l);
}

}  // namespace zol
