// The structure factor atom by atom, as it is defined: what the faster way must agree with to the bit.
#pragma once

#include <cmath>

#include "reflections/structure_factor.h"

namespace zol {

inline Amplitude plain_structure_factor(const CrystalState& state, Integer h, Integer k, Integer l, Single s,
                                        const Radiation& radiation) {
  Amplitude sum;
  for (int m = 1; m <= state.NCell.value(); ++m) {
    const Single f = AtomicScatter(state, find_scatter_row(state, state.UCElement(m)), s, radiation);
    const double weight = to_single(double{f} * double{state.UCOcc(m)});
    const double phase = to_single((h.value() * double{state.UCPos(m, 1)} + k.value() * double{state.UCPos(m, 2)} +
                                    l.value() * double{state.UCPos(m, 3)}) *
                                   program_two_pi);
    const double damping = to_single(std::exp(-double{state.UCB(m)} * double{s} * double{s}));
    sum.a = to_single(double{sum.a} + weight * std::cos(phase) * damping);
    sum.b = to_single(double{sum.b} + weight * std::sin(phase) * damping);
  }
  return sum;
}

}  // namespace zol
