#include "shell/desktop/qt_surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <iterator>
#include <string_view>

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
    throw RunFailure("cannot make an image of " + std::to_string(size.width()) + " x " + std::to_string(size.height()) +
                     " pixels: " + why);
  };
  if (qint64{size.width()} * size.height() > qint64{most_picture_pixels}) fail("at most 8192 x 8192 are possible");
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) fail("not enough memory");
  image.fill(Qt::transparent);
  return image;
}

/// A kind of picture file: how it begins, Qt's name of it, and what messages call it.
struct PictureKind {
  std::string_view beginning;
  std::string_view format;
  const char* name;
};
constexpr std::string_view bitmap = "bmp";
constexpr std::string_view jpeg = "jpeg";

/// What is of no other kind is to be a bitmap, and told where it is not.
PictureKind kind_of(std::string_view bytes) {
  using namespace std::string_view_literals;
  static constexpr PictureKind kinds[] = {{"\x89PNG\r\n\x1a\n"sv, "png", "a PNG picture"},
                                          {"\xff\xd8\xff"sv, jpeg, "a JPEG picture"},
                                          {"II*\0"sv, "tiff", "a TIFF picture"},
                                          {"MM\0*"sv, "tiff", "a TIFF picture"}};
  for (const auto& kind : kinds) {
    if (bytes.starts_with(kind.beginning)) return kind;
  }
  return {"BM", bitmap, "a bitmap"};
}

/// Qt fills up what is missing of a JPEG with grey and says nothing. A picture in small may stand before the scans.
bool has_its_end(std::string_view bytes) {
  constexpr auto end_of_image = "\xff\xd9";
  constexpr auto start_of_scan = "\xff\xda";
  const auto end = bytes.rfind(end_of_image);
  return end != std::string_view::npos && end > bytes.rfind(start_of_scan);
}

QImage read_picture(const std::string& path, const std::string& bytes) {
  const PictureKind kind = kind_of(bytes);
  const auto fail = [&](const std::string& why) {
    throw RunFailure("cannot read " + path + " as " + kind.name + ": " + why);
  };
  if (kind.format == bitmap) check_bitmap(path, bytes);
  if (kind.format == jpeg && !has_its_end(bytes)) fail("it is cut short: its end is missing");
  auto raw = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&raw);
  // What the bytes are is known: no other kind is tried, some of which take in further files.
  const QByteArray format(kind.format.data());
  if (!QImageReader::supportedImageFormats().contains(format)) {
    fail("Qt's plug-in for it is missing (in Debian's package qt6-image-formats-plugins)");
  }
  QImageReader reader(&buffer, format);
  reader.setAutoDetectImageFormat(false);
  reader.setAutoTransform(true);  // the file may tell that it lies on its side
  const QSize size = reader.size();
  if (std::max(size.width(), size.height()) > most_picture_side ||
      qint64{size.width()} * size.height() > qint64{most_picture_pixels}) {
    fail("it has " + std::to_string(size.width()) + " x " + std::to_string(size.height()) + " pixels; " +
         possible_picture_sizes);
  }
  constexpr int most_megabytes = most_picture_pixels * sizeof(QRgba64) >> 20U;
  QImageReader::setAllocationLimit(most_megabytes);  // Qt's own is below what is possible here
  QImage read = reader.read();
  if (read.isNull()) {
    constexpr auto reasons = "; it is cut short or damaged, or its pixels do not have 8 or 16 bits per colour";
    fail(reader.errorString().toStdString() + (kind.format == bitmap ? "" : reasons));
  }
  return read;
}

// Grey values 0 to 255 over white, of premultiplied colours.
float grey_of(QRgb pixel) { return static_cast<float>(qGray(pixel) + 0xff - qAlpha(pixel)); }
float grey_of(quint16 grey) { return static_cast<float>(grey) / 257.0F; }
float grey_of(QRgba64 pixel) {
  return grey_of(static_cast<quint16>(qGray(pixel.red(), pixel.green(), pixel.blue()) + 0xffff - pixel.alpha()));
}

