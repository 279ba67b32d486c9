// Which folders are the data root and the crystal folder on this machine.
#pragma once

#include <string>

#include "core/data_root.h"

namespace zol {

/// A data root given by the user; crystals are then in the folder ZOLDATA beside it.
[[nodiscard]] DataRoot data_root_at(const std::string& folder);

/// Places to look at; each may be empty.
struct DataPlaces {
  std::string beside_executable;  ///< zol.conf of a portable folder
  std::string user_settings;      ///< zol.conf of the user
  std::string source_data;        ///< "data" of the source tree, for a program run from its build
  std::string installed_data;     ///< the folder of the installation, read-only
  std::string installed_version;  ///< version of the installed data
  std::string user_data;          ///< the user's own copy of it
};

/// The first of: zol.conf beside the executable, the user's zol.conf, the source tree, the user's own copy of the
/// installed data, which the first start makes so that files can be saved and a newer version brings up to date.
/// Without a place for the copy the installed data themselves serve, and the result says why nothing can be saved.
/// @throws RunFailure  a broken zol.conf, or no data anywhere
[[nodiscard]] DataRoot find_data_root(const DataPlaces& places);

/// The user's folder for what is kept between runs; empty where the system names none.
[[nodiscard]] std::string state_folder();

/// The folder of the examples: of the installation or, for a program run from its build, of the source tree.
[[nodiscard]] std::string examples_folder();

/// The places of this executable for this user.
[[nodiscard]] DataPlaces data_places();

/// The source tree of a program that lies in its build folder, which serves that tree; empty for an installed one.
[[nodiscard]] std::string source_tree();

/// Reads "data_root = PATH" and "crystal_folder = PATH"; lines with "#" at the head are comments; relative paths start
/// at the folder of the file.
/// @throws RunFailure  a line of another form, or no data_root
[[nodiscard]] DataRoot read_data_settings(const std::string& path);

}  // namespace zol
