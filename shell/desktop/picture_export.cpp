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

/// Lines of text below a picture, as wide as it is.
class Caption {
 public:
  explicit Caption(const std::string& text) {
    if (!text.empty()) lines_ = to_qt(text).split(u'\n');
  }
  /// Of picture and caption, pixels of the canvas.
  [[nodiscard]] QSize below(const Canvas& canvas) const {
    const int height = lines_.isEmpty() ? 0 : static_cast<int>(lines_.size()) * line_px + 2 * margin_px;
    return {canvas.pixel_width(), canvas.pixel_height() + height};
  }
  void paint(QPainter& painter, const Canvas& canvas) const {
    if (lines_.isEmpty()) return;
    const QRect strip(QPoint(0, canvas.pixel_height()), below(canvas) - QSize(0, canvas.pixel_height()));
    painter.fillRect(strip, Qt::white);
    QFont font(QStringLiteral("Sans"));
    font.setPixelSize(text_px);
    painter.setFont(font);
    painter.setPen(Qt::black);
    QRect row(strip.left() + margin_px, strip.top() + margin_px, strip.width() - 2 * margin_px, line_px);
    for (const QString& line : lines_) {
      painter.drawText(row, Qt::AlignVCenter, QFontMetrics(font).elidedText(line, Qt::ElideRight, row.width()));
      row.translate(0, line_px);
    }
  }

 private:
  static constexpr int text_px = 11;
  static constexpr int line_px = 15;
  static constexpr int margin_px = 4;
  QStringList lines_;
};

QByteArray svg_of(Canvas& canvas, const Caption& caption, Task& task) {
  QBuffer buffer;
  QSvgGenerator svg;
  svg.setOutputDevice(&buffer);
  svg.setResolution(dots_per_inch);
  svg.setSize(caption.below(canvas));
  svg.setViewBox(QRect(QPoint(), caption.below(canvas)));
  svg.setTitle(QString::fromStdString(canvas.path()));
  QPainter painter(&svg);
  paint_canvas(painter, canvas, task);
  caption.paint(painter, canvas);
  painter.end();
  return buffer.data();
}

QByteArray pdf_of(Canvas& canvas, const Caption& caption, Task& task) {
  constexpr double points_per_pixel = 72.0 / dots_per_inch;
  const QSizeF size(caption.below(canvas));
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
  caption.paint(painter, canvas);
  painter.end();
  return buffer.data();
}

QImage with_caption(Canvas& canvas, double factor, const Caption& caption, Task& task) {
  const QImage picture = picture_image(canvas, factor, task);
  const QSize size = (QSizeF(caption.below(canvas)) * factor).toSize();
  if (size == picture.size()) return picture;
  QImage image(size, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.drawImage(0, 0, picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(factor, factor);
  caption.paint(painter, canvas);
  return image;
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

void export_picture(Canvas& canvas, const std::string& path, double factor, Task& task,
                    const std::string& caption_text) {
  const Caption caption(caption_text);
  const std::string ending = ending_of(path);
  if (ending == "bmp") return write_image(with_caption(canvas, factor, caption, task), path, "BMP");
  if (ending == "png") return write_image(with_caption(canvas, factor, caption, task), path, "PNG");
  if (ending == "svg") return write_bytes(svg_of(canvas, caption, task), path);
  if (ending == "pdf") return write_bytes(pdf_of(canvas, caption, task), path);
  throw RunFailure("can't export to " + path + ": the name must end in .bmp, .png, .svg or .pdf");
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
