// Crystals from the blocks of a crystallographic information file.
//
// Source of tags and of the forms of displacement parameters: International Tables for Crystallography G (2005) 4.1;
// Trueblood et al., Acta Cryst. A52 (1996) 770.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "core/run_aside.h"
#include "core/run_failure.h"
#include "core/trimmed.h"
#include "structures/cif_document.h"
#include "structures/contents.h"
#include "structures/field_numbers.h"
#include "structures/space_group_symbols.h"
#include "structures/symmetry_choice.h"

namespace zol {
namespace {

using Tags = std::initializer_list<std::string_view>;

constexpr double b_of_u = 8 * std::numbers::pi * std::numbers::pi;
constexpr double b_where_none = 0.5;  ///< square angstroms

bool is_symmetry_of(std::string_view text, std::initializer_list<char> starts) {
  return std::any_of(starts.begin(), starts.end(), [text](char c) { return text.starts_with(c); });
}

/// The columns of the loop of atoms.
class AtomTable {
 public:
  explicit AtomTable(const CifBlock& block) : block_(block) {
    const CifColumn* place = block.find({"_atom_site_fract_x"});
    if (place == nullptr) place = block.find({"_atom_site_cartn_x"});
    if (place == nullptr) return;
    loop_ = place->loop;
    line_ = place->line;
    rows_ = place->values.size();
  }
  [[nodiscard]] std::size_t rows() const { return rows_; }
  [[nodiscard]] int line() const { return line_; }
  /// A value of a row; none where the column is not there.
  [[nodiscard]] std::optional<std::string> text(std::size_t row, Tags tags) const {
    for (const auto tag : tags) {
      const auto found = block_.columns.find(std::string(tag));
      if (found == block_.columns.end() || found->second.loop != loop_ || row >= found->second.values.size()) continue;
      if (found->second.values[row]) return found->second.values[row];
    }
    return std::nullopt;
  }
  [[nodiscard]] std::optional<MeasuredNumber> number(std::size_t row, Tags tags) const {
    const auto value = text(row, tags);
    return value ? measured_number(*value) : std::nullopt;
  }

 private:
  const CifBlock& block_;
  int loop_ = 0;
  int line_ = 0;
  std::size_t rows_ = 0;
};

bool has_atoms(const CifBlock& block) { return AtomTable(block).rows() > 0; }

/// The displacement parameters of the anisotropic loop, by label.
class AnisotropicTable {
 public:
  AnisotropicTable(const CifBlock& block, const CellConstants& cell) : block_(block), lattice_(cell), cell_(cell) {
    labels_ = block.find({"_atom_site_aniso_label", "_atom_site_anisotrop_id"});
  }

  /// Equivalent isotropic B in square angstroms: a third of the trace in Cartesian axes.
  [[nodiscard]] std::optional<double> equivalent(const std::string& label) const {
    if (labels_ == nullptr) return std::nullopt;
    for (std::size_t row = 0; row < labels_->values.size(); ++row) {
      if (labels_->values[row] != label) continue;
      if (const auto u = sum(row, "u", true)) return b_of_u * *u / 3;
      if (const auto b = sum(row, "b", true)) return *b / 3;
      if (const auto beta = sum(row, "beta", false)) return 4 * *beta / 3;
    }
    return std::nullopt;
  }

 private:
  /// Sum over i, j of the component, the lengths of both reciprocal edges where wanted, and the product of both edges.
  [[nodiscard]] std::optional<double> sum(std::size_t row, const std::string& kind, bool reciprocal) const {
    const CellConstants star = lattice_.reciprocal_cell();
    const std::array stars{star.a, star.b, star.c};
    const std::array edges{lattice_.cartesian(DirectVector{1, 0, 0}), lattice_.cartesian(DirectVector{0, 1, 0}),
                           lattice_.cartesian(DirectVector{0, 0, 1})};
    double total = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = i; j < 3; ++j) {
        const std::string indices = std::to_string(i + 1) + std::to_string(j + 1);
        const CifColumn* column = block_.find(
            {"_atom_site_aniso_" + kind + "_" + indices,
             "_atom_site_anisotrop_" + kind + "[" + std::to_string(i + 1) + "][" + std::to_string(j + 1) + "]"});
        if (column == nullptr || column->loop != labels_->loop || !column->values[row]) return std::nullopt;
        const auto value = measured_number(*column->values[row]);
        if (!value) return std::nullopt;
        const double scale = reciprocal ? stars[i] * stars[j] : 1;
        total += (i == j ? 1 : 2) * value->value * scale * dot(edges[i], edges[j]);
      }
    }
    return total;
  }

