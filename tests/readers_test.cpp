#include <gtest/gtest.h>

#include "entry/atom_lists.h"
#include "entry/structure_readers.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Box = BoxText::Box;

TEST(Words, AreCutAtBlanksAlone) {
  using Words = std::vector<std::string>;
  EXPECT_EQ(cut_words("  a  b c "), (Words{"a", "b", "c"}));
  EXPECT_EQ(cut_words("a\tb,c 'd e'"), (Words{"a\tb,c", "'d", "e'"}));
  EXPECT_EQ(cut_words("   "), Words{});
  EXPECT_EQ(split_lines("a\r\nb\rc\nd\n\n"), (Words{"a", "b", "c", "d", ""}));
  EXPECT_EQ(split_lines("a\n\rb"), (Words{"a", "", "b"}));
  EXPECT_EQ(split_lines(""), Words{});
  EXPECT_EQ(without_uncertainty("5.4310(2)"), "5.4310");
  EXPECT_EQ(without_uncertainty("(x)"), "");
}

TEST(Words, SurviveFromLineToLine) {
  WordTable words("x");
  words.take("a b c");
  words.take("d");
  words.take("");
  EXPECT_EQ(words.count(), 0);
  EXPECT_EQ(words(1), "d");
  EXPECT_EQ(words(3), "c");
  EXPECT_EQ(words(0), "");
  std::string line;
  for (int i = 0; i < 100; ++i) line += "w ";
  words.take(line);
  EXPECT_EQ(failure_of([&] { words.take(line + "w"); }), "x, line 5: 101 words, at most 100 are read");
}

struct Scan {
  std::vector<BoxText> texts;
  CrystalState state;
  Integer atoms;
};

template <class Reader>
Scan scan(const std::string& text) {
  Scan result;
  result.state.AtomB(1) = 7;
  Reader reader("my.cif", result.state);
  for (const auto& line : split_lines(text)) {
    for (const auto& entry : reader.take(line)) result.texts.push_back(entry);
  }
  result.atoms = reader.atoms();
  return result;
}

struct TagCase {
  const char* text;
  std::vector<BoxText> texts;
};
class CifTag : public testing::TestWithParam<TagCase> {};
TEST_P(CifTag, GoesToItsBox) { EXPECT_EQ(scan<CifReader>(GetParam().text).texts, GetParam().texts); }
INSTANTIATE_TEST_SUITE_P(
    Lines, CifTag,
    testing::Values(TagCase{"_cell_length_a 5.64(1)", {{Box::a, "5.64"}}},
                    TagCase{"_cell_angle_gamma   120", {{Box::gamma, "120"}}},
                    TagCase{"_symmetry_Int_Tables_number 14(x)", {{Box::space_group_number, "14(x)"}}},  // not stripped
                    TagCase{"_Cell_length_a 5", {}}, TagCase{"_cell_length_a_su 5", {}},
                    TagCase{"_cell_length_b\n4.2", {{Box::b, ""}}},                     // value on the next line
                    TagCase{"x 9\n_cell_length_b", {{Box::b, "9"}}},                    // a stale word
                    TagCase{"_cell_length_c 3\n\n", {{Box::c, "3"}, {Box::c, "3"}}}));  // a blank line repeats the tag

constexpr auto label_first =
    "loop_\n_atom_site_label\n_atom_site_type_symbol\n_atom_site_fract_x\n_atom_site_fract_y\n"
    "_atom_site_fract_z\n_atom_site_occupancy\n_atom_site_B_iso_or_equiv\n";

TEST(CifAtoms, AreReadByTheirColumns) {
  const auto result =
      scan<CifReader>(std::string(label_first) + "Fe1 Fe3+ 0.1(2) -.25 1e-1 .5(1) 0.42(3)\nO1 O2- 0 0 0 1 2\n");
  ASSERT_EQ(result.atoms, 2);
  EXPECT_EQ(result.state.AtomLabel(1), "Fe1");
  EXPECT_EQ(result.state.AtomElement(1), "Fe");
  EXPECT_EQ(result.state.AtomOcc(1), 0.5F);
  EXPECT_EQ(result.state.AtomPos(1, 1), 0.1F);
  EXPECT_EQ(result.state.AtomPos(1, 2), -0.25F);
  EXPECT_EQ(result.state.AtomPos(1, 3), 0.1F);
  EXPECT_EQ(result.state.AtomB(1), 0.42F);
  EXPECT_EQ(result.state.AtomElement(2), "O");
}

