// Pictures of the command line, read by Qt.
#pragma once

#include "scans/scan.h"

namespace zol {

/// Grey values, 0 to 255, or to 65535 where the file has 16 bits. @throws RunFailure  it cannot be read
[[nodiscard]] GreyImage read_grey_image(const std::string& path);

}  // namespace zol
