#include "shell/script/offscreen_pictures.h"

#include "shell/desktop/picture_export.h"

namespace zol {

std::unique_ptr<PictureMaker> offscreen_pictures() { return std::make_unique<OffscreenPictures>(); }

}  // namespace zol
