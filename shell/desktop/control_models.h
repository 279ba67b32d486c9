// Lists and tables of the program as Qt models: they read the control itself, so that thousands of lines cost nothing.
#pragma once

#include <algorithm>
#include <string>

#include <QAbstractListModel>
#include <QAbstractTableModel>
#include <QColor>
#include <QFont>
#include <QIcon>

#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/controls.h"

namespace zol {

class ListModel : public QAbstractListModel {
 public:
  /// @param align_first_word  lines that start with a word are pushed right so that those words end at one place
  /// @param font  of the view
  ListModel(ListBox& list, bool align_first_word, const QFont& font, QObject* parent)
      : QAbstractListModel(parent), list_(list), align_first_word_(align_first_word), font_(font) {}

  void refresh() {
    beginResetModel();
    shown_ = list_.list_count();
    widest_word_ = 0;
    if (align_first_word_) {
      for (const auto& line : list_.items()) widest_word_ = std::max(widest_word_, first_word(line));
    }
    endResetModel();
  }
  [[nodiscard]] int rowCount(const QModelIndex& /*parent*/ = {}) const override { return shown_; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (index.row() >= list_.list_count()) return {};
    if (role == Qt::DisplayRole) {
      const auto& line = list_.items()[static_cast<std::size_t>(index.row())];
      const std::size_t word = first_word(line);
      return latin1_to_qt(word == 0 || word >= widest_word_ ? line : std::string(widest_word_ - word, ' ') + line);
    }
    // A line that should not be picked leans, and says why.
    if (role == Qt::FontRole || role == Qt::ToolTipRole) {
      const std::string reason = list_.warn_row ? list_.warn_row(index.row()) : "";
      if (reason.empty()) return {};
      if (role == Qt::ToolTipRole) return to_qt(reason);
      QFont font = font_;
      font.setItalic(true);
      return font;
    }
    // Black is the text colour of the theme, which may be a dark one.
    if (role != Qt::ForegroundRole || list_.colour_of(index.row()) == colours::black) return {};
    return to_qt(list_.colour_of(index.row()));
  }

 private:
  [[nodiscard]] static std::size_t first_word(const std::string& line) { return std::min(line.find(' '), line.size()); }

  ListBox& list_;
  bool align_first_word_;
  QFont font_;
  std::size_t widest_word_ = 0;
  int shown_ = 0;
};

/// Row 0 and column 0 of the grid are the headers of the model, so that they stay in sight.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

  /// Its size stays. (A reset would make the second press of a double click forget the first.)
  void refresh() {
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    emit headerDataChanged(Qt::Vertical, 0, rowCount() - 1);
  }
  [[nodiscard]] int rowCount(const QModelIndex& /*parent*/ = {}) const override { return grid_.rows() - 1; }
  [[nodiscard]] int columnCount(const QModelIndex& /*parent*/ = {}) const override { return grid_.columns() - 1; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::DisplayRole) return latin1_to_qt(grid_.text(index.row() + 1, index.column() + 1));
    const bool mark = role == Qt::BackgroundRole || role == Qt::DecorationRole;
    if ((!mark && role != Qt::ToolTipRole && role != Qt::AccessibleDescriptionRole) || !grid_.doubt) return {};
    const std::string doubt = grid_.doubt(index.row() + 1, index.column() + 1);
    if (doubt.empty()) return {};
    if (!mark) return latin1_to_qt(doubt);
    constexpr QColor warm(255, 160, 0, 70);  // lets the colour of the theme through, light or dark
    if (role == Qt::BackgroundRole) return warm;
    return QIcon(QStringLiteral(":/images/doubt.svg"));
  }
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DisplayRole) return {};
    const auto& head = orientation == Qt::Horizontal ? grid_.text(0, section + 1) : grid_.text(section + 1, 0);
    return shown(latin1_to_qt(head).trimmed());
  }

 private:
  Grid& grid_;
};

}  // namespace zol
