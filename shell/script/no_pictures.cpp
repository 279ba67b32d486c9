// In a build without Qt.
#include "shell/script/offscreen_pictures.h"

namespace zol {

std::unique_ptr<PictureMaker> offscreen_pictures() { return nullptr; }

}  // namespace zol
