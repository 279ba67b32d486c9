#include "structures/symmetry_group.h"

#include <algorithm>
#include <cmath>
#include <set>

#include "core/run_failure.h"
#include "structures/exact_matrix.h"

namespace zol {
namespace {

using Numbers = std::array<double, 3>;

}  // namespace

Operators sorted_once(Operators operators) {
  std::sort(operators.begin(), operators.end());
  operators.erase(std::unique(operators.begin(), operators.end()), operators.end());
  return operators;
}

Operators few_generators(const Operators& group) {
  Operators generators;
  Operators made = generated_group({});
  for (const auto& op : group) {
    if (made.size() == group.size()) break;
    if (std::binary_search(made.begin(), made.end(), op)) continue;
    generators.push_back(op);
    made = generated_group(generators);
  }
  return generators;
}

Operators generated_group(const Operators& generators) {
  std::set<ExactOperator> group{ExactOperator{}};
  std::vector<ExactOperator> fresh{ExactOperator{}};
  while (!fresh.empty()) {
    std::vector<ExactOperator> next;
    for (const auto& op : fresh) {
      for (const auto& generator : generators) {
        const ExactOperator made = generator * op;
        if (!group.insert(made).second) continue;
        next.push_back(made);
        if (group.size() > most_operators) throw RunFailure("the symmetry operators make no finite group");
      }
    }
    fresh = std::move(next);
  }
  return {group.begin(), group.end()};
}

bool is_group(const Operators& operators) {
  const Operators sorted = sorted_once(operators);
  if (sorted.size() != operators.size() || sorted.size() > most_operators) return false;
  if (!std::binary_search(sorted.begin(), sorted.end(), ExactOperator{})) return false;
  try {
    return generated_group(few_generators(sorted)) == sorted;
  } catch (const RunFailure&) {
    return false;
  }
}

std::vector<std::array<int, 3>> centring_translations(const Operators& group) {
  std::vector<std::array<int, 3>> translations;
  for (const auto& op : group) {
    if (op.rotation == unit_matrix) translations.push_back(op.translation);
  }
  std::sort(translations.begin(), translations.end());
  return translations;
}

double SettingChange::volume_ratio() const {
  return static_cast<double>(determinant(matrix)) / (double{operator_unit} * operator_unit * operator_unit);
}

DirectVector SettingChange::position(const DirectVector& old_position) const {
  constexpr double unit = operator_unit;
  const WideMatrix inverse = adjugate(matrix);
  const double factor = unit / static_cast<double>(determinant(matrix));
  const Numbers from_origin{old_position.u - shift[0] / unit, old_position.v - shift[1] / unit,
                            old_position.w - shift[2] / unit};
  Numbers result{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t k = 0; k < 3; ++k) result[i] += static_cast<double>(inverse[i][k]) * factor * from_origin[k];
  }
  return {result[0], result[1], result[2]};
}

CellConstants SettingChange::cell(const CellConstants& old_cell) const {
  constexpr double unit = operator_unit;
  const Lattice lattice(old_cell);
  std::array<CartesianVector, 3> edges{};
  for (std::size_t j = 0; j < 3; ++j) {
    edges[j] = lattice.cartesian(DirectVector{matrix[0][j] / unit, matrix[1][j] / unit, matrix[2][j] / unit});
  }
  return {length(edges[0]),
          length(edges[1]),
          length(edges[2]),
          angle_deg(edges[1], edges[2]),
          angle_deg(edges[2], edges[0]),
          angle_deg(edges[0], edges[1])};
}

std::optional<ExactOperator> SettingChange::transformed(const ExactOperator& op) const {
  const WideMatrix inverse = adjugate(matrix);
  const Wide volume = determinant(matrix);
  const auto rotation = in_basis(op.rotation, matrix, inverse, volume);
  if (!rotation) return std::nullopt;
  // P^-1 (t + (R - 1) s)
  std::array<Wide, 3> moved{};
  for (std::size_t i = 0; i < 3; ++i) {
    moved[i] = static_cast<Wide>(operator_unit) * (op.translation[i] - shift[i]);
    for (std::size_t k = 0; k < 3; ++k) moved[i] += static_cast<Wide>(op.rotation[i][k]) * shift[k];
  }
  ExactOperator result{*rotation, {}};
  for (std::size_t i = 0; i < 3; ++i) {
    Wide sum = 0;
    for (std::size_t k = 0; k < 3; ++k) sum += inverse[i][k] * moved[k];
    if (sum % volume != 0) return std::nullopt;
    result.translation[i] = folded(sum / volume);
  }
  return result;
}

std::optional<Operators> transformed(const Operators& group, const SettingChange& change) {
  Operators result;
  // A larger cell gains the old lattice translations that end within it.
  const double ratio = change.volume_ratio();
  std::set<std::array<int, 3>> old_lattice{{0, 0, 0}};
  if (ratio > 1.001) {
    for (int u = -4; u <= 4; ++u) {
      for (int v = -4; v <= 4; ++v) {
        for (int w = -4; w <= 4; ++w) {
          const SettingChange turned{change.matrix, {}};
          const auto point = turned.transformed({unit_matrix, {0, 0, 0}});
          if (!point) return std::nullopt;
          const auto x = turned.position({double(u), double(v), double(w)});
          const auto exact = [](double value) { return folded(std::llround(value * operator_unit)); };
          old_lattice.insert({exact(x.u), exact(x.v), exact(x.w)});
        }
      }
    }
  }
  for (const auto& op : group) {
    const auto moved = change.transformed(op);
    if (!moved) return std::nullopt;
    for (const auto& step : old_lattice) {
      ExactOperator shifted = *moved;
      for (std::size_t i = 0; i < 3; ++i)
        shifted.translation[i] = folded(static_cast<Wide>(shifted.translation[i]) + step[i]);
      result.push_back(shifted);
    }
  }
  return sorted_once(std::move(result));
}

}  // namespace zol
