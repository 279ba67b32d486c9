#include "shell/desktop/table_model.h"

#include <algorithm>

#include <QColor>
#include <QFont>

#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/qt_text.h"

namespace zol {

TableModel::TableModel(const ListBox& list, QObject* parent) : QAbstractTableModel(parent), list_(list) {}

void TableModel::read(const TableChoices& chosen) {
  beginResetModel();
  table_ = ListTable(*list_.table, list_.contents().items, chosen);
  arrange();
  endResetModel();
}

void TableModel::set_filter(const QString& text) {
  beginResetModel();
  filter_ = text;
  arrange();
  endResetModel();
}

void TableModel::sort(int column, Qt::SortOrder order) {
  beginResetModel();
  sorted_by_ = column < 0 ? "" : table_.column(column).name;
  order_ = order;
  arrange();
  endResetModel();
}

void TableModel::arrange() {
  cut_row_ = -1;
  shown_ = table_.arranged(sorted_by(), order_ == Qt::DescendingOrder, english_filter());
}

QString TableModel::name(int column) const { return QString::fromStdString(table_.column(column).name); }

std::string TableModel::english_filter() const {
  QStringList words = filter_.split(u' ');
  for (QString& word : words) {
    const auto is_sign = [](QChar c) { return c == u'<' || c == u'>' || c == u'='; };
    const auto sign = std::find_if(word.cbegin(), word.cend(), is_sign) - word.cbegin();
    const QString typed = word.left(sign);
    for (int i = 0; i < table_.columns() && sign < word.size(); ++i) {
      if (column_named(typed) >= 0 || shown(name(i)).compare(typed, Qt::CaseInsensitive) != 0) continue;
      word.replace(0, sign, name(i));
      break;
    }
  }
  return words.join(u' ').toStdString();
}

int TableModel::row_of(int line) const {
  const int row = table_.row_of(line);
  const auto found = std::find(shown_.begin(), shown_.end(), row);
  return row < 0 || found == shown_.end() ? -1 : static_cast<int>(found - shown_.begin());
}

std::string TableModel::text(const std::vector<int>& rows, char between) const {
  std::vector<int> of_table;
  of_table.reserve(rows.size());
  for (const int row : rows) of_table.push_back(shown_[static_cast<std::size_t>(row)]);
  return table_.text(of_table, between);
}

QStringList TableModel::heads() const {
  QStringList heads;
  for (int i = 0; i < table_.columns(); ++i) heads << QString::fromStdString(table_.head(i));
  return heads;
}

int TableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int TableModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : table_.columns(); }

QString TableModel::cell(int row, int column) const {
  if (row != cut_row_) {
    cut_cells_ = table_.cells(shown_[static_cast<std::size_t>(row)]);
    cut_row_ = row;
  }
  return QString::fromStdString(cut_cells_[static_cast<std::size_t>(column)]);
}

/// As the list shows it: its colour, and leaning where it should not be picked. While a handler changes the list it may
/// have fewer lines than are shown.
QVariant TableModel::of_line(int line, int role) const {
  if (line >= list_.list_count()) return {};
  if (role == Qt::ForegroundRole) {
    const Colour colour = list_.colour_of(line);
    return colour == colours::black ? QVariant() : to_qt(colour);
  }
  const std::string reason = list_.warn_row ? list_.warn_row(line) : "";
  if (reason.empty()) return {};
  if (role == Qt::ToolTipRole) return to_qt(reason);
  QFont font;
  font.setItalic(true);
  return font;
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount() || index.column() >= columnCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return cell(index.row(), index.column());
    case Qt::TextAlignmentRole: {
      const bool number = table_.column(index.column()).kind == ListColumn::Number;
      return static_cast<int>(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
    }
    case Qt::ForegroundRole:
    case Qt::FontRole:
    case Qt::ToolTipRole:
      return of_line(line_of(index.row()), role);
    default:
      return {};
  }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical || section < 0 || section >= columnCount()) return {};
  const ListColumn& column = table_.column(section);
  if (role == Qt::DisplayRole) {
    const QString unit = QString::fromStdString(column.unit);
    return shown(name(section)) + (unit.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(unit));
  }
  if (role == Qt::ToolTipRole) return shown(QString::fromStdString(column.hint));
  if (role != Qt::TextAlignmentRole) return {};
  return static_cast<int>(Qt::AlignVCenter | (column.kind == ListColumn::Number ? Qt::AlignRight : Qt::AlignLeft));
}

}  // namespace zol
