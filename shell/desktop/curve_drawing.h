// A curve with its axes as a file.
#pragma once

#include "shell/desktop/curve_painter.h"
#include "shell/desktop/drawn_file.h"

namespace zol {

/// @param canvas, scene, look  live as long as the drawing
/// @param font     of the axes
/// @param caption  words below, may be empty
[[nodiscard]] FileDrawing curve_drawing(const Canvas& canvas, const CurveScene& scene, const CurveLook& look,
                                        QFont font, const QString& caption);

}  // namespace zol
