#include "reflections/reflection_list.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <map>
#include <set>

#include "core/cell_geometry.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Hkl = std::array<int, 3>;

CrystalState cubic(Single edge, const char* letter, Single dmin) {
  CrystalState state;
  state.CellA = state.CellB = state.CellC = edge;
  state.CellAlpha = state.CellBeta = state.CellGamma = 90;
  calc_cell(state);
  state.LatticeLetter = letter;
  state.Dmin = dmin;
  return state;
}

constexpr std::array<bool, 3> all_negative{true, true, true};

std::set<Hkl> listed(const CrystalState& state) {
  std::set<Hkl> triples;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    triples.insert({state.RefH(i).value(), state.RefK(i).value(), state.RefL(i).value()});
  }
  EXPECT_EQ(triples.size(), static_cast<std::size_t>(state.RefCount.value())) << "a reflection stands twice";
  return triples;
}

/// All indices to 6 that a condition allows, within the sphere of a cubic cell of 4 angstroms to d >= 1.
std::set<Hkl> sphere(const std::function<bool(int, int, int)>& allowed) {
  std::set<Hkl> triples;
  for (int h = -6; h <= 6; ++h) {
    for (int k = -6; k <= 6; ++k) {
      for (int l = -6; l <= 6; ++l) {
        const int square = h * h + k * k + l * l;
        if (square > 0 && square < 16 && allowed(h, k, l)) triples.insert({h, k, l});
      }
    }
  }
  return triples;
}

// The conditions as the International Tables A 2.2.13 state them, not as remainders.
struct CentringCase {
  const char* letter;
  std::function<bool(int, int, int)> allowed;
};
TEST(Enumeration, FollowsTheCentringOfTheLattice) {
  const auto even = [](int n) { return (n & 1) == 0; };
  const std::vector<CentringCase> cases{
      {"P", [](int, int, int) { return true; }},
      {"", [](int, int, int) { return true; }},
      {"A", [&](int, int k, int l) { return even(k + l); }},
      {"B", [&](int h, int, int l) { return even(h + l); }},
      {"C", [&](int h, int k, int) { return even(h + k); }},
      {"I", [&](int h, int k, int l) { return even(h + k + l); }},
      {"F", [&](int h, int k, int l) { return even(h) == even(k) && even(k) == even(l); }},
      {"R", [](int h, int k, int l) { return std::set{-12, -9, -6, -3, 0, 3, 6, 9, 12}.contains(-h + k + l); }},
  };
  for (const auto& row : cases) {
    auto state = cubic(4, row.letter, 1.0001F);
    EnumerationSettings settings;
    settings.negative = all_negative;
    enumerate_reflections(state, settings);
    EXPECT_EQ(listed(state), sphere(row.allowed)) << row.letter;
  }
}

TEST(Enumeration, FollowsTheSelectionRules) {
  struct Row {
    const char* name;
    std::function<void(EnumerationSettings&)> set;
    std::function<bool(int, int, int)> allowed;
  };
  const std::set<int> threes{-6, -3, 0, 3, 6};
  const std::vector<Row> rows{
      {"k", [](auto& s) { s.k_mod_3_zero = true; }, [&](int, int k, int) { return threes.contains(k); }},
      {"h-k", [](auto& s) { s.h_minus_k_mod_3_zero = true; },
       [&](int h, int k, int) { return threes.contains(h - k); }},
      {"not k", [](auto& s) { s.k_mod_3_not_zero = true; }, [&](int, int k, int) { return !threes.contains(k); }},
      {"not h-k", [](auto& s) { s.h_minus_k_mod_3_not_zero = true; },
       [&](int h, int k, int) { return !threes.contains(h - k); }},
      {"h", [](auto& s) { s.h_mod_3_zero = true; }, [&](int h, int, int) { return threes.contains(h); }},
      {"not h", [](auto& s) { s.h_mod_3_not_zero = true; }, [&](int h, int, int) { return !threes.contains(h); }},
      {"k and not k", [](auto& s) { s.k_mod_3_zero = s.k_mod_3_not_zero = true; }, [](int, int, int) { return false; }},
  };
  for (const auto& row : rows) {
    auto state = cubic(4, "P", 1.0001F);
    EnumerationSettings settings;
    settings.negative = all_negative;
    row.set(settings);
    enumerate_reflections(state, settings);
    EXPECT_EQ(listed(state), sphere(row.allowed)) << row.name;
  }
}

TEST(Enumeration, TakesSignsAndFixedIndices) {
  auto state = cubic(4, "P", 1.0001F);
  EnumerationSettings settings;
  enumerate_reflections(state, settings);
  EXPECT_EQ(listed(state), sphere([](int h, int k, int l) { return h >= 0 && k >= 0 && l >= 0; }));
  settings.negative = {false, true, false};
  settings.fixed[0] = -2;
  settings.fixed[2] = 1;
  enumerate_reflections(state, settings);
  EXPECT_EQ(listed(state), sphere([](int h, int, int l) { return h == -2 && l == 1; }));
  settings.fixed[0] = 9;  // beyond the sphere
  enumerate_reflections(state, settings);
  EXPECT_EQ(state.RefCount, 0);
}

