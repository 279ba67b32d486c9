#include "structures/program_setting.h"

#include <algorithm>
#include <cmath>

#include "core/crystal_state.h"
#include "core/run_failure.h"
#include "core/space_group.h"
#include "structures/contents.h"
#include "structures/operator_text.h"

namespace zol {
namespace {

constexpr int international_groups = 230;

ExactOperator exact(const SymmetryOperator& op) {
  ExactOperator result;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      result.rotation[i][j] = static_cast<int>(std::lround(double{op.rotation[i][j]} * operator_unit));
    }
    const int t = static_cast<int>(std::lround(double{op.translation[i]} * operator_unit));
    result.translation[i] = ((t % operator_unit) + operator_unit) % operator_unit;
  }
  return result;
}

struct FileSetting {
  int number = 0;
  std::string_view axes;
};

/// The file whose operators are these: the standard axes before others, the number of the structure before others.
std::optional<FileSetting> matching_file(const Structure& structure, const SpaceGroupLibrary& groups) {
  const auto matches = [&](int number, std::string_view axes) {
    const auto* group = groups.find(number);
    if (group == nullptr) return false;
    const auto turned = group->by_axes.find(axes);
    return turned != group->by_axes.end() && turned->second == structure.operators;
  };
  for (const auto axes : axis_settings_of_files) {
    const int own = structure.space_group_number;
    if (own > 0 && matches(own, axes)) return FileSetting{own, axes};
    for (int number = 1; number <= space_group_files; ++number) {
      if (matches(number, axes)) return FileSetting{number, axes};
    }
  }
  return std::nullopt;
}

std::string element_text(int twenty_fourths) {
  ExactOperator one;
  one.rotation = {};
  one.translation = {std::abs(twenty_fourths) % operator_unit, 0, 0};
  std::string text = twenty_fourths % operator_unit == 0 ? std::to_string(std::abs(twenty_fourths) / operator_unit)
                                                         : operator_text(one);
  text.resize(std::min(text.size(), text.find(',')));
  return twenty_fourths < 0 ? "-" + text : text;
}

/// "a' = a - c, b' = b, c' = c; origin at 0, 0, 1/3"
std::string change_text(const SettingChange& change) {
  std::string text;
  for (std::size_t j = 0; j < 3; ++j) {
    text += (j > 0 ? ", " : "") + std::string(1, "abc"[j]) + "' = ";
    bool first = true;
    for (std::size_t i = 0; i < 3; ++i) {
      const int element = change.matrix[i][j];
      if (element == 0) continue;
      if (!first || element < 0) text += element < 0 ? (first ? "-" : " - ") : " + ";
      if (std::abs(element) != operator_unit) text += element_text(std::abs(element)) + " ";
      text += "abc"[i];
      first = false;
    }
  }
  if (change.shift == std::array<int, 3>{}) return text;
  return text + "; origin at " + element_text(change.shift[0]) + ", " + element_text(change.shift[1]) + ", " +
         element_text(change.shift[2]);
}

PlacedStructure transformed_to(const Structure& structure, const SettingChange& change, int number,
                               const SpaceGroupLibrary::Group& group, Task& task) {
  PlacedStructure placed{structure, number, "abc", change, {}};
  placed.structure.cell = change.cell(structure.cell);
  placed.structure.operators = group.by_axes.at("abc");
  placed.structure.space_group_number = number;
  placed.structure.space_group_symbol = group.symbol;
  for (Site& site : placed.structure.sites) site.position = change.position(site.position);
  placed.notes.assume("the setting is changed to " + group.symbol + " (number " + std::to_string(number) +
                      "): " + change_text(change) + "; indices change with it");
  const double ratio = change.volume_ratio();
  if (std::abs(ratio - 1) > 1e-6) {
    const auto before = cell_atoms(structure, settled_angstrom, task).size();
    placed.notes.assume("the cell has " + std::to_string(std::lround(static_cast<double>(before) * ratio)) +
                        " atoms where that of the file has " + std::to_string(before));
  }
  return placed;
}

