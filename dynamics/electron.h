// The fast electron: wavelength and mass at an acceleration voltage.
#pragma once

namespace zol {

struct FastElectron {
  double kilovolt = 0;
  double wavelength = 0;  ///< angstroms
  double mass_ratio = 1;  ///< relativistic mass over rest mass
};

/// Relativistic, by the constants of CODATA 2018.
/// @throws RunFailure  a voltage that is not above 0 or beyond 10 000 kV
[[nodiscard]] FastElectron fast_electron(double kilovolt);

}  // namespace zol
