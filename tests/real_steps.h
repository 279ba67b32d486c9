// Steps of the one way through all windows, in its order; each goes on where the one before has ended.
#pragma once

#include "tests/real_user.h"

namespace zol {

void use_main_window(const User& user);
void find_windows(const User& user);
/// From a search in the library to a pattern, by the keyboard.
void search_library(const User& user);
void copy_lines(const User& user);
/// By keys alone: the list as a table, merged, sorted by d, filtered and saved; the file says what was seen.
void save_table(const User& user);
/// A measured pattern is made from the saved one, laid under the curve and fitted; then the curve is labelled.
void lay_measured_pattern_under(const User& user);
void use_powder_windows(const User& user);
void use_spot_windows(const User& user);
void use_kikuchi_windows(const User& user);
void use_calculators(const User& user);
void use_files(const User& user);
/// Thirty steps of several kinds, back one by one, and forth again.
void undo_and_redo(const User& user);

}  // namespace zol
