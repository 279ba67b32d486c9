#include "reflections/scattering.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

#include "core/number_text.h"
#include "reflections/structure_factor.h"
#include "tests/crystals.h"
#include "tests/plain_structure_factor.h"
#include "tests/test_files.h"

namespace zol {
namespace {

constexpr Radiation xrays{true, false};
constexpr Radiation electrons{false, true};

CrystalState with_table() {
  CrystalState state = with_cell(cubic_cell(4));
  state.AsfXCount = read_scatter_table(ZOL_SOURCE_DIR "/data/ZOL/Asf/ASF-X.csv", state.AsfX);
  state.MassRatio = 1.5F;
  state.WaveLength = 1.542F;
  return state;
}

TEST(ScatteringFactor, NeedsARowOfItsElement) {
  const auto state = with_table();
  const AsfRow* const sodium = find_scatter_row(state, "Na");
  EXPECT_EQ(AtomicScatter(state, sodium, 0, electrons), AtomicScatter(state, sodium, 0, xrays));
  for (const auto* element : {"NA", " Na", "", "Xx"}) EXPECT_EQ(find_scatter_row(state, element), nullptr) << element;
  EXPECT_EQ(AtomicScatter(state, nullptr, 0.3F, electrons), 0);
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
  EXPECT_TRUE(fails_with("line 301", [&] { (void)read_scatter_table(folder.write("over", rows + "D"), state.AsfX); }));
}

/// The atoms of a made-up cell: positions, occupancies and Bs from numbers between 0 and 1.
struct MadeUpCell {
  const char* name;
  Single (*position)(Single random, int m);
  Single (*occupancy)(Single random);
  Single (*b)(Single random);
};

constexpr auto one = [](Single) { return 1.0F; };
constexpr auto itself = [](Single random) { return random; };
constexpr auto parts = [](Single random) { return std::floor(random * 5) / 2 - 1; };  // none, half, negative
constexpr auto anywhere = [](Single random, int) { return random; };
constexpr auto pairs = [](Single, int m) { return m % 2 == 0 ? 0.5F : 0.0F; };
constexpr MadeUpCell made_up_cells[] = {
    {"general", anywhere, one, [](Single random) { return 0.5F + random; }},
    {"pairs that cancel but for the last digits", pairs, one, [](Single) { return 0.5F; }},
    {"pairs damped to zeros of either sign", pairs, one, [](Single) { return 100.0F; }},
    {"growth in place of damping", anywhere, one, [](Single random) { return -20 * random; }},
    {"negative coordinates", [](Single random, int) { return 40 * random - 20; }, parts, itself},
    {"about the limit of the fast sines", [](Single random, int) { return 4e4F * random; }, one, itself},
    {"huge coordinates", [](Single random, int) { return (random - 0.5F) * 1e30F; }, one, itself},
};

/// Bits, since a zero has a sign.
std::array<std::uint32_t, 2> bits(const Amplitude& f) {
  return {std::bit_cast<std::uint32_t>(f.a), std::bit_cast<std::uint32_t>(f.b)};
}

TEST(StructureFactor, AgreesWithThePlainLoopToTheBit) {
  std::mt19937 random(5);
  std::uniform_real_distribution<Single> uniform(0, 1);
  for (const auto& cell : made_up_cells) {
    auto state = with_table();
    state.NCell = 220;  // with a B for each, more numbers than the sum has room for without asking for memory
    for (int m = 1; m <= state.NCell.value(); ++m) {
      const int pair = (m + 1) / 2;
      state.UCElement(m) = pair % 3 == 0 ? "Na" : (pair % 25 == 7 ? "Xx" : "Cl");
      state.UCOcc(m) = cell.occupancy(uniform(random));
      state.UCB(m) = cell.b(uniform(random));
      for (int axis = 1; axis <= 3; ++axis) state.UCPos(m, axis) = cell.position(uniform(random), m);
    }
    for (const auto& radiation : {xrays, electrons}) {
      const ScatteringCell atoms(state, radiation);
      for (int n = 0; n < 1000; ++n) {
        const Single s = uniform(random);
        ASSERT_EQ(bits(atoms.StructureFactor(n % 17 - 8, n % 11 - 5, n % 7, s)),
                  bits(plain_structure_factor(state, n % 17 - 8, n % 11 - 5, n % 7, s, radiation)))
            << cell.name << ", reflection " << n;
      }
      EXPECT_TRUE(atoms.scatter_missing());
    }
  }
}

// Reflection 200, s = 0.25, of half an atom that turns it by a quarter. Its factors from the coefficients by a desk
// calculator; for electrons Mott-Bethe, (11 - f) 0.023934 / s^2, times the mass ratio. The Lorentz-polarisation factor
// at theta = 22.675 degrees, (1 + cos^2 2theta) / (sin^2 theta cos theta), is 10.8945.
TEST(Intensity, OfOneAtomIsTheOneByHand) {
  constexpr double na_xrays = 7.62395;
  constexpr double na_electrons = 1.9392546;
  auto state = with_table();
  state.NAtom = state.NCell = 1;
  state.UCElement(1) = "Na";
  state.UCPos(1, 1) = 0.125F;
  state.UCOcc(1) = 0.5F;
  state.UCB(1) = 2;
  Intensity intensity;
  const auto line = [&state, &intensity](double theta, const Radiation& radiation) {
    intensity = ReflectionIntensity(state, {2, 0, 0, 0.25F, to_single(theta)}, {}, ScatteringCell(state, radiation));
    return intensity.columns;
  };
  const double share = 0.5 * std::exp(-2 * 0.0625);
  EXPECT_EQ(line(0, xrays).size(), 24U) << "no angle, no column I";
  EXPECT_EQ(intensity.value, 0);
  EXPECT_EQ(line(std::asin(0.25 * 1.542), xrays).size(), 24U + 11);
  EXPECT_NEAR(intensity.f.a, 0, 1e-5);
  EXPECT_NEAR(intensity.f.b, share * na_xrays, 1e-5);
  EXPECT_NEAR(intensity.value, std::pow(share * na_xrays, 2) * 10.8945 / 64 / 64 * 100, 1e-4);

  const double shown = std::pow(share * na_electrons, 2) / 64 / 64 * 1e5;
  EXPECT_NEAR(Val(line(0, electrons).substr(24)), shown, 6e-4);
  EXPECT_NEAR(intensity.value, shown / 0.25 / 2, 1e-4) << "what is stored is divided by 2 s";
  state.CellVolume = 0;
  EXPECT_TRUE(fails_with("the cell volume is 0", [&] { (void)line(0, electrons); }));
}

}  // namespace
}  // namespace zol
