#include "entry/table_doubts.h"

#include <gtest/gtest.h>

#include <vector>

namespace zol {
namespace {

using Rows = std::vector<std::vector<std::string>>;

TableTexts table_of(const Rows& rows) {
  return {[&rows](int row, int column) -> const std::string& {
            return rows.at(static_cast<std::size_t>(row - 1)).at(static_cast<std::size_t>(column - 1));
          },
          static_cast<int>(rows.size())};
}

struct Doubted {
  int row, column;
  const char* why;
};

/// All that is doubted, in the order of reading, and no more.
void expect_doubts(const Rows& rows, const std::vector<Doubted>& wanted,
                   const std::function<std::string(const TableTexts&, int row, int column)>& doubt) {
  std::string found;
  std::string expected;
  const auto line = [](int row, int column, const std::string& why) {
    return std::to_string(row) + "," + std::to_string(column) + ": " + why + "\n";
  };
  for (const auto& [row, column, why] : wanted) expected += line(row, column, why);
  for (int row = 1; row <= static_cast<int>(rows.size()); ++row) {
    for (int column = 1; column <= static_cast<int>(rows.front().size()); ++column) {
      if (const auto why = doubt(table_of(rows), row, column); !why.empty()) found += line(row, column, why);
    }
  }
  EXPECT_EQ(found, expected);
}

TEST(SiteTable, MarksWhatWillHardlyBeMeant) {
  const auto scatters = [](const std::string& element) { return element == "Fe" || element == "O"; };
  const Rows rows{{"Fe1", "Fe", "1", "0", "0", "0", ".5"},
                  {"Fe2", "Fe", ".5", "-1", "2", "1", "1"},
                  {"O", "o", "", "2.1", "-1.01", "1/3", "-.1"},
                  {"O1", "", "1.2", "0.5(3)", " .5 ", "x", ""},
                  {"Fe1", "Fe", "0", "1.00004", "0", "-1", "1 2"},
                  {"", "Fe", "1", "", "", "", ""},
                  {"O9", "O", "1", "0", "", "", ""}};
  const auto end = "not taken: the empty first cell of row 6 ends the table";
  expect_doubts(rows,
                {{1, 1, "the same site as row 5, both count as one"},
                 {2, 1, "in the place of row 1, together with an occupancy of 1.5"},
                 {3, 2, "no scattering factors for \"o\": the atom scatters nothing"},
                 {3, 3, "empty: an occupancy of 0, the atom scatters nothing"},
                 {3, 4, "outside -1 to 2"},
                 {3, 5, "outside -1 to 2"},
                 {3, 6, "\"1/3\" is not a number, it counts as 1"},
                 {3, 7, "below 0: the atom would scatter more at higher angles"},
                 {4, 2, "no element: the atom scatters nothing"},
                 {4, 3, "outside 0 to 1"},
                 {4, 4, "\"0.5(3)\" is not a number, it counts as 0.5"},
                 {4, 6, "\"x\" is not a number, it counts as 0"},
                 {5, 1, "the same site as row 1, both count as one"},
                 {5, 7, "\"1 2\" is not a number, it counts as 12"},
                 {6, 2, end},
                 {6, 3, end},
                 {7, 1, end},
                 {7, 2, end},
                 {7, 3, end},
                 {7, 4, end}},
                [&](const TableTexts& table, int row, int column) { return site_doubt(table, scatters, row, column); });
}

TEST(LineTable, MarksWhatWillHardlyBeMeant) {
  expect_doubts({{"100", "1", "0", "0"}, {"-1", "1.5", "0", "l"}, {"0", "1", "0", ""}, {"", "1", "", ""}},
                {{1, 1, "the same indices as row 3"},
                 {2, 1, "below 0"},
                 {2, 2, "not whole: no reflection has this index"},
                 {2, 4, "\"l\" is not a number, it counts as 0"},
                 {3, 1, "the same indices as row 1"},
                 {4, 2, "not taken: the empty first cell of row 4 ends the table"}},
                line_doubt);
}

}  // namespace
}  // namespace zol
