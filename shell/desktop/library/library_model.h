// The crystals of a library that a query finds, as a tree of their folders.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QAbstractItemModel>

#include "shell/desktop/library/library_reading.h"
#include "structures/library_query.h"

namespace zol {

class LibraryModel : public QAbstractItemModel {
 public:
  enum Column { Name, Formula, count };

  explicit LibraryModel(QObject* parent) : QAbstractItemModel(parent) { clear(); }

  void show(LibraryReading::Entries entries, const LibraryQuery& query);
  [[nodiscard]] int found() const { return found_; }
  /// Folders come before files. @returns nullptr for a folder
  [[nodiscard]] const LibraryEntry* entry(const QModelIndex& index) const;
  /// The first file in the order of the tree, or that of a path; invalid where there is none.
  [[nodiscard]] QModelIndex first() const;
  [[nodiscard]] QModelIndex of_path(const std::string& path) const;

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
  [[nodiscard]] int columnCount(const QModelIndex& /*parent*/) const override { return count; }
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Node {
    std::size_t parent = 0;
    std::size_t row = 0;
    QString name = {};
    int entry = -1;  ///< of a file
    std::vector<std::size_t> children = {};
  };
  void clear() { nodes_.assign(1, {}); }
  std::size_t add(std::size_t parent, QString name, int entry);
  [[nodiscard]] QModelIndex index_of(std::size_t node) const;
  [[nodiscard]] const Node& node(const QModelIndex& index) const {
    return nodes_[index.isValid() ? index.internalId() : 0];
  }

  LibraryReading::Entries entries_;
  std::vector<Node> nodes_;  ///< the first one is the folder of the library
  int found_ = 0;
};

}  // namespace zol
