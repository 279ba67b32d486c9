// Atomic scattering factors, for X-rays from a table of four Gaussians and a constant, for electrons from those of
// X-rays. s is sin(theta)/lambda in inverse angstroms throughout.
//
// Sources: International Tables for Crystallography C (2004) 6.1.1.4 for the form of the table; Mott & Bethe as in
// International Tables C 4.3.1, f_el = 0.023934 (Z - f_x) / s^2 in angstroms.
#pragma once

#include <string>
#include <string_view>

#include "core/crystal_state.h"

namespace zol {

/// Radiation of the structure factors and intensities, as chosen in the main window.
struct Radiation {
  bool xray = false;      ///< X-ray intensity
  bool electron = false;  ///< electron intensity and electron scattering factors
};

/// Reads a table to the end of its file, rows from 1. One record has 11 fields: element, A1, B1, ... A4, B4, C, Z.
/// @returns the number of rows
/// @throws RunFailure  the file is missing, a record is broken, or there are more than 300 rows
Integer read_scatter_table(const std::string& path, BoundedArray<AsfRow>& table);

/// Row of an element in AsfX, compared exactly; the first one if there are several, nullptr if there is none. The
/// pointer is valid as long as the table of the state.
[[nodiscard]] const AsfRow* find_scatter_row(const Main1State& state, std::string_view element);

/// Scattering factor of the element of a row at s: for electrons in angstroms times MassRatio, for X-rays (and for
/// electrons at s = 0) in electrons. 0 without a row.
/// @throws RunFailure  the factor passes the range of a Single
[[nodiscard]] Single AtomicScatter(const Main1State& state, const AsfRow* row, Single s, const Radiation& radiation);

}  // namespace zol
