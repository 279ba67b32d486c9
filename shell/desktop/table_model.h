// A list as a table of Qt: sorted and filtered by itself, on a copy of the lines, so that tens of thousands of rows are
// shown at once.
#pragma once

#include <string>
#include <vector>

#include <QAbstractTableModel>
#include <QStringList>

#include "shell/services/controls.h"
#include "shell/services/list_table.h"

namespace zol {

class TableModel : public QAbstractTableModel {
 public:
  TableModel(const ListBox& list, QObject* parent);

  /// Reads the lines anew, with the columns that are asked for.
  void read(const TableChoices& chosen);
  /// Columns are known by the names that are shown, and by the English ones.
  void set_filter(const QString& text);
  /// @param column  -1: in the order of the list
  void sort(int column, Qt::SortOrder order) override;
  /// Before the first reading.
  void sort_by(const QString& name, Qt::SortOrder order) {
    sorted_by_ = name.toStdString();
    order_ = order;
  }
  /// The column by which it is sorted, -1: none.
  [[nodiscard]] int sorted_by() const { return table_.column_named(sorted_by_); }
  [[nodiscard]] Qt::SortOrder order() const { return order_; }

  [[nodiscard]] QString name(int column) const;  ///< in English, as in files and copies
  [[nodiscard]] int column_named(const QString& name) const { return table_.column_named(name.toStdString()); }
  [[nodiscard]] QStringList heads() const;
  [[nodiscard]] int line_of(int row) const { return table_.line_of(shown_[static_cast<std::size_t>(row)]); }
  /// The row that shows a line of the list now, -1 when none does.
  [[nodiscard]] int row_of(int line) const;
  [[nodiscard]] std::string fault_of_filter() const { return table_.fault_of_filter(english_filter()); }
  [[nodiscard]] int all_rows() const { return table_.rows(); }
  /// Heads and these rows. @param between  see ListTable
  [[nodiscard]] std::string text(const std::vector<int>& rows, char between) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void arrange();
  [[nodiscard]] QString cell(int row, int column) const;
  [[nodiscard]] QVariant of_line(int line, int role) const;
  [[nodiscard]] std::string english_filter() const;

  const ListBox& list_;
  ListTable table_;
  std::vector<int> shown_;  ///< rows of the table
  QString filter_;
  std::string sorted_by_;  ///< name of a column
  Qt::SortOrder order_ = Qt::AscendingOrder;
  mutable int cut_row_ = -1;  ///< whose cells are known
  mutable ListCells cut_cells_;
};

}  // namespace zol
