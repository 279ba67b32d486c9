#pragma once

#include "tests/real_user.h"

namespace zol {

/// A day's work from the start of the program to its end.
void work_a_day(const User& user);

}  // namespace zol
