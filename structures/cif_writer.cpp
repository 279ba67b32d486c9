#include "structures/cif_writer.h"

#include <algorithm>
#include <cctype>
#include <set>

#include "core/number_text.h"
#include "structures/contents.h"
#include "structures/elements.h"
#include "structures/operator_text.h"

namespace zol {
namespace {

std::string number(double value) { return plain_text(value); }

/// Letters and digits alone, beginning with a letter, for the name of the block.
std::string block_name(const std::string& title) {
  std::string name;
  for (const char c : title) {
    const bool plain = std::isalnum(static_cast<unsigned char>(c)) != 0 && static_cast<unsigned char>(c) < 0x80;
    name += plain || c == '-' || c == '.' ? c : '_';
  }
  return name.empty() ? "crystal" : name.substr(0, 60);
}

std::string quoted(const std::string& text) {
  std::string plain;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    plain += byte < ' ' || byte > '~' || c == '\'' ? '?' : c;
  }
  return "'" + plain + "'";
}

/// A label as a bare word, each once.
std::string label_word(const std::string& label, const std::string& element, std::set<std::string>& used) {
  std::string word;
  for (const char c : label) {
    const bool plain = c > ' ' && c <= '~' && std::string_view("\"'#,;[]{}").find(c) == std::string_view::npos;
    if (plain) word += c;
  }
  if (word.empty() || std::isalpha(static_cast<unsigned char>(word[0])) == 0) word.insert(0, element);
  std::string unique = word;
  for (int copy = 2; !used.insert(unique).second; ++copy) unique = word + "_" + std::to_string(copy);
  return unique;
}

std::string type_symbol(const Site& site) {
  if (site.charge == 0) return site.element;
  return species_key(site.element, site.charge);
}

}  // namespace

std::string cif_text(const Structure& structure) {
  QuietTask task;
  const auto& cell = structure.cell;
  std::string text = "#\\#CIF_1.1\ndata_" + block_name(structure.title) + "\n";
  if (!structure.title.empty()) text += "_chemical_name_common " + quoted(structure.title) + "\n";
  text += "_chemical_formula_sum " + quoted(formula_text(cell_contents(structure, task))) + "\n";
  text += "_cell_formula_units_Z 1\n";
  text += "_cell_length_a " + number(cell.a) + "\n_cell_length_b " + number(cell.b) + "\n_cell_length_c " +
          number(cell.c) + "\n_cell_angle_alpha " + number(cell.alpha) + "\n_cell_angle_beta " + number(cell.beta) +
          "\n_cell_angle_gamma " + number(cell.gamma) + "\n";
  text += "_cell_volume " + number(Lattice(cell).volume()) + "\n";
  if (structure.space_group_number > 0) {
    text += "_space_group_IT_number " + std::to_string(structure.space_group_number) + "\n";
  }
  if (!structure.space_group_symbol.empty()) {
    text += "_space_group_name_H-M_alt " + quoted(structure.space_group_symbol) + "\n";
  }
  text += "loop_\n_space_group_symop_id\n_space_group_symop_operation_xyz\n";
  int id = 0;
  for (const auto& op : structure.operators) {
    text += std::to_string(++id) + " " + operator_text(op) + "\n";
  }
  text +=
      "loop_\n_atom_site_label\n_atom_site_type_symbol\n_atom_site_fract_x\n_atom_site_fract_y\n"
      "_atom_site_fract_z\n_atom_site_occupancy\n_atom_site_adp_type\n_atom_site_B_iso_or_equiv\n";
  std::set<std::string> used;
  for (const Site& site : structure.sites) {
    text += label_word(site.label, site.element, used) + " " + type_symbol(site) + " " + number(site.position.u) + " " +
            number(site.position.v) + " " + number(site.position.w) + " " + number(site.occupancy) + " Biso " +
            number(site.b_iso) + "\n";
  }
  return text;
}

}  // namespace zol
