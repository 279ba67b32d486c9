// Texts without what stands around them.
#pragma once

#include <string_view>

namespace zol {

/// The part of a text between the first and the last character that is none of these.
[[nodiscard]] constexpr std::string_view trimmed(std::string_view text, std::string_view around = " \t\r\n") {
  const auto first = text.find_first_not_of(around);
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(around) + 1 - first);
}

}  // namespace zol
