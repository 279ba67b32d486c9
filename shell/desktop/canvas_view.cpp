#include "shell/desktop/canvas_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

#include "shell/desktop/drawing_painter.h"
#include "shell/desktop/picture_export.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/qt_text.h"

namespace zol {

CanvasView::CanvasView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CanvasView::attach(Canvas& canvas, std::function<void(const std::function<void()>&)> enter) {
  canvas_ = &canvas;
  enter_ = std::move(enter);
  refresh();
}

void CanvasView::refresh() {
  cache_ = {};
  if (canvas_ != nullptr) {
    setCursor(canvas_->mouse_pointer() == MousePointer::CrossHair ? Qt::CrossCursor : Qt::ArrowCursor);
  }
  updateGeometry();
  update();
}

QSize CanvasView::sizeHint() const {
  return canvas_ == nullptr ? QSize(256, 256) : QSize(canvas_->pixel_width(), canvas_->pixel_height());
}

QRectF CanvasView::picture_rect() const {
  if (canvas_ == nullptr) return rect();
  const QSizeF picture(canvas_->pixel_width(), canvas_->pixel_height());
  QRectF place({}, picture.scaled(size(), Qt::KeepAspectRatio));
  // Whole pixels, so that a picture in its own size is shown pixel by pixel.
  place.moveTopLeft(QPointF(std::floor((width() - place.width()) / 2), std::floor((height() - place.height()) / 2)));
  return place;
}

QPointF CanvasView::user_position(const QPointF& position) const {
  const QRectF place = picture_rect();
  const auto& scale = canvas_->user_scale();
  return {scale.left + (position.x() - place.left()) / place.width() * (scale.right - scale.left),
          scale.top + (position.y() - place.top()) / place.height() * (scale.bottom - scale.top)};
}

QPixmap CanvasView::drawn(const QSize& device_size) const {
  QPixmap pixmap(device_size);
  QPainter painter(&pixmap);
  if (device_size == QSize(canvas_->pixel_width(), canvas_->pixel_height())) {
    painter.drawImage(0, 0, picture_image(*canvas_));
  } else {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(1.0 * device_size.width() / canvas_->pixel_width(),
                  1.0 * device_size.height() / canvas_->pixel_height());
    paint_canvas(painter, *canvas_);
  }
  return pixmap;
}

void CanvasView::paintEvent(QPaintEvent* /*event*/) {
  if (canvas_ == nullptr) return;
  const QRectF place = picture_rect();
  const QSize device_size = (place.size() * devicePixelRatioF()).toSize();
  if (device_size.isEmpty()) return;
  if (cache_.size() != device_size) cache_ = drawn(device_size);
  QPainter painter(this);
  painter.drawPixmap(place, cache_, QRectF(cache_.rect()));
}

// The margin beside a picture that does not fill its view is no part of it.
void CanvasView::mousePressEvent(QMouseEvent* event) {
  if (canvas_ == nullptr || event->button() == Qt::RightButton || !picture_rect().contains(event->position())) return;
  const QPointF at = user_position(event->position());
  enter_([this, at] { canvas_->press(at.x(), at.y()); });
}

void CanvasView::mouseMoveEvent(QMouseEvent* event) {
  if (canvas_ == nullptr || !canvas_->on_mouse_move) return;
  const QPointF at = user_position(event->position());
  enter_([this, at] { canvas_->move(at.x(), at.y()); });
}

void CanvasView::mouseReleaseEvent(QMouseEvent* event) {
  if (canvas_ == nullptr || event->button() == Qt::RightButton) return;
  const QPointF at = user_position(event->position());
  enter_([this, at] { canvas_->release(at.x(), at.y()); });
}

void CanvasView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (canvas_ == nullptr || event->button() == Qt::RightButton) return;
  enter_([this] { canvas_->double_click(); });
}

void CanvasView::contextMenuEvent(QContextMenuEvent* event) {
  if (canvas_ == nullptr) return;
  QMenu menu(this);
  menu.addAction(tr("&Copy"), this, &CanvasView::copy_to_clipboard);
  menu.addSeparator();
  menu.addAction(tr("Export &PNG..."), this, [this] { ask_export(1.0, ".png"); });
  menu.addAction(tr("Export PNG, &double size..."), this, [this] { ask_export(2.0, ".png"); });
  menu.addAction(tr("Export PNG, &four times..."), this, [this] { ask_export(4.0, ".png"); });
  menu.addAction(tr("Export &SVG..."), this, [this] { ask_export(1.0, ".svg"); });
  menu.addAction(tr("Export P&DF..."), this, [this] { ask_export(1.0, ".pdf"); });
  menu.exec(event->globalPos());
}

void CanvasView::copy_to_clipboard() const { QGuiApplication::clipboard()->setImage(picture_image(*canvas_)); }

void CanvasView::ask_export(double factor, const char* ending) {
  const QString suffix = QString::fromLatin1(ending);
  QString path = QFileDialog::getSaveFileName(this, tr("Export picture"), {}, tr("%1 files (*%1)").arg(suffix));
  if (path.isEmpty()) return;
  if (!path.endsWith(suffix, Qt::CaseInsensitive)) path += suffix;
  enter_([this, path, factor] { export_picture(*canvas_, QFile::encodeName(path).toStdString(), factor); });
}

}  // namespace zol
