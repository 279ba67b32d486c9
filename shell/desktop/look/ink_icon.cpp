#include "shell/desktop/look/ink_icon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace zol {
namespace {

class InkEngine : public QIconEngine {
 public:
  explicit InkEngine(QString file) : file_(std::move(file)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const double scale = painter->device()->devicePixelRatioF();
    QPixmap drawn = pixmap(rect.size() * scale, mode, state);
    drawn.setDevicePixelRatio(scale);
    painter->drawPixmap(rect, drawn);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    const double side = std::min(size.width(), size.height());
    QSvgRenderer(file_).render(&painter, {(size.width() - side) / 2, (size.height() - side) / 2, side, side});
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    painter.fillRect(drawn.rect(), QApplication::palette().color(group, QPalette::ButtonText));
    return drawn;
  }
  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal /*scale*/) override {
    return pixmap(size, mode, state);
  }
  [[nodiscard]] QIconEngine* clone() const override { return new InkEngine(file_); }

 private:
  QString file_;
};

}  // namespace

QIcon ink_icon(const QString& name) {
  const QString file = QStringLiteral(":/images/icons/%1.svg").arg(name);
  return QFile::exists(file) ? QIcon(new InkEngine(file)) : QIcon();
}

}  // namespace zol
