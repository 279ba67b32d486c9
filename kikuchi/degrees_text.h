// Numbers of the list of bands as text: thousands of lines are written with each picture of a drag.
#pragma once

#include <span>

namespace zol {

/// Right-aligned in a field; the left end of a text that is too long is cut off.
void put_whole(std::span<char> field, int number);
/// An angle likewise, as Format with "##0.0" has it, several times as quick where no half is near.
void put_one_place(std::span<char> field, double degrees);

}  // namespace zol
