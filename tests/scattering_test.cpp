#include "reflections/scattering.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "reflections/structure_factor.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr Radiation xrays{true, false};
constexpr Radiation electrons{false, true};

constexpr auto two_elements =
    "\"Na\",4.7626,3.285,3.1736,8.8422,1.2674,0.3136,1.1128,129.424,0.676,11\r\n"
    "\"Cl\",11.4604,0.0104,7.1964,1.1662,6.2556,18.5194,1.6455,47.7784,-9.5574,17\r\n"
    "\"Na\",1,1,1,1,1,1,1,1,1,1\r\n";

CrystalState with_table(const std::string& text) {
  const ScratchFolder folder;
  CrystalState state;
  state.AsfXCount = read_scatter_table(folder.write("ASF-X.csv", text), state.AsfX);
  state.MassRatio = 1;
  return state;
}

TEST(ScatteringFactor, AgreesWithTheTabulatedCurve) {
  auto state = with_table(two_elements);
  EXPECT_EQ(state.AsfXCount, 3);
  // f(0) is the number of electrons; the others by a desk calculator from the coefficients
  EXPECT_NEAR(AtomicScatter(state, "Na", 0, xrays), 11.0, 0.02);
  EXPECT_NEAR(AtomicScatter(state, "Na", 0.25F, xrays), 7.62395, 1e-5);
  EXPECT_NEAR(AtomicScatter(state, "Cl", 0.5F, xrays), 7.31075, 1e-5);
  // Mott-Bethe by hand: (11 - f) 0.023934 / s^2
  const double f = AtomicScatter(state, "Na", 0.25F, xrays);
  state.MassRatio = 1.5F;
  EXPECT_NEAR(AtomicScatter(state, "Na", 0.25F, electrons), (11 - f) * 0.023934 / 0.0625 * 1.5, 1e-5);
  EXPECT_EQ(AtomicScatter(state, "Na", 0, electrons), AtomicScatter(state, "Na", 0, xrays));
  EXPECT_EQ(state.ScatterMissing, 0);
}

TEST(ScatteringFactor, OfAnUnknownElementIsZeroAndFlagged) {
  auto state = with_table(two_elements);
  for (const auto* element : {"NA", "na", " Na", "", "Xx"}) {
    state.ScatterMissing = 0;
    EXPECT_EQ(AtomicScatter(state, element, 0.3F, electrons), 0) << element;
    EXPECT_EQ(state.ScatterMissing, 1) << element;
  }
  auto empty = with_table("\r\n");
  EXPECT_EQ(AtomicScatter(empty, "Na", 0.3F, xrays), 0);
  EXPECT_EQ(empty.ScatterMissing, 1);
}

TEST(ScatteringTable, NamesWhatIsBroken) {
  const ScratchFolder folder;
  CrystalState state;
  const auto path = folder.write("ASF-X.csv", "\"Na\",1,2,3,4,5,6,7,8,9,11\r\n\"Cl\",1,2,x");
  EXPECT_EQ(failure_of([&] { (void)read_scatter_table(path, state.AsfX); }),
            path + ", line 2: A2 of Cl is \"x\", a number is expected");
  std::string rows;
  for (int i = 0; i < 300; ++i) rows += "\"H\",1,2,3,4,5,6,7,8,9,1\r\n";
  EXPECT_EQ(read_scatter_table(folder.write("full", rows), state.AsfX), 300);
  rows += "\"D\",1,2,3,4,5,6,7,8,9,1\r\n";
  EXPECT_NE(failure_of([&] { (void)read_scatter_table(folder.write("over", rows), state.AsfX); }).find("line 301"),
            std::string::npos);
}

/// One reflection (h, k, l) of a cubic cell of 4 angstroms with one atom.
CrystalState one_atom(int h, int k, int l, Single x, Single occupancy, Single b) {
  auto state = with_table(two_elements);
  state.NAtom = 1;
  state.NCell = 1;
  state.UCElement(1) = "Na";
  state.UCOcc(1) = occupancy;
  state.UCPos(1, 1) = x;
  state.UCB(1) = b;
  state.CellVolume = 64;
  state.WaveLength = 1.542F;
  for (auto* array : {&state.RefH, &state.RefK, &state.RefL}) array->allocate(1);
  for (auto* array : {&state.RefS, &state.RefA, &state.RefB, &state.RefI}) array->allocate(1);
  state.RefH(1) = h;
  state.RefK(1) = k;
  state.RefL(1) = l;
  state.RefS(1) = to_single(std::sqrt(double(h * h + k * k + l * l)) / 8.0);
  return state;
}

