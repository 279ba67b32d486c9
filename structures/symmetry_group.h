// Groups of symmetry operators: their closure, their lattice, and the change of axes and origin that leads from one
// setting of a group to another.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "core/structure.h"

namespace zol {

using Operators = std::vector<ExactOperator>;
using ExactMatrix = std::array<std::array<int, 3>, 3>;  ///< elements in 24ths

/// More operators than any setting of a group has within a cell of up to 16 primitive ones.
inline constexpr std::size_t most_operators = 1536;

/// In order, each once.
[[nodiscard]] Operators sorted_once(Operators operators);

/// All products of the generators, each once, sorted; the identity is among them.
/// @throws RunFailure  they make more than most_operators
[[nodiscard]] Operators generated_group(const Operators& generators);

/// Few operators of a group that generate it with its lattice.
[[nodiscard]] Operators few_generators(const Operators& group);

/// Whether the operators, each once, are all products of themselves.
[[nodiscard]] bool is_group(const Operators& operators);

/// Translations that the group leaves in the cell, the zero one first.
[[nodiscard]] std::vector<std::array<int, 3>> centring_translations(const Operators& group);

/// The new basis vectors are columns of the matrix in terms of the old ones, the new origin is the shift, both in
/// 24ths of old lattice vectors.
struct SettingChange {
  ExactMatrix matrix{{{operator_unit, 0, 0}, {0, operator_unit, 0}, {0, 0, operator_unit}}};
  std::array<int, 3> shift{};
  bool operator==(const SettingChange&) const = default;

  /// Volume of the new cell over that of the old one.
  [[nodiscard]] double volume_ratio() const;
  [[nodiscard]] DirectVector position(const DirectVector& old_position) const;  ///< the same place in the new setting
  [[nodiscard]] CellConstants cell(const CellConstants& old_cell) const;
  /// The operator in the new setting, translation folded. @returns none where it has no exact form there
  [[nodiscard]] std::optional<ExactOperator> transformed(const ExactOperator& op) const;
};

/// All operators of a group in a new setting, with the lattice translations that the new cell gains, sorted, each once.
/// @returns none where one has no exact form
[[nodiscard]] std::optional<Operators> transformed(const Operators& group, const SettingChange& change);

/// Searches the change that makes one group the other: first the axes as they are, then exchanged and combined axes,
/// then other cells of the same lattice; of several that do, the one nearest to no change.
/// @param cell   of the first setting; decides between equivalent choices of axes
/// @returns none where there is none: the groups are of other types
[[nodiscard]] std::optional<SettingChange> setting_change(const Operators& from, const CellConstants& cell,
                                                          const Operators& to);

}  // namespace zol
