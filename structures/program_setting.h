// The space group files of the program as groups, and the setting of one of them for a structure from elsewhere.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "core/task.h"
#include "structures/notes.h"
#include "structures/symmetry_group.h"

namespace zol {

/// Choices of axes that the program turns the operators of a file to.
inline constexpr std::array<std::string_view, 6> axis_settings_of_files{"abc", "cab", "bca", "a-cb", "ba-c", "c-ba"};

/// Reads each file once, when it is asked for.
class SpaceGroupLibrary {
 public:
  explicit SpaceGroupLibrary(std::function<std::string(int)> path_of_number) : path_of_(std::move(path_of_number)) {}

  struct Group {
    std::string symbol;
    std::string system;
    std::map<std::string, Operators, std::less<>> by_axes;  ///< sorted, for each choice of axes that gives a group
  };
  /// @returns a null pointer where the file is missing or holds no group
  [[nodiscard]] const Group* find(int number) const;

 private:
  std::function<std::string(int)> path_of_;
  mutable std::map<int, std::optional<Group>> groups_;
};

/// A structure in the setting of a file.
struct PlacedStructure {
  Structure structure;
  int file_number = 1;
  std::string axis_setting = "abc";
  std::optional<SettingChange> change;  ///< none where the setting is that of the structure's own file
  Notes notes;
};

/// As it is where its operators are those of a file under one of the choices of axes; if not, transformed to the file
/// of its space group; where that does not go, with all atoms of the cell in P1.
[[nodiscard]] PlacedStructure in_program_setting(const Structure& structure, const SpaceGroupLibrary& groups,
                                                 Task& task);

/// For a setting that has no name in the tables: with the origin of the file of its space group where nothing else
/// differs, since some programs read only the symbol and number; with other axes its number is set.
[[nodiscard]] Structure with_known_origin(const Structure& structure, const SpaceGroupLibrary& groups, Task& task);

/// With all atoms of the cell as sites, labels numbered, in P1.
[[nodiscard]] PlacedStructure without_symmetry(const Structure& structure, Task& task);

}  // namespace zol
