// The orders of the list sorts against the plain selection sorts that define them.
#include <gtest/gtest.h>

#include <random>

#include "analysis/triple_table.h"
#include "kikuchi/kikuchi_pattern.h"
#include "reflections/reflection_list.h"
#include "spots/fiber_texture.h"

namespace zol {
namespace {

/// A list with keys by which the sorts go; h numbers the entries, from 0.
CrystalState numbered_list(const std::vector<Single>& s, const std::vector<Single>& intensities) {
  CrystalState state;
  const int count = static_cast<int>(s.size()) - 1;
  state.RefCount = count;
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count);
  for (auto* array : {&state.RefS, &state.RefI, &state.RefA, &state.RefB}) array->allocate(count);
  for (int i = 0; i <= count; ++i) {
    state.RefH(i) = i;
    state.RefS(i) = s[static_cast<std::size_t>(i)];
    state.RefI(i) = intensities[static_cast<std::size_t>(i)];
  }
  return state;
}

std::vector<int> order_of(const CrystalState& state) {
  std::vector<int> order;
  for (int i = 0; i <= state.RefCount.value(); ++i) order.push_back(state.RefH(i).value());
  return order;
}

/// The plain sort: keys are compared by `takes` against a bound that starts at `start` and follows by `next`.
template <class Takes, class Next>
std::vector<int> plain_order(std::vector<double> keys, int first, double start, Takes takes, Next next,
                             bool skip_without = false) {
  std::vector<int> order(keys.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = static_cast<int>(i);
  const auto count = static_cast<int>(keys.size()) - 1;
  std::size_t found = 0;
  for (int place = first; place < count; ++place) {
    double bound = start;
    for (int i = place; i <= count; ++i) {
      if (!takes(keys[static_cast<std::size_t>(i)], bound)) continue;
      found = static_cast<std::size_t>(i);
      bound = next(keys[found]);
    }
    if (found == 0 && skip_without) continue;
    std::swap(keys[static_cast<std::size_t>(place)], keys[found]);
    std::swap(order[static_cast<std::size_t>(place)], order[found]);
  }
  return order;
}

constexpr auto below = [](double key, double bound) { return key < bound; };
constexpr auto above = [](double key, double bound) { return key > bound; };
constexpr auto itself = [](double key) { return key; };

/// Lists of many kinds: ties, halves, keys above and below the bounds, zero and negative ones, sorted either way.
class SortedLists : public testing::TestWithParam<int> {
 protected:
  std::vector<Single> list(int n, std::mt19937& random) const {
    std::uniform_int_distribution<int> few(0, 6);
    std::uniform_int_distribution<int> many(-400, 2400);
    std::uniform_real_distribution<Single> real(0, 50);
    std::vector<Single> keys;
    for (int i = 0; i <= n; ++i) {
      const auto value = [&]() -> Single {
        switch (GetParam()) {
          case 0:
            return static_cast<Single>(few(random));
          case 1:
            return static_cast<Single>(few(random)) * 0.5F;  // halves
          case 2:
            return static_cast<Single>(few(random)) + (few(random) > 3 ? 0.5F : 0.49999997F);
          case 3:
            return static_cast<Single>(many(random));  // above 1000, zero, negative
          case 4:
            return static_cast<Single>(many(random)) * 10;  // above 10000
          case 5:
            return static_cast<Single>(i) * 0.25F;
          case 6:
            return static_cast<Single>(n - i) * 0.25F;
          case 7:
            return few(random) > 2 ? 0.0F : -1.0F;  // nothing positive
          case 8:
            return 20000;  // nothing below any bound
          default:
            return real(random);
        }
      };
      keys.push_back(value());
    }
    return keys;
  }
  static constexpr std::array sizes{0, 1, 2, 3, 4, 7, 8, 9, 50, 333, 2000};
};
INSTANTIATE_TEST_SUITE_P(Kinds, SortedLists, testing::Range(0, 10));

std::vector<double> wide(const std::vector<Single>& keys) { return {keys.begin(), keys.end()}; }

TEST_P(SortedLists, ByLength) {
  std::mt19937 random(1);
  for (const int n : sizes) {
    const auto keys = list(n, random);
    auto state = numbered_list(keys, std::vector<Single>(keys.size(), 1));
    sort_by_s(state);
    ASSERT_EQ(order_of(state), plain_order(wide(keys), 1, 1000, below, itself)) << n;
  }
}

TEST_P(SortedLists, ByWeightedIntensity) {
  std::mt19937 random(2);
  for (const int n : sizes) {
    const auto keys = list(n, random);
    auto state = numbered_list(std::vector<Single>(keys.size(), 1), keys);
    sort_by_weighted_intensity(state);
    ASSERT_EQ(order_of(state), plain_order(wide(keys), 1, 0, above, itself, true)) << n;
  }
}

TEST_P(SortedLists, OfAFiberTexture) {
  std::mt19937 random(3);
  for (const int n : sizes) {
    if (n < 2) continue;
    const auto keys = list(n, random);
    auto state = numbered_list(std::vector<Single>(keys.size(), 1), keys);
    sort_by_intensity(state);
    ASSERT_EQ(order_of(state), plain_order(wide(keys), 2, 1000000, below, itself)) << n;
  }
}

TEST_P(SortedLists, OfAKikuchiPattern) {
  std::mt19937 random(4);
  for (const int n : sizes) {
    if (n < 1) continue;
    const auto keys = list(n, random);
    auto state = numbered_list(std::vector<Single>(keys.size(), 1), keys);
    sort_for_kikuchi(state);
    ASSERT_EQ(order_of(state), plain_order(wide(keys), 1, 10000, below, round_half_even)) << n;
  }
}

}  // namespace
}  // namespace zol
