// Pictures as files: pixels as BMP and PNG, lines and texts as SVG and PDF.
#pragma once

#include <string>

#include <QImage>
#include <QString>

#include "core/task.h"
#include "shell/services/pictures.h"

namespace zol {

/// The picture with its overlay. A factor above 1 draws it anew at that resolution.
[[nodiscard]] QImage picture_image(Canvas& canvas, double factor, Task& task);
[[nodiscard]] QImage picture_image(Canvas& canvas, double factor = 1.0);

/// Writes the kind that the ending of the path names: .bmp, .png, .svg, .pdf.
/// @param factor   pixels per canvas pixel, for .bmp and .png
/// @param caption  words below the picture
/// @throws RunFailure  another ending, or the file can't be written
/// @throws Cancelled  the task stops; there is no file then
void export_picture(Canvas& canvas, const std::string& path, double factor, Task& task, const QString& caption = {});

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
