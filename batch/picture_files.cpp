#include "batch/picture_files.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include "core/atomic_file.h"
#include "core/number_text.h"
#include "core/run_failure.h"
#include "scans/map_pictures.h"
#include "shell/desktop/picture_export.h"
#include "shell/services/canvas.h"

namespace zol {
namespace {

constexpr double degrees = 180 / std::numbers::pi;

QRgb rgb_of(const Rgb& colour) { return qRgb(colour[0], colour[1], colour[2]); }

void write_png(const QImage& image, const std::string& path) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "PNG")) throw RunFailure("cannot make the picture " + path);
  AtomicFile file(path);
  file.contain(bytes.toStdString());
  file.commit();
}

/// Pixels of a point.
struct Block {
  int width = 1, height = 1;
};

Block block_of(const ScanGrid& grid, int scale) {
  constexpr int wanted = 480;
  constexpr int most = 64;
  Block block;
  block.width = std::clamp(scale > 0 ? scale : wanted / std::max(1, std::max(grid.columns, grid.rows)),
                           grid.hexagonal ? 2 : 1, most);
  block.height = std::clamp(static_cast<int>(std::lround(block.width * grid.step_y / grid.step_x)), 1, most);
  return block;
}

QImage image_of(const MapPicture& picture, const ScanGrid& grid, int scale) {
  const Block block = block_of(grid, scale);
  const int shift = grid.hexagonal ? block.width / 2 : 0;
  QImage image(picture.width * block.width + shift, picture.height * block.height, QImage::Format_RGB32);
  if (image.isNull()) throw RunFailure("the map is too large for pictures");
  image.fill(Qt::black);
  for (int y = 0; y < image.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    const int row = y / block.height;
    const int from = row % 2 == 1 ? shift : 0;
    for (int x = 0; x < picture.width * block.width; ++x) {
      const auto at = static_cast<std::size_t>(row) * static_cast<std::size_t>(picture.width) +
                      static_cast<std::size_t>(x / block.width);
      line[x + from] = rgb_of(picture.pixels[at]);
    }
  }
  return image;
}

/// Draws the legend from top to bottom.
class Legend {
 public:
  Legend() : image_(width, most_height, QImage::Format_RGB32) {
    image_.fill(Qt::white);
    painter_.begin(&image_);
    painter_.setRenderHint(QPainter::Antialiasing);
    QFont font("DejaVu Sans");
    font.setPixelSize(14);
    painter_.setFont(font);
  }

  void phase(const MapPhase& phase, int number) {
    painter_.fillRect(left, y_ + 3, 14, 14, QColor(rgb_of(phase_colour(number))));
    text(left + 22, y_ + 15, phase.name + "   " + phase.laue_class);
    y_ += 26;
    key(PoleColours(phase.rotations), phase.cell);
  }

  void scale(const std::string& name, const MapPicture& picture) {
    text(left, y_ + 15, name);
    constexpr int bar = 256;
    const int from = left + 50;
    for (int x = 0; x < bar; ++x) {
      const auto at = static_cast<std::size_t>(x) * (picture.scale.size() - 1) / (bar - 1);
      painter_.fillRect(from + x, y_ + 3, 1, 14, QColor(rgb_of(picture.scale[at])));
    }
    text(from, y_ + 34, "0");
    const std::string end = short_text(picture.scale_end, 4) + (picture.unit.empty() ? "" : " " + picture.unit);
    text(from + bar - 10, y_ + 34, end);
    y_ += 46;
  }

  [[nodiscard]] QImage image() {
    painter_.end();
    return image_.copy(0, 0, width, std::min(y_ + left, most_height));
  }

 private:
  static constexpr int width = 440, most_height = 4000, left = 16;

  void text(double x, double y, const std::string& words) {
    painter_.setPen(Qt::black);
    painter_.drawText(QPointF(x, y), QString::fromStdString(words));
  }

  /// Stereographic: a place of the sector on the plane, the axis at the origin.
  static QPointF place(double chi_deg, double eta_deg) {
    const double radius = std::tan(chi_deg / degrees / 2);
    return {radius * std::cos(eta_deg / degrees), -radius * std::sin(eta_deg / degrees)};
  }

