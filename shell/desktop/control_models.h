// Lists and tables of the program as Qt models: they read the control itself, so that thousands of lines cost nothing.
#pragma once

#include <QAbstractListModel>
#include <QAbstractTableModel>
#include <QColor>

#include "shell/controls.h"
#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/qt_text.h"

namespace zol {

class ListModel : public QAbstractListModel {
 public:
  ListModel(ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}

  void refresh() {
    beginResetModel();
    shown_ = list_.list_count();
    endResetModel();
  }
  [[nodiscard]] int rowCount(const QModelIndex& /*parent*/ = {}) const override { return shown_; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (index.row() >= list_.list_count()) return {};
    if (role == Qt::DisplayRole) return latin1_to_qt(list_.items()[static_cast<std::size_t>(index.row())]);
    if (role == Qt::ForegroundRole && list_.fore_colour() != 0) return to_qt(list_.fore_colour());
    return {};
  }

 private:
  ListBox& list_;
  int shown_ = 0;
};

/// Row 0 and column 0 of the grid are the headers of the model, so that they stay in sight.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

  void refresh() {
    beginResetModel();
    endResetModel();
  }
  [[nodiscard]] int rowCount(const QModelIndex& /*parent*/ = {}) const override { return grid_.rows() - 1; }
  [[nodiscard]] int columnCount(const QModelIndex& /*parent*/ = {}) const override { return grid_.columns() - 1; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    return latin1_to_qt(grid_.text(index.row() + 1, index.column() + 1));
  }
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DisplayRole) return {};
    return latin1_to_qt(orientation == Qt::Horizontal ? grid_.text(0, section + 1) : grid_.text(section + 1, 0))
        .trimmed();
  }

 private:
  Grid& grid_;
};

}  // namespace zol
