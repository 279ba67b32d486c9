// The structure factor atom by atom, as it is defined: what the faster way must agree with to the bit.
#pragma once

#include <cmath>

#include "core/crystal_state.h"
#include "reflections/scattering.h"

namespace zol {

inline void plain_structure_factor(CrystalState& state, int i, const Radiation& radiation) {
  const double h = state.RefH(i).value();
  const double k = state.RefK(i).value();
  const double l = state.RefL(i).value();
  const Single s = state.RefS(i);
  Single a = 0;
  Single b = 0;
  for (int m = 1; m <= state.NCell.value(); ++m) {
    const Single f = AtomicScatter(state, state.UCElement(m), s, radiation);
    const double weight = to_single(double{f} * double{state.UCOcc(m)});
    const double phase =
        to_single((h * double{state.UCPos(m, 1)} + k * double{state.UCPos(m, 2)} + l * double{state.UCPos(m, 3)}) *
                  program_two_pi);
    const double damping = to_single(std::exp(-double{state.UCB(m)} * double{s} * double{s}));
    a = to_single(double{a} + weight * std::cos(phase) * damping);
    b = to_single(double{b} + weight * std::sin(phase) * damping);
  }
  state.RefA(i) = a;
  state.RefB(i) = b;
}

}  // namespace zol
