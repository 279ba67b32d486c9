// The label of a reflection in a picture.
#pragma once

#include <string>

#include "core/number_text.h"

namespace zol {

/// Three printed numbers: each has a blank after it and, unless it is negative, one in front.
[[nodiscard]] inline std::string index_label(Integer h, Integer k, Integer l) {
  return Str(h) + ' ' + Str(k) + ' ' + Str(l) + ' ';
}

}  // namespace zol
