// A drawing as a file: lines and texts as SVG and PDF, pixels as BMP and PNG.
#pragma once

#include <functional>
#include <string>

#include <QImage>
#include <QSizeF>
#include <QString>

class QPainter;

namespace zol {

/// What is drawn, in pixels of 1/96 inch.
struct FileDrawing {
  QSizeF size;
  QString title;
  std::function<void(QPainter& painter)> paint;
};

/// On white. @param factor  pixels of the image per pixel of the drawing
[[nodiscard]] QImage drawn_image(const FileDrawing& drawing, double factor);

/// Writes the kind that the ending of the path names: .bmp, .png, .svg, .pdf.
/// @throws RunFailure  another ending, or the file cannot be written
void write_drawing(const FileDrawing& drawing, const std::string& path, double factor);

}  // namespace zol
