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
#include "tools/data_check/cell_metric.h"

namespace zol {
namespace {

const std::string crystal_folder = ZOL_SOURCE_DIR "/data/ZOLDATA/";

/// Distance in Å of the two atoms of the crystal that lie closest.
Single shortest_distance(const CrystalState& crystal) {
  Single shortest = 100;
  for (int m = 1; m <= crystal.NCell.value(); ++m) {
    for (int n = 1; n <= crystal.NCell.value(); ++n) {
      const auto step = [&crystal, m, n](int axis, int cell) {
        return to_single(double{crystal.UCPos(n, axis)} + cell - double{crystal.UCPos(m, axis)});
      };
      for (int cell = 0; cell < 27; ++cell) {
        const Single d = DHKLT(crystal, step(1, cell % 3 - 1), step(2, cell / 3 % 3 - 1), step(3, cell / 9 - 1));
        if (d > 0.001F) shortest = std::min(shortest, d);  // atoms that share a site lie at 0
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
    ASSERT_TRUE(calc_cell(crystal));
    const auto group = read_space_group(file_of(crystal.SGNumber.value()));
    EXPECT_EQ(crystal.LatticeLetter, group.symbol.substr(0, 1));
    EXPECT_LT(metric_change(group, crystal), 1e-4);
    for (int i = 1; i <= crystal.NAtom.value(); ++i) EXPECT_GT(crystal.AtomB(i), 0.0F);

    QuietTask task;
    commit(crystal, expand_unit_cell(crystal, group, task));
    EXPECT_NEAR(shortest_distance(crystal), reference.next_single("shortest"), 0.002);
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
