// A structure file as the program's crystal: read, checked, brought into a setting of the program, and reported.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/crystal_state.h"
#include "structures/notes.h"
#include "structures/structure_reading.h"

namespace zol {

struct ImportedCrystal {
  Structure structure;  ///< labels are unique, elements with their charge are keys of the scattering table
  int file_number = 1;  ///< of the space group file
  std::string axis_setting;
  /// What was read, line by line; doubts first, each beginning with "Warning:".
  std::vector<std::string> report;
  Notes notes;               ///< what was assumed and what is doubtful, out of the report
  Formula formula;           ///< of one formula unit
  double units = 1;          ///< Z
  std::string group_symbol;  ///< of the space group file
};

using Import = std::variant<ImportedCrystal, Question>;

/// @param bytes         of the file
/// @param name          of the file without its folder
/// @param factor_keys   of the table of scattering factors
/// @throws RunFailure   the file cannot be read, or the crystal is beyond the limits of the program; nothing is changed
[[nodiscard]] Import import_structure(std::string_view bytes, const std::string& name, const ImportAnswers& answers,
                                      const SpaceGroupLibrary& groups, const std::set<std::string>& factor_keys,
                                      Task& task);

/// Sets NAtom and the arrays of the sites from a crystal; the rest of the state stays.
void fill_sites(Module1State& state, const Structure& structure);

}  // namespace zol
