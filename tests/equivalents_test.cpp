#include "reflections/equivalents.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <vector>

#include "tests/crystals.h"

namespace zol {
namespace {

using Hkl = std::array<int, 3>;
using Rotation = Hkl (*)(const Hkl&);

// Generators on the indices (International Tables A 10.1.2): two-, three- and four-fold axes of each Laue class. In the
// hexagonal ones the three-fold takes hkl to kil, i = -(h + k).
Hkl centre(const Hkl& r) { return {-r[0], -r[1], -r[2]}; }
Hkl two_b(const Hkl& r) { return {-r[0], r[1], -r[2]}; }
Hkl two_c(const Hkl& r) { return {-r[0], -r[1], r[2]}; }
Hkl four_c(const Hkl& r) { return {-r[1], r[0], r[2]}; }
Hkl three_c(const Hkl& r) { return {r[1], -r[0] - r[1], r[2]}; }
Hkl two_ab(const Hkl& r) { return {r[1], r[0], -r[2]}; }
Hkl three_111(const Hkl& r) { return {r[2], r[0], r[1]}; }

/// All that the rotations and the centre of symmetry make of a reflection.
std::set<Hkl> orbit_of(const Hkl& hkl, std::vector<Rotation> generators) {
  generators.push_back(centre);
  std::set<Hkl> orbit;
  for (std::vector<Hkl> waiting{hkl}; !waiting.empty();) {
    const Hkl next = waiting.back();
    waiting.pop_back();
    if (!orbit.insert(next).second) continue;
    for (const auto generator : generators) waiting.push_back(generator(next));
  }
  return orbit;
}

TEST(Equivalents, AreTheOrbitOfTheLaueClass) {
  struct Row {
    int first, last;  ///< space group numbers
    std::size_t order;
    std::vector<Rotation> generators;
  };
  const std::vector<Row> rows{
      {1, 2, 2, {}},
      {3, 15, 4, {two_b}},
      {16, 74, 8, {two_b, two_c}},
      {75, 88, 8, {four_c}},
      {89, 142, 16, {four_c, two_b}},
      {143, 148, 6, {three_c}},
      {149, 167, 12, {three_c, two_ab}},
      {168, 176, 12, {three_c, two_c}},
      {177, 194, 24, {three_c, two_c, two_ab}},
      {195, 206, 24, {two_b, two_c, three_111}},
      {207, 230, 48, {four_c, two_b, three_111}},
  };
  for (const auto& row : rows) {
    for (const int number : {row.first, row.last}) {
      SCOPED_TRACE(number);
      auto orbit = orbit_of({1, 2, 5}, row.generators);
      ASSERT_EQ(orbit.size(), row.order);
      const auto triples = equivalent_indices(number, {1, 2, 5});
      EXPECT_EQ(triples.size(), row.order);
      for (const auto& [h, k, l] : triples) {
        orbit.erase({static_cast<int>(h), static_cast<int>(k), static_cast<int>(l)});
      }
      EXPECT_TRUE(orbit.empty());
    }
  }
}

TEST(FormWeight, IsTheOneOfTheLaueClass) {
  struct Row {
    int number;
    SingleTriple hkl;
    int weight;
  };
  for (const auto& [number, hkl, weight] : {
           Row{0, {1, 0, 0}, 1},   Row{2, {0, 0, 1}, 1},   Row{14, {1, 0, 2}, 2},    Row{14, {0, 1, 2}, 1},
           Row{62, {0, 0, 2}, 4},  Row{75, {0, 1, 3}, 4},  Row{88, {1, 0, 3}, 1},     // only h = 0 counts
           Row{88, {0, 0, 3}, 1},  Row{88, {1, 2, 0}, 2},  Row{88, {0, 0.5F, 3}, 1},  // 0.5 rounds to 0
           Row{136, {1, 1, 0}, 4}, Row{136, {0, 0, 1}, 8}, Row{136, {1, -1, 3}, 2},  Row{148, {0, 0, 1}, 3},
           Row{167, {0, 0, 1}, 6}, Row{167, {1, 1, 0}, 1}, Row{186, {0, 0, 1}, 6},   Row{170, {1, 0, 0}, 2},
           Row{205, {1, 1, 1}, 3}, Row{205, {1, 1, 0}, 2}, Row{225, {1, 0, 0}, 8},   Row{225, {1, 1, -1}, 8},
           Row{225, {1, 2, 3}, 1}, Row{231, {1, 0, 0}, 1},
       }) {
    EXPECT_EQ(form_weight(number, hkl), weight) << number << ": " << hkl[0] << ' ' << hkl[1] << ' ' << hkl[2];
  }
}

TEST(Observed, GiveTheirWeightedValueToAllEquivalents) {
  CrystalState state = with_cell(cubic_cell(4));
  state.SGNumber = 225;
  constexpr std::array<std::array<Single, 4>, 4> rows{{{1, 1, 1, 100}, {2, 0, 0, 46}, {1.5F, 0, 0, 7}, {0, 0, 2, 1}}};
  int r = 0;
  for (const auto& [h, k, l, intensity] : rows) {
    state.JcpdsCount = ++r;
    state.JcpdsH(r) = h;
    state.JcpdsK(r) = k;
    state.JcpdsL(r) = l;
    state.JcpdsI(r) = intensity;
  }
  const ObservedReflections observed(state);
  EXPECT_EQ(observed.JcpdsFactor(-1, 1, -1), 800);
  EXPECT_EQ(observed.JcpdsFactor(0, -2, 0), 8) << "the last row wins";
  EXPECT_EQ(observed.JcpdsFactor(2, 2, 0), std::nullopt);
  EXPECT_EQ(observed.JcpdsFactor(1, 0, 0), std::nullopt) << "a half index never matches";
  state.SGNumber = 240;  // has no table of equivalents
  EXPECT_EQ(ObservedReflections(state).JcpdsFactor(1, 1, 1), std::nullopt);
}

}  // namespace
}  // namespace zol