struct LoopCase {
  const char* name;
  std::string text;
  int atoms;
};
class CifLoop : public testing::TestWithParam<LoopCase> {};
TEST_P(CifLoop, StartsAndEndsAsTold) { EXPECT_EQ(scan<CifReader>(GetParam().text).atoms, GetParam().atoms); }
constexpr auto atom_line = "Na1 Na 0 0 0 1 1\n";
INSTANTIATE_TEST_SUITE_P(
    Files, CifLoop,
    testing::Values(LoopCase{"rows", std::string(label_first) + atom_line + atom_line, 2},
                    LoopCase{"blank_ends", std::string(label_first) + atom_line + "\n" + atom_line, 1},
                    LoopCase{"comment_ends", std::string(label_first) + atom_line + "#x\n" + atom_line, 1},
                    LoopCase{"loop_ends", std::string(label_first) + atom_line + "loop_\n" + atom_line, 1},
                    LoopCase{"label_with_atom", std::string(label_first) + "atom1 Na 0 0 0 1 1\n" + atom_line, 1},
                    LoopCase{"no_label", "loop_\n_atom_site_fract_x\n0.1\n", 0}, LoopCase{"empty", "", 0}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(CifAtoms, KeepStaleValuesAndCountFromTheLabel) {
  // No occupancy, no B: 1 and the value of the crystal before. A short row takes the words of the row before.
  const auto plain = scan<CifReader>(
      "_atom_site_label\n_atom_site_type_symbol\n_atom_site_fract_x\n_atom_site_fract_y\n"
      "_atom_site_fract_z\nNa1 Na .1 .2 .3\nCl1 Cl .4\n");
  EXPECT_EQ(plain.state.AtomOcc(1), 1);
  EXPECT_EQ(plain.state.AtomB(1), 7);
  EXPECT_EQ(plain.state.AtomPos(2, 2), 0.2F);
  // The type symbol before the label is not counted: its column is 0, an empty word, and all others are one too low.
  const auto second = scan<CifReader>(
      "_atom_site_type_symbol\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n"
      "_atom_site_fract_z\n9 .1 .2 .3 .4\n");
  EXPECT_EQ(second.state.AtomElement(1), "");
  EXPECT_EQ(second.state.AtomLabel(1), "9");
  EXPECT_EQ(second.state.AtomPos(1, 1), 0.1F);
}

struct FailureCase {
  const char* rows;
  const char* message;
};
class CifFailure : public testing::TestWithParam<FailureCase> {};
TEST_P(CifFailure, NamesLineWordAndMeaning) {
  EXPECT_EQ(failure_of([] { (void)scan<CifReader>(std::string(label_first) + GetParam().rows); }), GetParam().message);
}
INSTANTIATE_TEST_SUITE_P(
    Rows, CifFailure,
    testing::Values(FailureCase{"Na1 Na 0 0 0 ? 1\n",
                                "my.cif, line 9: \"?\" is taken for an occupancy (it is word 6), a number and "
                                "nothing else is expected"},
                    FailureCase{"Na1 Na 0 0 0 1 .\n",
                                "my.cif, line 9: \".\" is taken for a temperature factor B (it is word 7), a "
                                "number and nothing else is expected"},
                    FailureCase{"Na1 Na 0 1/2 0 1 1\n",
                                "my.cif, line 9: \"1/2\" is taken for a coordinate y (it is word 4), a number "
                                "and nothing else is expected"}));

TEST(CifFailures, ColumnsThatAreMissing) {
  EXPECT_EQ(
      failure_of([] { (void)scan<CifReader>("_atom_site_label\n_atom_site_fract_x\nNa1 0\n"); }),
      "my.cif, line 3: \"\" is taken for a coordinate y (there is no column for it), a number and nothing else is "
      "expected");
  std::string rows = label_first;
  for (int i = 0; i < 1001; ++i) rows += atom_line;
  EXPECT_NE(failure_of([&] { (void)scan<CifReader>(rows); }).find("index 1001 of AtomLabel"), std::string::npos);
}

TEST(Icsd, ReadsCellGroupAndTable) {
  const auto result = scan<IcsdReader>(
      "Unit Cell 4.594(1) 4.594(1) 2.959(2) 90. 90. 90.(0)\nSG P42/mnm 136\n"
      "Atom # OX SITE x y z SOF H ITF(B)\nTi 1 +4 2 a 0 0 0 0.98(1) 0 0.61(2)\n\nLbl Type U11\nTi1 Ti 0.1\n"
      "Atom # OX SITE x y z SOF H\nO 2 -2 4 f 0.25 0.125 -0.0625 1. 0\n*end\nO 3 -2 4 f ? ? ? ? 0\n");
  EXPECT_EQ(result.texts, (std::vector<BoxText>{{Box::a, "4.594"},
                                                {Box::b, "4.594"},
                                                {Box::c, "2.959"},
                                                {Box::alpha, "90."},
                                                {Box::beta, "90."},
                                                {Box::gamma, "90."},
                                                {Box::space_group_number, "136"}}));
  ASSERT_EQ(result.atoms, 3) << "the empty line repeats the titanium";
  EXPECT_EQ(result.state.AtomLabel(1), "Ti1");
  EXPECT_EQ(result.state.AtomElement(2), "Ti");
  EXPECT_EQ(result.state.AtomB(2), 0.61F);
  EXPECT_EQ(result.state.AtomLabel(3), "O2");
  EXPECT_EQ(result.state.AtomOcc(3), 1);
  EXPECT_EQ(result.state.AtomPos(3, 3), -0.0625F);
  EXPECT_EQ(result.state.AtomB(3), 0) << "without the column ITF(B) the former value stays";
  EXPECT_EQ(scan<IcsdReader>("Title\n").atoms, 0);
}

TEST(BareList, MakesElementsFromLabels) {
  const ScratchFolder folder;
  const auto rows = read_bare_atom_list(
      folder.write("list", "Fe1 0.1250(3) 0 .5\nO12 0.25 0.25 0.25\n\n   \nOs1 1 2 3 9\nC12 -0.1\nSi a b c\n"));
  EXPECT_EQ(rows, (std::vector<AtomRow>{{"Fe1", "Fe", "1.0", "0.1250(3)", "0", ".5", "0.0"},
                                        {"O12", "O", "1.0", "0.25", "0.25", "0.25", "0.0"},
                                        {"Os1", "O", "1.0", "1", "2", "3", "0.0"},
                                        {"C12", "C1", "1.0", "-0.1", "", "", "0.0"},
                                        {"Si", "Si", "1.0", "a", "b", "c", "0.0"}}));
}

TEST(MincrystList, CountsEmptyLines) {
  const ScratchFolder folder;
  const auto rows = read_mincryst_list(folder.write("list", "1 .1 .2 .3 .5 Si x 1.0\n\n2 0 0 0 .4 O y\n"));
  EXPECT_EQ(rows, (std::vector<AtomRow>{{"Si", "Si", "1.0", ".1", ".2", ".3", ".5"},
                                        {"", "", "", "", "", "", ""},
                                        {"O", "O", "", "0", "0", "0", ".4"}}));
}

TEST(AtomLists, HoldTwoHundredLines) {
  const ScratchFolder folder;
  std::string text;
  for (int i = 0; i < 200; ++i) text += "Na1 0 0 0\n\n";
  EXPECT_EQ(read_bare_atom_list(folder.write("list", text)).size(), 200U);
  EXPECT_NE(failure_of([&] { (void)read_mincryst_list(folder.path("list")); }).find("line 201"), std::string::npos);
  EXPECT_NE(failure_of([&] { (void)read_bare_atom_list(folder.write("more", text + "Na1 0 0 0")); }).find("line 401"),
            std::string::npos);
}

}  // namespace
}  // namespace zol
