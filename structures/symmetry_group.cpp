#include "structures/symmetry_group.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <numeric>
#include <set>
#include <tuple>

#include "core/run_failure.h"

namespace zol {
namespace {

using Wide = std::int64_t;
using WideMatrix = std::array<std::array<Wide, 3>, 3>;
using Numbers = std::array<double, 3>;

constexpr ExactMatrix unit_matrix{{{operator_unit, 0, 0}, {0, operator_unit, 0}, {0, 0, operator_unit}}};

int folded(Wide translation) {
  return static_cast<int>(((translation % operator_unit) + operator_unit) % operator_unit);
}

template <class Number>
Wide determinant(const std::array<std::array<Number, 3>, 3>& m) {
  const auto e = [&m](std::size_t i, std::size_t j) { return static_cast<Wide>(m[i][j]); };
  return e(0, 0) * (e(1, 1) * e(2, 2) - e(1, 2) * e(2, 1)) - e(0, 1) * (e(1, 0) * e(2, 2) - e(1, 2) * e(2, 0)) +
         e(0, 2) * (e(1, 0) * e(2, 1) - e(1, 1) * e(2, 0));
}

/// The inverse times the determinant.
template <class Number>
WideMatrix adjugate(const std::array<std::array<Number, 3>, 3>& m) {
  WideMatrix result{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      const std::size_t r = (j + 1) % 3, s = (j + 2) % 3, p = (i + 1) % 3, q = (i + 2) % 3;
      result[i][j] = Wide{m[r][p]} * m[s][q] - Wide{m[r][q]} * m[s][p];
    }
  }
  return result;
}

template <class A, class B>
WideMatrix product(const std::array<std::array<A, 3>, 3>& a, const std::array<std::array<B, 3>, 3>& b) {
  WideMatrix result{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      for (std::size_t k = 0; k < 3; ++k) result[i][j] += static_cast<Wide>(a[i][k]) * static_cast<Wide>(b[k][j]);
    }
  }
  return result;
}

/// The rotation in the basis of the columns of a matrix of 24ths; none where it has no exact form.
std::optional<ExactMatrix> in_basis(const ExactMatrix& rotation, const ExactMatrix& basis, const WideMatrix& adjugate,
                                    Wide determinant) {
  const WideMatrix numerators = product(adjugate, product(rotation, basis));
  ExactMatrix result{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) {
      if (numerators[i][j] % determinant != 0) return std::nullopt;
      result[i][j] = static_cast<int>(numerators[i][j] / determinant);
    }
  }
  return result;
}

/// What no change of axes or origin alters: handedness and order of the rotation, and the order of the translation
/// along its axis or plane, the smallest over the lattice translations that may be added.
struct OperatorType {
  bool proper = true;
  int order = 1;
  int translation_order = 1;
  auto operator<=>(const OperatorType&) const = default;
};

/// The translation of a power of an operator, not folded.
std::array<Wide, 3> summed_translation(const ExactOperator& op, const std::array<Wide, 3>& translation, int order) {
  std::array<Wide, 3> sum{};
  std::array<Wide, 3> term = translation;
  for (int i = 0; i < order; ++i) {
    std::array<Wide, 3> turned{};
    for (std::size_t row = 0; row < 3; ++row) {
      sum[row] += term[row];
      for (std::size_t k = 0; k < 3; ++k) turned[row] += op.rotation[row][k] / operator_unit * term[k];
    }
    term = turned;
  }
  return sum;
}

int rotation_order(const ExactMatrix& rotation) {
  ExactOperator power{rotation, {}};
  const ExactOperator one = power;
  int order = 1;
  for (; power.rotation != unit_matrix && order <= 6; ++order) power = one * power;
  return order;
}