template <class Pixel>
std::vector<float> grey_values(const QImage& image) {
  const int width = image.width();
  std::vector<float> values;
  values.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(image.height()));
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const Pixel*>(image.constScanLine(y));
    std::transform(row, row + width, std::back_inserter(values), [](Pixel pixel) { return grey_of(pixel); });
  }
  return values;
}

/// Of all pixels that are opaque and grey a byte each will do.
bool is_plain_grey(const QImage& image) {
  if (image.format() != QImage::Format_ARGB32_Premultiplied) return false;
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    if (!std::all_of(row, row + image.width(),
                     [](QRgb pixel) { return pixel == qRgb(qRed(pixel), qRed(pixel), qRed(pixel)); })) {
      return false;
    }
  }
  return true;
}

std::size_t bytes_of_row(const QImage& image) {
  return static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.depth()) / 8;
}

void store_image(StoreWriter& out, const QImage& image) {
  const bool grey = is_plain_grey(image);
  for (const int number : {image.width(), image.height(), static_cast<int>(image.format())}) out.number(number);
  store(out, grey);
  std::string bytes;
  for (int y = 0; y < image.height(); ++y) {
    const uchar* row = image.constScanLine(y);
    if (!grey) {
      out.raw(row, bytes_of_row(image));
      continue;
    }
    const auto* pixels = reinterpret_cast<const QRgb*>(row);
    bytes.resize(static_cast<std::size_t>(image.width()));
    std::transform(pixels, pixels + image.width(), bytes.begin(),
                   [](QRgb pixel) { return static_cast<char>(qRed(pixel)); });
    out.raw(bytes.data(), bytes.size());
  }
}

QImage load_image(StoreReader& in) {
  const auto [width, height, format] = load<std::array<int, 3>>(in);
  const bool grey = load<bool>(in);
  const auto within = [](int side) { return side >= 1 && side <= most_picture_side; };
  if (!within(width) || !within(height) || qint64{width} * height > qint64{most_picture_pixels} ||
      (format != QImage::Format_ARGB32_Premultiplied && format != QImage::Format_Grayscale16 &&
       format != QImage::Format_RGBA64_Premultiplied)) {
    StoreReader::fail("a picture has " + std::to_string(width) + " x " + std::to_string(height) + " pixels of depth " +
                      std::to_string(format));
  }
  // The bytes come before the memory for them.
  const std::size_t pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  const auto bytes = in.raw(
      grey ? pixels
           : pixels *
                 static_cast<std::size_t>(QImage::toPixelFormat(static_cast<QImage::Format>(format)).bitsPerPixel()) /
                 8);
  QImage image(width, height, static_cast<QImage::Format>(format));
  if (image.isNull()) throw RunFailure("not enough memory for a picture");
  const char* from = bytes.data();
  for (int y = 0; y < height; ++y) {
    uchar* row = image.scanLine(y);
    if (!grey) {
      std::memcpy(row, from, bytes_of_row(image));
      from += bytes_of_row(image);
      continue;
    }
    if (image.depth() != 32) StoreReader::fail("a grey picture has another depth");
    auto* row_pixels = reinterpret_cast<QRgb*>(row);
    std::transform(from, from + width, row_pixels, [](char value) {
      const int level = static_cast<unsigned char>(value);
      return qRgb(level, level, level);
    });
    from += width;
  }
  return image;
}

}  // namespace

QtSurface::QtSurface(int width, int height) : image_(new_image(width, height)) {}

QImage& QtSurface::pixels() {
  pen_.reset();
  deep_ = {};
  return image_;
}

QPainter& QtSurface::pen() {
  if (!pen_) {
    pen_ = std::make_unique<QPainter>(&pixels());
    pen_->setClipRect(image_.rect());  // Qt draws lines five times as quick with a clip as without
  }
  return *pen_;
}

void QtSurface::fill(Colour colour) { pixels().fill(to_qt(colour)); }

void QtSurface::make_transparent() { pixels().fill(Qt::transparent); }

