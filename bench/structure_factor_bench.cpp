// Structure factors of a P1 cell of 200 atoms next to the plain loop, to their bare sines and cosines, and to gemmi's
// direct summation over the same atoms where gemmi is installed.
#include <benchmark/benchmark.h>

#include <complex>
#include <vector>

#include "bench/bench_crystals.h"
#include "reflections/structure_factor.h"
#include "tests/plain_structure_factor.h"

#ifdef ZOL_HAS_GEMMI
#include <gemmi/it92.hpp>
#include <gemmi/sfcalc.hpp>
#include <gemmi/small.hpp>
#endif

namespace zol {
namespace {

constexpr Radiation xrays{true, false};
constexpr int atoms_in_cell = 200;

/// All reflections to 0.8 angstroms, full sphere.
std::unique_ptr<CrystalState> large_cell() {
  auto state = p1_crystal(atoms_in_cell);
  state->Dmin = 0.8F;
  enumerate_reflections(*state, {{true, true, true}, {}});
  return state;
}

void StructureFactors(benchmark::State& run) {
  const auto state = large_cell();
  for (auto _ : run) {
    ScatteringCell atoms(*state, xrays);
    for (int i = 1; i <= state->RefCount.value(); ++i) {
      benchmark::DoNotOptimize(atoms.StructureFactor(state->RefH(i), state->RefK(i), state->RefL(i), state->RefS(i)));
    }
  }
  run.counters["reflections"] = state->RefCount.value();
}
void StructureFactorsPlain(benchmark::State& run) {
  const auto state = large_cell();
  for (auto _ : run) {
    for (int i = 1; i <= state->RefCount.value(); ++i) {
      benchmark::DoNotOptimize(
          plain_structure_factor(*state, state->RefH(i), state->RefK(i), state->RefL(i), state->RefS(i), xrays));
    }
  }
}
BENCHMARK(StructureFactorsPlain)->Unit(benchmark::kMillisecond);
BENCHMARK(StructureFactors)->Unit(benchmark::kMillisecond);

/// What the phases alone cost.
void SinesAndCosines(benchmark::State& run) {
  const auto state = large_cell();
  for (auto _ : run) {
    double sum = 0;
    for (int i = 1; i <= state->RefCount.value(); ++i) {
      const double h = state->RefH(i).value();
      const double k = state->RefK(i).value();
      const double l = state->RefL(i).value();
      for (int m = 1; m <= atoms_in_cell; ++m) {
        const double phase = static_cast<Single>(
            (h * state->UCPos(m, 1) + k * state->UCPos(m, 2) + l * state->UCPos(m, 3)) * program_two_pi);
        sum += std::cos(phase) + std::sin(phase);
      }
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(SinesAndCosines)->Unit(benchmark::kMillisecond);

#ifdef ZOL_HAS_GEMMI
void GemmiDirectSummation(benchmark::State& run) {
  const auto state = large_cell();
  gemmi::SmallStructure structure;
  structure.cell.set(state->CellA, state->CellB, state->CellC, state->CellAlpha, state->CellBeta, state->CellGamma);
  for (int m = 1; m <= atoms_in_cell; ++m) {
    gemmi::SmallStructure::Site site;
    site.element = gemmi::Element(state->UCElement(m));
    site.occ = state->UCOcc(m);
    site.fract = gemmi::Fractional(state->UCPos(m, 1), state->UCPos(m, 2), state->UCPos(m, 3));
    constexpr double b_per_u = 8 * M_PI * M_PI;
    site.u_iso = state->UCB(m) / b_per_u;
    structure.sites.push_back(site);
  }
  for (auto _ : run) {
    gemmi::StructureFactorCalculator<gemmi::IT92<double>> calculator(structure.cell);
    std::complex<double> sum = 0;
    for (int i = 1; i <= state->RefCount.value(); ++i) {
      sum += calculator.calculate_sf_from_small_structure(
          structure, {state->RefH(i).value(), state->RefK(i).value(), state->RefL(i).value()});
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(GemmiDirectSummation)->Unit(benchmark::kMillisecond);
#endif

}  // namespace
}  // namespace zol
