#include "shell/desktop/picture_export.h"

#include <algorithm>
#include <array>

#include <QBuffer>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include "core/run_failure.h"
#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/workbench.h"

namespace zol {
namespace {

constexpr int dots_per_inch = 96;

std::string ending_of(const std::string& path) {
  const std::size_t dot = path.find_last_of('.');
  if (dot == std::string::npos || path.find('/', dot) != std::string::npos) return "";
  std::string ending = path.substr(dot + 1);
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return ending;
}

/// A line or more of words below a picture, in canvas pixels.
class CaptionBelow {
 public:
  CaptionBelow(const Canvas& canvas, QString text)
      : width_(canvas.pixel_width()), top_(canvas.pixel_height()), text_(std::move(text)) {
    constexpr int pixels = 12;
    font_.setPixelSize(pixels);
  }
  [[nodiscard]] int height() const {
    constexpr int margin = 4;
    if (text_.isEmpty()) return 0;
    return QFontMetrics(font_).boundingRect(QRect(0, 0, width_, 0), Qt::TextWordWrap, text_).height() + margin;
  }
  /// Of both.
  [[nodiscard]] QSize size() const { return {width_, top_ + height()}; }
  void paint(QPainter& painter) const {
    if (text_.isEmpty()) return;
    const QRect place(0, top_, width_, height());
    painter.fillRect(place, Qt::white);
    painter.setPen(Qt::black);
    painter.setFont(font_);
    painter.drawText(place, Qt::TextWordWrap | Qt::AlignVCenter, text_);
  }

 private:
  int width_, top_;
  QString text_;
  QFont font_;
};

QImage with_caption(const QImage& picture, const CaptionBelow& caption, double factor) {
  if (caption.height() == 0) return picture;
  QImage image((QSizeF(caption.size()) * factor).toSize(), picture.format());
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.drawImage(0, 0, picture);
  painter.scale(factor, factor);
  caption.paint(painter);
  return image;
}

void draw_above(QImage& picture, double factor, const ExportExtras& extras) {
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(factor, factor);
  extras.above(painter);
}

QByteArray svg_of(Canvas& canvas, const CaptionBelow& caption, const ExportExtras& extras, Task& task) {
  QBuffer buffer;
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setResolution(dots_per_inch);
  svg.setSize(caption.size());
  svg.setViewBox(QRect(QPoint(0, 0), caption.size()));
  svg.setTitle(QString::fromStdString(canvas.path()));
  QPainter painter(&svg);
  paint_canvas(painter, canvas, task);
  if (extras.above) extras.above(painter);
  caption.paint(painter);
  painter.end();
  return buffer.data();
}

QByteArray pdf_of(Canvas& canvas, const CaptionBelow& caption, const ExportExtras& extras, Task& task) {
  constexpr double points_per_pixel = 72.0 / dots_per_inch;
  const QSizeF size = caption.size();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&buffer);
  pdf.setPageSize(QPageSize(size * points_per_pixel, QPageSize::Point));
  pdf.setPageMargins({});
  constexpr int resolution = 1200;
  pdf.setResolution(resolution);
  QPainter painter(&pdf);
  painter.scale(double{resolution} / dots_per_inch, double{resolution} / dots_per_inch);
  paint_canvas(painter, canvas, task);
  if (extras.above) extras.above(painter);
  caption.paint(painter);
  painter.end();
  return buffer.data();
}

}  // namespace

QImage picture_image(Canvas& canvas, double factor) {
  QuietTask task;
  return picture_image(canvas, factor, task);
}

QImage picture_image(Canvas& canvas, double factor, Task& task) {
  const QSize size(canvas.pixel_width(), canvas.pixel_height());
  QImage image((QSizeF(size) * factor).toSize(), QImage::Format_RGB32);
  QPainter painter(&image);
  if (factor == 1.0) {
    painter.drawImage(0, 0, dynamic_cast<const QtSurface&>(canvas.stored_image()).image());
    painter.drawImage(0, 0, dynamic_cast<const QtSurface&>(canvas.overlay_image()).image());
  } else {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(factor, factor);
    paint_canvas(painter, canvas, task);
  }
  return image;
}

void export_picture(Canvas& canvas, const std::string& path, double factor, Task& task, const ExportExtras& extras) {
  const CaptionBelow below(canvas, extras.caption);
  const auto image = [&] {
    QImage picture = picture_image(canvas, factor, task);
    if (extras.above) draw_above(picture, factor, extras);
    return with_caption(picture, below, factor);
  };
  const std::string ending = ending_of(path);
  if (ending == "bmp") return write_image(image(), path, "BMP");
  if (ending == "png") return write_image(image(), path, "PNG");
  if (ending == "svg") return write_bytes(svg_of(canvas, below, extras, task), path);
  if (ending == "pdf") return write_bytes(pdf_of(canvas, below, extras, task), path);
  throw RunFailure("cannot export to " + path + ": the name must end in .bmp, .png, .svg or .pdf");
}

struct OffscreenPictures::Platform {
  // Qt keeps references to these for as long as the application lives.
  std::string name = "zol-script";
  std::string option = "-platform";
  std::string value = "offscreen";
  std::array<char*, 4> arguments{name.data(), option.data(), value.data(), nullptr};
  int count = 3;
  QGuiApplication application{count, arguments.data()};
};

OffscreenPictures::OffscreenPictures() = default;
OffscreenPictures::~OffscreenPictures() = default;

void OffscreenPictures::start() {
  if (platform_ || QCoreApplication::instance() != nullptr) return;
  qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString&) {});  // standard error is the script's
  platform_ = std::make_unique<Platform>();
}

std::unique_ptr<Surface> OffscreenPictures::make_surface(int width, int height) {
  start();
  return std::make_unique<QtSurface>(width, height);
}

void OffscreenPictures::export_picture(Canvas& canvas, const std::string& path) {
  start();
  WindowTask task(canvas.services());
  zol::export_picture(canvas, path, 1.0, task);
}

}  // namespace zol