OperatorType type_of(const ExactOperator& op, const std::vector<std::array<int, 3>>& centrings) {
  OperatorType type{determinant(op.rotation) > 0, rotation_order(op.rotation), 1000};
  for (const auto& centring : centrings) {
    for (int shift = 0; shift < 27; ++shift) {
      const std::array<Wide, 3> cell{shift % 3 - 1, shift / 3 % 3 - 1, shift / 9 - 1};
      std::array<Wide, 3> translation{};
      for (std::size_t i = 0; i < 3; ++i) {
        translation[i] = op.translation[i] + centring[i] + operator_unit * cell[i];
      }
      const auto sum = summed_translation(op, translation, type.order);
      // Order of sum / order as a translation of the lattice.
      for (int multiple = 1; multiple < type.translation_order; ++multiple) {
        const auto in_lattice = [&](const std::array<int, 3>& lattice_point) {
          for (std::size_t i = 0; i < 3; ++i) {
            if ((sum[i] * multiple - Wide{lattice_point[i]} * type.order) % (Wide{operator_unit} * type.order) != 0)
              return false;
          }
          return true;
        };
        if (std::any_of(centrings.begin(), centrings.end(), in_lattice)) type.translation_order = multiple;
      }
    }
  }
  return type;
}

/// Operators by type, for one lattice point.
std::map<OperatorType, std::size_t> histogram(const Operators& group,
                                              const std::vector<std::array<int, 3>>& centrings) {
  std::map<OperatorType, std::size_t> counts;
  std::set<ExactMatrix> seen;
  for (const auto& op : group) {
    if (seen.insert(op.rotation).second) ++counts[type_of(op, centrings)];
  }
  return counts;
}

/// Few operators that generate the group with its lattice.
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

/// Vectors that span the lattice of the centring translations, as columns in 24ths, short in the cell's metric.
ExactMatrix primitive_basis(const std::vector<std::array<int, 3>>& centrings, const Lattice& lattice) {
  const auto norm = [&lattice](const std::array<int, 3>& v) {
    constexpr double unit = operator_unit;
    const auto x = lattice.cartesian(DirectVector{v[0] / unit, v[1] / unit, v[2] / unit});
    return dot(x, x);
  };
  std::vector<std::array<int, 3>> vectors;
  for (const auto& centring : centrings) {
    for (int shift = 0; shift < 27; ++shift) {
      vectors.push_back({centring[0] + operator_unit * (shift % 3 - 1),
                         centring[1] + operator_unit * (shift / 3 % 3 - 1),
                         centring[2] + operator_unit * (shift / 9 - 1)});
    }
  }
  std::stable_sort(vectors.begin(), vectors.end(), [&norm](const auto& a, const auto& b) { return norm(a) < norm(b); });
  const Wide cell = Wide{operator_unit} * operator_unit * operator_unit / static_cast<Wide>(centrings.size());
  // The shortest three that span a cell of the lattice and no larger one.
  for (std::size_t k = 2; k < vectors.size(); ++k) {
    for (std::size_t j = 1; j < k; ++j) {
      for (std::size_t i = 0; i < j; ++i) {
        ExactMatrix basis{};
        for (std::size_t row = 0; row < 3; ++row) basis[row] = {vectors[i][row], vectors[j][row], vectors[k][row]};
        const Wide volume = determinant(basis);
        if (volume == cell) return basis;
        if (volume == -cell) {
          for (auto& row : basis) row[0] = -row[0];
          return basis;
        }
      }
    }
  }
  return unit_matrix;
}

/// Whole-number matrices of a determinant with elements up to a bound.
std::vector<ExactMatrix> whole_matrices(int bound, Wide wanted) {
  std::vector<ExactMatrix> matrices;
  const int base = 2 * bound + 1;
  const int rows = base * base * base;
  const auto row = [base, bound](int code) {
    return std::array<int, 3>{code % base - bound, code / base % base - bound, code / base / base - bound};
  };
  for (int a = 0; a < rows; ++a) {
    const auto first = row(a);
    if (first == std::array<int, 3>{}) continue;
    for (int b = 0; b < rows; ++b) {
      const auto second = row(b);
      for (int c = 0; c < rows; ++c) {
        const ExactMatrix matrix{first, second, row(c)};
        if (determinant(matrix) == wanted) matrices.push_back(matrix);
      }
    }
  }
  return matrices;
}