  void key(const PoleColours& key, const CellConstants& cell) {
    QPainterPath rim;
    rim.moveTo(0, 0);
    for (double eta = 0; eta <= key.eta_end_deg() + 1e-9; eta += key.eta_end_deg() / 90) {
      if (eta == 0 && key.eta_end_deg() > 180) rim.moveTo(place(key.chi_end_deg(0), 0));
      rim.lineTo(place(key.chi_end_deg(eta), eta));
    }
    rim.closeSubpath();
    const QRectF bounds = rim.boundingRect();
    constexpr double longest = 180;
    const double scale = longest / std::max(bounds.width(), bounds.height());
    const QPointF origin(left + 70 - bounds.left() * scale, y_ + 24 - bounds.top() * scale);
    const QRect area(QPoint(left + 70, y_ + 24), (bounds.size() * scale).toSize());
    for (int y = area.top(); y <= area.bottom(); ++y) {
      for (int x = area.left(); x <= area.right(); ++x) {
        const QPointF at = (QPointF(x, y) - origin) / scale;
        if (!rim.contains(at)) continue;
        double eta = std::atan2(-at.y(), at.x()) * degrees;
        if (eta < 0) eta += 360;
        const double chi = 2 * std::atan(std::hypot(at.x(), at.y())) * degrees;
        image_.setPixel(x, y, rgb_of(key.colour_at(chi, std::min(eta, key.eta_end_deg()))));
      }
    }
    painter_.save();
    painter_.setPen(QPen(Qt::black, 1.2));
    painter_.translate(origin);
    painter_.drawPath(QTransform::fromScale(scale, scale).map(rim));
    painter_.restore();
    corners(key, Lattice(cell), origin, scale);
    y_ = area.bottom() + 40;
  }

  void corners(const PoleColours& key, const Lattice& lattice, const QPointF& origin, double scale) {
    std::vector<std::array<double, 2>> places{{0, 0}, {key.chi_end_deg(0), 0}};
    const double end = key.eta_end_deg();
    if (end < 360) places.push_back({key.chi_end_deg(end), end});
    if (end > 45 && end < 180 && key.chi_end_deg(end / 2) < 90) places.push_back({key.chi_end_deg(end / 2), end / 2});
    for (const auto& [chi, eta] : places) {
      const QPointF at = origin + place(chi, eta) * scale;
      const QString name = QString::fromStdString(indices_along(lattice, key.direction(chi, eta)));
      const QRectF box = painter_.fontMetrics().boundingRect(name);
      const bool above = eta > 20;
      const bool on_left = at.x() < origin.x() + 10;
      const double x = on_left ? at.x() - box.width() - 6 : at.x() - box.width() / 3;
      text(std::max<double>(2, x), at.y() + (above ? -6 : 18), name.toStdString());
    }
  }

  QImage image_;
  QPainter painter_;
  int y_ = left;
};

}  // namespace

std::vector<std::string> map_picture_paths(const std::string& prefix) {
  std::vector<std::string> paths;
  paths.reserve(all_map_pictures.size() + 1);
  for (const MapPictureKind kind : all_map_pictures) paths.push_back(prefix + '-' + name_of(kind) + ".png");
  paths.push_back(prefix + "-legend.png");
  return paths;
}

void write_map_pictures(const MapResult& map, const std::string& prefix, int scale) {
  OffscreenPictures qt;  // texts of the legend need its fonts
  (void)qt.make_surface(1, 1);
  Legend legend;
  for (std::size_t i = 0; i < map.phases.size(); ++i) legend.phase(map.phases[i], static_cast<int>(i) + 1);
  for (const MapPictureKind kind : all_map_pictures) {
    const MapPicture picture = map_picture(map, kind);
    write_png(image_of(picture, map.grid, scale), prefix + '-' + name_of(kind) + ".png");
    if (!picture.scale.empty()) legend.scale(name_of(kind), picture);
  }
  write_png(legend.image(), prefix + "-legend.png");
}

}  // namespace zol