TEST(Enumeration, SizesItsArraysByTheBoundingBox) {
  auto state = cubic(4, "P", 1);
  enumerate_reflections(state, {});
  EXPECT_EQ(state.RefH.upper(), 17 * 17 * 17) << "indices to 8, twice the sphere";
  EXPECT_EQ(state.BandHKL.upper_row(), 17 * 17 * 17);
  struct Row {
    const char* letter;
    int upper;
  };
  for (const auto& row : {Row{"A", 2456}, Row{"I", 2456}, Row{"F", 1228}, Row{"R", 1637}}) {
    state.LatticeLetter = row.letter;
    enumerate_reflections(state, {});
    EXPECT_EQ(state.RefS.upper(), row.upper) << row.letter;
  }
}

TEST(Enumeration, LimitsTheBandsOfAKikuchiPattern) {
  auto state = cubic(4, "P", 1.0001F);
  enumerate_reflections(state, {});
  EXPECT_EQ(state.KikuchiRefLimit, state.RefCount) << "0 means all";
  state.KikuchiRefLimit = 5;
  enumerate_reflections(state, {});
  EXPECT_EQ(state.KikuchiRefLimit, 5);
  state.KikuchiRefLimit = 30000;
  enumerate_reflections(state, {});
  EXPECT_EQ(state.KikuchiRefLimit, state.RefCount);
}

TEST(Enumeration, FailsWithoutACell) {
  CrystalState state;
  state.Dmin = 1;
  EXPECT_EQ(failure_of([&] { enumerate_reflections(state, {}); }), "division by zero: a* is 0");
  auto fine = cubic(4, "P", 1e-5F);
  EXPECT_NE(failure_of([&] { enumerate_reflections(fine, {}); }).find("does not fit an Integer"), std::string::npos);
}

/// The list with keys given, as (key, original place).
CrystalState keyed(const std::vector<Single>& keys) {
  CrystalState state;
  const int count = static_cast<int>(keys.size());
  state.RefCount = count;
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(count);
  state.RefS.allocate(count);
  for (int i = 1; i <= count; ++i) {
    state.RefS(i) = keys[static_cast<std::size_t>(i - 1)];
    state.RefH(i) = i;
  }
  return state;
}

// Worked out by hand: each round exchanges the first smallest with the place under work.
TEST(Sort, LeavesTiesInTheOrderOfItsExchanges) {
  auto state = keyed({2, 2, 1, 2, 1});
  sort_by_s(state);
  std::vector<int> order;
  for (int i = 1; i <= 5; ++i) order.push_back(state.RefH(i).value());
  EXPECT_EQ(order, (std::vector{3, 5, 1, 4, 2})) << "a stable sort gives 3 5 1 2 4";
}

TEST(Sort, NeverTakesAKeyOfAThousand) {
  auto state = keyed({2000, 1, 1000});
  sort_by_s(state);
  EXPECT_EQ(state.RefH(1), 2);
  // In the second round nothing is below 1000, and the place that was remembered, 2, is exchanged with itself.
  EXPECT_EQ(state.RefH(2), 1);
  EXPECT_EQ(state.RefH(3), 3);
}

TEST(List, HasItsColumnsAndLeavesOutAnglesThatDoNotExist) {
  auto state = cubic(4, "P", 1.9F);
  state.NAtom = 1;
  state.WaveLength = 5;
  state.CellVolume = 64;
  EnumerationSettings settings;
  enumerate_reflections(state, settings);
  sort_by_s(state);
  const auto lines = compute_list(state, {true, false});
  ASSERT_EQ(lines.size(), 10U);
  EXPECT_EQ(lines.front().substr(0, 37), "   0   0   1   0.125   4.0000  77.364");
  EXPECT_EQ(lines.back().substr(0, 37), "   2   0   0   0.250   2.0000        ") << "s * wavelength is 1.25";
  EXPECT_EQ(state.RefTwoTheta(10), 0);
  state.WaveLength = 0;
  EXPECT_EQ(compute_list(state, {true, false}).front().substr(0, 37), "   0   0   1   0.125   4.0000        ");
}

TEST(List, ShowsOnlyPositiveIntensitiesWithoutAtoms) {
  auto state = cubic(4, "F", 1.3F);
  state.SGNumber = 225;
  enumerate_reflections(state, {{true, true, true}, {}});
  sort_by_s(state);
  EXPECT_TRUE(compute_list(state, {false, true}).empty());
  state.JcpdsCount = 1;
  state.JcpdsH(1) = state.JcpdsK(1) = state.JcpdsL(1) = 1;
  state.JcpdsI(1) = 10;
  const auto lines = compute_list(state, {false, true});
  EXPECT_EQ(lines.size(), 8U);
  EXPECT_GT(state.RefCount, 8);
}

}  // namespace
}  // namespace zol