/// How far a change is from none: the axes, then the cell's angles from a right one.
double strangeness(const SettingChange& change, const CellConstants& cell) {
  double sum = 0;
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) sum += std::abs(change.matrix[i][j] - unit_matrix[i][j]);
  }
  try {
    const CellConstants angles = change.cell(cell);
    sum += std::abs(angles.alpha - 90) + std::abs(angles.beta - 90) + std::abs(angles.gamma - 90);
  } catch (const RunFailure&) {
    sum += 1000;
  }
  return sum;
}

/// The group in another basis, before its origin is looked for.
class OriginSearch {
 public:
  OriginSearch(const Operators& from, const Operators& generators, const Operators& to)
      : from_(from), generators_(generators), to_(to) {
    for (const auto& op : to_) translations_[op.rotation].push_back(op.translation);
  }

  [[nodiscard]] bool rotations_agree(const ExactMatrix& basis) const {
    const WideMatrix inverse = adjugate(basis);
    const Wide volume = determinant(basis);
    return std::all_of(generators_.begin(), generators_.end(), [&](const ExactOperator& op) {
      const auto rotation = in_basis(op.rotation, basis, inverse, volume);
      return rotation && translations_.contains(*rotation);
    });
  }

  [[nodiscard]] std::optional<SettingChange> solve(const ExactMatrix& basis) const {
    const WideMatrix inverse = adjugate(basis);
    const auto volume = static_cast<double>(determinant(basis));
    std::vector<Condition> conditions;
    for (const auto& op : generators_) {
      const auto rotation = in_basis(op.rotation, basis, inverse, determinant(basis));
      if (!rotation) return std::nullopt;
      Condition condition{*rotation, {}, &translations_.at(*rotation)};
      for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
          condition.translation[i] += static_cast<double>(inverse[i][k]) * op.translation[k] / volume * operator_unit;
        }
      }
      conditions.push_back(condition);
    }
    return search(basis, conditions);
  }

 private:
  struct Condition {
    ExactMatrix rotation;
    Numbers translation{};  ///< in 24ths of the new lattice vectors
    const std::vector<std::array<int, 3>>* wanted = nullptr;

    [[nodiscard]] bool holds(const std::array<int, 3>& origin) const {
      Numbers moved = translation;
      for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k) {
          const int element = rotation[i][k] / operator_unit - (i == k ? 1 : 0);
          moved[i] += element * origin[k];
        }
      }
      return std::any_of(wanted->begin(), wanted->end(), [&moved](const auto& t) {
        for (std::size_t i = 0; i < 3; ++i) {
          const double off = (moved[i] - t[i]) / operator_unit;
          if (std::abs(off - std::round(off)) > 1e-4) return false;
        }
        return true;
      });
    }
  };

  /// Origins by their distance from the old one; each on the grid of 24ths of the new lattice vectors.
  [[nodiscard]] std::optional<SettingChange> search(const ExactMatrix& basis,
                                                    const std::vector<Condition>& conditions) const {
    std::optional<SettingChange> best;
    int nearest = 1 << 30;
    for (int code = 0; code < operator_unit * operator_unit * operator_unit; ++code) {
      std::array<int, 3> origin{code % operator_unit, code / operator_unit % operator_unit,
                                code / operator_unit / operator_unit};
      for (int& x : origin) x = x > operator_unit / 2 ? x - operator_unit : x;
      const int far = std::abs(origin[0]) + std::abs(origin[1]) + std::abs(origin[2]);
      if (far >= nearest) continue;
      const auto holds = [&origin](const Condition& c) { return c.holds(origin); };
      if (!std::all_of(conditions.begin(), conditions.end(), holds)) continue;
      SettingChange change{basis, {}};
      bool exact = true;
      for (std::size_t i = 0; i < 3; ++i) {
        int sum = 0;
        for (std::size_t k = 0; k < 3; ++k) sum += basis[i][k] * origin[k];
        exact = exact && sum % operator_unit == 0;
        change.shift[i] = sum / operator_unit;
      }
      if (!exact || transformed(from_, change) != to_) continue;
      best = change;
      nearest = far;
    }
    return best;
  }

  const Operators& from_;
  const Operators& generators_;
  const Operators& to_;
  std::map<ExactMatrix, std::vector<std::array<int, 3>>> translations_;
};

