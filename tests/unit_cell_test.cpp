#include "core/unit_cell.h"

#include <gtest/gtest.h>

#include "core/camera_file.h"
#include "core/data_root.h"
#include "core/space_group.h"
#include "tests/test_files.h"

namespace zol {
namespace {

SymmetryOperator operation(std::array<std::array<Single, 3>, 3> rotation, std::array<Single, 3> translation = {}) {
  return {rotation, translation};
}

const SymmetryOperator identity = operation({{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}});
const SymmetryOperator inversion = operation({{{-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}});

void add_site(CrystalState& state, const char* label, const char* element, Single x, Single y, Single z,
              Single occupancy = 1) {
  state.NAtom += 1;
  const int i = state.NAtom.value();
  state.AtomLabel(i) = label;
  state.AtomElement(i) = element;
  state.AtomOcc(i) = occupancy;
  state.AtomPos(i, 1) = x;
  state.AtomPos(i, 2) = y;
  state.AtomPos(i, 3) = z;
  state.AtomB(i) = 0.5F;
}

CrystalState crystal() {
  CrystalState state;
  state.AxisSetting = "abc";
  return state;
}

TEST(UnitCell, FoldsPositionsWithFloor) {
  auto state = crystal();
  add_site(state, "A", "Si", -0.25F, 1.0F, 2.75F);
  add_site(state, "B", "Si", -1e-9F, 0, 0);  // 1 - 1e-9 rounds to 1 as a Single, which is 0
  expand_unit_cell(state, {"TRICL", "P1", {identity}});
  ASSERT_EQ(state.NCell, 2);
  EXPECT_EQ(state.UCPos(1, 1), 0.75F);
  EXPECT_EQ(state.UCPos(1, 2), 0);
  EXPECT_EQ(state.UCPos(1, 3), 0.75F);
  EXPECT_EQ(state.UCPos(2, 1), 0);
}

struct ImageCase {
  const char* name;
  Single x, y, z;
  int atoms;  ///< of a site in a cell with a centre of symmetry
};
class SpecialPosition : public testing::TestWithParam<ImageCase> {};
TEST_P(SpecialPosition, MergesImagesNearerThanTheTolerance) {
  auto state = crystal();
  add_site(state, "A", "Si", GetParam().x, GetParam().y, GetParam().z);
  expand_unit_cell(state, {"TRICL", "P-1", {identity, inversion}});
  EXPECT_EQ(state.NCell, GetParam().atoms);
  EXPECT_EQ(state.UCPos(1, 1), GetParam().x) << "the first image is kept, nothing is averaged";
}
INSTANTIATE_TEST_SUITE_P(Sites, SpecialPosition,
                         testing::Values(ImageCase{"general", 0.1F, 0.2F, 0.3F, 2},
                                         ImageCase{"on_the_centre", 0, 0, 0, 1}, ImageCase{"half", 0.5F, 0.5F, 0, 1},
                                         ImageCase{"across_the_edge", 0.999F, 0, 0, 1},
                                         ImageCase{"just_inside", 0.0049F, 0, 0, 1},
                                         ImageCase{"just_outside", 0.0051F, 0, 0, 2},
                                         ImageCase{"one_axis_far", 0, 0, 0.3F, 2}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(UnitCell, MergesOnlyEqualLabelsAndElements) {
  auto state = crystal();
  add_site(state, "M1", "Mg", 0, 0, 0, 0.75F);
  add_site(state, "M1", "Fe", 0, 0, 0, 0.25F);
  add_site(state, "M2", "Mg", 0, 0, 0, 0.5F);
  add_site(state, "M1", "Mg", 0, 0, 0, 1);
  expand_unit_cell(state, {"TRICL", "P1", {identity}});
  EXPECT_EQ(state.NCell, 3);
  EXPECT_EQ(unit_cell_summary(state), " 3(1.5)");
}

TEST(UnitCell, WithoutSitesIsEmpty) {
  auto state = crystal();
  expand_unit_cell(state, {"TRICL", "P1", {identity}});
  EXPECT_EQ(unit_cell_summary(state), " 0(0.0)");
}

TEST(UnitCell, HoldsTwoThousandAtoms) {
  auto state = crystal();
  for (int i = 1; i <= 1000; ++i) add_site(state, std::to_string(i).c_str(), "Si", 0.1F, 0.2F, 0.3F);
  SpaceGroup group{"TRICL", "P-1", {identity, inversion}};
  expand_unit_cell(state, group);
  EXPECT_EQ(state.NCell, 2000);
  group.operators.push_back(operation({{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, {0.5F, 0, 0}));
  EXPECT_EQ(failure_of([&] { expand_unit_cell(state, group); }), "index 2001 of UCLabel is outside 0 to 2000");
}

TEST(UnitCell, LinesKeepTheirColumns) {
  auto state = crystal();
  add_site(state, "LongLabel1", "Si", 0.333333F, 0.5F, 0, 0.12345F);
  expand_unit_cell(state, {"TRICL", "P1", {identity}});
  EXPECT_EQ(unit_cell_line(state, 1), " 1      LongLabeSi      0.1235    0.33333   0.5       0.0       0.5       ");
}

// Element (i, j) of the turned operator is (p(i), p(j)); worked out by hand for a two-fold axis along a with shifts.
TEST(AxisSettings, PermuteRotationAndTranslation) {
  const auto op = operation({{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}}, {0.1F, 0.2F, 0.3F});
  struct Row {
    const char* setting;
    std::array<int, 3> p;
  };
  for (const auto& row : {Row{"abc", {1, 2, 3}}, Row{"cab", {3, 1, 2}}, Row{"bca", {2, 3, 1}}, Row{"a-cb", {1, 3, 2}},
                          Row{"ba-c", {2, 1, 3}}, Row{"c-ba", {3, 2, 1}}}) {
    const auto turned = permute_axes(op, row.setting);
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_EQ(turned.translation[i], 0.1F * static_cast<Single>(row.p[i])) << row.setting;
      for (std::size_t j = 0; j < 3; ++j) {
        EXPECT_EQ(turned.rotation[i][j], static_cast<Single>(3 * (row.p[i] - 1) + row.p[j])) << row.setting;
      }
    }
  }
}

TEST(AxisSettings, UnknownOnesPutEverySiteAtTheOrigin) {
  auto state = crystal();
  state.AxisSetting = "-cba";
  add_site(state, "A", "Si", 0.1F, 0.2F, 0.3F);
  add_site(state, "B", "Si", 0.4F, 0.2F, 0.3F);
  expand_unit_cell(state, {"TRICL", "P-1", {identity, inversion}});
  EXPECT_EQ(state.NCell, 2);
  EXPECT_EQ(state.UCPos(2, 1), 0);
}

TEST(SpaceGroupFile, NamesWhatIsBroken) {
  const ScratchFolder folder;
  const auto path = folder.write("No001.dat", "\"TRICL\",\"P1\"\r\n2\r\n1,0,0,0,1,0,0,0,1,0,0,0\r\n1,0,0,0,q\r\n");
  EXPECT_EQ(failure_of([&] { (void)read_space_group(path); }),
            path + ", line 4: r22 of operator 2 is \"q\", a number is expected");
  folder.write("No002.dat", "\"TRICL\",\"P-1\"\r\n1001\r\n");
  EXPECT_NE(failure_of([&] { (void)read_space_group(folder.path("No002.dat")); }).find("at most 1000"),
            std::string::npos);
}

TEST(CellConstraints, FollowTheSystemWordExactly) {
  EXPECT_TRUE(cell_constraint("CUBIC").c_as_a);
  EXPECT_EQ(cell_constraint("HEXA").gamma, "120");
  EXPECT_EQ(cell_constraint("TRIGO").gamma, "120");
  EXPECT_FALSE(cell_constraint("TETRA").c_as_a);
  EXPECT_FALSE(cell_constraint("ORTHO").b_as_a);
  EXPECT_EQ(cell_constraint("MONO").beta, "");
  EXPECT_EQ(cell_constraint("MONO").gamma, "90");
  for (const auto* other : {"Cubic", "TRICL", "", "MONO "}) {
    EXPECT_FALSE(cell_constraint(other).b_as_a) << other;
    EXPECT_EQ(cell_constraint(other).alpha, "") << other;
  }
}

TEST(DataRoot, FindsNamesThatDifferInCase) {
  const ScratchFolder folder;
  folder.write("SpaceGr/No225.dat", "");
  const DataRoot data{folder.path(""), ""};
  EXPECT_EQ(data.path("SpaceGr/NO225.dat"), (std::filesystem::path(folder.path("")) / "SpaceGr/No225.dat").string());
  EXPECT_EQ(data.path("spacegr/no226.dat"), (std::filesystem::path(folder.path("")) / "SpaceGr/no226.dat").string());
}

TEST(CameraFile, HoldsSixNumbersInItsOwnOrder) {
  const ScratchFolder folder;
  CrystalState state;
  const auto path = folder.write("camera", "37,1.5,-2,40,1,0.5\r\n");
  read_camera_file(path, state);
  EXPECT_EQ(state.CamAcquisition, 37);
  EXPECT_EQ(state.CamXShift, 1.5F);
  EXPECT_EQ(state.CamYShift, -2);
  EXPECT_EQ(state.CamDetector, 40);
  EXPECT_EQ(state.CamXYRatio, 1);
  EXPECT_EQ(state.CamNormal, 0.5F);
  write_camera_file(folder.path("copy"), state);
  EXPECT_EQ(folder.read("copy"), "37,1.5,-2,40,1,.5\r\n");
  folder.write("short", "37,0,0,40,1\r\n");
  EXPECT_NE(failure_of([&] { read_camera_file(folder.path("short"), state); }).find("the substrate normal"),
            std::string::npos);
}

}  // namespace
}  // namespace zol