  const CifBlock& block_;
  Lattice lattice_;
  CellConstants cell_;
  const CifColumn* labels_ = nullptr;
};

class BlockReader {
 public:
  BlockReader(const CifBlock& block, const Notes& notes) : block_(block), atoms_(block) {
    read_.format = "CIF";
    read_.notes = notes;
  }

  Reading read(const ImportAnswers& answers, Task& task) {
    read_title();
    const SymmetryClaims claims = symmetry_claims();
    read_cell(claims);
    read_formula();
    read_sites(task);
    tell_kind();
    if (auto question = choose_symmetry(read_, claims, answers, task)) return *question;
    return std::move(read_);
  }

 private:
  void read_title() {
    const auto name = block_.value({"_chemical_name_mineral", "_chemical_name_common", "_chemical_name_systematic",
                                    "_chemical_name_structure_type", "_amcsd_formula_title"});
    std::string title(trimmed(name.value_or(block_.name)));
    std::replace(title.begin(), title.end(), '\n', ' ');
    read_.structure.title = title.substr(0, 60);
  }

  /// Operators of a modulated or magnetic structure give the average or the nuclear one.
  [[nodiscard]] SymmetryClaims symmetry_claims() const {
    SymmetryClaims claims;
    const auto* operators =
        block_.find({"_space_group_symop_operation_xyz", "_symmetry_equiv_pos_as_xyz", "_space_group_symop_operation",
                     "_space_group_symop_ssg_operation_algebraic", "_space_group_symop_magn_operation_xyz",
                     "_space_group_symop_magn_ssg_operation_algebraic"});
    if (operators != nullptr) add_texts(*operators, claims.operators);
    const auto* centrings = block_.find({"_space_group_symop_magn_centering_xyz"});
    if (centrings != nullptr) add_texts(*centrings, claims.centrings);
    const auto text = [this](Tags tags) { return std::string(trimmed(block_.value(tags).value_or(""))); };
    claims.hall = text({"_space_group_name_hall", "_symmetry_space_group_name_hall"});
    claims.symbol = text({"_space_group_name_h-m_alt", "_symmetry_space_group_name_h-m", "_space_group_name_h-m_full",
                          "_space_group_name_h-m_ref", "_symmetry_space_group_name_h-m_alt", "_space_group_name_h-m",
                          "_symmetry_cell_setting_h-m"});
    if (claims.symbol.find("???") != std::string::npos) claims.symbol.clear();
    const auto number = measured_number(text({"_space_group_it_number", "_symmetry_int_tables_number"}));
    if (number && number->value >= 1 && number->value <= 230) claims.number = static_cast<int>(number->value);
    return claims;
  }

  static void add_texts(const CifColumn& column, std::vector<std::string>& texts) {
    for (const auto& value : column.values) {
      if (value) texts.push_back(*value);
    }
  }

  [[nodiscard]] double cell_number(Tags tags, double missing) const {
    const auto text = block_.value(tags);
    if (!text) return missing;
    const auto number = measured_number(*text);
    if (!number) {
      throw RunFailure("line " + std::to_string(block_.find(tags)->line) + ": " + std::string(*tags.begin()) +
                       " is \"" + *text + "\", a number is expected");
    }
    return number->value;
  }

  void read_cell(const SymmetryClaims& claims) {
    CellConstants& cell = read_.structure.cell;
    cell.a = cell_number({"_cell_length_a"}, 0);
    cell.b = cell_number({"_cell_length_b"}, 0);
    cell.c = cell_number({"_cell_length_c"}, 0);
    if (cell.a <= 0) throw RunFailure("_cell_length_a is missing or is not a length");
    const bool cubic = claims.number >= 195;
    if (cell.b <= 0 || cell.c <= 0) {
      if (claims.number < 75) throw RunFailure("_cell_length_b or _cell_length_c is missing or is not a length");
      if (cell.b <= 0) cell.b = cell.a;
      if (cell.c <= 0 && cubic) cell.c = cell.a;
      if (cell.c <= 0) throw RunFailure("_cell_length_c is missing or is not a length");
      read_.notes.assume("missing cell edges follow from the crystal system");
    }
    cell.alpha = cell_number({"_cell_angle_alpha"}, 0);
    cell.beta = cell_number({"_cell_angle_beta"}, 0);
    cell.gamma = cell_number({"_cell_angle_gamma"}, 0);
    fill_angles(claims);
    check_cell(cell);  // fails where it is none
  }

