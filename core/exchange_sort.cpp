#include "core/exchange_sort.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <numeric>
#include <utility>

namespace zol {
namespace {

constexpr double out_of_play = std::numeric_limits<double>::infinity();
constexpr int rounds_between_checks = 1024;              // some 0.5 ms
constexpr std::size_t nodes_between_checks = 1U << 18U;  // some 2 ms

}  // namespace

TournamentTree::TournamentTree(std::span<const double> keys, Task& task)
    : leaves_(std::bit_ceil(std::max<std::size_t>(keys.size(), 1))) {
  nodes_.reserve(2 * leaves_);
  const auto fill_to = [this, &task](std::size_t end, const auto& key_of) {
    for (std::size_t node = nodes_.size(); node < end; ++node) {
      if (node % nodes_between_checks == 0) task.check();
      nodes_.push_back(key_of(node));
    }
  };
  fill_to(leaves_, [](std::size_t) { return out_of_play; });
  fill_to(leaves_ + keys.size(), [this, &keys](std::size_t node) { return keys[node - leaves_]; });
  fill_to(2 * leaves_, [](std::size_t) { return out_of_play; });
  for (std::size_t node = leaves_ - 1; node >= 1; --node) {
    if (node % nodes_between_checks == 0) task.check();
    nodes_[node] = std::min(nodes_[2 * node], nodes_[2 * node + 1]);
  }
}

void TournamentTree::set(int position, double key) {
  std::size_t node = leaf(position);
  nodes_[node] = key;
  for (node /= 2; node >= 1; node /= 2) nodes_[node] = std::min(nodes_[2 * node], nodes_[2 * node + 1]);
}

void TournamentTree::remove(int position) { set(position, out_of_play); }

std::optional<int> TournamentTree::first_not_above(double bound) const {
  if (!(nodes_[1] <= bound)) return std::nullopt;
  std::size_t node = 1;
  while (node < leaves_) node = 2 * node + (nodes_[2 * node] <= bound ? 0 : 1);
  return static_cast<int>(node - leaves_);
}

std::optional<int> TournamentTree::last_below(double bound) const {
  if (!(nodes_[1] < bound)) return std::nullopt;
  std::size_t node = 1;
  while (node < leaves_) node = 2 * node + (nodes_[2 * node + 1] < bound ? 1 : 0);
  return static_cast<int>(node - leaves_);
}

FindEntry first_smallest_below(double limit) {
  return [limit](const TournamentTree& left) {
    return left.smallest() < limit ? left.first_not_above(left.smallest()) : std::nullopt;
  };
}

std::vector<int> exchange_order(std::span<const double> keys, int first, const FindEntry& find, bool skip_without,
                                Task& task) {
  std::vector<int> order(keys.size());
  std::iota(order.begin(), order.end(), 0);
  TournamentTree left(keys, task);
  for (int position = 0; position < std::min(first, static_cast<int>(keys.size())); ++position) left.remove(position);
  int found = 0;
  for (int place = first; place < static_cast<int>(keys.size()) - 1; ++place) {
    if ((place - first) % rounds_between_checks == 0) task.check();
    found = find(left).value_or(found);
    if (found == 0 && skip_without) continue;
    std::swap(order[static_cast<std::size_t>(place)], order[static_cast<std::size_t>(found)]);
    if (found > place) left.set(found, left.key(place));
    left.remove(place);
  }
  return order;
}

}  // namespace zol
