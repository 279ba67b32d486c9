// Where the data files of the installation lie.
#pragma once

#include <string>
#include <string_view>

namespace zol {

struct DataRoot {
  std::string root;            ///< folder of the tables, space groups and parameter files
  std::string crystal_folder;  ///< folder that file dialogs of crystals start in
  std::string read_only = {};  ///< why nothing can be saved there; empty when it can, as far as is known

  /// Path of a file below the root, given by its relative name with "/". Where the exact name is missing, one that
  /// differs only in the case of its letters is taken; where there is none, the path as asked for.
  [[nodiscard]] std::string path(std::string_view relative) const;
  /// Whether there is such a file.
  [[nodiscard]] bool holds(std::string_view relative) const;
};

}  // namespace zol
