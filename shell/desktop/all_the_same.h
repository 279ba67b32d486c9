// The question before what would end the run or be of no use.
#pragma once

#include <string>

namespace zol {

/// "No lines are picked. Do it all the same?" @returns false unless the user says yes
[[nodiscard]] bool ask_all_the_same(const std::string& reason);

}  // namespace zol
