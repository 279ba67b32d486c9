#include "structures/library_entry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "structures/contents.h"
#include "structures/space_group_symbols.h"

namespace zol {
namespace {

constexpr std::array non_metals{"B",  "Si", "C", "Sb", "As", "P",  "N",  "H", "D",
                                "Te", "Se", "S", "At", "I",  "Br", "Cl", "O", "F"};

std::string small_letters(std::string_view text) {
  std::string small(text);
  std::transform(small.begin(), small.end(), small.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return small;
}

/// 0 for a metal, from 1 on the place among the others.
int place_in_formula(const std::string& element, bool organic) {
  if (organic && element == "C") return -2;
  if (organic && element == "H") return -1;
  const auto* found = std::find(non_metals.begin(), non_metals.end(), element);
  return found == non_metals.end() ? 0 : static_cast<int>(found - non_metals.begin()) + 1;
}

/// To seven digits, which crystal files and the program have: 5.43 is kept as 5.43, whatever number it came through.
double rounded(double value) { return Val(plain_text(to_single(value))); }

/// Edges, angles and volume, by a cell that makes one.
void take_cell(LibraryEntry& entry, const CellConstants& cell) {
  const double volume = Lattice(cell).volume();
  entry.cell = {rounded(cell.a),     rounded(cell.b),    rounded(cell.c),
                rounded(cell.alpha), rounded(cell.beta), rounded(cell.gamma)};
  entry.volume = rounded(volume);
}

ReadStructure first_reading(const LibraryEntry& entry, std::string_view bytes, const SpaceGroupLibrary& groups,
                            Task& task) {
  ImportAnswers answers;
  constexpr int most_questions = 4;
  for (int i = 0; i < most_questions; ++i) {
    Reading reading = read_structure(bytes, std::string(entry.name()), answers, groups, task);
    if (auto* read = std::get_if<ReadStructure>(&reading)) return std::move(*read);
    answers[std::get<Question>(reading).key] = "1";
  }
  throw RunFailure("it asks more than is known of it");
}

bool is_whole(double count) { return std::abs(count - std::round(count)) < 0.005; }

}  // namespace

bool is_crystal_name(std::string_view name) {
  std::string small = small_letters(name);
  if (small.ends_with(".gz")) small.resize(small.size() - 3);
  for (const auto* ending : {".cry", ".cif", ".mcif", ".res", ".ins", ".vasp"}) {
    if (small.ends_with(ending)) return true;
  }
  return small.starts_with("poscar") || small.starts_with("contcar");
}

void EntryReader::read(LibraryEntry& entry, std::string_view bytes, Task& task) {
  entry.read = true;
  try {
    return take_structure(entry, first_reading(entry, bytes, groups_, task), task);
  } catch (const RunFailure& failure) {
    entry.fault = failure.message();
  }
  try {
    LibraryEntry with_cell{entry.path, entry.changed_ns, entry.bytes, true};
    take_cell_alone(with_cell, bytes, task);
    entry = std::move(with_cell);
  } catch (const RunFailure&) {  // the first fault says more
  }
}

void EntryReader::take_structure(LibraryEntry& entry, const ReadStructure& read, Task& task) {
  const Structure& structure = read.structure;
  take_cell(entry, structure.cell);
  const Formula contents = cell_contents(structure, task);
  entry.density = rounded(density(contents, structure.cell));
  entry.formula = reduced_formula(contents);
  entry.title = structure.title;
  const Name& name = name_of(structure, task);
  entry.group = name.number;
  entry.symbol = name.symbol;
}

/// @throws RunFailure  it is no crystal file
void EntryReader::take_cell_alone(LibraryEntry& entry, std::string_view bytes, Task& task) {
  CrystalFileReader file("", std::string(bytes));
  Main1State cell;
  file.read_cell(cell);
  Structure structure;
  structure.cell = {cell.CellA, cell.CellB, cell.CellC, cell.CellAlpha, cell.CellBeta, cell.CellGamma};
  take_cell(entry, structure.cell);
  const auto* group = groups_.find(cell.SGNumber.value());
  const auto turned = group == nullptr ? decltype(group->by_axes.end()){} : group->by_axes.find(cell.AxisSetting);
  if (group == nullptr || turned == group->by_axes.end()) return;
  structure.operators = turned->second;
  structure.space_group_number = cell.SGNumber.value();
  const Name& name = name_of(structure, task);
  entry.group = name.number;
  entry.symbol = name.symbol;
}

/// As the tables have it; of a setting without a name the number of its type and the symbol of the standard setting.
const EntryReader::Name& EntryReader::name_of(const Structure& structure, Task& task) {
  Operators operators = structure.operators;
  std::sort(operators.begin(), operators.end());
  const auto [found, is_new] = names_.try_emplace(std::move(operators));
  Name& name = found->second;
  if (!is_new) return name;
  if (const TabulatedSetting* setting = setting_of(found->first)) {
    name = {setting->number, std::string(setting->symbol)};
    return name;
  }
  Structure unnamed = structure;
  unnamed.space_group_number = 0;  // that of a file of the program may be of a further setting
  const int number = with_known_origin(unnamed, groups_, task).space_group_number;
  const auto settings = tabulated_settings();
  const auto standard = std::find_if(settings.begin(), settings.end(),
                                     [number](const TabulatedSetting& setting) { return setting.number == number; });
  if (standard != settings.end()) name = {number, std::string(standard->symbol)};
  return name;
}

Formula reduced_formula(const Formula& contents) {
  int common = 0;
  for (const auto& [element, count] : contents) {
    if (is_whole(count)) common = std::gcd(common, static_cast<int>(std::round(count)));
  }
  Formula reduced;
  for (const auto& [element, count] : contents) {
    const double exact = is_whole(count) ? std::round(count) : rounded(count);
    if (exact > 0) reduced[element] = rounded(exact / std::max(common, 1));
  }
  return reduced;
}

std::string library_formula(const Formula& formula) {
  const bool organic = formula.contains("C") && formula.contains("H");
  std::vector<std::string> elements;
  for (const auto& [element, count] : formula) elements.push_back(element);
  std::stable_sort(elements.begin(), elements.end(), [organic](const std::string& one, const std::string& other) {
    return place_in_formula(one, organic) < place_in_formula(other, organic);
  });
  std::string text;
  for (const auto& element : elements) {
    const std::string count = short_text(formula.at(element), 2);
    text += (text.empty() ? "" : " ") + element + (count == "1" ? "" : count);
  }
  return text;
}

std::string_view crystal_system(int group) {
  struct System {
    int last;
    std::string_view name;
  };
  constexpr std::array systems{System{2, "triclinic"},    System{15, "monoclinic"}, System{74, "orthorhombic"},
                               System{142, "tetragonal"}, System{167, "trigonal"},  System{194, "hexagonal"},
                               System{230, "cubic"}};
  if (group < 1) return {};
  const auto* found =
      std::find_if(systems.begin(), systems.end(), [group](const System& system) { return group <= system.last; });
  return found == systems.end() ? std::string_view() : found->name;
}

}  // namespace zol
