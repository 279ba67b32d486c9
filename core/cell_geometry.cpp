#include "core/cell_geometry.h"

#include <cmath>
#include <utility>

namespace zol {
namespace {

// The order of the factors and terms of both forms is part of the results: their last bit orders equal reflections.
Single length(const Axes& axes, double x, double y, double z) {
  const auto& [a, b, c, cos_alpha, cos_beta, cos_gamma] = axes;
  const double square = x * x * a * a + y * y * b * b + z * z * c * c + 2.0 * x * y * a * b * cos_gamma +
                        2.0 * y * z * b * c * cos_alpha + 2.0 * z * x * c * a * cos_beta;
  return to_single(square_root(square, "the squared length of a vector"));
}

Single scalar_product(const Axes& axes, double x1, double y1, double z1, double x2, double y2, double z2) {
  const auto& [a, b, c, cos_alpha, cos_beta, cos_gamma] = axes;
  return to_single(x1 * x2 * a * a + y1 * y2 * b * b + z1 * z2 * c * c + (x1 * y2 + x2 * y1) * a * b * cos_gamma +
                   (y1 * z2 + y2 * z1) * b * c * cos_alpha + (x1 * z2 + x2 * z1) * c * a * cos_beta);
}

template <class Whole>
Single single(Whole number) {
  return to_single(number.value());
}

void set_cosines_and_sines(Main1State& cell) {
  cell.CosAlpha = to_single(std::cos(double{cell.CellAlpha} * degree));
  cell.SinAlpha = to_single(std::sin(double{cell.CellAlpha} * degree));
  cell.CosBeta = to_single(std::cos(double{cell.CellBeta} * degree));
  cell.SinBeta = to_single(std::sin(double{cell.CellBeta} * degree));
  cell.CosGamma = to_single(std::cos(double{cell.CellGamma} * degree));
  cell.SinGamma = to_single(std::sin(double{cell.CellGamma} * degree));
}

/// @returns false when the angles span no volume
bool set_volume(Main1State& cell) {
  const auto [a, b, c, cos_alpha, cos_beta, cos_gamma] = direct_axes(cell);
  // (V / abc)^2
  const Single t = to_single(1.0 - cos_alpha * cos_alpha - cos_beta * cos_beta - cos_gamma * cos_gamma +
                             2.0 * cos_alpha * cos_beta * cos_gamma);
  if (t <= 0) return false;
  cell.CellVolume = to_single(a * b * c * std::sqrt(double{t}));
  return true;
}

void set_reciprocal_edges(Main1State& cell) {
  const double a = cell.CellA;
  const double b = cell.CellB;
  const double c = cell.CellC;
  const double volume = cell.CellVolume;
  cell.AStar = to_single(divide(c * b * cell.SinAlpha, volume, "the cell volume"));
  cell.BStar = to_single(divide(a * c * cell.SinBeta, volume, "the cell volume"));
  cell.CStar = to_single(divide(a * b * cell.SinGamma, volume, "the cell volume"));
}

Single reciprocal_cosine(double numerator, Single sine_1, Single sine_2) {
  return to_single(divide(divide(numerator, sine_1, "the sine of a cell angle"), sine_2, "the sine of a cell angle"));
}

Single reciprocal_sine(double cosine) {
  return to_single(square_root(1.0 - cosine * cosine, "1 - cos^2 of a reciprocal angle"));
}

void set_reciprocal_angles(Main1State& cell) {
  const double cos_alpha = cell.CosAlpha;
  const double cos_beta = cell.CosBeta;
  const double cos_gamma = cell.CosGamma;
  cell.CosAlphaStar = reciprocal_cosine(cos_gamma * cos_beta - cos_alpha, cell.SinBeta, cell.SinGamma);
  cell.CosBetaStar = reciprocal_cosine(cos_gamma * cos_alpha - cos_beta, cell.SinGamma, cell.SinAlpha);
  cell.CosGammaStar = reciprocal_cosine(cos_beta * cos_alpha - cos_gamma, cell.SinAlpha, cell.SinBeta);
  cell.AlphaStar = ArcCos(cell.CosAlphaStar);
  cell.BetaStar = ArcCos(cell.CosBetaStar);
  cell.GammaStar = ArcCos(cell.CosGammaStar);
  cell.SinAlphaStar = reciprocal_sine(cell.CosAlphaStar);
  cell.SinBetaStar = reciprocal_sine(cell.CosBetaStar);
  cell.SinGammaStar = reciprocal_sine(cell.CosGammaStar);
}

}  // namespace

Axes direct_axes(const Main1State& cell) {
  return {cell.CellA, cell.CellB, cell.CellC, cell.CosAlpha, cell.CosBeta, cell.CosGamma};
}

Axes reciprocal_axes(const Main1State& cell) {
  return {cell.AStar, cell.BStar, cell.CStar, cell.CosAlphaStar, cell.CosBetaStar, cell.CosGammaStar};
}

bool calc_cell(Main1State& cell) {
  set_cosines_and_sines(cell);
  if (!set_volume(cell)) return false;
  set_reciprocal_edges(cell);
  set_reciprocal_angles(cell);
  return true;
}

Single DHKL(const Main1State& cell, Integer h, Integer k, Integer l) {
  return length(reciprocal_axes(cell), single(h), single(k), single(l));
}

Single DHKL_Long(const Main1State& cell, Long h, Long k, Long l) {
  return length(reciprocal_axes(cell), single(h), single(k), single(l));
}

Single DHKLS(const Main1State& cell, Single h, Single k, Single l) { return length(reciprocal_axes(cell), h, k, l); }

Single DHKLT(const Main1State& cell, Single u, Single v, Single w) { return length(direct_axes(cell), u, v, w); }

Single DHKLTI(const Main1State& cell, Integer u, Integer v, Integer w) {
  return length(direct_axes(cell), single(u), single(v), single(w));
}

Single Product(const Main1State& cell, Integer h1, Integer k1, Integer l1, Integer h2, Integer k2, Integer l2) {
  return scalar_product(reciprocal_axes(cell), single(h1), single(k1), single(l1), single(h2), single(k2), single(l2));
}

Single Product_Long(const Main1State& cell, Long h1, Long k1, Long l1, Long h2, Long k2, Long l2) {
  return scalar_product(reciprocal_axes(cell), single(h1), single(k1), single(l1), single(h2), single(k2), single(l2));
}

Single ProductT(const Main1State& cell, Integer ua, Integer va, Integer wa, Integer ub, Integer vb, Integer wb) {
  return scalar_product(direct_axes(cell), single(ua), single(va), single(wa), single(ub), single(vb), single(wb));
}

Single ProductTS(const Main1State& cell, Single ua, Single va, Single wa, Single ub, Single vb, Single wb) {
  return scalar_product(direct_axes(cell), ua, va, wa, ub, vb, wb);
}

Single ArcCos(Single x) {
  if (std::abs(x) < 1) {
    const double cosine = x;
    return to_single((1.5708 - std::atan(cosine / std::sqrt(1.0 - cosine * cosine))) / degree);
  }
  return x < 0 ? 180.0F : 0.0F;
}

Single ArcSin(Single x) {
  if (std::abs(x) < 1) {
    const double sine = x;
    return to_single(std::atan(sine / std::sqrt(1.0 - sine * sine)) / degree);
  }
  return x < 0 ? -90.0F : 90.0F;
}

Single Bragg(const Main1State& beam, Single two_theta_deg) {
  const double sine = std::sin(double{two_theta_deg} / 2.0 * degree);
  return to_single(divide(double{beam.WaveLength} / 2.0, sine, "sin(theta) in Bragg's law"));
}

bool Matrix(Integer n, BoundedTable<Single>& matrix) {
  BoundedArray<int> pivot_row("perm", 10);
  const int size = n.value();
  for (int i = 1; i <= size; ++i) {
    Single pivot = 0;
    pivot_row(i) = 0;
    for (int j = i; j <= size; ++j) {
      if (std::abs(matrix(j, i)) > std::abs(pivot)) {
        pivot = matrix(j, i);
        pivot_row(i) = j;
      }
    }
    if (pivot_row(i) == 0) return false;
    if (pivot_row(i) != i) {
      for (int m = 1; m <= size; ++m) std::swap(matrix(pivot_row(i), m), matrix(i, m));
    }
    matrix(i, i) = 1;
    for (int m = 1; m <= size; ++m) matrix(i, m) = to_single(double{matrix(i, m)} / double{pivot});
    for (int j = 1; j <= size; ++j) {
      if (j == i) continue;
      const double factor = matrix(j, i);
      matrix(j, i) = 0;
      for (int m = 1; m <= size; ++m) matrix(j, m) = to_single(double{matrix(j, m)} - factor * double{matrix(i, m)});
    }
  }
  for (int i = size - 1; i >= 1; --i) {
    if (pivot_row(i) == i) continue;
    for (int m = 1; m <= size; ++m) std::swap(matrix(m, i), matrix(m, pivot_row(i)));
  }
  return true;
}

}  // namespace zol
