// Files of the makers of diffractometers, read by a library (Debian: libxy-dev).
#pragma once

#include <string>

#include "powder/measured_curve.h"

namespace zol {

/// Whether files of this name are read here: by the ending, in any case.
[[nodiscard]] bool is_diffractometer_file(const std::string& path);

/// The longest scan of the file, points as they come.
/// @param bytes  of the file
/// @param path   gives the kind, and the name for messages
/// @throws RunFailure  it is none of its kind, or has no two columns
[[nodiscard]] MeasuredCurve diffractometer_curve(const std::string& bytes, const std::string& path);

}  // namespace zol
