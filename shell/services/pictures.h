// Where pixels come from: an interface, so that a program without pictures starts nothing for them.
#pragma once

#include <memory>
#include <string>

namespace zol {

class Canvas;
class Surface;

class PictureMaker {
 public:
  PictureMaker() = default;
  PictureMaker(const PictureMaker&) = delete;
  PictureMaker& operator=(const PictureMaker&) = delete;
  virtual ~PictureMaker() = default;

  virtual std::unique_ptr<Surface> make_surface(int width, int height) = 0;
  /// Writes a picture with its overlay; the kind by the ending: .bmp, .png, .svg, .pdf.
  /// @throws RunFailure  another ending, or the file cannot be written
  virtual void export_picture(Canvas& canvas, const std::string& path) = 0;
};

}  // namespace zol
