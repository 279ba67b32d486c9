// Lines cut into cells, sorted, filtered, merged and written.
#include "shell/services/list_table.h"

#include <gtest/gtest.h>

namespace zol {
namespace {

constexpr auto word = ListColumn::Word;

SharedVector<std::string> lines(const std::vector<std::string>& texts) {
  SharedVector<std::string> all;
  for (const auto& text : texts) all.push_back(text);
  return all;
}

TEST(ListCells, AreCutAsTheColumnsSay) {
  const std::vector<ListColumn> fixed{{"n", "", 3}, {"", "", 2}, {"name", "", 6, word}, {"x", "", 7}};
  const std::vector<ListColumn> words{
      {"a", "", 0, ListColumn::Number, '/'}, {"b"}, {"rest", "", ListColumn::to_the_end, word}};
  struct Row {
    const std::vector<ListColumn>& columns;
    const char* line;
    ListCells cells;
  };
  for (const auto& row : {Row{fixed, " 12: O 1   - 12.30", {"12", "O 1", "-12.30"}},
                          {fixed, "  1", {"1", "", ""}},
                          {fixed, "", {"", "", ""}},
                          {words, "   7/9    0.25 two words ", {"7", "9", "0.25 two words"}},
                          {words, "7", {"7", "", ""}}}) {
    EXPECT_EQ(cells_of_line(row.line, row.columns), row.cells) << row.line;
  }
}

/// Number, length, name; families by the name's first letter, led by the longest name.
const ListColumns& declared() {
  static const ListColumns columns{
      "Things", always({{"n"}, {"d", "Å"}, {"name", "", ListColumn::to_the_end, word}}),
      [](std::string_view line) { return !line.starts_with("#"); },
      [] {
        return std::vector{
            AddedColumns{"Twice",
                         {{"2n"}},
                         [](const ListCells& row) { return ListCells{std::to_string(2 * std::stoi(row[0]))}; },
                         0}};
      },
      [] {
        return std::vector{RowFamilies{"Families",
                                       "Merge",
                                       {"letter", "", 0, word},
                                       [](const ListCells& row) {
                                         return RowFamily{row[2].substr(0, 1), row[2].size() > 1};
                                       },
                                       {1}}};
      }};
  return columns;
}

const SharedVector<std::string> things =
    lines({"# head", "1 10.5 a", "2 9.5 \"b,\"", "3 x e\xE9", "4 -.5 ab", "5 9.5 c"});

TEST(ListTables, AreSortedFilteredAndWritten) {
  const ListTable table(declared(), things, {});
  struct Row {
    int column;
    bool descending;
    const char* filter;
    std::vector<int> rows;
  };
  for (const auto& row : {Row{-1, false, "", {0, 1, 2, 3, 4}},
                          {1, false, "", {3, 1, 4, 0, 2}},  // no number stands at the end, both ways
                          {1, true, "", {0, 1, 4, 3, 2}},
                          {2, true, "", {2, 4, 3, 0, 1}},
                          {-1, false, "D>0 a", {0}},
                          {-1, false, "d<=9,5 n<>5", {1, 3}},
                          {-1, false, "name=AB", {3}},
                          {-1, false, "d>", {0, 1, 2, 3, 4}},
                          {-1, false, "other=1", {}}}) {
    EXPECT_EQ(table.arranged(row.column, row.descending, row.filter), row.rows) << row.filter << row.column;
  }
  EXPECT_EQ(table.text({1, 2}, ','), "n,d (Å),name\n2,9.5,\"\"\"b,\"\"\"\n3,x,eé\n");
  EXPECT_EQ(table.text({3}, '\t'), "n\td (Å)\tname\n4\t-.5\tab\n");
  const ListTable zeros(declared(), lines({"1 -0.00 a", "-0 - -0", "2 -0.01 b"}), {});
  EXPECT_EQ(zeros.text({0, 1, 2}, ','), "n,d (Å),name\n1,0.00,a\n0,-,-0\n2,-0.01,b\n");
  for (const auto& [filter, fault] : {std::pair{"d>1,5 a", ""},
                                      {"d>", ""},
                                      {"name=x other", ""},
                                      {"n=1 d<abc", "d<abc: \"abc\" is not a number"},
                                      {"other=1", "other=1: there is no column \"other\""},
                                      {"=1", ""}}) {
    EXPECT_EQ(table.fault_of_filter(filter), fault);
  }
  EXPECT_EQ(table.line_of(2), 3);
  EXPECT_EQ(table.row_of(0), -1);
  EXPECT_EQ(table.row_of(5), 4);
}

TEST(ListTables, AddColumnsAndMergeFamilies) {
  EXPECT_EQ(ListTable::choices(declared()), (std::vector<std::string>{"Twice", "Families", "Merge"}));
  const ListTable added(declared(), things, {"Twice", "Families"});
  EXPECT_EQ(added.text({0, 3}, ','), "n,2n,d (Å),name,family,letter\n1,2,10.5,a,1,a\n4,8,-.5,ab,1,a\n");
  const ListTable merged(declared(), things, {"Merge"});
  EXPECT_EQ(merged.rows(), 4);
  EXPECT_EQ(merged.text({2}, ','), "n,d (Å),name,family,letter,listed,sum d (Å)\n4,-.5,ab,1,a,2,10\n");
  EXPECT_EQ(merged.row_of(1), 2) << "the row that stands for it";
}

}  // namespace
}  // namespace zol
