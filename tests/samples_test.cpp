// The crystals under data/ZOLDATA, held against formulas and bond lengths.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>
#include <sstream>
#include <string>

#include "core/crystal_file.h"
#include "core/read_file.h"
#include "core/record_reader.h"
#include "core/space_group.h"
#include "core/unit_cell.h"
#include "tests/cell_metric.h"

namespace zol {
namespace {

const std::string crystal_folder = ZOL_SOURCE_DIR "/data/ZOLDATA/";

/// Distance in Å of the two atoms of the crystal that lie closest.
double shortest_distance(CrystalState& crystal) {
  const CartesianCell cell(crystal);
  double shortest = 100.0;
  for (int m = 1; m <= crystal.NCell.value(); ++m) {
    for (int n = 1; n <= crystal.NCell.value(); ++n) {
      for (int shift = 0; shift < 27; ++shift) {
        const std::array cell_of_n{shift % 3 - 1, shift / 3 % 3 - 1, shift / 9 - 1};
        Cartesian v{};
        for (int i = 1; i <= 3; ++i) {
          const auto at = static_cast<std::size_t>(i - 1);
          v[at] = double{crystal.UCPos(n, i)} + cell_of_n[at] - double{crystal.UCPos(m, i)};
        }
        const auto bond = cell.direction(v);
        const double d = std::sqrt(dot(bond, bond));
        if (d > 0.001) shortest = std::min(shortest, d);  // atoms that share a site lie at 0
      }
    }
  }
  return shortest;
}

// Atoms in the cell by element key, occupancies counted, and the shortest bond, from the source of the crystal or a
// calculation apart from the program.
TEST(Samples, HaveTheFormulaAndTheBondsOfTheirSubstance) {
  std::set<std::string> known{"CopperLines"};  // has no atoms
  const std::string factors = "\n" + read_file(ZOL_SOURCE_DIR "/data/ZOL/Asf/ASF-X.csv");
  RecordReader reference(ZOL_SOURCE_DIR "/tests/reference/samples.csv");
  for (int column = 0; column < 3; ++column) (void)reference.next_string("heading");
  while (!reference.at_end()) {
    const std::string name = reference.next_string("crystal");
    SCOPED_TRACE(name);
    known.insert(name);
    CrystalState crystal;
    CrystalFileReader file(crystal_folder + name + ".cry");
    file.read_cell(crystal);
    ASSERT_TRUE(file.read_contents(crystal));
    const auto group = read_space_group(file_of(crystal.SGNumber.value()));
    EXPECT_EQ(crystal.LatticeLetter, group.symbol.substr(0, 1));
    EXPECT_LT(metric_change(group, crystal), 1e-4);
    for (int i = 1; i <= crystal.NAtom.value(); ++i) EXPECT_GT(crystal.AtomB(i), 0.0F);

    QuietTask task;
    commit(crystal, expand_unit_cell(crystal, group, task));
    EXPECT_NEAR(shortest_distance(crystal), double{reference.next_single("shortest")}, 0.002);
    std::map<std::string, double> contents;
    for (int m = 1; m <= crystal.NCell.value(); ++m) contents[crystal.UCElement(m)] += double{crystal.UCOcc(m)};
    std::istringstream expected(reference.next_string("contents"));
    std::string element;
    for (double count = 0.0; expected >> element >> count; contents.erase(element)) {
      EXPECT_NEAR(contents[element], count, 1e-3) << element;
      EXPECT_NE(factors.find("\n\"" + element + "\","), std::string::npos) << "no scattering factor of " << element;
    }
    EXPECT_TRUE(contents.empty()) << "has " << contents.begin()->first;
  }
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(crystal_folder)) {
    EXPECT_EQ(entry.path().extension(), ".cry");
    found.insert(entry.path().stem().string());
  }
  EXPECT_EQ(found, known);
}

}  // namespace
}  // namespace zol