  void fill_angles(const SymmetryClaims& claims) {
    CellConstants& cell = read_.structure.cell;
    if (cell.alpha > 0 && cell.beta > 0 && cell.gamma > 0) return;
    const std::string system =
        std::string(trimmed(block_.value({"_symmetry_cell_setting", "_space_group_crystal_system"}).value_or("")));
    const auto groups = groups_of_symbol(claims.symbol, {1, 1, 1, 90, 90, 120});
    const int number = groups.empty() ? claims.number : groups.front().number;
    const bool hexagonal = is_symmetry_of(system, {'h', 'H'}) || (number >= 143 && number <= 194);
    if (cell.alpha <= 0) cell.alpha = 90;
    if (cell.beta <= 0) cell.beta = 90;
    if (cell.gamma <= 0) cell.gamma = hexagonal ? 120 : 90;
    read_.notes.assume("missing cell angles follow from the crystal system");
  }

  void read_formula() {
    if (const auto text =
            block_.value({"_chemical_formula_sum", "_chemical_formula_structural", "_chemical_formula_moiety"})) {
      read_.formula = parse_formula(*text);
    }
    const auto number = [this](Tags tags) -> std::optional<double> {
      const auto text = block_.value(tags);
      const auto value = text ? measured_number(*text) : std::nullopt;
      if (!value || value->value <= 0) return std::nullopt;
      return value->value;
    };
    read_.units = number({"_cell_formula_units_z"});
    read_.file_density = number({"_exptl_crystal_density_diffrn", "_exptl_crystal_density_meas"});
  }

  void read_sites(Task& task) {
    const AnisotropicTable anisotropic(block_, read_.structure.cell);
    std::vector<std::string> without_place, unknown;
    for (std::size_t row = 0; row < atoms_.rows(); ++row) {
      task.check();
      const std::string label = std::string(
          trimmed(atoms_.text(row, {"_atom_site_label", "_atom_site_id", "_atom_site_label_atom_id"}).value_or("")));
      const std::string type(trimmed(atoms_.text(row, {"_atom_site_type_symbol"}).value_or("")));
      const auto flag = atoms_.text(row, {"_atom_site_calc_flag"});
      if (flag && *flag == "dum") read_.notes.doubt(label + " is a dummy atom, its place is not known");
      const auto position = position_of(row);
      if (!position) {
        without_place.push_back(label.empty() ? type : label);
        continue;
      }
      const auto species = species_at(label, type);
      if (species.empty()) {
        unknown.push_back(type.empty() ? label : type);
        continue;
      }
      add_sites(row, label.empty() ? type : label, species, *position, anisotropic);
    }
    tell_left_out(without_place, "without coordinates");
    tell_left_out(unknown, "whose element is not known");
    if (b_missing_ > 0) {
      read_.notes.assume("no displacement parameters for " + std::to_string(b_missing_) +
                         (b_missing_ == 1 ? " site" : " sites") + "; B = 0.5 square angstroms is taken");
    }
    if (read_.structure.sites.empty())
      throw RunFailure("line " + std::to_string(atoms_.line()) + ": no atom can be read");
  }

  void tell_left_out(const std::vector<std::string>& names, const std::string& why) {
    if (names.empty()) return;
    std::string text = std::to_string(names.size()) + (names.size() == 1 ? " atom " : " atoms ") + why + " left out: ";
    for (std::size_t i = 0; i < std::min<std::size_t>(names.size(), 6); ++i) text += (i > 0 ? ", " : "") + names[i];
    if (names.size() > 6) text += ", ...";
    read_.notes.doubt(text);
  }

  [[nodiscard]] std::optional<DirectVector> position_of(std::size_t row) const {
    const auto x = atoms_.number(row, {"_atom_site_fract_x"});
    const auto y = atoms_.number(row, {"_atom_site_fract_y"});
    const auto z = atoms_.number(row, {"_atom_site_fract_z"});
    if (x && y && z) return DirectVector{special_coordinate(*x), special_coordinate(*y), special_coordinate(*z)};
    const auto cx = atoms_.number(row, {"_atom_site_cartn_x"});
    const auto cy = atoms_.number(row, {"_atom_site_cartn_y"});
    const auto cz = atoms_.number(row, {"_atom_site_cartn_z"});
    if (!cx || !cy || !cz) return std::nullopt;
    return Lattice(read_.structure.cell).direct(CartesianVector{cx->value, cy->value, cz->value});
  }