void intensity(CrystalState& state, Single theta, const Radiation& radiation, std::string& line) {
  ScatteringCell atoms(state, radiation);
  ReflectionIntensity(state, 1, theta, radiation, ObservedReflections(state), atoms, line);
}

TEST(StructureFactor, OfManyReflectionsIsTheSameToTheBit) {
  std::mt19937 random(5);
  std::uniform_real_distribution<Single> uniform(0, 1);
  for (const auto& radiation : {xrays, electrons}) {
    auto state = one_atom(1, 0, 0, 0, 1, 0);
    state.NCell = 200;
    for (int m = 1; m <= 200; ++m) {
      state.UCElement(m) = m % 3 == 0 ? "Na" : (m % 50 == 1 ? "Xx" : "Cl");
      state.UCOcc(m) = m % 5 == 0 ? 0.7F : 1.0F;
      state.UCB(m) = m % 7 == 0 ? uniform(random) : 0.5F;
      for (int axis = 1; axis <= 3; ++axis) state.UCPos(m, axis) = uniform(random);
    }
    ScatteringCell atoms(state, radiation);
    for (int n = 0; n < 300; ++n) {
      state.RefH(1) = n % 17 - 8;
      state.RefK(1) = n % 11 - 5;
      state.RefL(1) = n % 7;
      state.RefS(1) = uniform(random);
      state.ScatterMissing = 0;
      StructureFactor(state, 1, radiation);
      const Single a = state.RefA(1);
      const Single b = state.RefB(1);
      EXPECT_EQ(state.ScatterMissing, 1);
      state.ScatterMissing = 0;
      atoms.structure_factor(state, 1);
      ASSERT_EQ(state.RefA(1), a);
      ASSERT_EQ(state.RefB(1), b);
      ASSERT_EQ(state.ScatterMissing, 1);
    }
  }
}

TEST(StructureFactor, TurnsWithTheAtom) {
  auto state = one_atom(2, 0, 0, 0.125F, 0.5F, 2);  // a quarter turn
  StructureFactor(state, 1, xrays);
  const double f = AtomicScatter(state, "Na", 0.25F, xrays);
  EXPECT_NEAR(state.RefA(1), 0, 1e-5);
  EXPECT_NEAR(state.RefB(1), 0.5 * f * std::exp(-2 * 0.0625), 1e-5);
}

TEST(Intensity, OfXraysHasTheLorentzPolarisationFactor) {
  auto state = one_atom(2, 0, 0, 0, 1, 0);
  const double theta = std::asin(0.25 * 1.542);
  std::string line;
  intensity(state, to_single(theta), xrays, line);
  const double f = AtomicScatter(state, "Na", 0.25F, xrays);
  const double lp = (1 + std::pow(std::cos(2 * theta), 2)) / std::pow(std::sin(theta), 2) / std::cos(theta);
  EXPECT_NEAR(state.RefI(1), f * f * lp / 64 / 64 * 100, 1e-4);
  EXPECT_EQ(line.size(), 8U + 8 + 8 + 11);
  line.clear();
  state.RefI(1) = 0;
  intensity(state, 0, xrays, line);
  EXPECT_EQ(line.size(), 24U) << "no angle, no column I";
  EXPECT_EQ(state.RefI(1), 0);
}

TEST(Intensity, OfElectronsShowsMoreThanItStores) {
  auto state = one_atom(2, 0, 0, 0, 1, 0);
  std::string line;
  intensity(state, 0, electrons, line);
  const double f = AtomicScatter(state, "Na", 0.25F, electrons);
  EXPECT_NEAR(state.RefI(1), f * f / 0.25 / 64 / 64 / 2 * 1e5, 1e-3);
  EXPECT_NEAR(std::stod(line.substr(24)), f * f / 64 / 64 * 1e5, 6e-4);
  state.CellVolume = 0;
  EXPECT_EQ(failure_of([&] { intensity(state, 0, electrons, line); }), "division by zero: the cell volume is 0");
}

TEST(Intensity, ComesFromObservedReflectionsWithoutAtoms) {
  auto state = one_atom(2, 0, 0, 0, 1, 0);
  state.NAtom = 0;
  state.SGNumber = 225;
  std::string line;
  intensity(state, 0, electrons, line);
  EXPECT_EQ(line, "") << "neither atoms nor a table";
  state.JcpdsCount = 1;
  state.JcpdsH(1) = 2;
  state.JcpdsI(1) = 12.5F;
  intensity(state, 0, electrons, line);
  EXPECT_EQ(state.RefI(1), 100);
  EXPECT_EQ(line, "  100.00    0.00  100.00    100.000");
}

}  // namespace
}  // namespace zol
