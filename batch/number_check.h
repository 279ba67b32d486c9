// Checks of numbers on the command line: finite, in a range that makes sense, with a decimal point.
#pragma once

#include <CLI/CLI.hpp>

namespace zol {

/// For an option with a real number; help and man pages show the range, a message tells value and range.
[[nodiscard]] CLI::Validator number_from(double low, double high);
/// For an option with a whole number.
[[nodiscard]] CLI::Validator whole_from(int low, int high);

/// Smallest spacings of lists, angstroms.
[[nodiscard]] inline CLI::Validator spacing() { return number_from(0.01, 100); }
/// Tilts of sample and screen, degrees.
[[nodiscard]] inline CLI::Validator tilt() { return number_from(-180, 180); }
/// Voltages of an electron microscope whose patterns are computed or indexed, kV.
[[nodiscard]] inline CLI::Validator kilovolt() { return number_from(1, 400); }

}  // namespace zol
