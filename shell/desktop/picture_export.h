// Pictures as files: pixels as BMP and PNG, lines and texts as SVG and PDF.
#pragma once

#include <functional>
#include <string>

#include <QImage>
#include <QPainter>
#include <QString>

#include "core/task.h"
#include "shell/services/pictures.h"

namespace zol {

/// The picture with its overlay. A factor above 1 draws it again at that resolution.
[[nodiscard]] QImage picture_image(Canvas& canvas, double factor, Task& task);
[[nodiscard]] QImage picture_image(Canvas& canvas, double factor = 1.0);

/// What an export shows of a picture besides.
struct ExportExtras {
  QString caption = {};                            ///< words below it
  std::function<void(QPainter& painter)> above{};  ///< drawn over it, in canvas pixels
};

/// Writes the kind that the ending of the path names: .bmp, .png, .svg, .pdf.
/// @param factor   pixels per canvas pixel, for .bmp and .png
/// @throws RunFailure  another ending, or the file cannot be written
/// @throws Cancelled  the task stops; there is no file then
void export_picture(Canvas& canvas, const std::string& path, double factor, Task& task,
                    const ExportExtras& extras = {});

/// Pictures of a program without a screen: starts Qt on its offscreen platform when the first one is asked for.
class OffscreenPictures : public PictureMaker {
 public:
  OffscreenPictures();
  ~OffscreenPictures() override;
  std::unique_ptr<Surface> make_surface(int width, int height) override;
  void export_picture(Canvas& canvas, const std::string& path) override;

 private:
  void start();
  struct Platform;
  std::unique_ptr<Platform> platform_;
};

}  // namespace zol
