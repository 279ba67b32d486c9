// From the bytes of a structure file to a crystal, or to what has to be asked first.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/structure.h"
#include "core/task.h"
#include "structures/elements.h"
#include "structures/notes.h"
#include "structures/program_setting.h"

namespace zol {

/// What the file leaves open.
struct Question {
  std::string key;   ///< names it in ImportAnswers
  std::string text;  ///< for the user, with the answers that are understood
  bool operator==(const Question&) const = default;
};

/// Answers so far, by the key of their question: "block", "origin", "symmetry", "elements".
using ImportAnswers = std::map<std::string, std::string>;

/// A crystal as its file has it, in the file's own setting.
struct ReadStructure {
  Structure structure;
  std::string format;                  ///< as "CIF"
  Formula formula;                     ///< as the file has it, of one formula unit; empty where it does not
  std::optional<double> units;         ///< Z
  std::optional<double> file_density;  ///< grams per cubic centimetre
  Notes notes;
};

using Reading = std::variant<ReadStructure, Question>;

/// Reads a file of any known format, by its contents: CIF, SHELX (.res, .ins), VASP (POSCAR), crystal files of
/// this program; each may be compressed by gzip.
/// @param name    of the file, by which a POSCAR is recognised
/// @param groups  hold the operators of crystal files
/// @throws RunFailure  it is none of these, or holds no crystal; the message has line and tag
[[nodiscard]] Reading read_structure(std::string_view bytes, const std::string& name, const ImportAnswers& answers,
                                     const SpaceGroupLibrary& groups, Task& task);

// The single formats
[[nodiscard]] Reading read_cif(std::string_view bytes, const ImportAnswers& answers, Task& task);
[[nodiscard]] Reading read_shelx(std::string_view bytes, Task& task);
[[nodiscard]] Reading read_poscar(std::string_view bytes, const ImportAnswers& answers, Task& task);
[[nodiscard]] Reading read_crystal(std::string_view bytes, const SpaceGroupLibrary& groups);

}  // namespace zol
