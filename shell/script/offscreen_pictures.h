// The pictures of a program without a screen.
#pragma once

#include <memory>

#include "shell/services/pictures.h"

namespace zol {

/// Pictures of Qt's offscreen platform, which starts with the first picture. nullptr in a build without Qt: canvases
/// then keep their drawing lists and have no pixels.
[[nodiscard]] std::unique_ptr<PictureMaker> offscreen_pictures();

}  // namespace zol
