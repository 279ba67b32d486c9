// The search for the change of axes and origin between two settings of a group.
#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <tuple>

#include "core/run_failure.h"
#include "structures/exact_matrix.h"

namespace zol {
namespace {

using Numbers = std::array<double, 3>;

/// What no change of axes or origin alters: handedness and order of the rotation, and the order of the translation
/// along its axis or plane, the smallest over the lattice translations that may be added.
struct OperatorType {
  bool proper = true;
  int order = 1;
  int translation_order = 1;
  bool operator==(const OperatorType&) const = default;
  bool operator<(const OperatorType& other) const {
    return std::tie(proper, order, translation_order) < std::tie(other.proper, other.order, other.translation_order);
  }
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

/// Whole-number matrices with elements up to a bound, by their determinant, 1 to 4.
using WholeMatrices = std::array<std::vector<ExactMatrix>, 5>;
WholeMatrices whole_matrices(int bound) {
  WholeMatrices matrices;
  const int base = 2 * bound + 1;
  const int rows = base * base * base;
  const auto row = [base, bound](int code) {
    return std::array<int, 3>{code % base - bound, code / base % base - bound, code / base / base - bound};
  };
  for (int a = 0; a < rows; ++a) {
    for (int b = 0; b < rows; ++b) {
      const auto x = row(a);
      const auto y = row(b);
      const std::array<int, 3> across{x[1] * y[2] - x[2] * y[1], x[2] * y[0] - x[0] * y[2], x[0] * y[1] - x[1] * y[0]};
      if (across == std::array<int, 3>{}) continue;
      for (int c = 0; c < rows; ++c) {
        const auto z = row(c);
        const int volume = across[0] * z[0] + across[1] * z[1] + across[2] * z[2];
        if (volume >= 1 && volume <= 4) matrices[static_cast<std::size_t>(volume)].push_back({x, y, z});
      }
    }
  }
  return matrices;
}

/// The matrix times one of 24ths.
ExactMatrix in_basis_of(const ExactMatrix& basis, const ExactMatrix& whole) {
  const WideMatrix wide = product(basis, whole);
  ExactMatrix exact{};
  for (std::size_t i = 0; i < 3; ++i) {
    for (std::size_t j = 0; j < 3; ++j) exact[i][j] = static_cast<int>(wide[i][j]);
  }
  return exact;
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

}  // namespace

std::optional<SettingChange> setting_change(const Operators& from, const CellConstants& cell, const Operators& to) {
  const Operators old_group = sorted_once(from);
  const Operators new_group = sorted_once(to);
  if (old_group == new_group) return SettingChange{};
  const auto old_centrings = centring_translations(old_group);
  const auto new_centrings = centring_translations(new_group);
  if (old_centrings.empty() || new_centrings.empty()) return std::nullopt;
  if (histogram(old_group, old_centrings) != histogram(new_group, new_centrings)) return std::nullopt;

  const Operators generators = few_generators(old_group);
  const OriginSearch origins(old_group, generators, new_group);
  const auto search = [&](const ExactMatrix& basis, const std::vector<ExactMatrix>& wholes) {
    std::vector<ExactMatrix> bases;
    bases.reserve(wholes.size());
    for (const auto& whole : wholes) bases.push_back(in_basis_of(basis, whole));
    return best_change(bases, origins, cell);
  };
  if (old_centrings.size() == new_centrings.size()) {
    static const WholeMatrices near = whole_matrices(1);
    if (auto change = search(unit_matrix, near[1])) return change;
  }
  // Cells of the same lattice from its primitive one, as it stands or reduced.
  static const WholeMatrices far = whole_matrices(2);
  if (new_centrings.size() >= far.size()) return std::nullopt;
  const auto& wholes = far[new_centrings.size()];
  if (old_centrings.size() == 1) {
    if (auto change = search(unit_matrix, wholes)) return change;
  }
  return search(primitive_basis(old_centrings, Lattice(cell)), wholes);
}

}  // namespace zol
