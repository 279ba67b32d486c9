// Reflection lists next to those of an independent program, stored in tests/reference (made by tools/reference).
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>

#include "core/cell_geometry.h"
#include "core/crystal_file.h"
#include "core/number_text.h"
#include "core/space_group.h"
#include "core/unit_cell.h"
#include "reflections/reflection_list.h"
#include "tests/test_files.h"

namespace zol {
namespace {

struct Reference {
  double d = 0, f = 0;
};
using ReferenceList = std::map<std::array<int, 3>, Reference>;

ReferenceList read_reference(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::getline(file, line);
  EXPECT_EQ(line, "h,k,l,d,F");
  ReferenceList list;
  while (std::getline(file, line)) {
    std::istringstream fields(line);
    std::array<int, 3> hkl{};
    Reference reference;
    char comma = 0;
    fields >> hkl[0] >> comma >> hkl[1] >> comma >> hkl[2] >> comma >> reference.d >> comma >> reference.f;
    list[hkl] = reference;
  }
  return list;
}

/// The whole way from the file of a crystal to its X-ray list.
CrystalState computed(const std::string& crystal, Single dmin) {
  CrystalState state;
  CrystalFileReader file(ZOL_SOURCE_DIR "/data/ZOLDATA/" + crystal);
  file.read_cell(state);
  file.read_contents(state);
  EXPECT_TRUE(calc_cell(state));
  const auto group =
      read_space_group(ZOL_SOURCE_DIR "/data/ZOL/SpaceGr/No" + Format(state.SGNumber.value(), "000") + ".dat");
  expand_unit_cell(state, group);
  state.LatticeLetter = group.symbol.substr(0, 1);
  state.AsfXCount = read_scatter_table(ZOL_SOURCE_DIR "/data/ZOL/Asf/ASF-X.csv", state.AsfX);
  state.WaveLength = 1.542F;
  state.Dmin = dmin;
  enumerate_reflections(state, {{true, true, true}, {}});
  sort_by_s(state);
  EXPECT_FALSE(compute_list(state, {true, false}).empty());
  EXPECT_EQ(state.ScatterMissing, 0);
  return state;
}

struct ReferenceCase {
  const char* crystal;
  const char* reference;
};
class ReferenceComparison : public testing::TestWithParam<ReferenceCase> {};

// The truncated 2 pi turns phases by 1e-6 of themselves and sums are kept in 32 bits; both stay far below the bounds.
TEST_P(ReferenceComparison, AgreesInSpacingAndModulus) {
  const auto reference = read_reference(std::string(ZOL_SOURCE_DIR "/tests/reference/") + GetParam().reference);
  ASSERT_GT(reference.size(), 600U);
  const auto state = computed(GetParam().crystal, 0.9001F);
  std::size_t strong = 0;
  for (int i = 1; i <= state.RefCount.value(); ++i) {
    const std::array hkl{state.RefH(i).value(), state.RefK(i).value(), state.RefL(i).value()};
    const auto found = reference.find(hkl);
    ASSERT_NE(found, reference.end()) << hkl[0] << ' ' << hkl[1] << ' ' << hkl[2];
    const double f = std::hypot(state.RefA(i), state.RefB(i));
    EXPECT_NEAR(f, found->second.f, std::max(0.02, 1e-3 * found->second.f)) << hkl[0] << ' ' << hkl[1] << ' ' << hkl[2];
    EXPECT_NEAR(0.5 / state.RefS(i), found->second.d, 3e-5);
    if (found->second.f > 0.02) ++strong;
  }
  std::size_t wanted = 0;
  for (const auto& [hkl, entry] : reference) wanted += entry.f > 0.02 && entry.d > 0.90015 ? 1 : 0;
  EXPECT_EQ(strong, wanted) << "reflections are missing";
}
INSTANTIATE_TEST_SUITE_P(Crystals, ReferenceComparison,
                         testing::Values(ReferenceCase{"NaCl.cry", "nacl.csv"},
                                         ReferenceCase{"Quartz.cry", "quartz.csv"},
                                         ReferenceCase{"Kyanite.cry", "kyanite.csv"}),
                         [](const auto& row) {
                           const std::string name = row.param.reference;
                           return name.substr(0, name.find('.'));
                         });

}  // namespace
}  // namespace zol
