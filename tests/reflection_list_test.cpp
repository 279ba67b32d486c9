#include "reflections/reflection_list.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <vector>

#include "core/available_memory.h"
#include "reflections/equivalents.h"
#include "tests/crystals.h"
#include "tests/lists.h"
#include "tests/test_files.h"

namespace zol {
namespace {

using Hkl = std::array<int, 3>;

// Generators on the indices (International Tables A 10.1.2): two-, three- and four-fold axes of each Laue class. In the
// hexagonal ones the three-fold takes hkl to kil, i = -(h + k).
constexpr auto centre = [](int h, int k, int l) { return Hkl{-h, -k, -l}; };
constexpr auto two_b = [](int h, int k, int l) { return Hkl{-h, k, -l}; };
constexpr auto two_c = [](int h, int k, int l) { return Hkl{-h, -k, l}; };
constexpr auto four_c = [](int h, int k, int l) { return Hkl{-k, h, l}; };
constexpr auto three_c = [](int h, int k, int l) { return Hkl{k, -h - k, l}; };
constexpr auto two_ab = [](int h, int k, int l) { return Hkl{k, h, -l}; };
constexpr auto three_111 = [](int h, int k, int l) { return Hkl{l, h, k}; };

TEST(Equivalents, AreTheOrbitOfTheLaueClass) {
  struct Row {
    int first, last;  ///< space group numbers
    std::size_t order;
    std::vector<Hkl (*)(int h, int k, int l)> generators;
  };
  for (const auto& row :
       {Row{1, 2, 2, {centre}}, Row{3, 15, 4, {centre, two_b}}, Row{16, 74, 8, {centre, two_b, two_c}},
        Row{75, 88, 8, {centre, four_c}}, Row{89, 142, 16, {centre, four_c, two_b}},
        Row{143, 148, 6, {centre, three_c}}, Row{149, 167, 12, {centre, three_c, two_ab}},
        Row{168, 176, 12, {centre, three_c, two_c}}, Row{177, 194, 24, {centre, three_c, two_c, two_ab}},
        Row{195, 206, 24, {centre, two_b, two_c, three_111}}, Row{207, 230, 48, {centre, four_c, two_b, three_111}}}) {
    std::set<Hkl> orbit;
    for (std::vector<Hkl> waiting{{1, 2, 5}}; !waiting.empty();) {
      const auto [h, k, l] = waiting.back();
      waiting.pop_back();
      if (!orbit.insert({h, k, l}).second) continue;
      for (const auto generator : row.generators) waiting.push_back(generator(h, k, l));
    }
    for (const int number : {row.first, row.last}) {
      std::set<Hkl> found;
      const auto triples = equivalent_indices(number, {1, 2, 5});
      for (const auto& [h, k, l] : triples) {
        found.insert({static_cast<int>(h), static_cast<int>(k), static_cast<int>(l)});
      }
      EXPECT_EQ(triples.size(), row.order) << number;
      EXPECT_EQ(found, orbit) << number;
    }
  }
}

TEST(FormWeight, IsTheOneOfTheLaueClass) {
  struct Row {
    int number;
    SingleTriple hkl;
    int weight;
  };
  for (const auto& [number, hkl, weight] : {
           Row{0, {1, 0, 0}, 1},   Row{2, {0, 0, 1}, 1},    Row{14, {1, 0, 2}, 2},    Row{14, {0, 1, 2}, 1},
           Row{62, {0, 0, 2}, 4},  Row{75, {0, 1, 3}, 4},   Row{88, {1, 0, 3}, 1},     // only h = 0 counts
           Row{88, {0, 0, 3}, 1},  Row{88, {1, 2, 0}, 2},   Row{88, {0, 0.5F, 3}, 1},  // 0.5 rounds to 0
           Row{136, {0, 0, 1}, 8}, Row{136, {1, -1, 3}, 2}, Row{148, {0, 0, 1}, 3},   Row{167, {0, 0, 1}, 6},
           Row{167, {1, 1, 0}, 1}, Row{186, {0, 0, 1}, 6},  Row{170, {1, 0, 0}, 2},   Row{205, {1, 1, 1}, 3},
           Row{205, {1, 1, 0}, 2}, Row{225, {1, 0, 0}, 8},  Row{225, {1, 1, -1}, 8},  Row{231, {1, 0, 0}, 1},
       }) {
    EXPECT_EQ(form_weight(number, hkl), weight) << number << ": " << hkl[0] << ' ' << hkl[1] << ' ' << hkl[2];
  }
}

TEST(Observed, GiveTheirWeightedValueToAllEquivalents) {
  CrystalState state = with_cell(cubic_cell(4));
  state.SGNumber = 225;
  using Card = std::array<Single, 4>;
  int r = 0;
  for (const auto& [h, k, l, intensity] : {Card{1, 1, 1, 100}, {2, 0, 0, 46}, {1.5F, 0, 0, 7}, {0, 0, 2, 1}}) {
    state.JcpdsCount = ++r;
    state.JcpdsH(r) = h;
    state.JcpdsK(r) = k;
    state.JcpdsL(r) = l;
    state.JcpdsI(r) = intensity;
  }
  const ObservedReflections observed(state);
  EXPECT_EQ(observed.JcpdsFactor(-1, 1, -1), 800);
  EXPECT_EQ(observed.JcpdsFactor(0, -2, 0), 8) << "the last row wins";
  EXPECT_EQ(observed.JcpdsFactor(2, 2, 0), std::nullopt);
  EXPECT_EQ(observed.JcpdsFactor(1, 0, 0), std::nullopt) << "a half index never matches";
  state.SGNumber = 240;  // has no table of equivalents
  EXPECT_EQ(ObservedReflections(state).JcpdsFactor(1, 1, 1), std::nullopt);
}

/// A cubic crystal of 4 angstroms.
CrystalState cubic(const char* letter, Single dmin) {
  CrystalState state = with_cell(cubic_cell(4));
  state.LatticeLetter = letter;
  state.Dmin = dmin;
  return state;
}

bool even(int n) { return (n & 1) == 0; }
bool third(int n) { return std::set{-12, -9, -6, -3, 0, 3, 6, 9, 12}.contains(n); }

constexpr std::array<bool, 3> all{true, true, true};

EnumerationSettings only(bool EnumerationSettings::*rule) {
  EnumerationSettings settings{all, {}};
  settings.*rule = true;
  return settings;
}

// The conditions of the lattices as the International Tables A 2.2.13 state them, not as remainders. Next to them is
// the sphere of the cell to d > 1, cut out of all indices to 6. The arrays have room for indices to 7, about twice the
// sphere, divided by the centring.
TEST(Enumeration, FollowsCentringRulesSignsAndFixedIndices) {
  using Settings = EnumerationSettings;
  struct Row {
    const char* letter;
    int centring;
    Settings settings;
    bool (*allowed)(int h, int k, int l);
  };
  const std::vector<Row> rows{
      {"", 1, {all, {}}, [](int, int, int) { return true; }},
      {"A", 2, {all, {}}, [](int, int k, int l) { return even(k + l); }},
      {"B", 2, {all, {}}, [](int h, int, int l) { return even(h + l); }},
      {"C", 2, {all, {}}, [](int h, int k, int) { return even(h + k); }},
      {"I", 2, {all, {}}, [](int h, int k, int l) { return even(h + k + l); }},
      {"F", 4, {all, {}}, [](int h, int k, int l) { return even(h) == even(k) && even(k) == even(l); }},
      {"R", 3, {all, {}}, [](int h, int k, int l) { return third(-h + k + l); }},
      {"P", 1, only(&Settings::k_mod_3_zero), [](int, int k, int) { return third(k); }},
      {"P", 1, only(&Settings::h_minus_k_mod_3_zero), [](int h, int k, int) { return third(h - k); }},
      {"P", 1, only(&Settings::k_mod_3_not_zero), [](int, int k, int) { return !third(k); }},
      {"P", 1, only(&Settings::h_minus_k_mod_3_not_zero), [](int h, int k, int) { return !third(h - k); }},
      {"P", 1, only(&Settings::h_mod_3_zero), [](int h, int, int) { return third(h); }},
      {"P", 1, only(&Settings::h_mod_3_not_zero), [](int h, int, int) { return !third(h); }},
      {"P", 1, {{}, {}}, [](int h, int k, int l) { return h >= 0 && k >= 0 && l >= 0; }},
      {"P", 1, {{false, true, false}, {-2, {}, 1}}, [](int h, int, int l) { return h == -2 && l == 1; }},
      {"P", 1, {all, {9, {}, {}}}, [](int, int, int) { return false; }},  // beyond the sphere
  };
  for (const auto& row : rows) {
    SCOPED_TRACE("row " + std::to_string(&row - rows.data()));
    auto state = cubic(row.letter, 1.0001F);
    enumerate_reflections(state, row.settings);
    std::vector<Hkl> listed;
    for (int n = 1; n <= state.RefCount.value(); ++n) {
      listed.push_back({state.RefH(n).value(), state.RefK(n).value(), state.RefL(n).value()});
    }
    std::vector<Hkl> expected;  // h outermost, l innermost, all rising
    for (int n = 0; n < 13 * 13 * 13; ++n) {
      const Hkl hkl{n / 169 - 6, n / 13 % 13 - 6, n % 13 - 6};
      const int square = hkl[0] * hkl[0] + hkl[1] * hkl[1] + hkl[2] * hkl[2];
      if (square > 0 && square < 16 && row.allowed(hkl[0], hkl[1], hkl[2])) expected.push_back(hkl);
    }
    EXPECT_EQ(listed, expected);
    EXPECT_EQ(state.RefS.upper(), 15 * 15 * 15 / row.centring);
    EXPECT_EQ(state.BandHKL.upper_row(), 15 * 15 * 15 / row.centring);
    EXPECT_EQ(state.BandHKL.upper_column(), 2);
  }
}

TEST(Enumeration, LimitsTheBandsOfAKikuchiPattern) {
  auto state = cubic("P", 1.0001F);
  for (const int wanted : {0, 5, 30000}) {  // 0 means all
    state.KikuchiRefLimit = wanted;
    enumerate_reflections(state, {});
    EXPECT_EQ(state.KikuchiRefLimit, wanted == 5 ? 5 : state.RefCount.value());
  }
}

TEST(Enumeration, FailsWithoutACellAndBeyond16Bits) {
  CrystalState state;
  state.Dmin = 1;
  EXPECT_TRUE(fails_with("division by zero: a* is 0", [&] { enumerate_reflections(state, {}); }));
  auto negative = cubic("P", 1);
  negative.CellA = -4;
  ASSERT_TRUE(calc_cell(negative));
  EXPECT_EQ(failure_of([&] { enumerate_reflections(negative, {}); }),
            "the reflection list cannot have -4335 entries: cell constants give a* = -.25 (a is -4 angstroms, alpha 90 "
            "degrees)");
  auto fine = cubic("P", 1e-5F);
  EXPECT_TRUE(fails_with("does not fit an Integer", [&] { enumerate_reflections(fine, {}); }));
  fine.Dmin = 0.014F;  // 571 to each side, 32 bytes each: 48 GB, of which an array takes 3 or 6
  if (available_memory().value_or(0) < 40ULL << 30U) {
    EXPECT_TRUE(fails_with("not enough memory for a list of up to 1493271168 reflections: it takes 45571 MB", [&] {
      enumerate_reflections(fine, {{true, true, true}, {}});
    }));
  }
  struct Row {
    char letter;
    std::array<int, 3> hkl;
    const char* sum;
  };
  for (const auto& row : {Row{'A', {0, 30000, 30000}, "60000"}, Row{'B', {30000, 0, 30000}, "60000"},
                          Row{'C', {30000, 30000, 0}, "60000"}, Row{'I', {20000, 10000, 5000}, "35000"},
                          Row{'F', {1, 20000, 20000}, "40000"}, Row{'F', {20000, 20000, 0}, "40000"},
                          Row{'F', {20000, 1, 20000}, "40000"}, Row{'R', {-32768, 0, 0}, "32768"},
                          Row{'P', {30000, -30000, 0}, "60000"}}) {  // its sum is the difference in (h - k) mod 3
    auto cell = cubic("P", 1);
    cell.LatticeLetter = row.letter;
    EnumerationSettings settings{{}, {row.hkl[0], row.hkl[1], row.hkl[2]}};
    settings.h_minus_k_mod_3_zero = row.letter == 'P';
    EXPECT_TRUE(fails_with(std::string("overflow: ") + row.sum + " does not fit an Integer",
                           [&] { enumerate_reflections(cell, settings); }));
  }
}

TEST(List, IgnoresObservedReflectionsBesideAtoms) {
  auto state = cubic("P", 1.9F);
  state.SGNumber = 225;
  state.JcpdsCount = 1;
  state.JcpdsH(1) = 1;
  state.JcpdsI(1) = 3e38F;  // eight times as much is no Single
  enumerate_reflections(state, {});
  EXPECT_TRUE(fails_with("Single", [&] { (void)compute_list(state, {true, false}); }));
  state.NAtom = 1;
  EXPECT_EQ(compute_list(state, {true, false}).size(), 10U);
  state.NAtom = 0;
  state.RefCount = 0;
  EXPECT_TRUE(compute_list(state, {true, false}).empty());
}

TEST(List, LeavesOutAnglesThatDoNotExist) {
  auto state = cubic("P", 1.9F);
  state.NAtom = 1;
  state.WaveLength = 5;
  enumerate_reflections(state, {});
  sort_by_s(state);
  const auto lines = compute_list(state, {true, false});
  ASSERT_EQ(lines.size(), 10U);
  EXPECT_EQ(lines.front().substr(0, 37), "   0   0   1   0.125   4.0000  77.364");
  EXPECT_EQ(lines.back().substr(0, 37), "   2   0   0   0.250   2.0000        ") << "s * wavelength is 1.25";
  EXPECT_EQ(state.RefTwoTheta(10), 0);
  state.WaveLength = 0;
  EXPECT_EQ(compute_list(state, {true, false}).front().substr(0, 37), "   0   0   1   0.125   4.0000        ");
  state.RefS(1) = 0.0004F;
  EXPECT_EQ(compute_list(state, {true, false}).front().substr(0, 37), "   0   0   1   0.0001250.0000        ");
}

}  // namespace
}  // namespace zol
