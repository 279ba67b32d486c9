// The pixels of a picture: its background, the stored image and the overlay above it.
//
// The images are made when they are first looked at and then kept up to date; until then only the drawing list grows.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "shell/services/drawing.h"
#include "shell/services/grey_picture.h"
#include "shell/services/stored.h"

namespace zol {

class Services;

/// A pixel image. Coordinates are pixels, x right, y down; nothing outside it is set.
class Surface {
 public:
  Surface() = default;
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;
  virtual ~Surface() = default;

  [[nodiscard]] virtual int width() const = 0;
  [[nodiscard]] virtual int height() const = 0;
  virtual void fill(Colour colour) = 0;
  virtual void make_transparent() = 0;
  virtual void line(double x1, double y1, double x2, double y2, Colour colour) = 0;
  virtual void circle(double x, double y, double radius, Colour outline, std::optional<Colour> fill) = 0;
  virtual void set_pixel(int x, int y, Colour colour) = 0;
  [[nodiscard]] virtual std::optional<Colour> pixel(int x, int y) const = 0;  ///< none where transparent
  virtual void text(double x, double y, const std::string& text, Colour colour, double font_size_pt) = 0;
  /// Draws another image over this one, scaled to fill it, each direction by itself.
  virtual void draw(const Surface& other, bool upside_down) = 0;
  /// A new image, turned over left to right or upside down.
  [[nodiscard]] virtual std::unique_ptr<Surface> mirrored(bool left_to_right, bool upside_down) const = 0;
  /// Takes an image from a file, with its size: a bitmap, or by its content PNG, JPEG or TIFF.
  /// @throws RunFailure  it cannot be read
  virtual void load(const std::string& path) = 0;
  /// Luminance of the pixels, over white where they are transparent; as fine as the file where it was loaded and not
  /// changed since.
  [[nodiscard]] virtual GreyPicture grey() const = 0;
  /// @throws RunFailure  it cannot be written
  virtual void save_bitmap(const std::string& path) const = 0;
  /// All of its pixels, to the bit. @throws RunFailure  the bytes hold no image
  virtual void store(StoreWriter& out) const = 0;
  virtual void load(StoreReader& in) = 0;
};

/// A null pointer too.
template <>
struct Stored<std::shared_ptr<const Surface>> {
  static void store(StoreWriter& out, const std::shared_ptr<const Surface>& image);
  /// @throws RunFailure  there are no pixels here
  static std::shared_ptr<const Surface> load(StoreReader& in);
};

/// User coordinates onto the pixels of a surface.
struct PixelMap {
  PixelMap(const UserScale& scale, int width, int height);
  [[nodiscard]] double x(double user) const { return (user - left) * per_x; }
  [[nodiscard]] double y(double user) const { return (user - top) * per_y; }
  double left, top, per_x, per_y;
};

/// Index of the pixel that a pixel coordinate falls on; none outside any image.
[[nodiscard]] std::optional<int> pixel_index(double coordinate);

class Raster {
 public:
  explicit Raster(Services& services) : services_(services) {}

  /// The background picture, none where there is none. It is never changed, only replaced.
  [[nodiscard]] const std::shared_ptr<const Surface>& picture() const { return picture_; }
  void set_picture(std::shared_ptr<const Surface> picture);
  /// The grey values of the picture, none where there is none; kept until the picture is replaced.
  [[nodiscard]] std::shared_ptr<const GreyPicture> grey_picture();
  /// A new image of the same pixels.
  [[nodiscard]] std::unique_ptr<Surface> copy_of(const Surface& image) const;

  /// True when the stored image holds more than picture and list tell.
  [[nodiscard]] bool has_base() const { return base_; }
  void set_base(bool base) { base_ = base; }

  /// The images are there and hold all of the list.
  [[nodiscard]] bool made() const { return stored_ != nullptr && complete_; }
  [[nodiscard]] bool begun() const { return stored_ != nullptr; }
  /// Makes the images where there are none. @returns false when there are no pixels here
  /// @throws Cancelled  the user stops it
  [[nodiscard]] bool make(const Drawing& drawing);
  /// Makes some more of them, until the answer is true. @returns false when there are no pixels here
  [[nodiscard]] bool make_some(const Drawing& drawing, const std::function<bool()>& enough);
  /// The images are to be made anew.
  void drop();
  void repaint_stored(const Drawing& drawing);
  void clear_overlay();
  /// Paints the last entry of the list.
  void paint_last(const Drawing& drawing);

  // Where they are made
  [[nodiscard]] Surface& stored() const { return *stored_; }
  [[nodiscard]] Surface& overlay() const { return *overlay_; }

 private:
  void paint_base(const Drawing& drawing);

  Services& services_;
  bool base_ = false;
  std::shared_ptr<const Surface> picture_;
  std::shared_ptr<const GreyPicture> grey_;  // of the picture, where it has been asked for
  bool complete_ = false;                    // the images hold all of the list
  std::size_t painted_ = 0;                  // entries of the list, as long as they do not
  UserScale painted_scale_;                  // in force behind those
  std::unique_ptr<Surface> stored_;          // both or none
  std::unique_ptr<Surface> overlay_;
};

}  // namespace zol
