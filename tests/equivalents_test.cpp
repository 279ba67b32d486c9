#include "reflections/equivalents.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <vector>

namespace zol {
namespace {

using Hkl = std::array<int, 3>;
using Rotation = std::array<std::array<int, 3>, 3>;  // acts on (h, k, l) written as a column

Rotation times(const Rotation& a, const Rotation& b) {
  Rotation product{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      for (std::size_t m = 0; m < 3; ++m) product[i][j] += a[i][m] * b[m][j];
    }
  }
  return product;
}

/// The group that some rotations and the centre of symmetry generate.
std::set<Rotation> laue_group(std::vector<Rotation> generators) {
  generators.push_back({{{-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}});
  std::set<Rotation> group{{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}};
  for (bool grows = true; grows;) {
    grows = false;
    for (const auto& element : std::set<Rotation>(group)) {
      for (const auto& generator : generators) grows = group.insert(times(generator, element)).second || grows;
    }
  }
  return group;
}

// Generators on the indices (International Tables A 10.1.2): two-, three- and four-fold axes of each Laue class. In the
// hexagonal ones the three-fold takes hkl to kil, i = -(h + k).
const Rotation two_b{{{-1, 0, 0}, {0, 1, 0}, {0, 0, -1}}};
const Rotation two_c{{{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}};
const Rotation four_c{{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}};
const Rotation three_c{{{0, 1, 0}, {-1, -1, 0}, {0, 0, 1}}};
const Rotation two_ab{{{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}};
const Rotation three_111{{{0, 0, 1}, {1, 0, 0}, {0, 1, 0}}};

struct ClassCase {
  const char* name;
  int first, last;  ///< space group numbers
  std::size_t order;
  std::vector<Rotation> generators;
};
class LaueClassOrbit : public testing::TestWithParam<ClassCase> {};
TEST_P(LaueClassOrbit, IsTheTableOfEquivalents) {
  const auto& row = GetParam();
  const auto group = laue_group(row.generators);
  ASSERT_EQ(group.size(), row.order);
  const Hkl general{1, 2, 5};
  std::set<Hkl> orbit;
  for (const auto& r : group) {
    Hkl image{};
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) image[i] += r[i][j] * general[j];
    }
    orbit.insert(image);
  }
  for (const int number : {row.first, row.last}) {
    std::set<Hkl> listed;
    for (const auto& [h, k, l] : equivalent_indices(number, {1, 2, 5})) {
      listed.insert({static_cast<int>(h), static_cast<int>(k), static_cast<int>(l)});
    }
    EXPECT_EQ(listed, orbit) << "number " << number;
    EXPECT_EQ(equivalent_indices(number, {1, 2, 5}).size(), row.order);
  }
}
INSTANTIATE_TEST_SUITE_P(Classes, LaueClassOrbit,
                         testing::Values(ClassCase{"triclinic", 1, 2, 2, {}},  //
                                         ClassCase{"monoclinic", 3, 15, 4, {two_b}},
                                         ClassCase{"orthorhombic", 16, 74, 8, {two_b, two_c}},
                                         ClassCase{"tetragonal_low", 75, 88, 8, {four_c}},
                                         ClassCase{"tetragonal_high", 89, 142, 16, {four_c, two_b}},
                                         ClassCase{"trigonal_low", 143, 148, 6, {three_c}},
                                         ClassCase{"trigonal_high", 149, 167, 12, {three_c, two_ab}},
                                         ClassCase{"hexagonal_low", 168, 176, 12, {three_c, two_c}},
                                         ClassCase{"hexagonal_high", 177, 194, 24, {three_c, two_c, two_ab}},
                                         ClassCase{"cubic_low", 195, 206, 24, {two_b, two_c, three_111}},
                                         ClassCase{"cubic_high", 207, 230, 48, {four_c, two_b, three_111}}),
                         [](const auto& row) { return std::string(row.param.name); });

struct WeightCase {
  const char* name;
  int number;
  IndexTriple hkl;
  int weight;
};
class FormWeight : public testing::TestWithParam<WeightCase> {};
TEST_P(FormWeight, IsTheOneOfItsClass) { EXPECT_EQ(form_weight(GetParam().number, GetParam().hkl), GetParam().weight); }
INSTANTIATE_TEST_SUITE_P(
    Rows, FormWeight,
    testing::Values(
        WeightCase{"outside", 0, {1, 0, 0}, 1}, WeightCase{"beyond", 231, {1, 0, 0}, 1},
        WeightCase{"triclinic", 2, {0, 0, 1}, 1}, WeightCase{"monoclinic_h0l", 14, {1, 0, 2}, 2},
        WeightCase{"monoclinic_0kl", 14, {0, 1, 2}, 1}, WeightCase{"orthorhombic_00l", 62, {0, 0, 2}, 4},
        WeightCase{"tetragonal_low_0kl", 75, {0, 1, 3}, 4},
        WeightCase{"tetragonal_low_h0l", 88, {1, 0, 3}, 1},  // only H = 0 counts
        WeightCase{"tetragonal_low_00l", 88, {0, 0, 3}, 1}, WeightCase{"tetragonal_low_hk0", 88, {1, 2, 0}, 2},
        WeightCase{"tetragonal_low_0_half", 88, {0, 0.5F, 3}, 1},  // 0.5 rounds to 0
        WeightCase{"tetragonal_high_110", 136, {1, 1, 0}, 4}, WeightCase{"tetragonal_high_001", 136, {0, 0, 1}, 8},
        WeightCase{"tetragonal_high_1m10", 136, {1, -1, 3}, 2}, WeightCase{"trigonal_low_001", 148, {0, 0, 1}, 3},
        WeightCase{"trigonal_high_001", 167, {0, 0, 1}, 6}, WeightCase{"trigonal_high_110", 167, {1, 1, 0}, 1},
        WeightCase{"hexagonal_001", 186, {0, 0, 1}, 6}, WeightCase{"hexagonal_100", 170, {1, 0, 0}, 2},
        WeightCase{"cubic_low_111", 205, {1, 1, 1}, 3}, WeightCase{"cubic_low_110", 205, {1, 1, 0}, 2},
        WeightCase{"cubic_high_100", 225, {1, 0, 0}, 8}, WeightCase{"cubic_high_111", 225, {1, 1, -1}, 8},
        WeightCase{"cubic_high_123", 225, {1, 2, 3}, 1}),
    [](const auto& row) { return std::string(row.param.name); });

CrystalState with_rows(int number, const std::vector<std::array<Single, 4>>& rows) {
  CrystalState state;
  state.SGNumber = number;
  for (const auto& [h, k, l, intensity] : rows) {
    state.JcpdsCount += 1;
    const int r = state.JcpdsCount.value();
    state.JcpdsH(r) = h;
    state.JcpdsK(r) = k;
    state.JcpdsL(r) = l;
    state.JcpdsI(r) = intensity;
  }
  return state;
}

TEST(Observed, GiveTheirWeightedValueToAllEquivalents) {
  const auto state = with_rows(225, {{1, 1, 1, 100}, {2, 0, 0, 46}, {1.5F, 0, 0, 7}});
  const ObservedReflections observed(state);
  EXPECT_EQ(observed.value(-1, 1, -1), 800.0F);
  EXPECT_EQ(observed.value(0, -2, 0), 368.0F);
  EXPECT_FALSE(observed.value(2, 2, 0));
  EXPECT_FALSE(observed.value(1, 0, 0)) << "a half index never matches";
}

TEST(Observed, LastEquivalentRowWins) {
  const auto state = with_rows(225, {{2, 0, 0, 46}, {0, 0, 2, 1}});
  EXPECT_EQ(ObservedReflections(state).value(2, 0, 0), 8.0F);
}

TEST(Observed, SetOnlyTheStructureFactorOfAMatch) {
  auto state = with_rows(14, {{1, 0, 2, 5}});
  state.RefH.allocate(2);
  state.RefK.allocate(2);
  state.RefL.allocate(2);
  state.RefA.allocate(2);
  state.RefH(1) = -1;
  state.RefL(1) = -2;
  state.RefA(2) = 77;
  JcpdsFactor(state, 1);
  JcpdsFactor(state, 2);
  EXPECT_EQ(state.RefA(1), 10);
  EXPECT_EQ(state.RefA(2), 77);
  state.SGNumber = 240;
  state.RefA(1) = 0;
  JcpdsFactor(state, 1);
  EXPECT_EQ(state.RefA(1), 0);
}

}  // namespace
}  // namespace zol
