#include "core/unit_cell.h"

#include <gtest/gtest.h>

#include <map>

#include "core/space_group.h"
#include "tests/test_files.h"

namespace zol {
namespace {

const SymmetryOperator identity{{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, {}};
const SymmetryOperator inversion{{{{-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}}, {}};
const SpaceGroup without_centre{"TRICL", "P1", {identity}};
const SpaceGroup with_centre{"TRICL", "P-1", {identity, inversion}};

struct Site {
  std::string label;
  const char* element;
  std::array<Single, 3> at;
  Single occupancy = 1;
};

CrystalState expanded(const std::vector<Site>& sites, const SpaceGroup& group, const char* axis_setting = "abc") {
  CrystalState state;
  state.AxisSetting = axis_setting;
  for (const auto& site : sites) {
    state.NAtom += 1;
    const int i = state.NAtom.value();
    state.AtomLabel(i) = site.label;
    state.AtomElement(i) = site.element;
    state.AtomOcc(i) = site.occupancy;
    for (int axis = 1; axis <= 3; ++axis) state.AtomPos(i, axis) = site.at[static_cast<std::size_t>(axis - 1)];
    state.AtomB(i) = 0.5F;
  }
  QuietTask task;
  commit(state, expand_unit_cell(state, group, task));
  return state;
}

// Positions are folded with the floor; 1 - 1e-9 rounds to 1 as a Single, which is 0.
TEST(UnitCell, LinesKeepTheirColumns) {
  const auto state = expanded({{"LongLabel1", "Si", {0.333333F, -0.25F, -1e-9F}, 0.12345F}}, without_centre);
  EXPECT_EQ(unit_cell_line(state, 1), " 1      LongLabeSi      0.1235    0.33333   0.75      0.0       0.5       ");
}

TEST(UnitCell, MergesImagesNearerThanTheTolerance) {
  using At = std::array<Single, 3>;
  for (const auto& [site, atoms] : {std::pair{At{0.5F, 0.5F, 0}, 1},
                                    {At{0.9951F, 0, 0}, 1},  // across the edge
                                    {At{0.0049F, 0, 0}, 1},
                                    {At{0.0051F, 0, 0}, 2},
                                    {At{0, 0.9949F, 0}, 2},
                                    {At{0, 0, 0.3F}, 2}}) {
    const auto state = expanded({{"A", "Si", site}}, with_centre);
    EXPECT_EQ(state.NCell, atoms) << site[0] << ' ' << site[2];
    EXPECT_EQ(state.UCPos(1, 1), site[0]) << "the first image is kept, nothing is averaged";
  }
}

TEST(UnitCell, MergesOnlyEqualLabelsAndElementsOfTwoThousandAtoms) {
  std::vector<Site> sites{{"M1", "Mg", {}, 0.75F}, {"M1", "Fe", {}, 0.25F}, {"M2", "Mg", {}, 0.5F}, {"M1", "Mg", {}}};
  EXPECT_EQ(unit_cell_summary(expanded(sites, without_centre)), " 3(1.5)");
  EXPECT_EQ(unit_cell_summary(expanded({}, without_centre)), " 0(0.0)");
  for (int i = 1; i <= 998; ++i) sites.push_back({std::to_string(i), "Si", {0.1F, 0.2F, 0.3F}});
  sites.resize(1000);
  auto group = with_centre;
  group.operators.push_back({identity.rotation, {0.5F, 0, 0}});
  EXPECT_TRUE(fails_with("index 2001 of UCLabel is outside 0 to 2000", [&] { (void)expanded(sites, group); }));
}

// Element (i, j) of the turned operator is (p(i), p(j)), without changes of sign.
TEST(AxisSettings, PermuteRotationAndTranslation) {
  const SymmetryOperator op{{{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}}, {1, 2, 3}};
  const std::map<std::string, std::array<int, 3>> settings{{"abc", {1, 2, 3}},  {"cab", {3, 1, 2}},
                                                           {"bca", {2, 3, 1}},  {"a-cb", {1, 3, 2}},
                                                           {"ba-c", {2, 1, 3}}, {"c-ba", {3, 2, 1}}};
  for (const auto& [setting, p] : settings) {
    const auto turned = permute_axes(op, setting);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_EQ(turned.translation[i], p[i]) << setting;
      for (std::size_t j = 0; j < 3; ++j) EXPECT_EQ(turned.rotation[i][j], 3 * (p[i] - 1) + p[j]) << setting;
    }
  }
  const auto unknown = expanded({{"A", "Si", {0.1F, 0.2F, 0.3F}}}, without_centre, "-cba");
  EXPECT_EQ(unknown.UCPos(1, 1), 0) << "every site at the origin";
}

TEST(SpaceGroupFile, NamesWhatIsBroken) {
  const ScratchFolder folder;
  const auto path = folder.write("No001.dat", "\"TRICL\",\"P1\"\r\n2\r\n1,0,0,0,1,0,0,0,1,0,0,0\r\n1,0,0,0,q\r\n");
  EXPECT_EQ(failure_of([&] { (void)read_space_group(path); }),
            path + ", line 4: r22 of operator 2 is \"q\", a number is expected");
  folder.write("No001.dat", "\"TRICL\",\"P-1\"\r\n1001\r\n");
  EXPECT_TRUE(fails_with("at most 1000", [&path] { (void)read_space_group(path); }));
}

}  // namespace
}  // namespace zol
