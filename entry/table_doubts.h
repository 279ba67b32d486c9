// What in the texts of the two tables will hardly be meant: for marks beside the cells. Nothing is refused.
#pragma once

#include <functional>
#include <string>

namespace zol {

/// The texts of a table: rows and columns from 1.
struct TableTexts {
  std::function<const std::string&(int row, int column)> text;
  int rows = 0;
};

/// Columns: site name, element, occupancy, x, y, z, B. Asked for are an element without scattering factors, what is no
/// number, coordinates outside -1 to 2, occupancies outside 0 to 1, a B below 0, sites in one place, and rows after
/// the end of the table.
/// @param scatters  whether there are scattering factors of an element
/// @returns why the cell is doubtful; empty: it is not
[[nodiscard]] std::string site_doubt(const TableTexts& table, const std::function<bool(const std::string&)>& scatters,
                                     int row, int column);

/// Columns: intensity, h, k, l. Asked for are texts that are no numbers, indices that are not whole, an intensity below
/// 0, the same indices twice, and rows after the end of the table.
[[nodiscard]] std::string line_doubt(const TableTexts& table, int row, int column);

}  // namespace zol
