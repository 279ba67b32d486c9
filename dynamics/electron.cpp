#include "dynamics/electron.h"

#include <cmath>

#include "core/number_text.h"
#include "core/run_failure.h"

namespace zol {

FastElectron fast_electron(double kilovolt) {
  constexpr double most_kilovolt = 10000;
  if (!(kilovolt > 0 && kilovolt <= most_kilovolt)) {
    throw RunFailure("the acceleration voltage is " + plain_text(kilovolt) + " kV, must be above 0 and at most 10000");
  }
  constexpr double planck = 6.62607015e-34;
  constexpr double mass = 9.1093837015e-31;
  constexpr double charge = 1.602176634e-19;
  constexpr double light = 299792458;
  constexpr double angstrom = 1e-10;
  const double energy = charge * 1000 * kilovolt;
  const double rest = mass * light * light;
  const double momentum = std::sqrt(2 * mass * energy * (1 + energy / (2 * rest)));
  return {kilovolt, planck / momentum / angstrom, 1 + energy / rest};
}

}  // namespace zol
