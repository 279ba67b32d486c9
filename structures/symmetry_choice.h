// Which operators a structure file means, from all that it says of its symmetry.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "structures/structure_reading.h"

namespace zol {

struct SymmetryClaims {
  std::vector<std::string> operators;  ///< as texts
  std::vector<std::string> centrings;  ///< each to be combined with each operator; may be empty
  std::string hall;
  std::string symbol;
  int number = 0;  ///< 0 where the file has none
};

/// Sets operators, number and symbol of a structure that has its cell and sites: by the operators, then the Hall
/// symbol, then the Hermann-Mauguin symbol, then the number. What contradicts the choice is noted.
/// @returns a question where two readings are left that give different crystals
[[nodiscard]] std::optional<Question> choose_symmetry(ReadStructure& read, const SymmetryClaims& claims,
                                                      const ImportAnswers& answers, Task& task);

}  // namespace zol
