#include "shell/desktop/library/library_model.h"

#include <algorithm>
#include <map>
#include <utility>

#include <QApplication>
#include <QFile>
#include <QPalette>

#include "shell/desktop/language/language.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

QString file_name(std::string_view bytes) {
  return QFile::decodeName(QByteArray(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

}  // namespace

std::size_t LibraryModel::add(std::size_t parent, QString name, int entry) {
  nodes_.push_back({parent, nodes_[parent].children.size(), std::move(name), entry});
  nodes_[parent].children.push_back(nodes_.size() - 1);
  return nodes_.size() - 1;
}

void LibraryModel::show(LibraryReading::Entries entries, const LibraryQuery& query) {
  beginResetModel();
  entries_ = std::move(entries);
  clear();
  std::vector<int> files;
  for (std::size_t i = 0; entries_ && i < entries_->size(); ++i) {
    if (query.finds((*entries_)[i])) files.push_back(static_cast<int>(i));
  }
  found_ = static_cast<int>(files.size());
  std::map<std::string_view, std::size_t> folders{{"", 0}};
  const auto folder_of = [this, &folders](std::string_view path, const auto& self) -> std::size_t {
    const auto known = folders.find(path);
    if (known != folders.end()) return known->second;
    const auto slash = path.rfind('/');
    const auto above = slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
    const std::size_t parent = self(above, self);
    return folders[path] = add(parent, file_name(path.substr(above.empty() ? 0 : slash + 1)), -1);
  };
  const auto folder_part = [](std::string_view path) {
    const auto slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
  };
  for (const int file : files) folder_of(folder_part((*entries_)[static_cast<std::size_t>(file)].path), folder_of);
  for (const int file : files) {
    const LibraryEntry& found = (*entries_)[static_cast<std::size_t>(file)];
    add(folders[folder_part(found.path)], file_name(found.name()), file);
  }
  endResetModel();
}

const LibraryEntry* LibraryModel::entry(const QModelIndex& index) const {
  const int number = index.isValid() ? node(index).entry : -1;
  return number < 0 ? nullptr : &(*entries_)[static_cast<std::size_t>(number)];
}

QModelIndex LibraryModel::index_of(std::size_t node) const {
  return node == 0 ? QModelIndex() : createIndex(static_cast<int>(nodes_[node].row), 0, node);
}

QModelIndex LibraryModel::first() const {
  std::size_t at = 0;
  while (nodes_[at].entry < 0 && !nodes_[at].children.empty()) at = nodes_[at].children.front();
  return index_of(at);
}

QModelIndex LibraryModel::of_path(const std::string& path) const {
  const auto found = std::find_if(nodes_.begin(), nodes_.end(), [this, &path](const Node& node) {
    return node.entry >= 0 && (*entries_)[static_cast<std::size_t>(node.entry)].path == path;
  });
  return found == nodes_.end() ? QModelIndex() : index_of(static_cast<std::size_t>(found - nodes_.begin()));
}

QModelIndex LibraryModel::index(int row, int column, const QModelIndex& parent) const {
  const auto& children = node(parent).children;
  if (row < 0 || static_cast<std::size_t>(row) >= children.size() || column < 0 || column >= count) return {};
  return createIndex(row, column, children[static_cast<std::size_t>(row)]);
}

QModelIndex LibraryModel::parent(const QModelIndex& child) const {
  return child.isValid() ? index_of(node(child).parent) : QModelIndex();
}

int LibraryModel::rowCount(const QModelIndex& parent) const {
  return parent.column() > 0 ? 0 : static_cast<int>(node(parent).children.size());
}

QVariant LibraryModel::data(const QModelIndex& index, int role) const {
  const LibraryEntry* file = entry(index);
  const bool faulty = file != nullptr && !file->fault.empty();
  if (role == Qt::ToolTipRole && faulty) return to_qt(file->fault);
  if (role == Qt::ForegroundRole && faulty) {
    return QApplication::palette().brush(QPalette::Disabled, QPalette::Text);
  }
  if (role != Qt::DisplayRole) return {};
  if (index.column() == Name) return node(index).name;
  return file == nullptr ? QString() : to_qt(library_formula(file->formula));
}

QVariant LibraryModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return shown(section == Name ? QCoreApplication::translate("zol::LibraryPanel", "Crystal")
                               : QCoreApplication::translate("zol::LibraryPanel", "Formula"));
}

}  // namespace zol
