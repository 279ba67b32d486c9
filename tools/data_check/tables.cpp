// Scattering tables and the form of all files under data/, held against electrons, wave functions and another fit.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <regex>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/read_file.h"
#include "core/record_reader.h"
#include "tests/cell_metric.h"

namespace zol {
namespace {

const std::string data_root = ZOL_SOURCE_DIR "/data/ZOL/";
const std::string crystal_folder = ZOL_SOURCE_DIR "/data/ZOLDATA/";

constexpr std::string_view element_symbols =
    "H He Li Be B C N O F Ne Na Mg Al Si P S Cl Ar K Ca Sc Ti V Cr Mn Fe Co Ni Cu Zn Ga Ge As Se Br Kr Rb Sr Y Zr Nb "
    "Mo Tc Ru Rh Pd Ag Cd In Sn Sb Te I Xe Cs Ba La Ce Pr Nd Pm Sm Eu Gd Tb Dy Ho Er Tm Yb Lu Hf Ta W Re Os Ir Pt Au "
    "Hg Tl Pb Bi Po At Rn Fr Ra Ac Th Pa U Np Pu Am Cm Bk Cf";

struct FactorRow {
  std::string key;
  std::array<double, 9> coefficients{};  // a1, b1, ... a4, b4, c
  int z = 0;

  [[nodiscard]] double factor(double s) const {
    double sum = coefficients[8];
    for (std::size_t i = 0; i < 8; i += 2) sum += coefficients[i] * std::exp(-coefficients[i + 1] * s * s);
    return sum;
  }
};

std::vector<FactorRow> read_factors(const std::string& name) {
  std::vector<FactorRow> rows;
  RecordReader file(data_root + "Asf/" + name);
  while (!file.at_end()) {
    FactorRow row;
    row.key = file.next_string("key");
    for (auto& coefficient : row.coefficients) coefficient = double{file.next_single("coefficient")};
    row.z = file.next_integer("atomic number").value();
    rows.push_back(row);
  }
  return rows;
}

const FactorRow& row_of(const std::vector<FactorRow>& rows, std::string_view key) {
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const FactorRow& row) { return row.key == key; });
  if (found == rows.end()) throw std::out_of_range("no row " + std::string(key));
  return *found;
}

/// Charge of a key such as "Fe3+" or "O2-".
int charge_of(const std::string& key) {
  if (key.back() == '+') return key[key.size() - 2] - '0';
  if (key.back() == '-') return '0' - key[key.size() - 2];
  return 0;
}

TEST(ScatteringTables, HoldEveryElementOnceInOrder) {
  std::istringstream words{std::string(element_symbols)};
  const std::vector<std::string> symbols(std::istream_iterator<std::string>(words), {});
  for (const char* name : {"ASF-X.csv", "ASF-E.csv"}) {
    std::set<std::string> keys;
    std::vector<std::string> neutral;
    for (const auto& row : read_factors(name)) {
      EXPECT_TRUE(keys.insert(row.key).second) << row.key << " stands twice in " << name;
      const auto& symbol = symbols.at(static_cast<std::size_t>(row.z - 1));
      EXPECT_TRUE(row.key.starts_with(symbol)) << row.key << " has atomic number " << row.z;
      if (row.key == symbol) neutral.push_back(symbol);
    }
    EXPECT_EQ(neutral, symbols) << name;
  }
}

// The second is another fit to the same wave functions, with five Gaussians: Waasmaier & Kirfel, Acta Cryst. A51 (1995)
// 416, as cctbx has it. O2- is left out: the two take different wave functions for it.
TEST(ScatteringTables, XrayFactorsStartAtTheNumberOfElectronsAndAgreeWithAnotherFit) {
  const auto rows = read_factors("ASF-X.csv");
  EXPECT_EQ(rows.size(), 213U);
  for (const auto& row : rows) {
    const int electrons = row.z - charge_of(row.key);
    // The fits of the source miss it by up to 0.058 (Tl), those of the light ones by 0.008 (O1-).
    EXPECT_NEAR(row.factor(0.0), electrons, electrons <= 10 ? 0.01 : 0.06) << row.key;
    EXPECT_LT(row.factor(0.5), row.factor(0.1)) << row.key;
  }
  struct Row {
    const char* key;
    std::array<double, 4> factors;  // at s = 0.1, 0.3, 0.5, 1.2
  };
  for (const auto& [key, factors] :
       {Row{"C", {5.110, 2.497, 1.683, 0.913}}, Row{"Cval", {5.074, 2.495, 1.711, 0.894}},
        Row{"O", {7.245, 4.089, 2.338, 1.221}}, Row{"O1-", {7.837, 4.068, 2.315, 1.219}},
        Row{"Na1+", {9.546, 6.894, 4.290, 1.523}}, Row{"Si4+", {9.790, 8.327, 6.258, 2.063}},
        Row{"Cl1-", {15.688, 9.526, 7.310, 3.073}}, Row{"Fe", {23.679, 16.742, 11.508, 5.777}},
        Row{"Fe3+", {22.079, 16.726, 11.533, 5.777}}, Row{"Au", {75.170, 59.417, 46.892, 23.746}},
        Row{"U", {86.125, 68.594, 55.425, 30.392}}}) {
    const auto& row = row_of(rows, key);
    constexpr std::array s{0.1, 0.3, 0.5, 1.2};
    for (std::size_t i = 0; i < s.size(); ++i) {
      EXPECT_NEAR(row.factor(s[i]), factors[i], 0.04) << key << " at s = " << s[i];  // what the two fits differ by
    }
  }
}

// International Tables C, table 4.3.1.1: factors in Å at s = 0.
TEST(ScatteringTables, ElectronFactorsFollowTheWaveFunctions) {
  struct Row {
    const char* key;
    double factor;
  };
  const auto rows = read_factors("ASF-E.csv");
  EXPECT_EQ(rows.size(), 98U);
  for (const auto& [key, factor] :
       {Row{"H", 0.529}, Row{"C", 2.509}, Row{"O", 1.983}, Row{"Si", 5.828}, Row{"Fe", 7.165}, Row{"Au", 10.573}}) {
    EXPECT_NEAR(row_of(rows, key).factor(0.0), factor, 0.02 * factor) << key;
  }
  for (const auto& row : rows) EXPECT_EQ(row.coefficients[8], 0.0) << row.key;
}

TEST(CorrectorFile, MovesNoneOfThe512Rows) {
  RecordReader file(data_root + "Corrector_Standard");
  for (int y = 0; y < 512; ++y) {
    EXPECT_EQ(file.next_integer("row"), y);
    EXPECT_EQ(file.next_integer("shift"), 0);
  }
  EXPECT_TRUE(file.at_end());
}

// Strings in quotes and numbers in plain decimals: no zero before the point, no exponent, no blank; CR LF line ends.
TEST(DataFiles, StandInTheFormThatTheProgramWrites) {
  const std::regex form(R"re((("[^"]*"|-?([1-9]\d*(\.\d+)?|\.\d+|0))(,|\r$))+)re");
  int files = 0;
  for (const auto& folder : {data_root, crystal_folder}) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      if (!entry.is_regular_file()) continue;
      ++files;
      const std::string text = read_file(entry.path().string());
      ASSERT_TRUE(text.ends_with("\r\n")) << entry.path();
      std::istringstream lines(text);
      for (std::string line; std::getline(lines, line);) {
        ASSERT_TRUE(std::regex_match(line, form)) << entry.path() << ": " << line;
      }
    }
  }
  EXPECT_EQ(files, all_groups + 2 + 2 + 31) << "space groups, tables, settings, crystals";
}

}  // namespace
}  // namespace zol
