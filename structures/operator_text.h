// Symmetry operators as text, "-x+1/2,y,-z".
#pragma once

#include <string>
#include <string_view>

#include "core/structure.h"

namespace zol {

/// Terms in any order and case, blanks anywhere, numbers as 1/2, 0.5 or .3333; also of the form x1,x2,x3. What stands
/// after a third comma (the time reversal of a magnetic group, further axes of a modulated one) is left out.
/// The translation is folded into the cell.
/// @throws RunFailure  no operator, or one that is not a whole number of 24ths
[[nodiscard]] ExactOperator parse_operator(std::string_view text);

/// The shortest common form, "x,y,z" for the identity; translations as fractions.
[[nodiscard]] std::string operator_text(const ExactOperator& op);

}  // namespace zol
