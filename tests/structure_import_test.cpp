// Structure files written for what breaks readers, with the crystal that a crystallographer takes from them.
#include "structures/structure_import.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/number_text.h"
#include "core/read_file.h"
#include "core/run_failure.h"
#include "structures/cif_writer.h"
#include "structures/contents.h"
#include "structures/operator_text.h"
#include "structures/space_group_symbols.h"
#include "tests/test_files.h"
#include "tools/data_check/cell_metric.h"

namespace zol {
namespace {

const SpaceGroupLibrary& groups() {
  static const SpaceGroupLibrary library(file_of);
  return library;
}

std::set<std::string> keys() {
  std::set<std::string> found;
  for (int z = 1; z <= 98; ++z) found.emplace(element_symbol(z));
  found.insert({"Fe3+", "Fe2+", "Na1+", "O2-", "Cl1-"});
  return found;
}

Import import_text(const std::string& text, const ImportAnswers& answers = {}, const std::string& name = "file") {
  QuietTask task;
  return import_structure(text, name, answers, groups(), keys(), task);
}

/// Formula of the cell, file, axes, B of the first site, warnings; or the question or failure.
std::string outcome(const std::string& text, const ImportAnswers& answers = {}, const std::string& name = "file") {
  try {
    const Import import = import_text(text, answers, name);
    if (const auto* question = std::get_if<Question>(&import)) return "? " + question->key;
    const auto& crystal = std::get<ImportedCrystal>(import);
    QuietTask task;
    std::string told = formula_text(cell_contents(crystal.structure, task)) + " | " +
                       std::to_string(crystal.file_number) + " " + crystal.axis_setting + " | " +
                       Format(crystal.structure.sites.front().b_iso, "0.00");
    for (const auto& line : crystal.report) {
      if (line.starts_with("Warning:")) told += "\n" + line;
    }
    return told;
  } catch (const RunFailure& failure) {
    return "failure: " + failure.message();
  }
}

const std::string cubic =
    "_cell_length_a 5.64\n_cell_length_b 5.64\n_cell_length_c 5.64\n_cell_angle_alpha 90\n"
    "_cell_angle_beta 90\n_cell_angle_gamma 90\n";
const std::string fm3m = "_symmetry_space_group_name_H-M 'F m -3 m'\n";
const std::string xyz = "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n";
const std::string halite_atoms = xyz + "Na1 0 0 0\nCl1 1/2 0.5 .5\n";
const std::string halite = "data_halite\n" + cubic + fm3m + halite_atoms;
const std::string halite_cell = "Cl4 Na4 | 225 abc | 0.50";

std::string hexagonal(const std::string& a, const std::string& c) {
  return "_cell_length_a " + a + "\n_cell_length_b " + a + "\n_cell_length_c " + c +
         "\n_cell_angle_alpha 90\n_cell_angle_beta 90\n_cell_angle_gamma 120\n";
}

std::string symbol(const std::string& name) { return "_symmetry_space_group_name_H-M '" + name + "'\n"; }

struct Case {
  const char* what;
  std::string text;
  std::string expected;
  ImportAnswers answers = {};
  std::string name = "file";
};

void check(const std::vector<Case>& cases) {
  for (const auto& [what, text, expected, answers, name] : cases) {
    EXPECT_EQ(outcome(text, answers, name), expected) << what;
  }
}

TEST(StructureImport, MendsTheSyntaxOfCif) {
  std::string mac = halite;
  for (char& c : mac) c = c == '\n' ? '\r' : c;
  check({{"plain", halite, halite_cell},
         {"a byte order mark, no block", "\xEF\xBB\xBF" + halite.substr(12), halite_cell},
         {"line ends of CR", mac, halite_cell},
         {"Latin-1 and control characters", "data_x\n_publ_author M\xFCller\x01\n" + halite.substr(12), halite_cell},
         {"tags twice, in capitals, dotted",
          "data_x\n_CELL.LENGTH_A 5.64\n" + cubic + "_cell_length_a 9\n" + fm3m + halite_atoms, halite_cell},
         {"a quote that is not closed", "data_x\n_publ_section_title 'no end\n" + cubic + fm3m + halite_atoms,
          halite_cell},
         {"a text that is not closed", "data_x\n_publ_section_title\n;no end\nof it\n" + cubic + fm3m + halite_atoms,
          halite_cell},
         {"a tag without its value", "data_x\n_chemical_name_common\n" + cubic + fm3m + halite_atoms, halite_cell},
         {"a loop that is cut short", halite + "O1 0.25",
          halite_cell + "\nWarning: line 16: the loop that ends here lacks values of its last row"
                        "\nWarning: 1 atom without coordinates left out: O1"},
         {"quoted numbers, uncertainties, tabs",
          "data_x\n" + cubic + fm3m + xyz + "Na1\t'0.0'\t0.000(3)\t0\nCl1 \"0.5\" 0.5(1) 0.5\n", halite_cell},
         {"triple quotes of CIF 2", "#\\#CIF_2.0\ndata_x\n_title '''two\nlines''' \n" + cubic + fm3m + halite_atoms,
          halite_cell},
         {"two crystals", halite + halite, "? block"},
         {"the second one",
          halite + "data_second\n" + cubic + fm3m + xyz + "K1 0 0 0\n",
          "K4 | 225 abc | 0.50",
          {{"block", "2"}}},
         {"no atoms", "data_x\n" + cubic, "failure: no atoms: a loop with _atom_site_fract_x is expected"},
         {"no cell", "data_x\n" + halite_atoms, "failure: _cell_length_a is missing or is not a length"},
         {"a cell of words", "data_x\n_cell_length_a long\n" + halite_atoms,
          "failure: line 2: _cell_length_a is \"long\", a number is expected"}});
}

TEST(StructureImport, TakesTheSymmetryThatIsMeant) {
  const std::string diamond = "data_x\n_chemical_formula_sum C\n_cell_formula_units_Z 8\n" + cubic;
  const std::string identity = "_symmetry_equiv_pos_as_xyz 'x, y, z'\n";
  const std::string quartz = "data_x\n" + hexagonal("4.913", "5.405");
  const std::string quartz_atoms = xyz + "Si1 0.4697 0 0\nO1 0.4135 0.2669 0.1191\n";
  // P 32 2 1 with Si on the axis at z = 0, as quartz is mostly given; and in the standard setting, 2/3 lower.
  const std::string quartz_operators =
      "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-y,x-y,2/3+z\n-x+y,-x,1/3+z\n"
      "x-y,-y,-z\ny,x,2/3-z\n-x,-x+y,1/3-z\n";
  check(
      {{"no operators, two origins", diamond + symbol("F d -3 m") + xyz + "C1 0 0 0\n", "? origin"},
       {"the first", diamond + symbol("F d -3 m") + xyz + "C1 0 0 0\n", "C8 | 249 abc | 0.50", {{"origin", "1"}}},
       {"the second", diamond + symbol("Fd3m") + xyz + "C1 .125 .125 .125\n", "C8 | 227 abc | 0.50", {{"origin", "2"}}},
       {"told behind a colon", diamond + symbol("F d -3 m:2") + xyz + "C1 .125 .125 .125\n", "C8 | 227 abc | 0.50"},
       {"the tail S", diamond + symbol("F d -3 m S") + xyz + "C1 0 0 0\n", "C8 | 249 abc | 0.50"},
       {"by Hall symbol", diamond + "_space_group_name_Hall '-F 4vw 2vw 3'\n" + xyz + "C1 1/8 1/8 1/8\n",
        "C8 | 227 abc | 0.50"},
       {"by number alone", "data_x\n" + cubic + "_space_group_IT_number 225\n" + halite_atoms, halite_cell},
       {"symbol and number disagree", "data_x\n" + cubic + fm3m + "_space_group_IT_number 221\n" + halite_atoms,
        halite_cell + "\nWarning: the symbol F m -3 m has number 225, the file says 221; the symbol counts"},
       {"an identity that is a lie",
        "data_x\n_chemical_formula_sum 'Na Cl'\n_cell_formula_units_Z 4\n" + cubic + fm3m + identity + halite_atoms,
        halite_cell + "\nWarning: the only symmetry operator is the identity; those of F m -3 m are taken"},
       {"an identity beside a symbol", "data_x\n" + cubic + fm3m + identity + halite_atoms, "? symmetry"},
       {"operators that are no group",
        "data_x\n" + cubic + "loop_\n_symmetry_equiv_pos_as_xyz\nx,y,z\n-x,-y,z\n-x,y,-z\n" + xyz + "Na1 .1 .2 .3\n",
        "Na4 | 16 abc | 0.50\nWarning: the 3 symmetry operators do not form a group; the 4 that they make are taken"},
       {"a cell of another symmetry", "data_x\n" + hexagonal("5", "7") + symbol("P m -3 m") + xyz + "Na1 0 0 0\n",
        "Na | 221 abc | 0.50\nWarning: the cell does not fit the symmetry"},
       {"no symmetry at all", "data_x\n" + cubic + xyz + "Na1 0 0 0\n",
        "Na | 1 abc | 0.50\nWarning: the file gives no symmetry; the atoms are taken as they are listed"},
       {"a setting of no table", quartz + quartz_operators + quartz_atoms, "O6 Si3 | 154 abc | 0.50"},
       {"rhombohedral axes",
        "data_x\n_cell_length_a 5\n_cell_length_b 5\n_cell_length_c 5\n_cell_angle_alpha 60\n"
        "_cell_angle_beta 60\n_cell_angle_gamma 60\n" +
            symbol("R -3 c") + xyz + "Al1 .35 .35 .35\n",
        "Al12 | 167 abc | 0.50"},
       {"an order of the axes that the program has",
        "data_x\n_cell_length_a 5\n_cell_length_b 6\n_cell_length_c 7\n" + symbol("P b n m") +
            "_symmetry_Int_Tables_number 62\n_cell_angle_alpha 90\n_cell_angle_beta 90\n"
            "_cell_angle_gamma 90\n" +
            xyz + "Fe1 .1 .2 .25\n",
        "Fe4 | 244 abc | 0.50"},
       {"magnetic",
        "data_x\n" + cubic +
            "loop_\n_space_group_symop_magn_operation.xyz\nx,y,z,+1\n-x,-y,-z,-1\n"
            "loop_\n_space_group_symop_magn_centering.xyz\nx,y,z,+1\nx+1/2,y+1/2,z+1/2,-1\n" +
            xyz + "Fe1 .1 .2 .3\n",
        "Fe4 | 243 abc | 0.50\nWarning: the structure is magnetic; its atoms are taken without their moments"}});
}

// Anatase: Ti at 0 1/2 1/4 is ((a/2)^2 + (0.0419 c)^2)^0.5 from O, 4 TiO2 of 79.866 are in 136.055 A3. With the other
// origin Ti at 1/4 3/4 1/4 is (2 (a/4)^2 + (0.0419 c)^2)^0.5 from O, and the cell holds twice as many.
TEST(StructureImport, TellsWhatEachOriginWouldGive) {
  const Import import = import_text(
      "data_x\n_cell_length_a 3.782\n_cell_length_b 3.782\n_cell_length_c 9.512\n_cell_angle_alpha 90\n"
      "_cell_angle_beta 90\n_cell_angle_gamma 90\n" +
          symbol("I 41 / a m d") + xyz + "Ti1 0 0 0\nO1 0 0 .2081(2)\n",
      {}, "file");
  const auto* question = std::get_if<Question>(&import);
  ASSERT_NE(question, nullptr);
  for (const auto* line : {"\nOrigin 1: 3.899 g/cm3; shortest distance: Ti1 - O1 1.933 ",
                           "\nOrigin 2: 7.798 g/cm3; shortest distance: Ti1 - O1 1.395 ", "I 41/a m d :1 or"}) {
    EXPECT_NE(question->text.find(line), std::string::npos) << question->text;
  }
}

TEST(StructureImport, TakesElementsPositionsAndDisplacementsThatAreMeant) {
  const std::string p1 = "data_x\n" + cubic + symbol("P 1");
  const std::string typed =
      "loop_\n_atom_site_label\n_atom_site_type_symbol\n_atom_site_fract_x\n_atom_site_fract_y\n"
      "_atom_site_fract_z\n_atom_site_occupancy\n";
  const auto formula = [](const std::string& text) { return "_chemical_formula_sum '" + text + "'\n"; };
  const std::string hexagonal_sites = "data_x\n" + hexagonal("5", "7") + symbol("P 63/m m c");
  check(
      {{"type symbols",
        p1 + typed + "A Fe3+ 0 0 0 1\nB O2- .5 .5 .5 ?\nC Na+ .5 0 0 .\nD Si0+ 0 .5 0 1\nE D 0 0 .5 1\n",
        "Fe H Na O Si | 1 abc | 0.50"},
       {"an ion without factors", p1 + typed + "A Si4+ 0 0 0 1\n", "Si | 1 abc | 0.50"},
       {"CA by the formula, calcium", p1 + formula("Ca O") + xyz + "CA1 0 0 0\nO1 .5 .5 .5\n", "Ca O | 1 abc | 0.50"},
       {"CA by the formula, carbon", p1 + formula("C O") + xyz + "CA1 0 0 0\nO1 .5 .5 .5\n", "C O | 1 abc | 0.50"},
       {"HO3' is no holmium", p1 + formula("H O") + xyz + "HO3' 0 0 0\nOS1 .5 .5 .5\n", "H O | 1 abc | 0.50"},
       {"water", p1 + formula("H2 O") + xyz + "Wat1 0 0 0\n",
        "O | 1 abc | 0.50\nWarning: hydrogen of water or hydroxyl is not listed (Wat1)"},
       {"an unknown one", p1 + xyz + "Na1 0 0 0\nXx1 .5 .5 .5\n",
        "Na | 1 abc | 0.50\nWarning: 1 atom whose element is not known left out: Xx1"},
       {"a mixed site as text", p1 + typed + "T '0.75Si + 0.25Al' 0 0 0 1\n", "Al0.25 Si0.75 | 1 abc | 0.50"},
       {"nobody there, too much there", p1 + typed + "A Na 0 0 0 0\nB K .5 .5 .5 1\nC Cl .5 .5 .5 .5\n",
        "Cl0.5 K | 1 abc | 0.50\nWarning: the occupancies at the place of B sum up to 1.500"},
       {"thirds with four digits", hexagonal_sites + xyz + "Zn1 0.3333 0.6667 0.25\n", "Zn2 | 194 abc | 0.50"},
       {"near an axis, not by rounding", hexagonal_sites + xyz + "Zn1 0.335 0.665 0.25\n", "Zn2 | 194 abc | 0.50"},
       {"a split site", hexagonal_sites + typed + "Zn1 Zn 0 0 0.02 0.5\n",
        "Zn2 | 194 abc | 0.50\nWarning: images of Zn1 lie closer than 0.45 angstroms; by their occupancies they are a "
        "split site, and stay apart"},
       {"the same label twice", p1 + xyz + "Na 0 0 0\nNa .5 .5 .5\n", "Na2 | 1 abc | 0.50"},
       {"U",
        p1 + "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
             "_atom_site_U_iso_or_equiv\nNa1 0 0 0 0.01(1)\n",
        "Na | 1 abc | 0.79"},
       {"a negative B",
        p1 + "loop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
             "_atom_site_B_iso_or_equiv\nNa1 0 0 0 -1\n",
        "Na | 1 abc | 0.50\nWarning: B of Na1 is negative; 0.5 square angstroms is taken"},
       // 8 pi^2 (4/3 0.01 + 4/3 0.01 + 0.03 - 4/3 0.003) / 3 in hexagonal axes, not 8 pi^2 (0.01 + 0.01 + 0.03) / 3.
       {"U_ij",
        hexagonal_sites + xyz +
            "Zn1 1/3 2/3 1/4\nloop_\n_atom_site_aniso_label\n_atom_site_aniso_U_11\n"
            "_atom_site_aniso_U_22\n_atom_site_aniso_U_33\n_atom_site_aniso_U_23\n_atom_site_aniso_U_13\n"
            "_atom_site_aniso_U_12\nZn1 .01 .01 .03 0 0 .003\n",
        "Zn2 | 194 abc | 1.39"},
       {"beta_ij",
        p1 + xyz +
            "Na1 0 0 0\nloop_\n_atom_site_aniso_label\n_atom_site_aniso_beta_11\n"
            "_atom_site_aniso_beta_22\n_atom_site_aniso_beta_33\n_atom_site_aniso_beta_12\n"
            "_atom_site_aniso_beta_13\n_atom_site_aniso_beta_23\nNa1 .01 .01 .01 0 0 0\n",
        "Na | 1 abc | 1.27"}});
}

TEST(StructureImport, ReadsOtherFormats) {
  const std::string shelx =
      "TITL quartz in P3121\nCELL 0.71 4.913 4.913 5.405 90 90 120\nZERR 3 0 0 0 0 0 0\nLATT -1\n"
      "SYMM -Y, X-Y, 1/3+Z\nSYMM -X+Y, -X, 2/3+Z\nSYMM Y, X, -Z\nSYMM X-Y, -Y, 2/3-Z\n"
      "SYMM -X, -X+Y, 1/3-Z\nSFAC Si O\nUNIT 3 6\nFVAR 0.5 0.47\n"
      "SI1 1 21.0 10.0 10.333333 10.5 0.01\nO1 2 0.4135 0.2669 0.7858 11 0.02 =\n 0.02 0.02 0 0 0.01\n"
      "Q1 1 0.1 0.2 0.3 11 0.05 3.1\nHKLF 4\nEND\nnothing\n";
  const std::string poscar =
      "cubic\n-179.4\n1 0 0\n0 1 0\n0 0 1\nNa Cl\n1 1\nSelective\nCartesian\n0 0 0 T T F\n.5 .5 .5 F F F\n";
  check(
      {{"SHELX, occupancy on an axis, a free variable", shelx, "O6 Si3 | 152 abc | 0.79"},
       // 8 pi^2 (4/3 (.02 + .03 - .01) + .01) / 3 in a hexagonal cell
       {"SHELX, displacements by six numbers",
        "TITL x\nCELL 1 5 5 6 90 90 120\nLATT -1\nSFAC Na\nUNIT 1\nNa1 1 0 0 0 11 .02 .03 =\n .01 0 0 .01\nHKLF 4\n",
        "Na | 1 abc | 1.67"},
       {"no elements", "TITL x\nCELL 1 5 5 5 90 90 90\nLATT 1\nNa1 1 0 0 0\nHKLF 4\n",
        "failure: line 4: an atom before SFAC"},
       {"POSCAR", poscar, "Cl Na | 1 abc | 0.50"},
       {"without names", "x\n1\n5 0 0\n0 5 0\n0 0 5\n1 1\nDirect\n0 0 0\n.5 .5 .5\n", "? elements", {}, "POSCAR"},
       {"names by hand",
        "x\n1\n5 0 0\n0 5 0\n0 0 5\n1 1\nDirect\n0 0 0\n.5 .5 .5\n",
        "Cl Na | 1 abc | 0.50",
        {{"elements", "Na Cl"}},
        "POSCAR"},
       {"names in the title", "Na Cl\n1\n5 0 0\n0 5 0\n0 0 5\n1 1\nDirect\n0 0 0\n.5 .5 .5\n", "Cl Na | 1 abc | 0.50"},
       {"cut short", poscar.substr(0, poscar.find(".5")), "failure: the file ends before line 11"},
       {"our own", read_file(ZOL_SOURCE_DIR "/data/ZOLDATA/Quartz.cry"), "O6 Si3 | 154 abc | 0.60"},
       {"no structure", "hello\n", "failure: it is none of the known kinds: CIF, SHELX, POSCAR, crystal file"},
       {"a broken archive", "\x1F\x8B broken", "failure: the compressed file is broken or cut short"}});
}

TEST(StructureImport, HasTheLettersOfTitlesInLatin1) {
  for (const auto& [in_file, title] : {std::pair{"Kr\xC3\xB6hnkite", "Kr\xF6hnkite"},
                                       {"\xCE\xB1-quartz", "?-quartz"},
                                       {"1 \xE2\x80\x93 2", "1 ? 2"},
                                       {"Kr\xF6hnkite", "Kr\xF6hnkite"}}) {
    const std::string name = std::string("_chemical_name_mineral '") + in_file + "'\n";
    const auto crystal = std::get<ImportedCrystal>(import_text("data_x\n" + name + cubic + fm3m + halite_atoms));
    EXPECT_EQ(crystal.structure.title, title);
  }
}

TEST(StructureImport, RefusesWhatIsBeyondTheLimits) {
  std::string many = "data_x\n" + cubic + symbol("P 1") + xyz;
  for (int i = 0; i < 1001; ++i) many += "Na" + std::to_string(i) + " ." + std::to_string(1000 + i) + " 0 0\n";
  std::string full = "data_x\n_cell_length_a 40\n_cell_length_b 40\n_cell_length_c 40\n" + fm3m + xyz;
  for (int i = 0; i < 11; ++i)
    full += "Na" + std::to_string(i) + " ." + std::to_string(100 + 30 * (i % 4)) + " .27 ." +
            std::to_string(310 + 20 * i) + "\n";
  check({{"sites", many, "failure: the crystal has 1001 sites, at most 1000 are allowed"},
         {"atoms", full, "failure: the cell has 2112 atoms, at most 2000 are allowed"}});
}

// The settings of the International Tables lead to the file of their number; each fourth one, of all systems.
TEST(StructureImport, BringsSettingsIntoThoseOfTheProgram) {
  const auto settings = tabulated_settings();
  for (std::size_t i = 0; i < settings.size(); i += 4) {
    const auto& setting = settings[i];
    SCOPED_TRACE(std::string(setting.symbol) + setting.qualifier.data());
    const Operators operators = hall_group(setting.hall);
    const Operators& to = groups().find(setting.number)->by_axes.at("abc");
    const auto change = setting_change(operators, {5, 5, 7, 90, 90, 120}, to);
    ASSERT_TRUE(change.has_value());
    EXPECT_EQ(transformed(operators, *change), to);
  }
}

TEST(CifExport, IsReadBackAsTheSameCrystal) {
  int crystals = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ZOL_SOURCE_DIR "/data/ZOLDATA")) {
    const std::string text = read_file(entry.path().string());
    if (outcome(text).starts_with("failure: the crystal file holds no atoms")) continue;
    SCOPED_TRACE(entry.path());
    ++crystals;
    const auto crystal = std::get<ImportedCrystal>(import_text(text));
    const auto back = std::get<ImportedCrystal>(import_text(cif_text(crystal.structure)));
    EXPECT_EQ(back.file_number, crystal.file_number);
    EXPECT_EQ(back.axis_setting, crystal.axis_setting);
    CrystalState before, after;
    fill_sites(before, crystal.structure);
    fill_sites(after, back.structure);
    EXPECT_EQ(to_single(back.structure.cell.c), to_single(crystal.structure.cell.c));
    EXPECT_EQ(to_single(back.structure.cell.beta), to_single(crystal.structure.cell.beta));
    ASSERT_EQ(after.NAtom, before.NAtom);
    for (int i = 1; i <= after.NAtom.value(); ++i) {
      EXPECT_EQ(after.AtomLabel(i), before.AtomLabel(i));
      EXPECT_EQ(after.AtomElement(i), before.AtomElement(i));
      EXPECT_EQ(after.AtomOcc(i), before.AtomOcc(i));
      EXPECT_EQ(after.AtomPos(i, 2), before.AtomPos(i, 2));
      EXPECT_EQ(after.AtomB(i), before.AtomB(i));
    }
  }
  EXPECT_EQ(crystals, 30);
}

}  // namespace
}  // namespace zol
