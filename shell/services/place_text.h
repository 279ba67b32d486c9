// The place under the pointer as text for a status line, for the pictures that share a kind of coordinates.
#pragma once

#include <string>

namespace zol {

/// A value with its name and unit: "2θ 31.45°". @param pattern  of Format
[[nodiscard]] std::string value_text(const std::string& name, double value, const char* pattern,
                                     const std::string& unit);

/// Length of a reciprocal vector in inverse angstroms, and the spacing: "d* 0.3546 Å⁻¹   d 2.820 Å". Without the
/// spacing at 0.
[[nodiscard]] std::string spacing_text(double d_star);

/// Angle from the centre of the picture, and the azimuth counted from x towards y.
/// @param x, y  any point in the direction, in user coordinates
[[nodiscard]] std::string direction_text(double from_centre_deg, double x, double y);

}  // namespace zol
