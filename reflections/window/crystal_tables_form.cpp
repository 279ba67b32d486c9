#include "reflections/window/crystal_tables_form.h"

#include <cmath>

#include "core/miller_bravais.h"
#include "core/number_text.h"
#include "reflections/reflection_symmetry.h"

namespace zol {
namespace {

constexpr auto number = ListColumn::Number;
constexpr auto word = ListColumn::Word;

Indices3 indices_of(const ListCells& row) {
  return {static_cast<int>(Val(row[0])), static_cast<int>(Val(row[1])), static_cast<int>(Val(row[2]))};
}

std::string form_text(const Indices3& hkl) {
  return "{" + plain_text(hkl[0]) + " " + plain_text(hkl[1]) + " " + plain_text(hkl[2]) + "}";
}

/// Read anew only where the crystal's group is another one.
std::shared_ptr<const ReflectionSymmetry> symmetry_of(const Main1State& seen) {
  return std::make_shared<ReflectionSymmetry>(ReflectionSymmetry::of_crystal(seen));
}

std::vector<AddedColumns> reflection_columns(const CrystalState& seen) {
  const auto symmetry = symmetry_of(seen);
  std::vector<AddedColumns> added;
  if (has_hexagonal_axes(seen.CellA, seen.CellB, seen.CellAlpha, seen.CellBeta, seen.CellGamma)) {
    constexpr int k = 1;
    added.push_back({"Four indices h k i l",
                     {{"i", "", 0, number, ' ', "-(h + k)"}},
                     [](const ListCells& row) {
                       const auto hkl = indices_of(row);
                       return ListCells{plain_text(third_index(hkl[0], hkl[1]))};
                     },
                     k});
  }
  added.push_back(
      {"Multiplicity",
       {{"m", "", 0, number, ' ', "how many reflections are equivalent, Friedel mates included"}},
       [symmetry](const ListCells& row) { return ListCells{plain_text(symmetry->multiplicity(indices_of(row)))}; }});
  added.push_back(
      {"Systematic absences",
       {{"absent", "", 0, word, ' ', "where a screw axis or a glide plane forbids the reflection"}},
       [symmetry](const ListCells& row) { return ListCells{symmetry->absent(indices_of(row)) ? "extinct" : ""}; }});
  return added;
}

RowFamilies reflection_families(const CrystalState& seen) {
  constexpr int intensity = 9;
  return {"Families of equivalents",
          "Merge equivalents",
          {"form", "", 0, word, ' ', "the reflection that represents the family"},
          [symmetry = symmetry_of(seen)](const ListCells& row) {
            const auto hkl = indices_of(row);
            const auto leader = symmetry->leader(hkl);
            return RowFamily{form_text(leader), leader == hkl};
          },
          {intensity}};
}

}  // namespace

std::shared_ptr<const ListColumns> space_group_table() {
  return std::make_shared<const ListColumns>(
      ListColumns{"Space groups", always({{"number"}, {"symbol", "", ListColumn::to_the_end, word}})});
}

std::shared_ptr<const ListColumns> atom_table() {
  return std::make_shared<const ListColumns>(ListColumns{"Atoms of the unit cell", always({{"number", "", 8},
                                                                                           {"label", "", 8, word},
                                                                                           {"element", "", 8, word},
                                                                                           {"occupancy", "", 10},
                                                                                           {"x", "", 10},
                                                                                           {"y", "", 10},
                                                                                           {"z", "", 10},
                                                                                           {"B", "Å²", 10}})});
}

std::shared_ptr<const ListColumns> reflection_table(const CrystalState& seen) {
  return std::make_shared<const ListColumns>(
      ListColumns{"Reflections",
                  always({{"h", "", 4},
                          {"k", "", 4},
                          {"l", "", 4},
                          {"s", "Å⁻¹", 8, number, ' ', "sin(theta)/lambda = 1/(2d), k/2 in the list"},
                          {"d", "Å", 9},
                          {"2theta", "°", 8},
                          {"A", "", 8, number, ' ', "real part of the structure factor"},
                          {"B", "", 8, number, ' ', "imaginary part of the structure factor"},
                          {"F", "", 8, number, ' ', "modulus of the structure factor"},
                          {"I", "", 11, number, ' ', "I(powder)"}}),
                  {},
                  [&seen] { return reflection_columns(seen); },
                  [&seen] { return std::vector{reflection_families(seen)}; }});
}

AddedColumns direction_columns(int at, std::function<bool(const ListCells& row)> hexagonal) {
  const auto cells = [at, hexagonal = std::move(hexagonal)](const ListCells& row) {
    ListCells four(4);
    if (!hexagonal(row)) return four;
    const auto component = [&row, first = static_cast<std::size_t>(at)](std::size_t i) { return Val(row[first + i]); };
    const auto indices = four_indices(component(0), component(1), component(2));
    constexpr int places = 3;
    for (std::size_t i = 0; i < four.size(); ++i) four[i] = short_text(indices[i], places);
    return four;
  };
  return {"Four indices U V T W", {{"U"}, {"V"}, {"T"}, {"W"}}, cells, at + 2};
}

}  // namespace zol
