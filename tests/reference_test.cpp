// Reflection lists next to those of an independent program, stored in tests/reference (made by tools/reference).
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>
#include <utility>

#include "bench/bench_crystals.h"
#include "core/record_reader.h"

namespace zol {
namespace {

struct Reference {
  double d = 0, f = 0;
};

std::map<std::array<int, 3>, Reference> read_reference(const std::string& table) {
  std::map<std::array<int, 3>, Reference> list;
  RecordReader file(ZOL_SOURCE_DIR "/tests/reference/" + table + ".csv");
  for (const char* heading : {"h", "k", "l", "d", "F"}) EXPECT_EQ(file.next_string("heading"), heading);
  while (!file.at_end()) {
    std::array<int, 3> hkl{};
    for (int& index : hkl) index = file.next_integer("index").value();
    const double d = file.next_single("d");
    list[hkl] = {d, file.next_single("F")};
  }
  return list;
}

// The truncated 2 pi turns phases by 1e-6 of themselves and sums are kept in 32 bits; both stay far below the bounds.
TEST(ReferenceComparison, AgreesInSpacingAndModulus) {
  for (const auto& [crystal, table] :
       {std::pair{"NaCl", "nacl"}, std::pair{"Quartz", "quartz"}, std::pair{"Kyanite", "kyanite"}}) {
    const auto reference = read_reference(table);
    ASSERT_GT(reference.size(), 600U);
    const auto computed = shipped_crystal(std::string(crystal) + ".cry");
    const CrystalState& state = *computed;
    make_list(*computed, 0.9001F, {true, false});
    EXPECT_EQ(state.ScatterMissing, 0);
    int strong = 0;
    for (int i = 1; i <= state.RefCount.value(); ++i) {
      const std::array hkl{state.RefH(i).value(), state.RefK(i).value(), state.RefL(i).value()};
      SCOPED_TRACE(std::string(crystal) + " " + testing::PrintToString(hkl));
      const auto found = reference.find(hkl);
      ASSERT_NE(found, reference.end());
      const auto& [d, f] = found->second;
      EXPECT_NEAR(std::hypot(state.RefA(i), state.RefB(i)), f, std::max(0.02, 1e-3 * f));
      EXPECT_NEAR(0.5 / state.RefS(i), d, 3e-5);
      if (f > 0.02) ++strong;
    }
    const auto wanted = std::count_if(reference.begin(), reference.end(), [](const auto& entry) {
      return entry.second.f > 0.02 && entry.second.d > 0.90015;
    });
    EXPECT_EQ(strong, wanted) << "reflections are missing";
  }
}

}  // namespace
}  // namespace zol
