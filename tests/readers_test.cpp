// Odd files, and where they stop. Plain ones: scripts/main_window.zs, scripts/tables.zs, examples/cif.
#include <gtest/gtest.h>

#include "entry/atom_lists.h"
#include "entry/structure_readers.h"
#include "tests/quiet.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Box = BoxText::Box;
using Words = std::vector<std::string>;

TEST(Words, AreCutAtBlanksAlone) {
  EXPECT_EQ(cut_words("  a\tb,c 'd e' ", "x", 1), (Words{"a\tb,c", "'d", "e'"}));
  EXPECT_EQ(cut_words("   ", "x", 1), Words{});
  Words lines;
  for_each_line("a\r\nb\rc\n\rd\n\n", quiet, [&](std::string_view line) { lines.emplace_back(line); });
  EXPECT_EQ(lines, (Words{"a", "b", "c", "", "d", ""}));
  EXPECT_EQ(without_uncertainty("5.4310(2)"), "5.4310");
  EXPECT_EQ(without_uncertainty("(x)"), "");
  WordTable words("x");
  std::string hundred;
  for (int i = 0; i < 100; ++i) hundred += "w ";
  words.take(hundred);
  EXPECT_EQ(failure_of([&] { words.take(hundred + "w"); }), "x, line 2: 101 words, at most 100 are read");
}

struct Scan {
  std::vector<BoxText> texts;
  CrystalState state;
  Integer atoms;
};

Scan scan(const std::string& text) {
  Scan result;
  result.state.AtomB(1) = 7;
  CifReader reader("my.cif");
  for_each_line(text, quiet, [&](std::string_view line) {
    const auto found = reader.take(line);
    if (found.site) store_site(result.state, (result.atoms += 1).value(), *found.site);
    for (const auto& entry : found.texts) result.texts.push_back(entry);
  });
  return result;
}

TEST(CifTags, GoToTheirBoxes) {
  using Texts = std::vector<BoxText>;
  const std::pair<const char*, Texts> rows[] = {
      {"_symmetry_Int_Tables_number 14(x)", {{Box::space_group_number, "14(x)"}}},  // not stripped
      {"_Cell_length_a 5\n_cell_length_a_su 5", {}},
      {"_cell_length_b\n4.2", {{Box::b, ""}}},                    // value on the next line
      {"x 9\n_cell_length_b", {{Box::b, "9"}}},                   // a stale word
      {"_cell_length_c 3\n\n", {{Box::c, "3"}, {Box::c, "3"}}}};  // a blank line repeats the tag
  for (const auto& [text, texts] : rows) EXPECT_EQ(scan(text).texts, texts) << text;
}

const std::string loop_tags =
    "loop_\n_atom_site_label\n_atom_site_type_symbol\n_atom_site_fract_x\n_atom_site_fract_y\n"
    "_atom_site_fract_z\n_atom_site_occupancy\n_atom_site_B_iso_or_equiv\n";
const std::string atom_line = "Na1 Na 0 0 0 1 1\n";

TEST(CifAtoms, EndWithTheirLoop) {
  EXPECT_EQ(scan(loop_tags + atom_line + atom_line).atoms, 2);
  for (const std::string end : {"\n", "#x\n", "loop_\n"}) {
    EXPECT_EQ(scan(loop_tags + atom_line + end + atom_line).atoms, 1) << end;
  }
  EXPECT_EQ(scan(loop_tags + "atom1 Na 0 0 0 1 1\n" + atom_line).atoms, 1) << "a word with \"atom\"";
  EXPECT_EQ(scan("loop_\n_atom_site_fract_x\n0.1\n").atoms, 0) << "no label";
}

TEST(CifAtoms, KeepStaleValues) {
  // No occupancy, no B: 1 and the value of the crystal before. A short row takes the words of the row before.
  const auto result = scan(
      "_atom_site_label\n_atom_site_type_symbol\n_atom_site_fract_x\n_atom_site_fract_y\n"
      "_atom_site_fract_z\nNa1 Na .1 .2 .3\nCl1 Cl .4\n");
  EXPECT_EQ(result.state.AtomOcc(1), 1);
  EXPECT_EQ(result.state.AtomB(1), 7);
  EXPECT_EQ(result.state.AtomPos(2, 2), 0.2F);
}

TEST(CifAtoms, ThatAreNoNumbersAreToldWithLineWordAndMeaning) {
  using Row = std::pair<std::string, const char*>;
  for (const auto& [text, message] :
       {Row{loop_tags + "Na1 Na 0 0 0 ? 1\n", "9: \"?\" is taken for an occupancy (it is word 6)"},
        Row{loop_tags + "Na1 Na 0 0 0 1 .\n", "9: \".\" is taken for a temperature factor B (it is word 7)"},
        Row{loop_tags + "Na1 Na 0 1/2 0 1 1\n", "9: \"1/2\" is taken for a coordinate y (it is word 4)"},
        Row{"_atom_site_label\n_atom_site_fract_x\nNa1 0\n",
            "3: \"\" is taken for a coordinate y (there is no column for it)"},
        // Tags between two loops share a column; the element was cut there before its digit.
        Row{"_atom_site_label\n\n_atom_site_type_symbol\n_atom_site_occupancy\n_atom_site_label\n5 Na\n",
            "6: \"\" is taken for an occupancy (it is word 1)"}}) {
    EXPECT_EQ(failure_of([&text = text] { (void)scan(text); }),
              std::string("my.cif, line ") + message + ", a number and nothing else is expected");
  }
  std::string many = loop_tags;
  for (int i = 0; i < 1001; ++i) many += atom_line;
  EXPECT_TRUE(fails_with("index 1001 of AtomLabel", [&] { (void)scan(many); }));
}

TEST(AtomLists, HoldTwoHundredLines) {
  const ScratchFolder folder;
  std::string text;
  for (int i = 0; i < 200; ++i) text += "Na1 0 0 0\n\n";
  EXPECT_EQ(read_bare_atom_list(folder.write("list", text), quiet).size(), 200U);
  EXPECT_TRUE(fails_with("line 201", [&] { (void)read_mincryst_list(folder.path("list"), quiet); }));
  folder.write("list", text + "Na1 0 0 0");
  EXPECT_TRUE(fails_with("line 401", [&] { (void)read_bare_atom_list(folder.path("list"), quiet); }));
}

}  // namespace
}  // namespace zol
