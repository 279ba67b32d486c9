// A pixel image in memory. Lines, discs and points have no anti-aliasing, so that their pixels can be read back.
#pragma once

#include <memory>

#include <QImage>
#include <QPainter>

#include "shell/services/canvas.h"

namespace zol {

class QtSurface final : public Surface {
 public:
  QtSurface(int width, int height);

  [[nodiscard]] int width() const override { return image_.width(); }
  [[nodiscard]] int height() const override { return image_.height(); }
  void fill(Colour colour) override;
  void make_transparent() override;
  void line(double x1, double y1, double x2, double y2, Colour colour) override;
  void circle(double x, double y, double radius, Colour outline, std::optional<Colour> fill) override;
  void set_pixel(int x, int y, Colour colour) override;
  [[nodiscard]] std::optional<Colour> pixel(int x, int y) const override;
  void text(double x, double y, const std::string& text, Colour colour, double font_size_pt) override;
  void draw(const Surface& other, bool upside_down) override;
  [[nodiscard]] std::unique_ptr<Surface> mirrored(bool left_to_right, bool upside_down) const override;
  void load(const std::string& path) override;
  [[nodiscard]] GreyPicture grey() const override;
  void save_bitmap(const std::string& path) const override;
  void store(StoreWriter& out) const override;
  void load(StoreReader& in) override;

  [[nodiscard]] const QImage& image() const { return image_; }

 private:
  QtSurface(QImage image, QImage deep) : image_(std::move(image)), deep_(std::move(deep)) {}
  /// To be changed.
  [[nodiscard]] QImage& pixels();
  /// Of lines and circles: one for many of them, since it takes longer to begin one than to draw a line.
  [[nodiscard]] QPainter& pen();

  QImage image_;
  QImage deep_;                    ///< the same of 16 bits, where it was loaded so; otherwise null
  std::unique_ptr<QPainter> pen_;  ///< goes before the image that it draws on
};

/// Writes an image to a file of a kind that Qt knows ("BMP", "PNG"), whole or not at all.
/// @throws RunFailure  it cannot be written
void write_image(const QImage& image, const std::string& path, const char* kind);
/// Writes a file, whole or not at all. @throws RunFailure  it cannot be written
void write_bytes(const QByteArray& bytes, const std::string& path);

}  // namespace zol
