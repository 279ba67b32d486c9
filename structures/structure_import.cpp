#include "structures/structure_import.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/run_failure.h"
#include "core/unit_cell.h"
#include "structures/contents.h"

namespace zol {
namespace {

std::string rounded(double value, int decimals) {
  std::array<char, 64> text{};
  const auto fixed = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
  if (fixed.ec == std::errc()) return {text.data(), fixed.ptr};
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

std::string counted(std::size_t count, const std::string& thing) {
  return std::to_string(count) + ' ' + thing + (count == 1 ? "" : "s");
}

/// Letters, digits and a few marks, each label once.
void make_labels_unique(Structure& structure) {
  std::set<std::string> used;
  int number = 0;
  for (Site& site : structure.sites) {
    std::string label;
    for (const char c : site.label) {
      const bool plain = c > ' ' && c <= '~' && c != ',' && c != '"' && c != '\'' && c != '#';
      if (plain) label += c;
      if (c == '\'') label += '*';
    }
    if (label.empty()) label = site.element;
    std::string unique = label;
    for (int copy = 2; !used.insert(unique).second; ++copy) {
      unique = label + '_' + std::to_string(copy);
      if (copy > 1000) unique = label + '_' + std::to_string(1000 + ++number);
    }
    site.label = unique;
  }
}

/// Ions that the table lacks become neutral atoms; what it lacks altogether is left out, and so is what is nowhere.
void resolve_elements(Structure& structure, const std::set<std::string>& keys, Notes& notes) {
  std::vector<Site> kept;
  for (Site& site : structure.sites) {
    if (!(site.occupancy > 0)) {
      notes.assume("sites with an occupancy of 0 are left out");
      continue;
    }
    if (site.charge != 0 && !keys.contains(species_key(site.element, site.charge))) {
      notes.assume("there are no scattering factors of " + species_key(site.element, site.charge) + "; those of " +
                   site.element + " are taken");
      site.charge = 0;
    }
    if (keys.contains(species_key(site.element, site.charge))) {
      kept.push_back(site);
    } else {
      notes.doubt("there are no scattering factors of " + site.element + "; " + site.label + " is left out");
    }
  }
  if (kept.empty()) throw RunFailure("none of the atoms has scattering factors");
  structure.sites = std::move(kept);
}

/// A cell that the operators change: slightly by the measurement, else since cell or symmetry is that of another
/// crystal.
void tell_misfit(const Structure& structure, Notes& notes) {
  constexpr double slight = 0.002;
  if (cell_misfit(structure) > slight) notes.doubt("the cell does not fit the symmetry");
}

/// Occupancies that sum up to above 1 on a place.
void tell_crowded_sites(const Structure& structure, Task& task, Notes& notes) {
  const Lattice lattice(structure.cell);
  for (std::size_t i = 0; i < structure.sites.size(); ++i) {
    task.check();
    double sum = 0;
    bool is_first = true;
    for (std::size_t j = 0; j < structure.sites.size(); ++j) {
      const auto& a = structure.sites[i].position;
      const auto& b = structure.sites[j].position;
      const auto near = [](double x) { return x - std::round(x); };
      const DirectVector step{near(a.u - b.u), near(a.v - b.v), near(a.w - b.w)};
      if (length(lattice.cartesian(step)) > 0.1) continue;
      sum += structure.sites[j].occupancy;
      is_first = is_first && j >= i;
    }
    if (is_first && sum > 1.02) {
      notes.doubt("the occupancies at the place of " + structure.sites[i].label + " sum up to " + rounded(sum, 3));
    }
  }
}

void check_limits(const Structure& structure, std::size_t atoms) {
  if (structure.sites.size() > static_cast<std::size_t>(max_sites)) {
    throw RunFailure("the crystal has " + counted(structure.sites.size(), "site") + ", at most " +
                     std::to_string(max_sites) + " are allowed");
  }
  if (atoms > static_cast<std::size_t>(max_cell_atoms)) {
    throw RunFailure("the cell has " + std::to_string(atoms) + " atoms, at most " + std::to_string(max_cell_atoms) +
                     " are allowed");
  }
}

/// Atoms that the program's own expansion makes of the sites, by the tolerances of its arrays.
std::size_t atoms_of_program(const PlacedStructure& placed, const SpaceGroupLibrary& groups, Task& task) {
  CrystalState state;
  fill_sites(state, placed.structure);
  state.AxisSetting = "abc";
  SpaceGroup group;
  const auto* file = groups.find(placed.file_number);
  if (file == nullptr) return 0;
  for (const auto& op : file->by_axes.at(placed.axis_setting)) {
    SymmetryOperator single;
    for (std::size_t i = 0; i < 3; ++i) {
      for (std::size_t j = 0; j < 3; ++j) single.rotation[i][j] = to_single(op.rotation[i][j] / double{operator_unit});
      single.translation[i] = to_single(op.translation[i] / double{operator_unit});
    }
    group.operators.push_back(single);
  }
  return expand_unit_cell(state, group, task).size();
}

/// In a setting of the program in which its own expansion finds the atoms of the crystal.
PlacedStructure placed_structure(const Structure& structure, const SpaceGroupLibrary& groups, Task& task) {
  PlacedStructure placed = in_program_setting(structure, groups, task);
  const std::size_t atoms = cell_atoms(placed.structure, settled_angstrom, task).size();
  check_limits(placed.structure, atoms);
  make_labels_unique(placed.structure);
  if (atoms_of_program(placed, groups, task) == atoms) return placed;
  PlacedStructure listed = without_symmetry(structure, task);
  listed.notes.doubt(
      "the symmetric positions lie too close for the program to tell them apart; all atoms are taken in P1");
  check_limits(listed.structure, listed.structure.sites.size());
  return listed;
}

class Report {
 public:
  void add(const std::string& line) { facts_.push_back(line); }
  void add(const Notes& notes) {
    notes_.add(notes);
    for (const auto& note : notes.list())
      (note.doubt ? doubts_ : facts_).push_back((note.doubt ? "Warning: " : "") + note.text);
  }
  [[nodiscard]] std::vector<std::string> lines() const {
    std::vector<std::string> all = doubts_;
    all.insert(all.end(), facts_.begin(), facts_.end());
    return all;
  }
  [[nodiscard]] const Notes& notes() const { return notes_; }

 private:
  std::vector<std::string> doubts_, facts_;
  Notes notes_;
};

/// The largest number that all whole counts are multiples of, for the formula.
double units_of(const Formula& contents) {
  for (int units = 96; units > 1; --units) {
    const bool divides = std::all_of(contents.begin(), contents.end(), [units](const auto& entry) {
      const double count = entry.second / units;
      const bool whole = std::abs(entry.second - std::round(entry.second)) < 1e-3;
      return !whole || (std::abs(count - std::round(count)) < 1e-3 && count > 0.5);
    });
    if (divides) return units;
  }
  return 1;
}

/// Formula and Z of a crystal, which are told, and held against what the file says of the contents.
void compare_contents(const ReadStructure& read, const Formula& contents, double volume_ratio, ImportedCrystal& crystal,
                      Report& report) {
  const double units = read.units ? *read.units * volume_ratio : units_of(contents);
  Formula& formula = crystal.formula;
  for (const auto& [element, count] : contents) formula[element] = count / units;
  crystal.units = units;
  std::string line =
      "formula: " + formula_text(formula) + ", Z = " + rounded(units, units == std::floor(units) ? 0 : 2);
  Notes notes;
  if (!read.formula.empty() && !formula_units(contents, read.formula)) {
    notes.doubt("the cell holds " + formula_text(contents) + ", the file's formula is " + formula_text(read.formula));
  }
  const double ours = density(contents, crystal.structure.cell);
  std::string text = "density: " + rounded(ours, 3) + " g/cm3";
  if (read.file_density) {
    text += " (the file says " + rounded(*read.file_density, 3) + ")";
    if (std::abs(ours - *read.file_density) > 0.05 * *read.file_density) {
      notes.doubt("the density is " + rounded(ours, 3) + " g/cm3, the file says " + rounded(*read.file_density, 3));
    }
  }
  report.add(notes);
  report.add(line);
  report.add(text);
}

void tell_distances(const Structure& structure, Task& task, Report& report) {
  const auto all = shortest_distance(structure, true, task);
  if (!all) return;
  const auto heavy = shortest_distance(structure, false, task);
  Notes notes;
  if (heavy && heavy->angstrom < 1) {
    notes.doubt("atoms lie close: " + heavy->first + " - " + heavy->second + " " + rounded(heavy->angstrom, 3) +
                " angstroms");
  }
  report.add(notes);
  report.add("shortest distance: " + all->first + " - " + all->second + " " + rounded(all->angstrom, 3) + " angstroms");
}

std::string cell_text(const CellConstants& cell) {
  return rounded(cell.a, 4) + " " + rounded(cell.b, 4) + " " + rounded(cell.c, 4) + " " + rounded(cell.alpha, 3) + " " +
         rounded(cell.beta, 3) + " " + rounded(cell.gamma, 3);
}

}  // namespace

Import import_structure(std::string_view bytes, const std::string& name, const ImportAnswers& answers,
                        const SpaceGroupLibrary& groups, const std::set<std::string>& factor_keys, Task& task) {
  Reading reading = read_structure(bytes, name, answers, groups, task);
  if (auto* question = std::get_if<Question>(&reading)) return *question;
  auto& read = std::get<ReadStructure>(reading);
  tell_misfit(read.structure, read.notes);
  resolve_elements(read.structure, factor_keys, read.notes);
  if (read.structure.sites.size() > static_cast<std::size_t>(max_sites)) check_limits(read.structure, 0);
  for (const auto& label : settle_positions(read.structure, task)) {
    read.notes.doubt("images of " + label + " lie closer than " + rounded(one_atom_angstrom, 2) +
                     " angstroms; by their occupancies they are a split site, and stay apart");
  }
  PlacedStructure placed = placed_structure(read.structure, groups, task);
  tell_crowded_sites(placed.structure, task, read.notes);

  const Formula contents = cell_contents(placed.structure, task);
  const std::size_t atoms = cell_atoms(placed.structure, settled_angstrom, task).size();
  Report report;
  report.add(read.format + ": " + (read.structure.title.empty() ? name : read.structure.title));
  ImportedCrystal crystal;
  crystal.structure = placed.structure;
  crystal.file_number = placed.file_number;
  crystal.axis_setting = placed.axis_setting;
  compare_contents(read, contents, placed.change ? placed.change->volume_ratio() : 1, crystal, report);
  report.add("cell: " + cell_text(placed.structure.cell));
  const auto* group = groups.find(placed.file_number);
  crystal.group_symbol = group == nullptr ? "P1" : group->symbol;
  report.add("space group: " + crystal.group_symbol + " (number " + std::to_string(placed.file_number) + ", axes " +
             placed.axis_setting + ")");
  report.add(counted(placed.structure.sites.size(), "site") + ", " + counted(atoms, "atom") + " in the cell");
  tell_distances(placed.structure, task, report);
  report.add(read.notes);
  report.add(placed.notes);
  crystal.report = report.lines();
  crystal.notes = report.notes();
  return crystal;
}

void fill_sites(Module1State& state, const Structure& structure) {
  int i = 0;
  for (const Site& site : structure.sites) {
    ++i;
    state.AtomLabel(i) = site.label;
    state.AtomElement(i) = species_key(site.element, site.charge);
    state.AtomOcc(i) = to_single(site.occupancy);
    state.AtomPos(i, 1) = to_single(site.position.u);
    state.AtomPos(i, 2) = to_single(site.position.v);
    state.AtomPos(i, 3) = to_single(site.position.w);
    state.AtomB(i) = to_single(site.b_iso);
  }
  state.NAtom = i;
}

}  // namespace zol
