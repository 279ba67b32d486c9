// What is typed to see only some rows of a table. Parts stand between blanks and all have to hold: "h=1", "d>1.5",
// "element<>O" compare a column, anything else has to be found in a cell.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/services/list_columns.h"

namespace zol {

class ListTable;

class TableFilter {
 public:
  /// @param text  UTF-8; small and capital letters are the same, and so are a decimal comma and a point
  TableFilter(std::string_view text, const ListTable& table);

  /// The first part that cannot be read, and why; empty where all can.
  [[nodiscard]] const std::string& fault() const { return fault_; }
  [[nodiscard]] bool lets_all() const { return parts_.empty(); }
  /// @param cells  UTF-8, of all columns of the table
  [[nodiscard]] bool lets(const ListCells& cells) const;

 private:
  struct Part {
    int column = -1;        ///< -1: any cell
    std::string_view sign;  ///< of the comparison
    std::string text;
    std::optional<double> number = {};
  };
  [[nodiscard]] static Part part_of(std::string_view word, const ListTable& table);
  [[nodiscard]] static std::string fault_of(std::string_view word, const Part& part, const ListTable& table);
  [[nodiscard]] static bool holds(const Part& part, const ListCells& cells);

  std::vector<Part> parts_;
  std::string fault_;
};

/// Latin letters made small.
[[nodiscard]] std::string small_letters(std::string_view text);

}  // namespace zol
