#include "shell/desktop/drawn_file.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "core/run_failure.h"
#include "shell/desktop/qt_surface.h"

namespace zol {
namespace {

constexpr int dots_per_inch = 96;

QByteArray svg_of(const FileDrawing& drawing) {
  QBuffer buffer;
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setResolution(dots_per_inch);
  svg.setSize(drawing.size.toSize());
  svg.setViewBox(QRectF({}, drawing.size));
  svg.setTitle(drawing.title);
  QPainter painter(&svg);
  drawing.paint(painter);
  painter.end();
  return buffer.data();
}

QByteArray pdf_of(const FileDrawing& drawing) {
  constexpr double points_per_pixel = 72.0 / dots_per_inch;
  constexpr int resolution = 1200;
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&buffer);
  pdf.setTitle(drawing.title);
  pdf.setPageSize(QPageSize(drawing.size * points_per_pixel, QPageSize::Point));
  pdf.setPageMargins({});
  pdf.setResolution(resolution);
  QPainter painter(&pdf);
  painter.scale(double{resolution} / dots_per_inch, double{resolution} / dots_per_inch);
  drawing.paint(painter);
  painter.end();
  return buffer.data();
}

}  // namespace

QImage drawn_image(const FileDrawing& drawing, double factor) {
  QImage image((drawing.size * factor).toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(factor, factor);
  drawing.paint(painter);
  return image;
}

void write_drawing(const FileDrawing& drawing, const std::string& path, double factor) {
  const QString name = QString::fromStdString(path).toLower();
  if (name.endsWith(u".bmp")) return write_image(drawn_image(drawing, factor), path, "BMP");
  if (name.endsWith(u".png")) return write_image(drawn_image(drawing, factor), path, "PNG");
  if (name.endsWith(u".svg")) return write_bytes(svg_of(drawing), path);
  if (name.endsWith(u".pdf")) return write_bytes(pdf_of(drawing), path);
  throw RunFailure("cannot export to " + path + ": the name must end in .bmp, .png, .svg or .pdf");
}

}  // namespace zol
