#include "core/sines.h"

#include <cmath>
#include <limits>

namespace zol {
namespace {

// Two pi in two parts: the first has 31 digits, so that its product with a number of turns is exact up to the limit
// (Cody & Waite, Software Manual for the Elementary Functions (1980), ch. 8).
constexpr double two_pi_high = 0x1.921fb544p+2;
constexpr double two_pi_low = 0x1.0b4611a626331p-32;
constexpr double turns_per_radian = 0x1.45f306dc9c883p-3;
constexpr double whole_number_shift = 0x1.8p52;  // a number added to it is rounded to a whole one

/// first + x (second + x (third + ...))
template <class... Rest>
double polynomial(double x, double first, Rest... rest) {
  if constexpr (sizeof...(rest) == 0) {
    return first;
  } else {
    return first + x * polynomial(x, rest...);
  }
}

constexpr double over_factorial(int n) { return n == 0 ? 1.0 : over_factorial(n - 1) / n; }

}  // namespace

// Whole turns are taken off; the sine s and the cosine c of a quarter of the rest, |q| <= pi/4, come from eight terms
// of their series, short of them by less than q^17 / 17! = 5e-17 and q^16 / 16! = 1e-15. Doubling the angle twice, by
// 2 s c and 1 - 2 s^2, multiplies an error by four at most. With some roundings of 2^-53 that is less than sine_error
// = 1.4e-14. The loop has no branch and calls nothing, so that the compiler works on several angles at a time.
void approximate_sines(std::span<const double> angles, std::span<double> sines, std::span<double> cosines) {
  for (std::size_t i = 0; i < angles.size(); ++i) {
    const double spoilt = std::abs(angles[i]) <= sine_limit ? 0.0 : std::numeric_limits<double>::quiet_NaN();
    const double angle = angles[i] + spoilt;
    const double turns = (angle * turns_per_radian + whole_number_shift) - whole_number_shift;
    const double q = ((angle - turns * two_pi_high) - turns * two_pi_low) / 4;
    const double qq = q * q;
    double s = q * polynomial(qq, 1.0, -over_factorial(3), over_factorial(5), -over_factorial(7), over_factorial(9),
                              -over_factorial(11), over_factorial(13), -over_factorial(15));
    double c = polynomial(qq, 1.0, -over_factorial(2), over_factorial(4), -over_factorial(6), over_factorial(8),
                          -over_factorial(10), over_factorial(12), -over_factorial(14));
    for (int doubling = 0; doubling < 2; ++doubling) {
      const double half_sine = s;
      s = 2 * half_sine * c;
      c = 1 - 2 * half_sine * half_sine;
    }
    sines[i] = s;
    cosines[i] = c;
  }
}

}  // namespace zol
