// The orders that selection sorts by exchange leave, in n log n.
//
// The program's lists were always sorted by exchanging the place under work with the entry found after it. That
// leaves equal keys in an order of its own, so that a stable sort gives other lists. Here a tournament tree over the
// positions finds the entry of each round.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "core/bounded_array.h"
#include "core/task.h"

namespace zol {

/// Keys of positions 0 to n; the smallest key of each subtree is stored.
class TournamentTree {
 public:
  TournamentTree(std::span<const double> keys, Task& task);

  [[nodiscard]] double key(int position) const { return nodes_[leaf(position)]; }
  void set(int position, double key);
  /// Takes a position out of all searches.
  void remove(int position);

  /// Smallest key; infinity when nothing is left.
  [[nodiscard]] double smallest() const { return nodes_[1]; }
  /// The first position whose key is not above a bound; none when there is none.
  [[nodiscard]] std::optional<int> first_not_above(double bound) const;
  /// The last position whose key is below a bound.
  [[nodiscard]] std::optional<int> last_below(double bound) const;

 private:
  [[nodiscard]] std::size_t leaf(int position) const { return leaves_ + static_cast<std::size_t>(position); }

  std::size_t leaves_ = 1;
  std::vector<double> nodes_;  // node i has the children 2 i and 2 i + 1
};

/// What a round finds among the positions that are left: a position, or none when no key counts.
using FindEntry = std::function<std::optional<int>(const TournamentTree& left)>;

/// The first smallest key below a limit.
[[nodiscard]] FindEntry first_smallest_below(double limit);

/// Which entry comes to stand at each position when the places `first` to n - 1 are exchanged, one after the other,
/// with the entry that the round finds at or after its place. A round that finds nothing takes the position of the
/// round before; as long as none has found anything that is entry 0, or, when `skip_without` is set, nothing is
/// exchanged.
/// @param keys  of positions 0 to n; entry 0 takes part only as that position
/// @param task  checked every 1024 rounds, and while the tree is made
[[nodiscard]] std::vector<int> exchange_order(std::span<const double> keys, int first, const FindEntry& find,
                                              bool skip_without, Task& task);

/// Puts entry order[i] at position i: everywhere or, when the task stops, nowhere.
template <class Value>
void reorder(BoundedArray<Value>& array, std::span<const int> order, Task& task) {
  constexpr std::size_t between_checks = 1U << 16U;  // some 2 ms
  const auto& before = std::as_const(array);
  std::vector<Value> sorted;
  sorted.reserve(order.size());
  for (const int from : order) {
    if (sorted.size() % between_checks == 0) task.check();
    sorted.push_back(before(from));
  }
  int position = 0;
  for (auto& value : sorted) array(position++) = std::move(value);
}

}  // namespace zol
