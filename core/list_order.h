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

inline void reorder(Module1State& list, const ListOrder& order) {
  for (auto* array : {&list.RefS, &list.RefI}) reorder(*array, order.from);
  if (order.with_structure_factors) {
    for (auto* array : {&list.RefA, &list.RefB}) reorder(*array, order.from);
  }
  for (auto* array : {&list.RefH, &list.RefK, &list.RefL}) reorder(*array, order.from);
}

/// Puts the list in an order, and restores it at the end of the scope unless keep() was called.
class ReorderedList {
 public:
  ReorderedList(Module1State& list, const ListOrder& order) : list_(list), back_{{}, order.with_structure_factors} {
    back_.from.resize(order.from.size());
    int place = 0;
    for (const int from : order.from) back_.from[static_cast<std::size_t>(from)] = place++;
    reorder(list_, order);
  }
  ReorderedList(const ReorderedList&) = delete;
  ReorderedList& operator=(const ReorderedList&) = delete;
  ~ReorderedList() {
    if (!kept_) reorder(list_, back_);
  }
  void keep() { kept_ = true; }

 private:
  Module1State& list_;
  ListOrder back_;
  bool kept_ = false;
};

}  // namespace zol
