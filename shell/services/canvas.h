// The picture control: a drawing surface in user coordinates with a list of what was drawn and, where the surroundings
// have pixels, an image of it.
//
// Two layers: the stored image (background picture and what was drawn in persistent mode) and the overlay above it. The
// image is made when it is first looked at and then kept up to date; until then only the list grows.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "shell/services/controls.h"

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
  /// Turns the image over, left to right or upside down.
  virtual void mirror(bool left_to_right, bool upside_down) = 0;
  /// Takes an image from a bitmap file, with its size. @throws RunFailure  it can't be read
  virtual void load_bitmap(const std::string& path) = 0;
  /// @throws RunFailure  it can't be written
  virtual void save_bitmap(const std::string& path) const = 0;
};

/// User coordinates: left and top lie at the picture's upper left corner; left may exceed right, top exceed bottom.
struct UserScale {
  double left = 0, top = 0, right = 1, bottom = 1;
  bool operator==(const UserScale&) const = default;
};

struct DrawnLine {
  double x1, y1, x2, y2;
  Colour colour;
};
struct DrawnCircle {
  double x, y, radius;
  Colour colour;
  std::optional<Colour> fill;
};
struct DrawnPoint {
  double x, y;
  Colour colour;
};
struct DrawnText {
  double x, y;
  Colour colour;
  std::string text;
  double font_size_pt;
};

/// One entry of the drawing list. A UserScale holds for all entries behind it.
struct Primitive {
  std::variant<UserScale, DrawnLine, DrawnCircle, DrawnPoint, DrawnText> what;
  bool stored = true;  ///< in the stored image, else on the overlay
};

/// An axis of a curve: what is laid off along it, and in which unit.
struct Axis {
  std::string quantity;
  std::string unit;
  double per_unit = 1;  ///< shown numbers per user unit
};

class Canvas : public Control {
 public:
  /// @param width_twips  size of the control, 1440 twips are 96 pixels
  Canvas(Window& window, Services& services, std::string name, int width_twips, int height_twips);
  ~Canvas() override;

  /// In persistent mode erases all drawing down to the background picture; else the overlay alone.
  void clear();
  /// A scale of width or height 0 is taken too. What is drawn in it goes on the list, but has no pixels.
  void scale(double left, double top, double right, double bottom);
  void move_to(double x, double y);  ///< sets the drawing position
  void line(double x1, double y1, double x2, double y2, std::optional<Colour> colour = {});
  void line_to(double x, double y, std::optional<Colour> colour = {});
  /// A circle also where the two scales differ: the radius counts in units of x. Leaves the drawing position at the
  /// centre.
  void circle(double x, double y, double radius, std::optional<Colour> colour = {});
  void set_point(double x, double y, std::optional<Colour> colour = {});
  /// Colour of the pixel, -1 outside the picture. @throws RunFailure  there are no pixels here
  [[nodiscard]] Colour point(double x, double y);
  void print(std::string_view text);  ///< at the drawing position, which stays

  [[nodiscard]] Colour fore_colour() const { return fore_colour_; }
  [[nodiscard]] Colour back_colour() const { return back_colour_; }
  [[nodiscard]] double font_size() const { return font_size_; }
  void set_fore_colour(Colour colour) { fore_colour_ = colour; }
  void set_back_colour(Colour colour);  ///< repaints the background under the drawing
  void set_fill_colour(Colour colour) { fill_colour_ = colour; }
  void set_solid_fill(bool solid) { solid_fill_ = solid; }  ///< else transparent
  void set_font_size(double points) { font_size_ = points; }
  void set_persistent(bool persistent) { persistent_ = persistent; }
  [[nodiscard]] bool persistent() const { return persistent_; }

  [[nodiscard]] int width() const { return width_; }  ///< twips
  [[nodiscard]] int height() const { return height_; }
  void set_width(int twips);
  void set_height(int twips);
  [[nodiscard]] int pixel_width() const;  ///< twips / 15, rounded half to even
  [[nodiscard]] int pixel_height() const;

  /// Background picture. Each replaces the stored image, so that what was drawn into it goes.
  void load_picture(const std::string& path);
  void take_picture(Canvas& other, bool upside_down);  ///< the stored image of another canvas
  void remove_picture();
  void flip_picture();    ///< upside down; without a picture nothing happens
  void mirror_picture();  ///< left to right
  /// The stored image, changed pixel by pixel, becomes the picture.
  void edit_picture(const std::function<void(Surface&)>& edit);
  [[nodiscard]] bool has_picture() const { return picture_ != nullptr; }

  /// Writes the stored image, or the image with its overlay, as a bitmap.
  void save_stored_image(const std::string& path);
  void save_image_with_overlay(const std::string& path);

  [[nodiscard]] MousePointer mouse_pointer() const { return mouse_pointer_; }
  void set_mouse_pointer(MousePointer pointer);

  // Mouse events, positions in user coordinates
  void press(double x, double y) const { on_mouse_down.fire(path() + " was pressed", to_single(x), to_single(y)); }
  void move(double x, double y) const { on_mouse_move.fire(path() + " was moved over", to_single(x), to_single(y)); }
  void release(double x, double y) const { on_mouse_up.fire(path() + " was released", to_single(x), to_single(y)); }
  void double_click() const { on_double_click.fire(path() + " was double clicked"); }
  Event<Single, Single> on_mouse_down;
  Event<Single, Single> on_mouse_move;
  Event<Single, Single> on_mouse_up;
  Event<> on_double_click;

  // What a view shows beside the picture
  std::optional<Axis> x_axis, y_axis;                             ///< rulers, where the picture is a curve
  std::function<std::string(double x, double y)> describe_place;  ///< the place under the pointer, in user coordinates

  // For views and exports
  [[nodiscard]] Services& services() const { return services_; }
  [[nodiscard]] const UserScale& user_scale() const { return scale_; }
  [[nodiscard]] const UserScale& list_scale() const { return list_scale_; }  ///< in force at the head of the list
  [[nodiscard]] const std::vector<Primitive>& drawing() const { return drawing_; }
  /// True when the stored image holds more than picture and list tell: a raster is then the base of any export.
  [[nodiscard]] bool has_raster_base() const { return raster_base_; }
  /// Empty, or why what was drawn has no pixels: it stands in a scale of width or height 0.
  [[nodiscard]] std::string fault() const;
  /// @throws RunFailure  there are no pixels here, or the drawing has a fault
  [[nodiscard]] Surface& stored_image();
  [[nodiscard]] Surface& overlay_image();

 private:
  void add(Primitive primitive);
  void make_images();
  void repaint_stored();
  void show_picture();
  void replay(Surface& surface, bool stored) const;
  static void paint(Surface& surface, const UserScale& scale, const Primitive& primitive);

  Services& services_;
  int width_;
  int height_;
  UserScale scale_;
  UserScale list_scale_;
  double x_ = 0;
  double y_ = 0;
  Colour fore_colour_ = RGB(0, 0, 0);
  Colour back_colour_ = RGB(255, 255, 255);
  Colour fill_colour_ = RGB(0, 0, 0);
  bool solid_fill_ = true;
  double font_size_ = 8.25;
  bool persistent_ = true;
  bool raster_base_ = false;
  MousePointer mouse_pointer_ = MousePointer::Default;
  std::vector<Primitive> drawing_;
  std::unique_ptr<Surface> picture_;
  std::unique_ptr<Surface> stored_;  // both or none
  std::unique_ptr<Surface> overlay_;
};

}  // namespace zol
