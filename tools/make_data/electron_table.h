// The table of electron scattering factors, in the form of the X-ray table.
#pragma once

#include <string>

namespace zol {

/// Neutral atoms H to Cf, factors in Å for s = sin(theta)/lambda up to 2 / Å. The source has five Gaussians; four are
/// fitted to their sum, the constant is 0.
/// Source: International Tables for Crystallography C (2011), table 4.3.2.2.
/// @returns the largest difference from the source between s = 0 and 2 / Å, in Å
/// @throws RunFailure  the table cannot be written
double write_electron_table(const std::string& path);

}  // namespace zol
