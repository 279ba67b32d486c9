#include "shell/desktop/qt_surface.h"

#include <cmath>

#include <QBuffer>
#include <QFontMetricsF>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include "core/atomic_file.h"
#include "core/read_file.h"
#include "core/run_failure.h"
#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/bitmap_check.h"

namespace zol {
namespace {

int to_pixel(double coordinate) { return static_cast<int>(std::nearbyint(coordinate)); }

/// A transparent image of one pixel at least.
QImage new_image(int width, int height) {
  const QSize size(std::max(width, 1), std::max(height, 1));
  const auto fail = [size](const std::string& why) {
    throw RunFailure("can't make an image of " + std::to_string(size.width()) + " x " + std::to_string(size.height()) +
                     " pixels: " + why);
  };
  if (qint64{size.width()} * size.height() > qint64{most_picture_pixels}) fail("at most 8192 x 8192 are possible");
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) fail("not enough memory");
  image.fill(Qt::transparent);
  return image;
}

}  // namespace

QtSurface::QtSurface(int width, int height) : image_(new_image(width, height)) {}

void QtSurface::fill(Colour colour) { image_.fill(to_qt(colour)); }

void QtSurface::make_transparent() { image_.fill(Qt::transparent); }

void QtSurface::line(double x1, double y1, double x2, double y2, Colour colour) {
  // A line may reach far beyond the picture; what is drawn has to fit whole pixels.
  constexpr double margin = 2.0;
  const auto inside = clipped({x1, y1, x2, y2}, QRectF(image_.rect()).adjusted(-margin, -margin, margin, margin));
  if (!inside) return;
  QPainter painter(&image_);
  painter.setPen(QPen(to_qt(colour), 1));
  painter.drawLine(to_pixel(inside->x1()), to_pixel(inside->y1()), to_pixel(inside->x2()), to_pixel(inside->y2()));
}

void QtSurface::circle(double x, double y, double radius, Colour outline, std::optional<Colour> fill) {
  const QRectF box(x - radius, y - radius, 2 * radius, 2 * radius);
  constexpr double largest = 1e6;
  if (!(radius < largest) || !box.adjusted(-1, -1, 1, 1).intersects(QRectF(image_.rect()))) return;
  QPainter painter(&image_);
  painter.setPen(QPen(to_qt(outline), 1));
  painter.setBrush(fill ? QBrush(to_qt(*fill)) : QBrush(Qt::NoBrush));
  constexpr double one_pixel = 0.75;
  if (radius < one_pixel) {
    painter.drawPoint(to_pixel(x), to_pixel(y));
  } else {
    painter.drawEllipse(QPointF(x, y), radius, radius);
  }
}

void QtSurface::set_pixel(int x, int y, Colour colour) {
  if (image_.valid(x, y)) image_.setPixelColor(x, y, to_qt(colour));
}

std::optional<Colour> QtSurface::pixel(int x, int y) const {
  const QRgb value = image_.pixel(x, y);
  if (qAlpha(value) == 0) return std::nullopt;
  return RGB(qRed(value), qGreen(value), qBlue(value));
}

void QtSurface::text(double x, double y, const std::string& text, Colour colour, double font_size_pt) {
  if (!QRectF(image_.rect())
           .adjusted(-image_.width(), -image_.height(), image_.width(), image_.height())
           .contains(x, y)) {
    return;
  }
  QPainter painter(&image_);
  const QFont font = picture_font(font_size_pt);
  painter.setFont(font);
  painter.setPen(to_qt(colour));
  painter.drawText(QPointF(x, y + QFontMetricsF(font).ascent()), latin1_to_qt(text));
}

void QtSurface::draw(const Surface& other, bool upside_down) {
  const QImage& source = dynamic_cast<const QtSurface&>(other).image_;
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, source.size() != image_.size());
  painter.drawImage(image_.rect(), upside_down ? source.mirrored(false, true) : source);
}

void QtSurface::mirror(bool left_to_right, bool upside_down) { image_ = image_.mirrored(left_to_right, upside_down); }

void QtSurface::load_bitmap(const std::string& path) {
  constexpr std::size_t most_bytes = most_picture_pixels * 4 + (std::size_t{1} << 20);
  const std::string bytes = read_file(path, most_bytes);
  check_bitmap(path, bytes);
  auto raw = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&raw);
  // What the bytes are is known: no other kind is tried, some of which take in further files.
  QImageReader reader(&buffer, "bmp");
  reader.setAutoDetectImageFormat(false);
  const QImage read = reader.read();
  if (read.isNull()) throw RunFailure("can't read " + path + " as a bitmap: " + reader.errorString().toStdString());
  image_ = read.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void QtSurface::save_bitmap(const std::string& path) const { write_image(image_, path, "BMP"); }

void write_image(const QImage& image, const std::string& path, const char* kind) {
  QBuffer bytes;
  // The picture covers all of its area: no alpha in the file.
  if (!image.convertToFormat(QImage::Format_RGB32).save(&bytes, kind)) {
    throw RunFailure("can't write " + path + ": no picture of the kind " + kind + " can be made");
  }
  write_bytes(bytes.data(), path);
}

void write_bytes(const QByteArray& bytes, const std::string& path) {
  AtomicFile file(path);
  file.write({bytes.constData(), static_cast<std::size_t>(bytes.size())});
  file.commit();
}

}  // namespace zol
