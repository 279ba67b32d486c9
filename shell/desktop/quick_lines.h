// Thin lines without smoothing, written straight into the pixels of an image: many times as quick as a painter.
#pragma once

#include <QImage>
#include <QLineF>

namespace zol {

class QuickLines {
 public:
  /// @param image  of 32 bits a pixel; it is not shared, copied or made anew as long as this writes into it
  explicit QuickLines(QImage& image);

  /// From end to end, in pixels: along its longer direction one pixel each, the one whose middle is nearest. Nothing
  /// outside the image is set.
  void draw(const QLineF& line, QRgb colour) const;

 private:
  QRgb* pixels_;
  int width_, height_;
  qsizetype row_;  ///< pixels from one row to the next
};

}  // namespace zol