void QtSurface::line(double x1, double y1, double x2, double y2, Colour colour) {
  // A line may reach far beyond the picture; what is drawn has to fit whole pixels.
  constexpr double margin = 2.0;
  const auto inside = clipped({x1, y1, x2, y2}, QRectF(image_.rect()).adjusted(-margin, -margin, margin, margin));
  if (!inside) return;
  QPainter& painter = pen();
  painter.setPen(QPen(to_qt(colour), 1));
  painter.drawLine(to_pixel(inside->x1()), to_pixel(inside->y1()), to_pixel(inside->x2()), to_pixel(inside->y2()));
}

void QtSurface::circle(double x, double y, double radius, Colour outline, std::optional<Colour> fill) {
  const QRectF box(x - radius, y - radius, 2 * radius, 2 * radius);
  constexpr double largest = 1e6;
  if (!(radius < largest) || !box.adjusted(-1, -1, 1, 1).intersects(QRectF(image_.rect()))) return;
  QPainter& painter = pen();
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
  if (image_.valid(x, y)) pixels().setPixelColor(x, y, to_qt(colour));
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
  QPainter painter(&pixels());
  const QFont font = picture_font(font_size_pt);
  painter.setFont(font);
  painter.setPen(to_qt(colour));
  painter.drawText(QPointF(x, y + QFontMetricsF(font).ascent()), latin1_to_qt(text));
}

void QtSurface::draw(const Surface& other, bool upside_down) {
  const QImage& source = dynamic_cast<const QtSurface&>(other).image_;
  QPainter painter(&pixels());
  painter.setRenderHint(QPainter::SmoothPixmapTransform, source.size() != image_.size());
  painter.drawImage(image_.rect(), upside_down ? source.mirrored(false, true) : source);
}

std::unique_ptr<Surface> QtSurface::mirrored(bool left_to_right, bool upside_down) const {
  return std::unique_ptr<Surface>(
      new QtSurface(image_.mirrored(left_to_right, upside_down), deep_.mirrored(left_to_right, upside_down)));
}

void QtSurface::load(const std::string& path) {
  constexpr std::size_t most_bytes = most_picture_pixels * 4 + (std::size_t{1} << 20);
  const QImage read = read_picture(path, read_file(path, most_bytes));
  pixels() = read.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  constexpr int depth_of_colours = 64;
  if (read.format() == QImage::Format_Grayscale16) deep_ = read;
  if (read.depth() >= depth_of_colours) deep_ = read.convertToFormat(QImage::Format_RGBA64_Premultiplied);
}

GreyPicture QtSurface::grey() const {
  const auto values = deep_.isNull()                                 ? grey_values<QRgb>(image_)
                      : deep_.format() == QImage::Format_Grayscale16 ? grey_values<quint16>(deep_)
                                                                     : grey_values<QRgba64>(deep_);
  return {width(), height(), values};
}

void QtSurface::store(StoreWriter& out) const {
  store_image(out, image_);
  zol::store(out, !deep_.isNull());
  if (!deep_.isNull()) store_image(out, deep_);
}

void QtSurface::load(StoreReader& in) {
  QImage image = load_image(in);
  if (image.format() != QImage::Format_ARGB32_Premultiplied) StoreReader::fail("a picture has another depth");
  pixels() = std::move(image);
  deep_ = zol::load<bool>(in) ? load_image(in) : QImage();
  if (!deep_.isNull() && deep_.size() != image_.size()) StoreReader::fail("a picture has two sizes");
}

void QtSurface::save_bitmap(const std::string& path) const { write_image(image_, path, "BMP"); }

void write_image(const QImage& image, const std::string& path, const char* kind) {
  QBuffer bytes;
  // The picture covers all of its area: no alpha in the file.
  if (!image.convertToFormat(QImage::Format_RGB32).save(&bytes, kind)) {
    throw RunFailure("cannot write " + path + ": no picture of the kind " + kind + " can be made");
  }
  write_bytes(bytes.data(), path);
}

void write_bytes(const QByteArray& bytes, const std::string& path) {
  AtomicFile file(path);
  file.write({bytes.constData(), static_cast<std::size_t>(bytes.size())});
  file.commit();
}

}  // namespace zol
