#include "reflections/scattering.h"

#include <cmath>

#include "core/record_reader.h"

namespace zol {
namespace {

constexpr double mott_constant = 0.023934;  // m e^2 / (8 pi eps0 h^2) * 1/4 in angstroms for s = sin(theta)/lambda

/// Rounded to a Single after each Gaussian.
Single xray_factor(const AsfRow& row, double s) {
  Single f = row.C;
  const auto add = [&f, s](double amplitude, double exponent) {
    f = to_single(amplitude * std::exp(-exponent * s * s) + double{f});
  };
  add(row.A1, row.B1);
  add(row.A2, row.B2);
  add(row.A3, row.B3);
  add(row.A4, row.B4);
  return f;
}

}  // namespace

Integer read_scatter_table(const std::string& path, BoundedArray<AsfRow>& table) {
  RecordReader file(path);
  Integer count;
  while (!file.at_end()) {
    AsfRow row;
    row.Element = file.next_string("the element");
    if (count == table.upper()) file.fail("the table has more than " + std::to_string(table.upper()) + " rows");
    const std::string of_element = " of " + row.Element;
    row.A1 = file.next_single("A1" + of_element);
    row.B1 = file.next_single("B1" + of_element);
    row.A2 = file.next_single("A2" + of_element);
    row.B2 = file.next_single("B2" + of_element);
    row.A3 = file.next_single("A3" + of_element);
    row.B3 = file.next_single("B3" + of_element);
    row.A4 = file.next_single("A4" + of_element);
    row.B4 = file.next_single("B4" + of_element);
    row.C = file.next_single("C" + of_element);
    row.Z = file.next_integer("Z" + of_element);
    count += 1;
    table(count.value()) = row;
  }
  return count;
}

const AsfRow* find_scatter_row(const Main1State& state, std::string_view element) {
  for (int row = 1; row <= state.AsfXCount.value(); ++row) {
    if (state.AsfX(row).Element == element) return &state.AsfX(row);
  }
  return nullptr;
}

Single AtomicScatter(const Main1State& state, const AsfRow* row, Single s, const Radiation& radiation) {
  const Single f = row == nullptr ? 0.0F : xray_factor(*row, s);
  if (!radiation.electron || s == 0) return f;
  const int atomic_number = row == nullptr ? 0 : row->Z.value();
  const double s_wide = s;
  return to_single((atomic_number - double{f}) * mott_constant / s_wide / s_wide * double{state.MassRatio});
}

}  // namespace zol
