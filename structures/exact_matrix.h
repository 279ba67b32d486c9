// Exact matrices of 24ths and their products.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "structures/symmetry_group.h"

namespace zol {

using Wide = std::int64_t;
using WideMatrix = std::array<std::array<Wide, 3>, 3>;

inline constexpr ExactMatrix unit_matrix{{{operator_unit, 0, 0}, {0, operator_unit, 0}, {0, 0, operator_unit}}};

inline int folded(Wide translation) {
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
inline std::optional<ExactMatrix> in_basis(const ExactMatrix& rotation, const ExactMatrix& basis,
                                           const WideMatrix& adjugate, Wide determinant) {
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

}  // namespace zol