/// The first basis, by strangeness, that has an origin.
std::optional<SettingChange> best_change(const std::vector<ExactMatrix>& bases, const OriginSearch& origins,
                                         const CellConstants& cell) {
  std::vector<std::pair<double, const ExactMatrix*>> fitting;
  for (const auto& basis : bases) {
    if (origins.rotations_agree(basis)) fitting.emplace_back(strangeness({basis, {}}, cell), &basis);
  }
  std::stable_sort(fitting.begin(), fitting.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  constexpr std::size_t most = 200;  // enough for each choice of cell; the rest are longer cells of the same kinds
  for (std::size_t i = 0; i < std::min(most, fitting.size()); ++i) {
    if (auto change = origins.solve(*fitting[i].second)) return change;
  }
  return std::nullopt;
}

Operators sorted_once(Operators operators) {
  std::sort(operators.begin(), operators.end());
  operators.erase(std::unique(operators.begin(), operators.end()), operators.end());
  return operators;
}

}  // namespace

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
    moved[i] = Wide{operator_unit} * (op.translation[i] - shift[i]);
    for (std::size_t k = 0; k < 3; ++k) moved[i] += Wide{op.rotation[i][k]} * shift[k];
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
      for (std::size_t i = 0; i < 3; ++i) shifted.translation[i] = folded(Wide{shifted.translation[i]} + step[i]);
      result.push_back(shifted);
    }
  }
  return sorted_once(std::move(result));
}

std::optional<SettingChange> setting_change(const Operators& from, const CellConstants& cell, const Operators& to) {
  const Operators old_group = sorted_once(from);
  const Operators new_group = sorted_once(to);
  const auto old_centrings = centring_translations(old_group);
  const auto new_centrings = centring_translations(new_group);
  if (old_centrings.empty() || new_centrings.empty()) return std::nullopt;
  if (histogram(old_group, old_centrings) != histogram(new_group, new_centrings)) return std::nullopt;

  const Operators generators = few_generators(old_group);
  const OriginSearch origins(old_group, generators, new_group);
  if (old_centrings.size() == new_centrings.size()) {
    static const std::vector<ExactMatrix> turns = [] {
      auto matrices = whole_matrices(1, 1);
      for (auto& matrix : matrices) {
        for (auto& row : matrix) {
          for (int& element : row) element *= operator_unit;
        }
      }
      return matrices;
    }();
    if (auto change = best_change(turns, origins, cell)) return change;
  }
  // Cells of the same lattice from its primitive one, as it stands or reduced.
  const auto wholes = whole_matrices(2, static_cast<Wide>(new_centrings.size()));
  std::vector<ExactMatrix> primitives;
  if (old_centrings.size() == 1) primitives.push_back(unit_matrix);
  primitives.push_back(primitive_basis(old_centrings, Lattice(cell)));
  for (const auto& primitive : primitives) {
    std::vector<ExactMatrix> bases;
    for (const auto& whole : wholes) {
      const WideMatrix basis = product(primitive, whole);
      ExactMatrix exact{};
      for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) exact[i][j] = static_cast<int>(basis[i][j]);
      }
      bases.push_back(exact);
    }
    if (auto change = best_change(bases, origins, cell)) return change;
  }
  return std::nullopt;
}

}  // namespace zol
