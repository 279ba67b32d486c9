// The lines of a list as a table: rows and columns, with what was asked for beside them, sorted and filtered. It holds
// a copy of the lines (which costs nothing) and cuts a line into cells when they are looked at.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/shared_vector.h"
#include "shell/services/list_columns.h"

namespace zol {

/// What is asked for, by the captions of the choices.
using TableChoices = std::set<std::string>;

class ListTable {
 public:
  ListTable() = default;
  /// The columns are asked at once and not kept.
  ListTable(const ListColumns& declared, const SharedVector<std::string>& lines, const TableChoices& chosen);

  /// Captions of what can be asked for.
  [[nodiscard]] static std::vector<std::string> choices(const ListColumns& declared);

  [[nodiscard]] int columns() const { return static_cast<int>(heads_.size()); }
  [[nodiscard]] const ListColumn& column(int column) const { return heads_[static_cast<std::size_t>(column)].column; }
  [[nodiscard]] std::string head(int column) const;  ///< name and unit
  /// -1 when there is none. Where no column has the very name, small and capital letters are the same.
  [[nodiscard]] int column_named(std::string_view name) const;

  /// Rows from 0, in the order of the list.
  [[nodiscard]] int rows() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] int line_of(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  /// The row that shows a line of the list, -1 when none does.
  [[nodiscard]] int row_of(int line) const;
  [[nodiscard]] ListCells cells(int row) const;  ///< UTF-8

  /// Rows that a filter lets through, sorted by a column; -1: in the order of the list. Equal ones keep that order, and
  /// cells without a number stand at the end.
  [[nodiscard]] std::vector<int> arranged(int sorted_by, bool descending, std::string_view filter) const;

  /// Why a filter cannot let through what was meant, as the part of it that cannot be read; empty where it can.
  [[nodiscard]] std::string fault_of_filter(std::string_view filter) const;

  /// Heads and rows, UTF-8, a line each. @param between  ',' for CSV, where cells are quoted as that needs
  [[nodiscard]] std::string text(const std::vector<int>& rows, char between) const;

 private:
  struct Family {
    int number = 0;  ///< from 1, in the order of the list
    std::string name;
    int leader = 0;  ///< the line that stands for it
    bool led = false;
    int lines = 0;  ///< that belong to it
    std::vector<double> sums;
  };
  enum class From { List, Added, Family };
  struct Head {
    ListColumn column;
    From from = From::List;
    std::size_t added = 0;  ///< which of them
    std::size_t cell = 0;   ///< of that source
  };
  void find_lines(const ListColumns& declared);
  void find_families();
  void add_heads(const AddedColumns& added, std::size_t number);
  void add_family_heads();
  [[nodiscard]] const std::string& line(int line) const { return lines_[static_cast<std::size_t>(line)]; }
  [[nodiscard]] ListCells family_cells(int line) const;

  std::vector<ListColumn> read_;  ///< of a line
  std::vector<Head> heads_;
  SharedVector<std::string> lines_;
  std::vector<int> rows_;  ///< their lines, rising
  std::vector<AddedColumns> added_;
  std::optional<RowFamilies> families_;
  bool merged_ = false;
  std::vector<Family> all_families_;
  std::vector<int> family_of_line_;  ///< -1: none
};

}  // namespace zol
