// The two tables of atomic scattering factors: four Gaussians and a constant, s = sin(theta)/lambda in 1/Å.
#pragma once

#include <string>

namespace zol {

/// X-rays: neutral atoms H to Cf in the order of their atomic numbers, each followed by its ions.
/// Source: International Tables for Crystallography C (1992), table 6.1.1.4; valid for s up to 2 / Å.
/// @param ion_file  the rows of the ions, in the form of the table itself
/// @throws RunFailure  the ion file is missing or broken, or the table cannot be written
void write_xray_table(const std::string& path, const std::string& ion_file);

}  // namespace zol
