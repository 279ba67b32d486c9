// A crystal: the records of its files, its unit cell, and the fields that hold it.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "core/camera_file.h"
#include "core/crystal_file.h"
#include "core/record_reader.h"
#include "core/space_group.h"
#include "core/state_fields.h"
#include "core/unit_cell.h"
#include "tests/test_files.h"

namespace zol {
namespace {

TEST(Records, FieldsRunOverLinesOfAllKinds) {
  RecordReader file("x", "1, 2\r\n\"a, b\" ,c d\r3\n  .5");
  EXPECT_EQ(file.next_integer("n"), 1);
  EXPECT_EQ(file.next_single("x"), 2);
  EXPECT_EQ(file.next_string("s"), "a, b");
  EXPECT_EQ(file.next_string("s"), "c d");
  EXPECT_EQ(file.next_single("x"), 3);
  EXPECT_EQ(file.line(), 3);
  EXPECT_FALSE(file.at_end());
  EXPECT_EQ(file.next_single("x"), 0.5F);
  EXPECT_EQ(file.line(), 4);
  EXPECT_TRUE(file.at_end());
}

TEST(Records, NumbersTakeWhatAFieldStartsWith) {
  RecordReader file("x", "1 2,-.5E1,.333333343,12abc,2.5,\"7\",-32768.5");
  for (const Single number : {1.0F, -5.0F, 1.0F / 3.0F}) EXPECT_EQ(file.next_single("x"), number);
  for (const int number : {12, 2, 7, -32768})
    EXPECT_EQ(file.next_integer("n"), number) << "halves go to the even number";
  // Just above the middle between 1 and the next Single: as a Double it is that middle, which goes to the even side.
  EXPECT_EQ(RecordReader("x", "1.000000059604644775390626").next_single("x"), 1.0F);
}

TEST(Records, WhenBrokenAreToldWithFileLineAndField) {
  for (const auto& [text, message] :
       {std::pair{"", "line 1: the file ends where the label is expected"},
        {"a", "line 1: the file ends where x is expected"},
        {"a\r\n1\r\n\r\n", "line 3: the file ends where the count is expected"},
        {"a\nb,2", "line 2: x is \"b\", a number is expected"},
        {"a,1\n\n\nq", "line 2: the count is \"\", a whole number is expected"},
        {"a,1,32768", "line 1: the count is \"32768\", it must be within -32768 to 32767"},
        {"a,1,-32769", "line 1: the count is \"-32769\", it must be within -32768 to 32767"},
        {"a,1e40,1", "line 1: x is \"1e40\", too large for a Single (below 3.4E+38)"},
        {"\"a\nb\r\nc\",x", "line 3: x is \"x\", a number is expected"},
        {"\"a,1\n2", "line 1: the quote before the label has no closing quote"}}) {
    RecordReader file("my.cry", text);  // of a string, a Single and an Integer
    const auto failure = failure_of([&file] {
      (void)file.next_string("the label");
      (void)file.next_single("x");
      (void)file.next_integer("the count");
    });
    EXPECT_EQ(failure, std::string("my.cry, ") + message);
  }
}

constexpr auto cell_line = "4.05,5,6,90,91.5,90,\"F\",225,\"abc\"\r\n";

CrystalState load(const ScratchFolder& folder, const std::string& rest, bool has_contents = true) {
  CrystalState state;
  CrystalFileReader file(folder.write("x.cry", cell_line + rest));
  file.read_cell(state);
  EXPECT_EQ(file.read_contents(state), has_contents) << rest;
  return state;
}

TEST(CrystalFile, MayEndBehindTheCell) {
  const ScratchFolder folder;
  EXPECT_EQ(load(folder, " \r\n\r\n", false).NAtom, -1);
  EXPECT_EQ(load(folder, "-1\r\n").NAtom, -1) << "of no atoms";
}

// Behind a count below -1 stand four numbers of an older layout, the last of which counts.
TEST(CrystalFile, TakesTheAtomsThatTheCountTells) {
  const ScratchFolder folder;
  for (const std::string count : {"2", "-2,7,8,9,2", "-5\r\n7\r\n8\r\n9\r\n2"}) {
    const auto state = load(folder, count + "\r\n\"A,1\",\"Al\",1,0,.5,1E-1,0.5\r\nB,Fe3+,.5,0,0,0,1\r\nC,O,1,0,0,0,0");
    ASSERT_EQ(state.NAtom, 2) << count;
    EXPECT_EQ(state.AtomLabel(1), "A,1");
    EXPECT_EQ(state.AtomPos(1, 3), 0.1F);
    EXPECT_EQ(state.AtomElement(2), "Fe3+");
    EXPECT_EQ(state.AtomLabel(3), "");
  }
}

TEST(CrystalFile, WhenBrokenIsToldWithLineAndField) {
  const ScratchFolder folder;
  for (const auto& [rest, message] :
       {std::pair{"0\r\n", "line 3: the file ends where the number of observed reflections is expected"},
        {"1\r\n\"A\",\"Al\",1,0,0\r\n", "line 4: the file ends where z of atom 1 is expected"},
        {"1001\r\n", "line 2: the number of atoms is 1001, at most 1000 are allowed"},
        {"0\r\n201\r\n", "line 3: the number of observed reflections is 201, at most 200 are allowed"}}) {
    EXPECT_EQ(failure_of([&, contents = rest] { (void)load(folder, contents); }),
              folder.path("x.cry") + ", " + message);
  }
}

// What was read is written again letter for letter: a Single takes nine digits at most.
TEST(CrystalFile, ComesBackTheSameToTheBit) {
  const ScratchFolder folder;
  for (const std::string contents :
       {"2\r\n\"A,1\",\"Al\",.33333334,.1,.7,.12345679,.5\r\n\"B\",\"O\",1,0,0,0,.000000000001\r\n",
        "0\r\n2\r\n1,1,1,100\r\n2,0,.5,46\r\n"}) {
    auto state = load(folder, contents);
    if (state.NAtom > 0) state.JcpdsCount = 1;  // not saved beside atoms
    write_crystal_file(folder.path("y.cry"), state);
    EXPECT_EQ(folder.read("y.cry"), cell_line + contents);
  }
  auto state = load(folder, "0\r\n1\r\n1,1,1,100\r\n");
  state.NAtom = -1;  // the table is written all the same
  write_crystal_file(folder.path("y.cry"), state);
  EXPECT_EQ(folder.read("y.cry"), std::string(cell_line) + "-1\r\n1\r\n1,1,1,100\r\n");
  read_camera_file(folder.write("camera", "37,1.5,-2,40,1.25,.5\r\n"), state);
  write_camera_file(folder.path("copy"), state);
  EXPECT_EQ(folder.read("copy"), folder.read("camera"));
}

const SymmetryOperator identity{{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, {}};
const SymmetryOperator inversion{{{{-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}}, {}};
const SpaceGroup without_centre{"TRICL", "P1", {identity}};
const SpaceGroup with_centre{"TRICL", "P-1", {identity, inversion}};

struct OldSite {
  std::string label;
  const char* element;
  std::array<Single, 3> at;
  Single occupancy = 1;
};

CrystalState expanded(const std::vector<OldSite>& sites, const SpaceGroup& group, const char* axis_setting = "abc") {
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
  std::vector<OldSite> sites{
      {"M1", "Mg", {}, 0.75F}, {"M1", "Fe", {}, 0.25F}, {"M2", "Mg", {}, 0.5F}, {"M1", "Mg", {}}};
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
  const std::string first = "\"TRICL\",\"P1\"\r\n2\r\n1,0,0,0,1,0,0,0,1,0,0,0\r\n";
  for (const auto& [text, message] :
       {std::pair{first + "1,0,0,0,q\r\n", "line 4: r22 of operator 2 is \"q\", a number is expected"},
        {first + "1,0,0,0,1,0,0,0,1,0,q", "line 4: t2 of operator 2 is \"q\", a number is expected"},
        {"\"TRICL\",\"P-1\"\r\n1001\r\n", "at most 1000"}}) {
    EXPECT_TRUE(fails_with(message, [&, &text = text] { (void)read_space_group(folder.write("No001.dat", text)); }));
  }
}

struct AnyValue {
  template <class T>
  operator T() const;  // NOLINT(google-explicit-constructor,hicpp-explicit-conversions)
};

/// Number of members of an aggregate: as many values as can be listed for it.
template <class Aggregate, class... Values>
constexpr std::size_t member_count() {
  if constexpr (requires { Aggregate{Values{}..., AnyValue{}}; }) {
    return member_count<Aggregate, Values..., AnyValue>();
  } else {
    return sizeof...(Values);
  }
}

TEST(StateFields, AreAllInTheTableUnderTheirNames) {
  CrystalState state;
  std::set<std::string> names;
  std::set<const void*> fields;
  for_each_field(state, [&]<class Field>(const FieldName& name, const Field& field) {
    names.insert(name.text);
    fields.insert(&field);
    if constexpr (requires { field.name(); }) {
      EXPECT_EQ(field.name(), name.text);
    }
  });
  constexpr std::size_t members = member_count<Main1State>() + member_count<Module1State>();
  EXPECT_EQ(fields.size(), members);
  EXPECT_EQ(names.size(), members);
}

}  // namespace
}  // namespace zol
