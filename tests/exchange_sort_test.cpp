// The orders of the list sorts against the plain selection sorts that define them.
#include <gtest/gtest.h>

#include <random>

#include "tests/plain_sort.h"

namespace zol {
namespace {

/// The same by the program: h numbers the entries, and what a key is made of besides is 1.
std::vector<int> order_after(const ListSort& rule, const std::vector<Single>& keys) {
  CrystalState state;
  const int count = static_cast<int>(keys.size()) - 1;
  state.RefCount = count;
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count);
  for (auto* array : {&state.RefS, &state.RefI, &state.RefA, &state.RefB}) array->allocate(count);
  for (int i = 0; i <= count; ++i) {
    state.RefH(i) = i;
    state.RefS(i) = state.RefI(i) = 1;
    (rule.sort == sort_by_s ? state.RefS : state.RefI)(i) = keys[static_cast<std::size_t>(i)];
  }
  rule.sort(state);
  std::vector<int> order;
  for (int i = 0; i <= count; ++i) order.push_back(state.RefH(i).value());
  return order;
}

Single few(std::mt19937& random) { return static_cast<Single>(std::uniform_int_distribution(0, 6)(random)); }
Single many(std::mt19937& random) { return static_cast<Single>(std::uniform_int_distribution(-400, 2400)(random)); }

/// Key i of a list up to n: ties, halves, keys above and below the bounds, zero and negative ones, sorted either way.
using Kind = Single (*)(int i, int n, std::mt19937& random);
constexpr Kind kinds[] = {
    [](int, int, std::mt19937& random) { return few(random); },
    [](int, int, std::mt19937& random) { return few(random) * 0.5F; },  // halves
    [](int, int, std::mt19937& random) { return few(random) + (few(random) > 3 ? 0.5F : 0.49999997F); },
    [](int, int, std::mt19937& random) { return many(random); },       // above 1000, zero, negative
    [](int, int, std::mt19937& random) { return many(random) * 10; },  // above 10000
    [](int i, int, std::mt19937&) { return static_cast<Single>(i) * 0.25F; },
    [](int i, int n, std::mt19937&) { return static_cast<Single>(n - i) * 0.25F; },
    [](int, int, std::mt19937& random) { return few(random) > 2 ? 0.0F : -1.0F; },  // nothing positive
    [](int, int, std::mt19937& random) {                                            // at the bounds
      constexpr std::array bounds{1000.0F, 10000.0F, 1e6F};
      return bounds[static_cast<std::size_t>(few(random)) % 3] + few(random) * 0.5F - 1;
    },
    [](int, int, std::mt19937&) { return 20000.0F; },  // nothing below most bounds
    [](int, int, std::mt19937& random) { return std::uniform_real_distribution<Single>(0, 50)(random); }};

class SortedLists : public testing::TestWithParam<ListSort> {};
TEST_P(SortedLists, HaveTheOrderOfThePlainSort) {
  std::mt19937 random(1);
  for (std::size_t kind = 0; kind < std::size(kinds); ++kind) {
    for (const int n : {0, 1, 2, 3, 4, 7, 8, 9, 50, 333, 2000}) {
      if (n < GetParam().smallest_list) continue;
      std::vector<Single> keys;
      for (int i = 0; i <= n; ++i) keys.push_back(kinds[kind](i, n, random));
      EXPECT_EQ(order_after(GetParam(), keys), plain_order(keys, GetParam())) << "kind " << kind << ", " << n;
    }
  }
}
INSTANTIATE_TEST_SUITE_P(Rules, SortedLists, testing::ValuesIn(list_sorts),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zol