  /// By the type symbol, then by the label; what is not in the formula by whichever is.
  std::vector<Species> species_at(const std::string& label, const std::string& type) {
    auto by_type = species_of(type, false, read_.formula);
    auto by_label = species_of(label, true, read_.formula);
    std::vector<Species> species = by_type.empty() ? by_label : by_type;
    const auto in_formula = [this](const std::vector<Species>& s) {
      return !s.empty() && read_.formula.contains(s.front().element);
    };
    if (!read_.formula.empty() && !in_formula(by_type) && in_formula(by_label) && atomic_number(type) == 0) {
      species = by_label;
    }
    for (const auto& part : species) {
      if (part.hydrogens) read_.notes.doubt("hydrogen of water or hydroxyl is not listed (" + label + ")");
      if (!read_.formula.empty() && !read_.formula.contains(part.element)) {
        read_.notes.doubt("the formula of the file has no " + part.element + " (" + label + ")");
      }
    }
    return species;
  }

  void add_sites(std::size_t row, const std::string& label, const std::vector<Species>& species,
                 const DirectVector& position, const AnisotropicTable& anisotropic) {
    const auto occupancy = atoms_.number(row, {"_atom_site_occupancy"});
    const double share = occupancy ? occupancy->value : 1;
    if (share > 1.01) read_.notes.doubt("the occupancy of " + label + " is above 1");
    const double b = b_of(row, label, anisotropic);
    for (const auto& part : species) {
      Site site{label, part.element, part.charge, share * part.share, position, b};
      if (species.size() > 1) site.label += part.element;
      read_.structure.sites.push_back(site);
    }
  }

  double b_of(std::size_t row, const std::string& label, const AnisotropicTable& anisotropic) {
    std::optional<double> b;
    if (const auto given = atoms_.number(row, {"_atom_site_b_iso_or_equiv"})) b = given->value;
    if (!b) {
      if (const auto u = atoms_.number(row, {"_atom_site_u_iso_or_equiv"})) b = b_of_u * u->value;
    }
    if (!b) b = anisotropic.equivalent(label);
    if (b && *b < 0) {
      read_.notes.doubt("B of " + label + " is negative; 0.5 square angstroms is taken");
      return b_where_none;
    }
    if (!b) ++b_missing_;
    return b.value_or(b_where_none);
  }

  void tell_kind() {
    if (block_.find({"_space_group_symop_ssg_operation_algebraic", "_cell_modulation_dimension",
                     "_space_group_symop_magn_ssg_operation_algebraic"}) != nullptr) {
      read_.notes.doubt("the structure is modulated; its average is taken");
    }
    if (block_.find({"_space_group_symop_magn_operation_xyz", "_space_group_magn_number_bns",
                     "_space_group_magn_name_bns", "_atom_site_moment_label"}) != nullptr) {
      read_.notes.doubt("the structure is magnetic; its atoms are taken without their moments");
    }
  }

  const CifBlock& block_;
  AtomTable atoms_;
  ReadStructure read_;
  int b_missing_ = 0;
};

/// The block that an answer means, by its name or its number from 1 among those with atoms.
const CifBlock& block_of(const std::vector<const CifBlock*>& blocks, const std::string& answer) {
  for (const auto* block : blocks) {
    if (block->name == answer) return *block;
  }
  const auto number = measured_number(answer);
  if (number && number->value >= 1 && number->value <= static_cast<double>(blocks.size()) &&
      number->value == std::floor(number->value)) {
    return *blocks[static_cast<std::size_t>(number->value) - 1];
  }
  throw RunFailure("there is no block \"" + answer + "\" with atoms");
}

}  // namespace

Reading read_cif(std::string_view bytes, const ImportAnswers& answers, Task& task) {
  constexpr std::size_t takes_long = 1U << 20U;  // bytes: some 20 ms
  const CifDocument document =
      bytes.size() < takes_long ? parse_cif(bytes)
                                : run_aside<CifDocument>(task, [text = std::string(bytes)] { return parse_cif(text); });
  std::vector<const CifBlock*> blocks;
  for (const auto& block : document.blocks) {
    if (has_atoms(block)) blocks.push_back(&block);
  }
  if (blocks.empty()) throw RunFailure("no atoms: a loop with _atom_site_fract_x is expected");
  const auto answer = answers.find("block");
  if (answer != answers.end()) return BlockReader(block_of(blocks, answer->second), document.notes).read(answers, task);
  if (blocks.size() > 1) {
    std::string text = "The file has " + std::to_string(blocks.size()) + " crystals. Which one (number or name)?";
    for (std::size_t i = 0; i < std::min<std::size_t>(blocks.size(), 20); ++i) {
      text += "\n" + std::to_string(i + 1) + ": " + blocks[i]->name;
    }
    if (blocks.size() > 20) text += "\n...";
    return Question{"block", text};
  }
  return BlockReader(*blocks.front(), document.notes).read(answers, task);
}

}  // namespace zol
