// Multiplicities and absences by the operators of the space group files.
#include "reflections/reflection_symmetry.h"

#include <gtest/gtest.h>

#include <set>

#include "core/miller_bravais.h"
#include "core/number_text.h"
#include "reflections/equivalents.h"

namespace zol {
namespace {

ReflectionSymmetry symmetry_of(int number, const char* axes = "abc") {
  Main1State state;
  state.SGFile = ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + Format(number, "000") + ".dat";
  state.AxisSetting = axes;
  return ReflectionSymmetry::of_crystal(state);
}

// By the tables of the point groups (International Tables A 10.1.2), those of powder multiplicities.
TEST(ReflectionSymmetry, CountsEquivalents) {
  struct Row {
    int group;
    Indices3 hkl;
    int multiplicity;
    Indices3 leader;
  };
  for (const auto& row :
       {Row{225, {-1, 1, -1}, 8, {1, 1, 1}}, {225, {0, 0, -2}, 6, {2, 0, 0}},  {225, {0, 2, 2}, 12, {2, 2, 0}},
        {225, {1, 1, 3}, 24, {3, 1, 1}},     {225, {1, 3, 5}, 48, {5, 3, 1}},  {205, {1, 2, 0}, 12, {2, 0, 1}},
        {205, {2, 1, 0}, 12, {2, 1, 0}},     {194, {-1, 1, 0}, 6, {1, 0, 0}},  {194, {-1, 2, 0}, 6, {1, 1, 0}},
        {194, {0, 0, 2}, 2, {0, 0, 2}},      {194, {1, 0, 1}, 12, {1, 0, 1}},  {194, {1, 2, 3}, 24, {2, 1, 3}},
        {176, {1, 2, 3}, 12, {1, 2, 3}},     {167, {0, -1, -2}, 6, {0, 1, 2}}, {167, {1, 1, 3}, 12, {1, 1, 3}},
        {148, {1, 1, 3}, 6, {1, 1, 3}},      {136, {1, 2, 1}, 16, {2, 1, 1}},  {88, {1, 2, 1}, 8, {1, 2, 1}},
        {62, {-1, 1, 1}, 8, {1, 1, 1}},      {14, {-1, 1, 1}, 4, {1, 1, -1}},  {14, {0, 1, 0}, 2, {0, 1, 0}},
        {2, {1, -1, -1}, 2, {-1, 1, 1}}}) {
    const auto symmetry = symmetry_of(row.group);
    EXPECT_EQ(symmetry.multiplicity(row.hkl), row.multiplicity) << row.group;
    for (const auto& one : symmetry.equivalents(row.hkl)) EXPECT_EQ(symmetry.leader(one), symmetry.leader(row.hkl));
    EXPECT_EQ(symmetry.leader(row.hkl), row.leader) << row.group << " " << row.multiplicity;
  }
}

// The table of equivalents of observed lines, made apart from the files, has one class for 321 and 312.
TEST(ReflectionSymmetry, AgreesWithTheLaueClasses) {
  const std::set<int> with_axes_between{149, 151, 153, 157, 159, 162, 163};
  for (int number = 1; number <= 230; ++number) {
    const auto symmetry = symmetry_of(number);
    for (const Indices3& hkl : {Indices3{1, 2, 5}, {1, 1, 3}, {1, 0, 2}, {2, 0, 0}}) {
      std::set<SingleTriple> distinct;
      const SingleTriple indices{static_cast<Single>(hkl[0]), static_cast<Single>(hkl[1]), static_cast<Single>(hkl[2])};
      for (const auto& one : equivalent_indices(number, indices)) distinct.insert(one);
      const bool same = symmetry.multiplicity(hkl) == static_cast<int>(distinct.size());
      const bool between = with_axes_between.contains(number) && (hkl == Indices3{1, 1, 3} || hkl == Indices3{1, 0, 2});
      EXPECT_EQ(same, !between) << number << ": " << hkl[0] << hkl[1] << hkl[2];
    }
  }
  Main1State only_number;
  only_number.SGNumber = 225;
  EXPECT_EQ(ReflectionSymmetry::of_crystal(only_number).multiplicity({1, 1, 1}), 8);
  EXPECT_EQ(ReflectionSymmetry().multiplicity({1, 1, 1}), 2);
}

// Reflection conditions of the groups in International Tables A, general positions.
TEST(ReflectionSymmetry, KnowsAbsences) {
  struct Row {
    int group;
    std::vector<Indices3> absent, present;
    const char* axes = "abc";
  };
  for (const auto& row : {Row{14, {{0, 1, 0}, {0, 0, 1}, {1, 0, 1}}, {{0, 1, 1}, {0, 2, 0}, {1, 0, 2}, {1, 1, 1}}},
                          Row{62, {{1, 0, 0}, {1, 1, 0}, {0, 1, 2}}, {{2, 0, 0}, {0, 1, 1}, {2, 1, 0}, {1, 0, 1}}},
                          Row{62, {{0, 1, 0}, {0, 1, 1}}, {{0, 2, 0}, {1, 0, 1}}, "cab"},
                          Row{154, {{0, 0, 1}, {0, 0, 2}, {0, 0, 4}}, {{0, 0, 3}, {0, 0, -6}, {1, 0, 1}}},
                          Row{194, {{0, 0, 1}, {1, 1, 1}, {2, -1, 3}}, {{0, 0, 2}, {1, 0, 1}, {1, 1, 2}}},
                          Row{225, {}, {{2, 0, 0}, {1, 1, 1}}},
                          Row{227, {{2, 0, 0}, {0, 4, 2}, {0, 6, 0}}, {{4, 0, 0}, {2, 2, 0}, {2, 2, 2}, {1, 1, 1}}}}) {
    const auto symmetry = symmetry_of(row.group, row.axes);
    for (const auto& hkl : row.absent) EXPECT_TRUE(symmetry.absent(hkl)) << row.group << row.axes << hkl[0] << hkl[1];
    for (const auto& hkl : row.present) EXPECT_FALSE(symmetry.absent(hkl)) << row.group << row.axes << hkl[0] << hkl[1];
  }
}

TEST(FourIndices, AreThoseOfTheSameDirection) {
  using Four = std::array<double, 4>;
  EXPECT_EQ(four_indices(1, 0, 0), (Four{2, -1, -1, 0}));
  EXPECT_EQ(four_indices(1, 1, 0), (Four{1, 1, -2, 0}));
  EXPECT_EQ(four_indices(2, 1, 0), (Four{1, 0, -1, 0}));
  EXPECT_EQ(four_indices(0, 0, -3), (Four{0, 0, 0, -1}));
  EXPECT_EQ(four_indices(1, 2, 3), (Four{0, 1, -1, 3}));
  EXPECT_NEAR(four_indices(0.5, 0.1, 1)[0], 0.3, 1e-12);
  EXPECT_EQ(third_index(2, -1), -1);
}

}  // namespace
}  // namespace zol