/// The structure's own number first, then all with as many operators for each lattice point.
std::optional<PlacedStructure> transformed_to_file(const Structure& structure, const SpaceGroupLibrary& groups,
                                                   Task& task) {
  const auto order = [](const Operators& group) { return group.size() / centring_translations(group).size(); };
  std::vector<int> numbers;
  if (structure.space_group_number > 0) numbers.push_back(structure.space_group_number);
  for (int number = 1; number <= international_groups; ++number) numbers.push_back(number);
  for (const int number : numbers) {
    task.check();
    const auto* group = groups.find(number);
    if (group == nullptr || !group->by_axes.contains("abc")) continue;
    const auto& operators = group->by_axes.at("abc");
    if (order(operators) != order(structure.operators)) continue;
    if (const auto change = setting_change(structure.operators, structure.cell, operators)) {
      return transformed_to(structure, *change, number, *group, task);
    }
  }
  return std::nullopt;
}

}  // namespace

const SpaceGroupLibrary::Group* SpaceGroupLibrary::find(int number) const {
  const auto known = groups_.find(number);
  if (known != groups_.end()) return known->second ? &*known->second : nullptr;
  auto& entry = groups_[number];
  try {
    const SpaceGroup file = read_space_group(path_of_(number));
    Group group{file.symbol, file.system, {}};
    for (const auto axes : axis_settings_of_files) {
      Operators operators;
      for (const auto& op : file.operators) operators.push_back(exact(permute_axes(op, axes)));
      std::sort(operators.begin(), operators.end());
      if (!centring_translations(operators).empty()) group.by_axes.emplace(axes, std::move(operators));
    }
    if (!group.by_axes.empty()) entry = std::move(group);
  } catch (const RunFailure&) {
    entry = std::nullopt;  // a file that the user has broken is of no use here
  }
  return entry ? &*entry : nullptr;
}

PlacedStructure in_program_setting(const Structure& structure, const SpaceGroupLibrary& groups, Task& task) {
  Structure sorted = structure;
  std::sort(sorted.operators.begin(), sorted.operators.end());
  if (const auto file = matching_file(sorted, groups)) {
    PlacedStructure placed{sorted, file->number, std::string(file->axes), std::nullopt, {}};
    placed.structure.axis_setting = placed.axis_setting;
    if (placed.structure.space_group_number == 0) placed.structure.space_group_number = file->number;
    return placed;
  }
  if (auto placed = transformed_to_file(sorted, groups, task)) return *placed;
  PlacedStructure placed = without_symmetry(sorted, task);
  placed.notes.doubt("the symmetry fits none of the program's space groups; all atoms are taken in P1");
  return placed;
}

Structure with_known_origin(const Structure& structure, const SpaceGroupLibrary& groups, Task& task) {
  const auto placed = transformed_to_file(structure, groups, task);
  if (!placed) return structure;
  if (placed->change->matrix == SettingChange{}.matrix) return placed->structure;
  Structure named = structure;
  named.space_group_number = placed->file_number;
  return named;
}

PlacedStructure without_symmetry(const Structure& structure, Task& task) {
  PlacedStructure placed{structure, 1, "abc", std::nullopt, {}};
  placed.structure.operators = {ExactOperator{}};
  placed.structure.space_group_number = 1;
  placed.structure.space_group_symbol = "P1";
  placed.structure.axis_setting = "abc";
  placed.structure.sites.clear();
  int count = 0;
  for (const auto& atom : cell_atoms(structure, settled_angstrom, task)) {
    Site site = structure.sites[static_cast<std::size_t>(atom.site)];
    site.position = atom.position;
    site.label = site.element + std::to_string(++count);
    placed.structure.sites.push_back(site);
  }
  return placed;
}

}  // namespace zol
