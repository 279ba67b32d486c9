// The plain selection sorts that define the orders of the list: what the faster way must agree with.
#pragma once

#include <numeric>
#include <utility>
#include <vector>

#include "analysis/triple_table.h"
#include "kikuchi/kikuchi_pattern.h"
#include "spots/fiber_texture.h"
#include "tests/lists.h"

namespace zol {

/// A plain sort: in each round from `first` on, keys that lie beyond a bound are taken, each giving the next bound.
struct ListSort {
  const char* name;
  void (*sort)(CrystalState&);
  int first;
  double start;  ///< bound of each round
  bool descending = false, rounds_bound = false, skip_without = false;
  int smallest_list = 0;
};

template <ListOrder (*order)(const CrystalState&, Task&)>
void sort_by(CrystalState& state) {
  QuietTask task;
  reorder(state, order(state, task), task);
}

inline constexpr ListSort list_sorts[] = {
    {"length", sort_by_s, 1, 1000},
    {"weighted_intensity", sort_by<order_by_weighted_intensity>, 1, 0, true, false, true},
    {"fiber_texture", sort_by<order_by_intensity>, 2, 1000000, false, false, false, 2},
    {"kikuchi_pattern", sort_by<order_for_kikuchi>, 1, 10000, false, true, false, 1}};

/// Which entry stands at each place of the sorted list.
inline std::vector<int> plain_order(std::vector<Single> keys, const ListSort& rule) {
  std::vector<int> order(keys.size());
  std::iota(order.begin(), order.end(), 0);
  std::size_t found = 0;
  for (auto place = static_cast<std::size_t>(rule.first); place + 1 < keys.size(); ++place) {
    double bound = rule.start;
    for (std::size_t i = place; i < keys.size(); ++i) {
      if (!(rule.descending ? keys[i] > bound : keys[i] < bound)) continue;
      found = i;
      bound = rule.rounds_bound ? round_half_even(keys[i]) : keys[i];
    }
    if (found == 0 && rule.skip_without) continue;
    std::swap(keys[place], keys[found]);
    std::swap(order[place], order[found]);
  }
  return order;
}

}  // namespace zol
